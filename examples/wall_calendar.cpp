// SPDX-License-Identifier: LGPL-2.1-or-later
// Prints a wall calendar of 2027 with the holidays of Bavaria: wall_calendar kalender.pdf
#include "MvCore/MvInitializer.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: wall_calendar FILE.pdf\n");
        return 2;
    }
    const QGuiApplication application(argc, argv); // fonts need it
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);

    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(QStringLiteral("MONTH_GRID_CLASSIC")));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(QStringLiteral("WARM_PAPER")));
    appearance.adaptGridToLayout();

    MvPageFormat page = MvPageFormat::fromName(QStringLiteral("A3"));
    page.setOrientation(MvPageFormat::Orientation::Landscape);
    page.setBleed(30.0); // 3 mm

    MvCalendarDocument calendar;
    calendar.setAppearance(appearance);
    calendar.setFormat(page);
    calendar.setRange(MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    calendar.setHolidayConfig(
        MvCalendariumHolidayConfig(MvLocale(QStringLiteral("de_DE")), QStringLiteral("BY"),
                                   MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS)));
    calendar.setTitle(QStringLiteral("Kalender 2027"));

    const MvExportResult result =
        MvPdfExporter::write(calendar.pageSource(), QFileInfo(QString::fromLocal8Bit(argv[1])));
    if (!result.isOk())
        std::fprintf(stderr, "%s\n", qPrintable(result.error));
    return result.isOk() ? 0 : 1;
}

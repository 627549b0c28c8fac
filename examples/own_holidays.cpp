// SPDX-License-Identifier: LGPL-2.1-or-later
// Adds days of one's own to the holidays of a country and lists those of March 2027: own_holidays FOLDER
// FOLDER is where the program keeps its data. Calendars that it prints have the days, too.
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvInitializer.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProductBase/MvCalendariumContentConfig.h"
#include "MvProductBase/MvCalendariumContentKey.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: own_holidays FOLDER\n");
        return 2;
    }
    const QGuiApplication application(argc, argv);
    MvDirectoryConfig &folders = MvDirectoryConfig::instance();
    folders.setProgramDataDir(QString::fromLocal8Bit(argv[1])); // before anything is read
    folders.programDataDir().mkpath(QStringLiteral("."));
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);

    const MvOutcome written = MvSafeFileWriter::write(folders.programDataFile(QStringLiteral("my-holidays.xml")), R"(
<MyHolidays>
  <country code="DE">
    <holiday name="Company anniversary" type="public" rule="03-17"/>
    <holiday name="Inventory" type="observance" rule="easter-3"/>
    <remove name="Karfreitag"/>
  </country>
</MyHolidays>
)");
    if (!written.isOk()) {
        std::fprintf(stderr, "%s\n", qPrintable(written.error));
        return 1;
    }
    MvCalendariumHolidayCache &holidays = MvCalendariumHolidayCache::instance();
    holidays.reloadData(); // a program that runs for long may have read the file already

    const MvCalendariumHolidayConfig bavaria(MvLocale(QStringLiteral("de_DE")), QStringLiteral("BY"),
                                             MvCalendariumFeatures(FEATURE_HOLIDAYS));
    for (QDate day(2027, 3, 1); day.month() == 3; day = day.addDays(1)) {
        MvCalendariumContentConfig content;
        content.setDate(day);
        content.setHolidayConfig(bavaria);
        for (const MvCalendariumHoliday &holiday : holidays.holidays(content))
            std::printf("%s %s\n", qPrintable(day.toString(Qt::ISODate)), qPrintable(holiday.description()));
    }
    return 0;
}

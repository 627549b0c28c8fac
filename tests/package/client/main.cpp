// SPDX-License-Identifier: LGPL-2.1-or-later
// A program of somebody else: links the installed library and has it print a calendar.
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"

#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(MvCalendariumLayoutSchemaRegistry::instance().defaultSchema());
    appearance.setColorSchema(MvCalendariumColorSchemaRegistry::instance().defaultSchema());
    MvCalendarDocument document;
    document.setAppearance(appearance);

    const MvPageSource pages = document.pageSource();
    const MvExportResult result = MvPdfExporter::write(pages, QFileInfo(QString::fromLocal8Bit(argv[1])));
    QTextStream(stdout) << (result.isOk() ? QString::number(pages.pages.size()) : result.error) << '\n';
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarInitializer.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvCore/MvBackground.h"
#include "MvCore/MvInitializer.h"
#include "MvCore/MvLogger.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvModelBase/MvShippedFonts.h"
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

MvCalendarInitializer MvCalendarInitializer::me;

MvCalendarInitializer::MvCalendarInitializer()
{
    MvInitializer::instance().registerInitializer(this);
    MvCalendariumAppearance::setUsedCellTypes([](const MvCalendariumAppearance &appearance) {
        return MvCalendariumRendererFactory::instance().usedCellTypes(appearance);
    });
}

void MvCalendarInitializer::setup(MvInitializerOption)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        MvBackground::keepThreads();                                 // while there are some
    const QStringList files = MvSafeFileWriter::finishInterrupted(); // before anything reads them
    for (const QString &file : files)
        MvLogger::legacyLog(u"Files ACTION:finishInterrupted VALUE:%1"_s.arg(file));
    MvShippedFonts::registerAll();
    initCalendarHolidays();
}

void MvCalendarInitializer::teardown()
{}

void MvCalendarInitializer::initCalendarHolidays()
{
    auto &factory = MvSVGCompilerInstructionsFactory::instance();
    factory.addHolidayCache(&MvCalendarEventRegistry::instance());
    factory.addHolidayCache(&MvCalendariumHolidayCache::instance());
}

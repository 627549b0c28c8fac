// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarInitializer.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvCore/MvBackground.h"
#include "MvCore/MvInitializer.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"

#include <QGuiApplication>

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
        MvBackground::keepThreads();       // while there are some
    MvSafeFileWriter::finishInterrupted(); // before anything reads the files
    MvFontSupply::start();
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

#include "MvCalendar/MvCalendarInitializer.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvCore/MvInitializer.h"
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"

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

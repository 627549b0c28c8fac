// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererFactory.h"

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumRendererHolidays.h"
#include "MvCalendar/MvCalendariumRendererMonthOnly.h"
#include "MvCalendar/MvCalendariumRendererOneColumnPerWeek.h"
#include "MvCalendar/MvCalendariumRendererOneDayPerRow.h"
#include "MvCalendar/MvCalendariumRendererOneRow.h"
#include "MvCalendar/MvCalendariumRendererOneWeekPerRow.h"
#include "MvCalendar/MvCalendariumRendererTwoWeeksPerRow.h"
#include "MvCalendar/MvCalendariumRendererYear.h"
#include "MvCalendar/MvCalendariumRendererYearOnly.h"

#include <memory>

template class MvSingleton<MvCalendariumRendererFactory>;

MvCalendariumRenderer *MvCalendariumRendererFactory::createRenderer(const MvCalendariumAppearance &appearance) const
{
    switch (appearance.type().value()) {
    case CALENDAR_ONE_WEEK_PER_ROW:
        return new MvCalendariumRendererOneWeekPerRow(appearance);
    case CALENDAR_TWO_WEEKS:
        return new MvCalendariumRendererTwoWeeksPerRow(appearance);
    case CALENDAR_ONE_DAY_PER_ROW:
        return new MvCalendariumRendererOneDayPerRow(appearance);
    case CALENDAR_ONE_COLUMN_PER_WEEK:
        return new MvCalendariumRendererOneColumnPerWeek(appearance);
    case CALENDAR_YEAR:
        return new MvCalendariumRendererYear(appearance);
    case CALENDAR_YEAR_ONLY:
        return new MvCalendariumRendererYearOnly(appearance);
    case CALENDAR_ONE_ROW:
        return new MvCalendariumRendererOneRow(appearance);
    case CALENDAR_HOLIDAYS:
        return new MvCalendariumRendererHolidays(appearance);
    case CALENDAR_MONTH_ONLY:
        break;
    }
    return new MvCalendariumRendererMonthOnly(appearance);
}

QList<MvCalendarCellType> MvCalendariumRendererFactory::usedCellTypes(const MvCalendariumAppearance &appearance) const
{
    const std::unique_ptr<MvCalendariumRenderer> renderer(createRenderer(appearance));
    QList<MvCalendarCellType> types = renderer->usedCellTypes();
    if (!appearance.currentSchemaNeeds(calendar_render_title))
        types.removeAll(MvCalendarCellType(CALENDAR_CELL_TYPE_TITLE));
    if (!appearance.currentSchemaNeeds(
            MvCalendarRenderingInformation(calendar_render_year_long | calendar_render_year_short)))
        types.removeAll(MvCalendarCellType(CALENDAR_CELL_TYPE_YEAR));
    return types;
}

bool MvCalendariumRendererFactory::hasOneHeaderPerDay(const MvCalendariumAppearance &appearance) const
{
    const std::unique_ptr<MvCalendariumRenderer> renderer(createRenderer(appearance));
    return renderer->hasOneHeaderPerDay();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

/// What a kind of calendarium can show.
enum MvCalendariumDisplayAbilitiesEnum : qint32 {
    ABILITY_NONE = 0,
    ABILITY_DISPLAY_VACATIONS = 2,
    ABILITY_DISPLAY_HOLIDAYS = 4,
    ABILITY_DISPLAY_HOLIDAYS_COLORS = 8,
    ABILITY_DISPLAY_CALENDAR_WEEKS = 16,
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendariumDisplayAbilitiesEnum>;

/// A set of abilities; unknown names count for 0.
class MVCALENDAR_EXPORT MvCalendariumDisplayAbilities : public MvEnumWrapper<MvCalendariumDisplayAbilitiesEnum>
{
    MV_ENUM_WRAPPER(MvCalendariumDisplayAbilities, MvCalendariumDisplayAbilitiesEnum)
};

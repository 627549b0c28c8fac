// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

/// The sides of a cell on which a line is drawn.
enum MvCalendarBorderTypeEnum : qint32 {
    CALENDAR_BORDER_LEFT = 1,
    CALENDAR_BORDER_RIGHT = 2,
    CALENDAR_BORDER_TOP = 4,
    CALENDAR_BORDER_BOTTOM = 8,
    CALENDAR_BORDER_ALL = 15,
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendarBorderTypeEnum>;

/// A set of sides. The misspelt names CALENDER_... of old files are read, never written.
class MVCALENDAR_EXPORT MvCalendarBorderType : public MvEnumWrapper<MvCalendarBorderTypeEnum>
{
    MV_ENUM_WRAPPER(MvCalendarBorderType, MvCalendarBorderTypeEnum)
};

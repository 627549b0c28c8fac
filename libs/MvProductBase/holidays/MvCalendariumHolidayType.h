// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvEnumWrapper.h"
#include "MvProductBase/mvproductbase_export.h"

/// What kind of day a holiday is; one bit each, so that a question may name several.
enum MvCalendariumHolidayTypeEnum : qint32 {
    HOLIDAY_TYPE_NONE = 0,
    HOLIDAY_TYPE_SCHOOL_VACATION = 16,
    HOLIDAY_TYPE_PUBLIC = 32,      // a legal day off
    HOLIDAY_TYPE_OPTIONAL = 64,    // a day off for part of the people: schools, banks, confessions
    HOLIDAY_TYPE_OBSERVANCE = 128, // a named day, not a day off
};

extern template class MVPRODUCTBASE_EXPORT MvEnumWrapper<MvCalendariumHolidayTypeEnum>;

/// Names: "schoolVacation", "public", "optional", "observance"; unknown names count for nothing.
class MVPRODUCTBASE_EXPORT MvCalendariumHolidayType : public MvEnumWrapper<MvCalendariumHolidayTypeEnum>
{
    MV_ENUM_WRAPPER(MvCalendariumHolidayType, MvCalendariumHolidayTypeEnum)
};

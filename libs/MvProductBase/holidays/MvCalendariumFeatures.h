// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvEnumWrapper.h"
#include "MvProductBase/mvproductbase_export.h"

/// What a calendarium shows besides its dates; one bit each.
enum MvCalendariumFeaturesEnum : qint32 {
    FEATURE_NONE = 0,
    FEATURE_HOLIDAYS = 1,              // official holidays are written into their cells
    FEATURE_HOLIDAY_COLORS = 2,        // holidays change the colours of their cells
    FEATURE_ENTRIES = 4,               // personal entries are written into their cells
    FEATURE_SCHOOL_VACATIONS = 8,      // school vacations are shown
    FEATURE_VACATION_NAMES_DAILY = 16, // vacations carry their name on every day, not only on the first one
    FEATURE_PUBLIC_HOLIDAYS_ONLY = 32, // leaves optional and observed days out
    FEATURE_CALENDAR_WEEKS = 64,       // calendar weeks are shown
};

extern template class MVPRODUCTBASE_EXPORT MvEnumWrapper<MvCalendariumFeaturesEnum>;

/// The features switched on. Names: "holidays", "holidayColors", "entries", "schoolVacations", "vacationNamesDaily",
/// "publicHolidaysOnly", "calendarWeeks"; unknown names count for nothing.
class MVPRODUCTBASE_EXPORT MvCalendariumFeatures : public MvEnumWrapper<MvCalendariumFeaturesEnum>
{
    MV_ENUM_WRAPPER(MvCalendariumFeatures, MvCalendariumFeaturesEnum)
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayConfigDefault.h"

template class MvSingleton<MvCalendariumHolidayConfigDefault>;

MvCalendariumHolidayConfigDefault::MvCalendariumHolidayConfigDefault()
    : m_config(MvLocale(QStringLiteral("de_DE")), QStringLiteral("NW"),
               MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS | FEATURE_ENTRIES |
                                     FEATURE_SCHOOL_VACATIONS | FEATURE_CALENDAR_WEEKS))
{}

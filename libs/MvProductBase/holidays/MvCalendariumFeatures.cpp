// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumFeatures.h"

template class MvEnumWrapper<MvCalendariumFeaturesEnum>;

void MvCalendariumFeatures::fillTable(Table *table) const
{
    table->insert(QStringLiteral("holidays"), FEATURE_HOLIDAYS);
    table->insert(QStringLiteral("holidayColors"), FEATURE_HOLIDAY_COLORS);
    table->insert(QStringLiteral("entries"), FEATURE_ENTRIES);
    table->insert(QStringLiteral("schoolVacations"), FEATURE_SCHOOL_VACATIONS);
    table->insert(QStringLiteral("vacationNamesDaily"), FEATURE_VACATION_NAMES_DAILY);
    table->insert(QStringLiteral("publicHolidaysOnly"), FEATURE_PUBLIC_HOLIDAYS_ONLY);
    table->insert(QStringLiteral("calendarWeeks"), FEATURE_CALENDAR_WEEKS);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayType.h"

template class MvEnumWrapper<MvCalendariumHolidayTypeEnum>;

void MvCalendariumHolidayType::fillTable(Table *table) const
{
    table->insert(QStringLiteral("schoolVacation"), HOLIDAY_TYPE_SCHOOL_VACATION);
    table->insert(QStringLiteral("public"), HOLIDAY_TYPE_PUBLIC);
    table->insert(QStringLiteral("optional"), HOLIDAY_TYPE_OPTIONAL);
    table->insert(QStringLiteral("observance"), HOLIDAY_TYPE_OBSERVANCE);
}

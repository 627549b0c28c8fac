// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaList.h"

#include <algorithm>

bool MvCalendariumColorSchemaList::insertSchema(const MvCalendariumColorSchema &schema)
{
    if (contains(schema))
        return false;
    append(schema);
    return true;
}

bool MvCalendariumColorSchemaList::deleteSchema(const MvCalendariumColorSchema &schema)
{
    return removeOne(schema);
}

MvCalendariumColorSchemaList MvCalendariumColorSchemaList::userSchemaList() const
{
    MvCalendariumColorSchemaList users;
    std::copy_if(cbegin(), cend(), std::back_inserter(users),
                 [](const MvCalendariumColorSchema &schema) { return schema.isUserSchema(); });
    return users;
}

QColor MvCalendariumColorSchemaList::backgroundColor(int index, bool even) const
{
    return value(index).cellColor(
        {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_WEEKDAY, MvParityLogic(even)});
}

QColor MvCalendariumColorSchemaList::textColor(int index, bool even) const
{
    return value(index).cellColor(
        {MvCalendarCellColorRoleEnum::textcolor, CALENDAR_CELL_TYPE_WEEKDAY, MvParityLogic(even)});
}

bool MvCalendariumColorSchemaList::isBackgroundEqualText(int index, bool even) const
{
    return backgroundColor(index, even) == textColor(index, even);
}

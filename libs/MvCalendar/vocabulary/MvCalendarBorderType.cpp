// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarBorderType.h"

template class MvEnumWrapper<MvCalendarBorderTypeEnum>;

void MvCalendarBorderType::fillTable(Table *table) const
{
    table->insert(QStringLiteral("CALENDAR_BORDER_LEFT"), CALENDAR_BORDER_LEFT);
    table->insert(QStringLiteral("CALENDAR_BORDER_RIGHT"), CALENDAR_BORDER_RIGHT);
    table->insert(QStringLiteral("CALENDAR_BORDER_TOP"), CALENDAR_BORDER_TOP);
    table->insert(QStringLiteral("CALENDAR_BORDER_BOTTOM"), CALENDAR_BORDER_BOTTOM);
    table->insert(QStringLiteral("CALENDAR_BORDER_ALL"), CALENDAR_BORDER_ALL);
    table->insert(QStringLiteral("CALENDER_BORDER_LEFT"), CALENDAR_BORDER_LEFT);
    table->insert(QStringLiteral("CALENDER_BORDER_RIGHT"), CALENDAR_BORDER_RIGHT);
    table->insert(QStringLiteral("CALENDER_BORDER_TOP"), CALENDAR_BORDER_TOP);
    table->insert(QStringLiteral("CALENDER_BORDER_BOTTOM"), CALENDAR_BORDER_BOTTOM);
    table->insert(QStringLiteral("CALENDER_BORDER_ALL"), CALENDAR_BORDER_ALL);
}

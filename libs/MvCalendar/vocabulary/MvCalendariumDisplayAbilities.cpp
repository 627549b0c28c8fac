// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumDisplayAbilities.h"

template class MvEnumWrapper<MvCalendariumDisplayAbilitiesEnum>;

void MvCalendariumDisplayAbilities::fillTable(Table *table) const
{
    table->insert(QStringLiteral("ABILITY_NONE"), ABILITY_NONE);
    table->insert(QStringLiteral("ABILITY_DISPLAY_VACATIONS"), ABILITY_DISPLAY_VACATIONS);
    table->insert(QStringLiteral("ABILITY_DISPLAY_HOLIDAYS"), ABILITY_DISPLAY_HOLIDAYS);
    table->insert(QStringLiteral("ABILITY_DISPLAY_HOLIDAYS_COLORS"), ABILITY_DISPLAY_HOLIDAYS_COLORS);
    table->insert(QStringLiteral("ABILITY_DISPLAY_CALENDAR_WEEKS"), ABILITY_DISPLAY_CALENDAR_WEEKS);
}

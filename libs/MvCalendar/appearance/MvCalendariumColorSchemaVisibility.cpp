// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaVisibility.h"

template class MvEnumWrapper<MvCalendariumColorSchemaVisibilityEnum>;

void MvCalendariumColorSchemaVisibility::fillTable(Table *table) const
{
    table->insert(QStringLiteral("kept"), SCHEMA_VISIBILITY_KEPT);
    table->insert(QStringLiteral("offered"), SCHEMA_VISIBILITY_OFFERED);
    table->insert(QStringLiteral("unknown"), SCHEMA_VISIBILITY_UNKNOWN);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarCellColorRole.h"

template class MvEnumWrapper<MvCalendarCellColorRoleEnum>;

void MvCalendarCellColorRole::fillTable(Table *table) const
{
    table->insert(QStringLiteral("none"), MvCalendarCellColorRoleEnum::none);
    table->insert(QStringLiteral("bgcolor"), MvCalendarCellColorRoleEnum::bgcolor);
    table->insert(QStringLiteral("textcolor"), MvCalendarCellColorRoleEnum::textcolor);
}

QColor MvCalendarCellColorRole::defaultColor() const
{
    return value() == MvCalendarCellColorRoleEnum::textcolor ? Qt::black : Qt::transparent;
}

QString MvCalendarCellColorRole::evenKey() const
{
    return encode() + QStringLiteral("even");
}

QString MvCalendarCellColorRole::oddKey() const
{
    return encode() + QStringLiteral("odd");
}

QList<MvCalendarCellColorRole> MvCalendarCellColorRole::allRoles()
{
    return {MvCalendarCellColorRoleEnum::bgcolor, MvCalendarCellColorRoleEnum::textcolor};
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvParityLogic.h"

template class MvEnumWrapper<MvParityLogicEnum>;

void MvParityLogic::fillTable(Table *table) const
{
    table->insert(QStringLiteral("none"), MvParityLogicEnum::none);
    table->insert(QStringLiteral("even"), MvParityLogicEnum::even);
    table->insert(QStringLiteral("odd"), MvParityLogicEnum::odd);
    table->insert(QStringLiteral("both"), MvParityLogicEnum::both);
    table->setDefaultValue(MvParityLogicEnum::both);
}

MvParityLogic::MvParityLogic(bool even)
    : MvParityLogic(even ? MvParityLogicEnum::even : MvParityLogicEnum::odd)
{}

bool MvParityLogic::sourceField() const
{
    return value() != MvParityLogicEnum::odd;
}

QList<bool> MvParityLogic::targetParities() const
{
    QList<bool> parities;
    if (hasAnyOf(MvParityLogicEnum::even))
        parities.append(true);
    if (hasAnyOf(MvParityLogicEnum::odd))
        parities.append(false);
    return parities;
}

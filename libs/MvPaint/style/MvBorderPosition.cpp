// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvBorderPosition.h"

template class MvEnumWrapper<MvBorderPositionEnum>;

void MvBorderPosition::fillTable(Table *table) const
{
    table->insert(QStringLiteral("inside"), BORDER_POSITION_INSIDE);
    table->insert(QStringLiteral("centred"), BORDER_POSITION_CENTRED);
    table->insert(QStringLiteral("outside"), BORDER_POSITION_OUTSIDE);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvColorList.h"

#include <QHash>

QColor MvColorList::findClusterPoint() const
{
    QHash<QRgb, int> counts;
    int highest = 0;
    for (const QColor &color : *this) {
        if (color.isValid())
            highest = qMax(highest, ++counts[color.rgba()]);
    }
    for (const QColor &color : *this) {
        if (color.isValid() && counts.value(color.rgba()) == highest)
            return color;
    }
    return {};
}

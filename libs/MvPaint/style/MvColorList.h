// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvModelBase/mvmodelbase_export.h"

#include <QColor>
#include <QList>

/// Questions to a number of colours.
class MVMODELBASE_EXPORT MvColorList : public QList<QColor>
{
public:
    using QList<QColor>::QList;

    /// The most frequent colour, compared by value with alpha; the one that came first on a tie. Invalid colours do
    /// not count; an invalid colour when there are no others.
    QColor findClusterPoint() const;
};

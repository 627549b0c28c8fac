// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPointF>

/// Where a page has most ink. A value.
struct MvInkUse
{
    int page = 0;         ///< counted from 0, in its document
    double percent = 0.0; ///< of all inks together: 0 to 400
    QPointF place;        ///< in tenths of a millimetre from the trimmed page's corner
};

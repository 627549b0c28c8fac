// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvEnumWrapper.h"
#include "MvModelBase/mvmodelbase_export.h"

/// Where a border line runs along the edge it belongs to.
enum MvBorderPositionEnum : qint32 {
    BORDER_POSITION_INSIDE = 1,
    BORDER_POSITION_CENTRED = 2,
    BORDER_POSITION_OUTSIDE = 4,
};

extern template class MVMODELBASE_EXPORT MvEnumWrapper<MvBorderPositionEnum>;

/// Names: "inside", "centred", "outside"; default none.
class MVMODELBASE_EXPORT MvBorderPosition : public MvEnumWrapper<MvBorderPositionEnum>
{
    MV_ENUM_WRAPPER(MvBorderPosition, MvBorderPositionEnum)
};

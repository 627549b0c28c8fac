// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

#include <QList>

/// Which weeks something holds for: even ones, odd ones or both.
enum class MvParityLogicEnum : qint32 {
    none = 0,
    even = 1,
    odd = 2,
    both = 3,
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvParityLogicEnum>;

/// Unknown names read as both.
class MVCALENDAR_EXPORT MvParityLogic : public MvEnumWrapper<MvParityLogicEnum>
{
    MV_ENUM_WRAPPER(MvParityLogic, MvParityLogicEnum)

    /// True gives even, false odd.
    explicit MvParityLogic(bool even);

    /// Whether values are read from the even field: true unless the parity is odd.
    bool sourceField() const;
    /// The fields to which values are written, true standing for even: even first, then odd; none gives an empty list.
    QList<bool> targetParities() const;
};

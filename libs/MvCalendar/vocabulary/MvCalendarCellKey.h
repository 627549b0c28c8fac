// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvParityLogic.h"

/// The key of something that each cell type has once per week parity.
class MVCALENDAR_EXPORT MvCalendarCellKey
{
public:
    MvCalendarCellKey(const MvCalendarCellType &cellType, const MvParityLogic &parity);

    const MvCalendarCellType &cellType() const { return m_cellType; }
    const MvParityLogic &parityLogic() const { return m_parity; }
    /// True when the key's type shares a bit with the given one.
    bool hasCellType(const MvCalendarCellType &type) const { return m_cellType.hasAnyOf(type); }
    bool sourceParity() const { return m_parity.sourceField(); }
    QList<bool> targetParities() const { return m_parity.targetParities(); }

    /// The key with the same parity and another type.
    MvCalendarCellKey convertedTo(const MvCalendarCellType &cellType) const;

    bool operator==(const MvCalendarCellKey &other) const;
    /// By cell type, then parity.
    bool operator<(const MvCalendarCellKey &other) const;

private:
    MvCalendarCellType m_cellType;
    MvParityLogic m_parity;
};

inline size_t qHash(const MvCalendarCellKey &key, size_t seed = 0)
{
    return qHashMulti(seed, key.cellType(), key.parityLogic());
}

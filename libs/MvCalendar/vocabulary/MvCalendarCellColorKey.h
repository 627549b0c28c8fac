// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellColorRole.h"
#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvParityLogic.h"

class QDebug;

/// The key of a colour in a schema: role, cell type and week parity, each possibly several at once.
class MVCALENDAR_EXPORT MvCalendarCellColorKey
{
public:
    MvCalendarCellColorKey(const MvCalendarCellColorRole &role, const MvCalendarCellType &cellType,
                           const MvParityLogic &parity);

    const MvCalendarCellColorRole &colorRole() const { return m_role; }
    const MvCalendarCellType &cellType() const { return m_cellType; }
    const MvParityLogic &parityLogic() const { return m_parity; }
    bool hasCellType(const MvCalendarCellType &type) const { return m_cellType.hasAnyOf(type); }
    bool sourceParity() const { return m_parity.sourceField(); }
    QList<bool> targetParities() const { return m_parity.targetParities(); }

    MvCalendarCellColorKey convertedTo(const MvParityLogic &parity) const;
    MvCalendarCellColorKey convertedTo(const MvCalendarCellType &cellType) const;
    /// The key from whose parity the colour is read: odd stays odd, everything else becomes even.
    MvCalendarCellColorKey correctedToSourceParity() const;

    /// True when role, type and parity are single ones.
    bool isOneKey() const;
    /// True when the key stands for several single keys: of role, parity and type the first that holds several bits
    /// decides, and the other two must not be 0.
    bool isSuperKey() const;
    /// The single keys that the key stands for.
    QList<MvCalendarCellColorKey> unfolded() const;

    /// A hash: different keys may share it.
    qint64 hashKey() const;
    /// The three names, separated by blanks.
    QString toString() const;

    bool operator==(const MvCalendarCellColorKey &other) const;
    /// By cell type, then role, then parity.
    bool operator<(const MvCalendarCellColorKey &other) const;

private:
    MvCalendarCellColorRole m_role;
    MvCalendarCellType m_cellType;
    MvParityLogic m_parity;
};

MVCALENDAR_EXPORT QDebug operator<<(QDebug debug, const MvCalendarCellColorKey &key);

inline size_t qHash(const MvCalendarCellColorKey &key, size_t seed = 0)
{
    return qHash(key.hashKey(), seed);
}

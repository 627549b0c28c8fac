// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarCellColorKey.h"

#include <QDebug>

#include <bit>

namespace {

template <class E>
int bitCount(const MvEnumWrapper<E> &value)
{
    return std::popcount(static_cast<quint32>(value.toInt()));
}

} // namespace

MvCalendarCellColorKey::MvCalendarCellColorKey(const MvCalendarCellColorRole &role, const MvCalendarCellType &cellType,
                                               const MvParityLogic &parity)
    : m_role(role)
    , m_cellType(cellType)
    , m_parity(parity)
{}

MvCalendarCellColorKey MvCalendarCellColorKey::convertedTo(const MvParityLogic &parity) const
{
    return {m_role, m_cellType, parity};
}

MvCalendarCellColorKey MvCalendarCellColorKey::convertedTo(const MvCalendarCellType &cellType) const
{
    return {m_role, cellType, m_parity};
}

MvCalendarCellColorKey MvCalendarCellColorKey::correctedToSourceParity() const
{
    return convertedTo(MvParityLogic(sourceParity()));
}

bool MvCalendarCellColorKey::isOneKey() const
{
    return bitCount(m_role) == 1 && bitCount(m_cellType) == 1 && bitCount(m_parity) == 1;
}

bool MvCalendarCellColorKey::isSuperKey() const
{
    if (bitCount(m_role) > 1)
        return m_parity.isValid() && m_cellType.isValid();
    if (bitCount(m_parity) > 1)
        return m_role.isValid() && m_cellType.isValid();
    if (bitCount(m_cellType) > 1)
        return m_role.isValid() && m_parity.isValid();
    return false;
}

QList<MvCalendarCellColorKey> MvCalendarCellColorKey::unfolded() const
{
    QList<MvCalendarCellColorKey> keys;
    const auto roles = MvCalendarCellColorRole::Table::splitToBits(m_role.value());
    const QList<MvCalendarCellType> types = m_cellType.singleTypes();
    const QList<bool> parities = targetParities();
    keys.reserve(roles.size() * types.size() * parities.size());
    for (const MvCalendarCellColorRoleEnum role : roles) {
        for (const MvCalendarCellType &type : types) {
            for (const bool even : parities)
                keys.append({role, type, MvParityLogic(even)});
        }
    }
    return keys;
}

qint64 MvCalendarCellColorKey::hashKey() const
{
    return qint64(m_role.toInt()) * 1024 + qint64(m_cellType.toInt()) * 32 + m_parity.toInt();
}

QString MvCalendarCellColorKey::toString() const
{
    return QStringLiteral("%1 %2 %3").arg(m_role.encode(), m_cellType.encode(), m_parity.encode());
}

bool MvCalendarCellColorKey::operator==(const MvCalendarCellColorKey &other) const
{
    return m_role == other.m_role && m_cellType == other.m_cellType && m_parity == other.m_parity;
}

bool MvCalendarCellColorKey::operator<(const MvCalendarCellColorKey &other) const
{
    if (m_cellType != other.m_cellType)
        return m_cellType < other.m_cellType;
    if (m_role != other.m_role)
        return m_role < other.m_role;
    return m_parity < other.m_parity;
}

QDebug operator<<(QDebug debug, const MvCalendarCellColorKey &key)
{
    const QDebugStateSaver saver(debug);
    debug.noquote() << key.toString();
    return debug;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarCellKey.h"

MvCalendarCellKey::MvCalendarCellKey(const MvCalendarCellType &cellType, const MvParityLogic &parity)
    : m_cellType(cellType)
    , m_parity(parity)
{}

MvCalendarCellKey MvCalendarCellKey::convertedTo(const MvCalendarCellType &cellType) const
{
    return {cellType, m_parity};
}

bool MvCalendarCellKey::operator==(const MvCalendarCellKey &other) const
{
    return m_cellType == other.m_cellType && m_parity == other.m_parity;
}

bool MvCalendarCellKey::operator<(const MvCalendarCellKey &other) const
{
    return m_cellType != other.m_cellType ? m_cellType < other.m_cellType : m_parity < other.m_parity;
}

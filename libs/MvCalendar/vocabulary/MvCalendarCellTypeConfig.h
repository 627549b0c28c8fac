// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"

/// The two types of a date's cell: one governs its inscription (font, padding, alignment), one its colours and borders.
/// They differ when holidays are to change the text but not the colour, or the other way round.
class MvCalendarCellTypeConfig
{
public:
    /// One type for both.
    explicit MvCalendarCellTypeConfig(const MvCalendarCellType &type)
        : MvCalendarCellTypeConfig(type, type)
    {}
    MvCalendarCellTypeConfig(const MvCalendarCellType &inscription, const MvCalendarCellType &color)
        : m_inscription(inscription)
        , m_color(color)
    {}

    const MvCalendarCellType &inscriptionConfig() const { return m_inscription; }
    const MvCalendarCellType &colorConfig() const { return m_color; }

    bool operator==(const MvCalendarCellTypeConfig &other) const
    {
        return m_inscription == other.m_inscription && m_color == other.m_color;
    }

private:
    MvCalendarCellType m_inscription;
    MvCalendarCellType m_color;
};

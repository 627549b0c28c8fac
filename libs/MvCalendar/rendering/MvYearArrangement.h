// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvSmallMonthGrid.h"

#include <functional>

/// Twelve small months in columns and rows: 12x1, 6x2, 4x3, 3x4, 2x6 or 1x12, whichever stretches the cells of the
/// days least. Geometry alone, in page units.
///
/// Gaps between months are a share of a day's cell. Names and heads keep the height they need, the days share the rest;
/// where there is too little room, all shrink alike.
class MVCALENDAR_EXPORT MvYearArrangement
{
public:
    static constexpr int monthCount = 12;

    /// The arrangement for the rectangle. `needed`: the sizes at which the cells are readable. The column of calendar
    /// weeks becomes no wider than a day's.
    static MvYearArrangement leastStretched(const QRectF &rect, const MvSmallMonthGrid::Sizes &needed);
    /// The same among those that are acceptable; any where none is.
    static MvYearArrangement leastStretched(const QRectF &rect, const MvSmallMonthGrid::Sizes &needed,
                                            const std::function<bool(const MvYearArrangement &)> &isAcceptable);

    MvYearArrangement(const QRectF &rect, int columns, const MvSmallMonthGrid::Sizes &needed);

    /// What that many columns of months need at least.
    static QSizeF minimumSize(int columns, const MvSmallMonthGrid::Sizes &needed);

    int columns() const { return m_columns; }
    int rows() const { return monthCount / m_columns; }
    const MvSmallMonthGrid::Sizes &sizes() const { return m_sizes; }
    /// How much longer the longer side of a day's cell is than the shorter one: 1 for a square.
    double stretch() const;
    /// Months fill row after row, from 0.
    QRectF monthRect(int index) const;

private:
    void shareWidth(const MvSmallMonthGrid::Sizes &needed);
    void shareHeight(const MvSmallMonthGrid::Sizes &needed);

    QRectF m_rect;
    int m_columns;
    MvSmallMonthGrid::Sizes m_sizes;
};

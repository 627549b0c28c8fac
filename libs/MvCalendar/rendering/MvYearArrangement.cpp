// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvYearArrangement.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr std::array columnCounts{4, 3, 6, 2, 12, 1}; // of equally stretched ones the first is taken

// gaps between months as shares of a day's cell
constexpr double columnGap = 1.0;
constexpr double rowGap = 0.7;

} // namespace

MvYearArrangement MvYearArrangement::leastStretched(const QRectF &rect, const MvSmallMonthGrid::Sizes &needed)
{
    return leastStretched(rect, needed, [](const MvYearArrangement &) { return true; });
}

MvYearArrangement MvYearArrangement::leastStretched(const QRectF &rect, const MvSmallMonthGrid::Sizes &needed,
                                                    const std::function<bool(const MvYearArrangement &)> &isAcceptable)
{
    MvYearArrangement best(rect, columnCounts.front(), needed);
    for (const int columns : columnCounts) {
        const MvYearArrangement arrangement(rect, columns, needed);
        const bool isBetter = isAcceptable(arrangement) == isAcceptable(best) ? arrangement.stretch() < best.stretch()
                                                                              : isAcceptable(arrangement);
        if (isBetter)
            best = arrangement;
    }
    return best;
}

MvYearArrangement::MvYearArrangement(const QRectF &rect, int columns, const MvSmallMonthGrid::Sizes &needed)
    : m_rect(rect)
    , m_columns(columns)
    , m_sizes(needed)
{
    shareWidth(needed);
    shareHeight(needed);
}

QSizeF MvYearArrangement::minimumSize(int columns, const MvSmallMonthGrid::Sizes &needed)
{
    const int rows = monthCount / columns;
    const QSizeF month = MvSmallMonthGrid::size(needed);
    return {columns * month.width() + (columns - 1) * columnGap * needed.day.width(),
            rows * month.height() + (rows - 1) * rowGap * needed.day.height()};
}

void MvYearArrangement::shareWidth(const MvSmallMonthGrid::Sizes &needed)
{
    // in widths of a day, without the columns of calendar weeks
    const double days = m_columns * MvSmallMonthGrid::daysPerWeek + (m_columns - 1) * columnGap;
    double day = (m_rect.width() - m_columns * needed.weekWidth) / days;
    m_sizes.weekWidth = needed.weekWidth;
    if (day < needed.weekWidth) {
        day = m_rect.width() / (days + m_columns);
        m_sizes.weekWidth = day;
    }
    m_sizes.day.setWidth(day);
}

void MvYearArrangement::shareHeight(const MvSmallMonthGrid::Sizes &needed)
{
    const double shrink = std::min(1.0, m_rect.height() / minimumSize(m_columns, needed).height());
    m_sizes.nameHeight = needed.nameHeight * shrink;
    m_sizes.headHeight = needed.headHeight * shrink;
    // in heights of a day, without names and heads
    const double days = rows() * needed.rows + (rows() - 1) * rowGap;
    m_sizes.day.setHeight((m_rect.height() - rows() * (m_sizes.nameHeight + m_sizes.headHeight)) / days);
}

double MvYearArrangement::stretch() const
{
    const auto [shorter, longer] = std::minmax({m_sizes.day.width(), m_sizes.day.height()});
    return shorter > 0.0 ? longer / shorter : std::numeric_limits<double>::infinity();
}

QRectF MvYearArrangement::monthRect(int index) const
{
    const QSizeF month = MvSmallMonthGrid::size(m_sizes);
    const int column = index % m_columns;
    const int row = index / m_columns;
    const double x = column * (month.width() + columnGap * m_sizes.day.width());
    const double y = row * (month.height() + rowGap * m_sizes.day.height());
    return {m_rect.topLeft() + QPointF(x, y), month};
}

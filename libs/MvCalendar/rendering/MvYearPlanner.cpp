// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvYearPlanner.h"

#include <algorithm>
#include <cmath>

MvYearPlanner::MvYearPlanner(const QRectF &rect, const QDate &firstMonth, const Sizes &sizes)
    : m_rect(rect)
    , m_firstMonth(firstMonth)
    , m_sizes(sizes)
    , m_nameHeight(sizes.nameHeight * std::min(1.0, rect.height() / minimumSize(sizes).height()))
{
    m_hasTextsBeneath = lengthBeneath() > lengthBeside();
}

QSizeF MvYearPlanner::minimumSize(const Sizes &sizes)
{
    return {monthCount * (sizes.numberWidth + sizes.weekdayWidth + sizes.weekWidth),
            sizes.nameHeight + mostDays * std::max(sizes.lineHeight, sizes.textHeight)};
}

QRectF MvYearPlanner::nameRect(int column) const
{
    return {QPointF(columnEdge(column), m_rect.top()), QPointF(columnEdge(column + 1), rowEdge(0))};
}

QRectF MvYearPlanner::dayRect(int column, int day) const
{
    return {QPointF(columnEdge(column), rowEdge(day - 1)), QPointF(columnEdge(column + 1), rowEdge(day))};
}

MvYearPlanner::Parts MvYearPlanner::parts(const QRectF &cell, bool withWeek) const
{
    QRectF line = cell;
    if (m_hasTextsBeneath)
        line.setHeight(m_sizes.lineHeight);
    Parts parts;
    parts.number = line;
    parts.number.setWidth(std::min(m_sizes.numberWidth, cell.width()));
    const double front = frontWidth();
    if (front > m_sizes.numberWidth)
        parts.weekday = QRectF(QPointF(parts.number.right(), line.top()), QPointF(line.left() + front, line.bottom()));
    double right = line.right();
    if (withWeek && m_sizes.weekWidth > 0.0 && front + m_sizes.weekWidth <= line.width()) {
        right -= m_sizes.weekWidth;
        parts.week = QRectF(QPointF(right, line.top()), line.bottomRight());
    }
    if (m_hasTextsBeneath)
        parts.texts = QRectF(line.bottomLeft(), cell.bottomRight());
    else if (line.left() + front < right)
        parts.texts = QRectF(QPointF(line.left() + front, line.top()), QPointF(right, line.bottom()));
    return parts;
}

double MvYearPlanner::columnEdge(int column) const
{
    return m_rect.left() + m_rect.width() * column / monthCount;
}

double MvYearPlanner::rowEdge(int row) const
{
    return m_rect.top() + m_nameHeight + (m_rect.height() - m_nameHeight) * row / mostDays;
}

/// The length of text that a cell holds beside number and weekday; 0 where only ellipses would be seen.
double MvYearPlanner::lengthBeside() const
{
    const QSizeF cell = dayRect(0, 1).size();
    const double width = cell.width() - frontWidth();
    return width >= m_sizes.leastTextWidth ? width * std::floor(cell.height() / m_sizes.textHeight) : 0.0;
}

/// The same beneath them.
double MvYearPlanner::lengthBeneath() const
{
    const QSizeF cell = dayRect(0, 1).size();
    const double height = cell.height() - m_sizes.lineHeight;
    return cell.width() >= m_sizes.leastTextWidth ? cell.width() * std::floor(height / m_sizes.textHeight) : 0.0;
}

/// Of the number, and of the weekday where there is room for both, and for texts if the number alone leaves them some.
double MvYearPlanner::frontWidth() const
{
    const double both = m_sizes.numberWidth + m_sizes.weekdayWidth;
    const auto hasRoomBeside = [this](double front) { return front + m_sizes.leastTextWidth <= columnWidth(); };
    const bool helpsTexts = lengthBeneath() <= 0.0 && !hasRoomBeside(both) && hasRoomBeside(m_sizes.numberWidth);
    return both <= columnWidth() && !helpsTexts ? both : m_sizes.numberWidth;
}

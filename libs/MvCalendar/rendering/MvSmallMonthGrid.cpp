// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvSmallMonthGrid.h"

MvSmallMonthGrid::MvSmallMonthGrid(const QPointF &corner, const QDate &month, const Sizes &sizes)
    : m_corner(corner)
    , m_first(month.year(), month.month(), 1)
    , m_sizes(sizes)
{}

QSizeF MvSmallMonthGrid::size(const Sizes &sizes)
{
    return {sizes.weekWidth + daysPerWeek * sizes.day.width(),
            sizes.nameHeight + sizes.headHeight + sizes.rows * sizes.day.height()};
}

// ---- cells

QRectF MvSmallMonthGrid::nameRect() const
{
    return {m_corner, QSizeF(size(m_sizes).width(), m_sizes.nameHeight)};
}

QRectF MvSmallMonthGrid::weekHeadRect() const
{
    return between(m_corner.x(), m_corner.y() + m_sizes.nameHeight, columnEdge(1), rowEdge(0));
}

QRectF MvSmallMonthGrid::headRect(int day) const
{
    return between(columnEdge(day), m_corner.y() + m_sizes.nameHeight, columnEdge(day + 1), rowEdge(0));
}

QRectF MvSmallMonthGrid::weekRect(int row) const
{
    return between(m_corner.x(), rowEdge(row), columnEdge(1), rowEdge(row + 1));
}

QRectF MvSmallMonthGrid::dayRect(int row, int day) const
{
    return between(columnEdge(day), rowEdge(row), columnEdge(day + 1), rowEdge(row + 1));
}

QRectF MvSmallMonthGrid::dayRect(const QDate &date) const
{
    return dayRect(static_cast<int>(monday(0).daysTo(date)) / daysPerWeek, date.dayOfWeek());
}

double MvSmallMonthGrid::columnEdge(int day) const
{
    return m_corner.x() + m_sizes.weekWidth + (day - 1) * m_sizes.day.width();
}

double MvSmallMonthGrid::rowEdge(int row) const
{
    return m_corner.y() + m_sizes.nameHeight + m_sizes.headHeight + row * m_sizes.day.height();
}

QRectF MvSmallMonthGrid::between(double left, double top, double right, double bottom) const
{
    return {QPointF(left, top), QPointF(right, bottom)};
}

// ---- dates

QDate MvSmallMonthGrid::monday(int row) const
{
    return m_first.addDays(1 - m_first.dayOfWeek() + row * daysPerWeek);
}

QDate MvSmallMonthGrid::date(int row, int day) const
{
    const QDate date = monday(row).addDays(day - 1);
    return date.month() == m_first.month() ? date : QDate();
}

bool MvSmallMonthGrid::hasDays(int row) const
{
    return date(row, 1).isValid() || date(row, daysPerWeek).isValid();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QRectF>

/// Where the cells of a small month lie: its name, the weekday heads, and rows from Monday to Sunday, each led by its
/// calendar week. Geometry alone, in page units. Neighbouring cells share their edges exactly.
class MVCALENDAR_EXPORT MvSmallMonthGrid
{
public:
    static constexpr int daysPerWeek = 7;

    /// The sizes of the cells, the same for all months of a page.
    struct Sizes
    {
        double nameHeight = 0.0;
        double headHeight = 0.0; // 0: no weekday heads
        double weekWidth = 0.0;  // 0: no calendar weeks
        QSizeF day;
        int rows = 6;

        bool operator==(const Sizes &) const = default;
    };

    /// The grid of the month that the date lies in, from its corner.
    MvSmallMonthGrid(const QPointF &corner, const QDate &month, const Sizes &sizes);

    static QSizeF size(const Sizes &sizes);

    QRectF nameRect() const;
    /// Above the calendar weeks; empty when there are none.
    QRectF weekHeadRect() const;
    /// Day 1 is Monday, 7 Sunday.
    QRectF headRect(int day) const;
    /// Rows count from 0.
    QRectF weekRect(int row) const;
    QRectF dayRect(int row, int day) const;
    QRectF dayRect(const QDate &date) const;

    int rows() const { return m_sizes.rows; }
    QDate monday(int row) const;
    /// The date of a cell; invalid where a day of another month would be.
    QDate date(int row, int day) const;
    /// Whether a day of the month lies in the row.
    bool hasDays(int row) const;

private:
    double columnEdge(int day) const; // the left edge of a weekday's column
    double rowEdge(int row) const;
    QRectF between(double left, double top, double right, double bottom) const;

    QPointF m_corner;
    QDate m_first; // of the month
    Sizes m_sizes;
};

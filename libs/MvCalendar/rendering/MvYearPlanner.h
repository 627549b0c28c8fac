// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QRectF>

/// Where the cells of a year planner lie: a column per month with its name above, a row per day of the month. Geometry
/// alone, in page units. Neighbouring cells share their edges exactly.
///
/// In a day's cell number and weekday stand in front, the calendar week at the right edge on Mondays. The texts stand
/// beside them or, where that gives them more room, beneath. Where they would have no room beside both, the weekday
/// gives way.
class MVCALENDAR_EXPORT MvYearPlanner
{
public:
    static constexpr int monthCount = 12;
    static constexpr int mostDays = 31;
    static constexpr double leastTextWidth = 2.5; ///< in lines of the smallest type; less shows ellipses only

    /// What the parts need, including their paddings.
    struct Sizes
    {
        double nameHeight = 0.0;
        double numberWidth = 0.0;
        double weekdayWidth = 0.0;
        double weekWidth = 0.0;      // 0: no calendar weeks
        double lineHeight = 0.0;     // of number and weekday
        double textHeight = 0.0;     // of a line of texts
        double leastTextWidth = 0.0; // that shows more of them than ellipses
    };

    /// The parts of a cell; those for which there is no room, or that it does not have, are null.
    struct Parts
    {
        QRectF number;
        QRectF weekday;
        QRectF week;
        QRectF texts;
    };

    MvYearPlanner(const QRectF &rect, const QDate &firstMonth, const Sizes &sizes);

    static QSizeF minimumSize(const Sizes &sizes);

    /// Columns count from 0.
    QDate month(int column) const { return m_firstMonth.addMonths(column); }
    QRectF nameRect(int column) const;
    /// Days count from 1; there is a cell for each of the 31, whether the month has the day or not.
    QRectF dayRect(int column, int day) const;
    Parts parts(const QRectF &cell, bool withWeek) const;
    bool hasTextsBeneath() const { return m_hasTextsBeneath; }

private:
    double columnEdge(int column) const;
    double rowEdge(int row) const;
    double frontWidth() const;
    double columnWidth() const { return m_rect.width() / monthCount; }
    double lengthBeside() const;
    double lengthBeneath() const;

    QRectF m_rect;
    QDate m_firstMonth;
    Sizes m_sizes;
    double m_nameHeight;
    bool m_hasTextsBeneath;
};

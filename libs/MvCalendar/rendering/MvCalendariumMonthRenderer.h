// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumRenderer.h"

/// What the layouts of a single month share: the title line, cells with texts of a date, and the planned heights that
/// their rows are shared out by.
class MVCALENDAR_EXPORT MvCalendariumMonthRenderer : public MvCalendariumRenderer
{
    Q_OBJECT

public:
    using MvCalendariumRenderer::MvCalendariumRenderer;

protected:
    static constexpr int daysPerWeek = 7;
    static constexpr int mostWeeks = 6; // that a month can touch

    /// The minimum height of a line that shows the information; 0 when it is not configured.
    double plannedHeight(const MvCalendarCellType &type, const MvCalendarRenderingInformation &info) const;

    /// The page's month, in one cell.
    void drawTitle(QPainter &painter, const QRectF &rect);
    /// The page's month with the blanks before it, in the size in which each month of the calendar fits into the cell;
    /// one that has no room in the smallest type is shortened and reported. Without the cell's ground.
    void drawMonth(QPainter &painter, const QRectF &rect, const MvCalendarCellType &type, const QString &blanks);
    /// Whether each month of the calendar fits into the line as large as its font is.
    bool hasRoomForTitle(const QRectF &rect) const;
    /// A cell whose text, where it is too wide, becomes smaller, then ends in an ellipsis and is reported for the date.
    /// Nothing in an empty rectangle.
    void drawFittingCell(QPainter &painter, const QRectF &rect, const MvCalendarCellTypeConfig &config,
                         const QString &text, bool even, const QDate &date);
    /// Notes that the line of weekdays has no room for them.
    void reportMissingHeads(const QRectF &line);
    /// The cell that a day of another month leaves: the colours of its weekday, no holiday.
    void drawNeighbouringDay(QPainter &painter, const QRectF &rect, const QDate &date, bool even);

private:
    bool isCentred(const MvCalendarCellType &type) const;
    QString monthText(const QDate &month, const MvCalendarCellType &type, const QString &blanks) const;
    QSizeF roomForMonth(const QRectF &cell, const MvCalendarCellType &type) const;
    QFont monthFont(const QSizeF &room, const MvCalendarCellType &type, const QString &blanks) const;
};

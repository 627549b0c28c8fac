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
    /// A cell whose text, where it is too wide, ends in an ellipsis and is reported for the date. Nothing in an empty
    /// rectangle.
    void drawFittingCell(QPainter &painter, const QRectF &rect, const MvCalendarCellTypeConfig &config,
                         const QString &text, bool even, const QDate &date);
    /// The cell that a day of another month leaves: the colours of its weekday, no holiday.
    void drawNeighbouringDay(QPainter &painter, const QRectF &rect, const QDate &date, bool even);
};

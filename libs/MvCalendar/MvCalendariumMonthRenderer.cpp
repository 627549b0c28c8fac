#include "MvCalendar/MvCalendariumMonthRenderer.h"

#include "MvCalendar/MvCalendariumCellPainter.h"

double MvCalendariumMonthRenderer::plannedHeight(const MvCalendarCellType &type,
                                                 const MvCalendarRenderingInformation &info) const
{
    return isConfigured(info) ? minimumHeightOfCellType(type, false) : 0.0;
}

void MvCalendariumMonthRenderer::drawTitle(QPainter &painter, const QRectF &rect)
{
    drawFittingCell(painter, rect, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_TITLE),
                    u' ' + calendarMonth(startDate()), true, startDate());
}

void MvCalendariumMonthRenderer::drawFittingCell(QPainter &painter, const QRectF &rect,
                                                 const MvCalendarCellTypeConfig &config, const QString &text, bool even,
                                                 const QDate &date)
{
    if (!(rect.width() > 0.0) || !(rect.height() > 0.0))
        return;
    drawCellBackground(painter, rect, config, even);
    if (!text.isEmpty())
        MvCalendariumCellPainter(*this, painter).drawFittingText(rect, config, text, 0, even, date);
}

void MvCalendariumMonthRenderer::drawNeighbouringDay(QPainter &painter, const QRectF &rect, const QDate &date,
                                                     bool even)
{
    drawCellBackground(painter, rect, MvCalendarCellTypeConfig(contentCellTypeWeekDay(date.dayOfWeek())), even);
}

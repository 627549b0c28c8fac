// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererTwoWeeksPerRow.h"

#include "MvCalendar/MvMonthMarks.h"
#include "MvCalendar/MvWeekdayHeads.h"

namespace {
constexpr int daysPerRow = 14;
constexpr int rows = 3; // 42 days from a Monday hold every month
} // namespace

MvCalendariumDisplayAbilities MvCalendariumRendererTwoWeeksPerRow::abilities() const
{
    return MvCalendariumDisplayAbilities(ABILITY_DISPLAY_VACATIONS | ABILITY_DISPLAY_HOLIDAYS |
                                         ABILITY_DISPLAY_HOLIDAYS_COLORS);
}

QSize MvCalendariumRendererTwoWeeksPerRow::minimumSizeHint() const
{
    const MvCalendarCellType widest =
        isConfigured(calendar_render_days_of_week) ? CALENDAR_CELL_TYPE_HEAD_WEEKDAY : CALENDAR_CELL_TYPE_WEEKDAY;
    const int width = static_cast<int>(daysPerRow * widthOfCellType(widest, false));
    int height = static_cast<int>(minimumHeightOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false) +
                                  rows * minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false));
    if (rendersMonthInformation())
        height = static_cast<int>(height + minimumHeightOfCellType(CALENDAR_CELL_TYPE_TITLE, false));
    return {width, height};
}

bool MvCalendariumRendererTwoWeeksPerRow::rendersMonthInformation() const
{
    return isConfigured(calendar_render_title);
}

QList<MvCalendarCellType> MvCalendariumRendererTwoWeeksPerRow::usedCellTypes() const
{
    return dayHeadCellTypes(false) + dayCellTypes() +
           QList<MvCalendarCellType>{CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_EMPTY};
}

double MvCalendariumRendererTwoWeeksPerRow::widthOfCell(const QRectF &rect, const MvCalendarCellType &) const
{
    return rect.width() / daysPerRow;
}

double MvCalendariumRendererTwoWeeksPerRow::heightOfCell(const QRectF &rect, const MvCalendarCellType &type) const
{
    const bool hasHeadline = isConfigured(calendar_render_days_of_week);
    const double title = plannedHeight(CALENDAR_CELL_TYPE_TITLE, calendar_render_title);
    const double head = plannedHeight(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, calendar_render_days_of_week);
    const double day = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    const double scale = rect.height() / (head + title + rows * day);
    const int titleHeight = static_cast<int>(title * scale);
    const double dayHeight = hasHeadline ? static_cast<int>(day * scale) : (rect.height() - titleHeight) / rows;
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_TITLE:
        return titleHeight;
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
        return hasHeadline ? rect.height() - rows * dayHeight - titleHeight : 0.0;
    case CALENDAR_CELL_TYPE_WEEKDAY:
    case CALENDAR_CELL_TYPE_SATURDAY:
    case CALENDAR_CELL_TYPE_SUNDAY:
    case CALENDAR_CELL_TYPE_HOLIDAY:
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
    case CALENDAR_CELL_TYPE_HEAD_HOLIDAY:
    case CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION:
        return dayHeight;
    default:
        return 0.0;
    }
}

bool MvCalendariumRendererTwoWeeksPerRow::isRowStart(const QDate &date) const
{
    return date.day() == 1 || mondayOfWeekWithDay(startDate()).daysTo(date) % daysPerRow == 0;
}

void MvCalendariumRendererTwoWeeksPerRow::renderBase(QPainter &painter, const QRectF &rect)
{
    const MvPaintMarking table = MvMonthMarks(*this, painter, startDate()).table();
    QRectF line(rect.topLeft(), QSizeF(rect.width(), 0.0));
    if (rendersMonthInformation()) {
        line.setHeight(heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE));
        drawTitle(painter, line);
        line.moveTop(line.bottom());
    }
    if (isConfigured(calendar_render_days_of_week)) {
        line.setHeight(heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY));
        renderHeadline(painter, line);
        line.moveTop(line.bottom());
    }
    line.setHeight(heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY));
    const QDate monday = mondayOfWeekWithDay(startDate());
    for (int row = 0; row < rows; ++row) {
        renderRow(painter, line, monday.addDays(qint64(row) * daysPerRow));
        line.moveTop(line.bottom());
    }
}

void MvCalendariumRendererTwoWeeksPerRow::renderHeadline(QPainter &painter, const QRectF &line)
{
    const QDate monday = mondayOfWeekWithDay(startDate());
    QRectF cell = line;
    cell.setWidth(widthOfCell(line, CALENDAR_CELL_TYPE_HEAD_WEEKDAY));
    const MvWeekdayHeads heads(*this, MvWeekdayHeads::Form::Short, cell.size(), false);
    if (heads.form() == MvWeekdayHeads::Form::None)
        reportMissingHeads(line);
    for (int day = 0; day < daysPerRow; ++day) {
        const QDate date = monday.addDays(day);
        const MvCalendarCellTypeConfig config(headCellTypeWeekDay(date.dayOfWeek()));
        drawCell(painter, cell, config, {}, isEvenWeek(date), 0);
        const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).weekdayHead(day);
        heads.draw(painter, cell, config, date.dayOfWeek(), isEvenWeek(date));
        cell.moveLeft(cell.right());
    }
}

void MvCalendariumRendererTwoWeeksPerRow::renderRow(QPainter &painter, const QRectF &row, const QDate &monday)
{
    const int month = startDate().month();
    const MvCalendarCellTypeConfig empty(CALENDAR_CELL_TYPE_EMPTY);
    const MvMonthMarks marks(*this, painter, startDate(), daysPerRow);
    QRectF cell = row;
    for (int day = 0; day < daysPerRow; ++day) {
        const QDate date = monday.addDays(day);
        cell.setWidth(widthOfCell(row, headCellTypeWeekDay(date.dayOfWeek())));
        const MvPaintMarking mark = date.month() == month ? marks.day(date) : marks.decoration();
        if (date.month() == month)
            drawDayNumberCell(painter, cell, date);
        else
            drawCellBackground(painter, cell, empty, isEvenWeek(date));
        cell.moveLeft(cell.right());
    }
}

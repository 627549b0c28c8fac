// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererOneColumnPerWeek.h"

#include "MvCalendar/MvCalendariumCellPainter.h"
#include "MvCalendar/MvDayNumberSize.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCalendar/MvWeekdayHeads.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

MvCalendariumDisplayAbilities MvCalendariumRendererOneColumnPerWeek::abilities() const
{
    return MvCalendariumDisplayAbilities(ABILITY_DISPLAY_VACATIONS | ABILITY_DISPLAY_HOLIDAYS |
                                         ABILITY_DISPLAY_HOLIDAYS_COLORS | ABILITY_DISPLAY_CALENDAR_WEEKS);
}

bool MvCalendariumRendererOneColumnPerWeek::rendersMonthInformation() const
{
    return false;
}

QList<MvCalendarCellType> MvCalendariumRendererOneColumnPerWeek::usedCellTypes() const
{
    QList<MvCalendarCellType> types = dayHeadCellTypes(false) + dayCellTypes();
    if (isConfigured(calendar_render_week_of_year))
        types << CALENDAR_CELL_TYPE_WEEK_OF_YEAR;
    return types;
}

bool MvCalendariumRendererOneColumnPerWeek::isConfigured(const MvCalendarRenderingInformation &info) const
{
    if (info.hasAnyOf(calendar_render_week_of_year))
        return areCalendarWeeksRequested();
    return MvCalendariumMonthRenderer::isConfigured(info);
}

// ---- sizes

double MvCalendariumRendererOneColumnPerWeek::widthOfCell(const QRectF &rect, const MvCalendarCellType &type,
                                                          const QDate &date) const
{
    if (hasHeadsInFront())
        return widthOfCellTypeWithWeekdaysInFront(rect, type, date);
    const int weeks = numberOfWeeks(date);
    const int head = isConfigured(calendar_render_days_of_week) ? headWidth(rect, weeks) : 0;
    const double day = (rect.width() - weeks * head) / weeks;
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_WEEK_OF_YEAR:
        return day + head;
    case CALENDAR_CELL_TYPE_WEEKDAY:
    case CALENDAR_CELL_TYPE_SATURDAY:
    case CALENDAR_CELL_TYPE_SUNDAY:
    case CALENDAR_CELL_TYPE_HOLIDAY:
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
        return day;
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
    case CALENDAR_CELL_TYPE_HEAD_SATURDAY:
    case CALENDAR_CELL_TYPE_HEAD_SUNDAY:
    case CALENDAR_CELL_TYPE_HEAD_HOLIDAY:
    case CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION:
        return head;
    default:
        return 0.0;
    }
}

double MvCalendariumRendererOneColumnPerWeek::widthOfCellTypeWithWeekdaysInFront(const QRectF &rect,
                                                                                 const MvCalendarCellType &type,
                                                                                 const QDate &date) const
{
    const int weeks = numberOfWeeks(date);
    const double column = columnWidthWithWeekdaysInFront(rect, weeks);
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
    case CALENDAR_CELL_TYPE_HEAD_SATURDAY:
    case CALENDAR_CELL_TYPE_HEAD_SUNDAY:
        return rect.width() - weeks * column;
    case CALENDAR_CELL_TYPE_WEEK_OF_YEAR:
    case CALENDAR_CELL_TYPE_WEEKDAY:
    case CALENDAR_CELL_TYPE_SATURDAY:
    case CALENDAR_CELL_TYPE_SUNDAY:
    case CALENDAR_CELL_TYPE_HOLIDAY:
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
    case CALENDAR_CELL_TYPE_HEAD_HOLIDAY:
    case CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION:
        return column;
    default:
        return 0.0;
    }
}

int MvCalendariumRendererOneColumnPerWeek::headWidth(const QRectF &rect, int weeks) const
{
    const double head = plannedHeadWidth();
    const double days = std::max(0.0, maxContentWidth());
    const double planned = rect.width() / ((days + head) * weeks) * head;
    const double most = std::floor(rect.width() / weeks - MvDayNumberSize::atFloor(*this).width());
    const double least = leastHeadWidth();
    return most < least ? 0 : static_cast<int>(std::clamp(planned, least, most));
}

double MvCalendariumRendererOneColumnPerWeek::columnWidthWithWeekdaysInFront(const QRectF &rect, int weeks) const
{
    const double cell = std::max(maxContentWidth(), widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false));
    const double planned = rect.width() / (plannedHeadWidth() + weeks * cell) * cell;
    const double most = (rect.width() - leastHeadWidth()) / weeks;
    const double least = MvDayNumberSize::atFloor(*this).width();
    return most < least ? rect.width() / weeks : std::clamp(planned, least, most);
}

/// As the layout plans the heads, with long names unless it says short ones, but not narrower than those that are
/// printed.
double MvCalendariumRendererOneColumnPerWeek::plannedHeadWidth() const
{
    const bool shortNames = isConfigured(calendar_render_days_of_week_short);
    double width = MvWeekdayHeads::leastWidth(*this, MvWeekdayHeads::Form::Short, !hasHeadsInFront(), false);
    for (const MvCalendarCellType &type : dayHeadCellTypes(false))
        width = std::max(width, widthOfCellType(type, shortNames));
    return width;
}

/// What letters need in the smallest type.
double MvCalendariumRendererOneColumnPerWeek::leastHeadWidth() const
{
    return MvWeekdayHeads::leastWidth(*this, MvWeekdayHeads::Form::Letter, !hasHeadsInFront(), true);
}

bool MvCalendariumRendererOneColumnPerWeek::hasHeadsInFront() const
{
    return isConfigured(calendar_render_days_of_week_only_in_front);
}

double MvCalendariumRendererOneColumnPerWeek::heightOfCell(const QRectF &rect, const MvCalendarCellType &type) const
{
    const double week = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false);
    const double day = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    const int row = static_cast<int>(rect.height() / (daysPerWeek * day + week) * day);
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_WEEK_OF_YEAR:
        return rect.height() - daysPerWeek * row;
    case CALENDAR_CELL_TYPE_WEEKDAY:
    case CALENDAR_CELL_TYPE_SATURDAY:
    case CALENDAR_CELL_TYPE_SUNDAY:
    case CALENDAR_CELL_TYPE_HOLIDAY:
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
    case CALENDAR_CELL_TYPE_HEAD_SATURDAY:
    case CALENDAR_CELL_TYPE_HEAD_SUNDAY:
    case CALENDAR_CELL_TYPE_HEAD_HOLIDAY:
    case CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION:
        return row;
    default:
        return 0.0;
    }
}

double MvCalendariumRendererOneColumnPerWeek::minimumWidth() const
{
    const double week = widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false);
    double day = widthOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    if (isConfigured(calendar_render_days_of_week))
        day += widthOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false);
    return mostWeeks * (std::max(week, day) + paddingDifference(CALENDAR_CELL_TYPE_WEEK_OF_YEAR).width());
}

double MvCalendariumRendererOneColumnPerWeek::minimumHeight() const
{
    const MvCalendarCellType day =
        isConfigured(calendar_render_days_of_week) ? CALENDAR_CELL_TYPE_HEAD_WEEKDAY : CALENDAR_CELL_TYPE_WEEKDAY;
    return minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false) +
           daysPerWeek * minimumHeightOfCellType(day, false);
}

QSize MvCalendariumRendererOneColumnPerWeek::minimumSizeWithWeekdaysInFront() const
{
    const double width = widthOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false) +
                         mostWeeks * widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false);
    const double height = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false) +
                          5 * minimumHeightOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false) +
                          minimumHeightOfCellType(CALENDAR_CELL_TYPE_HEAD_SATURDAY, false) +
                          minimumHeightOfCellType(CALENDAR_CELL_TYPE_HEAD_SUNDAY, false);
    return {static_cast<int>(width), static_cast<int>(height)};
}

QSize MvCalendariumRendererOneColumnPerWeek::minimumSizeHint() const
{
    if (hasHeadsInFront())
        return minimumSizeWithWeekdaysInFront();
    return {static_cast<int>(minimumWidth()), static_cast<int>(minimumHeight())};
}

bool MvCalendariumRendererOneColumnPerWeek::isRowStart(const QDate &date) const
{
    return date.day() == 1 || date.dayOfWeek() == Qt::Monday;
}

/// The days of a week stand one below the other.
Qt::Edge MvCalendariumRendererOneColumnPerWeek::spanEdge(const QDate &) const
{
    return Qt::RightEdge;
}

// ---- painting

void MvCalendariumRendererOneColumnPerWeek::renderBase(QPainter &painter, const QRectF &rect)
{
    const MvPaintMarking table = MvMonthMarks(*this, painter, startDate()).table();
    if (hasHeadsInFront()) {
        renderBaseWithWeekdaysInFront(painter, rect);
        return;
    }
    const QDate start = startDate();
    const QSizeF head(widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, start),
                      heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY));
    const MvWeekdayHeads heads(*this, MvWeekdayHeads::Form::Short, head, true);
    if (isConfigured(calendar_render_days_of_week) && heads.form() == MvWeekdayHeads::Form::None)
        reportMissingHeads(rect);
    QDate monday = mondayOfWeekWithDay(start);
    QRectF column(rect.topLeft(), QSizeF(widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, start), rect.height()));
    for (int week = numberOfWeeks(start); week > 0; --week) {
        renderWeek(painter, rect, column, monday, heads);
        monday = monday.addDays(daysPerWeek);
        column.moveLeft(column.right());
    }
}

void MvCalendariumRendererOneColumnPerWeek::renderWeekHead(QPainter &painter, const QRectF &cell, const QDate &monday)
{
    const QString text = isConfigured(calendar_render_week_of_year) ? calendarWeekText(monday) : QString();
    const MvMonthMarks marks(*this, painter, startDate());
    const MvPaintMarking mark =
        hasHeadsInFront() ? marks.week(monday) : marks.listedWeek(std::max(monday, startDate()));
    drawFittingCell(painter, cell, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_WEEK_OF_YEAR), text, isEvenWeek(monday),
                    monday);
}

void MvCalendariumRendererOneColumnPerWeek::renderWeek(QPainter &painter, const QRectF &rect, const QRectF &column,
                                                       const QDate &monday, const MvWeekdayHeads &heads)
{
    const QDate start = startDate();
    const double headWidth = widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, start);
    const double dayWidth = widthOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY, start);
    const double weekHeight = heightOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
    renderWeekHead(painter, {column.left(), column.top(), column.width(), weekHeight}, monday);

    const MvMonthMarks marks(*this, painter, start);
    double y = column.top() + weekHeight;
    for (int day = 0; day < daysPerWeek; ++day) {
        const QDate date = monday.addDays(day);
        const MvPaintMarking mark = date.month() == start.month() ? marks.listedDay(date) : marks.decoration();
        const MvCalendarCellTypeConfig head = headCellTypeConfig(date);
        const double height = heightOfCell(rect, head.inscriptionConfig());
        const QRectF headCell(column.left(), y, headWidth, height);
        drawCell(painter, headCell, head, {}, isEvenWeek(date), 0);
        {
            const bool isShown = date.month() == start.month();
            const MvPaintMarking weekday = isShown ? marks.listedHead(date) : marks.decoration();
            heads.draw(painter, headCell, head, date.dayOfWeek(), isEvenWeek(date));
        }
        const QRectF cell(column.left() + headWidth, y, dayWidth, height);
        if (date.month() == start.month())
            drawDayNumberCell(painter, cell, date);
        else
            drawNeighbouringDay(painter, cell, date, isEvenWeek(date));
        y += height;
    }
}

void MvCalendariumRendererOneColumnPerWeek::renderBaseWithWeekdaysInFront(QPainter &painter, const QRectF &rect)
{
    renderWeekdaysInFront(painter, rect);
    const QDate start = startDate();
    QDate monday = mondayOfWeekWithDay(start);
    QRectF column(rect.left() + widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, start), rect.top(),
                  widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, start), rect.height());
    for (int week = numberOfWeeks(start); week > 0; --week) {
        renderPlainWeek(painter, rect, column, monday);
        monday = monday.addDays(daysPerWeek);
        column.moveLeft(column.right());
    }
}

void MvCalendariumRendererOneColumnPerWeek::renderWeekdaysInFront(QPainter &painter, const QRectF &rect)
{
    const QDate monday = mondayOfWeekWithDay(startDate());
    QRectF cell(rect.left(), rect.top(), widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, startDate()),
                heightOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR));
    if (!(cell.width() > 0.0)) {
        reportMissingHeads(rect);
        return;
    }
    drawCellBackground(painter, cell, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_WEEK_OF_YEAR), isEvenWeek(monday));
    const QSizeF head(cell.width(), heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY));
    const MvWeekdayHeads heads(*this, MvWeekdayHeads::Form::Short, head, false);
    if (heads.form() == MvWeekdayHeads::Form::None)
        reportMissingHeads(rect);
    for (int day = 1; day <= daysPerWeek; ++day) {
        const MvCalendarCellTypeConfig config(headCellTypeWeekDay(day));
        cell.moveTop(cell.bottom());
        cell.setHeight(heightOfCell(rect, config.inscriptionConfig()));
        drawCell(painter, cell, config, {}, true, 0);
        const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).weekdayHead(day - 1);
        heads.draw(painter, cell, config, day, true);
    }
}

void MvCalendariumRendererOneColumnPerWeek::renderPlainWeek(QPainter &painter, const QRectF &rect, const QRectF &column,
                                                            const QDate &monday)
{
    QRectF cell = column;
    cell.setHeight(heightOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR));
    renderWeekHead(painter, cell, monday);
    for (int day = 0; day < daysPerWeek; ++day) {
        const QDate date = monday.addDays(day);
        const MvCalendarCellTypeConfig config = contentCellTypeConfig(date);
        cell.moveTop(cell.bottom());
        cell.setHeight(heightOfCell(rect, config.inscriptionConfig()));
        if (date.month() == startDate().month()) {
            const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).day(date);
            MvCalendariumCellPainter(*this, painter).drawPlainDay(cell, date, stringFromDate(date, u"dd"_s));
        } else {
            drawNeighbouringDay(painter, cell, date, isEvenWeek(date));
        }
    }
}

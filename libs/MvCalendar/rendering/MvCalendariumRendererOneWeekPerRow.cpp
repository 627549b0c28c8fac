// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererOneWeekPerRow.h"

#include "MvCalendar/MvCalendariumCellPainter.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCalendar/MvWeekdayHeads.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr double widthWithAir = 0.86; // numbers side by side do not touch
const QString widestDayNumber = QStringLiteral("22");
const QDate monthOfSixWeeks(2026, 8, 1);

} // namespace

MvCalendariumDisplayAbilities MvCalendariumRendererOneWeekPerRow::abilities() const
{
    return MvCalendariumDisplayAbilities(ABILITY_DISPLAY_VACATIONS | ABILITY_DISPLAY_HOLIDAYS |
                                         ABILITY_DISPLAY_HOLIDAYS_COLORS | ABILITY_DISPLAY_CALENDAR_WEEKS);
}

QSize MvCalendariumRendererOneWeekPerRow::minimumSizeHint() const
{
    return {minimumWidth(), minimumHeight()};
}

bool MvCalendariumRendererOneWeekPerRow::rendersMonthInformation() const
{
    return isConfigured(calendar_render_title);
}

QList<MvCalendarCellType> MvCalendariumRendererOneWeekPerRow::usedCellTypes() const
{
    QList<MvCalendarCellType> types = dayHeadCellTypes(false) + dayCellTypes();
    types << CALENDAR_CELL_TYPE_TITLE;
    if (isConfigured(calendar_render_week_of_year))
        types << CALENDAR_CELL_TYPE_WEEK_OF_YEAR << CALENDAR_CELL_TYPE_TOPLINE;
    return types;
}

QStringList MvCalendariumRendererOneWeekPerRow::maxmimumWidthCalendarWeekText() const
{
    return MvCalendariumMonthRenderer::maxmimumWidthCalendarWeekText() << calendarWeekHeadlineText();
}

bool MvCalendariumRendererOneWeekPerRow::isConfigured(const MvCalendarRenderingInformation &info) const
{
    return isConfiguredOrWeeksAskedFor(info);
}

bool MvCalendariumRendererOneWeekPerRow::isRowStart(const QDate &date) const
{
    return date.day() == 1 || date.dayOfWeek() == Qt::Monday;
}

// ---- sizes

double MvCalendariumRendererOneWeekPerRow::planedWeekOfYearWidth() const
{
    return isConfigured(calendar_render_week_of_year) ? widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false) : 0.0;
}

double MvCalendariumRendererOneWeekPerRow::planedNormalCellWidth() const
{
    return widthOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
}

double MvCalendariumRendererOneWeekPerRow::widthOfCell(const QRectF &rect, const MvCalendarCellType &type) const
{
    if (type.hasAnyOf(CALENDAR_CELL_TYPE_WEEK_OF_YEAR))
        return planedWeekOfYearWidth();
    return (rect.width() - planedWeekOfYearWidth()) / daysPerWeek;
}

double MvCalendariumRendererOneWeekPerRow::heightOfCell(const QRectF &rect, const MvCalendarCellType &type,
                                                        const QDate &date) const
{
    const int rows = numberOfWeeks(date);
    const double title = plannedHeight(CALENDAR_CELL_TYPE_TITLE, calendar_render_title);
    const double head = plannedHeight(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, calendar_render_days_of_week);
    const double row = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    const double scale = rect.height() / (head + title + rows * row);

    const double titleHeight = static_cast<int>(title * scale);
    const bool hasHeadline = isConfigured(calendar_render_days_of_week);
    const double rowHeight = hasHeadline ? row * scale : (rect.height() - titleHeight) / rows;
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_TITLE:
        return titleHeight;
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
        return hasHeadline ? rect.height() - rows * rowHeight - titleHeight : 0.0;
    case CALENDAR_CELL_TYPE_WEEKDAY:
    case CALENDAR_CELL_TYPE_WEEK_OF_YEAR:
        return rowHeight;
    default:
        return 0.0;
    }
}

int MvCalendariumRendererOneWeekPerRow::minimumHeight() const
{
    int height = static_cast<int>(minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false) * mostWeeks);
    if (isConfigured(calendar_render_days_of_week))
        height = static_cast<int>(height + minimumHeightOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false));
    if (rendersMonthInformation())
        height = static_cast<int>(height + minimumHeightOfCellType(CALENDAR_CELL_TYPE_TITLE, false));
    return height;
}

int MvCalendariumRendererOneWeekPerRow::minimumWidth() const
{
    const auto widest = [this](int types) {
        return static_cast<int>(widthRangeOfCellTypes(MvCalendarCellType(types), false).maximum);
    };
    int column = widest(CALENDAR_CELL_TYPE_WEEKDAY | CALENDAR_CELL_TYPE_SATURDAY | CALENDAR_CELL_TYPE_SUNDAY);
    if (isConfigured(calendar_render_days_of_week)) {
        column = std::max(column, widest(CALENDAR_CELL_TYPE_HEAD_WEEKDAY | CALENDAR_CELL_TYPE_HEAD_SATURDAY |
                                         CALENDAR_CELL_TYPE_HEAD_SUNDAY));
    }
    return static_cast<int>(column * daysPerWeek + planedWeekOfYearWidth());
}

/// The names of weekdays do not count: they become shorter where they must.
bool MvCalendariumRendererOneWeekPerRow::hasRoom(const QSizeF &room) const
{
    if (minimumHeight() > room.height())
        return false;
    const QRectF rect(0.0, 0.0, widthWithAir * room.width(), room.height());
    for (const MvCalendarCellType type : {CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_SUNDAY}) {
        if (MvTextPainter::advance(font(type), widestDayNumber) > widthOfCell(rect, type))
            return false;
    }
    const double title = heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE, monthOfSixWeeks);
    return !rendersMonthInformation() || hasRoomForTitle({0.0, 0.0, rect.width(), title});
}

// ---- painting

void MvCalendariumRendererOneWeekPerRow::renderBase(QPainter &painter, const QRectF &rect)
{
    const MvPaintMarking table = MvMonthMarks(*this, painter, startDate()).table();
    double y = rect.top();
    y = renderMonth(painter, rect, y);
    y = renderHeadline(painter, rect, y);
    renderDayCells(painter, rect, y);
    paintGrid(painter, rect);
}

double MvCalendariumRendererOneWeekPerRow::renderMonth(QPainter &painter, const QRectF &rect, double y)
{
    if (!rendersMonthInformation())
        return y;
    const double height = heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE, startDate());
    drawTitle(painter, {rect.left(), y, rect.width(), height});
    return y + height;
}

double MvCalendariumRendererOneWeekPerRow::renderHeadline(QPainter &painter, const QRectF &rect, double y)
{
    if (!isConfigured(calendar_render_days_of_week))
        return y;
    const double height = heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, startDate());
    const MvMonthMarks marks(*this, painter, startDate());
    double x = rect.left();
    if (isConfigured(calendar_render_week_of_year)) {
        const double width = widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
        const MvPaintMarking mark = marks.weeksHead();
        drawFittingCell(painter, {x, y, width, height}, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_TOPLINE),
                        calendarWeekHeadlineText(), true, startDate());
        x += width;
    }
    const double width = widthOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY);
    using Form = MvWeekdayHeads::Form;
    const bool isShort = isConfigured(calendar_render_days_of_week_short);
    const MvWeekdayHeads heads(*this, isShort ? Form::Short : Form::Long, {width, height}, false);
    if (heads.form() == Form::None)
        reportMissingHeads({x, y, daysPerWeek * width, height});
    for (int day = 1; day <= daysPerWeek; ++day) {
        const MvCalendarCellTypeConfig config(headCellTypeWeekDay(day));
        drawCellBackground(painter, {x, y, width, height}, config, true);
        const MvPaintMarking mark = marks.weekdayHead(day - 1);
        heads.draw(painter, {x, y, width, height}, config, day, true);
        x += width;
    }
    return y + height;
}

void MvCalendariumRendererOneWeekPerRow::renderDayCells(QPainter &painter, const QRectF &rect, double y)
{
    const QDate start = startDate();
    const int rows = numberOfWeeks(start);
    const double height = heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY, start);
    const double width = widthOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY);
    QDate monday = mondayOfWeekWithDay(start);
    for (int row = 0; row < rows; ++row) {
        const bool even = isEvenWeek(monday);
        double x = rect.left();
        if (isConfigured(calendar_render_week_of_year)) {
            const double weekWidth = widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
            const MvPaintMarking mark = MvMonthMarks(*this, painter, start).week(monday);
            drawFittingCell(painter, {x, y, weekWidth, height},
                            MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_WEEK_OF_YEAR), calendarWeekText(monday), even,
                            monday);
            x += weekWidth;
        }
        renderWeek(painter, {x, y, width, height}, monday, start.month(), even);
        monday = monday.addDays(daysPerWeek);
        y += height;
    }
}

void MvCalendariumRendererOneWeekPerRow::renderWeek(QPainter &painter, const QRectF &firstDay, const QDate &monday,
                                                    int month, bool even)
{
    const bool isPlain = isConfigured(calendar_render_no_texts);
    const MvMonthMarks marks(*this, painter, startDate());
    QRectF cell = firstDay;
    for (int day = 0; day < daysPerWeek; ++day) {
        const QDate date = monday.addDays(day);
        const MvPaintMarking mark = date.month() == month ? marks.day(date) : marks.decoration();
        if (date.month() == month && isPlain)
            MvCalendariumCellPainter(*this, painter).drawPlainDay(cell, date, QString::number(date.day()));
        else if (date.month() == month)
            drawDayNumberCell(painter, cell, date);
        else
            drawNeighbouringDay(painter, cell, date, even);
        cell.translate(cell.width(), 0.0);
    }
}

void MvCalendariumRendererOneWeekPerRow::paintGrid(QPainter &, const QRectF &)
{}

#include "MvCalendar/MvCalendariumRendererOneColumnPerWeek.h"

#include "MvCalendar/MvCalendariumCellPainter.h"

#include <algorithm>

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
    if (isConfigured(calendar_render_days_of_week_only_in_front))
        return widthOfCellTypeWithWeekdaysInFront(rect, type, date);
    const int weeks = numberOfWeeks(date);
    const double headMaximum = isConfigured(calendar_render_days_of_week) ? maxHeadWidth() : 0.0;
    const int head = static_cast<int>(rect.width() / ((maxContentWidth() + headMaximum) * weeks) * headMaximum);
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
    const double cellMaximum = std::max(maxContentWidth(), widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false));
    const double column = rect.width() / (maxHeadWidth() + weeks * cellMaximum) * cellMaximum;
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
    if (isConfigured(calendar_render_days_of_week_only_in_front))
        return minimumSizeWithWeekdaysInFront();
    return {static_cast<int>(minimumWidth()), static_cast<int>(minimumHeight())};
}

// ---- painting

void MvCalendariumRendererOneColumnPerWeek::renderBase(QPainter &painter, const QRectF &rect)
{
    if (isConfigured(calendar_render_days_of_week_only_in_front)) {
        renderBaseWithWeekdaysInFront(painter, rect);
        return;
    }
    const QDate start = startDate();
    QDate monday = mondayOfWeekWithDay(start);
    QRectF column(rect.topLeft(), QSizeF(widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, start), rect.height()));
    for (int week = numberOfWeeks(start); week > 0; --week) {
        renderWeek(painter, rect, column, monday);
        monday = monday.addDays(daysPerWeek);
        column.moveLeft(column.right());
    }
}

void MvCalendariumRendererOneColumnPerWeek::renderWeekHead(QPainter &painter, const QRectF &cell, const QDate &monday)
{
    const QString text = isConfigured(calendar_render_week_of_year) ? calendarWeekText(monday) : QString();
    drawFittingCell(painter, cell, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_WEEK_OF_YEAR), text, isEvenWeek(monday),
                    monday);
}

void MvCalendariumRendererOneColumnPerWeek::renderWeek(QPainter &painter, const QRectF &rect, const QRectF &column,
                                                       const QDate &monday)
{
    const QDate start = startDate();
    const bool hasHeads = isConfigured(calendar_render_days_of_week);
    const double headWidth = hasHeads ? widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, start) : 0.0;
    const double dayWidth = widthOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY, start);
    const double weekHeight = heightOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
    renderWeekHead(painter, {column.left(), column.top(), column.width(), weekHeight}, monday);

    double y = column.top() + weekHeight;
    for (int day = 0; day < daysPerWeek; ++day) {
        const QDate date = monday.addDays(day);
        const MvCalendarCellTypeConfig head = headCellTypeConfig(date);
        const double height = heightOfCell(rect, head.inscriptionConfig());
        if (hasHeads) {
            drawFittingCell(painter, {column.left(), y, headWidth, height}, head, stringFromDate(date, u"ddd"_s),
                            isEvenWeek(date), date);
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
    drawCellBackground(painter, cell, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_WEEK_OF_YEAR), isEvenWeek(monday));
    for (int day = 1; day <= daysPerWeek; ++day) {
        const MvCalendarCellType type = headCellTypeWeekDay(day);
        cell.moveTop(cell.bottom());
        cell.setHeight(heightOfCell(rect, type));
        drawFittingCell(painter, cell, MvCalendarCellTypeConfig(type), dayName(day, true), true,
                        monday.addDays(day - 1));
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
            MvCalendariumCellPainter(*this, painter).drawPlainDay(cell, date, stringFromDate(date, u"dd"_s));
        } else {
            drawNeighbouringDay(painter, cell, date, isEvenWeek(date));
        }
    }
}

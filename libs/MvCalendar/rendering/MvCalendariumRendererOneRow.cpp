// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererOneRow.h"

#include "MvCalendar/MvDayNumberSize.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCalendar/MvWeekdayHeads.h"

#include <algorithm>

MvCalendariumDisplayAbilities MvCalendariumRendererOneRow::abilities() const
{
    return MvCalendariumDisplayAbilities(ABILITY_DISPLAY_VACATIONS | ABILITY_DISPLAY_HOLIDAYS_COLORS);
}

QSize MvCalendariumRendererOneRow::minimumSizeHint() const
{
    const double width = 22 * widthOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false) +
                         5 * widthOfCellType(CALENDAR_CELL_TYPE_HEAD_SATURDAY, false) +
                         4 * widthOfCellType(CALENDAR_CELL_TYPE_HEAD_SUNDAY, false);
    const double title = rendersMonthInformation() ? minimumHeightOfCellType(CALENDAR_CELL_TYPE_TITLE, false) : 0.0;
    const double height = title + minimumHeightOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false) +
                          minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    return {static_cast<int>(width), static_cast<int>(height)};
}

bool MvCalendariumRendererOneRow::hasRoom(const QSizeF &room) const
{
    const Bands bands = this->bands({QPointF(), room});
    const QSizeF number = MvDayNumberSize::asPrinted(*this);
    return number.width() <= bands.day.width() && plannedHeight(bands.rows) <= room.height();
}

/// Of the title and so many rows with their weekdays.
double MvCalendariumRendererOneRow::plannedHeight(int rows) const
{
    const double head =
        MvCalendariumMonthRenderer::plannedHeight(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, calendar_render_days_of_week);
    const double day = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    return MvCalendariumMonthRenderer::plannedHeight(CALENDAR_CELL_TYPE_TITLE, calendar_render_title) +
           rows * (head + day);
}

bool MvCalendariumRendererOneRow::rendersMonthInformation() const
{
    return true;
}

QList<MvCalendarCellType> MvCalendariumRendererOneRow::usedCellTypes() const
{
    return QList<MvCalendarCellType>{CALENDAR_CELL_TYPE_TITLE} + dayCellTypes() + dayHeadCellTypes(true);
}

bool MvCalendariumRendererOneRow::hasOneHeaderPerDay() const
{
    return true;
}

bool MvCalendariumRendererOneRow::shouldIPaintTheBorder(const MvCalendarCellTypeConfig &config) const
{
    return config.colorConfig() != CALENDAR_CELL_TYPE_TITLE &&
           MvCalendariumMonthRenderer::shouldIPaintTheBorder(config);
}

double MvCalendariumRendererOneRow::widthOfCell(const QRectF &rect, const MvCalendarCellType &, const QDate &date) const
{
    return rect.width() / (date.isValid() ? date.daysInMonth() : mostDays);
}

double MvCalendariumRendererOneRow::heightOfCell(const QRectF &rect, const MvCalendarCellType &type) const
{
    const double title = MvCalendariumMonthRenderer::plannedHeight(CALENDAR_CELL_TYPE_TITLE, calendar_render_title);
    const double head =
        MvCalendariumMonthRenderer::plannedHeight(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, calendar_render_days_of_week);
    const double day = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    const double scale = rect.height() / (title + head + day);
    const int titleHeight = static_cast<int>(title * scale);
    const int headHeight = static_cast<int>(head * scale);
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_TITLE:
        return titleHeight;
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
        return headHeight;
    case CALENDAR_CELL_TYPE_WEEKDAY:
        return rect.height() - titleHeight - headHeight;
    default:
        return 0.0;
    }
}

MvCalendariumRendererOneRow::Bands MvCalendariumRendererOneRow::bands(const QRectF &rect) const
{
    const QDate month = startDate();
    Bands bands;
    bands.columns = month.daysInMonth();
    bands.title = heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE);
    bands.head = heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY);
    bands.day =
        QSizeF(widthOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY, month), heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY));

    double least = MvDayNumberSize::atFloor(*this).width();
    if (isConfigured(calendar_render_days_of_week))
        least = std::max(least, MvWeekdayHeads::leastWidth(*this, MvWeekdayHeads::Form::Letter, true, true));
    const int mostColumns = std::max(1, static_cast<int>(rect.width() / least));
    const int rows = (mostDays + mostColumns - 1) / mostColumns;
    const double scale = rect.height() / plannedHeight(rows);
    const double day = scale * minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false);
    if (rows == 1 || day < smallestPixelSize(CALENDAR_CELL_TYPE_WEEKDAY))
        return bands;
    bands.rows = rows;
    bands.columns = (mostDays + rows - 1) / rows; // the same in all months
    bands.title = scale * MvCalendariumMonthRenderer::plannedHeight(CALENDAR_CELL_TYPE_TITLE, calendar_render_title);
    bands.head = scale * MvCalendariumMonthRenderer::plannedHeight(CALENDAR_CELL_TYPE_HEAD_WEEKDAY,
                                                                   calendar_render_days_of_week);
    bands.day = QSizeF(rect.width() / bands.columns, day);
    return bands;
}

bool MvCalendariumRendererOneRow::isRowStart(const QDate &date) const
{
    return (date.day() - 1) % m_columns == 0;
}

void MvCalendariumRendererOneRow::renderBase(QPainter &painter, const QRectF &rect)
{
    const MvMonthMarks marks(*this, painter, startDate());
    const MvPaintMarking table = marks.table();
    const Bands bands = this->bands(rect);
    m_columns = bands.columns;
    if (isConfigured(calendar_render_title))
        drawTitle(painter, {rect.left(), rect.top(), rect.width(), bands.title});
    const QSizeF headSize(bands.day.width(), bands.head);
    const MvWeekdayHeads heads(*this, MvWeekdayHeads::Form::Short, headSize, true);
    const bool hasHeads = isConfigured(calendar_render_days_of_week);
    if (hasHeads && heads.form() == MvWeekdayHeads::Form::None)
        reportMissingHeads(rect);

    QPointF corner(rect.left(), rect.top() + bands.title);
    for (QDate date = startDate(); date.month() == startDate().month(); date = date.addDays(1)) {
        const MvPaintMarking mark = marks.listedDay(date);
        if (hasHeads)
            drawHead(painter, {corner, headSize}, date, heads);
        drawDayNumberCell(painter, {corner + QPointF(0.0, bands.head), bands.day}, date);
        if (hasHeads)
            Q_EMIT roomForDateFound(date, {corner, QSizeF(bands.day.width(), bands.head + bands.day.height())});
        const bool isLastInRow = date.day() % bands.columns == 0;
        corner = isLastInRow ? QPointF(rect.left(), corner.y() + bands.head + bands.day.height())
                             : corner + QPointF(bands.day.width(), 0.0);
    }
}

void MvCalendariumRendererOneRow::drawHead(QPainter &painter, const QRectF &cell, const QDate &date,
                                           const MvWeekdayHeads &heads)
{
    const MvCalendarCellTypeConfig config = headCellTypeConfig(date);
    drawCell(painter, cell, config, {}, isEvenWeek(date), 0);
    const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).listedHead(date);
    heads.draw(painter, cell, config, date.dayOfWeek(), isEvenWeek(date));
}

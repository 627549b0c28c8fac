// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumMonthRenderer.h"

#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCalendar/MvWeekdayHeads.h"
#include "MvPaint/MvTextFitter.h"
#include "MvPaint/MvTextPainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsPerYear = 12;
const QString titleBlanks = u" "_s;
constexpr double textGap = 0.25; // between two texts side by side, in parts of their size
constexpr double lineAir = 1.0;  // between a text and the lines of its cell

} // namespace

double MvCalendariumMonthRenderer::plannedHeight(const MvCalendarCellType &type,
                                                 const MvCalendarRenderingInformation &info) const
{
    return isConfigured(info) ? minimumHeightOfCellType(type, false) : 0.0;
}

// ---- the month

void MvCalendariumMonthRenderer::drawTitle(QPainter &painter, const QRectF &rect)
{
    if (!(rect.width() > 0.0) || !(rect.height() > 0.0))
        return;
    drawCellBackground(painter, rect, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_TITLE), true);
    drawMonth(painter, rect, CALENDAR_CELL_TYPE_TITLE, titleBlanks);
}

void MvCalendariumMonthRenderer::drawMonth(QPainter &painter, const QRectF &rect, const MvCalendarCellType &type,
                                           const QString &blanks)
{
    const MvCalendarCellTypeConfig config(type, type);
    const QColor color = fontColor(config, true);
    if (!isOpaqueColor(color))
        return;
    const QRectF inner = rect.marginsRemoved(padding(type));
    const QSizeF room = roomForMonth(rect, type);
    const QString text = monthText(startDate(), type, blanks);
    MvCalendariumCellLine line({monthFont(room, type, blanks), smallestPixelSize(type), MvHyphenator()}, room, text);
    if (line.isCut())
        reportUnfitting(startDate(), text.trimmed(), rect);
    line.align(inner, int(textAlignment(type)));
    if (isCentred(type))
        line.centre(inner);
    line.keepInside(rect);
    const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).title(text);
    line.draw(painter, color);
}

bool MvCalendariumMonthRenderer::isCentred(const MvCalendarCellType &type) const
{
    return textAlignment(type).testFlag(Qt::AlignHCenter);
}

QString MvCalendariumMonthRenderer::monthText(const QDate &month, const MvCalendarCellType &type,
                                              const QString &blanks) const
{
    const QString text = calendarMonth(month).trimmed(); // where there is no year, its blank goes, too
    return isCentred(type) ? text : blanks + text;
}

/// The largest in which all months of the years of the calendar's first and last month fit.
QFont MvCalendariumMonthRenderer::monthFont(const QSizeF &room, const MvCalendarCellType &type,
                                            const QString &blanks) const
{
    QFont largest = font(type);
    const double floor = smallestPixelSize(type);
    const std::set<int> years{startDate().year(), startDateOfCalendar().year(), endDateOfCalendar().year()};
    for (const int year : years) {
        for (int month = 1; month <= monthsPerYear; ++month) {
            const QString text = monthText(QDate(year, month, 1), type, blanks);
            const bool fits = MvTextPainter::advance(largest, text) <= static_cast<int>(room.width()) &&
                              QFontMetricsF(largest).height() <= room.height();
            if (!fits)
                largest = MvCalendariumCellLine({largest, floor, MvHyphenator()}, room, text).font();
        }
    }
    return largest;
}

QSizeF MvCalendariumMonthRenderer::roomForMonth(const QRectF &cell, const MvCalendarCellType &type) const
{
    return {cell.marginsRemoved(padding(type)).intersected(cell).width(), cell.height()};
}

bool MvCalendariumMonthRenderer::hasRoomForTitle(const QRectF &rect) const
{
    const QFont fitting =
        monthFont(roomForMonth(rect, CALENDAR_CELL_TYPE_TITLE), CALENDAR_CELL_TYPE_TITLE, titleBlanks);
    return fitting.pixelSize() == font(CALENDAR_CELL_TYPE_TITLE).pixelSize();
}

// ---- cells

void MvCalendariumMonthRenderer::drawFittingCell(QPainter &painter, const QRectF &rect,
                                                 const MvCalendarCellTypeConfig &config, const QString &text, bool even,
                                                 const QDate &date)
{
    if (!(rect.width() > 0.0) || !(rect.height() > 0.0))
        return;
    drawCellBackground(painter, rect, config, even);
    const QColor color = fontColor(config, even);
    if (text.isEmpty() || !isOpaqueColor(color))
        return;
    const MvCalendarCellType &type = config.inscriptionConfig();
    const QRectF inner = rect.marginsRemoved(padding(type));
    const QRectF inside = rect.adjusted(lineAir, lineAir, -lineAir, -lineAir);
    const MvTextFitter fitter = this->fitter(type);
    MvCalendariumCellLine line(fitter, {inner.intersected(inside).width(), inside.height()}, text);
    if (line.isCut()) { // paddings are used up before the text is shortened
        const double air = textGap * smallestPixelSize(type);
        line = MvCalendariumCellLine(fitter, {rect.width() - air, inside.height()}, text);
    }
    if (line.isCut())
        reportUnfitting(date, text, rect);
    line.align(inner, int(textAlignment(type)));
    line.keepInside(inside);
    line.draw(painter, color);
}

void MvCalendariumMonthRenderer::reportMissingHeads(const QRectF &line)
{
    MvCalendariumRenderer::reportMissingHeads(MvWeekdayHeads::names(*this, MvWeekdayHeads::Form::Short).join(u' '),
                                              line);
}

void MvCalendariumMonthRenderer::drawNeighbouringDay(QPainter &painter, const QRectF &rect, const QDate &date,
                                                     bool even)
{
    drawCellBackground(painter, rect, MvCalendarCellTypeConfig(contentCellTypeWeekDay(date.dayOfWeek())), even);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvYearGridPainter.h"

#include "MvCalendar/MvCalendariumRendererYear.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCalendar/MvWeekdayHeads.h"
#include "MvCalendar/MvYearArrangement.h"

using namespace Qt::StringLiterals;

namespace {

const QString widestWeek = u"52"_s;
constexpr double edgeOfNumber = 0.06; // of the size of type; numbers of two days do not touch

} // namespace

MvYearGridPainter::MvYearGridPainter(MvCalendariumRendererYear &renderer, QPainter &painter)
    : m_renderer(renderer)
    , m_painter(painter)
{}

void MvYearGridPainter::paint(const QRectF &rect)
{
    const MvYearArrangement arrangement = m_renderer.arrangement(rect);
    m_sizes = arrangement.sizes();
    const bool wantsWeeks = m_renderer.isConfigured(calendar_render_week_of_year);
    if (wantsWeeks && m_sizes.weekWidth <= 0.0)
        m_renderer.reportMissing(m_renderer.calendarWeekHeadlineText(), rect);
    prepareTexts();
    const MvWeekdayHeads heads(m_renderer,
                               m_renderer.isConfigured(calendar_render_days_of_week_short) ? MvWeekdayHeads::Form::Short
                                                                                           : MvWeekdayHeads::Form::Long,
                               {m_sizes.day.width(), m_sizes.headHeight}, false);
    if (m_sizes.headHeight > 0.0 && heads.form() == MvWeekdayHeads::Form::None)
        m_renderer.reportMissing(MvWeekdayHeads::names(m_renderer, MvWeekdayHeads::Form::Short).join(u' '), rect);
    const QSizeF nameSize(MvSmallMonthGrid::size(m_sizes).width(), m_sizes.nameHeight);
    const QStringList names = m_renderer.monthNames(nameSize);
    m_nameFont = m_renderer.fittingFont(CALENDAR_CELL_TYPE_MONTH, nameSize, names);
    for (int index = 0; index < MvYearArrangement::monthCount; ++index) {
        const QDate month = m_renderer.firstMonth().addMonths(index);
        const MvSmallMonthGrid grid(arrangement.monthRect(index).topLeft(), month, m_sizes);
        const MvPaintMarking table = MvMonthMarks(m_renderer, m_painter, month).table();
        paintMonth(grid, month, names.at(index));
        if (m_sizes.headHeight > 0.0)
            paintHeads(grid, month, heads);
    }
}

// ---- texts

void MvYearGridPainter::prepareTexts()
{
    m_hasNumbers = haveNumbersRoom();
    if (m_sizes.weekWidth <= 0.0)
        return;
    const QString week = m_renderer.MvCalendariumRenderer::maxmimumWidthCalendarWeekText().constFirst();
    m_hasWeekNumbersOnly = !m_renderer.fits(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, m_sizes.weekWidth, week);
    const QStringList widest{m_hasWeekNumbersOnly ? widestWeek : week};
    m_weekFont =
        m_renderer.fittingFont(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, {m_sizes.weekWidth, m_sizes.day.height()}, widest);
    m_weekHead = m_renderer.calendarWeekHeadlineText();
    if (!m_renderer.fits(CALENDAR_CELL_TYPE_TOPLINE, m_sizes.weekWidth, m_weekHead))
        m_weekHead.clear();
}

/// Either all numbers of the page are there or none: one digit without two says nothing.
bool MvYearGridPainter::haveNumbersRoom() const
{
    for (const MvCalendarCellType &type : m_renderer.dayCellTypes()) {
        const QFont font = m_renderer.font(type);
        const double edge = edgeOfNumber * font.pixelSize();
        const QRectF room(edge, 0.0, m_sizes.day.width() - 2.0 * edge, m_sizes.day.height());
        for (const QString &number : {u"20"_s, u"24"_s, u"28"_s, u"30"_s}) {
            if (m_renderer.line(room, type, number, font).isEmpty())
                return false;
        }
    }
    return true;
}

QString MvYearGridPainter::weekText(const QDate &monday) const
{
    return m_hasWeekNumbersOnly ? QString::number(monday.weekNumber()) : m_renderer.calendarWeekText(monday);
}

// ---- painting

void MvYearGridPainter::paintMonth(const MvSmallMonthGrid &grid, const QDate &month, const QString &name)
{
    const MvCalendarCellTypeConfig config(CALENDAR_CELL_TYPE_MONTH);
    const MvMonthMarks marks(m_renderer, m_painter, month);
    {
        const MvPaintMarking mark = marks.title(name);
        if (!paintCell(grid.nameRect(), config, name, m_nameFont, true))
            m_renderer.reportUnfitting(month, name, grid.nameRect());
    }
    for (int row = 0; row < grid.rows(); ++row)
        paintWeek(grid, row, marks);
}

bool MvYearGridPainter::paintCell(const QRectF &cell, const MvCalendarCellTypeConfig &config, const QString &text,
                                  const QFont &font, bool even, double edge)
{
    m_renderer.drawCell(m_painter, cell, config, {}, even, 0);
    const QColor color = m_renderer.fontColor(config, even);
    if (text.isEmpty() || !m_renderer.isOpaqueColor(color))
        return true;
    const QRectF room = cell.adjusted(edge, 0.0, -edge, 0.0);
    const MvCalendariumCellLine line = m_renderer.line(room, config.inscriptionConfig(), text, font);
    line.draw(m_painter, color);
    return !line.isEmpty();
}

void MvYearGridPainter::paintHeads(const MvSmallMonthGrid &grid, const QDate &month, const MvWeekdayHeads &heads)
{
    const MvMonthMarks marks(m_renderer, m_painter, month);
    const MvCalendarCellTypeConfig topline(CALENDAR_CELL_TYPE_TOPLINE);
    if (m_sizes.weekWidth > 0.0) {
        const MvPaintMarking mark = marks.weeksHead();
        paintCell(grid.weekHeadRect(), topline, m_weekHead, m_renderer.font(CALENDAR_CELL_TYPE_TOPLINE), true);
    }
    for (int day = 1; day <= MvSmallMonthGrid::daysPerWeek; ++day) {
        const MvCalendarCellTypeConfig config(MvCalendariumRenderer::headCellTypeWeekDay(day));
        m_renderer.drawCell(m_painter, grid.headRect(day), config, {}, true, 0);
        const MvPaintMarking mark = marks.weekdayHead(day - 1);
        heads.draw(m_painter, grid.headRect(day), config, day, true);
    }
}

void MvYearGridPainter::paintWeek(const MvSmallMonthGrid &grid, int row, const MvMonthMarks &marks)
{
    const QDate monday = grid.monday(row);
    const bool even = m_renderer.isEvenWeek(monday);
    if (m_sizes.weekWidth > 0.0) {
        const bool hasDays = grid.hasDays(row);
        const MvPaintMarking mark = marks.week(monday);
        paintCell(grid.weekRect(row),
                  MvCalendarCellTypeConfig(hasDays ? CALENDAR_CELL_TYPE_WEEK_OF_YEAR : CALENDAR_CELL_TYPE_EMPTY),
                  hasDays ? weekText(monday) : QString(), m_weekFont, even);
    }
    for (int day = 1; day <= MvSmallMonthGrid::daysPerWeek; ++day) {
        const QDate date = grid.date(row, day);
        const MvPaintMarking mark = date.isValid() ? marks.day(date) : marks.decoration();
        if (date.isValid())
            paintDay(grid.dayRect(row, day), date);
        else
            m_renderer.drawCellBackground(m_painter, grid.dayRect(row, day),
                                          MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_EMPTY), even);
    }
}

void MvYearGridPainter::paintDay(const QRectF &cell, const QDate &date)
{
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    const QString number = QString::number(date.day());
    const QFont font = m_renderer.font(config.inscriptionConfig());
    const bool even = m_renderer.isEvenWeek(date);
    const double edge = edgeOfNumber * font.pixelSize();
    if (!paintCell(cell, config, m_hasNumbers ? number : QString(), font, even, edge) || !m_hasNumbers)
        m_renderer.reportUnfitting(date, number, cell);
    Q_EMIT m_renderer.rectForDateFound(date, cell);
}

#include "MvCalendar/MvYearGridPainter.h"

#include "MvCalendar/MvCalendariumRendererYear.h"
#include "MvCalendar/MvYearArrangement.h"

#include <algorithm>

MvYearGridPainter::MvYearGridPainter(MvCalendariumRendererYear &renderer, QPainter &painter)
    : m_renderer(renderer)
    , m_painter(painter)
{}

void MvYearGridPainter::paint(const QRectF &rect)
{
    const MvYearArrangement arrangement = MvYearArrangement::leastStretched(rect, m_renderer.neededGridSizes());
    m_sizes = arrangement.sizes();
    m_weekdayHeads = weekdayHeads(m_sizes.day.width());
    const QStringList weekTexts = m_renderer.MvCalendariumRenderer::maxmimumWidthCalendarWeekText();
    m_hasWeekNumbersOnly = !m_renderer.fits(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, m_sizes.weekWidth, weekTexts.constFirst());
    m_weekHead = m_renderer.calendarWeekHeadlineText();
    if (!m_renderer.fits(CALENDAR_CELL_TYPE_TOPLINE, m_sizes.weekWidth, m_weekHead))
        m_weekHead.clear();
    const QStringList names = m_renderer.monthNames(MvSmallMonthGrid::size(m_sizes).width());
    for (int index = 0; index < MvYearArrangement::monthCount; ++index) {
        const QDate month = m_renderer.firstMonth().addMonths(index);
        paintMonth(MvSmallMonthGrid(arrangement.monthRect(index).topLeft(), month, m_sizes), names.at(index));
    }
}

// ---- texts

QStringList MvYearGridPainter::weekdayHeads(double columnWidth) const
{
    const auto names = [this](const auto &name) {
        QStringList texts;
        for (int day = 1; day <= MvSmallMonthGrid::daysPerWeek; ++day)
            texts.append(name(day));
        return texts;
    };
    const auto fit = [&](const QStringList &texts) {
        for (int day = 1; day <= MvSmallMonthGrid::daysPerWeek; ++day) {
            if (!m_renderer.fits(MvCalendariumRenderer::headCellTypeWeekDay(day), columnWidth, texts.at(day - 1)))
                return false;
        }
        return true;
    };
    const QStringList asConfigured = names([this](int day) { return m_renderer.dayName(day); });
    if (fit(asConfigured))
        return asConfigured;
    const QStringList shortNames = names([this](int day) { return m_renderer.dayName(day, true); });
    return fit(shortNames) ? shortNames : names([this](int day) { return m_renderer.dayName(day, true).left(1); });
}

QString MvYearGridPainter::weekText(const QDate &monday) const
{
    return m_hasWeekNumbersOnly ? QString::number(monday.weekNumber()) : m_renderer.calendarWeekText(monday);
}

// ---- painting

void MvYearGridPainter::paintMonth(const MvSmallMonthGrid &grid, const QString &name)
{
    m_renderer.drawCell(m_painter, grid.nameRect(), MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_MONTH), name, true, 0);
    if (m_sizes.headHeight > 0.0)
        paintHeads(grid);
    for (int row = 0; row < grid.rows(); ++row)
        paintWeek(grid, row);
}

void MvYearGridPainter::paintHeads(const MvSmallMonthGrid &grid)
{
    if (m_sizes.weekWidth > 0.0)
        m_renderer.drawCell(m_painter, grid.weekHeadRect(), MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_TOPLINE),
                            m_weekHead, true, 0);
    for (int day = 1; day <= MvSmallMonthGrid::daysPerWeek; ++day) {
        m_renderer.drawCell(m_painter, grid.headRect(day),
                            MvCalendarCellTypeConfig(MvCalendariumRenderer::headCellTypeWeekDay(day)),
                            m_weekdayHeads.at(day - 1), true, 0);
    }
}

void MvYearGridPainter::paintWeek(const MvSmallMonthGrid &grid, int row)
{
    const QDate monday = grid.monday(row);
    const bool even = m_renderer.isEvenWeek(monday);
    if (m_sizes.weekWidth > 0.0) {
        m_renderer.drawCell(
            m_painter, grid.weekRect(row),
            MvCalendarCellTypeConfig(grid.hasDays(row) ? CALENDAR_CELL_TYPE_WEEK_OF_YEAR : CALENDAR_CELL_TYPE_EMPTY),
            grid.hasDays(row) ? weekText(monday) : QString(), even, 0);
    }
    for (int day = 1; day <= MvSmallMonthGrid::daysPerWeek; ++day) {
        const QDate date = grid.date(row, day);
        if (date.isValid())
            paintDay(grid.dayRect(row, day), date);
        else
            m_renderer.drawCellBackground(m_painter, grid.dayRect(row, day),
                                          MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_EMPTY), even);
    }
}

void MvYearGridPainter::paintDay(const QRectF &cell, const QDate &date)
{
    m_renderer.drawCell(m_painter, cell, m_renderer.contentCellTypeConfig(date), QString::number(date.day()),
                        m_renderer.isEvenWeek(date), 0);
    Q_EMIT m_renderer.rectForDateFound(date, cell);
}

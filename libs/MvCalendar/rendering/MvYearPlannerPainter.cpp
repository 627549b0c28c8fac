// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvYearPlannerPainter.h"

#include "MvCalendar/MvCalendariumCellPainter.h"
#include "MvCalendar/MvCalendariumColorCellInfo.h"
#include "MvCalendar/MvCalendariumRendererYear.h"
#include "MvCalendar/MvColorRuns.h"
#include "MvCalendar/MvMonthMarks.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;
constexpr double readableContrast = 4.5; // WCAG 2.1, level AA
constexpr double gapBeneathNumber = 0.2; // in heights of a line
constexpr double gapBetweenNames = 0.2;  // of months, of the size of type
constexpr double edgeOfNumber = 0.14;    // of the size of type; numbers of two months do not touch
constexpr double hair = 2.0;             // that ink keeps from the edge of its cell
const QString ellipsis = u"…"_s;

/// The head type of a day whose content has the type.
MvCalendarCellType headOf(const MvCalendarCellType &content)
{
    switch (content.value()) {
    case CALENDAR_CELL_TYPE_SATURDAY:
        return CALENDAR_CELL_TYPE_HEAD_SATURDAY;
    case CALENDAR_CELL_TYPE_SUNDAY:
        return CALENDAR_CELL_TYPE_HEAD_SUNDAY;
    case CALENDAR_CELL_TYPE_HOLIDAY:
        return CALENDAR_CELL_TYPE_HEAD_HOLIDAY;
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
        return CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION;
    default:
        return CALENDAR_CELL_TYPE_HEAD_WEEKDAY;
    }
}

/// Whether the text reads well on the background, on white paper where that is translucent.
bool isReadable(const QColor &text, const QColor &background)
{
    MvCalendariumColorCellInfo cell;
    cell.setFontColor(text, true);
    cell.setBackgroundColor(background, true);
    return cell.cellContrast(Qt::white, true) >= readableContrast;
}

} // namespace

MvYearPlannerPainter::MvYearPlannerPainter(MvCalendariumRendererYear &renderer, QPainter &painter)
    : m_renderer(renderer)
    , m_painter(painter)
{
    for (int day = 1; day <= daysPerWeek; ++day)
        m_weekdays.append(m_renderer.dayName(day, true));
}

void MvYearPlannerPainter::paint(const QRectF &rect)
{
    const MvYearPlanner planner(rect, m_renderer.firstMonth(), m_renderer.neededPlannerSizes());
    QSizeF name = planner.nameRect(0).size();
    name.rwidth() -= gapBetweenNames * m_renderer.font(CALENDAR_CELL_TYPE_MONTH).pixelSize();
    const QStringList names = m_renderer.monthNames(name);
    m_nameFont = m_renderer.fittingFont(CALENDAR_CELL_TYPE_MONTH, name, names);
    m_rect = rect;
    m_weekdaySize = planner.parts(planner.dayRect(0, 1), false).weekday.size();
    if (m_weekdaySize.isEmpty())
        reportMissingWeekdays();
    for (int column = 0; column < MvYearPlanner::monthCount; ++column)
        paintMonth(planner, column, names.at(column));
}

void MvYearPlannerPainter::reportMissingWeekdays()
{
    if (!m_hasReportedWeekdays)
        m_renderer.reportMissing(m_weekdays.join(u' '), m_rect);
    m_hasReportedWeekdays = true;
}

// ---- styles

const MvYearPlannerPainter::Style &MvYearPlannerPainter::style(const MvCalendarCellType &type)
{
    const auto known = m_styles.find(type.value());
    if (known != m_styles.end())
        return known->second;
    const bool isWeekday = m_renderer.dayHeadCellTypes(true).contains(type);
    Style style{isWeekday ? m_renderer.fittingFont(type, m_weekdaySize, m_weekdays) : m_renderer.font(type),
                m_renderer.holidayFitter(type)};
    style.lineHeight = QFontMetricsF(style.texts.font()).height();
    style.smallestLine = style.lineHeight * std::min(1.0, style.texts.floor() / style.texts.font().pixelSize());
    style.leftPadding = m_renderer.padding(type).left();
    style.rightPadding = m_renderer.padding(type).right();
    return m_styles.emplace(type.value(), style).first->second;
}

// ---- painting

void MvYearPlannerPainter::paintMonth(const MvYearPlanner &planner, int column, const QString &name)
{
    const QDate month = planner.month(column);
    const MvMonthMarks marks(m_renderer, m_painter, month);
    const MvPaintMarking table = marks.table();
    const MvCalendarCellTypeConfig config(CALENDAR_CELL_TYPE_MONTH);
    const QRectF nameCell = planner.nameRect(column);
    m_renderer.drawCell(m_painter, nameCell, config, {}, true, 0);
    const MvCalendariumCellLine line =
        m_renderer.line(nameCell.adjusted(0.0, 0.0, -gapBetweenNames * m_nameFont.pixelSize(), 0.0),
                        CALENDAR_CELL_TYPE_MONTH, name, m_nameFont);
    if (line.isEmpty())
        m_renderer.reportUnfitting(month, name, nameCell);
    if (m_renderer.isOpaqueColor(m_renderer.fontColor(config, true))) {
        const MvPaintMarking mark = marks.title(name);
        line.draw(m_painter, m_renderer.fontColor(config, true));
    }
    const int days = month.daysInMonth();
    for (int day = 1; day <= days; ++day) {
        const MvPaintMarking mark = marks.listedDay(month.addDays(day - 1));
        paintDay(planner, planner.dayRect(column, day), month.addDays(day - 1));
    }
    for (int day = days + 1; day <= MvYearPlanner::mostDays; ++day)
        m_renderer.drawCellBackground(m_painter, planner.dayRect(column, day),
                                      MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_EMPTY), true);
}

void MvYearPlannerPainter::paintDay(const MvYearPlanner &planner, const QRectF &cell, const QDate &date)
{
    const bool even = m_renderer.isEvenWeek(date);
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    m_renderer.drawCellBackground(m_painter, cell, config, even);
    Q_EMIT m_renderer.rectForDateFound(date, cell);
    const QColor color = m_renderer.fontColor(config, even);
    if (!m_renderer.isOpaqueColor(color))
        return;
    const Style textStyle = style(config.inscriptionConfig());
    MvCalendariumCellPainter cells(m_renderer, m_painter);
    const MvDayColumn shown = cells.wholeDay(date);
    const QStringList &texts = shown.texts;
    MvYearPlanner::Parts parts = planner.parts(cell, date.dayOfWeek() == Qt::Monday);
    const double taken = cell.right() - cells.drawBars(cell, date, even, shown.bars, parts.number).right();
    parts.texts.setRight(parts.texts.right() - taken);
    parts.week.translate(-taken, 0.0);
    Texts fitted = fittingTexts(texts, innerRect(planner, parts.texts, textStyle), textStyle);
    if (!parts.week.isNull() && !areAsWritten(fitted, texts, textStyle)) { // the week gives way
        parts = planner.parts(cell, false);
        parts.texts.setRight(parts.texts.right() - taken);
        fitted = fittingTexts(texts, innerRect(planner, parts.texts, textStyle), textStyle);
    }
    for (const QString &text : texts.mid(fitted.whole))
        m_renderer.reportUnfitting(date, text, cell);
    m_renderer.reportMissingGlyphs(date, texts, textStyle.texts.font(), cell);

    const std::optional<double> baseline = paintFront(parts, cell, config, date, even);
    if (baseline && !parts.week.isNull()) // alone it would be read as the number of the day
        paintWeek(parts.week, config, date, even, *baseline);
    paintTexts(planner, innerRect(planner, parts.texts, textStyle), fitted,
               baseline.value_or(parts.number.center().y()), texts, cells.readable(shown.colors, date, even), color);
}

std::optional<double> MvYearPlannerPainter::paintFront(const MvYearPlanner::Parts &parts, const QRectF &cell,
                                                       const MvCalendarCellTypeConfig &config, const QDate &date,
                                                       bool even)
{
    const QColor color = m_renderer.fontColor(config, even);
    const MvCalendarCellType &type = config.inscriptionConfig();
    const QString text = QString::number(date.day());
    const double edge = edgeOfNumber * style(type).font.pixelSize();
    const QRectF room = parts.number.adjusted(edge, 0.0, -std::max(edge, m_renderer.gapBesideNumber()), 0.0);
    const MvCalendariumCellLine number = m_renderer.line(room, type, text, style(type).font);
    if (number.isEmpty()) {
        m_renderer.reportUnfitting(date, text, cell);
        reportMissingWeekdays();
        return {};
    }
    number.draw(m_painter, color);
    if (!parts.weekday.isNull()) {
        const MvCalendarCellType head = headOf(type);
        MvCalendariumCellLine weekday =
            m_renderer.line(parts.weekday, head, m_weekdays.at(date.dayOfWeek() - 1), style(head).font);
        if (weekday.isEmpty())
            reportMissingWeekdays();
        weekday.setBaseline(number.baseline());
        weekday.keepInside(cell.adjusted(0.0, hair, 0.0, -hair));
        const QDate month(date.year(), date.month(), 1);
        const MvPaintMarking mark = MvMonthMarks(m_renderer, m_painter, month).listedHead(date);
        weekday.draw(m_painter, m_renderer.fontColor({head, config.colorConfig()}, even));
    }
    return number.baseline();
}

void MvYearPlannerPainter::paintWeek(const QRectF &part, const MvCalendarCellTypeConfig &config, const QDate &date,
                                     bool even, double baseline)
{
    const MvCalendarCellType type = CALENDAR_CELL_TYPE_WEEK_OF_YEAR;
    const QColor background = m_renderer.backgroundColor(config, even);
    const QColor ownColor = m_renderer.fontColor(MvCalendarCellTypeConfig(type), even);
    MvCalendariumCellLine week = m_renderer.line(part, type, m_renderer.calendarWeekText(date), style(type).font);
    week.setBaseline(baseline);
    week.keepInside(part.adjusted(0.0, hair, 0.0, -hair));
    const QDate month(date.year(), date.month(), 1);
    const MvPaintMarking mark = MvMonthMarks(m_renderer, m_painter, month).listedWeek(date);
    week.draw(m_painter, isReadable(ownColor, background) ? ownColor : m_renderer.fontColor(config, even));
}

QRectF MvYearPlannerPainter::innerRect(const MvYearPlanner &planner, const QRectF &part, const Style &style) const
{
    const double right = std::max(hair, style.rightPadding);
    if (planner.hasTextsBeneath())
        return part.adjusted(style.leftPadding, gapBeneathNumber * style.lineHeight, -right, -hair);
    return part.adjusted(0.0, hair, -right, -hair);
}

void MvYearPlannerPainter::paintTexts(const MvYearPlanner &planner, const QRectF &inner, const Texts &texts,
                                      double baseline, const QStringList &written, const QList<QColor> &colors,
                                      const QColor &other)
{
    const QFontMetricsF metrics(texts.set.font);
    const double height = metrics.height();
    const auto lineCount = double(texts.set.lines.size());
    double y = inner.top() + metrics.ascent();
    if (!planner.hasTextsBeneath() && lineCount == 1)
        y = baseline;
    else if (!planner.hasTextsBeneath())
        y += (inner.height() - height * lineCount) / 2.0;
    const MvTextFitter unchanged(texts.set.font, texts.set.font.pixelSize(), MvHyphenator());
    QList<MvCalendariumCellLine> lines;
    QRectF ink;
    for (const QString &text : texts.set.lines) {
        MvCalendariumCellLine line(unchanged, {inner.width() + 1.0, inner.height()}, text);
        line.align(inner, Qt::AlignLeft | Qt::AlignTop);
        line.setBaseline(y);
        y += height;
        ink |= line.ink();
        lines.append(line);
    }
    double shift = std::max(0.0, inner.top() - ink.top()) - std::max(0.0, ink.bottom() - inner.bottom());
    if (ink.height() > inner.height())
        shift = inner.center().y() - ink.center().y();
    const QList<MvColorRuns::Line> runs = MvColorRuns::of(texts.set.lines, written, colors);
    for (qsizetype i = 0; i < lines.size(); ++i) { // all by the same, so that they keep their distances
        lines[i].setBaseline(lines.at(i).baseline() + shift);
        if (colors.isEmpty() || runs.at(i).size() < 2)
            lines.at(i).draw(m_painter, colors.isEmpty() ? other : runs.at(i).value(0).color);
        else
            lines.at(i).draw(m_painter, runs.at(i));
    }
}

// ---- fitting

bool MvYearPlannerPainter::areAsWritten(const Texts &texts, const QStringList &written, const Style &style)
{
    const QString lines = texts.set.lines.join(u' ');
    return written.isEmpty() ||
           (texts.set.font == style.texts.font() && (lines == written.join(u' ') || lines == written.join(u", "_s)));
}

/// Every text on a line of its own or, if there are too few, one after the other; an ellipsis stands for those that
/// have no room.
MvYearPlannerPainter::Texts MvYearPlannerPainter::fittingTexts(const QStringList &texts, const QRectF &inner,
                                                               const Style &style) const
{
    if (texts.isEmpty() || inner.width() < MvYearPlanner::leastTextWidth * style.smallestLine)
        return {};
    Texts best = setTexts(texts, inner.size(), style);
    if (!best.set.isCut)
        return best;
    qsizetype tooMany = texts.size();
    qsizetype fit = 0;
    while (tooMany - fit > 1) {
        const qsizetype tried = (fit + tooMany) / 2;
        const Texts some = setTexts(texts.first(tried) << ellipsis, inner.size(), style);
        if (some.set.isCut) {
            tooMany = tried;
        } else {
            fit = tried;
            best = some;
        }
    }
    if (fit == 0) // not even the ellipsis beside one
        return setTexts({texts.constFirst()}, inner.size(), style);
    best.whole = fit;
    return best;
}

bool MvYearPlannerPainter::isTooHigh(const MvFittedText &set, const QSizeF &room)
{
    const MvTextFitter unchanged(set.font, set.font.pixelSize(), MvHyphenator());
    return std::any_of(set.lines.cbegin(), set.lines.cend(), [&](const QString &text) {
        return text != ellipsis && // a line of its own is not painted
               MvCalendariumCellLine(unchanged, {room.width() + 1.0, room.height()}, text).isEmpty();
    });
}

MvYearPlannerPainter::Texts MvYearPlannerPainter::setTexts(const QStringList &texts, const QSizeF &room,
                                                           const Style &style) const
{
    const QString joined = texts.join(u", "_s);
    MvFittedText set = style.texts.fit(room, texts);
    if (set.isCut && texts.size() > 1)
        set = style.texts.fit(room, {joined});
    // lower than a line, but perhaps not than what is seen of it; or the other way round
    if ((set.isCut && room.height() < style.lineHeight) || isTooHigh(set, room)) {
        const MvCalendariumCellLine line(style.texts, room, joined);
        set = {line.font(), line.isEmpty() ? QStringList() : QStringList{line.text()}, line.isCut(), {}};
    }
    return {set, set.isCut ? 0 : texts.size()};
}

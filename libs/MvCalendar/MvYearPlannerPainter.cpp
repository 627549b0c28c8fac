#include "MvCalendar/MvYearPlannerPainter.h"

#include "MvCalendar/MvCalendariumColorCellInfo.h"
#include "MvCalendar/MvCalendariumRendererYear.h"
#include "MvCalendar/MvCalendariumTextPainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;
constexpr double readableContrast = 4.5; // WCAG 2.1, level AA
constexpr double gapBeneathNumber = 0.2; // in heights of a line
constexpr double leastTextWidth = 2.5;   // in heights of a line; less than that shows ellipses only

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
    const QStringList names = m_renderer.monthNames(planner.nameRect(0).width());
    for (int column = 0; column < MvYearPlanner::monthCount; ++column)
        paintMonth(planner, column, names.at(column));
}

// ---- styles

const MvYearPlannerPainter::Style &MvYearPlannerPainter::style(const MvCalendarCellType &type)
{
    const auto known = m_styles.constFind(type);
    if (known != m_styles.cend())
        return *known;
    Style style;
    style.texts = m_renderer.fontHolidays(type);
    const QFontMetricsF metrics(style.texts);
    style.lineHeight = metrics.height();
    style.textBaseline = metrics.ascent() - metrics.height() / 2.0;
    style.baseline = baseline(type, m_renderer.font(type));
    style.leftPadding = m_renderer.padding(type).left();
    style.rightPadding = m_renderer.padding(type).right();
    style.flags = int(m_renderer.textAlignment(type) & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
    return *m_styles.insert(type, style);
}

double MvYearPlannerPainter::baseline(const MvCalendarCellType &type, const QFont &font) const
{
    const QFontMetricsF metrics(font);
    const QMarginsF padding = m_renderer.padding(type);
    return (padding.top() - padding.bottom()) / 2.0 + metrics.ascent() - metrics.height() / 2.0;
}

// ---- painting

void MvYearPlannerPainter::paintMonth(const MvYearPlanner &planner, int column, const QString &name)
{
    const QDate month = planner.month(column);
    m_renderer.drawCell(m_painter, planner.nameRect(column), MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_MONTH), name,
                        true, 0);
    const int days = month.daysInMonth();
    for (int day = 1; day <= days; ++day)
        paintDay(planner, planner.dayRect(column, day), month.addDays(day - 1));
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
    const QStringList texts = m_renderer.describeHolidays(date);
    MvYearPlanner::Parts parts = planner.parts(cell, date.dayOfWeek() == Qt::Monday);
    bool isCut = false;
    QStringList lines = fittingLines(texts, innerRect(planner, parts.texts, textStyle).size(), textStyle, &isCut);
    if (isCut && !parts.week.isNull()) { // the week gives way
        parts = planner.parts(cell, false);
        lines = fittingLines(texts, innerRect(planner, parts.texts, textStyle).size(), textStyle, &isCut);
    }
    if (isCut)
        m_renderer.reportUnfitting(date, texts.join(u", "_s), cell);
    m_renderer.reportMissingGlyphs(date, texts, textStyle.texts, cell);

    paintFront(parts, config, date, even);
    if (!parts.week.isNull())
        paintWeek(parts.week, config, date, even);
    m_painter.setPen(color);
    paintTexts(planner, innerRect(planner, parts.texts, textStyle), lines, textStyle);
}

void MvYearPlannerPainter::paintFront(const MvYearPlanner::Parts &parts, const MvCalendarCellTypeConfig &config,
                                      const QDate &date, bool even)
{
    const Style &number = style(config.inscriptionConfig());
    m_renderer.drawCellText(m_painter, parts.number, config, QString::number(date.day()), number.flags, even);
    if (parts.weekday.isNull())
        return;
    const MvCalendarCellType head = headOf(config.inscriptionConfig());
    const double lift = number.baseline; // insertion of the next style may move this one
    const Style &weekday = style(head);
    m_renderer.drawCellText(m_painter, parts.weekday.translated(0.0, lift - weekday.baseline),
                            {head, config.colorConfig()}, m_weekdays.at(date.dayOfWeek() - 1), weekday.flags, even);
}

void MvYearPlannerPainter::paintWeek(const QRectF &part, const MvCalendarCellTypeConfig &config, const QDate &date,
                                     bool even)
{
    const MvCalendarCellType type = CALENDAR_CELL_TYPE_WEEK_OF_YEAR;
    const QColor background = m_renderer.backgroundColor(config, even);
    const bool hasOwnColor = isReadable(m_renderer.fontColor(MvCalendarCellTypeConfig(type), even), background);
    const double lift = style(config.inscriptionConfig()).baseline;
    const Style &week = style(type);
    m_renderer.drawCellText(m_painter, part.translated(0.0, lift - week.baseline),
                            {type, hasOwnColor ? type : config.colorConfig()}, m_renderer.calendarWeekText(date),
                            week.flags, even);
}

QRectF MvYearPlannerPainter::innerRect(const MvYearPlanner &planner, const QRectF &part, const Style &style) const
{
    if (planner.hasTextsBeneath())
        return part.adjusted(style.leftPadding, gapBeneathNumber * style.lineHeight, -style.rightPadding, 0.0);
    return part.adjusted(0.0, 0.0, -style.rightPadding, 0.0);
}

void MvYearPlannerPainter::paintTexts(const MvYearPlanner &planner, const QRectF &inner, const QStringList &lines,
                                      const Style &style)
{
    if (lines.isEmpty())
        return;
    double top = inner.top();
    if (!planner.hasTextsBeneath() && lines.size() == 1) // on the line of the number
        top = inner.center().y() + style.baseline - style.textBaseline - style.lineHeight / 2.0;
    else if (!planner.hasTextsBeneath())
        top += (inner.height() - style.lineHeight * double(lines.size())) / 2.0;
    m_painter.setFont(style.texts);
    for (const QString &line : lines) {
        MvCalendariumTextPainter::drawText(m_painter, {inner.left(), top, inner.width(), style.lineHeight},
                                           Qt::AlignLeft | Qt::AlignTop, line);
        top += style.lineHeight;
    }
}

/// Every text on a line of its own or, if there are too few, one after the other.
QStringList MvYearPlannerPainter::fittingLines(const QStringList &texts, const QSizeF &size, const Style &style,
                                               bool *isCut) const
{
    *isCut = false;
    if (texts.isEmpty())
        return {};
    const int width = std::max(0, static_cast<int>(size.width()));
    const bool isTooNarrow = size.width() < leastTextWidth * style.lineHeight;
    const int maxLines = isTooNarrow ? 0 : std::max(0, static_cast<int>(size.height() / style.lineHeight));
    QStringList lines = MvCalendariumTextPainter::fitLines(width, maxLines, style.texts, texts, isCut);
    if (*isCut && texts.size() > 1)
        lines = MvCalendariumTextPainter::fitLines(width, maxLines, style.texts, {texts.join(u", "_s)}, isCut);
    for (QString &line : lines) {
        if (!MvCalendariumTextPainter::isTextToWide(width, style.texts, line))
            continue;
        line = MvCalendariumTextPainter::elided(width, style.texts, line);
        *isCut = true;
    }
    return lines;
}

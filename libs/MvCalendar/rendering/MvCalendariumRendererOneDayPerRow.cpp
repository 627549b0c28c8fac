// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererOneDayPerRow.h"

#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvCalendariumCellPainter.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCore/MvAngle.h"
#include "MvPaint/MvTextFitter.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostColumns = 10;
constexpr int mostDays = 31;
constexpr int minimumColumnWidth = 20;
constexpr double leastColumns = 2.0; // that names of weekdays leave to all columns together, however narrow the page
constexpr double widestSheet = 1e5;
// parts of the width that weeks, numbers and names of weekdays may take
constexpr double widestLeftHeader = 0.6;
constexpr double widestLeftHeaderWithLongNames = 0.45;
constexpr double lineAir = 1.0;      // between a text and the line above or below the row
constexpr double headingHair = 0.3;  // between a heading and the line above or below it
constexpr double headingAir = 0.4;   // between two headings, in parts of their size
constexpr double weekTextAir = 20.0; // a strip must exceed the height of its text by this much to carry it
constexpr double weekMargin = 2.0;   // between that text and the lines that end the strip

const MvCalendarCellTypeConfig topLine(CALENDAR_CELL_TYPE_TOPLINE, CALENDAR_CELL_TYPE_TOPLINE);

} // namespace

MvCalendariumDisplayAbilities MvCalendariumRendererOneDayPerRow::abilities() const
{
    return MvCalendariumDisplayAbilities(ABILITY_DISPLAY_VACATIONS | ABILITY_DISPLAY_HOLIDAYS |
                                         ABILITY_DISPLAY_HOLIDAYS_COLORS);
}

QSize MvCalendariumRendererOneDayPerRow::minimumSizeHint() const
{
    const bool hasWeekdays = isConfigured(calendar_render_days_of_week);
    const double row =
        minimumHeightOfCellType(hasWeekdays ? CALENDAR_CELL_TYPE_HEAD_WEEKDAY : CALENDAR_CELL_TYPE_WEEKDAY, false);
    const int height = static_cast<int>(minimumHeightOfCellType(CALENDAR_CELL_TYPE_TOPLINE, false) + mostDays * row);

    int width = static_cast<int>(maxContentWidth());
    if (hasWeekdays)
        width += static_cast<int>(maxHeadWidth());
    if (isConfigured(calendar_render_week_of_year))
        width += static_cast<int>(widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false));
    return {width + minimumColumnWidth * numberEmptyOfColumns(), height};
}

bool MvCalendariumRendererOneDayPerRow::rendersMonthInformation() const
{
    return false;
}

bool MvCalendariumRendererOneDayPerRow::thereIsToMuchText(const QRectF &rect) const
{
    if (!hasTopHeader())
        return false;
    // by the number of headings as it is, even where fewer columns are drawn
    const int width = static_cast<int>(widthOfOneColumn(rect, appearance().countColumns()));
    return isAnyTextToWide(width, font(CALENDAR_CELL_TYPE_TOPLINE), headings());
}

QList<MvCalendarCellType> MvCalendariumRendererOneDayPerRow::usedCellTypes() const
{
    QList<MvCalendarCellType> types = dayCellTypes();
    if (isConfigured(calendar_render_days_of_week))
        types += dayHeadCellTypes(true);
    if (hasTopHeader())
        types << CALENDAR_CELL_TYPE_TOPLINE;
    if (isConfigured(calendar_render_week_of_year))
        types << CALENDAR_CELL_TYPE_WEEK_OF_YEAR;
    return types;
}

bool MvCalendariumRendererOneDayPerRow::hasOneHeaderPerDay() const
{
    return true;
}

// ---- sizes

bool MvCalendariumRendererOneDayPerRow::hasRoom(const QSizeF &room) const
{
    const QRectF rect(QPointF(), room);
    const double row = room.height() / (mostDays + (hasTopHeader() ? 1 : 0));
    const auto isTooHigh = [this, row](const MvCalendarCellType &type) {
        return QFontMetricsF(font(type)).height() > row;
    };
    const QList<MvCalendarCellType> types = usedCellTypes();
    return std::none_of(types.cbegin(), types.cend(), isTooHigh) &&
           offsetOfLeftHeader(rect) <= widestLeftHeader * room.width();
}

double MvCalendariumRendererOneDayPerRow::panedHeadWidth() const
{
    return headWidth(isConfigured(calendar_render_days_of_week_short));
}

double MvCalendariumRendererOneDayPerRow::headWidth(bool shortNames) const
{
    if (!isConfigured(calendar_render_days_of_week))
        return 0.0;
    double width = 0.0;
    for (const MvCalendarCellType &type : dayHeadCellTypes(false)) {
        const QMarginsF margins = padding(type);
        const double planned = widthOfCellType(type, shortNames) + std::max(0.0, -margins.left() - margins.right());
        // a padding below 0 narrows a column of long names, but never the names that stand in it
        const double narrowed = margins.right() < 0.0 ? widthOfCellType(type, false) : 0.0;
        width = std::max({width, planned, narrowed});
    }
    return width;
}

/// Where the long names would leave the free columns little room.
bool MvCalendariumRendererOneDayPerRow::hasShortNames(const QRectF &rect) const
{
    if (isConfigured(calendar_render_days_of_week_short))
        return true;
    const double others = planedWeekOfYearWidth() + planedNormalCellWidth();
    return others + headWidth(false) > widestLeftHeaderWithLongNames * rect.width() || !areHighEnoughForLongNames(rect);
}

/// Long names nearly always have letters that reach below the line, short ones rarely do.
bool MvCalendariumRendererOneDayPerRow::areHighEnoughForLongNames(const QRectF &rect) const
{
    const double row = rect.height() / (mostDays + (hasTopHeader() ? 1 : 0));
    if (QFontMetricsF(font(CALENDAR_CELL_TYPE_HEAD_WEEKDAY)).height() <= row - 2.0 * lineAir)
        return true;
    for (int day = 1; day <= 7; ++day) {
        const MvCalendarCellType type = headCellTypeWeekDay(day);
        if (MvCalendariumCellLine(fitter(type), {widestSheet, row - 2.0 * lineAir}, dayName(day, false)).isCut())
            return false;
    }
    return true;
}

double MvCalendariumRendererOneDayPerRow::planedWeekOfYearWidth() const
{
    return isConfigured(calendar_render_week_of_year) ? widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, true) : 0.0;
}

double MvCalendariumRendererOneDayPerRow::planedNormalCellWidth() const
{
    return maxContentWidth();
}

double MvCalendariumRendererOneDayPerRow::widthOfCell(const QRectF &rect, const MvCalendarCellType &type) const
{
    if (type == CALENDAR_CELL_TYPE_WEEK_OF_YEAR)
        return planedWeekOfYearWidth();
    if (dayHeadCellTypes(true).contains(type))
        return std::max(0.0, std::min(headWidth(hasShortNames(rect)),
                                      rect.width() - planedWeekOfYearWidth() - planedNormalCellWidth() - leastColumns));
    return dayCellTypes().contains(type) ? planedNormalCellWidth() : 0.0;
}

int MvCalendariumRendererOneDayPerRow::numberEmptyOfColumns() const
{
    return std::clamp(appearance().countColumns(), 1, mostColumns);
}

QStringList MvCalendariumRendererOneDayPerRow::headings() const
{
    return MvCalendariumWords(language()).columnHeadings(appearance());
}

bool MvCalendariumRendererOneDayPerRow::hasTopHeader() const
{
    const QStringList headers = appearance().columnHeadersList();
    if (headers.size() == 1)
        return !headers.constFirst().isEmpty() && headers.constFirst() != u"1"_s;
    return !headers.isEmpty();
}

QPair<double, double> MvCalendariumRendererOneDayPerRow::heightOfCell(const QRectF &rect,
                                                                      const MvCalendarCellType &type,
                                                                      const QDate &date) const
{
    const bool hasTopLine = hasTopHeader();
    const double row = rect.height() / (date.daysInMonth() + (hasTopLine ? 1 : 0));
    const double top = hasTopLine ? row : 0.0;
    if (type == CALENDAR_CELL_TYPE_TOPLINE)
        return {top, top};
    const bool isRow = dayCellTypes().contains(type) || dayHeadCellTypes(true).contains(type);
    return {isRow ? row : 0.0, top};
}

double MvCalendariumRendererOneDayPerRow::rowHeight(const QRectF &rect, const QDate &date) const
{
    return heightOfCell(rect, headCellTypeConfig(date).inscriptionConfig(), date).first;
}

double MvCalendariumRendererOneDayPerRow::offsetOfLeftHeader(const QRectF &rect) const
{
    return widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR) + widthOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY) +
           widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY);
}

double MvCalendariumRendererOneDayPerRow::widthOfOneColumn(const QRectF &rect, int count) const
{
    return (rect.width() - offsetOfLeftHeader(rect)) / count;
}

double MvCalendariumRendererOneDayPerRow::widthOfCalendarWeek(const QRectF &rect) const
{
    return widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
}

/// The days stand one below the other, their texts beside the bars.
Qt::Edge MvCalendariumRendererOneDayPerRow::spanEdge(const QDate &) const
{
    return Qt::LeftEdge;
}

// ---- painting

void MvCalendariumRendererOneDayPerRow::renderBase(QPainter &painter, const QRectF &rect)
{
    Q_EMIT hasTitleLineMayHaveChanged(hasTopHeader());
    const MvPaintMarking table = MvMonthMarks(*this, painter, startDate()).table();
    const QDate start = startDate();
    double y = rect.y() + renderHeadline(painter, rect, start);
    double weekTop = y;
    const int days = start.daysInMonth();
    for (int day = 1; day <= days; ++day) {
        const QDate date = start.addDays(day - 1);
        if (day == 1 || date.dayOfWeek() == Qt::Monday)
            weekTop = y;
        if (day == days || date.dayOfWeek() == Qt::Sunday)
            renderCalendarWeek(painter, date, rect, y, weekTop);
        renderDay(painter, rect, date, y);
        y += rowHeight(rect, date);
    }
}

void MvCalendariumRendererOneDayPerRow::renderDay(QPainter &painter, const QRectF &rect, const QDate &date, double y)
{
    const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).listedHead(date);
    const MvCalendarCellTypeConfig content = contentCellTypeConfig(date);
    double x = rect.x() + widthOfCalendarWeek(rect);
    const QRectF number(x, y, widthOfCell(rect, content.inscriptionConfig()), rowHeight(rect, date));
    drawCellBackground(painter, number, content, isEvenWeek(date));
    drawOnBaseline(painter, number, content, u" %1 "_s.arg(date.day()), 0, date);
    x += number.width();
    if (isConfigured(calendar_render_days_of_week)) {
        const double width = widthOfCell(rect, headCellTypeConfig(date).inscriptionConfig());
        renderWeekday(painter, date, y, x, rect, width);
        x += width;
    }
    renderColumn(painter, rect, date, y, x, numberEmptyOfColumns());
    Q_EMIT roomForDateFound(date, {number.topLeft(), QPointF(rect.right(), number.bottom())});
}

/// The baseline of a row, taken from its number.
double MvCalendariumRendererOneDayPerRow::baseline(const QRectF &row, const QDate &date) const
{
    const MvCalendarCellType type = contentCellType(date, FEATURE_HOLIDAYS);
    MvCalendariumCellLine number({font(type), font(type).pixelSize() + 1.0, MvHyphenator()},
                                 {widestSheet, row.height()}, u"0"_s);
    number.align(row.marginsRemoved(padding(type)), int(textAlignment(type)));
    number.keepInside({row.left(), row.top() + lineAir, widestSheet, row.height() - 2.0 * lineAir});
    return number.baseline();
}

/// None where the number is not in the middle of the row: texts stand at the bottom then.
std::optional<double> MvCalendariumRendererOneDayPerRow::textBaseline(const QRectF &row, const QDate &date) const
{
    const Qt::Alignment alignment = textAlignment(contentCellType(date, FEATURE_HOLIDAYS));
    return alignment.testFlag(Qt::AlignVCenter) ? std::optional(baseline(row, date)) : std::nullopt;
}

void MvCalendariumRendererOneDayPerRow::drawOnBaseline(QPainter &painter, const QRectF &cell,
                                                       const MvCalendarCellTypeConfig &config, const QString &text,
                                                       int flags, const QDate &date)
{
    const QColor color = fontColor(config, isEvenWeek(date));
    if (!isOpaqueColor(color))
        return;
    const MvCalendarCellType &type = config.inscriptionConfig();
    const QString seen = text.trimmed();
    const int blanks = MvTextPainter::advance(font(type), text) - MvTextPainter::advance(font(type), seen);
    const QRectF inside = cell.adjusted(0.0, lineAir, 0.0, -lineAir);
    MvCalendariumCellLine line(fitter(type), {inside.width() + blanks, inside.height()}, text);
    if (line.isCut())
        reportUnfitting(date, seen, cell);
    line.align(cell.marginsRemoved(padding(type)), flags == 0 ? int(textAlignment(type)) : flags);
    line.setBaseline(baseline(cell, date));
    line.keepInside(inside);
    line.draw(painter, color);
}

int MvCalendariumRendererOneDayPerRow::renderHeadline(QPainter &painter, const QRectF &rect, const QDate &date)
{
    if (!hasTopHeader())
        return 0;
    const double height = heightOfCell(rect, CALENDAR_CELL_TYPE_TOPLINE, date).first;
    const int columns = numberEmptyOfColumns();
    // as high as what this gives: its lower line is the upper one of the first row
    drawCellBackground(painter, {rect.x(), rect.y(), rect.width(), std::floor(height)}, topLine, true);
    renderHead(painter, columns, std::floor(height), rect);
    renderColumnLines(painter, rect, columns);
    return static_cast<int>(height);
}

void MvCalendariumRendererOneDayPerRow::renderHead(QPainter &painter, int columns, double height, const QRectF &rect)
{
    if (!hasTopHeader())
        return;
    const double width = widthOfOneColumn(rect, columns);
    QRectF cell(rect.x() + offsetOfLeftHeader(rect), rect.y() + headingHair, width, height - 2.0 * headingHair);
    const QStringList headers = headings();
    MvTextFitter fitter = this->fitter(CALENDAR_CELL_TYPE_TOPLINE);
    QSizeF room = cell.marginsRemoved(padding(CALENDAR_CELL_TYPE_TOPLINE)).size();
    room.rwidth() -= headingAir * fitter.font().pixelSize();
    for (const QString &header : headers)
        fitter = MvTextFitter(MvCalendariumCellLine(fitter, room, header).font(), fitter.floor(), MvHyphenator());
    for (int column = 0; column < headers.size(); ++column) {
        MvCalendariumCellLine line(fitter, room, headers.at(column));
        if (column >= columns || line.isCut())
            reportUnfitting(startDate(), headers.at(column), cell);
        reportMissingGlyphs(startDate(), {headers.at(column)}, line.font(), cell);
        line.align(cell, Qt::AlignHCenter | Qt::AlignVCenter);
        line.keepInside(cell);
        const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).listHead(column);
        line.draw(painter, fontColor(topLine, true));
        cell.translate(width, 0.0);
    }
}

void MvCalendariumRendererOneDayPerRow::renderColumnLines(QPainter &painter, const QRectF &rect, int columns)
{
    const MvCalendarBorderType sides = borderType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY);
    const double top = rect.y();
    const double bottom = rect.y() + rect.height() - 1.0;
    const auto drawLine = [&](double x) { painter.drawLine(QLineF(x, top, x, bottom)); };
    const double left = rect.x() + offsetOfLeftHeader(rect);
    const double width = widthOfOneColumn(rect, columns);
    painter.save();
    createBorderPen(painter);
    if (sides.hasAnyOf(CALENDAR_BORDER_RIGHT))
        drawLine(left - 1.0);
    for (int column = 0; column < columns; ++column) {
        const double x = left + column * width;
        if (sides.hasAnyOf(CALENDAR_BORDER_LEFT)) {
            drawLine(x + 1.0);
            drawLine(x);
        }
        if (sides.hasAnyOf(CALENDAR_BORDER_RIGHT))
            drawLine(x + width - 1.0);
    }
    painter.restore();
}

void MvCalendariumRendererOneDayPerRow::renderWeekday(QPainter &painter, const QDate &date, double y, double x,
                                                      const QRectF &rect, double width)
{
    const MvCalendarCellTypeConfig head = headCellTypeConfig(date);
    const QRectF cell(x, y, width, rowHeight(rect, date));
    const bool even = isEvenWeek(date);
    drawCellBackground(painter, cell, head, even);
    if (!shouldIPaintTheBackground(head, even)) // the row's own ground goes on beneath the name
        MvCalendariumCellPainter(*this, painter).drawGround(cell, contentCellTypeConfig(date), even);
    const QString name = dayNameFromDate(date, hasShortNames(rect));
    const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).listedHead(date);
    drawOnBaseline(painter, cell, head, name, Qt::AlignLeft | Qt::AlignVCenter, date);
}

void MvCalendariumRendererOneDayPerRow::renderColumn(QPainter &painter, const QRectF &rect, const QDate &date, double y,
                                                     double x, int columns)
{
    const MvCalendarCellTypeConfig content = contentCellTypeConfig(date);
    const bool even = isEvenWeek(date);
    const double width = (rect.x() + rect.width() - x) / columns;
    const double height = rowHeight(rect, date);
    MvCalendariumCellPainter cells(*this, painter);
    const QList<MvDayColumn> shown = columnsOf(date, columns, cells);
    for (int column = 0; column < columns; ++column) {
        const QRectF cell(x + column * width, y, width, height);
        const MvPaintMarking mark =
            MvMonthMarks(*this, painter, startDate()).listedTexts(date, column, shown.at(column).texts);
        drawCellBackground(painter, cell, content, even);
        if (column == 0 || !shown.at(column).texts.isEmpty() || !shown.at(column).bars.isEmpty())
            cells.drawColumn(cell, date, even, textBaseline(cell, date), shown.at(column), column == 0);
    }
}

/// An entry stands in each column that is headed by one of its groups; what has none stands in the first, beside the
/// number.
QList<MvDayColumn> MvCalendariumRendererOneDayPerRow::columnsOf(const QDate &date, int columns,
                                                                const MvCalendariumCellPainter &cells) const
{
    const MvDayColumn whole = cells.wholeDay(date);
    QList<MvDayColumn> shown(columns);
    const QStringList headers = headings().mid(0, columns);
    using Group = MvEventText::Group;
    /// With the group that heads the column; null in the first one for what has no column of its own.
    const auto columnsFor = [&headers](const QList<Group> &groups) {
        QList<std::pair<qsizetype, const Group *>> found;
        for (qsizetype column = 0; column < headers.size(); ++column) {
            const auto group = std::find_if(groups.cbegin(), groups.cend(), [&](const Group &one) {
                return one.name.compare(headers.at(column).trimmed(), Qt::CaseInsensitive) == 0;
            });
            if (group != groups.cend())
                found.append({column, &*group});
        }
        if (found.isEmpty())
            found.append({0, nullptr});
        return found;
    };
    QList<MvEventText> entries = day(date).entries;
    entries.removeIf([&](const MvEventText &entry) { return entry.start != date && !isRowStart(date); });
    const qsizetype official = whole.texts.size() - entries.size(); // which come first
    for (qsizetype i = 0; i < whole.texts.size(); ++i) {
        const QList<Group> groups = i < official ? QList<Group>() : entries.at(i - official).groups;
        for (const auto &[column, group] : columnsFor(groups)) {
            shown[column].texts.append(group ? group->text : whole.texts.at(i));
            if (!whole.colors.isEmpty())
                shown[column].colors.append(group ? group->color : whole.colors.at(i));
        }
    }
    for (const MvSpanBars::Bar &bar : whole.bars) {
        for (const auto &[column, group] : columnsFor(bar.groups)) {
            shown[column].bars.append(bar);
            if (group)
                shown[column].bars.last().color = group->color;
        }
    }
    return shown;
}

void MvCalendariumRendererOneDayPerRow::renderCalendarWeek(QPainter &painter, const QDate &date, const QRectF &rect,
                                                           double y, double weekTop)
{
    if (!isConfigured(calendar_render_week_of_year))
        return;
    const QRectF cell(rect.x(), weekTop, widthOfCalendarWeek(rect), y + rowHeight(rect, date) - weekTop);
    const MvCalendarCellType head = headCellTypeConfig(date).inscriptionConfig();
    const bool even = isEvenWeek(date);
    // the ground and lines of the weekday names beside it, the text in its own colour
    drawCellBackground(painter, cell, {CALENDAR_CELL_TYPE_WEEK_OF_YEAR, head}, even);

    const QRectF turned = MvAngle(270).rotateRect(cell);
    const double textHeight = minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false);
    const bool hasOneRow = date.day() == 1 || date.dayOfWeek() == Qt::Monday;
    if (hasOneRow || !(turned.width() > textHeight + weekTextAir))
        return;
    painter.save();
    painter.translate(cell.center());
    painter.rotate(-90.0);
    painter.translate(-cell.center());
    const MvCalendarCellTypeConfig week(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
    const QDate first = std::max(mondayOfWeekWithDay(date), startDate());
    const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).listedWeek(first);
    drawCellText(painter, turned, week, weekText(date, turned.width()), 0, even);
    painter.restore();
}

// where the strip is too short for the word, the number stands alone
QString MvCalendariumRendererOneDayPerRow::weekText(const QDate &date, double width) const
{
    const QString number = QString::number(date.weekNumber());
    const QString text = MvCalendarWordsRegistry::instance().patterns(language()).week.arg(weekShort(), number);
    const double inner = width - std::max(paddingDifference(CALENDAR_CELL_TYPE_WEEK_OF_YEAR).width(), 2.0 * weekMargin);
    return isTextToWide(static_cast<int>(inner), font(CALENDAR_CELL_TYPE_WEEK_OF_YEAR), text) ? number : text;
}

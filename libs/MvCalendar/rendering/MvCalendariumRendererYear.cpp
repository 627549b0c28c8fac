// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererYear.h"

#include "MvCalendar/MvDayNumberSize.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCalendar/MvYearGridPainter.h"
#include "MvCalendar/MvYearPlannerPainter.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvPaint/MvTextPainter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsPerPage = 12;
constexpr int usualColumns = 4;     // of small months
constexpr int smallestOfYear = 5;   // points
constexpr double mostOfTitle = 0.2; // of the page's height

constexpr int yearFlags = calendar_render_year_long | calendar_render_year_short;

constexpr double gapInPlanner = 0.25; // between number and weekday, of the size of type
constexpr double hair = 2.0;          // that ink keeps from the edge of its cell

const QString widestWeek = u"52"_s;
const QStringList wideNumbers{u"20"_s, u"22"_s, u"24"_s, u"26"_s, u"28"_s, u"30"_s};

QFont sized(QFont font, int pixelSize)
{
    if (font.letterSpacingType() == QFont::AbsoluteSpacing)
        font.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * pixelSize / font.pixelSize());
    font.setPixelSize(pixelSize);
    return font;
}

MvTextOutline outline(const QFont &font, const QString &text)
{
    return MvTextOutlineCache::instance().outline(font, text);
}

int monthsBetween(const QDate &from, const QDate &to)
{
    return (to.year() - from.year()) * 12 + to.month() - from.month();
}

} // namespace

MvCalendariumRendererYear::MvCalendariumRendererYear(const MvCalendariumAppearance &appearance)
    : MvCalendariumRenderer(appearance)
{
    setMinimumFontSize(smallestOfYear);
}

// ---- what the layout is

MvCalendariumDisplayAbilities MvCalendariumRendererYear::abilities() const
{
    const int names = isPlanner() ? ABILITY_DISPLAY_HOLIDAYS : ABILITY_NONE;
    return MvCalendariumDisplayAbilities(names | ABILITY_DISPLAY_VACATIONS | ABILITY_DISPLAY_HOLIDAYS_COLORS |
                                         ABILITY_DISPLAY_CALENDAR_WEEKS);
}

QSize MvCalendariumRendererYear::minimumSizeHint() const
{
    const QSizeF months = isPlanner() ? MvYearPlanner::minimumSize(neededPlannerSizes())
                                      : MvYearArrangement::minimumSize(usualColumns, neededGridSizes());
    const double title = planned(CALENDAR_CELL_TYPE_TITLE, calendar_render_title);
    return {static_cast<int>(std::ceil(months.width())), static_cast<int>(std::ceil(months.height() + title))};
}

bool MvCalendariumRendererYear::hasRoom(const QSizeF &room) const
{
    const QRectF months = monthsRect({QPointF(), room});
    const QSizeF cell = isPlanner() ? MvYearPlanner(months, firstMonth(), neededPlannerSizes()).dayRect(0, 1).size()
                                    : arrangement(months).sizes().day;
    const QSizeF number = MvDayNumberSize::asPrinted(*this);
    return number.width() <= cell.width() && number.height() <= cell.height();
}

bool MvCalendariumRendererYear::rendersMonthInformation() const
{
    return true;
}

QList<MvCalendarCellType> MvCalendariumRendererYear::usedCellTypes() const
{
    QList<MvCalendarCellType> types;
    if (isPlanner() || isConfigured(calendar_render_days_of_week))
        types += dayHeadCellTypes(isPlanner()); // the weekday of a holiday has a font of its own
    types += dayCellTypes();
    types << CALENDAR_CELL_TYPE_TITLE << CALENDAR_CELL_TYPE_MONTH << CALENDAR_CELL_TYPE_EMPTY;
    if (isConfigured(calendar_render_week_of_year))
        types << CALENDAR_CELL_TYPE_WEEK_OF_YEAR;
    if (isConfigured(calendar_render_week_of_year) && !isPlanner() && isConfigured(calendar_render_days_of_week))
        types << CALENDAR_CELL_TYPE_TOPLINE;
    return types;
}

QStringList MvCalendariumRendererYear::maxmimumWidthCalendarWeekText() const
{
    if (isPlanner() || !isConfigured(calendar_render_days_of_week))
        return MvCalendariumRenderer::maxmimumWidthCalendarWeekText();
    return MvCalendariumRenderer::maxmimumWidthCalendarWeekText() << calendarWeekHeadlineText();
}

bool MvCalendariumRendererYear::isConfigured(const MvCalendarRenderingInformation &info) const
{
    return isConfiguredOrWeeksAskedFor(info);
}

bool MvCalendariumRendererYear::isEvenWeek(const QDate &date) const
{
    return isEvenCalendarWeek(date);
}

bool MvCalendariumRendererYear::isPlanner() const
{
    return renderingInformation().hasAnyOf(calendar_render_days_of_week_only_in_front);
}

// ---- words

QDate MvCalendariumRendererYear::firstMonth() const
{
    const QDate start = startDateOfCalendar();
    // the page's month is not moved by the offset, the range is
    const int page = monthsBetween(start.addMonths(-appearance().offsetMonth()), startDate());
    const int last = monthsBetween(start, endDateOfCalendar());
    const int month = std::max(0, std::min(page, last));
    return start.addMonths(month - month % monthsPerPage);
}

QString MvCalendariumRendererYear::yearTitle() const
{
    const int first = firstMonth().year();
    const int last = firstMonth().addMonths(monthsPerPage - 1).year();
    MvCalendarRenderingInformation info = renderingInformation();
    if (!info.hasAnyOf(MvCalendarRenderingInformation(yearFlags)))
        info = calendar_render_year_long;
    QString years = calendarYear(first, info);
    if (first != last && isConfigured(calendar_render_all_years)) {
        const QString headers = appearance().columnHeaders();
        years += (headers.isEmpty() ? u"/"_s : headers) + calendarYear(last, info);
    } else if (first != last) {
        years += u"/%1"_s.arg(last % 100, 2, 10, QLatin1Char('0'));
    }
    return isConfigured(calendar_render_year_school) ? MvCalendariumWords(language()).schoolYear(years) : years;
}

QStringList MvCalendariumRendererYear::monthNames(const QSizeF &cell) const
{
    QStringList names;
    QStringList shortNames;
    QStringList numbers;
    bool allFit = true;
    for (int index = 0; index < monthsPerPage; ++index) {
        const QDate month = firstMonth().addMonths(index);
        const bool needsYear = !isConfigured(calendar_render_title) && !yearName(month.year()).isEmpty();
        names.append(needsYear ? calendarMonth(month) : monthName(month.month()));
        shortNames.append(monthShort(month.month()));
        numbers.append(QString::number(month.month()));
        allFit = allFit && fits(CALENDAR_CELL_TYPE_MONTH, cell.width(), names.constLast());
    }
    if (allFit)
        return names;
    const QFont font = fittingFont(CALENDAR_CELL_TYPE_MONTH, cell, shortNames);
    const bool doShortNamesFit = std::none_of(shortNames.cbegin(), shortNames.cend(), [&](const QString &name) {
        return line({QPointF(), cell}, CALENDAR_CELL_TYPE_MONTH, name, font).isEmpty();
    });
    return doShortNamesFit ? shortNames : numbers;
}

bool MvCalendariumRendererYear::fits(const MvCalendarCellType &type, double cellWidth, const QString &text) const
{
    return textWidth(type, {text}) <= cellWidth;
}

QFont MvCalendariumRendererYear::fittingFont(const MvCalendarCellType &type, const QSizeF &cell,
                                             const QStringList &texts) const
{
    const QFont largest = font(type);
    const QMarginsF paddings = padding(type);
    const double kept = textAlignment(type).testFlag(Qt::AlignLeft)    ? paddings.left()
                        : textAlignment(type).testFlag(Qt::AlignRight) ? paddings.right()
                                                                       : 0.0;
    const double width = cell.width() - std::max(0.0, kept) - 2.0 * hair;
    const double height = cell.height() - 2.0 * hair;
    double scale = 1.0;
    for (const QString &text : texts) {
        const MvTextOutline shape = outline(largest, text);
        scale =
            std::min({scale, width / std::max(1.0, shape.advance()), height / std::max(1.0, shape.bounds().height())});
    }
    const int smallest = static_cast<int>(std::ceil(smallestPixelSize(type)));
    const int size = std::max(smallest, static_cast<int>(scale * largest.pixelSize()));
    return size < largest.pixelSize() ? sized(largest, size) : largest;
}

MvCalendariumCellLine MvCalendariumRendererYear::line(const QRectF &cell, const MvCalendarCellType &type,
                                                      const QString &text, const QFont &font) const
{
    const QRectF room = cell.adjusted(0.0, hair, 0.0, -hair);
    const MvTextFitter unchanged(font, font.pixelSize(), MvHyphenator());
    MvCalendariumCellLine line(unchanged, room.size(), text);
    if (line.isCut())
        return {unchanged, QSizeF(), QString()};
    line.align(cell.marginsRemoved(padding(type)), int(textAlignment(type)));
    line.keepInside(room);
    return line;
}

// ---- sizes

double MvCalendariumRendererYear::planned(MvCalendarCellTypeEnum type, const MvCalendarRenderingInformation &info) const
{
    return isConfigured(info) ? minimumHeightOfCellType(type, false) : 0.0;
}

double MvCalendariumRendererYear::textWidth(const MvCalendarCellType &type, const QStringList &texts) const
{
    const QFont cellFont = font(type);
    int width = 0;
    for (const QString &text : texts)
        width = std::max(width, MvTextPainter::advance(cellFont, text));
    return width + paddingDifference(type).width();
}

double MvCalendariumRendererYear::lineHeight(const MvCalendarCellType &type) const
{
    return QFontMetricsF(font(type)).height() + paddingDifference(type).height();
}

double MvCalendariumRendererYear::gapBesideNumber() const
{
    const double wanted = gapInPlanner * font(CALENDAR_CELL_TYPE_WEEKDAY).pixelSize();
    const double present =
        padding(CALENDAR_CELL_TYPE_WEEKDAY).right() + padding(CALENDAR_CELL_TYPE_HEAD_WEEKDAY).left();
    return std::max(0.0, wanted - present);
}

QRectF MvCalendariumRendererYear::titleRect(const QRectF &rect) const
{
    const double height =
        std::min(planned(CALENDAR_CELL_TYPE_TITLE, calendar_render_title), mostOfTitle * rect.height());
    return {rect.topLeft(), QSizeF(rect.width(), height)};
}

QRectF MvCalendariumRendererYear::monthsRect(const QRectF &rect) const
{
    return rect.adjusted(0.0, titleRect(rect).height(), 0.0, 0.0);
}

MvSmallMonthGrid::Sizes MvCalendariumRendererYear::neededGridSizes() const
{
    MvSmallMonthGrid::Sizes needed;
    needed.nameHeight = minimumHeightOfCellType(CALENDAR_CELL_TYPE_MONTH, false);
    needed.headHeight = planned(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, calendar_render_days_of_week);
    if (isConfigured(calendar_render_week_of_year))
        needed.weekWidth = widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, true);
    needed.day = QSizeF(maxContentWidth(), minimumHeightOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false));
    needed.rows = 0;
    for (int month = 0; month < monthsPerPage; ++month)
        needed.rows = std::max(needed.rows, numberOfWeeks(firstMonth().addMonths(month)));
    return needed;
}

MvYearArrangement MvCalendariumRendererYear::arrangement(const QRectF &months) const
{
    const QSizeF number = MvDayNumberSize::atFloor(*this);
    const QFont week = sized(font(CALENDAR_CELL_TYPE_WEEK_OF_YEAR),
                             static_cast<int>(std::ceil(smallestPixelSize(CALENDAR_CELL_TYPE_WEEK_OF_YEAR))));
    const double weekWidth = outline(week, widestWeek).advance() + 2.0 * hair;
    const auto isReadable = [&](const MvYearArrangement &arrangement) {
        const MvSmallMonthGrid::Sizes &sizes = arrangement.sizes();
        return sizes.day.width() >= number.width() && sizes.day.height() >= number.height() &&
               (sizes.weekWidth <= 0.0 || sizes.weekWidth >= weekWidth);
    };
    const MvSmallMonthGrid::Sizes needed = neededGridSizes();
    MvSmallMonthGrid::Sizes withoutWeeks = needed;
    withoutWeeks.weekWidth = 0.0;
    for (const MvSmallMonthGrid::Sizes &sizes : {needed, withoutWeeks}) {
        const MvYearArrangement best = MvYearArrangement::leastStretched(months, sizes, isReadable);
        if (isReadable(best))
            return best;
    }
    return MvYearArrangement::leastStretched(months, withoutWeeks);
}

MvYearPlanner::Sizes MvCalendariumRendererYear::neededPlannerSizes() const
{
    MvYearPlanner::Sizes needed;
    needed.nameHeight = minimumHeightOfCellType(CALENDAR_CELL_TYPE_MONTH, false);
    for (const MvCalendarCellType &type : dayCellTypes()) {
        needed.numberWidth = std::max(needed.numberWidth, textWidth(type, wideNumbers));
        needed.lineHeight = std::max(needed.lineHeight, lineHeight(type));
        const QFont text = fontHolidays(type);
        const double height = QFontMetricsF(text).height();
        const double smallest = height * std::min(1.0, smallestHolidayPixelSize(type) / text.pixelSize());
        const double right = std::max(hair, padding(type).right());
        needed.textHeight = std::max(needed.textHeight, height);
        needed.leastTextWidth = std::max(needed.leastTextWidth, MvYearPlanner::leastTextWidth * smallest + right);
    }
    needed.numberWidth += gapBesideNumber();
    const QStringList names = weekdayNames(true) << saturdayName(true) << sundayName(true);
    for (const MvCalendarCellType &type : dayHeadCellTypes(true)) {
        needed.weekdayWidth = std::max(needed.weekdayWidth, textWidth(type, names));
        needed.lineHeight = std::max(needed.lineHeight, lineHeight(type));
    }
    if (isConfigured(calendar_render_week_of_year))
        needed.weekWidth = textWidth(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, maxmimumWidthCalendarWeekText());
    return needed;
}

/// The days of a month stand one below the other.
Qt::Edge MvCalendariumRendererYear::spanEdge(const QDate &) const
{
    return Qt::RightEdge;
}

// ---- painting

void MvCalendariumRendererYear::renderBase(QPainter &painter, const QRectF &rect)
{
    if (isConfigured(calendar_render_title))
        drawTitle(painter, titleRect(rect));
    if (isPlanner())
        MvYearPlannerPainter(*this, painter).paint(monthsRect(rect));
    else
        MvYearGridPainter(*this, painter).paint(monthsRect(rect));
}

void MvCalendariumRendererYear::drawTitle(QPainter &painter, const QRectF &title)
{
    const MvCalendarCellTypeConfig config(CALENDAR_CELL_TYPE_TITLE);
    drawCell(painter, title, config, {}, true, 0);
    const QRectF inner = title.marginsRemoved(padding(CALENDAR_CELL_TYPE_TITLE));
    const double width = inner.intersected(title).width();
    MvCalendariumCellLine line(fitter(CALENDAR_CELL_TYPE_TITLE), {width, title.height()}, yearTitle());
    if (line.isCut())
        reportMissing(yearTitle(), title);
    line.align(inner, int(textAlignment(CALENDAR_CELL_TYPE_TITLE)));
    line.keepInside(title);
    const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).title(yearTitle());
    if (isOpaqueColor(fontColor(config, true)))
        line.draw(painter, fontColor(config, true));
}

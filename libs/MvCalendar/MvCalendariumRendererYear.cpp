#include "MvCalendar/MvCalendariumRendererYear.h"

#include "MvCalendar/MvCalendariumTextPainter.h"
#include "MvCalendar/MvYearArrangement.h"
#include "MvCalendar/MvYearGridPainter.h"
#include "MvCalendar/MvYearPlannerPainter.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsPerPage = 12;
constexpr int usualColumns = 4;      // of small months
constexpr int smallestOfPlanner = 5; // points
constexpr double mostOfTitle = 0.2;  // of the page's height

constexpr int yearFlags = calendar_render_year_long | calendar_render_year_short;

const QStringList wideNumbers{u"20"_s, u"22"_s, u"24"_s, u"26"_s, u"28"_s, u"30"_s};

int monthsBetween(const QDate &from, const QDate &to)
{
    return (to.year() - from.year()) * 12 + to.month() - from.month();
}

} // namespace

MvCalendariumRendererYear::MvCalendariumRendererYear(const MvCalendariumAppearance &appearance)
    : MvCalendariumRenderer(appearance)
{
    if (isPlanner())
        setMinimumFontSize(smallestOfPlanner);
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

QStringList MvCalendariumRendererYear::monthNames(double cellWidth) const
{
    QStringList names;
    QStringList shortNames;
    bool allFit = true;
    for (int index = 0; index < monthsPerPage; ++index) {
        const QDate month = firstMonth().addMonths(index);
        const bool needsYear = !isConfigured(calendar_render_title) && !yearName(month.year()).isEmpty();
        names.append(needsYear ? calendarMonth(month) : monthName(month.month()));
        shortNames.append(fitted(CALENDAR_CELL_TYPE_MONTH, cellWidth, monthShort(month.month())));
        allFit = allFit && fits(CALENDAR_CELL_TYPE_MONTH, cellWidth, names.constLast());
    }
    return allFit ? names : shortNames;
}

bool MvCalendariumRendererYear::fits(const MvCalendarCellType &type, double cellWidth, const QString &text) const
{
    return textWidth(type, {text}) <= cellWidth;
}

QString MvCalendariumRendererYear::fitted(const MvCalendarCellType &type, double cellWidth, const QString &text) const
{
    const int width = static_cast<int>(cellWidth - paddingDifference(type).width());
    return MvCalendariumTextPainter::elided(std::max(0, width), font(type), text);
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
        width = std::max(width, MvCalendariumTextPainter::advance(cellFont, text));
    return width + paddingDifference(type).width();
}

double MvCalendariumRendererYear::lineHeight(const MvCalendarCellType &type) const
{
    return QFontMetricsF(font(type)).height() + paddingDifference(type).height();
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

MvYearPlanner::Sizes MvCalendariumRendererYear::neededPlannerSizes() const
{
    MvYearPlanner::Sizes needed;
    needed.nameHeight = minimumHeightOfCellType(CALENDAR_CELL_TYPE_MONTH, false);
    for (const MvCalendarCellType &type : dayCellTypes()) {
        needed.numberWidth = std::max(needed.numberWidth, textWidth(type, wideNumbers));
        needed.lineHeight = std::max(needed.lineHeight, lineHeight(type));
        needed.textHeight = std::max(needed.textHeight, QFontMetricsF(fontHolidays(type)).height());
    }
    const QStringList names = weekdayNames(true) << saturdayName(true) << sundayName(true);
    for (const MvCalendarCellType &type : dayHeadCellTypes(true)) {
        needed.weekdayWidth = std::max(needed.weekdayWidth, textWidth(type, names));
        needed.lineHeight = std::max(needed.lineHeight, lineHeight(type));
    }
    if (isConfigured(calendar_render_week_of_year))
        needed.weekWidth = textWidth(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, maxmimumWidthCalendarWeekText());
    return needed;
}

// ---- painting

void MvCalendariumRendererYear::renderBase(QPainter &painter, const QRectF &rect)
{
    if (isConfigured(calendar_render_title)) {
        const QRectF title = titleRect(rect);
        drawCell(painter, title, {CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_TITLE},
                 fitted(CALENDAR_CELL_TYPE_TITLE, title.width(), yearTitle()), true, 0);
    }
    if (isPlanner())
        MvYearPlannerPainter(*this, painter).paint(monthsRect(rect));
    else
        MvYearGridPainter(*this, painter).paint(monthsRect(rect));
}

#include "MvCalendar/MvCalendariumRendererOneRow.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int mostDays = 31;
}

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
    const double title = plannedHeight(CALENDAR_CELL_TYPE_TITLE, calendar_render_title);
    const double head = plannedHeight(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, calendar_render_days_of_week);
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

void MvCalendariumRendererOneRow::renderBase(QPainter &painter, const QRectF &rect)
{
    double y = rect.top();
    if (isConfigured(calendar_render_title)) {
        const double height = heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE);
        drawTitle(painter, {rect.left(), y, rect.width(), height});
        y += height;
    }
    renderDays(painter, rect, y);
}

void MvCalendariumRendererOneRow::renderDays(QPainter &painter, const QRectF &rect, double y)
{
    const QDate first = startDate();
    const double headHeight = heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY);
    const double dayHeight = heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY);
    double x = rect.left();
    for (int day = 0; day < first.daysInMonth(); ++day) {
        const QDate date = first.addDays(day);
        const MvCalendarCellTypeConfig head = headCellTypeConfig(date);
        const double width = widthOfCell(rect, head.inscriptionConfig(), date);
        if (isConfigured(calendar_render_days_of_week)) {
            drawFittingCell(painter, {x, y, width, headHeight}, head, stringFromDate(date, u"ddd"_s), isEvenWeek(date),
                            date);
        }
        drawDayNumberCell(painter, {x, y + headHeight, width, dayHeight}, date);
        x += width;
    }
}

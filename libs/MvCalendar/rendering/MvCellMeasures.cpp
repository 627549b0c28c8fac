// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCellMeasures.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCore/MvMath.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvPaint/MvTextPainter.h"

#include <QFontMetricsF>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString sampleDayNumber = u"22"_s; // the widest one

constexpr double topLineWidth = 20.0;
constexpr double borderAllowance = 1.0;

} // namespace

QSizeF MvCellMeasures::minimumSizeFont(const MvCalendarCellType &type, QPaintDevice *device, const QString &text) const
{
    if (text.isEmpty())
        return {0.0, 0.0};
    const QFont font = m_renderer.font(type);
    MvFontSupply::provide(font, text);
    const QFontMetricsF metrics = MvCalendariumRenderer::calculateFontMetrics(font, device);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

QSizeF MvCellMeasures::maximumSizeOfStrings(const MvCalendarCellType &type, const QStringList &texts) const
{
    const QFont cellFont = m_renderer.font(type);
    int width = 0;
    for (const QString &text : texts)
        width = std::max(width, MvTextPainter::advance(cellFont, text));
    return {MvMath::referencePixel2tenthMillimetre(width),
            MvMath::referencePixel2tenthMillimetre(m_renderer.fontMetrics(type).height())};
}

double MvCellMeasures::minimumHeightOfCellType(const MvCalendarCellType &type, bool rotated) const
{
    double height = 0.0;
    if (type == CALENDAR_CELL_TYPE_WEEK_OF_YEAR) {
        const QSizeF size = maximumSizeOfStrings(type, m_renderer.maxmimumWidthCalendarWeekText());
        height = rotated ? size.width() : size.height();
    } else {
        height = MvMath::referencePixel2tenthMillimetre(m_renderer.fontMetrics(type).height());
    }
    return height + m_renderer.paddingDifference(type).height() + borderAllowance;
}

double MvCellMeasures::contentWidthOfCellType(const MvCalendarCellType &type, bool shortNames) const
{
    const auto widthOf = [this, &type](const QStringList &texts) { return maximumSizeOfStrings(type, texts).width(); };
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
        return widthOf(m_renderer.weekdayNames(shortNames));
    case CALENDAR_CELL_TYPE_HEAD_SATURDAY:
        return widthOf({m_renderer.saturdayName(shortNames)});
    case CALENDAR_CELL_TYPE_HEAD_SUNDAY:
        return widthOf({m_renderer.sundayName(shortNames)});
    case CALENDAR_CELL_TYPE_WEEK_OF_YEAR:
        return widthOf(m_renderer.maxmimumWidthCalendarWeekText());
    case CALENDAR_CELL_TYPE_WEEKDAY:
    case CALENDAR_CELL_TYPE_SATURDAY:
    case CALENDAR_CELL_TYPE_SUNDAY:
    case CALENDAR_CELL_TYPE_HOLIDAY:
    case CALENDAR_CELL_TYPE_HEAD_HOLIDAY: // the special heads are measured like day numbers, not like day names
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
    case CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION:
        return widthOf({sampleDayNumber});
    case CALENDAR_CELL_TYPE_TOPLINE:
        return topLineWidth;
    default:
        return 0.0;
    }
}

double MvCellMeasures::widthOfCellType(const MvCalendarCellType &type, bool shortNames) const
{
    return contentWidthOfCellType(type, shortNames) + m_renderer.paddingDifference(type).width() + borderAllowance;
}

MvRealRange MvCellMeasures::widthRangeOfCellTypes(const MvCalendarCellType &types, bool shortNames) const
{
    MvRealRange range;
    const QList<MvCalendarCellType> singles = types.singleTypes();
    for (const MvCalendarCellType &single : singles) {
        const double width = widthOfCellType(single, shortNames);
        if (range == MvRealRange())
            range = {width, width};
        range.minimum = std::min(range.minimum, width);
        range.maximum = std::max(range.maximum, width);
    }
    return range;
}

double MvCellMeasures::maxHeadWidth() const
{
    return MvCalendariumRenderer::max3(widthOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false),
                                       widthOfCellType(CALENDAR_CELL_TYPE_HEAD_SATURDAY, false),
                                       widthOfCellType(CALENDAR_CELL_TYPE_HEAD_SUNDAY, false));
}

double MvCellMeasures::maxContentWidth() const
{
    return MvCalendariumRenderer::max3(widthOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false),
                                       widthOfCellType(CALENDAR_CELL_TYPE_SATURDAY, false),
                                       widthOfCellType(CALENDAR_CELL_TYPE_SUNDAY, false));
}

QSizeF MvCellMeasures::minimumSizeWeekdays(bool shortNames, QPaintDevice *device) const
{
    QSizeF size(0.0, 0.0);
    for (int day = 1; day <= 7; ++day) {
        const QSizeF daySize = minimumSizeFont(MvCalendariumRenderer::contentCellTypeWeekDay(day), device,
                                               m_renderer.dayName(day, shortNames));
        size = size.expandedTo(daySize);
    }
    return size;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererYearOnly.h"

#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvMonthMarks.h"
#include "MvCore/MvMath.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

MvCalendariumDisplayAbilities MvCalendariumRendererYearOnly::abilities() const
{
    return ABILITY_NONE;
}

QSize MvCalendariumRendererYearOnly::minimumSizeHint() const
{
    const QSizeF text = maximumSizeOfStrings(CALENDAR_CELL_TYPE_YEAR, {calendarYear(QDate())});
    return (text + paddingDifference(CALENDAR_CELL_TYPE_YEAR)).toSize();
}

bool MvCalendariumRendererYearOnly::rendersMonthInformation() const
{
    return false;
}

QList<MvCalendarCellType> MvCalendariumRendererYearOnly::usedCellTypes() const
{
    return {CALENDAR_CELL_TYPE_YEAR};
}

void MvCalendariumRendererYearOnly::renderBase(QPainter &painter, const QRectF &rect)
{
    const MvCalendarCellTypeConfig year(CALENDAR_CELL_TYPE_YEAR, CALENDAR_CELL_TYPE_YEAR);
    drawCell(painter, rect, year, {}, true, 0);
    const QColor color = fontColor(year, true);
    if (rect.isEmpty() || !isOpaqueColor(color))
        return;
    const QRectF inner = rect.marginsRemoved(padding(CALENDAR_CELL_TYPE_YEAR));
    const double width = inner.intersected(rect).width();
    const QString text = calendarYear(QDate());
    MvCalendariumCellLine line(fitter(CALENDAR_CELL_TYPE_YEAR), {width, rect.height()}, text);
    if (line.isCut())
        reportUnfitting(startDate(), text, rect);
    line.align(inner, int(textAlignment(CALENDAR_CELL_TYPE_YEAR)));
    line.keepInside(rect);
    const MvPaintMarking mark = MvMonthMarks(*this, painter, startDate()).title(text);
    line.draw(painter, color);
}

QString MvCalendariumRendererYearOnly::calendarYear(const QDate &date) const
{
    const MvCalendarRenderingInformation info = renderingInformation();
    const QDate shown = date.isValid() ? date : startDate();
    const int first = date.isValid() ? date.year() : startDateOfCalendar().year();
    const int last = date.isValid() ? date.year() : endDateOfCalendar().year();

    QStringList years;
    if (isConfigured(calendar_render_all_years)) {
        const QString month = showsMonth() ? calendarMonth(shown.month(), info) + u' ' : QString();
        for (int year = first; year <= last; ++year)
            years.append(month + calendarYear(year, info));
    } else {
        years.append(calendarYear(std::max(shown.year(), first), info));
    }
    const QString text = years.join(yearSeparator());
    return isConfigured(calendar_render_year_school) ? MvCalendariumWords(language()).schoolYear(text) : text;
}

bool MvCalendariumRendererYearOnly::showsMonth() const
{
    return isConfigured(MvCalendarRenderingInformation(calendar_render_month_number | calendar_render_month_short |
                                                       calendar_render_month_long));
}

// beside months a bare slash would bind the year to the next month's name
QString MvCalendariumRendererYearOnly::yearSeparator() const
{
    const QString own = appearance().columnHeaders();
    if (!own.isEmpty())
        return own;
    return showsMonth() ? u" / "_s : u"/"_s;
}

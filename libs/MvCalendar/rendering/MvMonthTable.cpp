// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvMonthTable.h"

#include "MvCalendar/MvCalendariumDay.h"
#include "MvCalendar/MvCalendariumRenderer.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;

MvMonthTable::Day dayOf(const MvCalendariumRenderer &renderer, const QDate &date)
{
    const MvCalendariumDay day = renderer.day(date);
    return {date, day.texts, renderer.backgroundColor(day.content, day.isEven),
            renderer.fontColor(day.content, day.isEven)};
}

} // namespace

MvMonthTable MvMonthTable::of(const MvCalendariumRenderer &renderer, const QDate &date)
{
    MvMonthTable table;
    if (!date.isValid())
        return table;
    table.month = QDate(date.year(), date.month(), 1);
    table.name = renderer.monthLong(date.month()) + u' ' + QString::number(date.year());
    const bool hasWeeks = renderer.isConfigured(calendar_render_week_of_year);
    if (hasWeeks)
        table.weekHead = renderer.calendarWeekHeadlineText();
    for (int day = 1; day <= daysPerWeek; ++day)
        table.weekdays.append({renderer.dayName(day, false), renderer.dayName(day, true)});
    for (QDate monday = MvCalendariumRenderer::mondayOfWeekWithDay(table.month); monday < table.month.addMonths(1);
         monday = monday.addDays(daysPerWeek)) {
        Week week;
        if (hasWeeks)
            week.name = renderer.calendarWeekText(monday);
        for (int day = 0; day < daysPerWeek; ++day) {
            const QDate shown = monday.addDays(day);
            week.days.append(shown.month() == table.month.month() ? dayOf(renderer, shown) : Day());
        }
        table.weeks.append(week);
    }
    return table;
}

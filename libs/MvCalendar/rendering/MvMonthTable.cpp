// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvMonthTable.h"

#include "MvCalendar/MvCalendariumDay.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvPaint/MvPrintableText.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;

QStringList vacationsOf(const MvCalendariumRenderer &renderer, const QDate &date)
{
    MvCalendariumHolidayConfig config = renderer.calendariumContent().holidayConfig();
    config.setFeature(FEATURE_VACATION_NAMES_DAILY, true);
    const MvCalendariumHolidayList holidays =
        MvCalendariumHolidayCache::instance().days({date.year(), config}).value(date);
    QStringList names;
    for (const MvCalendariumHoliday &holiday : holidays) {
        if (holiday.type() == HOLIDAY_TYPE_SCHOOL_VACATION)
            names.append(holiday.description());
    }
    return MvPrintableText::onOneLineEach(names);
}

MvMonthTable::Day dayOf(const MvCalendariumRenderer &renderer, const QDate &date)
{
    const MvCalendariumDay day = renderer.day(date);
    MvMonthTable::Day shown{date,
                            day.texts,
                            renderer.backgroundColor(day.content, day.isEven),
                            renderer.fontColor(day.content, day.isEven),
                            {}};
    for (const MvEventText &entry : day.entries) {
        if (entry.start != date && !shown.texts.contains(entry.text))
            shown.texts.append(entry.text);
    }
    if (renderer.appearance().showHolidays() && !renderer.renderingInformation().hasAnyOf(calendar_render_no_texts)) {
        shown.running = vacationsOf(renderer, date);
        shown.running.removeIf([&](const QString &name) { return shown.texts.contains(name); });
    }
    return shown;
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

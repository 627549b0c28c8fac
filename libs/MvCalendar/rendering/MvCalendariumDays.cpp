// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumDays.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvRenderingProbe.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProductBase/MvCalendariumContentKey.h"

#include <algorithm>

namespace {

bool hasType(const MvCalendariumHolidayList &holidays, MvCalendariumHolidayTypeEnum type)
{
    return std::any_of(holidays.cbegin(), holidays.cend(),
                       [type](const MvCalendariumHoliday &holiday) { return holiday.type() == type; });
}

/// Each name once: a day may be a holiday and free of school by the same name.
QStringList namesOf(const MvCalendariumHolidayList &holidays)
{
    QStringList names;
    for (const MvCalendariumHoliday &holiday : holidays) {
        if (!holiday.description().isEmpty() && !names.contains(holiday.description()))
            names.append(holiday.description());
    }
    return names;
}

} // namespace

void MvCalendariumDays::endPass()
{
    m_isInPass = false;
    m_years.clear();
    m_days.clear();
    m_bars.clear();
}

// ---- the record of a day

MvCalendariumDay MvCalendariumDays::day(const QDate &date) const
{
    return m_isInPass ? known(date) : look(date);
}

const MvCalendariumDay &MvCalendariumDays::known(const QDate &date) const
{
    const auto found = m_days.find(date.toJulianDay());
    return found != m_days.end() ? found->second : m_days.emplace(date.toJulianDay(), look(date)).first->second;
}

MvCalendariumDay MvCalendariumDays::look(const QDate &date) const
{
    const MvCalendariumContentConfig &content = m_renderer.calendariumContent();
    const bool hasHolidays = content.hasFeatures(FEATURE_HOLIDAYS) || content.hasFeatures(FEATURE_HOLIDAY_COLORS) ||
                             content.hasFeatures(FEATURE_SCHOOL_VACATIONS);
    const MvCalendariumHolidayList holidays = hasHolidays ? lookUp(date) : MvCalendariumHolidayList();
    if (MvRenderingProbe *probe = m_renderer.sources().probe)
        ++probe->days;
    MvCalendariumDay day{
        date,
        holidays,
        {headTypeOf(date, holidays, FEATURE_HOLIDAYS), headTypeOf(date, holidays, FEATURE_HOLIDAY_COLORS)},
        {contentTypeOf(date, holidays, FEATURE_HOLIDAYS), contentTypeOf(date, holidays, FEATURE_HOLIDAY_COLORS)},
        m_renderer.isEvenWeek(date),
        {},
        {},
        {}};
    addTexts(day);
    return day;
}

MvCalendariumHolidayList MvCalendariumDays::holidays(const QDate &date) const
{
    return m_isInPass ? known(date).holidays : lookUp(date);
}

MvCalendariumHolidayList MvCalendariumDays::lookUp(const QDate &date, Vacations vacations) const
{
    if (!date.isValid())
        return {};
    if (!m_isInPass)
        return lookUpYear(date.year(), vacations).value(date);
    const std::pair key(date.year(), vacations);
    const auto known = m_years.find(key);
    const Year &days =
        known != m_years.end() ? known->second : m_years.emplace(key, lookUpYear(date.year(), vacations)).first->second;
    return days.value(date);
}

MvCalendariumDays::Year MvCalendariumDays::lookUpYear(int year, Vacations vacations) const
{
    if (MvRenderingProbe *probe = m_renderer.sources().probe)
        ++probe->holidayLookUps;
    MvCalendariumHolidayConfig config = m_renderer.calendariumContent().holidayConfig();
    if (vacations == Daily)
        config.setFeature(FEATURE_VACATION_NAMES_DAILY, true);
    return MvCalendariumHolidayCache::instance().days({year, config});
}

// ---- types

QSet<MvCalendariumHolidayType> MvCalendariumDays::tags(const QDate &date) const
{
    QSet<MvCalendariumHolidayType> types;
    const MvCalendariumHolidayList found = holidays(date);
    for (const MvCalendariumHoliday &holiday : found)
        types.insert(holiday.type());
    return types;
}

MvCalendarCellType MvCalendariumDays::headType(const QDate &date, const MvCalendariumFeatures &features) const
{
    return headTypeOf(date, holidays(date), features);
}

MvCalendarCellType MvCalendariumDays::contentType(const QDate &date, const MvCalendariumFeatures &features) const
{
    return contentTypeOf(date, holidays(date), features);
}

MvCalendarCellType MvCalendariumDays::headTypeOf(const QDate &date, const MvCalendariumHolidayList &holidays,
                                                 const MvCalendariumFeatures &features) const
{
    if (isHoliday(holidays, features))
        return CALENDAR_CELL_TYPE_HEAD_HOLIDAY;
    return hasVacationColors(date, holidays) ? MvCalendarCellType(CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION)
                                             : MvCalendariumRenderer::headCellTypeWeekDay(date.dayOfWeek());
}

MvCalendarCellType MvCalendariumDays::contentTypeOf(const QDate &date, const MvCalendariumHolidayList &holidays,
                                                    const MvCalendariumFeatures &features) const
{
    if (isHoliday(holidays, features))
        return CALENDAR_CELL_TYPE_HOLIDAY;
    return hasVacationColors(date, holidays) ? MvCalendarCellType(CALENDAR_CELL_TYPE_SCHOOL_VACATION)
                                             : MvCalendariumRenderer::contentCellTypeWeekDay(date.dayOfWeek());
}

bool MvCalendariumDays::isHoliday(const MvCalendariumHolidayList &holidays, const MvCalendariumFeatures &features) const
{
    return m_renderer.calendariumContent().hasFeatures(features) && hasType(holidays, HOLIDAY_TYPE_PUBLIC);
}

// a vacation never recolours a weekend
bool MvCalendariumDays::hasVacationColors(const QDate &date, const MvCalendariumHolidayList &holidays) const
{
    return date.dayOfWeek() <= 5 && m_renderer.calendariumContent().hasFeatures(FEATURE_SCHOOL_VACATIONS) &&
           hasType(holidays, HOLIDAY_TYPE_SCHOOL_VACATION);
}

MvCalendarCellTypeConfig MvCalendariumDays::headTypes(const QDate &date) const
{
    if (m_isInPass)
        return known(date).head;
    const MvCalendariumHolidayList found = lookUp(date);
    return {headTypeOf(date, found, FEATURE_HOLIDAYS), headTypeOf(date, found, FEATURE_HOLIDAY_COLORS)};
}

MvCalendarCellTypeConfig MvCalendariumDays::contentTypes(const QDate &date) const
{
    if (m_isInPass)
        return known(date).content;
    const MvCalendariumHolidayList found = lookUp(date);
    return {contentTypeOf(date, found, FEATURE_HOLIDAYS), contentTypeOf(date, found, FEATURE_HOLIDAY_COLORS)};
}

// ---- texts

QStringList MvCalendariumDays::descriptions(const QDate &date) const
{
    return namesOf(holidays(date));
}

QStringList MvCalendariumDays::officialTexts(const QDate &date) const
{
    return officialTextsOf(date, holidays(date));
}

QStringList MvCalendariumDays::personalTexts(const QDate &date) const
{
    QStringList texts;
    const QList<MvEventText> found = entries(date);
    for (const MvEventText &entry : found)
        texts.append(entry.text);
    return texts;
}

QList<MvEventText> MvCalendariumDays::entries(const QDate &date) const
{
    QList<MvEventText> shown;
    const QList<MvEventText> found = m_renderer.sources().entriesOrDefault().texts(m_renderer.contentFor(date));
    for (const MvEventText &entry : found) {
        const QStringList line = MvPrintableText::onOneLineEach({entry.text});
        if (line.isEmpty())
            continue;
        shown.append(entry);
        shown.last().text = line.constFirst();
        for (MvEventText::Group &group : shown.last().groups)
            group.text = MvPrintableText::onOneLineEach({group.text}).value(0, line.constFirst());
    }
    return shown;
}

MvSpanBars::Bars MvCalendariumDays::bars(const QDate &date) const
{
    const QList<MvEventText> found = m_isInPass ? known(date).entries : day(date).entries;
    if (std::none_of(found.cbegin(), found.cend(), [](const MvEventText &entry) { return entry.isSpan(); }))
        return {};
    return m_bars.barsOf(date, QDate(date.year(), date.month(), 1),
                         [this](const QDate &other) { return m_isInPass ? known(other).entries : day(other).entries; });
}

QStringList MvCalendariumDays::texts(const QDate &date) const
{
    return m_isInPass ? known(date).texts : look(date).texts;
}

QStringList MvCalendariumDays::officialTextsOf(const QDate &date, const MvCalendariumHolidayList &holidays) const
{
    if (!m_renderer.appearance().showHolidays())
        return {};
    return MvPrintableText::onOneLineEach(isWithRunningVacations(date) ? descriptionsWithRunningVacations(date)
                                                                       : namesOf(holidays));
}

void MvCalendariumDays::addTexts(MvCalendariumDay &day) const
{
    if (m_renderer.renderingInformation().hasAnyOf(calendar_render_no_texts))
        return;
    const MvCalendariumContentConfig &content = m_renderer.calendariumContent();
    if (content.hasFeatures(FEATURE_HOLIDAYS))
        day.texts = officialTextsOf(day.date, day.holidays);
    if (!content.hasFeatures(FEATURE_ENTRIES))
        return;
    day.entries = entries(day.date);
    QList<QColor> colors(day.texts.size());
    for (const MvEventText &entry : std::as_const(day.entries)) {
        if (entry.start != day.date && !m_renderer.isRowStart(day.date))
            continue;
        day.texts.append(entry.text);
        colors.append(entry.color);
    }
    if (std::any_of(colors.cbegin(), colors.cend(), [](const QColor &color) { return color.isValid(); }))
        day.colors = colors;
}

// a vacation that began on the page before would be a month of colour without a word
bool MvCalendariumDays::isWithRunningVacations(const QDate &date) const
{
    return date == m_renderer.startDate() && m_renderer.appearance().type().traits().namesRunningVacations &&
           m_renderer.calendariumContent().hasFeatures(FEATURE_SCHOOL_VACATIONS);
}

QStringList MvCalendariumDays::descriptionsWithRunningVacations(const QDate &date) const
{
    return namesOf(lookUp(date, Daily));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryMove.h"

#include "MvCalendar/MvRecurrenceDates.h"

#include <QUuid>

#include <algorithm>

namespace {

using Rule = MvRecurrenceRule;

constexpr int daysPerWeek = 7;
constexpr int monthsPerYear = 12;

int monthNumber(const QDate &date)
{
    return date.year() * monthsPerYear + date.month() - 1;
}

/// The first of the month that lies so many months after the day's.
QDate monthAfter(const QDate &day, int months)
{
    const int number = monthNumber(day) + months;
    return {number / monthsPerYear, number % monthsPerYear + 1, 1};
}

/// The nth weekday of the month, from its end where nth is negative; invalid when there is none.
QDate weekdayOf(const QDate &firstOfMonth, const Rule::WeekDay &weekDay)
{
    QDate day;
    if (weekDay.nth > 0) {
        const int ahead = (weekDay.day - firstOfMonth.dayOfWeek() + daysPerWeek) % daysPerWeek;
        day = firstOfMonth.addDays(ahead + (weekDay.nth - 1) * daysPerWeek);
    } else {
        const QDate last(firstOfMonth.year(), firstOfMonth.month(), firstOfMonth.daysInMonth());
        const int back = (last.dayOfWeek() - weekDay.day + daysPerWeek) % daysPerWeek;
        day = last.addDays(-back + (weekDay.nth + 1) * daysPerWeek);
    }
    return day.month() == firstOfMonth.month() ? day : QDate();
}

/// The first day so many years later: the same date, as far from the end of the month where the rule counts from
/// there, or with a rule of weekdays the one of these next to it.
QDate yearsLater(const QDate &date, int years, const Rule &rule)
{
    const QDate same = date.addYears(years);
    if (rule.monthDays.size() == 1 && rule.monthDays.first() < 0)
        return {same.year(), same.month(), same.daysInMonth() + 1 + rule.monthDays.first()};
    if (rule.frequency != Rule::Weekly && rule.weekDays.isEmpty())
        return same;
    const int nth = rule.weekDays.size() == 1 ? rule.weekDays.constFirst().nth : 0;
    const bool isOfMonth = rule.frequency == Rule::Monthly || !rule.months.isEmpty();
    if (nth != 0 && isOfMonth) {
        const QDate day = weekdayOf({same.year(), same.month(), 1}, {nth, date.dayOfWeek()});
        if (day.isValid())
            return day;
    }
    constexpr int half = daysPerWeek / 2;
    return same.addDays((date.dayOfWeek() - same.dayOfWeek() + half + daysPerWeek) % daysPerWeek - half);
}

/// How the new day is counted in its month, as the old one was.
Rule::WeekDay weekdayAt(const QDate &day, int oldNth)
{
    constexpr int weeksOfEveryMonth = 4; // a fifth one is the last
    const int nth = (day.day() - 1) / daysPerWeek + 1;
    const bool isLast = day.day() + daysPerWeek > day.daysInMonth();
    return {isLast && (oldNth < 0 || nth > weeksOfEveryMonth) ? -1 : nth, day.dayOfWeek()};
}

bool hasRareParts(const Rule &rule)
{
    return !rule.weeks.isEmpty() || !rule.yearDays.isEmpty() || !rule.positions.isEmpty();
}

bool hasDaysOfMonth(const Rule &rule)
{
    return !rule.weekDays.isEmpty() || !rule.monthDays.isEmpty();
}

void sort(QList<Rule::WeekDay> &weekDays)
{
    std::sort(weekDays.begin(), weekDays.end(), [](const auto &a, const auto &b) { return a.day < b.day; });
    weekDays.erase(std::unique(weekDays.begin(), weekDays.end()), weekDays.end());
}

} // namespace

MvEntryMove::MvEntryMove(const MvCalendarEvent &event, const QDate &from, const QDate &to)
    : m_event(event)
    , m_start(event.startAt(from))
{
    if (!m_start.isValid() || !to.isValid())
        return;
    m_newStart = m_start.addDays(from.daysTo(to));
    m_moved = moved();
}

MvEntryMove::MvEntryMove(const MvCalendarEvent &event, const QDate &start, const QDate &newStart, Reach reach)
    : m_event(event)
    , m_start(start)
    , m_newStart(newStart)
    , m_reach(reach)
{
    m_moved = moved();
}

bool MvEntryMove::doesRepeat(const MvCalendarEvent &event)
{
    const MvEventRepetition &repetition = event.repetition();
    return event.storedRecurrent() || !repetition.rule.isNone() || !repetition.extraDates.isEmpty();
}

MvEntryMove::Days MvEntryMove::daysOf(const MvCalendarEvent &event)
{
    return {event.dateTime().date(), event.repetition()};
}

// ---- all times

std::optional<MvEntryMove::Days> MvEntryMove::moved() const
{
    Days days = daysOf(m_event);
    const Rule before = days.repetition.rule;
    Rule &rule = days.repetition.rule;
    const bool isExtra = m_reach == Reach::SameWeekday && m_event.repetition().extraDates.contains(m_start);
    if (isExtra || !moveRule(rule))
        return {};
    days.date = mapped(days.date, rule);
    if (!days.date.isValid())
        return {};
    rule.until = before.until.isValid() ? movedEnd(before, rule) : QDate();
    for (QList<QDate> *dates : {&days.repetition.exceptions, &days.repetition.extraDates}) {
        for (QDate &date : *dates)
            date = mapped(date, rule);
    }
    days.repetition.normalize();
    if (days.date.month() != 2 || days.date.day() != 29)
        days.repetition.leapDay = MvEventRepetition::LeapDay::LeapYearsOnly; // says nothing any more
    return days;
}

/// Makes the moved day that of the rule; false where that cannot be said.
bool MvEntryMove::moveRule(Rule &rule) const
{
    switch (rule.frequency) {
    case Rule::None:
        return true;
    case Rule::Daily:
        return rule.isPlain();
    case Rule::Weekly:
        if (hasRareParts(rule) || !rule.months.isEmpty())
            return false;
        moveWeekdays(rule);
        return true;
    case Rule::Monthly:
        return rule.months.isEmpty() && moveDayOfMonth(rule);
    case Rule::Yearly:
        if (rule.months.size() > 1 || (rule.months.isEmpty() && hasDaysOfMonth(rule)) || !moveDayOfMonth(rule))
            return false;
        for (int &month : rule.months)
            month = m_newStart.month();
        return true;
    }
    return false;
}

void MvEntryMove::moveWeekdays(Rule &rule) const
{
    const int turned = int(m_start.daysTo(m_newStart) % daysPerWeek) + daysPerWeek;
    for (Rule::WeekDay &weekDay : rule.weekDays) {
        if (m_reach == Reach::AllWeekdays || weekDay.day == m_start.dayOfWeek())
            weekDay.day = (weekDay.day - 1 + turned) % daysPerWeek + 1;
    }
    sort(rule.weekDays);
}

/// A day by its number or as a weekday of its month; false where there are several.
bool MvEntryMove::moveDayOfMonth(Rule &rule) const
{
    if (hasRareParts(rule) || rule.weekDays.size() + rule.monthDays.size() > 1 ||
        (rule.weekDays.size() == 1 && rule.weekDays.first().nth == 0))
        return false;
    for (Rule::WeekDay &weekDay : rule.weekDays)
        weekDay = weekdayAt(m_newStart, weekDay.nth);
    for (int &day : rule.monthDays) // counted from the end as it was
        day = day < 0 ? m_newStart.day() - m_newStart.daysInMonth() - 1 : m_newStart.day();
    return true;
}

/// Where a day of the series goes when it goes as the moved one does; invalid where there is no such day.
QDate MvEntryMove::mapped(const QDate &day, const Rule &rule) const
{
    const qint64 way = m_start.daysTo(m_newStart);
    if (rule.frequency == Rule::Monthly || (rule.frequency == Rule::Yearly && hasDaysOfMonth(rule)))
        return dayOfMonth(monthAfter(day, monthNumber(m_newStart) - monthNumber(m_start)), rule);
    const bool isYearly = rule.frequency == Rule::Yearly || (rule.isNone() && m_event.storedRecurrent());
    if (isYearly) {
        const bool hasYear = day.year() != MvCalendarEvent::unknownYear;
        const int year = hasYear ? day.year() + m_newStart.year() - m_start.year() : day.year();
        return {year, m_newStart.month(), m_newStart.day()};
    }
    const bool isAnotherWeekday = m_reach == Reach::SameWeekday && rule.weekDays.size() > 1 &&
                                  day.dayOfWeek() != m_start.dayOfWeek(); // of several days a week one is moved
    return isAnotherWeekday ? day : day.addDays(way);
}

QDate MvEntryMove::dayOfMonth(const QDate &firstOfMonth, const Rule &rule) const
{
    if (!rule.weekDays.isEmpty())
        return weekdayOf(firstOfMonth, rule.weekDays.first());
    const int day = rule.monthDays.value(0, m_newStart.day());
    return {firstOfMonth.year(), firstOfMonth.month(), day > 0 ? day : firstOfMonth.daysInMonth() + 1 + day};
}

/// The last time goes as all of them do.
QDate MvEntryMove::movedEnd(const Rule &before, const Rule &after) const
{
    const QDate first = m_event.dateTime().date();
    for (int year = before.until.year(); year >= first.year(); --year) {
        const QList<QDate> starts = MvRecurrenceDates::inYear(before, first, year);
        if (!starts.isEmpty()) {
            const QDate last = mapped(starts.last(), after);
            return std::max(last, before.until.addDays(m_start.daysTo(m_newStart)));
        }
    }
    return before.until;
}

// ---- changes

MvCalendarEvent MvEntryMove::placed(const MvCalendarEvent &event, const Days &days) const
{
    MvCalendarEvent result = event;
    const QDate end = event.endDate();
    result.setDateTime(MvCalendarEvent::startOf(days.date));
    result.setEndDate(end.isValid() ? days.date.addDays(event.dateTime().date().daysTo(end)) : QDate());
    result.setRepetition(days.repetition);
    return result;
}

/// The occurrence as an entry of its own, at its new day.
MvCalendarEvent MvEntryMove::single(const MvCalendarEvent &event) const
{
    MvCalendarEvent result(event.description(), MvCalendarEvent::startOf(m_newStart), false, {}, QUuid::createUuid(),
                           {});
    result.relocateFoto(event.foto()); // the same one, not a copy
    result.setTime(event.time());
    result.setGroups(event.groups());
    if (event.dayCount() > 1)
        result.setEndDate(m_newStart.addDays(event.dayCount() - 1));
    return result;
}

QList<MvEntryChange> MvEntryMove::allTimes(const MvCalendarEvent &changed) const
{
    if (isNone() || !m_moved)
        return {};
    return {{m_event, placed(changed, *m_moved)}};
}

QList<MvEntryChange> MvEntryMove::thisTime(const MvCalendarEvent &changed) const
{
    if (isNone())
        return {};
    if (!doesRepeat(m_event))
        return allTimes(changed);
    QList<MvEntryChange> changes = withoutTimeAt(m_event, m_start);
    changes.append({{}, single(changed)});
    return changes;
}

QList<MvEntryChange> MvEntryMove::copy() const
{
    if (isNone())
        return {};
    if (!m_moved)
        return {{{}, single(m_event)}};
    const MvCalendarEvent moved = placed(m_event, *m_moved);
    MvCalendarEvent result(moved.description(), moved.dateTime(), moved.storedRecurrent(), {}, QUuid::createUuid(), {});
    result.relocateFoto(moved.foto());
    result.setRepetition(moved.repetition());
    result.setEndDate(moved.endDate());
    result.setTime(moved.time());
    result.setGroups(moved.groups());
    return {{{}, result}};
}

/// Where the rule stays as it is.
MvEntryMove::Days MvEntryMove::movedDates() const
{
    Days days = daysOf(m_event);
    const int years = m_newStart.year() - m_start.year();
    const bool isByYears = m_start.addYears(years) == m_newStart; // leap days have no part in that
    const auto move = [&](QDate &date) {
        if (date.isValid())
            date = isByYears ? date.addYears(years) : date.addDays(m_start.daysTo(m_newStart));
    };
    days.date = m_newStart;
    move(days.repetition.rule.until);
    std::for_each(days.repetition.exceptions.begin(), days.repetition.exceptions.end(), move);
    std::for_each(days.repetition.extraDates.begin(), days.repetition.extraDates.end(), move);
    return days;
}

MvCalendarEvent MvEntryMove::shifted(const MvCalendarEvent &event, int years, int days)
{
    const QDate date = event.dateTime().date();
    QDate day = date.addDays(days);
    if (event.hasYear())
        day = yearsLater(date, years, event.repetition().rule).addDays(days);
    else
        day = QDate(date.year(), day.month(), day.day());
    if (!day.isValid() || day == date)
        return event;
    const MvEntryMove move(event, date, day, Reach::AllWeekdays);
    const bool isRuled = event.storedRecurrent() || !event.repetition().rule.isNone();
    return move.placed(event, isRuled ? move.m_moved.value_or(move.movedDates()) : move.movedDates());
}

QList<MvEntryChange> MvEntryMove::withoutTimeAt(const MvCalendarEvent &event, const QDate &day)
{
    const QDate start = event.startAt(day);
    if (!start.isValid())
        return {};
    MvCalendarEvent result = event;
    MvEventRepetition repetition = event.repetition();
    repetition.exceptions.append(start);
    repetition.extraDates.removeAll(start);
    repetition.normalize();
    result.setRepetition(repetition);
    return {{event, result}};
}

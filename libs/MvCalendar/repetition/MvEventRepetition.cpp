// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventRepetition.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr int daysPerWeek = 7;

/// A rule says the days of its first day in so many words, or is about others as well: then they stay.
MvRecurrenceRule movedRule(MvRecurrenceRule rule, const QDate &from, const QDate &to)
{
    const int turned = int(from.daysTo(to) % daysPerWeek) + daysPerWeek;
    for (MvRecurrenceRule::WeekDay &weekDay : rule.weekDays) {
        const bool isFromStart = rule.weekDays.size() == 1 && weekDay.nth > 0 && weekDay.day == from.dayOfWeek();
        if (isFromStart && rule.frequency == MvRecurrenceRule::Monthly)
            weekDay.nth = (to.day() - 1) / daysPerWeek + 1;
        if (rule.frequency == MvRecurrenceRule::Weekly || isFromStart || weekDay.nth < 0)
            weekDay.day = (weekDay.day - 1 + turned) % daysPerWeek + 1;
    }
    if (rule.monthDays == QList<int>{from.day()})
        rule.monthDays = {to.day()};
    if (rule.months == QList<int>{from.month()})
        rule.months = {to.month()};
    return rule;
}

} // namespace

MvEventRepetition MvEventRepetition::moved(const QDate &from, const QDate &to) const
{
    MvEventRepetition result = *this;
    const bool isByYears = from.addYears(to.year() - from.year()) == to; // leap days have no part in that
    const auto move = [&](QDate &date) {
        if (date.isValid())
            date = isByYears ? date.addYears(to.year() - from.year()) : date.addDays(from.daysTo(to));
    };
    result.rule = isByYears && rule.frequency != MvRecurrenceRule::Weekly ? rule : movedRule(rule, from, to);
    move(result.rule.until);
    std::for_each(result.exceptions.begin(), result.exceptions.end(), move);
    std::for_each(result.extraDates.begin(), result.extraDates.end(), move);
    result.normalize();
    return result;
}

void MvEventRepetition::normalize()
{
    for (QList<QDate> *dates : {&exceptions, &extraDates}) {
        dates->removeIf([](const QDate &date) { return !date.isValid(); });
        std::sort(dates->begin(), dates->end());
        dates->erase(std::unique(dates->begin(), dates->end()), dates->end());
    }
}

QDate MvEventRepetition::yearlyDay(const QDate &date, int year) const
{
    const QDate same(year, date.month(), date.day());
    if (same.isValid() || leapDay == LeapDay::LeapYearsOnly)
        return same;
    return leapDay == LeapDay::February28 ? QDate(year, 2, 28) : QDate(year, 3, 1);
}

QDate MvEventRepetition::yearsLater(const QDate &date, int years) const
{
    const QDate same = date.addYears(years);
    if (rule.frequency != MvRecurrenceRule::Weekly && rule.weekDays.isEmpty())
        return same;
    const int nth = rule.weekDays.size() == 1 ? rule.weekDays.constFirst().nth : 0;
    const bool isOfMonth = rule.frequency == MvRecurrenceRule::Monthly || !rule.months.isEmpty();
    if (nth != 0 && isOfMonth) {
        const QDate edge(same.year(), same.month(), nth > 0 ? 1 : same.daysInMonth());
        const int ahead = date.dayOfWeek() - edge.dayOfWeek();
        const QDate day = edge.addDays(nth > 0 ? (ahead + daysPerWeek) % daysPerWeek + (nth - 1) * daysPerWeek
                                               : (ahead - daysPerWeek) % daysPerWeek + (nth + 1) * daysPerWeek);
        if (day.month() == same.month())
            return day;
    }
    constexpr int half = daysPerWeek / 2;
    return same.addDays((date.dayOfWeek() - same.dayOfWeek() + half + daysPerWeek) % daysPerWeek - half);
}

size_t qHash(const MvEventRepetition &repetition, size_t seed)
{
    return qHashMulti(seed, repetition.rule, qHashRange(repetition.exceptions.cbegin(), repetition.exceptions.cend()),
                      qHashRange(repetition.extraDates.cbegin(), repetition.extraDates.cend()),
                      int(repetition.leapDay));
}

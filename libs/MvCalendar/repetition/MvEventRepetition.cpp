// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventRepetition.h"

#include <QHash>

#include <algorithm>

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

size_t qHash(const MvEventRepetition &repetition, size_t seed)
{
    return qHashMulti(seed, repetition.rule, qHashRange(repetition.exceptions.cbegin(), repetition.exceptions.cend()),
                      qHashRange(repetition.extraDates.cbegin(), repetition.extraDates.cend()),
                      int(repetition.leapDay));
}

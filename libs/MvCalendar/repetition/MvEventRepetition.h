// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvRecurrenceRule.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QList>

/// How an entry repeats, beyond its flag: by a rule, with exceptions and dates of its own.
///
/// A default-constructed one adds nothing: the flag of the entry says whether it is once or every year, and one of
/// 29 February is there in leap years only.
struct MVCALENDAR_EXPORT MvEventRepetition
{
    /// Where an entry of 29 February is in a year without that day.
    enum class LeapDay { LeapYearsOnly, February28, March1 };

    MvRecurrenceRule rule;   ///< none: the entry's flag counts
    QList<QDate> exceptions; ///< first days on which it is not; ascending, each once
    QList<QDate> extraDates; ///< first days besides those of the rule; ascending, each once
    LeapDay leapDay = LeapDay::LeapYearsOnly;

    bool isDefault() const { return *this == MvEventRepetition(); }
    /// Brings the dates into their order; invalid ones go.
    void normalize();
    /// The day on which a date of every year is in this year: itself, by the leap day's rule, or none.
    QDate yearlyDay(const QDate &date, int year) const;

    bool operator==(const MvEventRepetition &) const = default;
};

MVCALENDAR_EXPORT size_t qHash(const MvEventRepetition &repetition, size_t seed = 0);

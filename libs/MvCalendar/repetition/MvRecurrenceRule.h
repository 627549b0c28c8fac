// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>

struct MvRecurrenceRuleReading;

/// How a date repeats: a rule of RFC 5545 ("FREQ=WEEKLY;INTERVAL=2;BYDAY=TH") for whole days.
///
/// A value that says what is meant; MvRecurrenceDates says on which days it falls. Only what can be evaluated without
/// doubt becomes a rule: parse() refuses the rest with a reason.
class MVCALENDAR_EXPORT MvRecurrenceRule
{
    Q_DECLARE_TR_FUNCTIONS(MvRecurrenceRule)

public:
    enum Frequency { None, Daily, Weekly, Monthly, Yearly };

    /// A weekday, of a month or year the nth one; from its end where nth is negative, each where it is 0.
    struct WeekDay
    {
        int nth = 0;
        int day = 1; // 1 is Monday
        bool operator==(const WeekDay &) const = default;
    };

    static constexpr int mostInterval = 1000;

    Frequency frequency = None;
    int interval = 1;
    int count = 0; // how often; 0: for ever, or until
    QDate until;   // the last possible day; invalid: for ever, or count
    QList<int> months;
    QList<int> weeks; // of the year
    QList<int> yearDays;
    QList<int> monthDays;
    QList<WeekDay> weekDays;
    QList<int> positions; // of the days that the rest names in each period
    int weekStart = 1;

    bool isNone() const { return frequency == None; }
    /// A period follows the other and nothing else is said: "every n years".
    bool isPlain() const;

    /// Reads a rule, with "RRULE:" before it or without, in any case of letters. Hours, minutes and seconds are dropped
    /// where they make no difference to days. Says in words what cannot be read or evaluated.
    static MvRecurrenceRuleReading parse(const QString &text);
    /// The rule in its shortest form, always in the same order; empty for none.
    QString text() const;
    /// In words, in the program's language: "alle 2 Wochen am Donnerstag, bis 31.12.2027". Rules that people rarely
    /// mean are given as they are.
    QString describe() const;

    bool operator==(const MvRecurrenceRule &) const = default;
};

struct MvRecurrenceRuleReading : MvOutcome
{
    MvRecurrenceRule rule;
};

MVCALENDAR_EXPORT size_t qHash(const MvRecurrenceRule &rule, size_t seed = 0);

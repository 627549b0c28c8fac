// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QString>

/// A date as a person writes it: "24.12.1950", "24.12.50", "24. Dez. 1950", "December 24, 1950", "1950-12-24",
/// "24121950", "24.12.".
///
/// Numbers between dots or commas are day, month and year everywhere, as this program shows dates. Otherwise, as in
/// "05/03/1962" or "05031962", the locale's own order holds, and only where its months come first and a number can be
/// no month, the other one. Names of months and days are understood in German, English and the locale's language, as
/// far as they are unmistakable ("Dez", "Sept."); the name of a day is not compared with the date. A year of two digits
/// is the one that is at most shortYearsAhead years ahead: most dates are birthdays.
class MVCORE_EXPORT MvTypedDate
{
    Q_DECLARE_TR_FUNCTIONS(MvTypedDate)

public:
    enum class Fault {
        None,
        Empty,
        Unreadable,   // no date, or one without day or month
        NoSuchDay,    // "31.04.1950"
        TooEarly,     // before earliestYear
        TooLate,      // after latestDate()
        ReservedYear, // unknownYear, which stands for no year
    };

    /// Stands for the year of a birthday whose year nobody knows; a leap year, so that 29 February can be one.
    static constexpr int unknownYear = 1604;
    static constexpr int earliestYear = 1583; // the first whole one of the calendar in use
    static constexpr int mostYearsAhead = 120;
    static constexpr int shortYearsAhead = 2;

    /// A text without a year gets `yearWhenMissing`.
    MvTypedDate(const QString &text, const QLocale &locale, const QDate &today, int yearWhenMissing);

    bool isValid() const { return m_fault == Fault::None; }
    /// Invalid when there is a fault.
    QDate date() const { return isValid() ? m_date : QDate(); }
    /// Whether the text itself has a year.
    bool hasYear() const { return m_hasYear; }
    Fault fault() const { return m_fault; }
    /// What is wrong with the text, in one sentence that quotes it, and how a date may look; empty for a date.
    QString error() const;

    static QDate latestDate(const QDate &today) { return today.addYears(mostYearsAhead); }

private:
    QString example() const;

    QString m_text;
    QLocale m_locale;
    QDate m_today;
    QDate m_date;
    int m_year; // the typed one, or the one in its place
    bool m_hasYear = false;
    Fault m_fault = Fault::Unreadable;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarRenderingInformation.h"
#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvLocale.h"

#include <QDate>
#include <QStringList>

class MvCalendariumAppearance;

/// The words of a calendarium in one language: days, months, years, weeks.
class MVCALENDAR_EXPORT MvCalendariumWords
{
public:
    /// `program`: the language of what the page's own does not decide; where it is invalid, that of the application.
    explicit MvCalendariumWords(const MvLocale &language, const MvLocale &program = {})
        : m_language(language)
        , m_program(program)
    {}

    /// Day 1 is Monday, 7 Sunday.
    QString dayName(int day, bool shortName) const;
    /// Monday to Friday.
    QStringList weekdayNames(bool shortNames) const;
    /// The short word for "week".
    QString weekShort() const;
    QString monthShort(int month) const;
    QString monthLong(int month) const;
    /// The school year that is written with these years, "Schuljahr 2026/27".
    QString schoolYear(const QString &years) const;
    /// The headings of columns as a page prints them: those that the layout suggested in this language, others as they
    /// are.
    QStringList columnHeadings(const MvCalendariumAppearance &appearance) const;

    /// The formats "ddd", "dddd", "MMM" and "MMMM" in the language of the page; every other format, also one that
    /// contains these, in that of the program.
    QString fromDate(const QDate &date, const QString &format) const;

    /// The month as its number, its short or its long name, by the month flags; long when there are none.
    QString month(int month, const MvCalendarRenderingInformation &information) const;
    /// The year in full when the long flag stands alone, otherwise as an apostrophe and two digits.
    static QString calendarYear(int year, const MvCalendarRenderingInformation &information);
    /// The year in full (long flag), as an apostrophe and two digits (short flag), or nothing (none or both).
    static QString yearName(int year, const MvCalendarRenderingInformation &information);

private:
    MvLocale m_language;
    MvLocale m_program;
};

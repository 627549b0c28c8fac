// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QColor>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

class MvCalendariumRenderer;

/// A month as it is read, not seen: rows of weeks from Monday to Sunday, each day with the texts and the colours that
/// the renderer gives it. What every layout says, whatever its form; the source of tables in HTML.
class MVCALENDAR_EXPORT MvMonthTable
{
public:
    struct Day
    {
        QDate date;        // invalid beyond the month
        QStringList texts; // those of entries that last several days on each of them: a table has no bars
        QColor ground;     // invalid or transparent: the page is seen through
        QColor ink;
        QStringList running; // vacations that began before, which the page shows by their ground alone
    };
    struct Week
    {
        QString name; // as its cell says, "18" or "KW 18"; empty without calendar weeks
        QList<Day> days;
    };
    struct Weekday
    {
        QString name;
        QString shortName;
    };

    QDate month;      // its first day
    QString name;     // "Mai 2027", in the language of the page
    QString weekHead; // above the weeks' names; empty without calendar weeks
    QList<Weekday> weekdays;
    QList<Week> weeks;

    /// The month that the date lies in, with what the renderer has been set to show.
    static MvMonthTable of(const MvCalendariumRenderer &renderer, const QDate &date);
};

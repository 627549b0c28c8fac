// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QHash>
#include <QList>

/// A list of entries that answers at once which of them fall on a day. A page asks that for every cell, several times.
///
/// Entries of one day in the year are found by month and day. Those that repeat in other ways or span days are
/// evaluated once for each year that somebody asks for. GUI thread.
class MVCALENDAR_EXPORT MvCalendarEventIndex
{
public:
    MvCalendarEventIndex() = default;
    explicit MvCalendarEventIndex(const MvCalendarEventList &events);

    const MvCalendarEventList &events() const { return m_events; }

    /// Calls the function with each entry of the day, and the first day of its occurrence, in list order, until it
    /// returns true.
    template <class Function>
    void visitOccurrences(const QDate &day, Function function) const
    {
        static const Occurrences none;
        const auto found = m_byDay.constFind(keyOf(day));
        const QList<qsizetype> *plain = found == m_byDay.cend() ? nullptr : &*found;
        const Occurrences &others = m_others.isEmpty() ? none : othersOf(day);
        auto other = others.cbegin();
        const auto visitOthers = [&](qsizetype before) {
            for (; other != others.cend() && other->position < before; ++other) {
                if (function(m_events.at(other->position), other->start))
                    return true;
            }
            return false;
        };
        for (qsizetype i = 0; plain && i < plain->size(); ++i) {
            const qsizetype position = plain->at(i);
            if (visitOthers(position))
                return;
            const MvCalendarEvent &event = m_events.at(position);
            if (event.isAtDay(day) && function(event, day))
                return;
        }
        visitOthers(m_events.size());
    }

    /// The same without the first day.
    template <class Function>
    void visit(const QDate &day, Function function) const
    {
        visitOccurrences(day, [&function](const MvCalendarEvent &event, const QDate &) { return function(event); });
    }

private:
    struct Occurrence
    {
        qsizetype position;
        QDate start;
    };
    using Occurrences = QList<Occurrence>; // of a day, by position

    static int keyOf(const QDate &day) { return day.month() * 32 + day.day(); }
    const Occurrences &othersOf(const QDate &day) const;
    QHash<qint64, Occurrences> evaluated(int year) const;

    MvCalendarEventList m_events;
    QHash<int, QList<qsizetype>> m_byDay;                   // positions in m_events by month and day
    QList<qsizetype> m_others;                              // those that are not found so
    mutable QHash<int, QHash<qint64, Occurrences>> m_years; // of the others: by year, then by Julian day
};

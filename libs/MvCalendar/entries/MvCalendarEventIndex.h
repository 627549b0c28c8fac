// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QHash>
#include <QList>

/// A list of entries that answers at once which of them fall on a day. A page asks that for every cell, several times.
class MVCALENDAR_EXPORT MvCalendarEventIndex
{
public:
    MvCalendarEventIndex() = default;
    explicit MvCalendarEventIndex(const MvCalendarEventList &events);

    const MvCalendarEventList &events() const { return m_events; }

    /// Calls the function with each entry of the day, in list order, until it returns true.
    template <class Function>
    void visit(const QDate &day, Function function) const
    {
        const auto found = m_byDay.constFind(keyOf(day));
        if (found == m_byDay.cend())
            return;
        for (const qsizetype position : *found) {
            const MvCalendarEvent &event = m_events.at(position);
            if (event.isAtDay(day) && function(event))
                return;
        }
    }

private:
    static int keyOf(const QDate &day) { return day.month() * 32 + day.day(); }

    MvCalendarEventList m_events;
    QHash<int, QList<qsizetype>> m_byDay; // positions in m_events by month and day
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventIndex.h"

MvCalendarEventIndex::MvCalendarEventIndex(const MvCalendarEventList &events)
    : m_events(events)
{
    for (qsizetype position = 0; position < m_events.size(); ++position)
        m_byDay[keyOf(m_events.at(position).dateTime().date())].append(position);
}

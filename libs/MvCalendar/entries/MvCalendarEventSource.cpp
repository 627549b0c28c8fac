// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventSource.h"

#include "MvProductBase/MvCalendariumContentKey.h"

MvCalendarEventSource::~MvCalendarEventSource() = default;

QList<MvEventText> MvCalendarEventSource::texts(const MvCalendariumContentKey &key) const
{
    QList<MvEventText> texts;
    const MvCalendarEventList found = events(key);
    for (const MvCalendarEvent &event : found) {
        const QDate start = event.isByDayOfYear() ? key.date() : event.startAt(key.date());
        texts.append(MvEventText::of(event, start, found.groups(), key.config().entryDisplay()));
    }
    return texts;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventWorkList.h"

#include <iterator>

namespace {

/// Entries name copies of photos in a folder of their own, once they are stored.
bool isCopyOfFoto(const MvCalendarEvent &copy, const MvCalendarEvent &event)
{
    return copy.storedRecurrent() == event.storedRecurrent() && copy.hasSameExtras(event) &&
           (copy.foto() == event.foto() ||
            (copy.foto().isValid() && event.foto().isValid() && copy.imagePath().path() != event.imagePath().path()));
}

} // namespace

MvCalendarEventWorkList::MvCalendarEventWorkList(const MvCalendarEventList &events)
    : m_groups(events.groups())
{
    m_alike.reserve(size_t(events.size()));
    m_byUuid.reserve(size_t(events.size()));
    for (const MvCalendarEvent &event : events)
        insertBefore(m_entries.end(), event);
}

MvCalendarEventWorkList::~MvCalendarEventWorkList() = default;

MvCalendarEventList MvCalendarEventWorkList::events() const
{
    MvCalendarEventList events;
    events.reserve(qsizetype(m_entries.size()));
    for (const Entry &entry : m_entries)
        events.append(entry.event);
    events.setGroups(m_groups);
    return events;
}

MvCalendarEventContent MvCalendarEventWorkList::keyOf(const MvCalendarEvent &event)
{
    return {event, MvCalendarEventContent::Name | MvCalendarEventContent::Date};
}

// ---- changing

MvCalendarEventWorkList::Position MvCalendarEventWorkList::insertBefore(Position position, const MvCalendarEvent &event)
{
    const Position added = m_entries.insert(position, {event, {}, {}});
    Bucket &alike = m_alike[keyOf(event)];
    added->amongAlike = alike.insert(alike.end(), added);
    Bucket &ofUuid = m_byUuid[event.uuid()];
    added->amongUuid = ofUuid.insert(ofUuid.end(), added);
    return added;
}

void MvCalendarEventWorkList::remove(Position position)
{
    const auto alike = m_alike.find(keyOf(position->event));
    alike->second.erase(position->amongAlike);
    if (alike->second.empty())
        m_alike.erase(alike);
    const auto ofUuid = m_byUuid.find(position->event.uuid());
    ofUuid->second.erase(position->amongUuid);
    if (ofUuid->second.empty())
        m_byUuid.erase(ofUuid);
    m_entries.erase(position);
}

bool MvCalendarEventWorkList::change(const MvCalendarEvent &before, const MvCalendarEvent &after)
{
    const Position position = before.isValid() ? findEqual(before) : m_entries.end();
    if (position == m_entries.end() && !after.isValid())
        return false;
    if (after.isValid())
        insertBefore(position, after);
    if (position != m_entries.end())
        remove(position);
    return true;
}

void MvCalendarEventWorkList::insert(const MvCalendarEvent &event, const Place &place)
{
    Position position = place.next.isValid() ? findVery(place.next) : m_entries.end();
    if (position == m_entries.end() && place.previous.isValid()) {
        position = findVery(place.previous);
        if (position != m_entries.end())
            ++position;
    }
    insertBefore(position, event);
}

// ---- finding

MvCalendarEventWorkList::Position MvCalendarEventWorkList::findEqual(const MvCalendarEvent &event)
{
    Position equal = m_entries.end();
    const auto alike = m_alike.find(keyOf(event));
    if (alike == m_alike.end())
        return equal;
    for (const Position &position : alike->second) {
        if (!(position->event == event))
            continue;
        if (position->event.uuid() == event.uuid())
            return position;
        if (equal == m_entries.end())
            equal = position;
    }
    return equal;
}

MvCalendarEventWorkList::Position MvCalendarEventWorkList::findVery(const MvCalendarEvent &event)
{
    const Position equal = findEqual(event);
    if (equal != m_entries.end())
        return equal;
    const auto ofUuid = event.uuid().isNull() ? m_byUuid.end() : m_byUuid.find(event.uuid());
    if (ofUuid == m_byUuid.end())
        return m_entries.end();
    if (const auto alike = m_alike.find(keyOf(event)); alike != m_alike.end()) {
        for (const Position &position : alike->second) {
            if (position->event.uuid() == event.uuid() && isCopyOfFoto(position->event, event))
                return position;
        }
    }
    return ofUuid->second.size() == 1 ? ofUuid->second.front() : m_entries.end();
}

MvCalendarEvent MvCalendarEventWorkList::present(const MvCalendarEvent &event)
{
    const Position position = findVery(event);
    return position == m_entries.end() ? MvCalendarEvent() : position->event;
}

MvCalendarEventWorkList::Place MvCalendarEventWorkList::placeOf(const MvCalendarEvent &event)
{
    const Position position = findVery(event);
    Place place;
    if (position == m_entries.end())
        return place;
    if (position != m_entries.begin())
        place.previous = std::prev(position)->event;
    if (std::next(position) != m_entries.end())
        place.next = std::next(position)->event;
    return place;
}

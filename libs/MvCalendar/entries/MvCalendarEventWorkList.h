// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventContent.h"
#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QUuid>

#include <list>
#include <unordered_map>

/// A list of entries under many changes: finding, adding and removing an entry takes the same short time, however many
/// there are.
class MVCALENDAR_EXPORT MvCalendarEventWorkList
{
public:
    /// Where an entry stands: between these two, as far as there are such.
    struct Place
    {
        MvCalendarEvent previous;
        MvCalendarEvent next;
    };

    explicit MvCalendarEventWorkList(const MvCalendarEventList &events);
    ~MvCalendarEventWorkList();
    MvCalendarEventWorkList(const MvCalendarEventWorkList &) = delete;
    MvCalendarEventWorkList &operator=(const MvCalendarEventWorkList &) = delete;

    MvCalendarEventList events() const;

    /// Replaces an equal entry, of several the one with the uuid; an invalid `before`, or one that is not there, adds
    /// `after` at the end, an invalid `after` removes. Says whether anything changed.
    bool change(const MvCalendarEvent &before, const MvCalendarEvent &after);
    /// Adds an entry at a place; at the end when both neighbours are gone.
    void insert(const MvCalendarEvent &event, const Place &place);

    /// The very entry as it stands in the list: an equal one, else the one that differs by a photo that was copied
    /// since, else, whatever became of it, the only one with its uuid. Invalid when there is none.
    MvCalendarEvent present(const MvCalendarEvent &event);
    /// Where the very entry stands; nowhere when it is not there.
    Place placeOf(const MvCalendarEvent &event);

private:
    struct Entry;
    using Entries = std::list<Entry>;
    using Position = Entries::iterator;
    using Bucket = std::list<Position>;
    struct Entry
    {
        MvCalendarEvent event;
        Bucket::iterator amongAlike;
        Bucket::iterator amongUuid;
    };
    struct Hash
    {
        size_t operator()(const MvCalendarEventContent &content) const { return qHash(content); }
        size_t operator()(const QUuid &uuid) const { return qHash(uuid); }
    };

    static MvCalendarEventContent keyOf(const MvCalendarEvent &event);
    Position findEqual(const MvCalendarEvent &event);
    Position findVery(const MvCalendarEvent &event);
    Position insertBefore(Position position, const MvCalendarEvent &event);
    void remove(Position position);

    Entries m_entries;
    MvEventGroupList m_groups;
    std::unordered_map<MvCalendarEventContent, Bucket, Hash> m_alike; // by name and date
    std::unordered_map<QUuid, Bucket, Hash> m_byUuid;
};

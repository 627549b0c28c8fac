// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventIndex.h"
#include "MvCalendar/MvCalendarEventWorkList.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvModelBase/MvProjectIdentifier.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <memory>

/// The lists of entries in memory: one per document, one of them active. Knows nothing of files and tells nobody.
///
/// Each list is kept by day, for pages, and one that is being changed also by entry, for edits. Either form is made
/// from the other when it is asked for.
class MVCALENDAR_EXPORT MvCalendarEventLists
{
public:
    /// An empty list for the document, which is the active one.
    explicit MvCalendarEventLists(const MvProjectIdentifier &active);
    ~MvCalendarEventLists();

    MvProjectIdentifier active() const { return m_active; }
    /// Makes the document's list, empty if there is none yet, the active one.
    void setActive(const MvProjectIdentifier &project);

    bool contains(const MvProjectIdentifier &project) const { return m_lists.contains(project); }
    /// Null for a document without a list; valid until a list changes.
    const MvCalendarEventIndex *index(const MvProjectIdentifier &project) const;
    MvCalendarEventList events(const MvProjectIdentifier &project) const;
    MvCalendarEventList activeEvents() const { return events(m_active); }
    /// Replaces a document's list.
    void store(const MvProjectIdentifier &project, const MvCalendarEventList &events);
    /// Removes a document's list; not the active one.
    void remove(const MvProjectIdentifier &project);

    // of a document's list, as MvCalendarEventWorkList does it
    bool change(const MvProjectIdentifier &project, const MvCalendarEvent &before, const MvCalendarEvent &after);
    void insert(const MvProjectIdentifier &project, const MvCalendarEvent &event,
                const MvCalendarEventWorkList::Place &place);
    MvCalendarEvent present(const MvProjectIdentifier &project, const MvCalendarEvent &event) const;
    MvCalendarEventWorkList::Place placeOf(const MvProjectIdentifier &project, const MvCalendarEvent &event) const;

    /// The names of the files of all photos, of all lists.
    QSet<QString> fotoNames() const;

private:
    struct Work;

    Work &work(const MvProjectIdentifier &project) const;
    void finishWork(const MvProjectIdentifier &project) const;
    void finishAllWork() const;

    MvProjectIdentifier m_active;
    // two forms of the same lists; only change(), insert(), store() and remove() change what they say
    mutable QHash<MvProjectIdentifier, MvCalendarEventIndex> m_lists;
    mutable QHash<MvProjectIdentifier, std::shared_ptr<Work>> m_works; // of lists that are being changed
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvUndoCommandEventList.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include <QMultiHash>

MvUndoCommandEventList::MvUndoCommandEventList(const QString &text, const MvCalendarEventList &added,
                                               MvSession &session)
    : MvUndoCommand(text)
    , m_entries(session.entries())
    , m_added(added)
{
    setObsolete(added.isEmpty());
}

void MvUndoCommandEventList::doCoreAction()
{
    const MvCalendarEventList before = m_entries.activeEventList();
    const MvCalendarEventList added = m_entries.onlyNewEvents(before, m_added);
    m_entries.setEvents(m_entries.mergeLists(before, added, true));
    m_added.clear();
    for (const MvCalendarEvent &event : added) {
        const MvCalendarEvent present = m_entries.presentEvent(event); // its photo may have been copied
        m_added.append(present.isValid() ? present : event);
    }
}

void MvUndoCommandEventList::undoCore()
{
    QMultiHash<QUuid, MvCalendarEvent> added; // several may share a uuid
    for (const MvCalendarEvent &event : m_added)
        added.insert(event.uuid(), event);
    MvCalendarEventList rest;
    for (const MvCalendarEvent &event : m_entries.activeEventList()) {
        if (!added.contains(event.uuid(), event))
            rest.append(event);
    }
    m_entries.setEvents(rest);
}

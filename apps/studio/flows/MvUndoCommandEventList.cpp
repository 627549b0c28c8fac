// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvUndoCommandEventList.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include <QMultiHash>

MvUndoCommandEventList::MvUndoCommandEventList(const QString &text, const MvCalendarEventList &added)
    : MvUndoCommand(text)
    , m_added(added)
{
    setObsolete(added.isEmpty());
}

void MvUndoCommandEventList::doCoreAction()
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    const MvCalendarEventList before = registry.activeEventList();
    const MvCalendarEventList added = registry.onlyNewEvents(before, m_added);
    registry.setEvents(registry.mergeLists(before, added, true));
    m_added.clear();
    for (const MvCalendarEvent &event : added) {
        const MvCalendarEvent present = registry.presentEvent(event); // its photo may have been copied
        m_added.append(present.isValid() ? present : event);
    }
}

void MvUndoCommandEventList::undoCore()
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    QMultiHash<QUuid, MvCalendarEvent> added; // several may share a uuid
    for (const MvCalendarEvent &event : m_added)
        added.insert(event.uuid(), event);
    MvCalendarEventList rest;
    for (const MvCalendarEvent &event : registry.activeEventList()) {
        if (!added.contains(event.uuid(), event))
            rest.append(event);
    }
    registry.setEvents(rest);
}

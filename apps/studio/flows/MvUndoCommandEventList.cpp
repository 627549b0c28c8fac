// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvUndoCommandEventList.h"

#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventRegistry.h"

#include <QMultiHash>

using List = MvCalendarEventRegistry::List;

namespace {

MvCalendarEventList eventsOf(const MvCalendarEventRegistry &entries, List list)
{
    return list == List::Own ? entries.ownEvents() : entries.activeEventList();
}

void setEvents(MvCalendarEventRegistry &entries, List list, const MvCalendarEventList &events)
{
    list == List::Own ? entries.setOwnEvents(events) : entries.setEvents(events);
}

/// Adds those that the list does not have; gives them as they are in the list.
MvCalendarEventList add(MvCalendarEventRegistry &entries, List list, const MvCalendarEventList &wanted)
{
    const MvCalendarEventList before = eventsOf(entries, list);
    MvCalendarEventList added = entries.onlyNewEvents(before, wanted);
    if (added.isEmpty())
        return {};
    setEvents(entries, list, entries.mergeLists(before, added, true));
    for (MvCalendarEvent &event : added) {
        const MvCalendarEvent present = entries.presentEvent(event, list); // its photo may have been copied
        if (present.isValid())
            event = present;
    }
    return added;
}

/// The events become what they were in the list: saving a calendar moves their photos.
void remove(MvCalendarEventRegistry &entries, List list, MvCalendarEventList &events)
{
    if (events.isEmpty())
        return;
    QMultiHash<QUuid, MvCalendarEvent> removed; // several may share a uuid
    for (MvCalendarEvent &event : events) {
        const MvFoto foto = entries.presentEvent(event, list).foto();
        if (MvCalendarEventMerge::isSameFoto(event.foto(), foto))
            event.relocateFoto(foto);
        removed.insert(event.uuid(), event);
    }
    MvCalendarEventList rest = eventsOf(entries, list);
    rest.removeIf([&removed](const MvCalendarEvent &event) { return removed.contains(event.uuid(), event); });
    setEvents(entries, list, rest);
}

} // namespace

MvUndoCommandEventList::MvUndoCommandEventList(const QString &text, const MvCalendarEventList &added,
                                               MvSession &session)
    : MvUndoCommand(text)
    , m_entries(session.entries())
    , m_added(added)
{
    if (m_entries.doChangesReachOwn())
        m_addedToOwn = added;
    setObsolete(added.isEmpty());
}

void MvUndoCommandEventList::doCoreAction()
{
    m_added = add(m_entries, List::Active, m_added);
    m_addedToOwn = add(m_entries, List::Own, m_addedToOwn);
}

void MvUndoCommandEventList::undoCore()
{
    remove(m_entries, List::Own, m_addedToOwn);
    remove(m_entries, List::Active, m_added);
}

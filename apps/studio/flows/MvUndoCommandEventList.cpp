#include "flows/MvUndoCommandEventList.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include <QHash>

namespace {

QHash<QUuid, MvCalendarEvent> byUuid(const MvCalendarEventList &events)
{
    QHash<QUuid, MvCalendarEvent> entries;
    for (const MvCalendarEvent &event : events)
        entries.insert(event.uuid(), event);
    return entries;
}

} // namespace

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
    const auto present = byUuid(registry.activeEventList()); // their photos may have been copied
    m_added.clear();
    for (const MvCalendarEvent &event : added)
        m_added.append(present.value(event.uuid(), event));
}

void MvUndoCommandEventList::undoCore()
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    const auto added = byUuid(m_added);
    MvCalendarEventList rest;
    for (const MvCalendarEvent &event : registry.activeEventList()) {
        const auto mine = added.constFind(event.uuid());
        if (mine == added.cend() || !(*mine == event))
            rest.append(event);
    }
    registry.setEvents(rest);
}

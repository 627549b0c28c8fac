#include "flows/MvUndoCommandEventList.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

MvUndoCommandEventList::MvUndoCommandEventList(const QString &text, const MvCalendarEventList &added)
    : MvUndoCommand(text)
    , m_added(added)
    , m_before(MvCalendarEventRegistry::instance().activeEventList())
{
    setObsolete(added.isEmpty());
}

void MvUndoCommandEventList::doCoreAction()
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    m_before = registry.activeEventList();
    registry.setEvents(registry.mergeLists(m_before, m_added, true));
}

void MvUndoCommandEventList::undoCore()
{
    MvCalendarEventRegistry::instance().setEvents(m_before);
}

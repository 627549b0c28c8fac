#include "MvCalendar/MvUndoCommandCalendarEvent.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

MvUndoCommandCalendarEvent::RepaintMaker &repaintMaker()
{
    static MvUndoCommandCalendarEvent::RepaintMaker maker;
    return maker;
}

MvUndoCommandCalendarEvent::Repaint repaintOf(QGraphicsObject *item)
{
    return item && repaintMaker() ? repaintMaker()(item) : MvUndoCommandCalendarEvent::Repaint();
}

/// The entry as it stands in the registry, which replaces photos from elsewhere by copies of its own. Without this, an
/// entry that came with such a photo would not be found again.
MvCalendarEvent asStored(const MvCalendarEvent &event)
{
    const MvCalendarEventList events = MvCalendarEventRegistry::instance().eventsOfCurrentProject();
    if (events.contains(event))
        return event;
    const auto differsByFotoOnly = [&event](const MvCalendarEvent &stored) {
        return stored.uuid() == event.uuid() && stored.description() == event.description() &&
               stored.dateTime() == event.dateTime() && stored.storedRecurrent() == event.storedRecurrent();
    };
    const auto found = std::find_if(events.cbegin(), events.cend(), differsByFotoOnly);
    return found == events.cend() ? event : *found;
}

} // namespace

MvUndoCommandCalendarEvent::MvUndoCommandCalendarEvent(const MvCalendarEvent &before, const MvCalendarEvent &after,
                                                       QGraphicsObject *item)
    : MvUndoCommand(u"set calendar event from %1 to %2"_s.arg(before.description(), after.description()))
    , m_repaint(repaintOf(item))
    , m_before(before)
    , m_after(after)
{
    setObsolete(before == after || (!before.isValid() && !after.isValid()));
}

MvUndoCommandCalendarEvent::~MvUndoCommandCalendarEvent() = default;

void MvUndoCommandCalendarEvent::doCoreAction()
{
    change(m_before, m_after);
    m_after = asStored(m_after);
}

void MvUndoCommandCalendarEvent::undoCore()
{
    change(m_after, m_before);
    m_before = asStored(m_before);
}

void MvUndoCommandCalendarEvent::change(const MvCalendarEvent &from, const MvCalendarEvent &to)
{
    if (MvCalendarEventRegistry::instance().changeEvent(from, to) && m_repaint)
        m_repaint();
}

void MvUndoCommandCalendarEvent::setRepaintMaker(const RepaintMaker &maker)
{
    repaintMaker() = maker;
}

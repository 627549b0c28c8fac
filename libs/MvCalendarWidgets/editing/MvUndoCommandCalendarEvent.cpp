// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvUndoCommandCalendarEvent.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include <QGraphicsObject>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

MvUndoCommandCalendarEvent::RepaintMaker &repaintMaker()
{
    static MvUndoCommandCalendarEvent::RepaintMaker maker;
    return maker;
}

MvUndoCommandCalendarEvent::Repaint repaintOf(QGraphicsObject *item)
{
    if (!item)
        return {};
    if (repaintMaker())
        return repaintMaker()(item);
    return [guard = QPointer<QGraphicsObject>(item)] {
        if (guard)
            guard->update();
    };
}

/// The step from one state to the next, applied to a third: a field that is not as it was before the step is somebody
/// else's and stays.
MvCalendarEvent stepFrom(const MvCalendarEvent &from, const MvCalendarEvent &to, const MvCalendarEvent &present)
{
    using Content = MvCalendarEventContent;
    const auto isOurs = [&](int part) { return Content(present, part) == Content(from, part); };
    const bool isRest = isOurs(Content::Rest);
    MvCalendarEvent result = isRest ? to : present; // setting a photo might copy it
    if (isOurs(Content::Name) != isRest)
        result.setEventName(isRest ? present.description() : to.description());
    if (isOurs(Content::Date) != isRest)
        result.setDateTime(isRest ? present.dateTime() : to.dateTime());
    return result;
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
    apply(m_before, m_after);
}

void MvUndoCommandCalendarEvent::undoCore()
{
    apply(m_after, m_before);
}

/// Both become what they really were and are: an entry that another program has changed, or whose photo was copied, is
/// found again on the way back.
void MvUndoCommandCalendarEvent::apply(MvCalendarEvent &from, MvCalendarEvent &to)
{
    if (!to.isValid()) {
        remove(from);
        return;
    }
    const auto &registry = MvCalendarEventRegistry::instance();
    const MvCalendarEvent present = from.isValid() ? registry.presentEvent(from) : MvCalendarEvent();
    if (!from.isValid()) {
        add(to);
    } else if (!present.isValid() || present == from) {
        change(from, to);
    } else {
        to = stepFrom(from, to, present);
        from = present;
        change(from, to);
    }
    const MvCalendarEvent stored = registry.presentEvent(to);
    if (stored.isValid())
        to = stored;
}

void MvUndoCommandCalendarEvent::remove(MvCalendarEvent &event)
{
    const auto &registry = MvCalendarEventRegistry::instance();
    const MvCalendarEvent present = registry.presentEvent(event);
    if (!present.isValid())
        return;
    event = present;
    m_place = registry.placeOfEvent(event);
    change(event, {});
}

void MvUndoCommandCalendarEvent::add(const MvCalendarEvent &event)
{
    if (!m_place)
        change({}, event);
    else if (MvCalendarEventRegistry::instance().insertEvent(event, *m_place))
        repaint();
}

void MvUndoCommandCalendarEvent::change(const MvCalendarEvent &from, const MvCalendarEvent &to)
{
    if (MvCalendarEventRegistry::instance().changeEvent(from, to))
        repaint();
}

void MvUndoCommandCalendarEvent::repaint()
{
    if (m_repaint)
        m_repaint();
}

void MvUndoCommandCalendarEvent::setRepaintMaker(const RepaintMaker &maker)
{
    repaintMaker() = maker;
}

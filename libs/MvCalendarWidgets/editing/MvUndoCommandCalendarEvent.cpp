// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvUndoCommandCalendarEvent.h"

#include <QGraphicsObject>

MvUndoCommandCalendarEvent::MvUndoCommandCalendarEvent(const MvCalendarEvent &before, const MvCalendarEvent &after,
                                                       QGraphicsObject *item, MvSession &session)
    : MvCalendarEventStep(before, after, session)
    , m_item(item)
{}

MvUndoCommandCalendarEvent::~MvUndoCommandCalendarEvent() = default;

void MvUndoCommandCalendarEvent::changed()
{
    if (m_item)
        m_item->update();
}

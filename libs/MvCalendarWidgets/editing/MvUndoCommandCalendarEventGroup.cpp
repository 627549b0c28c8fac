// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvUndoCommandCalendarEventGroup.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

MvUndoCommandCalendarEventGroup::MvUndoCommandCalendarEventGroup(Mark mark, MvSession &session, const QString &name)
    : m_mark(mark)
    , m_entries(session.entries())
    , m_name(name)
{}

MvUndoCommandCalendarEventGroup::~MvUndoCommandCalendarEventGroup() = default;

void MvUndoCommandCalendarEventGroup::doCoreAction()
{
    m_mark == Begin ? m_entries.beginChanges() : m_entries.endChanges();
}

void MvUndoCommandCalendarEventGroup::undoCore()
{
    m_mark == Begin ? m_entries.endChanges() : m_entries.beginChanges();
}

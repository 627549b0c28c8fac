// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvUndoCommandCalendarEventGroup.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

MvUndoCommandCalendarEventGroup::MvUndoCommandCalendarEventGroup(Mark mark)
    : m_mark(mark)
{}

MvUndoCommandCalendarEventGroup::~MvUndoCommandCalendarEventGroup() = default;

void MvUndoCommandCalendarEventGroup::doCoreAction()
{
    auto &registry = MvCalendarEventRegistry::instance();
    m_mark == Begin ? registry.beginChanges() : registry.endChanges();
}

void MvUndoCommandCalendarEventGroup::undoCore()
{
    auto &registry = MvCalendarEventRegistry::instance();
    m_mark == Begin ? registry.endChanges() : registry.beginChanges();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvSession.h"
#include "MvCore/MvUndoCommand.h"

/// Adds many personal entries at once: one step, one writing of the file. Undoing takes away these alone: what has come
/// since from elsewhere stays, and so does one of them that was changed there. Where changes are to reach the user's
/// own list, they are added there, too.
class MvUndoCommandEventList : public MvUndoCommand
{
public:
    MvUndoCommandEventList(const QString &text, const MvCalendarEventList &added,
                           MvSession &session = MvSession::defaultSession());

    void doCoreAction() override;
    void undoCore() override;

private:
    MvCalendarEventRegistry &m_entries;
    MvCalendarEventList m_added;      // to the active list, as they are there since it was done
    MvCalendarEventList m_addedToOwn; // to the user's list, too
};

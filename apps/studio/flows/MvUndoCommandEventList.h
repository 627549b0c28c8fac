#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCore/MvUndoCommand.h"

/// Adds many personal entries at once: one step, one writing of the file.
class MvUndoCommandEventList : public MvUndoCommand
{
public:
    MvUndoCommandEventList(const QString &text, const MvCalendarEventList &added);

    void doCoreAction() override;
    void undoCore() override;

private:
    MvCalendarEventList m_added;
    MvCalendarEventList m_before;
};

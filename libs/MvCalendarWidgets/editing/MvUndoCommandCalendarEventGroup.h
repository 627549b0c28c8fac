// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvCore/MvUndoCommand.h"

/// Marks where many changes of personal entries begin and end within one undo step, so that the entries are written
/// and signalled once for all of them: when they are done, undone and done again.
///
/// The first and the last command of a macro; one without the other leaves the registry waiting.
class MVCALENDARWIDGETS_EXPORT MvUndoCommandCalendarEventGroup : public MvUndoCommand
{
public:
    enum Mark { Begin, End };

    /// The name is what the whole step is called before a person; the first command's counts.
    explicit MvUndoCommandCalendarEventGroup(Mark mark, MvSession &session = MvSession::defaultSession(),
                                             const QString &name = {});
    ~MvUndoCommandCalendarEventGroup() override;

    QString visibleName() const override { return m_name; }
    void doCoreAction() override;
    void undoCore() override;

private:
    Mark m_mark;
    MvCalendarEventRegistry &m_entries;
    QString m_name;
};

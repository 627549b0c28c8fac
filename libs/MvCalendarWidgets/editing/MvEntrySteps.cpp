// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntrySteps.h"

#include "MvCalendar/MvUndoCommandCalendarEventGroup.h"

#include "MvCore/MvUndoController.h"

void MvEntrySteps::push(MvSession &session, const QString &name, const QList<MvEntryChange> &changes,
                        MvCalendarEventStep::Reach reach)
{
    using Group = MvUndoCommandCalendarEventGroup;
    if (changes.isEmpty())
        return;
    MvUndoController &undo = session.undo();
    undo.beginMacro(name);
    undo.push(new Group(Group::Begin, session, name));
    for (const MvEntryChange &change : changes)
        undo.push(new MvCalendarEventStep(change.before, change.after, session, reach));
    undo.push(new Group(Group::End, session));
    undo.endMacro();
}

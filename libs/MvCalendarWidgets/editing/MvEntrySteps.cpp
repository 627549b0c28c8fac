// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntrySteps.h"

#include "MvCalendar/MvEntryEdits.h"

void MvEntrySteps::push(MvSession &session, const QString &name, const QList<MvEntryChange> &changes,
                        MvCalendarEventStep::Reach reach)
{
    MvEntryEdits(session).change(name, name, changes, reach);
}

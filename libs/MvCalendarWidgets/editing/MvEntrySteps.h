// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvEntryChange.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QList>
#include <QString>

/// Several changes of entries as one step that can be undone: written and signalled once.
class MVCALENDARWIDGETS_EXPORT MvEntrySteps
{
public:
    /// The name is what the step is called before a person. Without changes nothing happens.
    static void push(MvSession &session, const QString &name, const QList<MvEntryChange> &changes,
                     MvCalendarEventStep::Reach reach = MvCalendarEventStep::Reach::AsSet);
};

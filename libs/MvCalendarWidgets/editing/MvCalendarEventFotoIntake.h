// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QCoreApplication>

#include <functional>

class QObject;

/// Gives an entry of a session's active list a photo that somebody has chosen or dropped. GUI thread.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventFotoIntake
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventFotoIntake)

public:
    using Use = std::function<void(const MvCalendarEvent &before, const MvCalendarEvent &after)>;

    /// Hands over the entry as it is by then and the same with the photo: before returning for a small photo, later
    /// for one that is decoded in the background. The asker is told why when the photo cannot be taken; the entry
    /// keeps the one it has. So it is told when another calendar is open by then. Nothing happens when entry or asker
    /// are gone.
    static void take(const MvCalendarEvent &event, const MvFoto &foto, QObject *asker, const Use &use,
                     MvSession &session = MvSession::defaultSession());
};

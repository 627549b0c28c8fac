// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QPointer>

class QGraphicsObject;

/// A change of one personal entry that was made on a canvas: the item that shows the entry is repainted with it.
class MVCALENDARWIDGETS_EXPORT MvUndoCommandCalendarEvent : public MvCalendarEventStep
{
public:
    /// The item, if any, is not owned, and may be deleted before the command.
    MvUndoCommandCalendarEvent(const MvCalendarEvent &before, const MvCalendarEvent &after, QGraphicsObject *item,
                               MvSession &session = MvSession::defaultSession());
    ~MvUndoCommandCalendarEvent() override;

protected:
    void changed() override;

private:
    QPointer<QGraphicsObject> m_item;
};

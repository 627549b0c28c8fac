// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventWorkList.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvCore/MvUndoCommand.h"

#include <QCoreApplication>

#include <optional>

/// A change of one personal entry in the active list of a session: an invalid entry before adds one, an invalid entry
/// after removes one. Without a difference the command is obsolete from the start.
///
/// It means the very entry, whatever became of it meanwhile: what another program has changed in other fields stays,
/// and what comes back stands where it stood.
///
/// It belongs to the list that is active when it is done; whoever makes another list the active one clears the undo
/// stack.
class MVCALENDAR_EXPORT MvCalendarEventStep : public MvUndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventStep)

public:
    MvCalendarEventStep(const MvCalendarEvent &before, const MvCalendarEvent &after,
                        MvSession &session = MvSession::defaultSession());
    ~MvCalendarEventStep() override;

    QString visibleName() const override;
    void doCoreAction() override;
    void undoCore() override;

    /// Changes the entry in the list; changed() follows when that made a difference.
    void change(const MvCalendarEvent &from, const MvCalendarEvent &to);

protected:
    /// Called after each change that made a difference.
    virtual void changed() {}

private:
    void apply(MvCalendarEvent &from, MvCalendarEvent &to);
    void remove(MvCalendarEvent &event);
    void add(const MvCalendarEvent &event);

    MvCalendarEventRegistry &m_entries;
    MvCalendarEvent m_before;
    MvCalendarEvent m_after;
    std::optional<MvCalendarEventWorkList::Place> m_place; // of the entry, once it was removed
};

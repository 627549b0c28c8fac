// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventRegistry.h"
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
/// stack. Where changes are to reach the user's own list, too (MvCalendarEventRegistry::setChangesReachOwn()), the step
/// does there what it does here, and takes it back there: an entry that the user's list has otherwise keeps what the
/// step does not change, one that it lacks is added.
class MVCALENDAR_EXPORT MvCalendarEventStep : public MvUndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventStep)

public:
    enum class Reach {
        AsSet,      ///< the user's own list, too, when changes are to reach it at that moment
        ActiveList, ///< nothing else
        OwnList     ///< the user's own list alone
    };

    MvCalendarEventStep(const MvCalendarEvent &before, const MvCalendarEvent &after,
                        MvSession &session = MvSession::defaultSession(), Reach reach = Reach::AsSet);
    ~MvCalendarEventStep() override;

    QString visibleName() const override;
    void doCoreAction() override;
    void undoCore() override;

    /// Changes the entry in the active list; changed() follows when that made a difference.
    void change(const MvCalendarEvent &from, const MvCalendarEvent &to);

protected:
    /// Called after each change that made a difference.
    virtual void changed() {}

private:
    using List = MvCalendarEventRegistry::List;

    /// What the step does in one list.
    struct Part
    {
        List list;
        MvCalendarEvent before;
        MvCalendarEvent after;
        std::optional<MvCalendarEventWorkList::Place> place; // of the entry, once it was removed
    };

    bool apply(Part &part, MvCalendarEvent &from, MvCalendarEvent &to);
    bool remove(Part &part, MvCalendarEvent &event);
    bool add(const Part &part, const MvCalendarEvent &event);
    Part ownPart() const;
    MvCalendarEvent asOwn(MvCalendarEvent event) const;

    MvCalendarEventRegistry &m_entries;
    bool m_reachesOwn;
    Part m_active;
    std::optional<Part> m_own; // since it was done
};

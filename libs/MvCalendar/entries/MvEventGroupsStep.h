// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEventGroup.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvCore/MvUndoCommand.h"

#include <optional>

/// A change of the groups of the active list of a session: added, changed, put into another order or removed. Without a
/// difference the command is obsolete from the start.
///
/// Only what differs between the groups before and after is done, and taken back: what other programs made of the
/// groups meanwhile stays. A group that entries name stays, too: who removes one takes it from its entries first. Where
/// changes are to reach the user's own list (MvCalendarEventRegistry::setChangesReachOwn()), its groups follow.
class MVCALENDAR_EXPORT MvEventGroupsStep : public MvUndoCommand
{
public:
    /// The name is what the step is called before a person.
    MvEventGroupsStep(const MvEventGroupList &before, const MvEventGroupList &after, const QString &name,
                      MvSession &session = MvSession::defaultSession());
    ~MvEventGroupsStep() override;

    QString visibleName() const override { return m_name; }
    void doCoreAction() override;
    void undoCore() override;

private:
    using List = MvCalendarEventRegistry::List;
    /// The groups of one list, before and after.
    struct Part
    {
        MvEventGroupList before;
        MvEventGroupList after;
    };

    Part present(List list) const;
    void apply(List list, const MvEventGroupList &from, const MvEventGroupList &to) const;

    MvCalendarEventRegistry &m_entries;
    Part m_wanted;
    bool m_reachesOwn;
    QString m_name;
    std::optional<Part> m_active; // since it was done
    std::optional<Part> m_own;
};

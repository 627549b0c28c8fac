// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvEventGroup.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvCore/MvUndoCommand.h"

#include <QSet>

#include <optional>

/// A change of the groups of the active list of a session: added, changed, put into another order or removed. Without a
/// difference the command is obsolete from the start.
///
/// Only what differs between the groups before and after is done, and taken back: what other programs made of the
/// groups meanwhile stays. A group that entries name stays, too: who removes one takes it from its entries first. The
/// groups of the user's own list follow where MvCalendarEventStep would change its entries.
class MVCALENDAR_EXPORT MvEventGroupsStep : public MvUndoCommand
{
public:
    using Reach = MvCalendarEventStep::Reach;

    /// The name is what the step is called before a person.
    MvEventGroupsStep(const MvEventGroupList &before, const MvEventGroupList &after, const QString &name,
                      MvSession &session = MvSession::defaultSession(), Reach reach = Reach::AsSet);
    ~MvEventGroupsStep() override;

    /// The groups of entries that are about to come: each list that the step reaches gets those that it lacks, as the
    /// other list has them. Ids that no list knows are left out.
    void bring(const QSet<QString> &ids);

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

    QList<List> reached() const;
    Part present(List list) const;
    void apply(List list, const MvEventGroupList &from, const MvEventGroupList &to) const;

    MvCalendarEventRegistry &m_entries;
    Part m_wanted;
    MvEventGroupList m_brought;
    Reach m_reach;
    bool m_reachesOwn;
    QString m_name;
    std::optional<Part> m_active; // since it was done
    std::optional<Part> m_own;
};

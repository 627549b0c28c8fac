// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvEntryChange.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

/// What is done to several entries at once, or to the groups with their entries. Each call is one step that can be
/// undone, written and signalled once; without a difference there is none.
class MVCALENDARWIDGETS_EXPORT MvEntryEdits
{
    Q_DECLARE_TR_FUNCTIONS(MvEntryEdits)

public:
    using Reach = MvCalendarEventStep::Reach;
    using Change = MvEntryChange;
    enum class Membership {
        Only, ///< of this group and no other
        Added,
        Removed
    };

    explicit MvEntryEdits(MvSession &session = MvSession::defaultSession());

    /// The name is for a person, the macro's text for the log. Groups of the entries come along, and those given that
    /// the list does not know: undoing takes them back unless other entries name them by then.
    void change(const QString &macro, const QString &name, const QList<Change> &changes, Reach reach = Reach::AsSet,
                const MvEventGroupList &groups = {});
    /// The same with a step of its own kind, as one that repaints an item; takes ownership. The entry is what it leads
    /// to.
    void push(MvCalendarEventStep *step, const MvCalendarEvent &after, const MvEventGroupList &groups = {});
    void remove(const MvCalendarEventList &events);
    /// A group that the list does not know yet, by its name, is added to it in the same step; an empty name takes the
    /// entries out of all groups.
    void setMembership(const MvCalendarEventList &events, const QString &group, Membership membership);
    /// Moves entries by years and then by days, as MvEntryMove::shifted() says.
    void shift(const MvCalendarEventList &events, int years, int days);

    /// Makes these the groups of the active list; entries of a group that is not among them any more lose it.
    void setGroups(const MvEventGroupList &groups, const QString &name);

private:
    MvEventGroupList presentGroups(Reach reach) const;
    void push(const QString &macro, const QString &name, const QList<Change> &changes, const MvEventGroupList &groups,
              Reach reach);

    MvSession &m_session;
};

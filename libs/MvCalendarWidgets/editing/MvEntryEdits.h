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

    /// The name is for a person, the macro's text for the log.
    void change(const QString &macro, const QString &name, const QList<Change> &changes, Reach reach = Reach::AsSet);
    void remove(const MvCalendarEventList &events);
    /// A group that the list does not know yet, by its name, is added to it in the same step; an empty name takes the
    /// entries out of all groups.
    void setMembership(const MvCalendarEventList &events, const QString &group, Membership membership);
    /// Moves entries by years and then by days, as shifted() says.
    void shift(const MvCalendarEventList &events, int years, int days);
    /// The day to which an entry moves. A year that is not known stays; by years, an entry of weekdays keeps its
    /// weekday.
    static QDate shifted(const MvCalendarEvent &event, int years, int days);

    /// Makes these the groups of the active list; entries of a group that is not among them any more lose it.
    void setGroups(const MvEventGroupList &groups, const QString &name);

private:
    void push(const QString &macro, const QString &name, const QList<Change> &changes, const MvEventGroupList &groups,
              Reach reach);

    MvSession &m_session;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvEventGroup.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QList>

/// The entries of one document, in the user's order, and the groups that they name.
///
/// What is done to the entries leaves the groups alone; comparing lists compares their entries.
class MVCALENDAR_EXPORT MvCalendarEventList : public QList<MvCalendarEvent>
{
public:
    using QList<MvCalendarEvent>::QList;
    MvCalendarEventList();
    virtual ~MvCalendarEventList();
    MvCalendarEventList(const MvCalendarEventList &);
    MvCalendarEventList(MvCalendarEventList &&) noexcept;
    MvCalendarEventList &operator=(const MvCalendarEventList &);
    MvCalendarEventList &operator=(MvCalendarEventList &&) noexcept;

    const MvEventGroupList &groups() const { return m_groups; }
    MvEventGroupList &groups() { return m_groups; }
    void setGroups(const MvEventGroupList &groups) { m_groups = groups; }
    /// The same list, and the same groups.
    bool isSame(const MvCalendarEventList &other) const { return isSharedWith(other) && m_groups == other.m_groups; }

private:
    MvEventGroupList m_groups;
};

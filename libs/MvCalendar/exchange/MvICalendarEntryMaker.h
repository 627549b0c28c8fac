// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvEventGroup.h"
#include "MvCalendar/MvICalendarEvent.h"
#include "MvCalendar/MvICalendarZones.h"

#include <QDate>
#include <QList>
#include <QString>

/// Makes entries of the events of an iCalendar.
class MvICalendarEntryMaker
{
public:
    /// Both outlive this; groups that events name are added.
    MvICalendarEntryMaker(MvICalendarZones &zones, MvEventGroupList &groups)
        : m_zones(zones)
        , m_groups(groups)
    {}

    /// The entry; invalid, with a reason for a person, when it cannot be one. An event that is called off gives an
    /// entry only if it is a single date of a series, and then one without a name of its own.
    MvCalendarEvent make(const MvICalendarEvent &event, QString *reason) const;
    /// Which date of its series a changed one was; invalid when that cannot be read.
    QDate overriddenDate(const MvICalendarEvent &event) const;

    // rules for an entry of 29 February in other years: the last of February, or the 60th day
    static const QString lastOfFebruary;
    static const QString sixtiethDay;

private:
    static QUuid uuidOf(const MvICalendarEvent &event, const QDate &start);
    void takeEnd(MvCalendarEvent &entry, const MvICalendarEvent &event, const MvICalendarZones::Time &start,
                 QString *reason) const;
    void takeRepetition(MvCalendarEvent &entry, const MvICalendarEvent &event, QString *reason) const;
    void takeGroups(MvCalendarEvent &entry, const MvICalendarEvent &event) const;
    QList<QDate> dates(const MvICalendarEvent &event, const char *name, QString *reason) const;
    QString ruleWithLocalEnd(const MvICalendarEvent &event) const;

    MvICalendarZones &m_zones;
    MvEventGroupList &m_groups;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

/// Whom or what entries are about: family, club, a person, a class. An entry names its groups by their ids.
struct MVCALENDAR_EXPORT MvEventGroup
{
    QString id;        ///< never changes, however the group is called
    QString name;      ///< as people see it
    QColor color;      ///< of its texts and dots; invalid: those of the page
    QString symbol;    ///< stands before its texts, one or two characters; may be empty
    QString entryText; ///< how an entry reads: "%name (%age)", see MvEventText; empty: as the calendar has it

    bool isValid() const { return !id.isEmpty() && !name.isEmpty(); }
    /// A group of the name, with an id that follows from it: two programs that make it make the same one.
    static MvEventGroup named(const QString &name);

    bool operator==(const MvEventGroup &) const = default;
};

/// The groups of a list of entries, in the user's order, each id once.
class MVCALENDAR_EXPORT MvEventGroupList : public QList<MvEventGroup>
{
public:
    using QList<MvEventGroup>::QList;

    /// Null when there is none. Valid until the list changes.
    const MvEventGroup *find(const QString &id) const;
    /// By name, whatever the case of its letters.
    const MvEventGroup *findName(const QString &name) const;
    /// The id of the group of that name, which is added when there is none; empty for an empty name.
    QString idOfName(const QString &name);
    /// The ids by which the other list knows groups of this one, as the user's list and a calendar's know each other's:
    /// by name first, for that is what people see, else by id, for a group may have been renamed in one of them. What
    /// it does not know keeps its id.
    QStringList idsIn(const MvEventGroupList &other, const QStringList &ids) const;
    /// Replaces the group of the same id, or adds it; an invalid one changes nothing.
    void put(const MvEventGroup &group);

    /// What both sides made of the groups they started from: a change outweighs none, mine the other's. So does the
    /// order.
    static MvEventGroupList merged(const MvEventGroupList &base, const MvEventGroupList &mine,
                                   const MvEventGroupList &theirs);
};

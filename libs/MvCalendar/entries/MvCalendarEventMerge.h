// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QList>

/// Putting lists of entries together.
class MVCALENDAR_EXPORT MvCalendarEventMerge
{
public:
    /// `base`, when it is to be kept, then the entries of `other` whose uuid is null or unknown in `base`.
    static MvCalendarEventList joined(const MvCalendarEventList &base, const MvCalendarEventList &other, bool keepBase);

    /// What two programs made of the same list: `base` is what both started from. Additions, changes and removals of
    /// either side count. Of an entry both have changed, each field takes the change, or the later one of two; a
    /// change outweighs a removal. Order: `mine`, then what `theirs` adds. n entries take time of order n.
    ///
    /// Who an entry is, its uuid alone does not say: a series shares one, and a list without uuids gets new ones with
    /// each reading. Equal entries are paired first, then those whose uuid occurs once in each list, then the nearest
    /// of one uuid; where that leaves a doubt, both are kept. Times count in seconds, as files hold them.
    ///
    /// When `theirs` could not be read as a whole, what is missing there is not taken as removed.
    static MvCalendarEventList threeWay(const MvCalendarEventList &base, const MvCalendarEventList &mine,
                                        const MvCalendarEventList &theirs, bool theirsIsWhole = true);

    /// An entry of one list, and what is in its place in the other one: invalid where there is none.
    struct Difference
    {
        MvCalendarEvent here;
        MvCalendarEvent there;
    };
    /// The entries of `here` that `there` lacks or has otherwise, in order, paired by the same rules. Photos in two
    /// files with the same content are equal.
    static QList<Difference> differences(const MvCalendarEventList &here, const MvCalendarEventList &there);

    /// What has become of an entry of `before` in `after`, by the same rules; invalid when it is gone.
    static MvCalendarEvent successor(const MvCalendarEvent &event, const MvCalendarEventList &before,
                                     const MvCalendarEventList &after);

    /// The same photo: one file, or two with the same content.
    static bool isSameFoto(const MvFoto &a, const MvFoto &b);

    /// Each of the entries that a file cannot tell apart once, as reading it gives them.
    static MvCalendarEventList withoutRepetitions(const MvCalendarEventList &events);
};

#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

/// Putting lists of entries together. Who an entry is, its uuid alone says.
class MVCALENDAR_EXPORT MvCalendarEventMerge
{
public:
    /// `base`, when it is to be kept, then the entries of `other` whose uuid is null or unknown in `base`.
    static MvCalendarEventList joined(const MvCalendarEventList &base, const MvCalendarEventList &other, bool keepBase);

    /// What two programs made of the same list: `base` is what both started from. Additions, changes and removals of
    /// either side count; an entry both have changed takes the later change, and a change outweighs a removal. Order:
    /// `mine`, then what `theirs` adds.
    static MvCalendarEventList threeWay(const MvCalendarEventList &base, const MvCalendarEventList &mine,
                                        const MvCalendarEventList &theirs);
};

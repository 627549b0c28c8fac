// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayList.h"

MvCalendariumHolidayList::~MvCalendariumHolidayList() = default;

MvCalendariumHolidayList MvCalendariumHolidayList::filter(const QDate &day) const
{
    MvCalendariumHolidayList found;
    for (const MvCalendariumHoliday &holiday : *this) {
        if (holiday.date() == day)
            found.append(holiday);
    }
    return found;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidaySpan.h"

#include <QHash>

QList<MvHolidaySpan> MvHolidaySpan::of(const MvCalendariumHolidayList &holidays)
{
    QList<MvHolidaySpan> spans;
    QHash<QString, qsizetype> running; // vacations by name
    for (const MvCalendariumHoliday &holiday : holidays) {
        const bool isVacation = holiday.type() == HOLIDAY_TYPE_SCHOOL_VACATION;
        const qsizetype known = isVacation ? running.value(holiday.description(), -1) : -1;
        if (known >= 0 && spans.at(known).last.daysTo(holiday.date()) == 1) {
            spans[known].last = holiday.date();
            continue;
        }
        if (isVacation)
            running.insert(holiday.description(), spans.size());
        spans.append({holiday, holiday.date()});
    }
    return spans;
}

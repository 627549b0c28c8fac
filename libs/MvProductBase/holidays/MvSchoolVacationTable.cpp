// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvSchoolVacationTable.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

QList<MvSchoolVacationTable::Vacation> MvSchoolVacationTable::vacations(const QStringList &regions) const
{
    QList<Vacation> found = m_vacations.value(QString());
    for (const QString &region : regions)
        found.append(m_vacations.value(region));
    return found;
}

MvCalendariumHolidayList MvSchoolVacationTable::days(int year, const QStringList &regions, const QString &language,
                                                     bool namesDaily) const
{
    // the day before the year tells whether a vacation goes on or starts on 1 January
    const QDate first = QDate(year, 1, 1).addDays(-1);
    const QDate last(year, 12, 31);
    std::map<QDate, std::set<QString>> namesOfDays; // overlapping spans of one name count once
    const QList<Vacation> known = vacations(regions);
    for (const Vacation &vacation : known) {
        const QString name = vacation.names.value(language, vacation.name);
        const QDate end = std::min(vacation.end, last);
        for (QDate day = std::max(vacation.start, first); day <= end; day = day.addDays(1))
            namesOfDays[day].insert(name);
    }

    MvCalendariumHolidayList found;
    for (const auto &[day, names] : namesOfDays) {
        if (day.year() != year)
            continue;
        const auto yesterday = namesOfDays.find(day.addDays(-1));
        for (const QString &name : names) {
            const bool goesOn = yesterday != namesOfDays.end() && yesterday->second.contains(name);
            found.append({HOLIDAY_TYPE_SCHOOL_VACATION, day, goesOn && !namesDaily ? QString() : name});
        }
    }
    return found;
}

QDate MvSchoolVacationTable::knownUntil(const QStringList &regions) const
{
    QDate last;
    const QList<Vacation> known = vacations(regions);
    for (const Vacation &vacation : known) {
        if (vacation.end > vacation.start && (!last.isValid() || vacation.end > last))
            last = vacation.end;
    }
    return last;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventIndex.h"

#include <algorithm>

namespace {

constexpr qsizetype mostYears = 40; // that are kept: more than any calendar has

} // namespace

MvCalendarEventIndex::MvCalendarEventIndex(const MvCalendarEventList &events)
    : m_events(events)
{
    for (qsizetype position = 0; position < m_events.size(); ++position) {
        const MvCalendarEvent &event = m_events.at(position);
        if (event.isByDayOfYear())
            m_byDay[keyOf(event.dateTime().date())].append(position);
        else
            m_others.append(position);
    }
}

const MvCalendarEventIndex::Occurrences &MvCalendarEventIndex::othersOf(const QDate &day) const
{
    static const Occurrences none;
    if (!day.isValid())
        return none;
    auto year = m_years.constFind(day.year());
    if (year == m_years.cend()) {
        if (m_years.size() >= mostYears)
            m_years.clear();
        year = m_years.insert(day.year(), evaluated(day.year()));
    }
    const auto found = year->constFind(day.toJulianDay());
    return found == year->cend() ? none : *found;
}

/// Who spans days may have begun in the year before. Of an entry that meets itself, the latest occurrence counts.
QHash<qint64, MvCalendarEventIndex::Occurrences> MvCalendarEventIndex::evaluated(int year) const
{
    QHash<qint64, Occurrences> days;
    const QDate first(year, 1, 1);
    const QDate last(year, 12, 31);
    for (const qsizetype position : m_others) {
        const MvCalendarEvent &event = m_events.at(position);
        const int count = event.dayCount();
        QList<QDate> starts = count > 1 ? event.startsInYear(year - 1) : QList<QDate>();
        starts += event.startsInYear(year);
        for (qsizetype i = 0; i < starts.size(); ++i) {
            QDate end = starts.at(i).addDays(count - 1);
            if (i + 1 < starts.size())
                end = std::min(end, starts.at(i + 1).addDays(-1));
            for (QDate day = std::max(starts.at(i), first); day <= std::min(end, last); day = day.addDays(1))
                days[day.toJulianDay()].append({position, starts.at(i)});
        }
    }
    return days;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvDateRange.h"

MvDateRange::MvDateRange(const QDate &start, const QDate &end)
    : m_start(start)
    , m_end(end)
{}

MvDateRange MvDateRange::monthOf(const QDate &day)
{
    if (!day.isValid())
        return {};
    return {QDate(day.year(), day.month(), 1), QDate(day.year(), day.month(), day.daysInMonth())};
}

int MvDateRange::lastIndexEvenIfUnvalid() const
{
    return isValid() ? static_cast<int>(m_start.daysTo(m_end)) : firstIndex() - 1;
}

QDate MvDateRange::dayAt(int index) const
{
    return index >= firstIndex() && index <= lastIndexEvenIfUnvalid() ? m_start.addDays(index) : QDate();
}

int MvDateRange::monthCount() const
{
    return isValid() ? (m_end.year() - m_start.year()) * 12 + m_end.month() - m_start.month() + 1 : 0;
}

QDate MvDateRange::monthAt(int index) const
{
    if (index < 0 || index >= monthCount())
        return {};
    return QDate(m_start.year(), m_start.month(), 1).addMonths(index);
}

QDate MvDateRange::createDefaultCalendarStart(const QDate &today)
{
    return QDate(today.month() == 1 ? today.year() : today.year() + 1, 1, 1);
}

MvDateRange MvDateRange::createDefaultCalendarDateRange(const QDate &today)
{
    const QDate start = createDefaultCalendarStart(today);
    return {start, start.addYears(1).addDays(-1)};
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumContentConfig.h"

MvCalendariumContentConfig::MvCalendariumContentConfig(const QDate &date,
                                                       const MvCalendariumHolidayConfig &holidayConfig)
    : m_date(date)
    , m_holidayConfig(holidayConfig)
{}

MvCalendariumContentConfig MvCalendariumContentConfig::withFeature(const MvCalendariumFeatures &feature, bool on) const
{
    MvCalendariumContentConfig changed = *this;
    changed.m_holidayConfig.setFeature(feature, on);
    return changed;
}

MvCalendariumContentConfig MvCalendariumContentConfig::moveToDay(const QDate &date) const
{
    MvCalendariumContentConfig moved = *this;
    moved.m_date = date;
    return moved;
}

MvCalendariumContentConfig MvCalendariumContentConfig::moveToDayInMonth(int day) const
{
    return moveToDay(m_date.isValid() ? QDate(m_date.year(), m_date.month(), day) : QDate());
}

size_t qHash(const MvCalendariumContentConfig &config, size_t seed)
{
    return qHashMulti(seed, config.date(), config.holidayConfig());
}

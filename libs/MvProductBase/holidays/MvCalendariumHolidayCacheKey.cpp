// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayCacheKey.h"

MvCalendariumHolidayCacheKey::MvCalendariumHolidayCacheKey(int year, const MvCalendariumHolidayConfig &config)
    : m_year(year)
    , m_config(config)
{}

MvCalendariumHolidayCacheKey::~MvCalendariumHolidayCacheKey() = default;

size_t MvCalendariumHolidayCacheKey::hashKey() const
{
    return qHashMulti(0, m_year, m_config);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/mvproductbase_export.h"

/// Names the holidays of one year under one configuration.
class MVPRODUCTBASE_EXPORT MvCalendariumHolidayCacheKey
{
public:
    MvCalendariumHolidayCacheKey() = default;
    MvCalendariumHolidayCacheKey(int year, const MvCalendariumHolidayConfig &config);
    virtual ~MvCalendariumHolidayCacheKey();
    MvCalendariumHolidayCacheKey(const MvCalendariumHolidayCacheKey &) = default;
    MvCalendariumHolidayCacheKey(MvCalendariumHolidayCacheKey &&) = default;
    MvCalendariumHolidayCacheKey &operator=(const MvCalendariumHolidayCacheKey &) = default;
    MvCalendariumHolidayCacheKey &operator=(MvCalendariumHolidayCacheKey &&) = default;

    int year() const { return m_year; }
    MvCalendariumHolidayConfig config() const { return m_config; }

    /// Equal for equal keys within one run of the program.
    size_t hashKey() const;

    bool operator==(const MvCalendariumHolidayCacheKey &) const = default;

private:
    int m_year = 0;
    MvCalendariumHolidayConfig m_config;
};

inline size_t qHash(const MvCalendariumHolidayCacheKey &key, size_t seed = 0)
{
    return key.hashKey() ^ seed;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/mvproductbase_export.h"

class MvCalendariumHolidayConfigDefault;
extern template class MVPRODUCTBASE_EXPORT MvSingleton<MvCalendariumHolidayConfigDefault>;

/// The holiday configuration that new calendars start with.
class MVPRODUCTBASE_EXPORT MvCalendariumHolidayConfigDefault : public MvSingleton<MvCalendariumHolidayConfigDefault>
{
public:
    MvCalendariumHolidayConfigDefault();

    /// Germany, Nordrhein-Westfalen, with holidays, their colours, personal entries and calendar weeks, unless the
    /// program set another one.
    MvCalendariumHolidayConfig defaultConfig() const { return m_config; }
    void setDefaultConfig(const MvCalendariumHolidayConfig &config) { m_config = config; }

private:
    MvCalendariumHolidayConfig m_config;
};

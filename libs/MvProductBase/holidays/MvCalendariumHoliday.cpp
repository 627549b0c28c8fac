// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHoliday.h"

MvCalendariumHoliday::MvCalendariumHoliday(const MvCalendariumHolidayType &type, const QDate &date,
                                           const QString &description)
    : m_type(type)
    , m_date(date)
    , m_description(description)
{}

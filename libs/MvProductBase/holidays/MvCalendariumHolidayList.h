// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHoliday.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QList>

/// Holidays in the order in which they are printed.
class MVPRODUCTBASE_EXPORT MvCalendariumHolidayList : public QList<MvCalendariumHoliday>
{
public:
    using QList<MvCalendariumHoliday>::QList;
    MvCalendariumHolidayList() = default;
    virtual ~MvCalendariumHolidayList();
    MvCalendariumHolidayList(const MvCalendariumHolidayList &) = default;
    MvCalendariumHolidayList(MvCalendariumHolidayList &&) = default;
    MvCalendariumHolidayList &operator=(const MvCalendariumHolidayList &) = default;
    MvCalendariumHolidayList &operator=(MvCalendariumHolidayList &&) = default;

    /// The holidays that fall on the day, in order.
    MvCalendariumHolidayList filter(const QDate &day) const;
};

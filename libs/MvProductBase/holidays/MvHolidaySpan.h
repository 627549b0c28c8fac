// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayList.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QDate>
#include <QList>

/// A holiday, or a run of vacation days.
struct MVPRODUCTBASE_EXPORT MvHolidaySpan
{
    MvCalendariumHoliday holiday;
    QDate last;

    /// Vacation days of one name that follow each other become one span; weekends inside belong to them. In order.
    static QList<MvHolidaySpan> of(const MvCalendariumHolidayList &holidays);
};

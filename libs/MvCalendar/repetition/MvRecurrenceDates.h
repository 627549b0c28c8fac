// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvRecurrenceRule.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QList>

/// On which days a rule falls. What is evaluated once is kept, for lists that are indexed anew after every change.
///
/// The only place that calls libical. It is asked for the days of periods that follow each other; which of them count
/// by interval, and when the rule ends, is decided here, since the library errs about weeks that do not begin on
/// Monday. Any thread.
class MVCALENDAR_EXPORT MvRecurrenceDates
{
public:
    /// The days of a year, ascending. The rule begins with the start day, which is among them only when the rule says
    /// so. None for no rule, or an invalid start.
    static QList<QDate> inYear(const MvRecurrenceRule &rule, const QDate &start, int year);
};

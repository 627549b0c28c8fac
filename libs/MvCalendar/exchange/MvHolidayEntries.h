// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvHolidaySpan.h"

#include <QCoreApplication>
#include <QDate>
#include <QFlags>
#include <QList>

/// Holidays and school vacations as entries, to be given to other programs: a vacation is one entry of many days.
///
/// The same holiday has the same uuid whenever it is asked for, even if its date has been corrected since: it follows
/// from country, region, name and year. Each belongs to a group that says what kind of day it is.
class MVCALENDAR_EXPORT MvHolidayEntries
{
    Q_DECLARE_TR_FUNCTIONS(MvHolidayEntries)

public:
    enum Kind { Holidays = 1, Vacations = 2 };
    Q_DECLARE_FLAGS(Kinds, Kind)

    using Span = MvHolidaySpan;
    static QList<Span> spans(const MvCalendariumHolidayList &holidays) { return Span::of(holidays); }

    /// Those of the years, both included; vacations over new year whole. Which features the configuration has does not
    /// matter. Entries that are once, ascending.
    static MvCalendarEventList of(const MvCalendariumHolidayConfig &config, int firstYear, int lastYear, Kinds kinds);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MvHolidayEntries::Kinds)

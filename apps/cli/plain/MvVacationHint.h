// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayConfig.h"

#include <QCoreApplication>
#include <QDate>
#include <QTextStream>

/// Says where the known school vacations end, since they are announced a few years ahead only, or that there are none.
class MvVacationHint
{
    Q_DECLARE_TR_FUNCTIONS(MvVacationHint)

public:
    /// Prints one line if vacations are not known for the region up to the day; nothing if there are none to show.
    static void print(const MvCalendariumHolidayConfig &config, const QDate &neededUntil, QTextStream &hints);
    /// For somebody who asked for them: without a region, too, one line tells why there are none.
    static void printAsked(const MvCalendariumHolidayConfig &config, const QDate &neededUntil, QTextStream &hints);
};

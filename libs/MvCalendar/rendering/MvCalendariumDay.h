// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellTypeConfig.h"
#include "MvCalendar/MvEventText.h"
#include "MvProductBase/MvCalendariumHolidayList.h"

#include <QDate>
#include <QStringList>

/// All that a pass needs to know of a date. It is put together when the date is first met and then asked by everything
/// that paints a part of the day.
struct MvCalendariumDay
{
    QDate date;
    MvCalendariumHolidayList holidays; ///< that fall on it, those that print nothing included
    MvCalendarCellTypeConfig head;     ///< the cell with its weekday
    MvCalendarCellTypeConfig content;  ///< the cell with its number
    bool isEven = false;               ///< parity of its week
    QStringList texts;                 ///< that its cell shows: holidays, then entries, on one line each
    QList<MvEventText> entries;        ///< of the day, if the page shows entries; their texts on one line each
    QList<QColor> colors;              ///< of the texts, in their order; invalid: as the page writes. Empty: all are
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"

/// What tells one kind of calendarium from another, outside its renderer. A kind is a row of the table in
/// MvCalendariumType.cpp; whoever must treat kinds differently asks for a trait and never compares types.
struct MvCalendariumTraits
{
    /// Which days a page is about.
    enum class Range {
        Calendar,           ///< its month; the range is that of the whole calendar
        Year,               ///< twelve months from its own first one, which the renderer moves by the month offset
        YearWithinCalendar, ///< those of the twelve months that the calendar has
    };

    /// The cell whose colours and font stand for the whole, for example in previews.
    MvCalendarCellTypeEnum mostImportantCell = CALENDAR_CELL_TYPE_WEEKDAY;
    bool canPaintBorders = false;
    bool offersHolidays = false;      ///< editors offer to leave the names of holidays out
    bool offersHolidayColors = false; ///< and their colours
    Range range = Range::Calendar;
    bool hasDayCells = false;          ///< every day has a cell of its own
    bool hasColumns = false;           ///< free columns, whose headings are the column headers
    bool isStrip = false;              ///< low and wide: beside a photo it lies at the foot of the page
    bool namesRunningVacations = true; ///< the first day also tells of vacations that began before

    /// How many months a page shows: 12 or 1.
    int monthsPerPage() const { return range == Range::Calendar ? 1 : 12; }
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// What a person makes a calendar for.
enum class MvCalendarKind {
    Fotos,     ///< cover, a photo page for every month, back
    Planner,   ///< a page for every month or year, to be written on
    Birthdays, ///< the people of each month beside its days
};

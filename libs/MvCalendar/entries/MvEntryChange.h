// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"

/// A change of one entry: an invalid entry before adds one, an invalid entry after removes one.
struct MvEntryChange
{
    MvCalendarEvent before;
    MvCalendarEvent after;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvCalendarKind.h"

#include "MvCalendar/MvCalendariumLayoutSchemaID.h"
#include "MvProject/MvNewCalendar.h"

/// What somebody has said of a calendar that does not exist yet. A value.
struct MvCalendarDraft
{
    MvCalendarKind kind = MvCalendarKind::Fotos;
    /// Months, paper, theme, title and holidays.
    MvNewCalendar wanted;
    /// Of a planner; invalid for the usual one.
    MvCalendariumLayoutSchemaID layout;

    /// The calendar, still without photos.
    MvCalendarDocument make() const;
};

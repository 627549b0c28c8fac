// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventSource.h"

MvCalendarEventSource::~MvCalendarEventSource() = default;

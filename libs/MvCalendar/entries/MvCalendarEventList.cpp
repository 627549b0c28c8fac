// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventList.h"

MvCalendarEventList::MvCalendarEventList() = default;
MvCalendarEventList::~MvCalendarEventList() = default;
MvCalendarEventList::MvCalendarEventList(const MvCalendarEventList &) = default;
MvCalendarEventList::MvCalendarEventList(MvCalendarEventList &&) noexcept = default;
MvCalendarEventList &MvCalendarEventList::operator=(const MvCalendarEventList &) = default;
MvCalendarEventList &MvCalendarEventList::operator=(MvCalendarEventList &&) noexcept = default;

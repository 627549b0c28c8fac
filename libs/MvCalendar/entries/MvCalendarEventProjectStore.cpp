// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventProjectStore.h"

MvCalendarEventProjectStore::~MvCalendarEventProjectStore() = default;

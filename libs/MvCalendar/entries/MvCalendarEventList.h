// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QList>

/// The entries of one document, in the user's order.
class MVCALENDAR_EXPORT MvCalendarEventList : public QList<MvCalendarEvent>
{
public:
    using QList<MvCalendarEvent>::QList;
    MvCalendarEventList();
    virtual ~MvCalendarEventList();
    MvCalendarEventList(const MvCalendarEventList &);
    MvCalendarEventList(MvCalendarEventList &&) noexcept;
    MvCalendarEventList &operator=(const MvCalendarEventList &);
    MvCalendarEventList &operator=(MvCalendarEventList &&) noexcept;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvICalendarEvent.h"

#include <QSet>

bool MvICalendarEvent::take(const MvVCardProperty &property)
{
    static const QSet<QByteArray> wanted{"UID",      "SUMMARY", "DTSTART",   "DTEND",  "DURATION",
                                         "RRULE",    "RDATE",   "EXDATE",    "EXRULE", "RECURRENCE-ID",
                                         "SEQUENCE", "STATUS",  "CATEGORIES"};
    if (!wanted.contains(property.name))
        return false;
    m_properties.insert(property.name, property);
    return true;
}

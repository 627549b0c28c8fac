// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryIntake.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QByteArray>
#include <QCoreApplication>

/// Entries as iCalendar (RFC 5545): what other calendar programs write and read.
///
/// Events become entries of whole days; a time is kept and read in the time zone of this computer where the file says
/// in which it is. What cannot become an entry is named with its line. Recurrences follow MvRecurrenceRule; a changed
/// single date of a series becomes an exception and an entry of its own.
class MVCALENDAR_EXPORT MvICalendar
{
    Q_DECLARE_TR_FUNCTIONS(MvICalendar)

public:
    /// One calendar or several, in UTF-8 or Western European.
    static MvEntryReading read(const QByteArray &bytes);
    /// One calendar with the valid entries, in order. Photos stay out.
    static QByteArray toBytes(const MvCalendarEventList &events);
};

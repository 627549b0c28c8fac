// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvICalendar.h"

/// A file from elsewhere: what is read can be written in every form and read again, and what is left out is named.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const MvEntryReading reading = MvEntryIntake::read(MvFuzz::bytes(data, size), QStringLiteral("file"));
    for (const MvCalendarEvent &event : reading.events)
        MvFuzz::check(event.isValid(), "an entry has a name and a date");
    for (const MvCalendarEventFile::Skipped &skipped : reading.skipped)
        MvFuzz::check(skipped.line > 0 && !skipped.reason.isEmpty(), "what is left out has a line and a reason");
    MvFuzz::check(reading.isOk() || reading.events.isEmpty(), "a file that cannot be read has no entries");
    if (reading.events.isEmpty())
        return 0;
    for (const QByteArray &bytes : {MvICalendar::toBytes(reading.events), MvEntryTable::toBytes(reading.events)}) {
        const MvEntryReading again = MvEntryIntake::read(bytes, QStringLiteral("written"));
        MvFuzz::check(again.isOk(), "a written file can be read");
        MvFuzz::check(again.events.size() + again.skipped.size() >= reading.events.size(), "nothing is lost silently");
    }
    return 0;
}

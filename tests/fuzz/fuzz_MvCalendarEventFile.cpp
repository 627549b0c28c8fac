// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvCalendar/MvCalendarEventFile.h"

/// A list of entries: whatever is read can be written, and read again as the same entries.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto content = MvCalendarEventFile::read(MvFuzz::file(MvFuzz::bytes(data, size)));
    if (content.events.isEmpty())
        return 0;
    const auto again = MvCalendarEventFile::read(MvFuzz::file(MvCalendarEventFile::toBytes(content.events)));
    MvFuzz::check(again.error.isEmpty(), "a written list can be read");
    MvFuzz::check(again.events.size() == content.events.size(), "a written list has all entries");
    return 0;
}

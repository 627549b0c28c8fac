// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvProductBase/MvVCardReader.h"

/// A file of visiting cards: who is read has a name and a date.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const MvVCardReader::Content content = MvVCardReader::read(MvFuzz::bytes(data, size));
    for (const MvSimplePerson &person : content.persons)
        MvFuzz::check(!person.name().isEmpty() && person.birthday().isValid(), "a person has a name and a date");
    return 0;
}

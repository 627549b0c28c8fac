// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvProductBase/MvHolidayTableReader.h"

using namespace Qt::StringLiterals;

/// A file of countries, of holidays, of school vacations, and the user's own: whatever is read can be asked for a year.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QFileInfo file = MvFuzz::file(MvFuzz::bytes(data, size));
    MvHolidayTableReader(file).readCountries();
    MvHolidayTable table = MvHolidayTableReader(file).readTable();
    MvSchoolVacationTable vacations;
    MvHolidayTableReader(file).readVacations(vacations);
    MvHolidayTableReader(file).readOwn(u"DE"_s, table, vacations);
    for (const int year : {1583, 2027, 9999})
        table.holidays(year, u"BY"_s, u"de"_s);
    return 0;
}

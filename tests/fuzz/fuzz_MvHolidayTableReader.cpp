// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvProductBase/MvHolidayTableReader.h"
#include "MvXML/MvShippedXML.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Forms that no shipped file has, some of them no XML that only the careful reader lets pass.
bool isForeign(const QByteArray &bytes)
{
    static const QRegularExpression forms(uR"(<!\[|<!D|&#|encoding|[^\n -\xff]|=\s)"_s);
    return forms.match(QString::fromLatin1(bytes)).hasMatch();
}

bool isSame(const MvXMLElement &one, const MvXMLElement &other)
{
    const auto isSameAttribute = [](const auto &a, const auto &b) {
        return a.first == b.first && a.second.simplified() == b.second.simplified(); // line feeds are blanks
    };
    return one.name == other.name && std::ranges::equal(one.attributes, other.attributes, isSameAttribute) &&
           std::ranges::equal(one.children, other.children, isSame);
}

} // namespace

/// A file of countries, of holidays, of school vacations, and the user's own: whatever is read can be asked for a year.
/// The quick reader of shipped files sees in it what the careful one sees.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = MvFuzz::bytes(data, size);
    const QFileInfo file = MvFuzz::file(bytes);
    MvHolidayTableReader(file).readCountries();
    MvHolidayTable table = MvHolidayTableReader(file).readTable();
    MvSchoolVacationTable vacations;
    MvHolidayTableReader(file).readVacations(vacations);
    MvHolidayTableReader(file).readShippedVacations(vacations, {QString(), u"BY"_s}, 2027);
    MvHolidayTableReader(file).readOwn(u"DE"_s, table, vacations);
    for (const int year : {1583, 2027, 9999})
        table.holidays(year, u"BY"_s, u"de"_s);
    const MvXMLElement root = MvXMLElement::load(file);
    MvFuzz::check(root.isNull() || isForeign(bytes) || isSame(MvShippedXML(bytes).next(), root),
                  "a file is read alike, shipped or not");
    return 0;
}

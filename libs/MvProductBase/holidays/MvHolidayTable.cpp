// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayTable.h"

#include <algorithm>

namespace {

bool haveCommon(const QStringList &a, const QStringList &b)
{
    return std::any_of(a.cbegin(), a.cend(), [&b](const QString &text) { return b.contains(text); });
}

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

bool MvHolidayTable::Entry::holdsIn(const QStringList &askedRegions) const
{
    return (regions.isEmpty() || haveCommon(regions, askedRegions)) && !haveCommon(exceptRegions, askedRegions);
}

bool MvHolidayTable::Entry::holdsIn(int year) const
{
    return year >= from.value_or(year) && year <= until.value_or(year) && !exceptYears.contains(year);
}

const MvHolidayTable::Region *MvHolidayTable::region(const QString &code) const
{
    const auto found =
        std::find_if(m_regions.cbegin(), m_regions.cend(), [&code](const Region &r) { return r.code == code; });
    return found == m_regions.cend() ? nullptr : &*found;
}

QStringList MvHolidayTable::regionCodes() const
{
    QStringList codes;
    for (const Region &region : m_regions)
        codes.append(region.code);
    return codes;
}

QString MvHolidayTable::findRegion(const QString &codeOrName) const
{
    for (const Region &region : m_regions) {
        if (isSame(region.code, codeOrName))
            return region.code;
    }
    for (const Region &region : m_regions) {
        if (isSame(region.name, codeOrName) || (!region.localName.isEmpty() && isSame(region.localName, codeOrName)))
            return region.code;
    }
    return {};
}

QString MvHolidayTable::regionName(const QString &code, const QString &language) const
{
    const Region *found = region(code);
    if (!found)
        return {};
    return language == found->language && !found->localName.isEmpty() ? found->localName : found->name;
}

QStringList MvHolidayTable::regionWithParents(const QString &code) const
{
    QStringList codes;
    for (const Region *r = region(code); r && !codes.contains(r->code); r = region(r->parent))
        codes.append(r->code);
    return codes;
}

void MvHolidayTable::removeEntries(const QString &name, const QStringList &regions)
{
    if (regions.isEmpty()) {
        m_entries.removeIf([&name](const Entry &entry) { return isSame(entry.name, name); });
        return;
    }
    for (Entry &entry : m_entries) {
        if (isSame(entry.name, name))
            entry.exceptRegions.append(regions);
    }
}

int MvHolidayTable::rank(const MvCalendariumHolidayType &type)
{
    switch (type.value()) {
    case HOLIDAY_TYPE_PUBLIC:
        return 0;
    case HOLIDAY_TYPE_OPTIONAL:
        return 1;
    case HOLIDAY_TYPE_OBSERVANCE:
        return 2;
    default:
        return 3;
    }
}

QString MvHolidayTable::nameOf(const Entry &entry, const QString &code, const QString &language) const
{
    if (language == m_language)
        return entry.name;
    const Region *where = region(code);
    const QString local = where ? where->language : QString();
    return entry.names.value(language, entry.names.value(local, entry.name));
}

MvCalendariumHolidayList MvHolidayTable::holidays(int year, const QString &code, const QString &language) const
{
    const QStringList where = regionWithParents(code);
    MvCalendariumHolidayList found;
    for (const Entry &entry : m_entries) {
        if (!entry.holdsIn(where))
            continue;
        for (int ruleYear = year - 1; ruleYear <= year + 1; ++ruleYear) { // steps may cross New Year
            const QDate date = entry.holdsIn(ruleYear) ? entry.rule.dateByYear(ruleYear) : QDate();
            if (date.isValid() && date.year() == year)
                found.append({entry.type, date, nameOf(entry, code, language)});
        }
    }
    const auto isBefore = [](const MvCalendariumHoliday &a, const MvCalendariumHoliday &b) {
        return a.date() != b.date() ? a.date() < b.date() : rank(a.type()) < rank(b.type());
    };
    std::stable_sort(found.begin(), found.end(), isBefore);

    QSet<std::pair<QDate, QString>> seen;
    found.removeIf([&seen](const MvCalendariumHoliday &holiday) {
        const auto sizeBefore = seen.size();
        seen.insert({holiday.date(), holiday.description()});
        return seen.size() == sizeBefore;
    });
    return found;
}

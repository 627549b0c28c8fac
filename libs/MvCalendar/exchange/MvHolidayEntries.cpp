// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvHolidayEntries.h"

#include "MvProductBase/MvCalendariumHolidayCacheKey.h"
#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

const QUuid holidaysNamespace(u"{b1f6d6f4-1f0e-4e0c-9a41-7a1c5f5f0d2e}"_s);

QString groupName(const MvCalendariumHolidayType &type)
{
    switch (type.toInt()) {
    case HOLIDAY_TYPE_PUBLIC:
        return MvHolidayEntries::tr("Feiertage");
    case HOLIDAY_TYPE_OPTIONAL:
        return MvHolidayEntries::tr("Teils frei");
    case HOLIDAY_TYPE_OBSERVANCE:
        return MvHolidayEntries::tr("Gedenktage");
    default:
        return MvHolidayEntries::tr("Schulferien");
    }
}

} // namespace

MvCalendarEventList MvHolidayEntries::of(const MvCalendariumHolidayConfig &config, int firstYear, int lastYear,
                                         Kinds kinds)
{
    const MvCalendariumHolidayConfig all(
        config.language(), config.province(),
        MvCalendariumFeatures(FEATURE_SCHOOL_VACATIONS | FEATURE_VACATION_NAMES_DAILY));
    MvCalendariumHolidayList holidays;
    // vacations of the year before may reach into the first one; its own first ones are whole, and counted as always,
    // together with those of the year before that
    for (int year = firstYear - 2; year <= lastYear + 1; ++year)
        holidays.append(
            MvCalendariumHolidayCalculator::instance().holidaysOfYear(MvCalendariumHolidayCacheKey(year, all)));
    const QString place = all.language().language() + u'_' + all.language().country() + u'/' + all.province() + u'/';
    MvCalendarEventList entries;
    QHash<QString, int> numbers;
    const QList<Span> found = spans(holidays);
    for (const Span &span : found) {
        const QDate first = span.holiday.date();
        const QString name = span.holiday.description();
        const QString identity =
            place + QString::number(span.holiday.type().toInt()) + name + QString::number(first.year());
        const int number = ++numbers[identity]; // some vacations come twice a year
        const bool isWanted =
            kinds.testFlag(span.holiday.type() == HOLIDAY_TYPE_SCHOOL_VACATION ? Vacations : Holidays);
        if (!isWanted || name.isEmpty() || span.last.year() < firstYear || first.year() > lastYear)
            continue;
        MvCalendarEvent entry(name, MvCalendarEvent::startOf(first), false, {},
                              QUuid::createUuidV5(holidaysNamespace, identity + u'/' + QString::number(number)), {});
        entry.setEndDate(span.last);
        entry.setGroups({entries.groups().idOfName(groupName(span.holiday.type()))});
        entries.append(entry);
    }
    return entries;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumHolidayCache.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include <QReadLocker>
#include <QWriteLocker>

#include <algorithm>
#include <utility>

template class MvSingleton<MvCalendariumHolidayCache>;

QReadWriteLock MvCalendariumHolidayCache::myLock;

MvCalendariumHolidayCache::MvCalendariumHolidayCache() = default;

void MvCalendariumHolidayCache::setupInstance()
{}

bool MvCalendariumHolidayCache::isPrepared(const MvCalendariumHolidayCacheKey &key) const
{
    const QReadLocker lock(&myLock);
    return m_years.contains(key);
}

MvCalendariumHolidayList MvCalendariumHolidayCache::fetch(const MvCalendariumHolidayCacheKey &key) const
{
    const QReadLocker lock(&myLock);
    return m_years.value(key).all;
}

void MvCalendariumHolidayCache::prepareYear(const MvCalendariumHolidayCacheKey &key)
{
    const QWriteLocker lock(&myLock);
    Year year{MvCalendariumHolidayCalculator::instance().holidaysOfYear(key), {}};
    for (const MvCalendariumHoliday &holiday : std::as_const(year.all))
        year.days[holiday.date()].append(holiday);
    m_years.insert(key, year);
}

MvCalendariumHolidayList MvCalendariumHolidayCache::readHolidays(const MvCalendariumHolidayCacheKey &key)
{
    if (!isPrepared(key))
        prepareYear(key);
    return fetch(key);
}

QHash<QDate, MvCalendariumHolidayList> MvCalendariumHolidayCache::days(const MvCalendariumHolidayCacheKey &key)
{
    if (!isPrepared(key))
        prepareYear(key);
    const QReadLocker lock(&myLock);
    return m_years.value(key).days;
}

MvCalendariumHolidayList MvCalendariumHolidayCache::holidays(const MvCalendariumContentConfig &config)
{
    return config.isValid() ? days({config.year(), config.holidayConfig()}).value(config.date())
                            : MvCalendariumHolidayList();
}

QStringList MvCalendariumHolidayCache::descriptions(const MvCalendariumContentKey &key)
{
    QStringList texts;
    const MvCalendariumHolidayList found = holidays(key.config());
    for (const MvCalendariumHoliday &holiday : found) {
        if (!holiday.description().isEmpty())
            texts.append(holiday.description());
    }
    return texts;
}

bool MvCalendariumHolidayCache::hasHolidayOfType(const MvCalendariumContentKey &key,
                                                 const MvCalendariumHolidayType &type)
{
    const MvCalendariumHolidayList found = holidays(key.config());
    return std::any_of(found.cbegin(), found.cend(),
                       [&type](const MvCalendariumHoliday &holiday) { return holiday.type().hasAnyOf(type); });
}

QSet<MvCalendariumHolidayType> MvCalendariumHolidayCache::tags(const MvCalendariumContentKey &key)
{
    QSet<MvCalendariumHolidayType> types;
    const MvCalendariumHolidayList found = holidays(key.config());
    for (const MvCalendariumHoliday &holiday : found)
        types.insert(holiday.type());
    return types;
}

MvImageReference MvCalendariumHolidayCache::imageFile(const MvCalendariumContentKey &) const
{
    return {};
}

MvCalendariumHoliday MvCalendariumHolidayCache::longestHolidayName(const MvCalendariumContentConfig &config)
{
    if (m_longestOfMonths.isEmpty()) {
        const MvCalendariumHolidayList year =
            readHolidays(MvCalendariumHolidayCacheKey(config.year(), config.holidayConfig()));
        for (const MvCalendariumHoliday &holiday : year) {
            const int month = holiday.date().month();
            const auto known = m_longestOfMonths.constFind(month);
            if (known == m_longestOfMonths.constEnd() || holiday.description().size() > known->description().size())
                m_longestOfMonths.insert(month, holiday);
        }
    }
    return m_longestOfMonths.value(config.month());
}

MvCalendarEventList MvCalendariumHolidayCache::eventDays(const MvCalendariumContentConfig &config)
{
    MvCalendarEventList events;
    const MvDateRange days = config.dayRange();
    for (int index = days.firstIndex(); index <= days.lastIndexEvenIfUnvalid(); ++index)
        events.append(MvCalendarEventRegistry::instance().events(config.moveToDay(days.dayAt(index))));
    return events;
}

MvCalendarEvent MvCalendariumHolidayCache::longestEventName(const MvCalendariumContentConfig &config)
{
    const MvCalendarEventList events = eventDays(config);
    const auto longest = std::max_element(events.cbegin(), events.cend(), hasShorterDescription);
    return longest == events.cend() ? MvCalendarEvent() : *longest;
}

bool MvCalendariumHolidayCache::hasShorterDescription(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.description().size() < b.description().size();
}

MvCalendariumHolidayConfig MvCalendariumHolidayCache::makeValid(const MvCalendariumHolidayConfig &config) const
{
    MvCalendariumHolidayConfig valid = config;
    const QList<MvLocale> languages = availableLanguages();
    if (!languages.isEmpty() && !languages.contains(valid.language()))
        valid.setLanguage(languages.first());
    const QStringList provinces = availableProvinces(valid.language());
    if (!provinces.isEmpty() && !provinces.contains(valid.province()))
        valid.setProvince(provinces.first());
    return valid;
}

QList<MvLocale> MvCalendariumHolidayCache::availableLanguages() const
{
    return MvCalendariumHolidayCalculator::instance().availableLanguages();
}

QStringList MvCalendariumHolidayCache::availableProvinces(const MvLocale &language) const
{
    return MvCalendariumHolidayCalculator::instance().availableProvinces(language);
}

void MvCalendariumHolidayCache::reloadData()
{
    {
        const QWriteLocker lock(&myLock);
        m_years.clear();
    }
    m_longestOfMonths.clear();
    MvCalendariumHolidayCalculator::instance().reloadData();
}

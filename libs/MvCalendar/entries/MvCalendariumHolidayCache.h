// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvSingleton.h"
#include "MvProductBase/MvAbstractHolidayCache.h"
#include "MvProductBase/MvCalendariumHolidayCacheKey.h"
#include "MvProductBase/MvCalendariumHolidayList.h"

#include <QHash>
#include <QReadWriteLock>
#include <QSet>

class MvCalendariumHolidayCache;
extern template class MVCALENDAR_EXPORT MvSingleton<MvCalendariumHolidayCache>;

/// The official holidays and school vacations of every year and configuration asked for, computed once each and kept
/// until reloadData().
///
/// Lookups may come from any thread. The longest names and reloadData() belong to the GUI thread.
class MVCALENDAR_EXPORT MvCalendariumHolidayCache : public MvAbstractHolidayCache,
                                                    public MvSingleton<MvCalendariumHolidayCache>
{
    Q_OBJECT

public:
    MvCalendariumHolidayCache();

    bool hasHolidayOfType(const MvCalendariumContentKey &key, const MvCalendariumHolidayType &type) override;
    /// The names of the day's holidays, in order; days that print none, as those inside a vacation, are left out.
    QStringList descriptions(const MvCalendariumContentKey &key) override;
    /// Holidays carry no image: always empty.
    MvImageReference imageFile(const MvCalendariumContentKey &key) const override;

    void setupInstance() override;

    bool isPrepared(const MvCalendariumHolidayCacheKey &key) const;
    /// The holidays of a prepared year; an empty list otherwise.
    MvCalendariumHolidayList fetch(const MvCalendariumHolidayCacheKey &key) const;
    /// Computes the year, even if it is known.
    void prepareYear(const MvCalendariumHolidayCacheKey &key);
    /// The holidays of the year, computed if need be.
    MvCalendariumHolidayList readHolidays(const MvCalendariumHolidayCacheKey &key);

    /// The same by day, for those who ask about many: days without any have no place in it.
    QHash<QDate, MvCalendariumHolidayList> days(const MvCalendariumHolidayCacheKey &key);

    /// The holidays of the configuration's day; none for an invalid one.
    MvCalendariumHolidayList holidays(const MvCalendariumContentConfig &config);
    /// The kinds of the day's holidays.
    QSet<MvCalendariumHolidayType> tags(const MvCalendariumContentKey &key);

    /// The holiday with the longest name in the configuration's month, the first of equally long ones; an invalid one
    /// when the month has none. The year and configuration of the first call after reloadData() answer for all.
    MvCalendariumHoliday longestHolidayName(const MvCalendariumContentConfig &config);
    /// The personal entries of every day in the configuration's month, day by day.
    MvCalendarEventList eventDays(const MvCalendariumContentConfig &config);
    /// The one of them with the longest name, the first of equally long ones; an invalid one when there are none.
    MvCalendarEvent longestEventName(const MvCalendariumContentConfig &config);
    static bool hasShorterDescription(const MvCalendarEvent &a, const MvCalendarEvent &b);

    /// The configuration with a language and a province that there are: an unknown one becomes the first known one.
    MvCalendariumHolidayConfig makeValid(const MvCalendariumHolidayConfig &config) const;
    QList<MvLocale> availableLanguages() const;
    /// The codes of the country's regions.
    QStringList availableProvinces(const MvLocale &language) const;

public Q_SLOTS:
    /// Forgets everything and has the calculator read its data anew.
    void reloadData();

private:
    struct Year
    {
        MvCalendariumHolidayList all;
        QHash<QDate, MvCalendariumHolidayList> days;
    };

    static QReadWriteLock myLock; // guards m_years

    QHash<MvCalendariumHolidayCacheKey, Year> m_years;
    QHash<int, MvCalendariumHoliday> m_longestOfMonths; // by month, 1 to 12
};

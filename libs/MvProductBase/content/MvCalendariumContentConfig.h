// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendarWeekHeadlineOption.h"
#include "MvProductBase/MvCalendarWeekTextOption.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProductBase/MvEntryDisplay.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QDate>

/// What a calendarium shows: a date (of a page: the first day of its month) and the holiday configuration.
class MVPRODUCTBASE_EXPORT MvCalendariumContentConfig
{
public:
    MvCalendariumContentConfig() = default;
    MvCalendariumContentConfig(const QDate &date, const MvCalendariumHolidayConfig &holidayConfig);

    /// True when the date is.
    bool isValid() const { return m_date.isValid(); }

    QDate date() const { return m_date; }
    void setDate(const QDate &date) { m_date = date; }
    int year() const { return m_date.year(); }   // 0 for an invalid date
    int month() const { return m_date.month(); } // 1 to 12, 0 for an invalid date
    /// Every day of the date's month.
    MvDateRange dayRange() const { return MvDateRange::monthOf(m_date); }

    MvCalendariumHolidayConfig holidayConfig() const { return m_holidayConfig; }
    void setHolidayConfig(const MvCalendariumHolidayConfig &config) { m_holidayConfig = config; }
    MvLocale language() const { return m_holidayConfig.language(); }
    /// True when every bit of the given features is on in the holiday configuration.
    bool hasFeatures(const MvCalendariumFeatures &features) const { return m_holidayConfig.hasFeatures(features); }
    /// A copy whose holiday configuration has every bit of the feature switched on or off.
    MvCalendariumContentConfig withFeature(const MvCalendariumFeatures &feature, bool on) const;

    /// A copy at another day.
    MvCalendariumContentConfig moveToDay(const QDate &date) const;
    /// A copy at a day of the same month; a number the month does not have gives an invalid date.
    MvCalendariumContentConfig moveToDayInMonth(int day) const;

    MvCalendarWeekHeadlineOption calendarWeekHeadlineOption() const { return m_weekHeadline; }
    void setCalendarWeekHeadlineOption(const MvCalendarWeekHeadlineOption &option) { m_weekHeadline = option; }
    MvCalendarWeekTextOption calendarWeekTextOption() const { return m_weekText; }
    void setCalendarWeekTextOption(const MvCalendarWeekTextOption &option) { m_weekText = option; }

    /// Which personal entries are shown, and how they read.
    const MvEntryDisplay &entryDisplay() const { return m_entryDisplay; }
    void setEntryDisplay(const MvEntryDisplay &display) { m_entryDisplay = display; }

    bool operator==(const MvCalendariumContentConfig &) const = default;

private:
    QDate m_date;
    MvCalendariumHolidayConfig m_holidayConfig;
    MvCalendarWeekHeadlineOption m_weekHeadline;
    MvCalendarWeekTextOption m_weekText;
    MvEntryDisplay m_entryDisplay;
};

MVPRODUCTBASE_EXPORT size_t qHash(const MvCalendariumContentConfig &config, size_t seed = 0);

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvCalendariumDay.h"
#include "MvCalendar/MvSpanBars.h"
#include "MvProductBase/MvCalendariumFeatures.h"
#include "MvProductBase/MvCalendariumHolidayType.h"

#include <QDate>
#include <QHash>
#include <QPair>
#include <QSet>
#include <QStringList>

#include <map>
#include <unordered_map>

class MvCalendariumRenderer;

/// What days are on a renderer's page: holiday, vacation or plain, and what their cells say.
///
/// While a pass runs the holidays of a year are looked up once, and not at all where the page shows nothing of them; a
/// date is looked at once. Between passes, when holidays and entries may change, every question is answered anew.
class MvCalendariumDays
{
public:
    /// The renderer must outlive the days.
    explicit MvCalendariumDays(const MvCalendariumRenderer &renderer)
        : m_renderer(renderer)
    {}

    void beginPass() { m_isInPass = true; }
    void endPass();

    MvCalendariumDay day(const QDate &date) const;

    MvCalendariumHolidayList holidays(const QDate &date) const;
    QSet<MvCalendariumHolidayType> tags(const QDate &date) const;
    MvCalendarCellType headType(const QDate &date, const MvCalendariumFeatures &features) const;
    MvCalendarCellType contentType(const QDate &date, const MvCalendariumFeatures &features) const;
    MvCalendarCellTypeConfig headTypes(const QDate &date) const;
    MvCalendarCellTypeConfig contentTypes(const QDate &date) const;

    /// The names of holidays as they are, without those that print nothing.
    QStringList descriptions(const QDate &date) const;
    QStringList officialTexts(const QDate &date) const;
    QStringList personalTexts(const QDate &date) const;
    /// What the page writes of the day's entries, those that began before included; none of which nothing would be
    /// seen.
    QList<MvEventText> entries(const QDate &date) const;
    /// The bars of the day's entries that last several days.
    MvSpanBars::Bars bars(const QDate &date) const;
    /// Official, then personal ones, as far as the page shows them; of an entry that lasts several days, on its first
    /// one and where a row of the page begins.
    QStringList texts(const QDate &date) const;
    /// descriptions() with the vacations that the day lies in, whether or not they begin on it.
    QStringList descriptionsWithRunningVacations(const QDate &date) const;

private:
    using Year = QHash<QDate, MvCalendariumHolidayList>;

    enum Vacations { ByName, Daily }; ///< named on their first day, or on each
    MvCalendariumHolidayList lookUp(const QDate &date, Vacations vacations = ByName) const;
    Year lookUpYear(int year, Vacations vacations) const;
    const MvCalendariumDay &known(const QDate &date) const;
    MvCalendariumDay look(const QDate &date) const;
    MvCalendarCellType headTypeOf(const QDate &date, const MvCalendariumHolidayList &holidays,
                                  const MvCalendariumFeatures &features) const;
    MvCalendarCellType contentTypeOf(const QDate &date, const MvCalendariumHolidayList &holidays,
                                     const MvCalendariumFeatures &features) const;
    bool isHoliday(const MvCalendariumHolidayList &holidays, const MvCalendariumFeatures &features) const;
    bool hasVacationColors(const QDate &date, const MvCalendariumHolidayList &holidays) const;
    bool isWithRunningVacations(const QDate &date) const;
    QStringList officialTextsOf(const QDate &date, const MvCalendariumHolidayList &holidays) const;
    void addTexts(MvCalendariumDay &day) const;

    const MvCalendariumRenderer &m_renderer;
    bool m_isInPass = false;
    // of the pass
    mutable MvSpanBars m_bars;
    mutable std::map<QPair<int, Vacations>, Year> m_years;
    mutable std::unordered_map<qint64, MvCalendariumDay> m_days; // by Julian day
};

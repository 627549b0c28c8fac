// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvProductBase/MvCalendariumHolidayCacheKey.h"
#include "MvProductBase/MvCalendariumHolidayList.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QMutex>

#include <memory>

class MvCalendariumHolidayCalculator;
class MvHolidayBook;
extern template class MVPRODUCTBASE_EXPORT MvSingleton<MvCalendariumHolidayCalculator>;

/// Computes the holidays and school vacations of a year, for every country and region in the data files.
///
/// May be asked by any thread. A region is named by its code ("BY").
class MVPRODUCTBASE_EXPORT MvCalendariumHolidayCalculator : public MvSingleton<MvCalendariumHolidayCalculator>
{
public:
    MvCalendariumHolidayCalculator();

    /// The days by date; on one day public holidays before optional and observed ones before vacations. Nothing for a
    /// country without data; an unknown region has the holidays of the whole country.
    MvCalendariumHolidayList holidaysOfYear(const MvCalendariumHolidayCacheKey &key) const;

    /// One locale per country and language: Germany, Austria and Switzerland first, then the others by German name.
    QList<MvLocale> availableLanguages() const;
    /// The codes of the country's regions; empty for a country without regions or data.
    QStringList availableProvinces(const MvLocale &locale) const;
    /// A region's name for choosers, in the locale's language where it is spoken there, else in German; empty for an
    /// unknown code.
    QString provinceName(const MvLocale &locale, const QString &code) const;
    /// The code of the region with that code or name, whatever its case; empty when there is none.
    QString findProvince(const MvLocale &locale, const QString &codeOrName) const;

    /// Up to which day the school vacations of the region are known; invalid when none are.
    QDate vacationsKnownUntil(const MvLocale &locale, const QString &province) const;

    /// Reads the data files anew. Lists handed out before stay as they are.
    void reloadData();

private:
    std::shared_ptr<const MvHolidayBook> book() const;

    mutable QMutex m_mutex; // guards m_book
    std::shared_ptr<const MvHolidayBook> m_book;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProductBase/MvCalendariumHolidayCacheKey.h"
#include "MvProductBase/MvHolidayTable.h"
#include "MvProductBase/MvSchoolVacationTable.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>

/// Everything that the data files say about holidays. The files of a country are read when they are first asked for,
/// those of its vacations later than those of its holidays, and the shipped ones by region, the past ones last; from
/// then on it stays as it is.
///
/// May be asked by any thread.
class MVPRODUCTBASE_EXPORT MvHolidayBook
{
public:
    /// Where a shipped file lies, by its name relative to the resources ("holidays/DE.xml").
    using FileFinder = std::function<QFileInfo(const QString &name)>;

    /// The user's own file may not exist.
    MvHolidayBook(FileFinder finder, const QFileInfo &ownFile);

    /// One locale per country and language: Germany, Austria and Switzerland first, then the others by German name.
    QList<MvLocale> locales() const { return m_locales; }

    MvCalendariumHolidayList holidaysOfYear(const MvCalendariumHolidayCacheKey &key) const;

    /// The holidays of the country; an empty table for an unknown one.
    std::shared_ptr<const MvHolidayTable> table(const MvLocale &locale) const;
    QDate vacationsKnownUntil(const MvLocale &locale, const QString &region) const;

private:
    struct Country
    {
        std::shared_ptr<const MvHolidayTable> holidays;
        MvSchoolVacationTable ownVacations;                     // the user's
        std::shared_ptr<const MvSchoolVacationTable> vacations; // with the shipped ones
        QStringList regions;                                    // of which the shipped ones have been read,
        bool hasPast = false;                                   // also those that are over
    };

    void readCountries();
    Country &country(const QString &code) const;
    Country read(const QString &code) const;
    /// With the vacations of at least these regions that end in the year or later.
    std::shared_ptr<const MvSchoolVacationTable> vacations(const MvLocale &locale, const QStringList &regions,
                                                           int sinceYear) const;
    void readVacations(const QString &code, Country &country, const QStringList &regions) const;

    FileFinder m_finder;
    QFileInfo m_ownFile;
    QList<MvLocale> m_locales;
    QSet<QString> m_codes;
    mutable QMutex m_mutex; // guards m_countries
    mutable QHash<QString, Country> m_countries;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayList.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QStringList>

/// The school vacations of one country as dated spans per region.
class MVPRODUCTBASE_EXPORT MvSchoolVacationTable
{
public:
    struct Vacation
    {
        QString name;                  // in the language of the region
        QHash<QString, QString> names; // in other languages, by language code
        QDate start;                   // both included
        QDate end;
    };

    /// An empty region stands for the whole country.
    void add(const QString &region, const Vacation &vacation) { m_vacations[region].append(vacation); }
    bool isEmpty() const { return m_vacations.isEmpty(); }

    /// One entry per day of the year that lies in a vacation of one of the regions or of the whole country, by date.
    /// The name, in the language where it is known, stands on the first day of a vacation, whatever its year, or with
    /// `namesDaily` on every day.
    MvCalendariumHolidayList days(int year, const QStringList &regions, const QString &language, bool namesDaily) const;

    /// The last day of the last vacation known; single days, which are known years ahead, do not count. Invalid when
    /// none is known.
    QDate knownUntil(const QStringList &regions) const;

private:
    QList<Vacation> vacations(const QStringList &regions) const;

    QHash<QString, QList<Vacation>> m_vacations; // by region
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayType.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QDate>
#include <QString>

/// One holiday of one year, or one day of a school vacation.
class MVPRODUCTBASE_EXPORT MvCalendariumHoliday
{
public:
    MvCalendariumHoliday() = default;
    MvCalendariumHoliday(const MvCalendariumHolidayType &type, const QDate &date, const QString &description);

    /// True when it has a date and a type.
    bool isValid() const { return m_date.isValid() && m_type.isValid(); }

    MvCalendariumHolidayType type() const { return m_type; }
    QDate date() const { return m_date; }
    /// The name as printed; empty on the days of a vacation that do not carry it.
    QString description() const { return m_description; }

    bool operator==(const MvCalendariumHoliday &) const = default;

private:
    MvCalendariumHolidayType m_type;
    QDate m_date;
    QString m_description;
};

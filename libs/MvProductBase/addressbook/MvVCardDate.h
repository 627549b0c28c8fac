// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvTypedDate.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QDate>
#include <QString>

/// The date of a birthday as a program or a person wrote it onto a visiting card.
///
/// Year first with dashes, slashes, dots or nothing between, day first with dots, names of months in the larger
/// languages of Western Europe, with and without a time, with and without a year. "12/04/1985" is read differently in
/// different countries: such a date has two readings, and the others of its file may show which one is meant. Birthdays
/// lie between 1583 and today.
class MVPRODUCTBASE_EXPORT MvVCardDate
{
public:
    static constexpr int unknownYear = MvTypedDate::unknownYear;

    enum class Order { Unknown, DayFirst, MonthFirst };

    MvVCardDate() = default;
    /// A year of two digits is the latest one up to `today`. `yearForNone` is one that stands for no year.
    static MvVCardDate fromText(const QString &text, const QDate &today = QDate::currentDate(), int yearForNone = 0);

    /// As it was written, on one line.
    QString text() const { return m_text; }
    bool isEmpty() const { return m_text.isEmpty(); }
    /// Whether it has two readings that differ.
    bool isAmbiguous() const;
    /// The date; for an ambiguous one in this order. Invalid when it was not understood.
    QDate date(Order order = Order::Unknown) const;

    /// What stands between day, month and year, where their order differs from country to country; null otherwise.
    QChar separator() const { return m_separator; }
    /// The order that this date cannot but have: a number above 12 is no month.
    Order provenOrder() const { return m_provenOrder; }

private:
    QString m_text;
    QDate m_dayFirst; // the same date, unless the order matters
    QDate m_monthFirst;
    QChar m_separator;
    Order m_provenOrder = Order::Unknown;
};

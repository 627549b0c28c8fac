// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/mvproductbase_export.h"

#include <QDate>

/// The days from a first to a last one, both included. Days are numbered from firstIndex().
///
/// A range is valid when both dates are and the last is not before the first; an invalid one holds no day.
class MVPRODUCTBASE_EXPORT MvDateRange
{
public:
    MvDateRange() = default;
    MvDateRange(const QDate &start, const QDate &end);
    /// All days of the month with the given day; an invalid range for an invalid day.
    static MvDateRange monthOf(const QDate &day);

    QDate start() const { return m_start; }
    QDate end() const { return m_end; }
    void setStart(const QDate &start) { m_start = start; }
    void setEnd(const QDate &end) { m_end = end; }

    bool isValid() const { return m_start.isValid() && m_end.isValid() && m_start <= m_end; }
    bool contains(const QDate &day) const { return isValid() && m_start <= day && day <= m_end; }

    int dayCount() const { return lastIndexEvenIfUnvalid() + 1; }
    int firstIndex() const { return 0; }
    /// The number of the last day; one less than firstIndex() when the range is invalid, so that a loop runs never.
    int lastIndexEvenIfUnvalid() const;
    /// The day with the number; an invalid date outside the range.
    QDate dayAt(int index) const;

    /// How many months the range touches; 0 when invalid.
    int monthCount() const;
    /// The first day of the month with the number, counted from 0; an invalid date outside the range.
    QDate monthAt(int index) const;

    /// Where a new calendar starts: 1 January of the coming year, until the end of January that of this year.
    static QDate createDefaultCalendarStart(const QDate &today = QDate::currentDate());
    /// Twelve months from there, up to the last day of the twelfth.
    static MvDateRange createDefaultCalendarDateRange(const QDate &today = QDate::currentDate());

    bool operator==(const MvDateRange &) const = default;

private:
    QDate m_start;
    QDate m_end;
};

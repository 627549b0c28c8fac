// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QString>

/// The text of a week in the calendar-week column; `%1` stands for the number of the week.
///
/// Without a pattern of its own it follows the words of the language.
class MVPRODUCTBASE_EXPORT MvCalendarWeekTextOption
{
public:
    MvCalendarWeekTextOption() = default;
    explicit MvCalendarWeekTextOption(const QString &pattern);

    QString pattern() const { return m_pattern; }
    void setPattern(const QString &pattern) { m_pattern = pattern; }

    /// The pattern as it is printed: the configured one, else that of the language (German: "%1").
    QString textInProduct(const MvLocale &language) const;

    bool operator==(const MvCalendarWeekTextOption &) const = default;

private:
    QString m_pattern;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QString>

/// The head of the calendar-week column.
///
/// Without a pattern of its own it follows the words of the language.
class MVPRODUCTBASE_EXPORT MvCalendarWeekHeadlineOption
{
public:
    MvCalendarWeekHeadlineOption() = default;
    explicit MvCalendarWeekHeadlineOption(const QString &pattern);

    QString pattern() const { return m_pattern; }
    void setPattern(const QString &pattern) { m_pattern = pattern; }

    /// The pattern as it is printed: the configured one, else that of the language (German: "KW").
    QString textInProduct(const MvLocale &language) const;

    bool operator==(const MvCalendarWeekHeadlineOption &) const = default;

private:
    QString m_pattern;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendarWeekHeadlineOption.h"

#include "MvProductBase/MvCalendarWordsRegistry.h"

MvCalendarWeekHeadlineOption::MvCalendarWeekHeadlineOption(const QString &pattern)
    : m_pattern(pattern)
{}

QString MvCalendarWeekHeadlineOption::textInProduct(const MvLocale &language) const
{
    return m_pattern.isEmpty() ? MvCalendarWordsRegistry::instance().weekHeadline(language) : m_pattern;
}

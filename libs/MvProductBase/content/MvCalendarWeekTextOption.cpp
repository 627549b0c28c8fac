// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendarWeekTextOption.h"

#include "MvProductBase/MvCalendarWordsRegistry.h"

MvCalendarWeekTextOption::MvCalendarWeekTextOption(const QString &pattern)
    : m_pattern(pattern)
{}

QString MvCalendarWeekTextOption::textInProduct(const MvLocale &language) const
{
    return m_pattern.isEmpty() ? MvCalendarWordsRegistry::instance().weekText(language) : m_pattern;
}

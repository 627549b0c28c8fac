// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumWords.h"

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"

using namespace Qt::StringLiterals;

namespace {

const QString shortDayFormat = u"ddd"_s;
const QString longDayFormat = u"dddd"_s;
const QString shortMonthFormat = u"MMM"_s;
const QString longMonthFormat = u"MMMM"_s;

constexpr int monthFlags = calendar_render_month_number | calendar_render_month_short | calendar_render_month_long;
constexpr int yearFlags = calendar_render_year_long | calendar_render_year_short;

QString twoDigitYear(int year)
{
    return u"'%1"_s.arg(year % 100, 2, 10, QLatin1Char('0'));
}

} // namespace

QString MvCalendariumWords::dayName(int day, bool shortName) const
{
    return MvCalendarWordsRegistry::instance().dayName(m_language, day, shortName);
}

QStringList MvCalendariumWords::weekdayNames(bool shortNames) const
{
    QStringList names;
    for (int day = 1; day <= 5; ++day)
        names.append(dayName(day, shortNames));
    return names;
}

QString MvCalendariumWords::weekShort() const
{
    return MvCalendarWordsRegistry::instance().weekShort(m_language);
}

QString MvCalendariumWords::monthShort(int month) const
{
    return MvCalendarWordsRegistry::instance().monthNameShort(m_language, month);
}

QString MvCalendariumWords::monthLong(int month) const
{
    return MvCalendarWordsRegistry::instance().monthNameLong(m_language, month);
}

QStringList MvCalendariumWords::columnHeadings(const MvCalendariumAppearance &appearance) const
{
    QStringList headings = appearance.columnHeadersList();
    if (appearance.columnHeaders() == appearance.layoutSchema().suggestedColumnHeaders()) {
        for (QString &heading : headings)
            heading = MvCalendarWordsRegistry::instance().familyMember(m_language, heading);
    }
    return headings;
}

QString MvCalendariumWords::schoolYear(const QString &years) const
{
    return MvCalendarWordsRegistry::instance().schoolYear(m_language, years);
}

QString MvCalendariumWords::fromDate(const QDate &date, const QString &format) const
{
    if (format == shortDayFormat || format == longDayFormat)
        return dayName(date.dayOfWeek(), format == shortDayFormat);
    if (format == shortMonthFormat)
        return monthShort(date.month());
    if (format == longMonthFormat)
        return monthLong(date.month());
    const QLocale program = m_program.isValid() ? m_program.toQLocale() : MvApplicationLocale::instance().locale();
    return program.toString(date, format);
}

QString MvCalendariumWords::month(int month, const MvCalendarRenderingInformation &information) const
{
    switch (information.toInt() & monthFlags) {
    case calendar_render_month_number:
        return QString::number(month);
    case calendar_render_month_short:
        return monthShort(month);
    default:
        return monthLong(month);
    }
}

QString MvCalendariumWords::calendarYear(int year, const MvCalendarRenderingInformation &information)
{
    return (information.toInt() & yearFlags) == calendar_render_year_long ? QString::number(year) : twoDigitYear(year);
}

QString MvCalendariumWords::yearName(int year, const MvCalendarRenderingInformation &information)
{
    switch (information.toInt() & yearFlags) {
    case calendar_render_year_long:
        return QString::number(year);
    case calendar_render_year_short:
        return twoDigitYear(year);
    default:
        return {};
    }
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendarTitle.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProject/MvCalendarPage.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsPerYear = 12;

QString monthAndYear(const QDate &date, const MvLocale &language)
{
    const MvCalendarWordsRegistry &words = MvCalendarWordsRegistry::instance();
    return words.patterns(language).month.arg(words.monthNameLong(language, date.month()),
                                              QString::number(date.year()));
}

QString shortMonthAndYear(const QDate &date, const MvLocale &language)
{
    const MvLocale known = language.isValid() ? language : MvCalendarWordsRegistry::defaultLanguage();
    return known.toQLocale().toString(date, u"MMM yyyy"_s);
}

MvCalendarWordsRegistry::Titles titlesIn(const MvLocale &language)
{
    return MvCalendarWordsRegistry::instance().titles(language);
}

} // namespace

MvLocale MvCalendarTitle::programLanguage()
{
    return MvLocale(MvApplicationLocale::instance().locale().name());
}

QString MvCalendarTitle::ofRange(const MvDateRange &range, const MvLocale &language)
{
    if (!range.isValid())
        return {};
    const MvCalendarWordsRegistry::Titles titles = titlesIn(language);
    if (range.start().month() == 1 && range.monthCount() == monthsPerYear)
        return titles.calendar.arg(range.start().year());
    const QString from = monthAndYear(range.start(), language);
    if (range.monthCount() == 1)
        return titles.calendar.arg(from);
    return titles.calendar.arg(titles.period.arg(from, monthAndYear(range.end(), language)));
}

QString MvCalendarTitle::ofPage(const MvCalendarPage &page, const MvLocale &language)
{
    if (!page.contentConfig().date().isValid())
        return {};
    switch (page.kind()) {
    case MvPageKind::Cover:
        return titlesIn(language).cover;
    case MvPageKind::Back:
        return titlesIn(language).back;
    case MvPageKind::Free:
        return titlesIn(language).further.arg(ofMonths(page, language));
    case MvPageKind::Month:
        break;
    }
    return ofMonths(page, language);
}

QString MvCalendarTitle::ofMonths(const MvCalendarPage &page, const MvLocale &language)
{
    const QDate first = page.contentConfig().date();
    const QDate last = first.addMonths(page.monthCount() - 1);
    if (page.monthCount() == 1)
        return monthAndYear(first, language);
    if (first.year() == last.year())
        return QString::number(first.year());
    return u"%1 – %2"_s.arg(shortMonthAndYear(first, language), shortMonthAndYear(last, language));
}

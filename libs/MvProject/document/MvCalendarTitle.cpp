// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendarTitle.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProject/MvCalendarPage.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsPerYear = 12;

QString monthName(const QDate &date, const QString &format)
{
    return MvApplicationLocale::instance().locale().toString(date, format + u" yyyy"_s);
}

} // namespace

QString MvCalendarTitle::ofRange(const MvDateRange &range)
{
    if (!range.isValid())
        return {};
    if (range.start().month() == 1 && range.monthCount() == monthsPerYear)
        return tr("Kalender %1").arg(range.start().year());
    const QString from = monthName(range.start(), u"MMMM"_s);
    if (range.monthCount() == 1)
        return tr("Kalender %1").arg(from);
    return tr("Kalender %1 bis %2").arg(from, monthName(range.end(), u"MMMM"_s));
}

QString MvCalendarTitle::ofPage(const MvCalendarPage &page)
{
    if (!page.contentConfig().date().isValid())
        return {};
    switch (page.kind()) {
    case MvPageKind::Cover:
        return tr("Titelblatt");
    case MvPageKind::Back:
        return tr("Rückseite");
    case MvPageKind::Free:
        return tr("%1, weitere Seite").arg(ofMonths(page));
    case MvPageKind::Month:
        break;
    }
    return ofMonths(page);
}

QString MvCalendarTitle::ofMonths(const MvCalendarPage &page)
{
    const QDate first = page.contentConfig().date();
    const QDate last = first.addMonths(page.monthCount() - 1);
    if (page.monthCount() == 1)
        return monthName(first, u"MMMM"_s);
    if (first.year() == last.year())
        return QString::number(first.year());
    return tr("%1 – %2").arg(monthName(first, u"MMM"_s), monthName(last, u"MMM"_s));
}

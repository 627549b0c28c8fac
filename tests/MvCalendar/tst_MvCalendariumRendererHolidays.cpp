// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvPageFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRendererHolidays.h"

using namespace Qt::StringLiterals;
using MvEntries::entry;

namespace {

MvCalendariumAppearance block()
{
    return MvPageFixture::appearance({}, MvPageFixture::defaultCells(), u"CALENDAR_HOLIDAYS"_s);
}

MvCalendariumRendererHolidays &blockOf(MvPageFixture &page)
{
    return dynamic_cast<MvCalendariumRendererHolidays &>(page.renderer());
}

} // namespace

class tst_MvCalendariumRendererHolidays : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MvCalendarEventRegistry::instance().setEvents({}); }

    void holidaysOfAMonth_data();
    void holidaysOfAMonth();
    void joinsEntries_data();
    void joinsEntries();
    void entryOfEveryDay();
    void switchedOff();
};

void tst_MvCalendariumRendererHolidays::holidaysOfAMonth_data()
{
    const MvRows<QDate, int, QString> row; // month, features, html
    const int publicOnly = FEATURE_HOLIDAYS | FEATURE_PUBLIC_HOLIDAYS_ONLY;
    const int vacations = publicOnly | FEATURE_SCHOOL_VACATIONS;
    // the vacations of Bayern: 24 December 2026 to 8 January, 18 to 28 May 2027
    row("public holidays", QDate(2027, 1, 1), publicOnly, u"<p>1.1: Neujahr, 6.1: Heilige Drei Könige</p>"_s);
    row("vacation that began last year", QDate(2027, 1, 1), vacations,
        u"<p>1.1: Neujahr, 24.12-8.1: Weihnachtsferien, 6.1: Heilige Drei Könige</p>"_s);
    row("the same from the other side", QDate(2026, 12, 1), vacations,
        u"<p>24.12-8.1: Weihnachtsferien, 25.12: 1. Weihnachtstag, 26.12: 2. Weihnachtstag</p>"_s);
    row("vacation within the month", QDate(2027, 5, 1), vacations,
        u"<p>1.5: Tag der Arbeit, 6.5: Christi Himmelfahrt, 17.5: Pfingstmontag, 18.5-28.5: Pfingstferien, "
        "27.5: Fronleichnam</p>"_s);
    row("month without holidays", QDate(2027, 7, 1), publicOnly, u"<p></p>"_s);
}

void tst_MvCalendariumRendererHolidays::holidaysOfAMonth()
{
    const auto [month, features, html] = MvRows<QDate, int, QString>::current();
    MvPageFixture page(block(), month, features);
    QCOMPARE(blockOf(page).createHolidayDescription(), html);
}

void tst_MvCalendariumRendererHolidays::joinsEntries_data()
{
    const MvRows<QList<QDate>, QString> row; // dates, html
    const QString pattern = u"<p>%1: Fest</p>"_s;
    row("over the end of the month", QList<QDate>{{2020, 5, 31}, {2020, 6, 1}}, pattern.arg(u"31.5/1.6"_s));
    row("over its beginning", QList<QDate>{{2020, 4, 29}, {2020, 4, 30}, {2020, 5, 1}}, pattern.arg(u"29.4-1.5"_s));
    row("a gap parts them", QList<QDate>{{2020, 5, 3}, {2020, 5, 5}}, u"<p>3.5: Fest, 5.5: Fest</p>"_s);
    row("twice on one day is one", QList<QDate>{{2020, 5, 3}, {2019, 5, 3}}, pattern.arg(u"3.5"_s));
    row("days of other months alone", QList<QDate>{{2020, 4, 30}, {2020, 6, 1}}, u"<p></p>"_s);
}

void tst_MvCalendariumRendererHolidays::joinsEntries()
{
    const auto [dates, html] = MvRows<QList<QDate>, QString>::current();
    MvCalendarEventList events;
    for (const QDate &date : std::as_const(dates))
        events.append(entry(u"Fest"_s, date));
    MvCalendarEventRegistry::instance().setEvents(events);
    MvPageFixture page(block(), QDate(2027, 5, 1), FEATURE_ENTRIES);
    page.renderer().setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    QCOMPARE(blockOf(page).createHolidayDescription(), html);
}

void tst_MvCalendariumRendererHolidays::entryOfEveryDay()
{
    MvCalendarEventList events;
    for (QDate date(2020, 1, 1); date.year() == 2020; date = date.addDays(1))
        events.append(entry(u"<Tom & Anna>"_s, date));
    MvCalendarEventRegistry::instance().setEvents(events);
    MvPageFixture page(block(), QDate(2027, 5, 1), FEATURE_ENTRIES);
    page.renderer().setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    const QString html = blockOf(page).createHolidayDescription(); // comes to an end
    QVERIFY2(html.endsWith(u": &lt;Tom &amp; Anna&gt;</p>"_s), qPrintable(html));
}

void tst_MvCalendariumRendererHolidays::switchedOff()
{
    MvPageFixture withoutTexts(block(), QDate(2027, 5, 1), FEATURE_HOLIDAY_COLORS);
    QCOMPARE(blockOf(withoutTexts).createHolidayDescription(), u"<p></p>"_s);
    MvCalendariumAppearance silent = block();
    silent.setShowHolidays(false);
    MvPageFixture silenced(silent, QDate(2027, 5, 1), FEATURE_HOLIDAYS);
    QCOMPARE(blockOf(silenced).createHolidayDescription(), u"<p></p>"_s);
}

MV_TEST_MAIN(tst_MvCalendariumRendererHolidays)
#include "tst_MvCalendariumRendererHolidays.moc"

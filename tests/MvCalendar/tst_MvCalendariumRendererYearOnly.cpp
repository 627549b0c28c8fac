// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumRendererYearOnly.h"

using namespace Qt::StringLiterals;

class tst_MvCalendariumRendererYearOnly : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
};

void tst_MvCalendariumRendererYearOnly::texts_data()
{
    const MvRows<int, QDate, MvDateRange, QDate, QString, QString> row; // flags, page, range, date, separator, text
    const int all = calendar_render_year_long | calendar_render_all_years;
    const int school = calendar_render_year_school;
    const MvDateRange schoolYear(QDate(2024, 8, 1), QDate(2025, 7, 31));
    const MvDateRange three(QDate(2026, 12, 1), QDate(2028, 1, 31));
    const QDate august(2024, 8, 1);
    const QDate none;
    row("page's year", int(calendar_render_year_long), QDate(2025, 3, 1), schoolYear, none, u""_s, u"2025"_s);
    row("short", int(calendar_render_year_short), august, schoolYear, none, u""_s, u"'24"_s);
    row("never before the calendar", int(calendar_render_year_long), QDate(2023, 3, 1), schoolYear, none, u""_s,
        u"2024"_s);
    row("school year", (all | school), august, schoolYear, none, u""_s, u"Schuljahr 2024/2025"_s);
    row("school, one year", int(calendar_render_year_long | school), august, schoolYear, none, u""_s,
        u"Schuljahr 2024"_s);
    row("three years", all, august, three, none, u""_s, u"2026/2027/2028"_s);
    row("own separator", all, august, schoolYear, none, u" bis "_s, u"2024 bis 2025"_s);
    row("of a date", all, august, schoolYear, QDate(2031, 4, 5), u""_s, u"2031"_s);
    row("with the page's month", (all | calendar_render_month_long), QDate(2025, 3, 1), schoolYear, none, u""_s,
        u"März 2024 / März 2025"_s);
    row("with the date's month", (all | calendar_render_month_number), august, schoolYear, QDate(2031, 4, 5), u""_s,
        u"4 2031"_s);
    row("months need all years", int(calendar_render_year_long | calendar_render_month_long), august, schoolYear, none,
        u""_s, u"2024"_s);
}

void tst_MvCalendariumRendererYearOnly::texts()
{
    const auto [flags, page, range, date, separator, text] =
        MvRows<int, QDate, MvDateRange, QDate, QString, QString>::current();
    MvCalendariumAppearance appearance =
        MvPageFixture::appearance(MvCalendarRenderingInformation(flags).encodeCSV(), {}, u"CALENDAR_YEAR_ONLY"_s);
    appearance.setColumnHeaders(separator);
    MvCalendariumRendererYearOnly renderer(appearance);
    renderer.setCalendarInformation(MvPageFixture::content(page), range);
    QCOMPARE(renderer.calendarYear(date), text);
}

MV_TEST_MAIN(tst_MvCalendariumRendererYearOnly)
#include "tst_MvCalendariumRendererYearOnly.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvEaster.h"
#include "MvProductBase/MvHolidayRule.h"

#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

class tst_MvHolidayRule : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void easter_data();
    void easter();
    void dates_data();
    void dates();
    void errors_data();
    void errors();
};

// from the published tables of Easter dates, the extremes and the exceptions of the computus among them
void tst_MvHolidayRule::easter_data()
{
    const MvRows<QDate, QDate> row; // western, eastern
    row("earliest possible", QDate(1818, 3, 22), QDate(1818, 4, 26));
    row("latest possible", QDate(1943, 4, 25), QDate(1943, 4, 25));
    row("moon moved from 19 to 18 April", QDate(1954, 4, 18), QDate(1954, 4, 25));
    row("moon moved from 26 to 25 April", QDate(1981, 4, 19), QDate(1981, 4, 26));
    row("latest of the eastern churches", QDate(1983, 4, 3), QDate(1983, 5, 8));
    row("century without a leap day", QDate(1900, 4, 15), QDate(1900, 4, 22));
    row("both on one day", QDate(2025, 4, 20), QDate(2025, 4, 20));
    row("five weeks apart", QDate(2024, 3, 31), QDate(2024, 5, 5));
    row("2026", QDate(2026, 4, 5), QDate(2026, 4, 12));
    row("2027", QDate(2027, 3, 28), QDate(2027, 5, 2));
}

void tst_MvHolidayRule::easter()
{
    const auto [western, eastern] = MvRows<QDate, QDate>::current();
    QCOMPARE(MvEaster::gregorian(western.year()), western);
    QCOMPARE(MvEaster::orthodox(eastern.year()), eastern);
}

void tst_MvHolidayRule::dates_data()
{
    const MvRows<QString, int, QDate> row; // text; year; date: invalid: none by the rule of that year

    row("fixed date", u"12-25"_s, 2026, QDate(2026, 12, 25));
    row("29 February in a leap year", u"02-29"_s, 2028, QDate(2028, 2, 29));
    row("29 February in any other year", u"02-29"_s, 2027, QDate());
    row("29 February, steps of a day that is not there", u"02-29 next mon"_s, 2027, QDate());
    row("single date in its year", u"2028-06-17"_s, 2028, QDate(2028, 6, 17));
    row("single date in another year", u"2028-06-17"_s, 2029, QDate());
    row("Easter Sunday", u"easter"_s, 2027, QDate(2027, 3, 28));
    row("days before Easter, across February", u"easter-48"_s, 2028, QDate(2028, 2, 28));
    row("days after Easter", u"easter+60"_s, 2026, QDate(2026, 6, 4));
    row("eastern Good Friday", u"orthodox-2"_s, 2027, QDate(2027, 4, 30));
    row("Easter before the Gregorian calendar", u"easter+1"_s, 1500, QDate());
    row("second Sunday, month starting on it", u"sun#2 in 05"_s, 2022, QDate(2022, 5, 8));
    row("second Sunday, month starting after it", u"sun#2 in 05"_s, 2023, QDate(2023, 5, 14));
    row("first weekday on the first day", u"thu#1 in 10"_s, 2026, QDate(2026, 10, 1));
    row("last weekday on the last day", u"sat#-1 in 10"_s, 2026, QDate(2026, 10, 31));
    row("last weekday after it", u"sun#-1 in 10"_s, 2026, QDate(2026, 10, 25));
    row("last but one", u"sun#-2 in 10"_s, 2026, QDate(2026, 10, 18));
    row("fifth weekday", u"thu#5 in 10"_s, 2026, QDate(2026, 10, 29));
    row("fifth weekday of a month with four", u"mon#5 in 02"_s, 2026, QDate());
    row("last in February of a leap year", u"tue#-1 in 02"_s, 2028, QDate(2028, 2, 29));

    row("shift on", u"sun#3 in 09 +1"_s, 2026, QDate(2026, 9, 21));
    row("shift back", u"12-25 prev sun -21"_s, 2026, QDate(2026, 11, 29));
    row("shift back across New Year", u"01-01 -1"_s, 2026, QDate(2025, 12, 31));
    row("shift on across New Year", u"12-26 next mon +7"_s, 2026, QDate(2027, 1, 4));
    row("next from that weekday is a week later", u"03-02 next mon"_s, 2026, QDate(2026, 3, 9));
    row("next", u"03-03 next mon"_s, 2026, QDate(2026, 3, 9));
    row("previous from that weekday is a week earlier", u"12-25 prev fri"_s, 2026, QDate(2026, 12, 18));
    row("previous: Buß- und Bettag on its latest day", u"11-23 prev wed"_s, 2028, QDate(2028, 11, 22));
    row("from stays on the weekday", u"06-20 from sat"_s, 2026, QDate(2026, 6, 20));
    row("from goes on to it", u"06-20 from sat"_s, 2027, QDate(2027, 6, 26));
    row("upto stays on the weekday", u"06-20 upto sat"_s, 2026, QDate(2026, 6, 20));
    row("upto goes back to it", u"06-20 upto sat"_s, 2027, QDate(2027, 6, 19));
    row("only, on such a day", u"01-01 only sat,sun next mon"_s, 2028, QDate(2028, 1, 3));
    row("only, on another day", u"01-01 only sat,sun next mon"_s, 2026, QDate());
    row("not, on such a day", u"12-26 not tue,sat"_s, 2026, QDate());
    row("not, on another day", u"12-26 not tue,sat"_s, 2027, QDate(2027, 12, 26));
    row("if weekday, it is", u"04-27 if sun then -1"_s, 2025, QDate(2025, 4, 26));
    row("if weekday, it is not", u"04-27 if sun then -1"_s, 2026, QDate(2026, 4, 27));
    row("if does one step only", u"04-27 if sun then -1 +7"_s, 2026, QDate(2026, 5, 4));
    row("if Easter day, it is", u"thu#1 in 04 if easter-3 then +7"_s, 2021, QDate(2021, 4, 8));
    row("if Easter day, it is not", u"thu#1 in 04 if easter-3 then +7"_s, 2027, QDate(2027, 4, 1));
    row("two conditions, the second holds", u"mon#3 in 04 if easter-6 then -7 if easter+1 then +7"_s, 2028,
        QDate(2028, 4, 24));
    row("one of several conditions", u"02-01 if sat,orthodox,thu then from mon"_s, 2024, QDate(2024, 2, 5));
    row("blanks do not matter", u"  12-25   prev  sun "_s, 2026, QDate(2026, 12, 20));
}

void tst_MvHolidayRule::dates()
{
    const auto [text, year, date] = MvRows<QString, int, QDate>::current();
    const MvHolidayRule::Parsed parsed = MvHolidayRule::parse(text);
    QVERIFY2(parsed.isOk(), qPrintable(parsed.error));
    QCOMPARE(parsed.rule.dateByYear(year), date);
}

void tst_MvHolidayRule::errors_data()
{
    const MvRows<QString, QString> row; // text; culprit: what the message names
    row("empty", QString(), u"leer"_s);
    row("blank", u"   "_s, u"leer"_s);
    row("no month 13", u"13-01"_s, u"13-01"_s);
    row("no 30 February", u"02-30"_s, u"02-30"_s);
    row("no 29 February in that year", u"2027-02-29"_s, u"2027-02-29"_s);
    row("one-digit month", u"1-06"_s, u"1-06"_s);
    row("unknown anchor", u"ostern"_s, u"ostern"_s);
    row("shift without sign", u"easter60"_s, u"easter60"_s);
    row("upper case", u"Easter"_s, u"Easter"_s);
    row("no sixth weekday", u"mon#6 in 05"_s, u"mon#6"_s);
    row("no zeroth weekday", u"mon#0 in 05"_s, u"mon#0"_s);
    row("unknown weekday counted", u"mo#1 in 05"_s, u"mo#1"_s);
    row("in is missing", u"mon#1 05"_s, u"05"_s);
    row("month is missing", u"mon#1 in"_s, u"Monat"_s);
    row("month 0", u"mon#1 in 00"_s, u"00"_s);
    row("unknown step", u"12-25 before sun"_s, u"before"_s);
    row("step without weekday", u"12-25 prev"_s, u"Wochentag"_s);
    row("step with two weekdays", u"12-25 prev sat,sun"_s, u"sat,sun"_s);
    row("empty item of a list", u"12-25 only sat,,sun"_s, u"Wochentag"_s);
    row("too far", u"12-25 +400"_s, u"+400"_s);
    row("too far from Easter", u"easter+400"_s, u"easter+400"_s);
    row("condition is missing", u"12-25 if"_s, u"Bedingung"_s);
    row("unknown condition", u"12-25 if sat,xmas then +1"_s, u"xmas"_s);
    row("then is missing", u"12-25 if sat +1"_s, u"+1"_s);
    row("step is missing", u"12-25 if sat then"_s, u"Schritt"_s);
    row("condition in a condition", u"12-25 if sat then if sun then +1"_s, u"if"_s);
}

void tst_MvHolidayRule::errors()
{
    const auto [text, culprit] = MvRows<QString, QString>::current();
    const QString error = MvHolidayRule::parse(text).error;
    QVERIFY2(!error.isEmpty() && error.contains(culprit), qPrintable(error));
}

MV_TEST_MAIN(tst_MvHolidayRule)
#include "tst_MvHolidayRule.moc"

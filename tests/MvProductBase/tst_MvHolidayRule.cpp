// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvEaster.h"
#include "MvProductBase/MvHolidayRule.h"

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
    QTest::addColumn<QDate>("western");
    QTest::addColumn<QDate>("eastern");
    QTest::newRow("earliest possible") << QDate(1818, 3, 22) << QDate(1818, 4, 26);
    QTest::newRow("latest possible") << QDate(1943, 4, 25) << QDate(1943, 4, 25);
    QTest::newRow("moon moved from 19 to 18 April") << QDate(1954, 4, 18) << QDate(1954, 4, 25);
    QTest::newRow("moon moved from 26 to 25 April") << QDate(1981, 4, 19) << QDate(1981, 4, 26);
    QTest::newRow("latest of the eastern churches") << QDate(1983, 4, 3) << QDate(1983, 5, 8);
    QTest::newRow("century without a leap day") << QDate(1900, 4, 15) << QDate(1900, 4, 22);
    QTest::newRow("both on one day") << QDate(2025, 4, 20) << QDate(2025, 4, 20);
    QTest::newRow("five weeks apart") << QDate(2024, 3, 31) << QDate(2024, 5, 5);
    QTest::newRow("2026") << QDate(2026, 4, 5) << QDate(2026, 4, 12);
    QTest::newRow("2027") << QDate(2027, 3, 28) << QDate(2027, 5, 2);
}

void tst_MvHolidayRule::easter()
{
    QFETCH(QDate, western);
    QFETCH(QDate, eastern);
    QCOMPARE(MvEaster::gregorian(western.year()), western);
    QCOMPARE(MvEaster::orthodox(eastern.year()), eastern);
}

void tst_MvHolidayRule::dates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("year");
    QTest::addColumn<QDate>("date"); // invalid: none by the rule of that year

    QTest::newRow("fixed date") << u"12-25"_s << 2026 << QDate(2026, 12, 25);
    QTest::newRow("29 February in a leap year") << u"02-29"_s << 2028 << QDate(2028, 2, 29);
    QTest::newRow("29 February in any other year") << u"02-29"_s << 2027 << QDate();
    QTest::newRow("29 February, steps of a day that is not there") << u"02-29 next mon"_s << 2027 << QDate();
    QTest::newRow("single date in its year") << u"2028-06-17"_s << 2028 << QDate(2028, 6, 17);
    QTest::newRow("single date in another year") << u"2028-06-17"_s << 2029 << QDate();
    QTest::newRow("Easter Sunday") << u"easter"_s << 2027 << QDate(2027, 3, 28);
    QTest::newRow("days before Easter, across February") << u"easter-48"_s << 2028 << QDate(2028, 2, 28);
    QTest::newRow("days after Easter") << u"easter+60"_s << 2026 << QDate(2026, 6, 4);
    QTest::newRow("eastern Good Friday") << u"orthodox-2"_s << 2027 << QDate(2027, 4, 30);
    QTest::newRow("Easter before the Gregorian calendar") << u"easter+1"_s << 1500 << QDate();
    QTest::newRow("second Sunday, month starting on it") << u"sun#2 in 05"_s << 2022 << QDate(2022, 5, 8);
    QTest::newRow("second Sunday, month starting after it") << u"sun#2 in 05"_s << 2023 << QDate(2023, 5, 14);
    QTest::newRow("first weekday on the first day") << u"thu#1 in 10"_s << 2026 << QDate(2026, 10, 1);
    QTest::newRow("last weekday on the last day") << u"sat#-1 in 10"_s << 2026 << QDate(2026, 10, 31);
    QTest::newRow("last weekday after it") << u"sun#-1 in 10"_s << 2026 << QDate(2026, 10, 25);
    QTest::newRow("last but one") << u"sun#-2 in 10"_s << 2026 << QDate(2026, 10, 18);
    QTest::newRow("fifth weekday") << u"thu#5 in 10"_s << 2026 << QDate(2026, 10, 29);
    QTest::newRow("fifth weekday of a month with four") << u"mon#5 in 02"_s << 2026 << QDate();
    QTest::newRow("last in February of a leap year") << u"tue#-1 in 02"_s << 2028 << QDate(2028, 2, 29);

    QTest::newRow("shift on") << u"sun#3 in 09 +1"_s << 2026 << QDate(2026, 9, 21);
    QTest::newRow("shift back") << u"12-25 prev sun -21"_s << 2026 << QDate(2026, 11, 29);
    QTest::newRow("shift back across New Year") << u"01-01 -1"_s << 2026 << QDate(2025, 12, 31);
    QTest::newRow("shift on across New Year") << u"12-26 next mon +7"_s << 2026 << QDate(2027, 1, 4);
    QTest::newRow("next from that weekday is a week later") << u"03-02 next mon"_s << 2026 << QDate(2026, 3, 9);
    QTest::newRow("next") << u"03-03 next mon"_s << 2026 << QDate(2026, 3, 9);
    QTest::newRow("previous from that weekday is a week earlier") << u"12-25 prev fri"_s << 2026 << QDate(2026, 12, 18);
    QTest::newRow("previous: Buß- und Bettag on its latest day") << u"11-23 prev wed"_s << 2028 << QDate(2028, 11, 22);
    QTest::newRow("from stays on the weekday") << u"06-20 from sat"_s << 2026 << QDate(2026, 6, 20);
    QTest::newRow("from goes on to it") << u"06-20 from sat"_s << 2027 << QDate(2027, 6, 26);
    QTest::newRow("upto stays on the weekday") << u"06-20 upto sat"_s << 2026 << QDate(2026, 6, 20);
    QTest::newRow("upto goes back to it") << u"06-20 upto sat"_s << 2027 << QDate(2027, 6, 19);
    QTest::newRow("only, on such a day") << u"01-01 only sat,sun next mon"_s << 2028 << QDate(2028, 1, 3);
    QTest::newRow("only, on another day") << u"01-01 only sat,sun next mon"_s << 2026 << QDate();
    QTest::newRow("not, on such a day") << u"12-26 not tue,sat"_s << 2026 << QDate();
    QTest::newRow("not, on another day") << u"12-26 not tue,sat"_s << 2027 << QDate(2027, 12, 26);
    QTest::newRow("if weekday, it is") << u"04-27 if sun then -1"_s << 2025 << QDate(2025, 4, 26);
    QTest::newRow("if weekday, it is not") << u"04-27 if sun then -1"_s << 2026 << QDate(2026, 4, 27);
    QTest::newRow("if does one step only") << u"04-27 if sun then -1 +7"_s << 2026 << QDate(2026, 5, 4);
    QTest::newRow("if Easter day, it is") << u"thu#1 in 04 if easter-3 then +7"_s << 2021 << QDate(2021, 4, 8);
    QTest::newRow("if Easter day, it is not") << u"thu#1 in 04 if easter-3 then +7"_s << 2027 << QDate(2027, 4, 1);
    QTest::newRow("two conditions, the second holds")
        << u"mon#3 in 04 if easter-6 then -7 if easter+1 then +7"_s << 2028 << QDate(2028, 4, 24);
    QTest::newRow("one of several conditions")
        << u"02-01 if sat,orthodox,thu then from mon"_s << 2024 << QDate(2024, 2, 5);
    QTest::newRow("blanks do not matter") << u"  12-25   prev  sun "_s << 2026 << QDate(2026, 12, 20);
}

void tst_MvHolidayRule::dates()
{
    QFETCH(QString, text);
    QFETCH(int, year);
    const MvHolidayRule::Parsed parsed = MvHolidayRule::parse(text);
    QVERIFY2(parsed.isOk(), qPrintable(parsed.error));
    QTEST(parsed.rule.dateByYear(year), "date");
}

void tst_MvHolidayRule::errors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("culprit"); // what the message names
    QTest::newRow("empty") << QString() << u"leer"_s;
    QTest::newRow("blank") << u"   "_s << u"leer"_s;
    QTest::newRow("no month 13") << u"13-01"_s << u"13-01"_s;
    QTest::newRow("no 30 February") << u"02-30"_s << u"02-30"_s;
    QTest::newRow("no 29 February in that year") << u"2027-02-29"_s << u"2027-02-29"_s;
    QTest::newRow("one-digit month") << u"1-06"_s << u"1-06"_s;
    QTest::newRow("unknown anchor") << u"ostern"_s << u"ostern"_s;
    QTest::newRow("shift without sign") << u"easter60"_s << u"easter60"_s;
    QTest::newRow("upper case") << u"Easter"_s << u"Easter"_s;
    QTest::newRow("no sixth weekday") << u"mon#6 in 05"_s << u"mon#6"_s;
    QTest::newRow("no zeroth weekday") << u"mon#0 in 05"_s << u"mon#0"_s;
    QTest::newRow("unknown weekday counted") << u"mo#1 in 05"_s << u"mo#1"_s;
    QTest::newRow("in is missing") << u"mon#1 05"_s << u"05"_s;
    QTest::newRow("month is missing") << u"mon#1 in"_s << u"Monat"_s;
    QTest::newRow("month 0") << u"mon#1 in 00"_s << u"00"_s;
    QTest::newRow("unknown step") << u"12-25 before sun"_s << u"before"_s;
    QTest::newRow("step without weekday") << u"12-25 prev"_s << u"Wochentag"_s;
    QTest::newRow("step with two weekdays") << u"12-25 prev sat,sun"_s << u"sat,sun"_s;
    QTest::newRow("empty item of a list") << u"12-25 only sat,,sun"_s << u"Wochentag"_s;
    QTest::newRow("too far") << u"12-25 +400"_s << u"+400"_s;
    QTest::newRow("too far from Easter") << u"easter+400"_s << u"easter+400"_s;
    QTest::newRow("condition is missing") << u"12-25 if"_s << u"Bedingung"_s;
    QTest::newRow("unknown condition") << u"12-25 if sat,xmas then +1"_s << u"xmas"_s;
    QTest::newRow("then is missing") << u"12-25 if sat +1"_s << u"+1"_s;
    QTest::newRow("step is missing") << u"12-25 if sat then"_s << u"Schritt"_s;
    QTest::newRow("condition in a condition") << u"12-25 if sat then if sun then +1"_s << u"if"_s;
}

void tst_MvHolidayRule::errors()
{
    QFETCH(QString, text);
    QFETCH(QString, culprit);
    const QString error = MvHolidayRule::parse(text).error;
    QVERIFY2(!error.isEmpty() && error.contains(culprit), qPrintable(error));
}

MV_TEST_MAIN(tst_MvHolidayRule)
#include "tst_MvHolidayRule.moc"

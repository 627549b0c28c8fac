// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvEntryMove.h"

using namespace Qt::StringLiterals;

namespace {

/// First day, end, rule, exceptions.
QString described(const MvCalendarEvent &event)
{
    QString text = event.dateTime().date().toString(Qt::ISODate);
    if (event.endDate().isValid())
        text += u" .. "_s + event.endDate().toString(Qt::ISODate);
    if (!event.repetition().rule.isNone())
        text += u' ' + event.repetition().rule.text();
    QStringList exceptions;
    for (const QDate &date : event.repetition().exceptions)
        exceptions.append(date.toString(Qt::ISODate));
    return exceptions.isEmpty() ? text : text + u" without "_s + exceptions.join(u", "_s);
}

MvCalendarEvent entryOf(const QString &text)
{
    const QStringList words = text.section(u" without "_s, 0, 0).split(u' ');
    const auto dateAt = [&words](qsizetype place) { return QDate::fromString(words.value(place), Qt::ISODate); };
    const bool isYearly = words.constFirst() == u"yearly"_s;
    MvCalendarEvent entry = MvEntries::entry(u"Training"_s, dateAt(isYearly ? 1 : 0), {}, isYearly);
    if (const qsizetype span = words.indexOf(u".."_s); span >= 0)
        entry.setEndDate(dateAt(span + 1));
    MvEventRepetition repetition;
    if (words.constLast().startsWith(u"FREQ"_s))
        repetition.rule = MvRecurrenceRule::parse(words.constLast()).rule;
    for (const QString &date : text.section(u" without "_s, 1).split(u", "_s, Qt::SkipEmptyParts))
        repetition.exceptions.append(QDate::fromString(date, Qt::ISODate));
    entry.setRepetition(repetition);
    return entry;
}

} // namespace

/// Moving entries from day to day. The dates beside weekdays are those of the calendar on the wall.
class tst_MvEntryMove : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void moves_data();
    void moves();
    void shifts_data();
    void shifts();
};

void tst_MvEntryMove::moves_data()
{
    // after: what all times are then; empty where they cannot be moved
    const MvRows<QString, QDate, QDate, QString> add;
    const auto row = [&](const char *name, const char *given, const char *from, const char *to, const char *after) {
        add(name, QString::fromLatin1(given), QDate::fromString(QString::fromLatin1(from), Qt::ISODate),
            QDate::fromString(QString::fromLatin1(to), Qt::ISODate), QString::fromLatin1(after));
    };
    row("once", "2027-01-14", "2027-01-14", "2027-01-16", "2027-01-16");
    row("a span, taken in its middle", "2027-07-30 .. 2027-08-03", "2027-08-01", "2027-08-03",
        "2027-08-01 .. 2027-08-05");
    row("a birthday keeps its year", "yearly 1941-03-09", "2027-03-09", "2027-03-11", "1941-03-11");
    row("and goes over the end of the year", "yearly 1941-12-31", "2027-12-31", "2028-01-01", "1942-01-01");
    row("an unknown year stays so", "yearly 1604-12-31", "2027-12-31", "2028-01-01", "1604-01-01");
    row("1941 has no such day", "yearly 1941-02-28", "2028-02-28", "2028-02-29", "");
    row("weekly", "2026-09-03 FREQ=WEEKLY;UNTIL=20270225 without 2026-12-24", "2027-01-14", "2027-01-16",
        "2026-09-05 FREQ=WEEKLY;UNTIL=20270227 without 2026-12-26");
    row("one of two days a week", "2026-09-07 FREQ=WEEKLY;BYDAY=MO,TH without 2026-12-24, 2026-12-28", "2027-01-14",
        "2027-01-15", "2026-09-07 FREQ=WEEKLY;BYDAY=MO,FR without 2026-12-25, 2026-12-28");
    row("the day of the month", "2026-09-14 FREQ=MONTHLY without 2026-10-14", "2027-01-14", "2027-01-16",
        "2026-09-16 FREQ=MONTHLY without 2026-10-16");
    // the second Thursdays are 8 October and 14 January, the third Saturdays 17 October and 16 January
    row("the second Thursday", "2026-09-10 FREQ=MONTHLY;BYDAY=2TH without 2026-10-08", "2027-01-14", "2027-01-16",
        "2026-09-19 FREQ=MONTHLY;BYDAY=3SA without 2026-10-17");
    // 25 September, 29 January and 26 February 2027 are last Fridays, 28 January and 25 February last Thursdays
    row("the last Friday stays the last one", "2026-09-25 FREQ=MONTHLY;BYDAY=-1FR;UNTIL=20270226", "2027-01-29",
        "2027-01-28", "2026-09-24 FREQ=MONTHLY;UNTIL=20270225;BYDAY=-1TH");
    row("every second year", "2023-05-04 FREQ=YEARLY;INTERVAL=2", "2027-05-04", "2027-06-01",
        "2023-06-01 FREQ=YEARLY;INTERVAL=2");
    row("the second Sunday of May", "2026-05-10 FREQ=YEARLY;BYMONTH=5;BYDAY=2SU without 2028-05-14", "2027-05-09",
        "2027-06-06", "2026-06-07 FREQ=YEARLY;BYMONTH=6;BYDAY=1SU without 2028-06-04");
    row("the last day of the month", "2027-01-31 FREQ=MONTHLY;BYMONTHDAY=-1 without 2027-04-30", "2027-02-28",
        "2027-02-27", "2027-01-30 FREQ=MONTHLY;BYMONTHDAY=-2 without 2027-04-29");
    row("a day of every month, by years", "2027-01-05 FREQ=YEARLY;BYMONTHDAY=5", "2027-02-05", "2027-02-06", "");
    row("a rule that one day cannot stand for", "2026-09-03 FREQ=MONTHLY;BYDAY=MO,TH;BYSETPOS=1", "2027-01-04",
        "2027-01-05", "");
}

/// All times, this one, and a copy.
void tst_MvEntryMove::moves()
{
    const auto [given, from, to, after] = MvRows<QString, QDate, QDate, QString>::current();
    const MvCalendarEvent entry = entryOf(given);
    const MvEntryMove move(entry, from, to);
    QVERIFY(!move.isNone());
    MvCalendarEvent renamed = entry;
    renamed.setEventName(u"Probe"_s);

    QCOMPARE(move.canMoveAll(), !after.isEmpty());
    const QList<MvEntryChange> all = move.allTimes(renamed);
    QCOMPARE(all.size(), after.isEmpty() ? 0 : 1);
    if (!all.isEmpty()) {
        QCOMPARE(described(all.first().after), after);
        QCOMPARE(all.first().after.description(), u"Probe"_s);
        QCOMPARE(all.first().after.uuid(), entry.uuid());
        QVERIFY(all.first().after.isAtDay(to));
        const MvCalendarEvent copy = move.copy().first().after;
        QCOMPARE(described(copy), after);
        QVERIFY(copy.uuid() != entry.uuid() && !move.copy().first().before.isValid());
    }
    if (!MvEntryMove::doesRepeat(entry))
        return;
    const QList<MvEntryChange> once = move.thisTime(renamed);
    QCOMPARE(once.size(), 2);
    QVERIFY(!once.first().after.isAtDay(from));
    QCOMPARE(once.first().after.description(), u"Training"_s);
    QCOMPARE(described(once.last().after), to.toString(Qt::ISODate));
    QCOMPARE(once.last().after.description(), u"Probe"_s);
    QVERIFY(!MvEntryMove::doesRepeat(once.last().after));
}

void tst_MvEntryMove::shifts_data()
{
    // after: an entry of three days, without its second time
    const MvRows<QDate, QString, int, int, QString> row;
    const QDate thursday(2027, 1, 14); // the second one of the month
    const auto add = [&](const char *name, const QDate &date, const char *rule, int years, int days,
                         const char *after) {
        row(name, date, QString::fromLatin1(rule), years, days, QString::fromLatin1(after));
    };
    add("once", thursday, "", 1, 0, "2028-01-14 .. 2028-01-16");
    add("29 February", {2028, 2, 29}, "", 1, 0, "2029-02-28 .. 2029-03-02");
    add("weekly, a year", thursday, "FREQ=WEEKLY;BYDAY=TH", 1, 0,
        "2028-01-13 .. 2028-01-15 FREQ=WEEKLY;BYDAY=TH without 2028-01-20");
    add("weekly, without its day", thursday, "FREQ=WEEKLY;INTERVAL=2", -1, 0,
        "2026-01-15 .. 2026-01-17 FREQ=WEEKLY;INTERVAL=2 without 2026-01-29");
    add("two days a week, a day", thursday, "FREQ=WEEKLY;BYDAY=TH,SU", 0, 1,
        "2027-01-15 .. 2027-01-17 FREQ=WEEKLY;BYDAY=MO,FR without 2027-01-18");
    add("weekly, back", thursday, "FREQ=WEEKLY;BYDAY=TH", 0, -10,
        "2027-01-04 .. 2027-01-06 FREQ=WEEKLY;BYDAY=MO without 2027-01-11");
    add("second Thursday, a year", thursday, "FREQ=MONTHLY;BYDAY=2TH", 1, 0,
        "2028-01-13 .. 2028-01-15 FREQ=MONTHLY;BYDAY=2TH without 2028-02-10");
    add("first Friday, a year", {2027, 1, 1}, "FREQ=MONTHLY;BYDAY=1FR", 1, 0, // not the last of 2027
        "2028-01-07 .. 2028-01-09 FREQ=MONTHLY;BYDAY=1FR without 2028-02-04");
    add("second Thursday, a week", thursday, "FREQ=MONTHLY;BYDAY=2TH", 0, 7,
        "2027-01-21 .. 2027-01-23 FREQ=MONTHLY;BYDAY=3TH without 2027-02-18");
    add("last Friday, a year", {2027, 1, 29}, "FREQ=MONTHLY;BYDAY=-1FR", 1, 0,
        "2028-01-28 .. 2028-01-30 FREQ=MONTHLY;BYDAY=-1FR without 2028-02-25");
    add("second Sunday of May", {2027, 5, 9}, "FREQ=YEARLY;BYMONTH=5;BYDAY=2SU", 1, 0,
        "2028-05-14 .. 2028-05-16 FREQ=YEARLY;BYMONTH=5;BYDAY=2SU without 2029-05-13");
    add("day of the month", {2027, 1, 31}, "FREQ=MONTHLY;BYMONTHDAY=31", 0, -1,
        "2027-01-30 .. 2027-02-01 FREQ=MONTHLY;BYMONTHDAY=30 without 2027-03-30");
    add("last day, a year", {2027, 2, 28}, "FREQ=MONTHLY;BYMONTHDAY=-1", 1, 0,
        "2028-02-29 .. 2028-03-02 FREQ=MONTHLY;BYMONTHDAY=-1 without 2028-03-31");
    add("a rule that cannot say it", {2027, 1, 4}, "FREQ=MONTHLY;BYDAY=MO,TH;BYSETPOS=1", 1, 0,
        "2028-01-03 .. 2028-01-05 FREQ=MONTHLY;BYDAY=MO,TH;BYSETPOS=1 without 2028-01-31");
}

/// The dates beside weekdays are those of the calendar on the wall.
void tst_MvEntryMove::shifts()
{
    auto [date, rule, years, days, after] = MvRows<QDate, QString, int, int, QString>::current();
    MvCalendarEvent entry = MvEntries::entry(u"Training"_s, date, {}, false);
    MvEventRepetition repetition;
    repetition.rule = MvRecurrenceRule::parse(rule).rule;
    entry.setRepetition(repetition);
    QDate second = entry.startsInYear(date.year()).value(1);
    if (!second.isValid())
        second = entry.startsInYear(date.year() + 1).value(0);
    repetition.exceptions = {second};
    repetition.normalize();
    entry.setRepetition(repetition);
    entry.setEndDate(date.addDays(2));
    QCOMPARE(described(MvEntryMove::shifted(entry, years, days)), after);
}

MV_TEST_MAIN(tst_MvEntryMove)
#include "tst_MvEntryMove.moc"

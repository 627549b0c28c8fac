// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvTest.h"

#include "MvCalendar/MvEntryMove.h"

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *name;
    QDate date;
    bool isYearly;
    const char *rule;
    QList<QDate> exceptions;
    QDate end;
    QDate from;
    QDate to;
    const char *after; // what all times are then: first day, rule, exceptions, end; empty where they cannot be moved
};

const Row rows[] = {
    {"once", {2027, 1, 14}, false, "", {}, {}, {2027, 1, 14}, {2027, 1, 16}, "2027-01-16"},
    {"a span, taken in its middle",
     {2027, 7, 30},
     false,
     "",
     {},
     {2027, 8, 3},
     {2027, 8, 1},
     {2027, 8, 3},
     "2027-08-01 .. 2027-08-05"},
    {"a birthday keeps its year", {1941, 3, 9}, true, "", {}, {}, {2027, 3, 9}, {2027, 3, 11}, "1941-03-11"},
    {"and goes over the end of the year", {1941, 12, 31}, true, "", {}, {}, {2027, 12, 31}, {2028, 1, 1}, "1942-01-01"},
    {"an unknown year stays so", {1604, 12, 31}, true, "", {}, {}, {2027, 12, 31}, {2028, 1, 1}, "1604-01-01"},
    {"1941 has no such day", {1941, 2, 28}, true, "", {}, {}, {2028, 2, 28}, {2028, 2, 29}, ""},
    {"weekly",
     {2026, 9, 3},
     false,
     "FREQ=WEEKLY;UNTIL=20270225",
     {{2026, 12, 24}},
     {},
     {2027, 1, 14},
     {2027, 1, 16},
     "2026-09-05 FREQ=WEEKLY;UNTIL=20270227 without 2026-12-26"},
    {"one of two days a week",
     {2026, 9, 7},
     false,
     "FREQ=WEEKLY;BYDAY=MO,TH",
     {{2026, 12, 24}, {2026, 12, 28}},
     {},
     {2027, 1, 14},
     {2027, 1, 15},
     "2026-09-07 FREQ=WEEKLY;BYDAY=MO,FR without 2026-12-25, 2026-12-28"},
    {"the day of the month",
     {2026, 9, 14},
     false,
     "FREQ=MONTHLY",
     {{2026, 10, 14}},
     {},
     {2027, 1, 14},
     {2027, 1, 16},
     "2026-09-16 FREQ=MONTHLY without 2026-10-16"},
    // the second Thursdays are 8 October and 14 January, the third Saturdays 17 October and 16 January
    {"the second Thursday",
     {2026, 9, 10},
     false,
     "FREQ=MONTHLY;BYDAY=2TH",
     {{2026, 10, 8}},
     {},
     {2027, 1, 14},
     {2027, 1, 16},
     "2026-09-19 FREQ=MONTHLY;BYDAY=3SA without 2026-10-17"},
    // 25 September, 29 January and 26 February 2027 are last Fridays, 28 January and 25 February last Thursdays
    {"the last Friday stays the last one",
     {2026, 9, 25},
     false,
     "FREQ=MONTHLY;BYDAY=-1FR;UNTIL=20270226",
     {},
     {},
     {2027, 1, 29},
     {2027, 1, 28},
     "2026-09-24 FREQ=MONTHLY;UNTIL=20270225;BYDAY=-1TH"},
    {"every second year",
     {2023, 5, 4},
     false,
     "FREQ=YEARLY;INTERVAL=2",
     {},
     {},
     {2027, 5, 4},
     {2027, 6, 1},
     "2023-06-01 FREQ=YEARLY;INTERVAL=2"},
    {"a rule that one day cannot stand for",
     {2026, 9, 3},
     false,
     "FREQ=MONTHLY;BYDAY=MO,TH;BYSETPOS=1",
     {},
     {},
     {2027, 1, 4},
     {2027, 1, 5},
     ""},
};

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

} // namespace

/// Moving entries from day to day. The dates beside weekdays are those of the calendar on the wall.
class tst_MvEntryMove : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void moves_data();
    void moves();
};

void tst_MvEntryMove::moves_data()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < std::size(rows); ++i)
        QTest::newRow(rows[i].name) << int(i);
}

/// All times, this one, and a copy.
void tst_MvEntryMove::moves()
{
    QFETCH(int, row);
    const Row &given = rows[row];
    MvCalendarEvent entry = MvEntries::entry(u"Training"_s, given.date, {}, given.isYearly);
    MvEventRepetition repetition;
    repetition.rule = MvRecurrenceRule::parse(QString::fromLatin1(given.rule)).rule;
    repetition.exceptions = given.exceptions;
    entry.setRepetition(repetition);
    entry.setEndDate(given.end);
    const MvEntryMove move(entry, given.from, given.to);
    QVERIFY(!move.isNone());
    MvCalendarEvent renamed = entry;
    renamed.setEventName(u"Probe"_s);

    const QString after = QString::fromLatin1(given.after);
    QCOMPARE(move.canMoveAll(), !after.isEmpty());
    const QList<MvEntryChange> all = move.allTimes(renamed);
    QCOMPARE(all.size(), after.isEmpty() ? 0 : 1);
    if (!all.isEmpty()) {
        QCOMPARE(described(all.first().after), after);
        QCOMPARE(all.first().after.description(), u"Probe"_s);
        QCOMPARE(all.first().after.uuid(), entry.uuid());
        QVERIFY(all.first().after.isAtDay(given.to));
        const MvCalendarEvent copy = move.copy().first().after;
        QCOMPARE(described(copy), after);
        QVERIFY(copy.uuid() != entry.uuid() && !move.copy().first().before.isValid());
    }
    if (!MvEntryMove::doesRepeat(entry))
        return;
    const QList<MvEntryChange> once = move.thisTime(renamed);
    QCOMPARE(once.size(), 2);
    QVERIFY(!once.first().after.isAtDay(given.from));
    QCOMPARE(once.first().after.description(), u"Training"_s);
    QCOMPARE(described(once.last().after), given.to.toString(Qt::ISODate));
    QCOMPARE(once.last().after.description(), u"Probe"_s);
    QVERIFY(!MvEntryMove::doesRepeat(once.last().after));
}

MV_TEST_MAIN(tst_MvEntryMove)
#include "tst_MvEntryMove.moc"

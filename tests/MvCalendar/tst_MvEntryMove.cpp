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
    void moves_data() { MvRows<QString, QDate, QDate, QString>().read(u"entry-moves"_s); }
    void moves();
    void shifts_data() { MvRows<QDate, QString, int, int, QString>().read(u"entry-shifts"_s); }
    void shifts();
};

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

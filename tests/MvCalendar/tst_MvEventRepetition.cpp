// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventIndex.h"
#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvEventText.h"
#include "MvCalendar/MvRecurrenceDates.h"
#include "MvCalendar/MvRepetitionWords.h"
#include "MvProductBase/MvEntryDisplay.h"

using namespace Qt::StringLiterals;
using LeapDay = MvEventRepetition::LeapDay;

class tst_MvEventRepetition : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsRules_data();
    void readsRules();
    void understandsWords_data();
    void understandsWords();
    void fallsOnTheDaysOfAnotherProgram_data();
    void fallsOnTheDaysOfAnotherProgram();
    void entryFallsOn_data();
    void entryFallsOn();
    void keepsItsFile();
    void mergesFields();
    void readsAsItsGroupSays();

private:
    static MvCalendarEvent entry(const QDate &date, const QString &rule, LeapDay leapDay = LeapDay::LeapYearsOnly)
    {
        MvCalendarEvent event = MvEntries::entry(u"E"_s, date);
        MvEventRepetition repetition;
        repetition.rule = rule.isEmpty() ? MvRecurrenceRule() : MvRecurrenceRule::parse(rule).rule;
        repetition.leapDay = leapDay;
        event.setRepetition(repetition);
        return event;
    }
};

void tst_MvEventRepetition::readsRules_data()
{
    const MvRows<QString, QString> row; // text, expected
    row.read(u"recurrence-rules"_s);
    row("", QString(), u"FREQ"_s);
}

void tst_MvEventRepetition::readsRules()
{
    const auto [text, expected] = MvRows<QString, QString>::current();
    const MvRecurrenceRuleReading reading = MvRecurrenceRule::parse(text);
    if (!reading.isOk()) {
        QVERIFY2(reading.error.contains(expected), qPrintable(reading.error));
        return;
    }
    QCOMPARE(reading.rule.text(), expected);
    QCOMPARE(MvRecurrenceRule::parse(expected).rule, reading.rule);
}

void tst_MvEventRepetition::understandsWords_data()
{
    const MvRows<QString, QString> row; // words, expected
    row.read(u"repetition-words"_s);
    row("", QString(), u"?"_s);
    for (const char *rule : {"FREQ=DAILY;INTERVAL=3;COUNT=4", "FREQ=WEEKLY;INTERVAL=2;UNTIL=20271231;BYDAY=MO,SU",
                             "FREQ=MONTHLY;INTERVAL=3;BYDAY=-2SA", "FREQ=MONTHLY;BYDAY=4WE",
                             "FREQ=MONTHLY;BYMONTHDAY=-1", "FREQ=YEARLY;INTERVAL=5;UNTIL=20401231"})
        row(rule, MvRecurrenceRule::parse(QString::fromLatin1(rule)).rule.describe(), QString::fromLatin1(rule));
}

void tst_MvEventRepetition::understandsWords()
{
    const auto [words, expected] = MvRows<QString, QString>::current();
    const MvRepetitionWords read(words);
    const QString rule = read.rule().isNone() ? (read.isYearly() ? u"yearly"_s : u"once"_s) : read.rule().text();
    QVERIFY(read.isOk() || read.error().contains(u'„' + words + u'“'));
    QCOMPARE(read.isOk() ? rule : u"?"_s, expected);
}

void tst_MvEventRepetition::fallsOnTheDaysOfAnotherProgram_data()
{
    const MvRows<int> row;                                               // seed
    const int rows = qEnvironmentVariableIsEmpty("MV_NIGHTLY") ? 1 : 34; // more than 5,000 rules
    for (int seed = 1; seed <= rows; ++seed)
        row(QString::asprintf("seed %d", seed), seed);
}

void tst_MvEventRepetition::fallsOnTheDaysOfAnotherProgram()
{
    const auto [seed] = MvRows<int>::current();
    QProcess other;
    other.start(u"python3"_s, {QFINDTESTDATA("random_rules.py"), QString::number(seed), u"150"_s});
    if (!other.waitForFinished(-1) || other.exitCode() == 77)
        QSKIP("python3-dateutil is missing");
    QCOMPARE(other.exitCode(), 0);
    const QStringList lines = QString::fromLatin1(other.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 150);
    for (const QString &line : lines) {
        QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        const QDate start = QDate::fromString(words.takeFirst(), u"yyyyMMdd"_s);
        const QString text = words.takeFirst();
        const MvRecurrenceRuleReading reading = MvRecurrenceRule::parse(text);
        QVERIFY2(reading.isOk(), qPrintable(text + u": "_s + reading.error));
        QStringList dates;
        for (int year = start.year(); year < start.year() + 10; ++year) {
            for (const QDate &date : MvRecurrenceDates::inYear(reading.rule, start, year))
                dates.append(date.toString(u"yyyyMMdd"_s));
        }
        QVERIFY2(dates == words, qPrintable(start.toString() + u' ' + text + u"\nhere:  "_s + dates.join(u' ') +
                                            u"\nthere: "_s + words.join(u' ')));
    }
}

void tst_MvEventRepetition::entryFallsOn_data()
{
    const MvRows<MvCalendarEvent, QList<QDate>, QList<QDate>> row; // event, on, notOn
    using Dates = QList<QDate>;

    const QDate leap(2000, 2, 29);
    row("leap years only", entry(leap, {}), Dates{{2028, 2, 29}}, Dates{{2027, 2, 28}, {2027, 3, 1}});
    row("28 February", entry(leap, {}, LeapDay::February28), Dates{{2028, 2, 29}, {2027, 2, 28}},
        Dates{{2028, 2, 28}, {2027, 3, 1}});
    row("1 March, every second year", entry(leap, u"FREQ=YEARLY;INTERVAL=2"_s, LeapDay::March1),
        Dates{{2028, 2, 29}, {2026, 3, 1}}, Dates{{2027, 3, 1}, {2028, 3, 1}, {1998, 3, 1}});
    row("before its beginning", entry({2027, 1, 4}, u"FREQ=WEEKLY"_s), Dates{{2027, 1, 4}, {2028, 1, 3}},
        Dates{{2026, 12, 28}, {2027, 1, 5}});
    row("last week of the year before", entry({2021, 12, 25}, u"FREQ=YEARLY;BYWEEKNO=52;BYDAY=SA"_s),
        Dates{{2022, 1, 1}, {2022, 12, 31}}, Dates{{2027, 1, 2}, {2023, 1, 7}});
    MvCalendarEvent dates = entry({2027, 1, 4}, u"FREQ=WEEKLY"_s);
    MvEventRepetition repetition = dates.repetition();
    repetition.exceptions = {{2027, 1, 18}};
    repetition.extraDates = {{2027, 1, 20}, {2027, 1, 11}, {2027, 1, 20}};
    dates.setRepetition(repetition);
    row("exceptions and dates of its own", dates, Dates{{2027, 1, 11}, {2027, 1, 20}}, Dates{{2027, 1, 18}});
    MvCalendarEvent trip = MvEntries::entry(u"E"_s, {2026, 12, 28}, {}, false);
    trip.setEndDate({2027, 1, 3});
    row("span over new year", trip, Dates{{2026, 12, 28}, {2027, 1, 1}, {2027, 1, 3}},
        Dates{{2026, 12, 27}, {2027, 1, 4}, {2027, 12, 28}});
    MvCalendarEvent fair = MvEntries::entry(u"E"_s, {2020, 12, 30});
    fair.setEndDate({2021, 1, 2});
    row("yearly span", fair, Dates{{2027, 1, 2}, {2027, 12, 31}}, Dates{{2027, 1, 3}, {2027, 12, 29}});
}

void tst_MvEventRepetition::entryFallsOn()
{
    const auto [event, on, notOn] = MvRows<MvCalendarEvent, QList<QDate>, QList<QDate>>::current();
    // among others, in list order
    const MvCalendarEventIndex index(
        {MvEntries::entry(u"first"_s, on.first()), event, MvEntries::entry(u"last"_s, on.first())});
    const auto names = [&index](const QDate &day) {
        QStringList found;
        index.visit(day, [&found](const MvCalendarEvent &visited) {
            found.append(visited.description());
            return false;
        });
        return found;
    };
    QCOMPARE(names(on.first()), (QStringList{u"first"_s, u"E"_s, u"last"_s}));
    for (const QDate &day : on)
        QVERIFY2(event.isAtDay(day) && names(day).contains(u"E"_s), qPrintable(day.toString()));
    for (const QDate &day : notOn)
        QVERIFY2(!event.isAtDay(day) && !names(day).contains(u"E"_s), qPrintable(day.toString()));
}

void tst_MvEventRepetition::keepsItsFile()
{
    MvCalendarEventList list{MvEntries::entry(u"plain"_s, {1990, 5, 17})};
    const QByteArray plain = MvCalendarEventFile::toBytes(list);
    QVERIFY(!plain.contains("LeapDay") && !plain.contains("Group"));

    MvCalendarEvent full = entry({2027, 1, 4}, u"FREQ=WEEKLY;BYDAY=FR,MO"_s, LeapDay::March1);
    MvEventRepetition repetition = full.repetition();
    repetition.exceptions = {{2027, 1, 8}};
    repetition.extraDates = {{2027, 1, 9}};
    full.setRepetition(repetition);
    full.setEndDate({2027, 1, 5});
    full.setTime({19, 30});
    full.setGroups({list.groups().idOfName(u"Verein „Süd“ & Söhne"_s), u"fort"_s});
    list.append(full);
    list.groups()[0].color = Qt::darkGreen;
    list.groups()[0].entryText = u"%name (%age)"_s;

    QTemporaryDir folder;
    const QString file = folder.filePath(u"list.xml"_s);
    const auto readBack = [&file](const QByteArray &bytes) {
        return MvTestFiles::write(file, bytes) ? MvCalendarEventFile::read(QFileInfo(file))
                                               : MvCalendarEventFile::Content();
    };
    const QByteArray bytes = MvCalendarEventFile::toBytes(list);
    const MvCalendarEventFile::Content content = readBack(bytes);
    QVERIFY2(content.isComplete, qPrintable(content.error));
    QCOMPARE(content.events, list);
    QCOMPARE(content.events.groups(), list.groups());
    QCOMPARE(MvCalendarEventFile::toBytes(content.events), bytes);

    // what cannot be read is left out and named, so that nothing is written over it
    const std::pair<const char *, const char *> faults[] = {{"FREQ=WEEKLY", "FREQ=HOURLY"},
                                                            {"2027-01-08", "2027-02-30"},
                                                            {">19:30<", ">25:00<"},
                                                            {"march1", "may1"},
                                                            {"#008000", "leafy"}};
    for (const auto &[right, wrong] : faults) {
        const MvCalendarEventFile::Content broken = readBack(QByteArray(bytes).replace(right, wrong));
        QVERIFY2(!broken.isComplete && broken.skipped.size() == 1, wrong);
        QVERIFY(broken.skipped.first().line > 2 && !broken.skipped.first().reason.isEmpty());
    }
}

void tst_MvEventRepetition::mergesFields()
{
    MvCalendarEventList base{entry({2027, 1, 4}, u"FREQ=WEEKLY"_s)};
    MvCalendarEventList mine = base;
    MvCalendarEventList theirs = base;
    const QString club = mine.groups().idOfName(u"Verein"_s);
    mine[0].setGroups({club});
    theirs.groups().idOfName(u"Familie"_s);
    theirs[0].setEndDate({2027, 1, 5});
    QVERIFY(!(mine.first() == base.first()) && !(theirs.first() == base.first()));
    const MvCalendarEventList merged = MvCalendarEventMerge::threeWay(base, mine, theirs);
    QCOMPARE(merged.size(), 1);
    QCOMPARE(merged.first().groups(), QStringList{club});
    QCOMPARE(merged.first().endDate(), QDate(2027, 1, 5));
    QCOMPARE(merged.first().repetition(), base.first().repetition());
    QCOMPARE(merged.groups().size(), 2);
    mine.groups().clear(); // removed here, unchanged there
    QCOMPARE(MvCalendarEventMerge::threeWay(merged, mine, merged).groups().size(), 0);
    const MvEventGroupList &both = merged.groups();
    const MvEventGroupList turned{both.at(1), both.at(0)};
    QCOMPARE(MvEventGroupList::merged(both, both, turned), turned); // whoever put them into another order
    QCOMPARE(MvEventGroupList::merged(both, turned, both), turned);
}

void tst_MvEventRepetition::readsAsItsGroupSays()
{
    MvEventGroupList groups;
    const QString family = groups.idOfName(u"Familie"_s);
    groups[0].entryText = u"%name wird %age"_s;
    groups[0].symbol = u"★"_s;
    MvCalendarEvent birthday = MvEntries::entry(u"Jörg %age"_s, {1967, 3, 1});
    const MvEntryDisplay ages{{}, u"%name (%age, %year)"_s, false};
    const auto text = [&](const MvEntryDisplay &display, const QDate &day) {
        return MvEventText::of(birthday, day, groups, display).text;
    };
    QCOMPARE(text({}, {2027, 3, 1}), u"Jörg %age"_s);
    QCOMPARE(text(ages, {2027, 3, 1}), u"Jörg %age (60, 1967)"_s);
    const MvEntryDisplay round{{}, MvEventText::withRoundMarked(ages.text, true), false};
    QVERIFY(MvEventText::marksRound(round.text) && !MvEventText::marksRound(ages.text));
    QCOMPARE(MvEventText::withRoundMarked(round.text, false), ages.text);
    for (const auto &[year, age] : QList<std::pair<int, QString>>{
             {1992, u"25!"_s}, {2016, u"49"_s}, {2017, u"50!"_s}, {2027, u"60!"_s}, {2042, u"75!"_s}, {2043, u"76"_s}})
        QCOMPARE(text(round, {year, 3, 1}), u"Jörg %age (%1, 1967)"_s.replace(u"%1"_s, age));
    QCOMPARE(text(round, {1967, 3, 1}), u"Jörg %age"_s);
    QCOMPARE(text(ages, {1967, 3, 1}), u"Jörg %age"_s); // not yet one year
    const int now = QDate::currentDate().year();
    birthday.setDateTime(QDate(now, 3, 1).startOfDay()); // typed in at a day of this year
    QCOMPARE(text(ages, {now + 2, 3, 1}), u"Jörg %age"_s);
    birthday.setDateTime(QDate(1967, 3, 1).startOfDay());
    birthday.setGroups({u"unknown"_s, family});
    QCOMPARE(text(ages, {2027, 3, 1}), u"★ Jörg %age wird 60"_s);
    QVERIFY(!MvEventText::isShown(birthday, {{family, u"unknown"_s}, {}, false}));
    QVERIFY(MvEventText::isShown(birthday, {{family}, {}, false}));
    birthday.setDateTime(QDate(MvCalendarEvent::unknownYear, 3, 1).startOfDay());
    QCOMPARE(text(ages, {2027, 3, 1}), u"★ Jörg %age"_s);
    birthday.setRepetition(entry({2020, 1, 1}, u"FREQ=MONTHLY"_s).repetition());
    birthday.setDateTime(QDate(1967, 3, 1).startOfDay());
    QCOMPARE(text(ages, {2027, 3, 1}), u"★ Jörg %age"_s); // a date of each month has no age
}

MV_TEST_MAIN(tst_MvEventRepetition)
#include "tst_MvEventRepetition.moc"

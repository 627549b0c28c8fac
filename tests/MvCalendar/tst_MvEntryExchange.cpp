// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvTest.h"

#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvICalendar.h"

#include <QRandomGenerator>

#include <ctime>

using namespace Qt::StringLiterals;

class tst_MvEntryExchange : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void comesBackAsItWas();
    void takenTwiceAddsNothing();
    void survivesBrokenFiles();

private:
    /// "2027-03-01–2027-03-05 19:30 Name [rule] {groups}", by line.
    static QString told(const MvEntryReading &reading)
    {
        QStringList lines;
        for (const MvCalendarEvent &event : reading.events) {
            QString line = event.dateTime().date().toString(Qt::ISODate);
            if (event.endDate().isValid())
                line += u'-' + event.endDate().toString(Qt::ISODate);
            if (event.time().isValid())
                line += event.time().toString(u" HH:mm"_s);
            line += u' ' + event.description();
            if (!event.repetition().rule.isNone() || event.storedRecurrent())
                line += u" ["_s + event.repetition().rule.text() + u']';
            for (const QDate &date : event.repetition().exceptions)
                line += u" not "_s + date.toString(Qt::ISODate);
            for (const QDate &date : event.repetition().extraDates)
                line += u" also "_s + date.toString(Qt::ISODate);
            for (const QString &group : event.groups())
                line += u" {"_s + reading.events.groups().find(group)->name + u'}';
            lines.append(line);
        }
        for (const MvCalendarEventFile::Skipped &skipped : reading.skipped)
            lines.append(u"%1: %2: %3"_s.arg(QString::number(skipped.line), skipped.name, skipped.reason));
        return lines.join(u'\n');
    }
    static MvCalendarEventList everything();
};

void tst_MvEntryExchange::reads_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const auto calendar = [](const QByteArray &event) {
        return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\n" + event + "END:VEVENT\r\nEND:VCALENDAR\r\n";
    };
    const auto row = [](const char *name, const QByteArray &bytes, const QString &expected) {
        QTest::newRow(name) << bytes << expected;
    };
    row("whole days, folded, escaped",
        calendar("DTSTART;VALUE=DATE:20270301\r\nDTEND;VALUE=DATE:20270306\r\nSUMMARY:Klausuren\\, Klas\r\n se 5b\r\n"
                 "CATEGORIES:Schule,Klasse 5b\r\n"),
        u"2027-03-01-2027-03-05 Klausuren, Klasse 5b {Schule} {Klasse 5b}"_s);
    row("birthday", calendar("DTSTART;VALUE=DATE:19670301\r\nSUMMARY:J\xc3\xb6rg\r\nRRULE:FREQ=YEARLY\r\n"),
        u"1967-03-01 Jörg []"_s);
    row("Western European", calendar("DTSTART:20270301\r\nSUMMARY:J\xf6rg\r\n"), u"2027-03-01 Jörg"_s);
    row("time of the zone, exceptions, a date of its own",
        calendar(
            "DTSTART;TZID=Europe/Berlin:20270104T193000\r\nSUMMARY:Chor\r\nRRULE:FREQ=WEEKLY;UNTIL=20270201T183000Z"
            "\r\nEXDATE;TZID=Europe/Berlin:20270111T193000\r\nRDATE;VALUE=PERIOD:20270112T193000/PT2H\r\n"),
        u"2027-01-04 19:30 Chor [FREQ=WEEKLY;UNTIL=20270201] not 2027-01-11 also 2027-01-12"_s);
    row("a date of a series that was moved",
        "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\nDTSTART:20270104\nSUMMARY:Chor\nRRULE:FREQ=WEEKLY\nEND:VEVENT\n"
        "BEGIN:VEVENT\nUID:a\nRECURRENCE-ID:20270111\nDTSTART:20270113\nSUMMARY:Chor\nEND:VEVENT\nEND:VCALENDAR\n",
        u"2027-01-04 Chor [FREQ=WEEKLY] not 2027-01-11\n2027-01-13 Chor"_s);
    row("night over the end of the day", calendar("DTSTART:20271231T200000\nDURATION:PT6H\nSUMMARY:Silvester\n"),
        u"2027-12-31-2028-01-01 20:00 Silvester"_s);
    row("what no calendar has", calendar("DTSTART:20270230\nSUMMARY:A\n"),
        u"3: A: das Datum „20270230“ ist nicht zu lesen"_s);
    row("what no clock has", calendar("DTSTART:20270201T250000\nSUMMARY:A\n"),
        u"3: A: das Datum „20270201T250000“ ist nicht zu lesen"_s);
    row("every second", calendar("DTSTART:19700101\nSUMMARY:A\nRRULE:FREQ=SECONDLY\n"),
        u"3: A: die Wiederholung ist nicht auszuwerten: sie wiederholt sich öfter als einmal am Tag"_s);
    row("cut", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nSUMMARY:A\nDTSTART:2027", u"2: A: die Datei endet mittendrin"_s);
    row("called off, and a task",
        "BEGIN:VCALENDAR\nBEGIN:VTODO\nSUMMARY:T\nEND:VTODO\nBEGIN:VEVENT\nSTATUS:CANCELLED\nSUMMARY:A\n"
        "DTSTART:20270101\nEND:VEVENT\nEND:VCALENDAR\n",
        u"2: T: Aufgaben und Notizen sind keine Einträge\n5: A: der Termin ist abgesagt"_s);

    row("table of a spreadsheet",
        "Datum;Termin;Gruppe;Uhrzeit\r\n17.05.2027;Sommerfest;Verein, Jugend;14:30\r\n18.5.27;\"Probe; "
        "\"\"lang\"\"\";;\r\n",
        u"2027-05-17 14:30 Sommerfest {Verein} {Jugend}\n2027-05-18 Probe; \"lang\""_s);
    row("of another country, with tabs", "Subject\tStart Date\tEnd Date\nFair\t5/17/2027\t5/19/2027\nTea\t6/1/2027\t\n",
        u"2027-05-17-2027-05-19 Fair\n2027-06-01 Tea"_s);
    row("Windows-1252, without headings", "J\xf6rg;17.05.1941\nErika;29.02.\nUwe;1.4.1950\nIda;2.4.1961\n",
        u"1941-05-17 Jörg []\n1604-02-29 Erika []\n1950-04-01 Uwe []\n1961-04-02 Ida []"_s);
    row("rows that are none", "Datum,Name,Uhrzeit\n30.02.2027,A,\n01.03.2027,,\n02.03.2027,C,25:00\n03.03.2027,D,\n",
        u"2027-03-03 D\n2: A: das Datum „30.02.2027“ ist nicht zu lesen\n3: : der Name fehlt\n"
        "4: C: die Uhrzeit „25:00“ ist nicht zu lesen"_s);
}

void tst_MvEntryExchange::reads()
{
    QFETCH(QByteArray, bytes);
    qputenv("TZ", "Europe/Berlin");
    tzset();
    const MvEntryReading reading = MvEntryIntake::read(bytes, u"file"_s);
    QVERIFY2(reading.isOk(), qPrintable(reading.error));
    QTEST(told(reading), "expected");
}

MvCalendarEventList tst_MvEntryExchange::everything()
{
    MvCalendarEventList list{
        MvEntries::entry(u"Oma; \"Erika\", die Ältere"_s, {1941, 5, 17}),
        MvEntries::entry(u"Ein Name, der länger ist als eine Zeile von fünfundsiebzig Bytes: äöü"_s, {2027, 3, 1}, {},
                         false),
        MvEntries::entry(u"Schalttag"_s, {2000, 2, 29}), MvEntries::entry(u"Chor"_s, {2027, 1, 4}),
        MvEntries::entry(u"Ohne Jahr"_s, {MvCalendarEvent::unknownYear, 2, 29})};
    list[0].setGroups({list.groups().idOfName(u"Familie"_s), list.groups().idOfName(u"Große & Kleine"_s)});
    list[1].setEndDate({2027, 3, 9});
    list[1].setTime({8, 0});
    MvEventRepetition repetition;
    repetition.leapDay = MvEventRepetition::LeapDay::February28;
    list[2].setRepetition(repetition);
    repetition.leapDay = MvEventRepetition::LeapDay::March1;
    list[4].setRepetition(repetition);
    repetition = {MvRecurrenceRule::parse(u"FREQ=MONTHLY;BYDAY=-1FR;UNTIL=20271231"_s).rule,
                  {{2027, 5, 28}},
                  {{2027, 6, 1}, {2027, 6, 2}},
                  {}};
    list[3].setRepetition(repetition);
    list[3].setRecurrent(false);
    return list;
}

void tst_MvEntryExchange::comesBackAsItWas()
{
    const MvCalendarEventList list = everything();
    const QByteArray calendar = MvICalendar::toBytes(list);
    for (const QByteArray &line : calendar.split('\n'))
        QVERIFY(line.size() <= 76);
    for (const QByteArray &bytes : {calendar, MvEntryTable::toBytes(list), MvEntryTable::toBytes(list, u'\t')}) {
        const MvEntryReading reading = MvEntryIntake::read(bytes, u"file"_s);
        MvEntryIntake::Report report;
        const MvCalendarEventList all = MvEntryIntake::joined(list, reading, &report);
        QCOMPARE(report.skipped.size(), 0);
        QCOMPARE(reading.events.size(), list.size());
        for (qsizetype i = 0; i < list.size(); ++i) {
            QCOMPARE(reading.events.at(i).uuid(), list.at(i).uuid());
            QCOMPARE(reading.events.at(i).repetition().leapDay, list.at(i).repetition().leapDay);
        }
        // an iCalendar says that the first day of a series is one of it, whatever its rule
        QCOMPARE(report.equal + report.changed, int(list.size()));
        QVERIFY2(report.changed <= 1, bytes.constData());
        QCOMPARE(all.groups().size(), 2);
    }
}

void tst_MvEntryExchange::takenTwiceAddsNothing()
{
    MvEntryReading reading = MvEntryIntake::read(MvICalendar::toBytes(everything()), u"file"_s);
    MvEntryIntake::Report report;
    const MvCalendarEventList own{MvEntries::entry(u"Eigener"_s, {2027, 1, 1})};
    const MvCalendarEventList once = MvEntryIntake::joined(own, reading, &report);
    QCOMPARE(report.added, int(reading.events.size()));
    QCOMPARE(once.first(), own.first());
    const MvCalendarEventList twice = MvEntryIntake::joined(once, reading, &report);
    QCOMPARE(report.equal, int(reading.events.size()));
    QCOMPARE(twice, once);
    reading.events[1].setDateTime(QDate(2027, 3, 2).startOfDay());
    MvEntryIntake::joined(twice, reading, &report);
    QVERIFY(report.changed == 1 && report.added == 0);
}

void tst_MvEntryExchange::survivesBrokenFiles()
{
    QRandomGenerator random(20270301);
    const QByteArray whole[] = {MvICalendar::toBytes(everything()), MvEntryTable::toBytes(everything())};
    for (int i = 0; i < 100; ++i) {
        QByteArray broken = whole[i % 2];
        for (int change = 0; change < 3; ++change) {
            const qsizetype at = random.bounded(broken.size());
            switch (random.bounded(3)) {
            case 0:
                broken.truncate(at + 1);
                break;
            case 1:
                broken[at] = char(random.bounded(256));
                break;
            default:
                broken.remove(at, random.bounded(40));
                broken.append('x');
            }
        }
        const MvEntryReading reading = MvEntryIntake::read(broken, u"file"_s);
        QVERIFY(reading.isOk() || reading.error.startsWith(u"file: "));
        for (const MvCalendarEvent &event : reading.events)
            QVERIFY(event.isValid());
        for (const MvCalendarEventFile::Skipped &skipped : reading.skipped)
            QVERIFY(skipped.line > 0 && !skipped.reason.isEmpty());
    }
}

MV_TEST_MAIN(tst_MvEntryExchange)
#include "tst_MvEntryExchange.moc"

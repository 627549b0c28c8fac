// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvHolidayEntries.h"
#include "MvCalendar/MvICalendar.h"
#include "MvCore/MvLocale.h"

#include <libical/ical.h>

#include <ctime>

using namespace Qt::StringLiterals;
using MvTestFiles::contentOf;

class tst_MvEntryExchange : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void fotosOfCards();
    void comesBackAsItWas();
    void isUnderstoodByAnotherProgram();
    void holidaysOfTheCountry();
    void takenTwiceAddsNothing();
    void partsWithoutEnd_data();
    void partsWithoutEnd();
    void eventsOfNoCalendar();

private:
    static QDir corpus() { return QDir(QStringLiteral(MV_TEST_DATA "/../fuzz/seeds/fuzz_MvEntryIntake")); }
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
        for (const QString &note : reading.notes)
            lines.append(u"note: "_s + note);
        return lines.join(u'\n');
    }
    static MvCalendarEventList everything();
};

/// Files as other programs write them, and what stands in them.
void tst_MvEntryExchange::reads_data()
{
    const MvRows<QByteArray, QString> row; // bytes, expected
    const QDir told(QStringLiteral(MV_TEST_DATA "/exchange"));
    for (const QString &name : told.entryList({u"*.txt"_s}, QDir::Files))
        row(name, contentOf(corpus().filePath(name.chopped(4))),
            QString::fromUtf8(contentOf(told.filePath(name))).trimmed());
    row("table without headings, in Windows-1252",
        QByteArray("J\xf6rg;17.05.1941\nErika;29.02.\nUwe;1.4.1950\nIda;2.4.1961\n"),
        u"1941-05-17 Jörg []\n1604-02-29 Erika []\n1950-04-01 Uwe []\n1961-04-02 Ida []"_s);
}

void tst_MvEntryExchange::reads()
{
    const auto [bytes, expected] = MvRows<QByteArray, QString>::current();
    qputenv("TZ", "Europe/Berlin");
    tzset();
    const MvEntryReading reading = MvEntryIntake::read(bytes, u"file"_s);
    QVERIFY2(reading.isOk(), qPrintable(reading.error));
    QCOMPARE(told(reading), expected);
}

/// One that is too large is refused in words, and the birthday is taken nevertheless.
void tst_MvEntryExchange::fotosOfCards()
{
    const auto card = [](const QByteArray &name, const QByteArray &foto) {
        return "BEGIN:VCARD\nVERSION:3.0\nFN:" + name + "\nBDAY:1990-05-17\nPHOTO;ENCODING=b;TYPE=JPEG:" + foto +
               "\nEND:VCARD\n";
    };
    const QByteArray small =
        contentOf(QStringLiteral(MV_TEST_DATA "/../fuzz/seeds/fuzz_MvGuardedImageReader/photo.jpg"));
    MvEntryReading reading = MvEntryIntake::read(
        card("Erna", small.toBase64()) + card("Uwe", QByteArray(20 << 20, 'A')) + card("Ida", "AAAA"), u"file"_s);
    QCOMPARE(MvEntries::names(reading.events), (QStringList{u"Erna"_s, u"Uwe"_s, u"Ida"_s}));
    QCOMPARE(contentOf(reading.events.first().imagePath().filePath()), small);
    QCOMPARE(reading.notes.size(), 2);
    QVERIFY2(reading.notes.first().contains(u"Zeile 7, „Uwe“"_s) && reading.notes.first().contains(u"16 MB"_s),
             qPrintable(reading.notes.first()));
    const QString folder = reading.events.first().imagePath().path();
    reading = {};
    QVERIFY(!QDir(folder).exists());
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

void tst_MvEntryExchange::isUnderstoodByAnotherProgram()
{
    MvCalendarEventList list = everything();
    list.append(MvEntries::entry(u"Zweiter einer Reihe"_s, {2027, 1, 5}));
    list.last() =
        MvCalendarEvent(u"Zweiter einer Reihe"_s, QDate(2027, 1, 5).startOfDay(), true, {}, list.first().uuid(), {});
    const QByteArray bytes = MvICalendar::toBytes(list);
    const std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)> calendar(
        icalparser_parse_string(bytes.constData()), &icalcomponent_free);
    QVERIFY(calendar && icalrestriction_check(calendar.get()));
    QCOMPARE(icalcomponent_count_errors(calendar.get()), 0);
    QSet<QByteArray> uids;
    qsizetype number = 0;
    for (icalcomponent *event = icalcomponent_get_first_component(calendar.get(), ICAL_VEVENT_COMPONENT); event;
         event = icalcomponent_get_next_component(calendar.get(), ICAL_VEVENT_COMPONENT)) {
        const MvCalendarEvent &entry = list.at(number++);
        uids.insert(icalcomponent_get_uid(event));
        QCOMPARE(QString::fromUtf8(icalcomponent_get_summary(event)), entry.description());
        const icaltimetype start = icalcomponent_get_dtstart(event);
        QCOMPARE(QDate(start.year, start.month, start.day), entry.dateTime().date());
        const icaltimetype end = icalcomponent_get_dtend(event);
        const QDate last = QDate(end.year, end.month, end.day).addDays(end.is_date ? -1 : 0);
        QCOMPARE(last, entry.dateTime().date().addDays(entry.dayCount() - 1));
    }
    QCOMPARE(number, list.size());
    QCOMPARE(uids.size(), list.size());
}

/// Bavaria's, as its ministry announced them.
void tst_MvEntryExchange::holidaysOfTheCountry()
{
    const MvCalendariumHolidayConfig bavaria(MvLocale(u"de"_s, u"DE"_s), u"BY"_s);
    const auto all = MvHolidayEntries::Holidays | MvHolidayEntries::Vacations;
    const MvCalendarEventList days = MvHolidayEntries::of(bavaria, 2027, 2027, all);
    const QString said = told(MvEntryIntake::read(MvICalendar::toBytes(days), u"file"_s));
    for (const QString &line :
         {u"2026-12-24-2027-01-08 Weihnachtsferien {Schulferien}"_s,
          u"2027-08-02-2027-09-13 Sommerferien {Schulferien}"_s, u"2027-03-26 Karfreitag {Feiertage}"_s,
          u"2027-01-06 Heilige Drei Könige {Feiertage}"_s})
        QVERIFY2(said.contains(line), qPrintable(said));
    qputenv("SOURCE_DATE_EPOCH", "1000000000");
    QCOMPARE(MvICalendar::toBytes(days).count("DTSTAMP:20010909T014640Z"), days.size());
    qunsetenv("SOURCE_DATE_EPOCH");
    MvEntryIntake::Report report;
    MvEntryReading next;
    next.events = MvHolidayEntries::of(bavaria, 2020, 2028, all); // the vacations over new year are the same
    QSet<QUuid> known;
    for (const MvCalendarEvent &event : std::as_const(next.events))
        known.insert(event.uuid());
    for (const MvCalendarEvent &event : days)
        QVERIFY2(known.contains(event.uuid()), qPrintable(event.description()));
    MvEntryIntake::joined(days, next, &report);
    QCOMPARE(report.equal, int(days.size()));
    QCOMPARE(report.changed, 0);
    QCOMPARE(MvHolidayEntries::of(bavaria, 2027, 2027, MvHolidayEntries::Holidays).size() +
                 MvHolidayEntries::of(bavaria, 2027, 2027, MvHolidayEntries::Vacations).size(),
             days.size());
}

void tst_MvEntryExchange::partsWithoutEnd_data()
{
    const MvRows<QByteArray> row; // content
    row("components within each other",
        QByteArray("BEGIN:A\n").repeated(20000) + QByteArray("END:B\n").repeated(20000));
    row("one name, thousands of rules",
        QByteArray("BEGIN:VEVENT\nUID:1\nDTSTART:20270101\nSUMMARY:A\nRRULE:FREQ=DAILY\nEND:VEVENT\n").repeated(3000));
}

void tst_MvEntryExchange::partsWithoutEnd()
{
    const auto [content] = MvRows<QByteArray>::current();
    const MvEntryReading reading = MvEntryIntake::read("BEGIN:VCALENDAR\n" + content, u"file"_s);
    QVERIFY(reading.isOk() || reading.error.startsWith(u"file: "));
    QVERIFY(reading.events.size() + reading.skipped.size() >= content.count("BEGIN:VEVENT"));
    MvEntryIntake::Report report;
    QCOMPARE(MvEntryIntake::joined(reading.events, reading, &report).size(), reading.events.size());
}

/// Its first line is damaged: what follows is no calendar's, and is not taken beside a message that says so.
void tst_MvEntryExchange::eventsOfNoCalendar()
{
    const MvEntryReading reading = MvEntryIntake::read("BEGIN:VCALENDAR\x01\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:a\r\n"
                                                       "DTSTART;VALUE=DATE:20270301\r\nSUMMARY:Probe\r\nEND:VEVENT\r\n"
                                                       "END:VCALENDAR\r\n",
                                                       u"file"_s);
    QVERIFY(reading.error.contains(u"kein Kalender"_s));
    QVERIFY(reading.events.isEmpty());
}

MV_TEST_MAIN(tst_MvEntryExchange)
#include "tst_MvEntryExchange.moc"

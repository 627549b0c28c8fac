// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventLines.h"
#include "MvCalendar/MvCalendarEventTexts.h"
#include "MvCalendar/MvEntryIntake.h"
#include "MvXML/MvXMLBuilder.h"

#include <QDomDocument>

using namespace Qt::StringLiterals;

class tst_MvCalendarEventFile : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void linesAreReadAsXml();
    void largeListsAreRead();
    void shortensWhatWasSkipped();
    void writesWhatADocumentWould();
};

void tst_MvCalendarEventFile::reads_data()
{
    // skipped: all of them, one a line; refusal: part of it
    const MvRows<QByteArray, QString, QString, QString> newRow;

    const auto list = [](const QByteArray &entries, const QByteArray &declaration = {}) {
        return declaration + "<CalendarEvents>\n" + entries + "</CalendarEvents>";
    };
    const auto entry = [](const QByteArray &name, const QByteArray &date = "1950-05-17T00:00:00") {
        return "<CalendarEvent><Name>" + name + "</Name><DateTime>" + date + "</DateTime></CalendarEvent>\n";
    };
    const auto encoded = [&](const char *encoding, QStringConverter::Flag mark) {
        QStringEncoder encode(*QStringConverter::encodingForName(encoding), mark);
        const QString declaration = u"<?xml version=\"1.0\" encoding='%1'?>\n"_s.arg(QLatin1StringView(encoding));
        return QByteArray(encode(declaration + QString::fromUtf8(list(entry("Jürgen")))));
    };
    const auto row = [&](const char *name, const QByteArray &bytes, const QString &names, const QString &skipped = {},
                         const QString &refusal = {}) { newRow(name, bytes, names, skipped, refusal); };
    using Flag = QStringConverter::Flag;
    row("UTF-16 with a mark", encoded("UTF-16", Flag::WriteBom), u"Jürgen"_s);
    row("UTF-16BE without", encoded("UTF-16BE", Flag::Default), u"Jürgen"_s);
    row("UTF-32", encoded("UTF-32", Flag::WriteBom), u"Jürgen"_s);
    row("ISO 8859-1", list(entry("J\xfcrgen"), "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"), u"Jürgen"_s);
    row("no entries", "<CalendarEvents/>", {});
    row("an empty element is nothing", list("<CalendarEvent/>" + entry("A")), u"A"_s);
    row("date in another form", list(entry("A") + entry("Oma  Erika", "17.05.1941") + entry("B")), u"A B"_s,
        u"Zeile 3, „Oma Erika“: das Datum „17.05.1941“ ist nicht zu lesen"_s);
    row("impossible date, long text", list(entry(QByteArray(100, 'x'), "1900-02-29T00:00:00")), {},
        u"Zeile 2, „%1…“: das Datum „1900-02-29T00:00:00“ ist nicht zu lesen"_s.arg(QString(60, u'x')));
    row("no name, no date", list(entry("") + "<CalendarEvent><UUID/></CalendarEvent>"), {},
        u"Zeile 2: der Name fehlt\nZeile 3: der Name fehlt, das Datum fehlt"_s);
    row("element that is no entry", list("<calendarevent><Name>A</Name></calendarevent>" + entry("B")), u"B"_s,
        u"Zeile 2, „calendarevent“: das ist kein Eintrag"_s);
    row("another document", "<?xml version=\"1.0\"?><Layouts>" + entry("A") + "</Layouts>", {}, {},
        u"liste.xml: Das ist keine Liste von Kalendereinträgen; die Datei beginnt mit „Layouts“"_s);
    row("cut off", list(entry("A")).chopped(5), {}, {}, u"liste.xml:3:13: Die Datei endet zu früh."_s);
    row("declares what it is not", list(entry("A"), "<?xml version=\"1.0\" encoding=\"UTF-16\"?>"), {}, {},
        u"liste.xml:1:"_s);
}

void tst_MvCalendarEventFile::reads()
{
    const auto [bytes, names, skipped, refusal] = MvRows<QByteArray, QString, QString, QString>::current();
    const QTemporaryDir dir;
    const QFileInfo file(dir.filePath(u"liste.xml"_s));
    QVERIFY(MvTestFiles::write(file.filePath(), bytes));
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(file);
    QCOMPARE(MvEntries::names(content.events).join(u' '), names);
    QCOMPARE(MvCalendarEventFile::describe(content.skipped, 9), skipped);
    QVERIFY2(content.refusal().contains(refusal), qPrintable(content.refusal()));
    QCOMPARE(content.refusal().isEmpty(), refusal.isEmpty());
    QCOMPARE(content.isComplete, skipped.isEmpty() && refusal.isEmpty());
}

/// The fast way gives what an XML reader gives, which a comment at the end calls for; whatever became of the file.
void tst_MvCalendarEventFile::linesAreReadAsXml()
{
    const QTemporaryDir dir;
    const auto read = [file = QFileInfo(dir.filePath(u"liste.xml"_s))](const QByteArray &bytes) {
        return MvTestFiles::write(file.filePath(), bytes) ? MvCalendarEventFile::read(file)
                                                          : MvCalendarEventFile::Content();
    };
    MvCalendarEventList events{MvEntries::entry(u"Jürgen & <Käthe>"_s, {1904, 2, 29}),
                               MvEntries::entry(u" zwei\nZeilen\r]]> "_s, {1950, 12, 31}, {}, false),
                               MvEntries::entry(u"😀"_s, {2001, 3, 1})};
    events[1].setEndDate({1951, 1, 2});
    events[1].setGroups({events.groups().idOfName(u"Familie"_s)});
    QByteArray original = MvCalendarEventFile::toBytes(events);
    original.replace("2001-03-01T", "2001-02-29T"); // is left out
    original.replace("</CalendarEvents>", "<CalendarEvent><Name/>\n</CalendarEvent>\n</CalendarEvents>");
    const QByteArrayList parts =
        QByteArray("<|>|&|&lt;|&#13;|/|\n|\r|\t| |]]>|\xc3\x84|\xef\xbb\xbf|\xef\xbf\xbe|\xc3|\x01|"
                   "A|</|<Name>|<CalendarEvent>|-|9|")
            .split('|');
    QRandomGenerator random(1941);
    const int turns = qEnvironmentVariableIsSet("MV_NIGHTLY") ? 100'000 : 500;
    int ofLines = 0;
    for (int turn = 0; turn < turns; ++turn) {
        QByteArray bytes = original;
        if (turn > 0)
            bytes.replace(random.bounded(int(bytes.size())), random.bounded(3),
                          parts.at(random.bounded(int(parts.size()))));
        MvCalendarEventLines lines(bytes);
        while (lines.next())
            lines.texts();
        QVERIFY(turn > 0 || lines.isAtEnd());
        if (!lines.isAtEnd())
            continue;
        ++ofLines;
        const MvCalendarEventFile::Content found = read(bytes);
        const MvCalendarEventFile::Content expected = read(bytes + "<!---->");
        QVERIFY2(expected.isRead() && found.isRead() && found.events == expected.events &&
                     found.events.groups() == expected.events.groups(),
                 bytes.constData());
        QCOMPARE(MvCalendarEventFile::describe(found.skipped, 9), MvCalendarEventFile::describe(expected.skipped, 9));
    }
    QVERIFY(ofLines > turns / 10);
}

/// What can be written can be read, also by whoever takes any file: more than a million elements, and larger ones.
void tst_MvCalendarEventFile::largeListsAreRead()
{
    QByteArray bytes = MvCalendarEventFile::toBytes({MvEntries::entry(u"Oma"_s, {1941, 1, 9})});
    const qsizetype begin = bytes.indexOf("  <CalendarEvent>");
    const QByteArray entry = bytes.mid(begin, bytes.indexOf("</CalendarEvents>") - begin);
    bytes.insert(begin, entry.repeated(150'000) + QByteArray(MvEntryIntake::largestFile / 2, ' '));
    const QTemporaryDir dir;
    const QFileInfo file(dir.filePath(u"liste.xml"_s));
    QVERIFY(bytes.size() > MvEntryIntake::largestFile && MvTestFiles::write(file.filePath(), bytes));
    const MvEntryReading reading = MvEntryIntake::read(file);
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.events.size(), 1); // equal ones count once
}

void tst_MvCalendarEventFile::shortensWhatWasSkipped()
{
    const QList<MvCalendarEventFile::Skipped> skipped(14, {7, {}, u"X"_s});
    QCOMPARE(MvCalendarEventFile::describe(skipped, 2), u"Zeile 7: X\nZeile 7: X\n… und 12 weitere"_s);
}

void tst_MvCalendarEventFile::writesWhatADocumentWould()
{
    MvCalendarEventList events;
    QDomDocument document;
    MvXMLBuilder::buildUTF8ProcessingInstructions(document);
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"CalendarEvents"_s);
    QCOMPARE(MvCalendarEventFile::toBytes({}), document.toByteArray(2));
    const QString names[] = {u"Jürgen"_s,
                             u"A & B"_s,
                             u"<x>"_s,
                             u" y "_s,
                             u"   "_s,
                             u"1\t2\n3\r4"_s,
                             u"\"'"_s,
                             u"😀"_s,
                             u"]]>"_s,
                             {},
                             u"\x01z"_s,
                             QString(QChar(0xd800)),
                             QString(QChar(0xa0))};
    for (const QString &name : names) {
        events.append(
            MvCalendarEvent(name, QDateTime::currentDateTime(), false, MvFoto(), QUuid::createUuid(), QDateTime()));
        if (events.last().isValid())
            events.last().createXML(root);
    }
    QCOMPARE(MvCalendarEventFile::toBytes(events), document.toByteArray(2));
}

MV_TEST_MAIN(tst_MvCalendarEventFile)
#include "tst_MvCalendarEventFile.moc"

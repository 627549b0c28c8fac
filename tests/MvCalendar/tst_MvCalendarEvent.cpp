// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvFreshFolderTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventFotoFinder.h"
#include "MvCalendar/MvCalendarEventTexts.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvFoto/MvFotoAccess.h"

#include <QDomDocument>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

using MvEntries::entry;

class tst_MvCalendarEvent : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isAtDay_data() { MvRows<QDate, bool, QDate, bool>().read(u"entry-days"_s); }
    void isAtDay();
    void baseOrder();
    void comparesWithoutUuid();
    void textForms();
    void roundTrip_data();
    void roundTrip();
    void readsDefaults();
    void readsSkippedMidnights_data();
    void readsSkippedMidnights();
    void invalidEntryIsEmptyElement();
    void setFotoCopies();
    void unreadableFotoWarns();
    void keepsTheFormerFoto_data();
    void keepsTheFormerFoto();
    void fotoPaths_data() { MvRows<QString, QString, bool>().read(u"entry-photo-paths"_s); }
    void fotoPaths();
    void movedUserFolder();
};

static QDomElement parsed(QDomDocument &document, const QString &xml)
{
    document.setContent(xml);
    return document.documentElement();
}

void tst_MvCalendarEvent::init()
{
    MvFreshFolderTest::init();
    MvDirectoryConfig::instance().setProgramDataDir(path(u"mv"_s)); // what lies beside it is somebody else's
}

void tst_MvCalendarEvent::isAtDay()
{
    const auto [date, recurrent, day, isAtDay] = MvRows<QDate, bool, QDate, bool>::current();
    const MvCalendarEvent event = entry(u"x"_s, date, {}, recurrent);
    QCOMPARE(event.isAtDay(day), isAtDay);
    QVERIFY(event.isRecurrent()); // whatever is stored
    QCOMPARE(event.storedRecurrent(), recurrent);
}

void tst_MvCalendarEvent::baseOrder()
{
    const QDate day(2000, 1, 1);
    const QList<MvCalendarEvent> ascending = {entry(u"Z"_s, day, {}, false), entry(u"A"_s, day),
                                              entry(u"A"_s, day.addDays(1)), entry(u"B"_s, day), MvCalendarEvent()};
    for (qsizetype i = 0; i < ascending.size(); ++i) {
        for (qsizetype k = 0; k < ascending.size(); ++k)
            QCOMPARE(ascending.at(i) < ascending.at(k), i < k);
    }
    QVERIFY(MvTestFiles::writeFoto(MvCalendarEvent::imageDirectory().filePath(u"a.png"_s)));
    MvCalendarEvent withFoto = ascending.at(1);
    withFoto.setFoto(MvFoto(QFileInfo(MvCalendarEvent::imageDirectory().filePath(u"a.png"_s))));
    QVERIFY(!(withFoto == ascending.at(1)));
    QVERIFY(!(withFoto < ascending.at(1)) && !(ascending.at(1) < withFoto)); // the photo never decides
}

void tst_MvCalendarEvent::comparesWithoutUuid()
{
    const MvCalendarEvent a = entry(u"A"_s, QDate(2000, 1, 1));
    const MvCalendarEvent b = entry(u"A"_s, QDate(2000, 1, 1));
    QVERIFY(a.uuid() != b.uuid());
    QVERIFY(a == b);
    QCOMPARE(qHash(a), qHash(b));
    QVERIFY(!(a == entry(u"A"_s, QDate(2000, 1, 1), {}, false)));
    QVERIFY(!(a == entry(u"a"_s, QDate(2000, 1, 1))));
}

void tst_MvCalendarEvent::textForms()
{
    const QUuid uuid(u"{11111111-2222-3333-4444-555555555555}"_s);
    MvCalendarEvent event(u"Oma"_s, QDate(1941, 3, 9).startOfDay(), false, MvFoto(), uuid, QDateTime());
    QCOMPARE(event.longDescription(), u"09.03.41: \"Oma\""_s);
    event.setDateTime(QDate(MvCalendarEvent::unknownYear, 3, 9).startOfDay());
    for (const auto &[locale, day] : {std::pair{u"de_DE"_s, u"09.03."_s},
                                      {u"en_GB"_s, u"09/03"_s},
                                      {u"en_US"_s, u"3/9"_s},
                                      {u"hu_HU"_s, u"03. 09."_s},
                                      {u"sv_SE"_s, u"03-09"_s},
                                      {u"nl_NL"_s, u"09-03"_s}}) {
        const QLocale before;
        QLocale::setDefault(QLocale(locale));
        const QString text = event.longDescription();
        QLocale::setDefault(before);
        QCOMPARE(text, day + u": \"Oma\""_s);
    }
}

void tst_MvCalendarEvent::roundTrip_data()
{
    const MvRows<QString, QString> row; // name, readName
    const auto same = [&](const char *what, const QString &name) { row(what, name, name); };
    same("umlauts", u"Jörg Weiß, Ærø"_s);
    same("emoji of several parts", u"Oma \U0001F469\u200d\U0001F467 \U0001F382"_s);
    same("markup", u"<b>&amp; \"Kurt\" 'x' ]]> -->"_s);
    same("line feed and tab", u"a\nb\tc"_s);
    same("carriage return", u"a\rb"_s);
    same("blanks around", u"  Anna  "_s);
    same("blanks alone", u"   "_s);
    same("right to left", u"\u05d0\u05d1\u05d2"_s);
    same("very long", QString(100000, u'ä'));
    row("control characters go", u"A\u0001\u001fB\uffff"_s, u"AB"_s);
    row("NUL goes", QString(u"A"_s + QChar(0) + u'B'), u"AB"_s);
    row("half a pair goes", QString(u"A"_s + QChar(0xd83d) + u'B'), u"AB"_s);
}

void tst_MvCalendarEvent::roundTrip()
{
    const auto [name, readName] = MvRows<QString, QString>::current();
    const MvCalendarEvent event(name, QDate(1944, 2, 29).startOfDay(), false, MvFoto(), QUuid::createUuid(),
                                QDateTime());
    const QString file = path(u"list.xml"_s);
    QVERIFY(MvTestFiles::write(file, MvCalendarEventFile::toBytes({event})));
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(QFileInfo(file));
    QCOMPARE(content.error, QString());
    QCOMPARE(content.events.size(), 1);
    const MvCalendarEvent &read = content.events.first();
    QCOMPARE(read.description(), readName);
    QCOMPARE(read.dateTime(), event.dateTime());
    QCOMPARE(read.storedRecurrent(), false);
    QCOMPARE(read.uuid(), event.uuid());
    QCOMPARE(read.lastChanged().toString(Qt::ISODate), event.lastChanged().toString(Qt::ISODate));
}

void tst_MvCalendarEvent::readsDefaults()
{
    QDomDocument document;
    const QDomElement element = parsed(document, u"<CalendarEvent><Name>Kurt</Name></CalendarEvent>"_s);
    const MvCalendarEvent first(element);
    const MvCalendarEvent second(element);
    QVERIFY(!first.isValid());
    QVERIFY(first.storedRecurrent());
    QVERIFY(!first.uuid().isNull() && first.uuid() != second.uuid());
    QVERIFY(first.lastChanged().isValid());
    QVERIFY(!first.foto().isValid());

    const QString pattern = u"<CalendarEvent><Name>Kurt</Name><DateTime>%1</DateTime><UUID>%2</UUID></CalendarEvent>"_s;
    QVERIFY(MvCalendarEvent(parsed(document, pattern.arg(u"1990-05-17"_s, u"broken"_s))).isValid());
    QVERIFY(MvCalendarEvent(document.documentElement()).uuid().isNull());
    const QUuid uuid = QUuid::createUuid();
    const QString padded = u"\n  %1 "_s.arg(uuid.toString());
    QCOMPARE(MvCalendarEvent(parsed(document, pattern.arg(u"1990-05-17"_s, padded))).uuid(), uuid);
    for (const char *date : {"1990-02-30T00:00:00", "17.05.1990", "", "1990-05-17Tmorgens"})
        QVERIFY2(!MvCalendarEvent(parsed(document, pattern.arg(QLatin1String(date), QString()))).isValid(), date);
}

void tst_MvCalendarEvent::readsSkippedMidnights_data()
{
    const MvRows<QByteArray, QDate> row; // zone, date
    row("from midnight to one o'clock", QByteArray("America/Sao_Paulo"), QDate(2017, 10, 15));
    row("a whole day left out", QByteArray("Pacific/Kiritimati"), QDate(1994, 12, 31));
}

void tst_MvCalendarEvent::readsSkippedMidnights()
{
    const auto [zone, date] = MvRows<QByteArray, QDate>::current();
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", zone);
    QDomDocument document;
    const QString form = u"<CalendarEvent><Name>Ana</Name><DateTime>%1T00:00:00</DateTime></CalendarEvent>"_s;
    const MvCalendarEvent event(parsed(document, form.arg(date.toString(Qt::ISODate))));
    QDomElement root = parsed(document, u"<CalendarEvents/>"_s);
    event.createXML(root);
    const QDate dates[] = {event.dateTime().date(), MvCalendarEvent(root.firstChildElement()).dateTime().date()};
    const bool isThatDay = event.isValid() && event.isAtDay(date);
    before.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", before);
    QVERIFY(isThatDay);
    QCOMPARE(dates[0], date);
    QCOMPARE(dates[1], date);
}

void tst_MvCalendarEvent::invalidEntryIsEmptyElement()
{
    QDomDocument document;
    QDomElement root = parsed(document, u"<CalendarEvents/>"_s);
    entry(QString(), QDate(2000, 1, 1)).createXML(root);
    QCOMPARE(document.toString(-1), u"<CalendarEvents><CalendarEvent/></CalendarEvents>"_s);
}

void tst_MvCalendarEvent::setFotoCopies()
{
    QVERIFY(MvTestFiles::writeFoto(path(u"groß.jpg"_s), {4000, 3000}));
    MvCalendarEvent event = entry(u"Oma"_s, QDate(2000, 1, 1));
    event.setFoto(MvFoto(QFileInfo(path(u"groß.jpg"_s))));
    QVERIFY(event.isInAppSafeArea(event.imagePath()));
    QCOMPARE(event.imagePath().fileName(), u"groß.jpg"_s);
    QCOMPARE(event.imageSize(), QSize(2048, 1536));
    QCOMPARE(event.image().size(), QSize(2048, 1536));

    MvCalendarEvent other = event;
    other.setFoto(event.foto()); // lies there already
    QVERIFY(other == event);
    QCOMPARE(MvCalendarEvent::imageDirectory().count(), 3u); // with "." and ".."
    other.setFoto(MvFoto(QFileInfo(path(u"groß.jpg"_s))));   // another copy under another name
    QCOMPARE(other.imagePath().fileName(), u"groß_2.jpg"_s);
    other.setFoto(MvFoto());
    QVERIFY(!other.foto().isValid() && !other.imageSize().isValid() && other.image().isNull());
}

void tst_MvCalendarEvent::unreadableFotoWarns()
{
    MvCalendarEvent event = entry(u"Oma"_s, QDate(2000, 1, 1));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Unable to open image : MvFoto"_s));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(u"^Unable to save image to : .*calendarEventFotos/missing\\.jpg$"_s));
    event.setFoto(MvFoto(QFileInfo(path(u"missing.jpg"_s))));
    QVERIFY(event.foto().isValid());
    QVERIFY(!event.imagePath().exists());
}

void tst_MvCalendarEvent::keepsTheFormerFoto_data()
{
    const MvRows<QString, bool, QString> row; // file; isFull; reason: in the message
    row("missing", u"missing.jpg"_s, false, u"gibt es nicht"_s);
    row("no photo", u"text.jpg"_s, false, u"Gelesen werden"_s);
    row("no photo in the photo folder", u"FOTOS/text.jpg"_s, false, u"Gelesen werden"_s);
    row("no room for the copy", u"new.png"_s, true, u"größer als erlaubt"_s);
}

void tst_MvCalendarEvent::keepsTheFormerFoto()
{
    auto [file, isFull, reason] = MvRows<QString, bool, QString>::current();
    QVERIFY(MvTestFiles::writeFoto(path(u"good.png"_s)));
    QVERIFY(MvTestFiles::writeFoto(path(u"new.png"_s), {400, 300}));
    file = file.startsWith(u'F') ? MvCalendarEvent::imageDirectory().filePath(file.mid(6)) : path(file);
    if (file.endsWith(u"text.jpg"_s))
        QVERIFY(MvTestFiles::write(file, "kein Foto"));
    MvCalendarEvent event = entry(u"Oma"_s, QDate(2000, 1, 1));
    QVERIFY(event.takeFoto(MvFoto(QFileInfo(path(u"good.png"_s)))).isOk());
    const MvCalendarEvent before = event;
    const qsizetype files = MvCalendarEvent::imageDirectory().entryList(QDir::Files).size();

    rlimit usual = {};
    ::getrlimit(RLIMIT_FSIZE, &usual);
    rlimit full = usual;
    full.rlim_cur = 100; // bytes
    std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, isFull ? &full : &usual);
    const QString error = event.takeFoto(MvFoto(QFileInfo(file))).error;
    ::setrlimit(RLIMIT_FSIZE, &usual);
    QVERIFY2(error.contains(reason) && error.contains(QFileInfo(file).fileName()), qPrintable(error));
    QVERIFY(event == before && event.imagePath().isFile());
    QCOMPARE(MvCalendarEvent::imageDirectory().entryList(QDir::Files).size(), files);
}

void tst_MvCalendarEvent::fotoPaths()
{
    const auto [text, place, mayBeOpened] = MvRows<QString, QString, bool>::current();
    const QString folder = path(u"list"_s);
    const QString fotos = MvCalendarEvent::imageDirectory().absolutePath();
    const auto inPlace = [&](QString pattern) { return pattern.replace(u"LIST"_s, folder).replace(u"FOTOS"_s, fotos); };
    for (const QString &file : {fotos + u"/own.png"_s, fotos + u"/both.png"_s, folder + u"/both.png"_s,
                                folder + u"/beside.png"_s, folder + u"/fotos/below.png"_s, path(u"secret.png"_s)})
        QVERIFY(MvTestFiles::writeFoto(file));
    QVERIFY(MvTestFiles::writeFoto(fotos + u"/papierkorb/2026-01-01/binned.png"_s));
    QVERIFY(QFile::link(path(u"secret.png"_s), folder + u"/link.png"_s));
    QVERIFY(QFile::link(m_folder->path(), folder + u"/up"_s));

    QDomDocument document;
    const QDomElement element =
        parsed(document, u"<CalendarEvent><Name>x</Name><Image>%1</Image></CalendarEvent>"_s.arg(inPlace(text)));
    MvCalendarEventFotoFinder fotosOfList{QFileInfo(folder + u"/list.xml"_s)};
    const MvCalendarEvent event(MvCalendarEventTexts{element}, fotosOfList);
    const QString expected = place.isEmpty() ? QString() : QDir::cleanPath(inPlace(place));
    QCOMPARE(event.foto().localFilePath(), expected);
    QCOMPARE(event.foto().mayBeOpened(), mayBeOpened);
    QCOMPARE(event.image().isNull(), !(mayBeOpened && QFileInfo::exists(expected)));
}

void tst_MvCalendarEvent::movedUserFolder()
{
    QVERIFY(MvTestFiles::writeFoto(MvCalendarEvent::imageDirectory().filePath(u"oma.png"_s)));
    QDomDocument document;
    const MvCalendarEvent event(parsed(
        document, u"<CalendarEvent><Image>/home/früher/mv/calendarEventFotos/oma.png</Image></CalendarEvent>"_s));
    QVERIFY(event.isInAppSafeArea(event.imagePath()));
    QVERIFY(!event.image().isNull());

    MvCalendarEventFotoFinder ofBackup{MvDirectoryConfig::instance().programDataFile(u"calendarEvents.xml~"_s)};
    const QString text = u"/home/früher/mv/calendarEventFotos/oma.png"_s;
    QCOMPARE(ofBackup.find(text), event.foto());
}

MV_TEST_MAIN(tst_MvCalendarEvent)
#include "tst_MvCalendarEvent.moc"

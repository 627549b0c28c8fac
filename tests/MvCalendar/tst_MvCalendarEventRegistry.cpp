// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvLogger.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProductBase/MvSVGCompilerInstructionsCache.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using MvEntries::entry;

namespace {

/// A platform layer that has contacts and remembers what it was told.
class TestPlatform : public MvPlatformIndependent
{
public:
    explicit TestPlatform(QStringList *written)
        : m_written(written)
    {}

    void fileWritten(const QFileInfo &file) override
    {
        m_written->append(file.fileName() + (file.size() > 0 ? u" complete"_qs : u" empty"_qs));
    }

    MvSimplePersonList addressBookContacts() override { return contacts; }

    MvSimplePersonList contacts;

private:
    QStringList *m_written;
};

QString names(const MvCalendarEventList &events)
{
    return MvEntries::names(events).join(u' ');
}

MvCalendariumContentKey keyAt(const QDate &date, const MvProjectIdentifier &project = DEFAULT_PROJECT_ID,
                              bool showsEntries = true)
{
    MvCalendariumHolidayConfig holidays;
    holidays.setFeature(MvCalendariumFeatures(FEATURE_ENTRIES), showsEntries);
    return MvCalendariumContentKey(MvCalendariumContentConfig(date, holidays), project);
}

} // namespace

class tst_MvCalendarEventRegistry : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void savesAtOnce();
    void fileForm();
    void changesOneEntry_data();
    void changesOneEntry();
    void changesTheVeryEntry();
    void loadsWithMergeFlag();
    void projects();
    void asksByDay();
    void fotosByDay();
    void setsUnreadableFilesAside();
    void takesImportedFotosOver();
    void foreignFotosAreKeptByName();
    void cleansUp();
    void importsAddressBook();
    void clearsFilledTexts();
    void sampleList();

private:
    QString path(const QString &name) const { return m_data->filePath(name); }
    QByteArray contentOf(const QString &name) const;
    void put(const QString &name, const QByteArray &content) const;
    static void putImage(const QString &path, const QColor &color = Qt::blue);
    static QStringList fotos() { return MvCalendarEvent::imageDirectory().entryList(QDir::Files, QDir::Name); }

    std::unique_ptr<QTemporaryDir> m_data;
    QStringList m_log;
    QStringList m_written;
    TestPlatform *m_platform = nullptr;
};

void tst_MvCalendarEventRegistry::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_qs));
    m_data = std::make_unique<QTemporaryDir>();
    QVERIFY(m_data->isValid());
    MvDirectoryConfig::instance().setProgramDataDir(m_data->path());
    m_log.clear();
    m_written.clear();
    MvLogger::instance().setSink([this](const QString &line) { m_log.append(line); });
    auto platform = std::make_unique<TestPlatform>(&m_written);
    m_platform = platform.get();
    MvPlatformIndependent::setInstance(std::move(platform));
}

void tst_MvCalendarEventRegistry::cleanup()
{
    MvLogger::instance().setSink({});
    MvPlatformIndependent::setInstance(nullptr);
}

QByteArray tst_MvCalendarEventRegistry::contentOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_MvCalendarEventRegistry::put(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void tst_MvCalendarEventRegistry::putImage(const QString &path, const QColor &color)
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(color);
    QVERIFY(QFileInfo(path).dir().mkpath(u"."_qs));
    QVERIFY(image.save(path));
}

void tst_MvCalendarEventRegistry::savesAtOnce()
{
    MvCalendarEventRegistry registry;
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    QCOMPARE(m_log, QStringList{u"CalendarEvents ACTION:loadFromFileOnStartup MERGE:unset"_qs});
    registry.setEvents({entry(u"B"_qs, QDate(2000, 2, 29)), MvCalendarEvent(), entry(u"A"_qs, QDate(1990, 5, 17))});
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_log.last(), u"CalendarEvents ACTION:saveToFile VALUE:calendarEvents"_qs);
    QCOMPARE(m_written, QStringList{u"calendarEvents.xml complete"_qs});
    QCOMPARE(names(registry.activeEventList()), u"B A"_qs);

    MvCalendarEventRegistry second;
    QCOMPARE(second.activeEventList(), registry.activeEventList());
    QCOMPARE(second.activeEventList().first().uuid(), registry.activeEventList().first().uuid());
}

void tst_MvCalendarEventRegistry::fileForm()
{
    put(u"calendarEvents.xml"_qs,
        "<CalendarEvents><CalendarEvent><Name>Oma &amp; Opa</Name><DateTime>1941-03-09T00:00:00</DateTime>"
        "<Recurrent>false</Recurrent><Image></Image><UUID>{11111111-2222-3333-4444-555555555555}</UUID>"
        "<LastChanged>2026-01-02T03:04:05</LastChanged></CalendarEvent><CalendarEvent/></CalendarEvents>");
    const MvCalendarEventRegistry registry;
    registry.save();
    QCOMPARE(contentOf(u"calendarEvents.xml"_qs),
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<CalendarEvents>\n  <CalendarEvent>\n    <Name>Oma &amp; "
             "Opa</Name>\n"
             "    <DateTime>1941-03-09T00:00:00</DateTime>\n    <Recurrent>false</Recurrent>\n    <Image/>\n"
             "    <UUID>{11111111-2222-3333-4444-555555555555}</UUID>\n"
             "    <LastChanged>2026-01-02T03:04:05</LastChanged>\n  </CalendarEvent>\n</CalendarEvents>\n");
}

void tst_MvCalendarEventRegistry::changesOneEntry_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("changes");
    QTest::newRow("adds") << QString() << u"C"_qs << u"A B C"_qs << true;
    QTest::newRow("removes") << u"A"_qs << QString() << u"B"_qs << true;
    QTest::newRow("replaces in place") << u"A"_qs << u"C"_qs << u"C B"_qs << true;
    QTest::newRow("the same") << u"A"_qs << u"A"_qs << u"A B"_qs << false;
    QTest::newRow("nothing for nothing") << QString() << QString() << u"A B"_qs << false;
    QTest::newRow("unknown one is added") << u"X"_qs << u"C"_qs << u"A B C"_qs << true;
    QTest::newRow("unknown one is not removed") << u"X"_qs << QString() << u"A B"_qs << false;
}

void tst_MvCalendarEventRegistry::changesOneEntry()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(bool, changes);
    const QDate day(2000, 1, 1);
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_qs, day), entry(u"B"_qs, day)});
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    m_written.clear();
    const MvCalendarEvent newEntry = entry(after, day);
    QCOMPARE(registry.changeEvent(entry(before, day), newEntry), changes);
    QTEST(names(registry.activeEventList()), "result");
    QCOMPARE(spy.count(), changes ? 1 : 0);
    QCOMPARE(m_written.size(), changes ? 1 : 0);
    for (const MvCalendarEvent &event : registry.activeEventList()) {
        if (event == newEntry && changes)
            QCOMPARE(event.uuid(), newEntry.uuid());
    }
}

/// Entries may be equal, as after adding a file twice; only their uuid tells them apart.
void tst_MvCalendarEventRegistry::changesTheVeryEntry()
{
    const QDate day(2000, 1, 1);
    const MvCalendarEvent first = entry(u"A"_qs, day);
    const MvCalendarEvent second = entry(u"A"_qs, day);
    MvCalendarEventRegistry registry;
    registry.setEvents({first, second});
    QVERIFY(registry.changeEvent(second, MvCalendarEvent()));
    QCOMPARE(registry.activeEventList().size(), 1);
    QCOMPARE(registry.activeEventList().first().uuid(), first.uuid());
}

void tst_MvCalendarEventRegistry::loadsWithMergeFlag()
{
    const MvCalendarEvent known = entry(u"A"_qs, QDate(2000, 1, 1));
    MvCalendarEvent renamed = known;
    renamed.setEventName(u"Z"_qs);
    put(u"list.xml"_qs, MvCalendarEventFile::toBytes({renamed, entry(u"B"_qs, QDate(2000, 1, 1))}));
    const QFileInfo file(path(u"list.xml"_qs));
    MvCalendarEventRegistry registry;
    registry.setEvents({known});
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    for (int reading = 0; reading < 2; ++reading) { // known uuids leave the list alone
        QVERIFY(registry.loadFrom(file, false));
        QCOMPARE(names(registry.activeEventList()), u"A B"_qs);
    }
    QCOMPARE(spy.count(), 2);
    QVERIFY(registry.loadFrom(file, true)); // the flag means the opposite
    QCOMPARE(names(registry.activeEventList()), u"Z B"_qs);
    QCOMPARE(m_log.last(), u"CalendarEvents ACTION:loadFromFileOnStartup MERGE:set"_qs);
}

void tst_MvCalendarEventRegistry::projects()
{
    const MvProjectIdentifier mine(u"mine"_qs, false);
    const MvProjectIdentifier copy(u"copy"_qs, false);
    const QDate day(2000, 1, 1);
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_qs, day)});
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    registry.setActiveModelId(mine, true);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(names(registry.activeEventList()), u"A"_qs);
    registry.changeEvent(MvCalendarEvent(), entry(u"B"_qs, day));
    QCOMPARE(names(registry.eventsOfProject(mine)), u"A B"_qs);
    QCOMPARE(names(registry.eventsOfProject(DEFAULT_PROJECT_ID)), u"A"_qs);

    registry.updateActiveModelId(mine, copy);
    QCOMPARE(names(registry.eventsOfProject(copy)), u"A B"_qs);
    QCOMPARE(registry.activeModelId(), mine);
    registry.setActiveModelId(DEFAULT_PROJECT_ID, false);
    QCOMPARE(names(registry.activeEventList()), u"A"_qs);
    QCOMPARE(spy.count(), 3);
    QVERIFY(registry.eventsOfProject(MvProjectIdentifier(u"unknown"_qs, false)).isEmpty());
}

void tst_MvCalendarEventRegistry::asksByDay()
{
    const QDate day(2026, 5, 17);
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"every-year"_qs, QDate(1990, 5, 17)),
                        entry(u"once-then"_qs, QDate(1990, 5, 17), {}, false),
                        entry(u"other-day"_qs, QDate(1990, 5, 18)), entry(u"once-now"_qs, day, {}, false)});
    QCOMPARE(registry.descriptions(keyAt(day)), (QStringList{u"every-year"_qs, u"once-now"_qs}));
    QCOMPARE(names(registry.events(keyAt(day).config())), u"every-year once-now"_qs);
    QVERIFY(registry.descriptions(keyAt(day, DEFAULT_PROJECT_ID, false)).isEmpty());
    QVERIFY(registry.events(keyAt(day, DEFAULT_PROJECT_ID, false).config()).isEmpty());
    const MvProjectIdentifier other(u"other"_qs, false);
    QVERIFY(registry.descriptions(keyAt(day, other)).isEmpty());
    QVERIFY(registry.events(keyAt(day).config(), other).isEmpty());
    QVERIFY(!registry.hasHolidayOfType(keyAt(day), MvCalendariumHolidayType(HOLIDAY_TYPE_PUBLIC)));
    registry.changeEvent(registry.activeEventList().first(), MvCalendarEvent());
    QCOMPARE(registry.descriptions(keyAt(day)), QStringList{u"once-now"_qs}); // the index follows
}

void tst_MvCalendarEventRegistry::fotosByDay()
{
    const QDate day(2026, 5, 17);
    const QDir folder = MvCalendarEvent::imageDirectory();
    putImage(folder.filePath(u"red.png"_qs), Qt::red);
    put(u"calendarEventFotos/broken.png"_qs, "no image");
    MvCalendarEventList events = {entry(u"none"_qs, day), entry(u"missing"_qs, day), entry(u"broken"_qs, day),
                                  entry(u"red"_qs, day)};
    events[1].setFoto(MvFoto(QFileInfo(folder.filePath(u"missing.png"_qs))));
    events[2].setFoto(MvFoto(QFileInfo(folder.filePath(u"broken.png"_qs))));
    events[3].setFoto(MvFoto(QFileInfo(folder.filePath(u"red.png"_qs))));
    MvCalendarEventRegistry registry;
    registry.setEvents(events);

    QCOMPARE(registry.eventImage(keyAt(day)).size(), QSize(400, 300));
    const QImage small = registry.eventImage(keyAt(day), {100, 100});
    QCOMPARE(small.size(), QSize(100, 75));
    QCOMPARE(small.pixelColor(50, 30), QColor(Qt::red));
    QCOMPARE(registry.eventImage(keyAt(day), {100, 100}).cacheKey(), small.cacheKey()); // not decoded again
    QVERIFY(registry.eventImage(keyAt(day.addDays(1))).isNull());
    QVERIFY(registry.eventImage(keyAt(day, DEFAULT_PROJECT_ID, false), {9, 9}).isNull());
    QCOMPARE(registry.imageFile(keyAt(day)).path, folder.absoluteFilePath(u"broken.png"_qs)); // exists, that is all
    events.removeAt(2);
    registry.setEvents(events);
    QCOMPARE(registry.imageFile(keyAt(day)).path, folder.absoluteFilePath(u"red.png"_qs));
    QCOMPARE(registry.imageFile(keyAt(day)).size, QSize(400, 300));
    QVERIFY(registry.imageFile(keyAt(day.addDays(1))).isEmpty());
}

void tst_MvCalendarEventRegistry::setsUnreadableFilesAside()
{
    putImage(MvCalendarEvent::imageDirectory().filePath(u"in-use.png"_qs));
    put(u"calendarEvents.xml"_qs, "<CalendarEvents><CalendarEvent>");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"calendarEvents\\.xml:1"_qs));
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_qs, QDate(2000, 1, 1))});
    registry.cleanupImageDirectory(); // the lost list may have used it
    QCOMPARE(fotos(), QStringList{u"in-use.png"_qs});
    registry.setEvents({});
    QCOMPARE(QDir(m_data->path()).entryList({u"*unlesbar*"_qs}).size(), 1);
}

void tst_MvCalendarEventRegistry::takesImportedFotosOver()
{
    const QTemporaryDir elsewhere;
    putImage(elsewhere.filePath(u"fotos/oma.jpg"_qs));
    const QByteArray content = "<CalendarEvents><CalendarEvent><Name>Oma</Name><DateTime>1941-03-09T00:00:00</DateTime>"
                               "<Image>fotos/oma.jpg</Image></CalendarEvent></CalendarEvents>";
    QFile list(elsewhere.filePath(u"list.xml"_qs));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write(content);
    list.close();

    MvCalendarEventRegistry registry;
    QVERIFY(registry.loadFrom(QFileInfo(list.fileName()), true));
    QVERIFY(!registry.eventImage(keyAt(QDate(2026, 3, 9))).isNull());
    QCOMPARE(fotos(), QStringList()); // looking at a list copies nothing
    registry.save();
    registry.setEvents(registry.activeEventList());
    QCOMPARE(fotos(), QStringList{u"oma.jpg"_qs}); // once
    QVERIFY(registry.activeEventList().first().isInAppSafeArea(registry.activeEventList().first().imagePath()));
    const MvCalendarEventRegistry next;
    QVERIFY(!next.eventImage(keyAt(QDate(2026, 3, 9))).isNull());
}

void tst_MvCalendarEventRegistry::foreignFotosAreKeptByName()
{
    const QTemporaryDir elsewhere;
    putImage(elsewhere.filePath(u"secret.png"_qs));
    const QString secret = elsewhere.filePath(u"secret.png"_qs);
    put(u"calendarEvents.xml"_qs,
        u"<CalendarEvents><CalendarEvent><Name>X</Name><DateTime>2000-01-01T00:00:00</DateTime>"
        "<Image>%1</Image></CalendarEvent></CalendarEvents>"_qs.arg(secret)
            .toUtf8());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"außerhalb der erlaubten Ordner"_qs));
    MvCalendarEventRegistry registry;
    const MvCalendariumContentKey key = keyAt(QDate(2026, 1, 1));
    QVERIFY(registry.eventImage(key).isNull());
    QVERIFY(registry.imageFile(key).isEmpty());
    registry.setEvents(registry.activeEventList());
    QVERIFY(contentOf(u"calendarEvents.xml"_qs).contains(secret.toUtf8()));
    QCOMPARE(fotos(), QStringList());
}

void tst_MvCalendarEventRegistry::cleansUp()
{
    const QDir folder = MvCalendarEvent::imageDirectory();
    for (const QString &name : {u"active.png"_qs, u"inactive.png"_qs, u"orphan.png"_qs})
        putImage(folder.filePath(name));
    MvCalendarEvent active = entry(u"active"_qs, QDate(2000, 1, 1));
    active.setFoto(MvFoto(QFileInfo(folder.filePath(u"active.png"_qs))));
    MvCalendarEvent inactive = entry(u"inactive"_qs, QDate(2000, 1, 1));
    inactive.setFoto(MvFoto(QFileInfo(folder.filePath(u"inactive.png"_qs))));

    MvCalendarEventRegistry registry;
    registry.setEvents({inactive});
    registry.setActiveModelId(MvProjectIdentifier(u"mine"_qs, false), true);
    registry.setEvents({active});
    registry.cleanupImageDirectory();
    QCOMPARE(fotos(), QStringList{u"active.png"_qs});
    QVERIFY(!registry.eventImage(keyAt(QDate(2026, 1, 1), DEFAULT_PROJECT_ID)).isNull()); // back from the bin
    registry.cleanupImageDirectory();

    putImage(folder.filePath(u"theirs.png"_qs)); // another program has just added it
    MvCalendarEvent theirs = entry(u"theirs"_qs, QDate(2000, 1, 1));
    theirs.setFoto(MvFoto(QFileInfo(folder.filePath(u"theirs.png"_qs))));
    MvCalendarEventRegistry other;
    other.changeEvent(MvCalendarEvent(), theirs);
    registry.cleanupImageDirectory();
    QCOMPARE(fotos().size(), 2);
}

void tst_MvCalendarEventRegistry::importsAddressBook()
{
    QImage image(40, 50, QImage::Format_RGB32);
    image.fill(Qt::green);
    m_platform->contacts = {
        MvSimplePerson(u"Erika"_qs, QDate(1941, 3, 9), image, QUuid::createUuid()),
        MvSimplePerson(u"Kurt"_qs, QDate(1939, 12, 24), QImage(), QUuid::createUuid()),
        MvSimplePerson(u"Ohne"_qs, QDate(), QImage(), QUuid::createUuid()),
    };
    MvCalendarEventRegistry registry;
    const MvCalendarEventList found = registry.loadFromSystemAddressBook();
    QCOMPARE(names(found), u"Erika Kurt Ohne"_qs);
    QVERIFY(registry.activeEventList().isEmpty()); // nothing is stored
    QCOMPARE(found.first().dateTime().date(), QDate(1941, 3, 9));
    QCOMPARE(found.first().uuid(), m_platform->contacts.first().uuid());
    QCOMPARE(found.first().image().size(), QSize(40, 50));
    QVERIFY(found.first().isInAppSafeArea(found.first().imagePath()));
    QVERIFY(!found.at(1).foto().isValid());
}

void tst_MvCalendarEventRegistry::clearsFilledTexts()
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    MvSVGCompilerInstructionsCache &cache = MvSVGCompilerInstructionsCache::instance();
    cache.instructions(u"{entries}"_qs);
    QVERIFY(cache.count() > 0);
    registry.setEvents({});
    QCOMPARE(cache.count(), 0);
}

void tst_MvCalendarEventRegistry::sampleList()
{
    MvCalendarEventRegistry registry;
    QVERIFY(registry.loadFrom(QFileInfo(QStringLiteral(MV_TEST_DATA "/../../resources/samples/eintraege.xml")), true));
    QCOMPARE(registry.activeEventList().size(), 12);
    QCOMPARE(registry.descriptions(keyAt(QDate(2026, 8, 17))).size(), 2);
    QCOMPARE(registry.descriptions(keyAt(QDate(2028, 2, 29))).size(), 1);
    QCOMPARE(registry.eventImage(keyAt(QDate(2026, 3, 9)), {300, 300}).size(), QSize(225, 300));
    QCOMPARE(registry.eventImage(keyAt(QDate(2026, 8, 17))).size(), QSize(600, 800));
}

MV_TEST_MAIN(tst_MvCalendarEventRegistry)
#include "tst_MvCalendarEventRegistry.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvFreshFolderTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvLogger.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProductBase/MvSVGCompilerInstructionsCache.h"

using namespace Qt::StringLiterals;

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
        m_written->append(file.fileName() + (file.size() > 0 ? u" complete"_s : u" empty"_s));
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

class tst_MvCalendarEventRegistry : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void savesAtOnce();
    void fileForm();
    void changesOneEntry_data() { MvRows<QString, QString, QString, bool>().read(u"entry-changes"_s); }
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
    static QStringList fotos() { return MvCalendarEvent::imageDirectory().entryList(QDir::Files, QDir::Name); }

    QStringList m_log;
    QStringList m_written;
    TestPlatform *m_platform = nullptr;
};

void tst_MvCalendarEventRegistry::init()
{
    MvFreshFolderTest::init();
    MvDirectoryConfig::instance().setProgramDataDir(m_folder->path());
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

void tst_MvCalendarEventRegistry::savesAtOnce()
{
    MvCalendarEventRegistry registry;
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    QCOMPARE(m_log, QStringList{u"CalendarEvents ACTION:loadFromFileOnStartup MERGE:unset"_s});
    registry.setEvents({entry(u"B"_s, QDate(2000, 2, 29)), MvCalendarEvent(), entry(u"A"_s, QDate(1990, 5, 17))});
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_log.last(), u"CalendarEvents ACTION:saveToFile VALUE:calendarEvents"_s);
    QCOMPARE(m_written, QStringList{u"calendarEvents.xml complete"_s});
    QCOMPARE(names(registry.activeEventList()), u"B A"_s);

    MvCalendarEventRegistry second;
    QCOMPARE(second.activeEventList(), registry.activeEventList());
    QCOMPARE(second.activeEventList().first().uuid(), registry.activeEventList().first().uuid());
}

void tst_MvCalendarEventRegistry::fileForm()
{
    QVERIFY(MvTestFiles::write(
        path(u"calendarEvents.xml"_s),
        "<CalendarEvents><CalendarEvent><Name>Oma &amp; Opa</Name><DateTime>1941-03-09T00:00:00</DateTime>"
        "<Recurrent>false</Recurrent><Image></Image><UUID>{11111111-2222-3333-4444-555555555555}</UUID>"
        "<LastChanged>2026-01-02T03:04:05</LastChanged></CalendarEvent><CalendarEvent/></CalendarEvents>"));
    const MvCalendarEventRegistry registry;
    registry.save();
    QCOMPARE(contentOf(u"calendarEvents.xml"_s),
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<CalendarEvents>\n  <CalendarEvent>\n    <Name>Oma &amp; "
             "Opa</Name>\n"
             "    <DateTime>1941-03-09T00:00:00</DateTime>\n    <Recurrent>false</Recurrent>\n    <Image/>\n"
             "    <UUID>{11111111-2222-3333-4444-555555555555}</UUID>\n"
             "    <LastChanged>2026-01-02T03:04:05</LastChanged>\n  </CalendarEvent>\n</CalendarEvents>\n");
}

void tst_MvCalendarEventRegistry::changesOneEntry()
{
    const auto [before, after, result, changes] = MvRows<QString, QString, QString, bool>::current();
    const QDate day(2000, 1, 1);
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_s, day), entry(u"B"_s, day)});
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    m_written.clear();
    const MvCalendarEvent newEntry = entry(after, day);
    QCOMPARE(registry.changeEvent(entry(before, day), newEntry), changes);
    QCOMPARE(names(registry.activeEventList()), result);
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
    const MvCalendarEvent first = entry(u"A"_s, day);
    const MvCalendarEvent second = entry(u"A"_s, day);
    MvCalendarEventRegistry registry;
    registry.setEvents({first, second});
    QVERIFY(registry.changeEvent(second, MvCalendarEvent()));
    QCOMPARE(registry.activeEventList().size(), 1);
    QCOMPARE(registry.activeEventList().first().uuid(), first.uuid());
}

void tst_MvCalendarEventRegistry::loadsWithMergeFlag()
{
    const MvCalendarEvent known = entry(u"A"_s, QDate(2000, 1, 1));
    MvCalendarEvent renamed = known;
    renamed.setEventName(u"Z"_s);
    QVERIFY(MvTestFiles::write(path(u"list.xml"_s),
                               MvCalendarEventFile::toBytes({renamed, entry(u"B"_s, QDate(2000, 1, 1))})));
    const QFileInfo file(path(u"list.xml"_s));
    MvCalendarEventRegistry registry;
    registry.setEvents({known});
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    for (int reading = 0; reading < 2; ++reading) { // known uuids leave the list alone
        QVERIFY(registry.loadFrom(file, false));
        QCOMPARE(names(registry.activeEventList()), u"A B"_s);
    }
    QCOMPARE(spy.count(), 2);
    QVERIFY(registry.loadFrom(file, true)); // the flag means the opposite
    QCOMPARE(names(registry.activeEventList()), u"Z B"_s);
    QCOMPARE(m_log.last(), u"CalendarEvents ACTION:loadFromFileOnStartup MERGE:set"_s);
}

void tst_MvCalendarEventRegistry::projects()
{
    const MvProjectIdentifier mine(u"mine"_s, false);
    const MvProjectIdentifier copy(u"copy"_s, false);
    const QDate day(2000, 1, 1);
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_s, day)});
    QSignalSpy spy(&registry, &MvCalendarEventRegistry::eventsChanged);
    registry.setActiveModelId(mine, true);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(names(registry.activeEventList()), u"A"_s);
    registry.changeEvent(MvCalendarEvent(), entry(u"B"_s, day));
    QCOMPARE(names(registry.eventsOfProject(mine)), u"A B"_s);
    QCOMPARE(names(registry.eventsOfProject(DEFAULT_PROJECT_ID)), u"A"_s);

    registry.updateActiveModelId(mine, copy);
    QCOMPARE(names(registry.eventsOfProject(copy)), u"A B"_s);
    QCOMPARE(registry.activeModelId(), mine);
    registry.setActiveModelId(DEFAULT_PROJECT_ID, false);
    QCOMPARE(names(registry.activeEventList()), u"A"_s);
    QCOMPARE(spy.count(), 3);
    QVERIFY(registry.eventsOfProject(MvProjectIdentifier(u"unknown"_s, false)).isEmpty());
}

void tst_MvCalendarEventRegistry::asksByDay()
{
    const QDate day(2026, 5, 17);
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"every-year"_s, QDate(1990, 5, 17)),
                        entry(u"once-then"_s, QDate(1990, 5, 17), {}, false), entry(u"other-day"_s, QDate(1990, 5, 18)),
                        entry(u"once-now"_s, day, {}, false)});
    QCOMPARE(registry.descriptions(keyAt(day)), (QStringList{u"every-year"_s, u"once-now"_s}));
    QCOMPARE(names(registry.events(keyAt(day).config())), u"every-year once-now"_s);
    QVERIFY(registry.descriptions(keyAt(day, DEFAULT_PROJECT_ID, false)).isEmpty());
    QVERIFY(registry.events(keyAt(day, DEFAULT_PROJECT_ID, false).config()).isEmpty());
    const MvProjectIdentifier other(u"other"_s, false);
    QVERIFY(registry.descriptions(keyAt(day, other)).isEmpty());
    QVERIFY(registry.events(keyAt(day).config(), other).isEmpty());
    QVERIFY(!registry.hasHolidayOfType(keyAt(day), MvCalendariumHolidayType(HOLIDAY_TYPE_PUBLIC)));
    registry.changeEvent(registry.activeEventList().first(), MvCalendarEvent());
    QCOMPARE(registry.descriptions(keyAt(day)), QStringList{u"once-now"_s}); // the index follows
}

void tst_MvCalendarEventRegistry::fotosByDay()
{
    const QDate day(2026, 5, 17);
    const QDir folder = MvCalendarEvent::imageDirectory();
    QVERIFY(MvTestFiles::writeFoto(folder.filePath(u"red.png"_s), {400, 300}, Qt::red));
    QVERIFY(MvTestFiles::write(path(u"calendarEventFotos/broken.png"_s), "no image"));
    MvCalendarEventList events = {entry(u"none"_s, day), entry(u"missing"_s, day), entry(u"broken"_s, day),
                                  entry(u"red"_s, day)};
    events[1].setFoto(MvFoto(QFileInfo(folder.filePath(u"missing.png"_s))));
    events[2].setFoto(MvFoto(QFileInfo(folder.filePath(u"broken.png"_s))));
    events[3].setFoto(MvFoto(QFileInfo(folder.filePath(u"red.png"_s))));
    MvCalendarEventRegistry registry;
    registry.setEvents(events);

    QCOMPARE(registry.eventImage(keyAt(day)).size(), QSize(400, 300));
    const QImage small = registry.eventImage(keyAt(day), {100, 100});
    QCOMPARE(small.size(), QSize(100, 75));
    QCOMPARE(small.pixelColor(50, 30), QColor(Qt::red));
    QCOMPARE(registry.eventImage(keyAt(day), {100, 100}).cacheKey(), small.cacheKey()); // not decoded again
    QVERIFY(registry.eventImage(keyAt(day.addDays(1))).isNull());
    QVERIFY(registry.eventImage(keyAt(day, DEFAULT_PROJECT_ID, false), {9, 9}).isNull());
    QCOMPARE(registry.imageFile(keyAt(day)).path, folder.absoluteFilePath(u"broken.png"_s)); // exists, that is all
    events.removeAt(2);
    registry.setEvents(events);
    QCOMPARE(registry.imageFile(keyAt(day)).path, folder.absoluteFilePath(u"red.png"_s));
    QCOMPARE(registry.imageFile(keyAt(day)).size, QSize(400, 300));
    QVERIFY(registry.imageFile(keyAt(day.addDays(1))).isEmpty());
}

void tst_MvCalendarEventRegistry::setsUnreadableFilesAside()
{
    QVERIFY(MvTestFiles::writeFoto(MvCalendarEvent::imageDirectory().filePath(u"in-use.png"_s)));
    QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml"_s), "<CalendarEvents><CalendarEvent>"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"calendarEvents\\.xml:1"_s));
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_s, QDate(2000, 1, 1))});
    registry.cleanupImageDirectory(); // the lost list may have used it
    QCOMPARE(fotos(), QStringList{u"in-use.png"_s});
    registry.setEvents({});
    QCOMPARE(QDir(m_folder->path()).entryList({u"*unlesbar*"_s}).size(), 1);
}

void tst_MvCalendarEventRegistry::takesImportedFotosOver()
{
    const QTemporaryDir elsewhere;
    QVERIFY(MvTestFiles::writeFoto(elsewhere.filePath(u"fotos/oma.jpg"_s)));
    const QByteArray content = "<CalendarEvents><CalendarEvent><Name>Oma</Name><DateTime>1941-03-09T00:00:00</DateTime>"
                               "<Image>fotos/oma.jpg</Image></CalendarEvent></CalendarEvents>";
    const QString list = elsewhere.filePath(u"list.xml"_s);
    QVERIFY(MvTestFiles::write(list, content));

    MvCalendarEventRegistry registry;
    QVERIFY(registry.loadFrom(QFileInfo(list), true));
    QVERIFY(!registry.eventImage(keyAt(QDate(2026, 3, 9))).isNull());
    QCOMPARE(fotos(), QStringList()); // looking at a list copies nothing
    registry.save();
    registry.setEvents(registry.activeEventList());
    QCOMPARE(fotos(), QStringList{u"oma.jpg"_s}); // once
    QVERIFY(registry.activeEventList().first().isInAppSafeArea(registry.activeEventList().first().imagePath()));
    const MvCalendarEventRegistry next;
    QVERIFY(!next.eventImage(keyAt(QDate(2026, 3, 9))).isNull());
}

void tst_MvCalendarEventRegistry::foreignFotosAreKeptByName()
{
    const QTemporaryDir elsewhere;
    QVERIFY(MvTestFiles::writeFoto(elsewhere.filePath(u"secret.png"_s)));
    const QString secret = elsewhere.filePath(u"secret.png"_s);
    QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml"_s),
                               u"<CalendarEvents><CalendarEvent><Name>X</Name><DateTime>2000-01-01T00:00:00</DateTime>"
                               "<Image>%1</Image></CalendarEvent></CalendarEvents>"_s.arg(secret)
                                   .toUtf8()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"außerhalb der erlaubten Ordner"_s));
    MvCalendarEventRegistry registry;
    const MvCalendariumContentKey key = keyAt(QDate(2026, 1, 1));
    QVERIFY(registry.eventImage(key).isNull());
    QVERIFY(registry.imageFile(key).isEmpty());
    registry.setEvents(registry.activeEventList());
    QVERIFY(contentOf(u"calendarEvents.xml"_s).contains(secret.toUtf8()));
    QCOMPARE(fotos(), QStringList());
}

void tst_MvCalendarEventRegistry::cleansUp()
{
    const QDir folder = MvCalendarEvent::imageDirectory();
    for (const QString &name : {u"active.png"_s, u"inactive.png"_s, u"orphan.png"_s})
        QVERIFY(MvTestFiles::writeFoto(folder.filePath(name)));
    MvCalendarEvent active = entry(u"active"_s, QDate(2000, 1, 1));
    active.setFoto(MvFoto(QFileInfo(folder.filePath(u"active.png"_s))));
    MvCalendarEvent inactive = entry(u"inactive"_s, QDate(2000, 1, 1));
    inactive.setFoto(MvFoto(QFileInfo(folder.filePath(u"inactive.png"_s))));

    MvCalendarEventRegistry registry;
    registry.setEvents({inactive});
    registry.setActiveModelId(MvProjectIdentifier(u"mine"_s, false), true);
    registry.setEvents({active});
    registry.cleanupImageDirectory();
    QCOMPARE(fotos(), QStringList{u"active.png"_s});
    QVERIFY(!registry.eventImage(keyAt(QDate(2026, 1, 1), DEFAULT_PROJECT_ID)).isNull()); // back from the bin
    registry.cleanupImageDirectory();

    QVERIFY(MvTestFiles::writeFoto(folder.filePath(u"theirs.png"_s))); // another program has just added it
    MvCalendarEvent theirs = entry(u"theirs"_s, QDate(2000, 1, 1));
    theirs.setFoto(MvFoto(QFileInfo(folder.filePath(u"theirs.png"_s))));
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
        MvSimplePerson(u"Erika"_s, QDate(1941, 3, 9), image, QUuid::createUuid()),
        MvSimplePerson(u"Kurt"_s, QDate(1939, 12, 24), QImage(), QUuid::createUuid()),
        MvSimplePerson(u"Ohne"_s, QDate(), QImage(), QUuid::createUuid()),
    };
    MvCalendarEventRegistry registry;
    const MvCalendarEventList found = registry.loadFromSystemAddressBook();
    QCOMPARE(names(found), u"Erika Kurt Ohne"_s);
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
    cache.instructions(u"{entries}"_s);
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

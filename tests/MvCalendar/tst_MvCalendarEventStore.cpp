// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvFreshFolderTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvSafeFileWriter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

using Problem = MvCalendarEventStore::Problem;

class tst_MvCalendarEventStore : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void waitsForOthersWithoutWriting();
    void failedSavingIsTriedAgain();
    void restoresBackups_data();
    void restoresBackups();
    void takesInWhatOthersLeft_data();
    void takesInWhatOthersLeft();
    void removedEntriesStayAway();
    void writesEachChange();

private:
    QString path() const { return MvFolderTest::path(u"calendarEvents.xml"_s); }
    QString onDisk() const { return names(MvCalendarEventFile::read(QFileInfo(path())).events); }

    static QString names(const MvCalendarEventList &events) { return MvEntries::names(events).join(u' '); }
    static MvCalendarEvent entry(const QString &name, const QTime &time = QTime(0, 0))
    {
        return MvCalendarEvent(name, QDateTime(QDate(2000, 1, 1), time), true, MvFoto(), QUuid::createUuid(), {});
    }
    static void ignore(const char *warning)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(warning)));
    }
    static QByteArray fileOf(const QByteArray &names)
    {
        QByteArray list;
        for (const QByteArray &name : names.split(' '))
            list += "<CalendarEvent><Name>" + name + "</Name><DateTime>2000-01-01T00:00:00</DateTime></CalendarEvent>";
        return "<CalendarEvents>" + list + "</CalendarEvents>";
    }
};

void tst_MvCalendarEventStore::init()
{
    MvFreshFolderTest::init();
    MvDirectoryConfig::instance().setProgramDataDir(m_folder->path());
}

/// Another program stands still while it saves, and goes on much later.
void tst_MvCalendarEventStore::waitsForOthersWithoutWriting()
{
    QVERIFY(MvTestFiles::write(path(), fileOf("A")));
    MvCalendarEventRegistry registry;
    const MvCalendarEventStore &store = registry.userFile();
    QSignalSpy changed(&registry, &MvCalendarEventRegistry::eventsChanged);
    QSignalSpy told(&store, &MvCalendarEventStore::problemChanged);
    auto other = std::make_unique<MvFileGuard>(QFileInfo(path()), 0);
    QVERIFY(other->isLocked());
    registry.changeEvent({}, entry(u"B"_s));
    QCOMPARE(names(registry.activeEventList()), u"A B"_s);
    QVERIFY(store.hasUnsavedChanges());
    QVERIFY(!registry.userFile().saveNow());
    QCOMPARE(onDisk(), u"A"_s);
    ignore("calendarEvents\\.xml konnte noch nicht gespeichert werden");
    QTRY_COMPARE_WITH_TIMEOUT(store.problem().kind, Problem::Busy, 60000);
    QVERIFY(store.problem().text.contains(path()));
    QCOMPARE(onDisk(), u"A"_s);

    QVERIFY(MvTestFiles::write(path(), fileOf("A C")));
    changed.clear();
    other.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!store.hasUnsavedChanges(), 60000);
    QCOMPARE(onDisk(), u"A B C"_s);
    QCOMPARE(names(registry.activeEventList()), u"A B C"_s);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(store.problem().kind, Problem::None);
    QCOMPARE(told.count(), 2);
}

void tst_MvCalendarEventStore::failedSavingIsTriedAgain()
{
    MvCalendarEventRegistry registry;
    MvCalendarEventStore &store = registry.userFile();
    QSignalSpy told(&store, &MvCalendarEventStore::problemChanged);
    QVERIFY(QDir().mkdir(path())); // in the way
    for (const QString &name : {u"A"_s, u"B"_s}) {
        ignore("calendarEvents\\.xml");
        registry.changeEvent({}, entry(name));
        QVERIFY(store.hasUnsavedChanges());
        QCOMPARE(store.problem().kind, Problem::NotSaved);
        QCOMPARE(store.problem().text, registry.lastSaveError());
    }
    ignore("calendarEvents\\.xml");
    QVERIFY(!store.saveNow());
    QVERIFY(!told.isEmpty());
    told.clear();
    QVERIFY(QDir().rmdir(path()));
    QVERIFY(store.saveNow());
    QCOMPARE(onDisk(), u"A B"_s);
    QCOMPARE(store.problem().kind, Problem::None);
    QVERIFY(!told.isEmpty());
}

void tst_MvCalendarEventStore::restoresBackups_data()
{
    const MvRows<QByteArray, Problem::Kind, QString, QString> row; // damaged, kind, typedSince, result
    row("cut off", fileOf("A B").left(90), Problem::Unreadable, QString(), u"A B"_s);
    row("another kind of file", QByteArray("<Layouts/>"), Problem::Unreadable, QString(), u"A B"_s);
    row("typed since", fileOf("A B").left(90), Problem::Unreadable, u"X"_s, u"A B X"_s);
    row("a part was read",
        fileOf("A B").replace("2000-01-01T00:00:00</DateTime></CalendarEvent></",
                              "1. Mai</DateTime></CalendarEvent></"),
        Problem::PartlyReadable, u"X"_s, u"A B X"_s);
}

void tst_MvCalendarEventStore::restoresBackups()
{
    const auto [damaged, kind, typedSince, result] = MvRows<QByteArray, Problem::Kind, QString, QString>::current();
    QVERIFY(MvTestFiles::write(path(), fileOf("A")));
    QVERIFY(MvSafeFileWriter::write(QFileInfo(path()), fileOf("A B")).isOk());
    QVERIFY(MvSafeFileWriter::write(QFileInfo(path()), fileOf("A B C")).isOk());
    QVERIFY(MvTestFiles::write(path(), damaged));
    if (damaged.startsWith("<CalendarEvents>") && kind == Problem::Unreadable)
        ignore("calendarEvents\\.xml:1:\\d+");
    MvCalendarEventRegistry registry;
    MvCalendarEventStore &store = registry.userFile();
    QCOMPARE(store.problem().kind, kind);
    QCOMPARE(store.problem().backups.size(), 2); // the version before, and the first of the day
    const QFileInfo backup = store.problem().backups.first();
    for (const QString &name : typedSince.split(u' ', Qt::SkipEmptyParts)) {
        registry.changeEvent({}, entry(name));
        QCOMPARE(QFileInfo(store.problem().setAside).size(), damaged.size());
        registry.changeEvent({}, entry(name + u"2"_s));
        registry.changeEvent(registry.activeEventList().last(), {});
    }
    QCOMPARE(names(MvCalendarEventFile::read(backup).events), u"A B"_s); // saving has not pushed it out
    QVERIFY(store.restoreBackup(file(u"missing.xml"_s)).error.contains(u"missing.xml"_s));
    QSignalSpy changed(&registry, &MvCalendarEventRegistry::eventsChanged);
    QCOMPARE(store.restoreBackup(backup).error, QString());
    QCOMPARE(names(registry.activeEventList()), result);
    QCOMPARE(onDisk(), result);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(store.problem().kind, Problem::None);
    QCOMPARE(MvTestFiles::contentOf(QDir(m_folder->path()).entryInfoList({u"*unlesbar*"_s}).value(0).filePath()),
             damaged);
}

void tst_MvCalendarEventStore::takesInWhatOthersLeft_data()
{
    const MvRows<QByteArray, QString> row; // left, result
    row("a line more, without uuids", fileOf("A B C"), u"A B X C"_s);
    row("a line less, without uuids", fileOf("B"), u"B X"_s);
    row("another kind of file", QByteArray("<Layouts/>"), u"A B X"_s);
    row("a cut-off file", fileOf("B C").left(120), u"A B X"_s);
    row("an entry that cannot be read",
        fileOf("B C").replace("<DateTime>2000-01-01T00:00:00</DateTime></CalendarEvent></", "</CalendarEvent></"),
        u"A B X"_s);
}

/// A text editor, a synchronised folder or another program changed the file: all that was not removed stays.
void tst_MvCalendarEventStore::takesInWhatOthersLeft()
{
    const auto [left, result] = MvRows<QByteArray, QString>::current();
    QVERIFY(MvTestFiles::write(path(), fileOf("A B")));
    MvCalendarEventRegistry registry;
    QVERIFY(MvTestFiles::write(path(), left));
    registry.changeEvent({}, entry(u"X"_s));
    QCOMPARE(names(registry.activeEventList()), result);
    QCOMPARE(onDisk(), result);
    QCOMPARE(MvCalendarEventRegistry().activeEventList(), registry.activeEventList());
}

/// Times are written in whole seconds.
void tst_MvCalendarEventStore::removedEntriesStayAway()
{
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_s), entry(u"B"_s, QTime(12, 0, 0, 123))});
    MvCalendarEventRegistry().changeEvent({}, entry(u"C"_s));
    registry.changeEvent(registry.activeEventList().last(), {});
    QCOMPARE(onDisk(), u"A C"_s);
}

/// Only what has changed is put into words again: the file is the same as if all had been.
void tst_MvCalendarEventStore::writesEachChange()
{
    MvCalendarEventRegistry registry;
    MvCalendarEventList list;
    for (int i = 0; i < 12; ++i)
        list.append(entry(u"Person %1 & Co"_s.arg(i)));
    list.append(MvCalendarEvent(list.at(3))); // of the same uuid
    QRandomGenerator random(7);
    for (int round = 0; round < 60; ++round) {
        const qsizetype at = random.bounded(list.size());
        MvCalendarEvent &event = list[at];
        switch (round % 8) {
        case 0:
            event.setEventName(u"Anders %1"_s.arg(round));
            break;
        case 1:
            event.setDateTime(QDateTime(QDate(2001, 2, 1 + int(at)), QTime(), Qt::UTC));
            break;
        case 2:
            list.move(at, 0);
            break;
        case 3:
            list.removeAt(at);
            break;
        case 4:
            list.insert(at, entry(u"Neu %1"_s.arg(round)));
            break;
        case 5:
            event.setGroups({u"g"_s});
            break;
        case 6:
            list.groups().put({u"g"_s, u"Gruppe %1"_s.arg(round), Qt::red, {}, {}});
            break;
        default:
            std::reverse(list.begin(), list.end());
        }
        registry.setEvents(list);
        QCOMPARE(MvTestFiles::contentOf(path()), MvCalendarEventFile::toBytes(registry.activeEventList()));
    }
}

MV_TEST_MAIN(tst_MvCalendarEventStore)
#include "tst_MvCalendarEventStore.moc"

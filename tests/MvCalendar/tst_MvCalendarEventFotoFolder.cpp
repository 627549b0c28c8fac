// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFreshFolderTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventFotoFolder.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvUndoController.h"
#include "MvFoto/MvFotoService.h"

#include <optional>

using namespace Qt::StringLiterals;

/// Photos on their way into the photo folder, into its bin and back.
class tst_MvCalendarEventFotoFolder : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { MvUndoController::instance().clear(); }
    void copiesAgainWhatHasChanged();
    void keepsThePathOfWhatCannotBeCopied();
    void namesInTheBinAreTaken();
    void sweeps();
    void sweepsInNoDoubt_data();
    void sweepsInNoDoubt();

private:
    QString foto(const QString &name) const { return path(u"calendarEventFotos/"_s + name); }
    static QStringList fotos() { return MvCalendarEvent::imageDirectory().entryList(QDir::Files, QDir::Name); }
    /// A photo of two days ago.
    static void putFoto(const QString &path, const QColor &color = Qt::red);
    static MvCalendarEvent entry(const QString &name, const QString &foto);
};

void tst_MvCalendarEventFotoFolder::init()
{
    MvFreshFolderTest::init();
    MvDirectoryConfig::instance().setProgramDataDir(m_folder->path());
}

void tst_MvCalendarEventFotoFolder::putFoto(const QString &path, const QColor &color)
{
    QVERIFY(MvTestFiles::writeFoto(path, {16, 12}, color));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime));
}

MvCalendarEvent tst_MvCalendarEventFotoFolder::entry(const QString &name, const QString &foto)
{
    MvCalendarEvent event(name, QDate(2000, 1, 1).startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime());
    const MvFoto there{QFileInfo(foto)};
    return event.takeFoto(there).isOk() ? event : MvCalendarEvent();
}

/// As read from a list beside the photo.
static MvCalendarEvent withFotoBeside(const QString &path)
{
    const QFileInfo list(QFileInfo(path).dir(), u"list.xml"_s);
    if (!MvTestFiles::write(
            list.filePath(),
            "<CalendarEvents><CalendarEvent><Name>Oma</Name><DateTime>1941-03-09T00:00:00</DateTime><Image>" +
                QFileInfo(path).fileName().toUtf8() + "</Image></CalendarEvent></CalendarEvents>"))
        return {};
    return MvCalendarEventFile::read(list).events.value(0);
}

void tst_MvCalendarEventFotoFolder::copiesAgainWhatHasChanged()
{
    const QTemporaryDir elsewhere;
    const QString source = elsewhere.filePath(u"oma.png"_s);
    putFoto(source);
    const MvCalendarEvent event = withFotoBeside(source);
    MvCalendarEventFotoFolder folder;
    const QString copy = folder.withOwnCopies({event}).first().foto().localFilePath();
    QCOMPARE(copy, foto(u"oma.png"_s));
    QCOMPARE(folder.withOwnCopies({event}).first().foto().localFilePath(), copy); // once
    MvCalendarEventFotoFolder::removeAllBut({});
    QCOMPARE(folder.withOwnCopies({event}).first().foto().localFilePath(), copy); // back from the bin
    QCOMPARE(fotos(), QStringList{u"oma.png"_s});

    putFoto(source, Qt::blue);
    QFile touched(source);
    QVERIFY(touched.open(QIODevice::ReadWrite));
    QVERIFY(touched.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime));
    const MvCalendarEvent changed = folder.withOwnCopies({event}).first();
    QCOMPARE(QImage(changed.foto().localFilePath()).pixelColor(8, 6), QColor(Qt::blue));

    QVERIFY(QFile::remove(changed.foto().localFilePath()));
    QVERIFY(folder.withOwnCopies({event}).first().imagePath().isFile());
}

void tst_MvCalendarEventFotoFolder::keepsThePathOfWhatCannotBeCopied()
{
    const QTemporaryDir elsewhere;
    const QString source = elsewhere.filePath(u"huge.webp"_s);
    QVERIFY(MvTestFiles::write(
        source, QByteArray::fromHex("524946461a000000574542505650384c0d0000002ffebfff0f111111111111111100")));
    const MvCalendarEvent event = withFotoBeside(source);
    MvCalendarEventRegistry registry;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"huge\\.webp“ kann nicht gelesen werden"_s)); // once
    registry.setEvents({event});
    registry.setEvents({event, MvCalendarEvent(event)});
    QCOMPARE(registry.activeEventList().first().foto().localFilePath(), source);
    QCOMPARE(fotos(), QStringList());
}

void tst_MvCalendarEventFotoFolder::namesInTheBinAreTaken()
{
    const QTemporaryDir elsewhere;
    putFoto(elsewhere.filePath(u"oma.png"_s), Qt::blue);
    putFoto(foto(u"oma.png"_s));
    MvCalendarEventRegistry registry;
    const MvCalendarEvent oma = entry(u"Oma"_s, foto(u"oma.png"_s));
    registry.setEvents({});
    registry.cleanupImageDirectory();
    QCOMPARE(fotos(), QStringList());
    const MvCalendarEvent other = entry(u"Another"_s, elsewhere.filePath(u"oma.png"_s));
    QCOMPARE(other.imagePath().fileName(), u"oma_2.png"_s);
    registry.setEvents({oma, other}); // as by undo
    QCOMPARE(fotos(), (QStringList{u"oma.png"_s, u"oma_2.png"_s}));
    QCOMPARE(QImage(foto(u"oma.png"_s)).pixelColor(8, 6), QColor(Qt::red));
}

void tst_MvCalendarEventFotoFolder::sweeps()
{
    for (const char *name : {"active", "inactive", "backup", "aside & <1>", "cut-off", "wide", "stopped", "orphan"})
        putFoto(foto(QString::fromLatin1(name) + u".png"_s));
    for (const char *name : {"2020-01-01/gone", "2020-01-01/needed", "2020-01-02/noted", "2999-01-01/later"})
        putFoto(foto(u"papierkorb/"_s + QString::fromLatin1(name) + u".png"_s));
    MvCalendarEventRegistry registry;
    registry.setEvents({entry(u"A"_s, foto(u"inactive.png"_s))});
    registry.setActiveModelId(MvProjectIdentifier(u"mine"_s, false), true);
    registry.setEvents({entry(u"B"_s, foto(u"active.png"_s))});
    QImage(16, 12, QImage::Format_RGB32).save(foto(u"young.png"_s));
    const QByteArray folder = "<CalendarEvents><CalendarEvent><Image>/home/x/calendarEventFotos/";
    QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml~"_s),
                               folder + "backup.png</Image></CalendarEvent></CalendarEvents>"));
    QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml.2026-01-01~"_s),
                               folder + "needed.png</Image></CalendarEvent></CalendarEvents>"));
    QVERIFY(MvTestFiles::write(path(u"calendarEvents.unlesbar-2026-01-01.xml"_s),
                               "\xff" + folder + "aside &amp; &lt;1&gt;.png</Im<<&" + folder + "cut-o"));
    const QString wide = u"\ufeff<CalendarEvents><Image>wide.png</Image></CalendarEvents>"_s;
    QVERIFY(MvTestFiles::write(path(u"calendarEvents.unlesbar-2026-01-02.xml"_s),
                               QByteArray(reinterpret_cast<const char *>(wide.utf16()), 2 * wide.size())));

    QVERIFY(QDir(m_folder->path()).mkpath(u"unfinished/0-1"_s)); // copies of a writing that was stopped
    QVERIFY(MvTestFiles::write(path(u"unfinished/0-1/previous.xml"_s), folder + "stopped.png</Image>"));

    QVERIFY(MvTestFiles::write(path(u"calendarEventFotos/papierkorb/2020-01-01/.ueberfaellig"_s), "2020-02-02"));

    registry.sweepFotos();
    QTRY_VERIFY(!fotos().contains(u"orphan.png"_s));
    QCOMPARE(fotos(),
             (QStringList{u"active.png"_s, u"aside & <1>.png"_s, u"backup.png"_s, u"cut-off.png"_s, u"inactive.png"_s,
                          u"needed.png"_s, u"stopped.png"_s, u"wide.png"_s, u"young.png"_s}));
    QVERIFY(!QFileInfo::exists(foto(u"papierkorb/2020-01-01"_s)));
    QVERIFY(QFileInfo::exists(foto(u"papierkorb/2020-01-02/noted.png"_s))); // it may be the clock that is wrong
    QVERIFY(QFileInfo::exists(foto(u"papierkorb/2999-01-01/later.png"_s)));
    QVERIFY(QFileInfo::exists(foto(u"papierkorb/%1/orphan.png"_s.arg(QDate::currentDate().toString(Qt::ISODate)))));
}

void tst_MvCalendarEventFotoFolder::sweepsInNoDoubt_data()
{
    const MvRows<QString> row; // doubt
    for (const char *doubt : {"none", "undo", "other program", "missing", "unreadable", "partly readable",
                              "strange list", "changed meanwhile"})
        row(doubt, QString::fromLatin1(doubt));
}

void tst_MvCalendarEventFotoFolder::sweepsInNoDoubt()
{
    const auto [doubt] = MvRows<QString>::current();
    putFoto(foto(u"orphan.png"_s));
    if (doubt == u"unreadable"_s)
        QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml"_s), "<CalendarEvents><CalendarEvent>"));
    else if (doubt == u"partly readable"_s)
        QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml"_s),
                                   "<CalendarEvents><CalendarEvent><Name>A</Name></CalendarEvent></CalendarEvents>"));
    else if (doubt != u"missing"_s)
        QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml"_s), "<CalendarEvents/>"));
    if (doubt == u"unreadable"_s)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"calendarEvents\\.xml"_s));
    if (doubt == u"strange list"_s) // with letters as numbers
        QVERIFY(MvTestFiles::write(path(u"calendarEvents.xml~"_s), "<Image>&#111;rphan.png</Image>"));
    auto &registry = MvCalendarEventRegistry::instance();
    registry.loadFrom(registry.calendarEventsDir(), true);
    std::optional<MvCalendarEventRegistry> other;
    if (doubt == u"other program"_s)
        other.emplace();
    const auto undoable = [] {
        const MvCalendarEvent event(u"A"_s, QDate(2000, 1, 1).startOfDay(), true, MvFoto(), QUuid::createUuid(), {});
        MvUndoController::instance().push(new MvUndoCommandCalendarEvent(MvCalendarEvent(), event, nullptr));
    };
    if (doubt == u"undo"_s)
        undoable();
    registry.sweepFotos();
    if (doubt == u"changed meanwhile"_s)
        undoable();
    MvFotoService::instance().stop();
    QCoreApplication::processEvents();
    QCOMPARE(fotos().isEmpty(), doubt == u"none"_s);
}

MV_TEST_MAIN(tst_MvCalendarEventFotoFolder)
#include "tst_MvCalendarEventFotoFolder.moc"

#include "MvTest.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvUndoController.h"

#include <QPointer>
#include <QTemporaryDir>

/// Stands in for a canvas item: the library knows those by name only.
class QGraphicsObject : public QObject
{
public:
    int repaints = 0;
};

namespace {

MvCalendarEvent entry(const QString &name)
{
    return MvCalendarEvent(name, QDate(2000, 2, 29).startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime());
}

MvUndoCommandCalendarEvent::Repaint countRepaints(QGraphicsObject *item)
{
    return [guarded = QPointer<QGraphicsObject>(item)] {
        if (guarded)
            ++guarded->repaints;
    };
}

} // namespace

class tst_MvUndoCommandCalendarEvent : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void changes_data();
    void changes();
    void macroIsOneStep();
    void repaintsWhatChanged();
    void findsAddedEntriesWithImportedFotos();
    void findsLoadedEntriesWithImportedFotos();

private:
    static MvCalendarEventRegistry &registry() { return MvCalendarEventRegistry::instance(); }
    static MvUndoController &undo() { return MvUndoController::instance(); }
    static QString namesOf(const MvCalendarEventList &events)
    {
        QStringList names;
        for (const MvCalendarEvent &event : events)
            names.append(event.description());
        names.sort();
        return names.join(u' ');
    }
    static QString onDisk() { return namesOf(MvCalendarEventRegistry().activeEventList()); }
    static MvCalendarEventList entriesOfFileWithFoto(const QTemporaryDir &folder, const QString &foto);
};

void tst_MvUndoCommandCalendarEvent::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_qs));
    undo().clear();
    registry().setEvents({entry(u"A"_qs), entry(u"B"_qs)});
}

void tst_MvUndoCommandCalendarEvent::changes_data()
{
    QTest::addColumn<MvCalendarEvent>("before");
    QTest::addColumn<MvCalendarEvent>("after");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("text");
    const MvCalendarEvent none;
    const QString set = u"set calendar event from %1 to %2"_qs;
    QTest::newRow("adds") << none << entry(u"C"_qs) << u"A B C"_qs << set.arg(QString(), u"C"_qs);
    QTest::newRow("removes") << entry(u"A"_qs) << none << u"B"_qs << set.arg(u"A"_qs, QString());
    QTest::newRow("replaces") << entry(u"B"_qs) << entry(u"%1"_qs) << u"%1 A"_qs << set.arg(u"B"_qs, u"%1"_qs);
    QTest::newRow("no difference") << entry(u"A"_qs) << entry(u"A"_qs) << u"A B"_qs << QString();
    QTest::newRow("nothing") << none << none << u"A B"_qs << QString();
}

void tst_MvUndoCommandCalendarEvent::changes()
{
    QFETCH(const MvCalendarEvent, before);
    QFETCH(const MvCalendarEvent, after);
    undo().push(new MvUndoCommandCalendarEvent(before, after, nullptr));
    QTEST(undo().stack()->undoText(), "text"); // none when there is no step
    QTEST(onDisk(), "result");
    undo().undo();
    QCOMPARE(onDisk(), u"A B"_qs);
    undo().redo();
    QTEST(onDisk(), "result");
}

void tst_MvUndoCommandCalendarEvent::macroIsOneStep()
{
    undo().beginMacro(u"clearEventList"_qs);
    const MvCalendarEventList events = registry().eventsOfCurrentProject();
    for (const MvCalendarEvent &event : events)
        undo().push(new MvUndoCommandCalendarEvent(event, MvCalendarEvent(), nullptr));
    undo().endMacro();
    QCOMPARE(onDisk(), QString());
    undo().undo();
    QCOMPARE(onDisk(), u"A B"_qs);
    QVERIFY(!undo().stack()->canUndo());
}

void tst_MvUndoCommandCalendarEvent::repaintsWhatChanged()
{
    auto item = std::make_unique<QGraphicsObject>();
    undo().push(new MvUndoCommandCalendarEvent(entry(u"A"_qs), entry(u"C"_qs), item.get())); // nobody can repaint yet
    undo().undo();
    QCOMPARE(item->repaints, 0);

    MvUndoCommandCalendarEvent::setRepaintMaker(countRepaints);
    undo().push(new MvUndoCommandCalendarEvent(entry(u"A"_qs), entry(u"C"_qs), item.get()));
    QCOMPARE(item->repaints, 1);
    undo().undo();
    QCOMPARE(item->repaints, 2);
    MvUndoCommandCalendarEvent(entry(u"unknown"_qs), MvCalendarEvent(), item.get()).doCoreAction();
    QCOMPARE(item->repaints, 2); // the registry reports no change
    item.reset();
    undo().redo();
    QCOMPARE(onDisk(), u"B C"_qs);
    MvUndoCommandCalendarEvent::setRepaintMaker({});
}

/// What a file elsewhere, with a photo beside it, holds.
MvCalendarEventList tst_MvUndoCommandCalendarEvent::entriesOfFileWithFoto(const QTemporaryDir &folder,
                                                                          const QString &foto)
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::green);
    QFile file(folder.filePath(u"import.xml"_qs));
    if (!image.save(folder.filePath(foto)) || !file.open(QIODevice::WriteOnly))
        return {};
    file.write("<CalendarEvents><CalendarEvent><Name>Import</Name><DateTime>1990-05-17T00:00:00</DateTime>"
               "<Image>" +
               foto.toUtf8() +
               "</Image><UUID>{11111111-2222-3333-4444-555555555555}</UUID></CalendarEvent>"
               "</CalendarEvents>");
    file.close();
    return MvCalendarEventFile::read(QFileInfo(file)).events;
}

void tst_MvUndoCommandCalendarEvent::findsAddedEntriesWithImportedFotos()
{
    const QTemporaryDir folder;
    const MvCalendarEventList imported = entriesOfFileWithFoto(folder, u"added.png"_qs);
    QCOMPARE(imported.size(), 1);

    undo().push(new MvUndoCommandCalendarEvent(MvCalendarEvent(), imported.first(), nullptr));
    QVERIFY(!registry().activeEventList().contains(imported.first())); // the photo was taken over
    undo().undo();
    QCOMPARE(onDisk(), u"A B"_qs);
    undo().redo();
    QCOMPARE(onDisk(), u"A B Import"_qs);
    QCOMPARE(registry().activeEventList().last().imagePath().dir(), MvCalendarEvent::imageDirectory());
}

/// A list that was loaded as it is: the photo is taken over by the first change.
void tst_MvUndoCommandCalendarEvent::findsLoadedEntriesWithImportedFotos()
{
    const QTemporaryDir folder;
    QCOMPARE(entriesOfFileWithFoto(folder, u"loaded.png"_qs).size(), 1);
    QVERIFY(registry().loadFrom(QFileInfo(folder.filePath(u"import.xml"_qs)), true));
    undo().push(new MvUndoCommandCalendarEvent(registry().activeEventList().first(), entry(u"Neu"_qs), nullptr));
    undo().undo();
    QCOMPARE(onDisk(), u"Import"_qs);
    QCOMPARE(registry().activeEventList().first().imagePath().dir(), MvCalendarEvent::imageDirectory());
    undo().redo();
    QCOMPARE(onDisk(), u"Neu"_qs);
}

MV_TEST_MAIN(tst_MvUndoCommandCalendarEvent)
#include "tst_MvUndoCommandCalendarEvent.moc"

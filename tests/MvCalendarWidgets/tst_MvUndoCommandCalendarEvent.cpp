// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvWidgetDriver.h"
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCalendar/MvUndoCommandCalendarEventGroup.h"
#include "MvCore/MvUndoController.h"

namespace {

class Item : public QGraphicsObject
{
public:
    QRectF boundingRect() const override { return {0, 0, 10, 10}; }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
};

MvCalendarEvent entry(const QString &name)
{
    return MvEntries::entry(name, QDate(2000, 2, 29));
}

} // namespace

class tst_MvUndoCommandCalendarEvent : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void orderComesBack_data();
    void orderComesBack();
    void meansTheVeryEntry_data();
    void meansTheVeryEntry();
    void repaintsWhatChanged();
    void findsEntriesWithImportedFotos_data();
    void findsEntriesWithImportedFotos();

private:
    static MvCalendarEventRegistry &registry() { return MvCalendarEventRegistry::instance(); }
    static MvUndoController &undo() { return MvUndoController::instance(); }
    static QString namesOf(const MvCalendarEventList &events)
    {
        QStringList names = MvEntries::names(events);
        names.sort();
        return names.join(u' ');
    }
    static QString onDisk() { return namesOf(MvCalendarEventRegistry().activeEventList()); }
    static MvCalendarEventList entriesOfFileWithFoto(const QTemporaryDir &folder, const QString &foto);
};

void tst_MvUndoCommandCalendarEvent::init()
{
    failOnWarnings();
    undo().clear();
    registry().setEvents({entry(u"A"_qs), entry(u"B"_qs)});
}

void tst_MvUndoCommandCalendarEvent::orderComesBack_data()
{
    const MvRows<QString, QString, QString, QString, QString> row; // removed, added, addedByOthers, undone, redone
    const QString none;
    row("all", u"A B C D"_qs, none, none, u"A B C D"_qs, none);
    row("from the end", u"D C B A"_qs, none, none, u"A B C D"_qs, none);
    row("two", u"B C"_qs, none, none, u"A B C D"_qs, u"A D"_qs);
    row("a list for another", u"A B C D"_qs, u"X Y"_qs, none, u"A B C D"_qs, u"X Y"_qs);
    row("others add", u"B C"_qs, u"X"_qs, u"O"_qs, u"A B C D O"_qs, u"A D X O"_qs);
}

/// Entries of one day are printed in the list's order.
void tst_MvUndoCommandCalendarEvent::orderComesBack()
{
    const auto [removed, added, addedByOthers, undone, redone] =
        MvRows<QString, QString, QString, QString, QString>::current();
    registry().setEvents({entry(u"A"_qs), entry(u"B"_qs), entry(u"C"_qs), entry(u"D"_qs)});
    undo().beginMacro({});
    undo().push(new MvUndoCommandCalendarEventGroup(MvUndoCommandCalendarEventGroup::Begin));
    for (const QString &name : removed.split(u' ', Qt::SkipEmptyParts))
        undo().push(new MvUndoCommandCalendarEvent(entry(name), {}, nullptr));
    for (const QString &name : added.split(u' ', Qt::SkipEmptyParts))
        undo().push(new MvUndoCommandCalendarEvent({}, entry(name), nullptr));
    undo().push(new MvUndoCommandCalendarEventGroup(MvUndoCommandCalendarEventGroup::End));
    undo().endMacro();
    if (!addedByOthers.isEmpty()) {
        MvCalendarEventRegistry().changeEvent({}, entry(addedByOthers));
        registry().setEvents(registry().activeEventList());
    }
    undo().undo();
    QCOMPARE(MvEntries::names(registry().activeEventList()).join(u' '), undone);
    undo().redo();
    QCOMPARE(MvEntries::names(registry().activeEventList()).join(u' '), redone);
    undo().undo();
    QCOMPARE(MvEntries::names(registry().activeEventList()).join(u' '), undone);
}

void tst_MvUndoCommandCalendarEvent::meansTheVeryEntry_data()
{
    // before: name and day of the month
    const MvRows<QString, QString, QString, QString, QString> row;
    const QString none;
    row("another field", u"A 1"_qs, u"X 1"_qs, u"X 5"_qs, u"A 5"_qs, u"X 5"_qs);
    row("the same field", u"A 1"_qs, u"X 1"_qs, u"O 1"_qs, u"O 1"_qs, u"O 1"_qs);
    row("one of two fields", u"A 1"_qs, u"X 2"_qs, u"O 2"_qs, u"O 1"_qs, u"O 2"_qs);
    row("an added one", none, u"X 1"_qs, u"O 5"_qs, none, u"O 5"_qs);
}

/// Another program changes the entry in between: there is one entry all the same.
void tst_MvUndoCommandCalendarEvent::meansTheVeryEntry()
{
    const auto [before, after, byOthers, undone, redone] =
        MvRows<QString, QString, QString, QString, QString>::current();
    const QUuid uuid = QUuid::createUuid();
    const auto read = [&uuid](const QString &text) {
        return text.isEmpty() ? MvCalendarEvent()
                              : MvCalendarEvent(text.section(u' ', 0, 0),
                                                QDate(2000, 1, text.section(u' ', 1).toInt()).startOfDay(), true,
                                                MvFoto(), uuid, QDateTime());
    };
    const auto shown = [](const MvCalendarEventList &events) {
        QStringList texts;
        for (const MvCalendarEvent &event : events)
            texts.append(u"%1 %2"_qs.arg(event.description()).arg(event.dateTime().date().day()));
        return texts.join(u' ');
    };
    registry().setEvents({read(before)});
    undo().push(new MvUndoCommandCalendarEvent(read(before), read(after), nullptr));
    MvCalendarEventRegistry().changeEvent(read(after), read(byOthers));
    registry().setEvents(registry().activeEventList());
    QCOMPARE(shown(registry().activeEventList()), byOthers);
    undo().undo();
    QCOMPARE(shown(registry().activeEventList()), undone);
    undo().redo();
    QCOMPARE(shown(registry().activeEventList()), redone);
}

void tst_MvUndoCommandCalendarEvent::repaintsWhatChanged()
{
    QGraphicsScene scene;
    auto *item = new Item;
    scene.addItem(item);
    QSignalSpy spy(&scene, &QGraphicsScene::changed);
    const auto isRepainted = [&spy] {
        for (int turn = 0; turn < 5; ++turn) // the scene tells in a later turn
            QCoreApplication::processEvents();
        const bool is = !spy.isEmpty();
        spy.clear();
        return is;
    };
    QVERIFY(isRepainted()); // as new
    undo().push(new MvUndoCommandCalendarEvent(entry(u"A"_qs), entry(u"C"_qs), item));
    QVERIFY(isRepainted());
    undo().undo();
    QVERIFY(isRepainted());
    MvUndoCommandCalendarEvent(entry(u"unknown"_qs), MvCalendarEvent(), item).doCoreAction();
    QVERIFY(!isRepainted()); // the registry reports no change

    undo().push(new MvUndoCommandCalendarEvent(entry(u"A"_qs), entry(u"E"_qs), item));
    delete item; // commands outlive items
    undo().undo();
    QCOMPARE(onDisk(), u"A B"_qs);
}

/// What a file elsewhere, with a photo beside it, holds.
MvCalendarEventList tst_MvUndoCommandCalendarEvent::entriesOfFileWithFoto(const QTemporaryDir &folder,
                                                                          const QString &foto)
{
    const QString path = folder.filePath(u"import.xml"_qs);
    const QByteArray entry = "<CalendarEvent><Name>Import</Name><DateTime>1990-05-17T00:00:00</DateTime><Image>" +
                             foto.toUtf8() + "</Image><UUID>{11111111-2222-3333-4444-555555555555}</UUID>";
    return MvWidgetDriver::writeFoto(folder.filePath(foto), Qt::green) &&
                   MvWidgetDriver::write(path, "<CalendarEvents>" + entry + "</CalendarEvent></CalendarEvents>")
               ? MvCalendarEventFile::read(QFileInfo(path)).events
               : MvCalendarEventList();
}

void tst_MvUndoCommandCalendarEvent::findsEntriesWithImportedFotos_data()
{
    // loads: a list that was loaded as it is: the first change takes its photos over
    const MvRows<bool, QString, QString> row;
    row("added", false, u"A B"_qs, u"A B Import"_qs);
    row("loaded", true, u"Import"_qs, u"Neu"_qs);
}

void tst_MvUndoCommandCalendarEvent::findsEntriesWithImportedFotos()
{
    const auto [loads, undone, redone] = MvRows<bool, QString, QString>::current();
    const QTemporaryDir folder;
    const MvCalendarEventList imported = entriesOfFileWithFoto(folder, u"oma.png"_qs);
    QCOMPARE(imported.size(), 1);
    if (loads)
        QVERIFY(registry().loadFrom(QFileInfo(folder.filePath(u"import.xml"_qs)), true));
    const MvCalendarEvent before = loads ? registry().activeEventList().first() : MvCalendarEvent();
    undo().push(new MvUndoCommandCalendarEvent(before, loads ? entry(u"Neu"_qs) : imported.first(), nullptr));
    undo().undo();
    QCOMPARE(onDisk(), undone);
    undo().redo();
    QCOMPARE(onDisk(), redone);
    if (loads)
        undo().undo();
    QVERIFY(!registry().activeEventList().contains(imported.first()));
    QCOMPARE(registry().activeEventList().last().imagePath().dir(), MvCalendarEvent::imageDirectory());
}

MV_WIDGET_TEST_MAIN(tst_MvUndoCommandCalendarEvent)
#include "tst_MvUndoCommandCalendarEvent.moc"

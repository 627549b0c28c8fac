// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRequestScript.h"
#include "MvRows.h"
#include "MvWidgetDriver.h"
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventDelegateEditDeleteWidget.h"
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventFotoDelegateEditorWidget.h"
#include "MvCalendar/MvCalendarEventFotoIntake.h"
#include "MvCalendar/MvCalendarEventListWidget.h"
#include "MvCalendar/MvCalendarEventModel.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryFiles.h"
#include "MvCore/MvLogger.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvProactiveHelpController.h"
#include "MvCore/MvUndoController.h"
#include "MvGUIWidgets/MvTableView.h"

using MvEntries::entry;

namespace {

struct Contacts : MvPlatformIndependent
{
    MvSimplePersonList addressBookContacts() override { return persons; }
    MvSimplePersonList persons;
};

constexpr auto openEditor = MvWidgetDriver::openWindow<MvCalendarDayEditorDialog>;

} // namespace

class tst_MvCalendarEventListWidget : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void contextMenu_data();
    void contextMenu();
    void contextMenuOutlivesItsClick();
    void savesAndLoads_data();
    void savesAndLoads();
    void goesToOtherProgramsAndBack();
    void decidesAboutDoubtfulFiles_data();
    void decidesAboutDoubtfulFiles();
    void groupsAreKnownByName();
    void lateFotosAreTold();
    void noFileChangesNothing();
    void clears();
    void importsContactsOnce();
    void buttonsUnderTheMouse();
    void keysAlone();

private:
    static MvCalendarEventRegistry &registry() { return MvCalendarEventRegistry::instance(); }
    static void fill()
    {
        registry().setEvents({entry(u"Anna"_qs, QDate(2004, 2, 29)), entry(u"Moritz"_qs, QDate(1999, 3, 1)),
                              entry(u"Xaver"_qs, QDate(1950, 12, 31))});
    }
    static QStringList names() { return MvEntries::names(MvCalendarEventRegistry().activeEventList()); } // on disk
    static MvTableView *table(const QWidget &list) { return list.findChild<MvTableView *>(); }
    static QPoint centre(const QWidget &list, int row, int column)
    {
        return table(list)->visualRect(table(list)->model()->index(row, column)).center();
    }
    static QAction *menuAction(const QWidget &list, const QString &text)
    {
        const QList<QAction *> actions = list.findChild<QPushButton *>(u"changeEventListButton"_qs)->menu()->actions();
        for (QAction *action : actions) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    QString path(const QString &file) const { return m_folder.filePath(file); }

    QTemporaryDir m_folder;
    MvRequestScript *m_script = nullptr;
    QStringList m_log;
};

void tst_MvCalendarEventListWidget::initTestCase()
{
    QVERIFY(MvWidgetDriver::writeFoto(path(u"foto.png"_qs), Qt::blue));
    QVERIFY(MvWidgetDriver::writeHugeFoto(path(u"huge.webp"_qs)));
    MvLogger::instance().setSink([this](const QString &line) { m_log.append(line); });
}

void tst_MvCalendarEventListWidget::init()
{
    failOnWarnings();
    m_script = new MvRequestScript;
    MvRequestHandler::install(std::unique_ptr<MvRequestHandler>(m_script));
    fill();
    MvUndoController::instance().clear();
    m_log.clear();
}

void tst_MvCalendarEventListWidget::cleanup()
{
    MvRequestHandler::install(nullptr);
    if (openEditor())
        openEditor()->close();
    MvCalendarEvent::imageDirectory().removeRecursively();
}

void tst_MvCalendarEventListWidget::contextMenu_data()
{
    const MvRows<int, int, bool> row; // row, column, opens
    row("photo", 1, 0, true);
    row("name", 1, 2, true);
    row("buttons", 1, 3, false);
    row("below the rows", 9, 2, false);
}

void tst_MvCalendarEventListWidget::contextMenu()
{
    const auto [row, column, opens] = MvRows<int, int, bool>::current();
    MvCalendarEventListWidget list;
    list.resize(400, 500);
    list.show();
    const QPoint pos = row < 3 ? centre(list, row, column) : QPoint(200, table(list)->viewport()->height() - 2);
    list.onTableViewContextMenuRequested(pos);
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QCOMPARE(menu != nullptr, opens);
    if (!menu)
        return;
    QCOMPARE(menu->actions().size(), 2);
    menu->actions().first()->trigger();
    QVERIFY(openEditor());
    QCOMPARE(openEditor()->findChild<QLineEdit *>(u"descriptionEdit"_qs)->text(), u"Moritz"_qs);
    menu->actions().last()->trigger();
    QCOMPARE(names(), (QStringList{u"Anna"_qs, u"Xaver"_qs}));
    QApplication::activePopupWidget()->close();
}

/// A photo that is decoded already is there at once; the editor must not let events run under the menu's feet then.
void tst_MvCalendarEventListWidget::contextMenuOutlivesItsClick()
{
    registry().setEvents({entry(u"Anna"_qs, QDate(2004, 2, 29), MvFoto(QFileInfo(path(u"foto.png"_qs))))});
    MvCalendarEventListWidget list;
    list.resize(400, 500);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    for (int time = 0; time < 2; ++time) {
        list.onTableViewContextMenuRequested(centre(list, 0, 2));
        const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QAction *edit = menu->actions().first();
        bool isAlive = false;
        connect(edit, &QAction::triggered, this, [&] { isAlive = !menu.isNull(); });
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, menu->actionGeometry(edit).center());
        QVERIFY(isAlive);
        QTRY_VERIFY(openEditor());
        QTRY_VERIFY(openEditor()->hasPhoto());
        openEditor()->close();
        QTRY_VERIFY(menu.isNull());
    }
}

void tst_MvCalendarEventListWidget::savesAndLoads_data()
{
    const MvRows<QString, bool, QString, int> row; // action, changed, result, steps
    row("load, as saved", u"Laden…"_qs, false, u"Anna Moritz Xaver"_qs, 1);
    row("load, after changes", u"Laden…"_qs, true, u"Anna Moritz Xaver"_qs, 1);
    row("add, as saved", u"Hinzufügen…"_qs, false, u"Anna Moritz Xaver"_qs, 0);
    row("add, after changes", u"Hinzufügen…"_qs, true, u"Neu Anna Moritz Xaver"_qs, 1);
}

void tst_MvCalendarEventListWidget::savesAndLoads()
{
    const auto [action, changed, result, steps] = MvRows<QString, bool, QString, int>::current();
    MvCalendarEventListWidget list;
    m_script->file = path(u"einträge.xml"_qs);
    menuAction(list, u"Sichern"_qs)->trigger();
    QVERIFY(QFile::exists(m_script->file));
    if (changed)
        registry().setEvents({entry(u"Neu"_qs, QDate(2027, 1, 1))});
    const QStringList before = names();

    QSignalSpy added(&list, &MvCalendarEventListWidget::calendarEventAdded);
    QSignalSpy signalled(&registry(), &MvCalendarEventRegistry::eventsChanged);
    menuAction(list, action)->trigger();
    const QString request = u"5 Kalendereinträge "_qs;
    QCOMPARE(m_script->requests.mid(0, 2),
             (QStringList{request + MvEntryFiles::saveFilter(), request + MvEntryFiles::openFilter()}));
    QCOMPARE(m_script->requests.size(), action == u"Laden…"_qs && changed ? 3 : 2); // only when entries get lost
    QCOMPARE(names().join(u' '), result);
    QCOMPARE(added.count(), 1);
    QCOMPARE(signalled.count(), steps); // not one by one
    QVERIFY(m_log.contains(
        u"CalendarEvents ACTION:loadFromFile MERGE:%1"_qs.arg(action == u"Laden…"_qs ? u"unset"_qs : u"set"_qs)));
    QCOMPARE(MvUndoController::instance().stack()->count(), steps);
    if (steps == 0)
        return;
    QCOMPARE(MvUndoController::instance().stack()->undoText(), u"loadEventList"_qs);
    QCOMPARE(MvUndoController::instance().undoName(),
             action == u"Laden…"_qs ? u"Einträge laden"_qs : u"Einträge hinzufügen"_qs);
    MvUndoController::instance().undo();
    QStringList undone = names();
    undone.sort();
    QCOMPARE(undone, before); // both by name
    QCOMPARE(signalled.count(), 2);
    MvUndoController::instance().redo();
    QCOMPARE(names().join(u' '), result);
}

/// As a calendar: what comes back is reported, and is there once.
void tst_MvCalendarEventListWidget::goesToOtherProgramsAndBack()
{
    MvCalendarEventListWidget list;
    const QStringList before = names();
    m_script->file = path(u"termine.ics"_qs);
    menuAction(list, u"Sichern"_qs)->trigger();
    QByteArray bytes = MvTestFiles::contentOf(m_script->file);
    QVERIFY(bytes.startsWith("BEGIN:VCALENDAR"));
    registry().setEvents({});
    for (const QString &told : {u"3 neu, 0 geändert, 0 gleich"_qs, u"0 neu, 0 geändert, 3 gleich"_qs}) {
        m_script->reports.clear();
        menuAction(list, u"Hinzufügen…"_qs)->trigger();
        QTRY_COMPARE(m_script->reports.size(), 1); // read in a thread
        QVERIFY2(m_script->reports.first().startsWith(told), qPrintable(m_script->reports.first()));
        QCOMPARE(names(), before);
        QCOMPARE(MvUndoController::instance().stack()->count(), 1);
    }
    bytes.insert(bytes.indexOf("END:VEVENT"), "BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT9H\r\nEND:VALARM\r\n");
    QVERIFY(MvWidgetDriver::write(m_script->file, bytes));
    m_script->reports.clear();
    menuAction(list, u"Laden…"_qs)->trigger();
    QCOMPARE(m_script->reports.size(), 1);
    QVERIFY(m_script->reports.first().endsWith(u"termine.ics: Ein Kalender druckt nicht: Erinnerung (1)"_qs));
}

void tst_MvCalendarEventListWidget::decidesAboutDoubtfulFiles_data()
{
    // told: part of the report, or of the question and its details
    const MvRows<QByteArray, bool, bool, QString, QString> row;
    const QByteArray date = "</Name><DateTime>1950-01-01T00:00:00</DateTime>";
    const QByteArray tante = "<CalendarEvent><Name>Tante" + date + "</CalendarEvent>";
    const QByteArray foto = "<CalendarEvent><Name>Tante" + date + "<Image>/etc/hostname</Image></CalendarEvent>";
    const QByteArray opa = "<CalendarEvent><Name>Opa</Name><DateTime>17.05.1941</DateTime></CalendarEvent>";
    const QByteArray large = tante + QByteArray(300LL * 1024, '\n'); // is read in a thread
    const QString all = u"Anna Moritz Xaver"_qs;
    const QString lost = u"Ihre 3 Einträge durch die aus „liste.xml“"_qs;
    row("load, cut", QByteArray("<CalendarEvent>"), false, false, u"liste.xml:"_qs, all);
    row("load, other document", QByteArray("<Layouts/>"), false, false, u"„Layouts“"_qs, all);
    row("load, nothing readable", opa, false, false, u"„Opa“"_qs, all);
    row("add, nothing readable", opa, true, false, u"„Opa“"_qs, all);
    row("load, some", tante + opa, false, true, u"Zeile 1, „Opa“: das Datum"_qs, u"Tante"_qs);
    row("add, some", tante + opa, true, true, u"Zeile 1, „Opa“: das Datum"_qs, all + u" Tante"_qs);
    row("load, empty", QByteArray(), false, true, u"ist eine leere Liste"_qs, QString());
    row("add, empty", QByteArray(), true, false, QString(), all);
    row("load, large", large, false, true, lost, u"Tante"_qs);
    row("add, large", large, true, false, QString(), all + u" Tante"_qs);
    row("load, photo elsewhere", foto, false, true, u"/etc/hostname"_qs, u"Tante"_qs);
    row("add, photo elsewhere", foto, true, false, u"/etc/hostname"_qs, all + u" Tante"_qs);
}

void tst_MvCalendarEventListWidget::decidesAboutDoubtfulFiles()
{
    const auto [entries, merge, asks, told, result] = MvRows<QByteArray, bool, bool, QString, QString>::current();
    MvCalendarEventListWidget list;
    m_script->file = path(u"liste.xml"_qs);
    const bool isOther = entries.startsWith("<Layouts");
    QVERIFY(MvTestFiles::write(m_script->file, isOther ? entries : "<CalendarEvents>" + entries + "</CalendarEvents>"));
    for (const bool agrees : {false, true}) {
        fill();
        m_script->agrees = agrees;
        m_script->requests.clear();
        m_script->reports.clear();
        for (int reading = 0; entries.contains("Image") && reading < (agrees || !asks ? 2 : 1);
             ++reading) // of both files
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"/etc/hostname"_qs));
        list.loadEventList(merge);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QCOMPARE(m_script->requests.size(), asks ? 2 : 1); // one for the file
        QCOMPARE(m_script->reports.size(), asks || told.isEmpty() ? 0 : 1);
        const QString said = asks ? m_script->requests.last() + m_script->details : m_script->reports.join(u'\n');
        QVERIFY2(said.contains(told), qPrintable(said));
        QCOMPARE(said.contains(u"alle Ihre Kalender"_qs), asks && !merge);
        QCOMPARE(names().join(u' '), agrees || !asks ? result : u"Anna Moritz Xaver"_qs);
    }
}

/// Whatever their ids are elsewhere.
void tst_MvCalendarEventListWidget::groupsAreKnownByName()
{
    MvCalendarEventList theirs{entry(u"Tante"_qs, QDate(1950, 1, 1))};
    theirs.last().setGroups({theirs.groups().idOfName(u"verein"_qs), theirs.groups().idOfName(u"Chor"_qs)});
    m_script->file = path(u"verein.xml"_qs);
    QVERIFY(MvWidgetDriver::write(m_script->file, MvCalendarEventFile::toBytes(theirs)));
    for (const bool merge : {true, false}) {
        MvCalendarEventList own{entry(u"Anna"_qs, QDate(2004, 2, 29))};
        own.groups().append({u"alt"_qs, u"Verein"_qs, {}, {}, {}});
        registry().setEvents(own);
        MvCalendarEventListWidget().loadEventList(merge);
        const MvCalendarEventList all = registry().activeEventList();
        QCOMPARE(all.size(), merge ? 2 : 1);
        QCOMPARE(all.groups().size(), 2);
        QCOMPARE(all.last().groups(), (QStringList{u"alt"_qs, all.groups().findName(u"Chor"_qs)->id}));
    }
}

/// Photos that are read in the background are for the calendar that was open.
void tst_MvCalendarEventListWidget::lateFotosAreTold()
{
    QImage large(2700, 2000, QImage::Format_RGB32);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(large.bits()), large.sizeInBytes() / 4);
    QVERIFY(large.save(path(u"gross.jpg"_qs)));
    const MvFoto foto(QFileInfo(path(u"gross.jpg"_qs)));
    const auto use = [](const auto &, const auto &) { QFAIL("taken"); };
    MvCalendarEventFotoIntake::take(registry().activeEventList().first(), foto, this, use);
    registry().setActiveModelId(MvProjectIdentifier(u"another"_qs, true), false);
    QTRY_COMPARE(m_script->reports.size(), 1);
    QVERIFY(m_script->reports.first().contains(u"gross.jpg“ ist nicht beim Eintrag „Anna“"_qs));
    registry().setActiveModelId(DEFAULT_PROJECT_ID, false);
}

void tst_MvCalendarEventListWidget::noFileChangesNothing()
{
    MvCalendarEventListWidget list;
    m_script->file = path(u"fehlt.xml"_qs);
    list.loadEventList(true);
    QCOMPARE(m_script->reports.size(), 1);
    m_script->file.clear(); // none chosen
    list.loadEventList(false);
    list.saveEventList();
    QCOMPARE(m_script->reports.size(), 1);
    QCOMPARE(names().size(), 3);
    QCOMPARE(MvUndoController::instance().stack()->count(), 0);

    m_script->file = path(u"kein/ordner.xml"_qs);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"ordner.xml"_qs));
    list.saveEventList();
    QCOMPARE(m_script->reports.size(), 2);
}

void tst_MvCalendarEventListWidget::clears()
{
    MvCalendarEventListWidget list;
    for (const bool agrees : {false, true}) {
        m_script->agrees = agrees;
        menuAction(list, u"Alle löschen…"_qs)->trigger();
        QCOMPARE(m_script->requests.last(), u"Alle Einträge löschen?"_qs);
        QVERIFY(m_script->details.contains(u"allen Ihren Kalendern"_qs));
        QVERIFY(m_log.contains(u"CalendarEvents ACTION:deleteAll VALUE:%1"_qs.arg(int(agrees))));
        QCOMPARE(names().size(), agrees ? 0 : 3);
        QCOMPARE(MvUndoController::instance().stack()->count(), int(agrees));
    }
    MvUndoController::instance().undo();
    QCOMPARE(names().size(), 3);
}

void tst_MvCalendarEventListWidget::importsContactsOnce()
{
    auto contacts = std::make_unique<Contacts>();
    contacts->persons.append(MvSimplePerson(u"Oma"_qs, QDate(1940, 5, 6), QImage(), QUuid::createUuid()));
    contacts->persons.append(MvSimplePerson(u"Opa"_qs, QDate(1604, 2, 29), QImage(), QUuid::createUuid()));
    contacts->persons.append(MvSimplePerson(u"Ohne Geburtstag"_qs, QDate(), QImage(), QUuid::createUuid()));
    contacts->persons.append(MvSimplePerson(QString(), QDate(1990, 5, 17), QImage(), QUuid::createUuid()));
    MvPlatformIndependent::setInstance(std::move(contacts));
    MvCalendarEventListWidget list;
    const std::unique_ptr<QPushButton> button(list.createImportFromContactsButton(nullptr));
    QSignalSpy added(&list, &MvCalendarEventListWidget::calendarEventAdded);
    QSignalSpy advice(&MvProactiveHelpController::instance(), &MvProactiveHelpController::adviceRequested);
    const QString logged = u"CalendarEvents ACTION:importFromAddressBook MERGE:set STARTCOUNT:%1 FOUNDINADDRESSBOOK:4 "
                           "IMPORTED:%2"_qs;
    button->click();
    QCOMPARE(names().size(), 5);
    QVERIFY(m_log.contains(logged.arg(3).arg(2)));
    button->click();
    QCOMPARE(names().size(), 5);
    QVERIFY(m_log.contains(logged.arg(5).arg(0)));
    QCOMPARE(added.count(), 1);
    QCOMPARE(advice.count(), 2);
    const QVariantList expected{43, u"0 von 2 Einträgen mit Geburtstagen importiert"_qs, 0.5, 4};
    QCOMPARE(advice.last().mid(0, 4), expected);
    QCOMPARE(MvUndoController::instance().stack()->count(), 1);
    MvPlatformIndependent::setInstance(nullptr);
}

void tst_MvCalendarEventListWidget::buttonsUnderTheMouse()
{
    MvCalendarEventListWidget list;
    list.resize(400, 400);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QWidget *viewport = table(list)->viewport();
    const auto button = [&list, viewport](const QString &name) {
        QTest::mouseMove(viewport, centre(list, 0, 2));
        QTest::mouseMove(viewport, centre(list, 1, 2));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        auto *editor = viewport->findChild<MvCalendarEventFotoDelegateEditorWidget *>();
        return editor ? editor->findChild<QToolButton *>(name) : nullptr;
    };
    QTRY_VERIFY(button(u"changeImageButton"_qs));
    const auto *row = viewport->findChild<MvCalendarEventDelegateEditDeleteWidget *>();
    QCOMPARE(row->calendarEvent().description(), u"Moritz"_qs);
    for (const auto *each : row->findChildren<QToolButton *>())
        QVERIFY(!each->toolTip().isEmpty() && each->accessibleName().contains(u"Moritz"_qs));
    row->findChild<QToolButton *>(u"editEventButton"_qs)->click();
    QCOMPARE(openEditor()->findChild<QLineEdit *>(u"descriptionEdit"_qs)->text(), u"Moritz"_qs);
    openEditor()->close();
    const auto foto = [] { return registry().activeEventList().at(1).foto(); };
    QVERIFY(!button(u"removeImageButton"_qs)->isVisible());
    m_script->file = path(u"foto.png"_qs);
    button(u"changeImageButton"_qs)->click();
    QCOMPARE(foto().localFileInfo().dir(), MvCalendarEvent::imageDirectory());
    QCOMPARE(MvCalendarEvent::imageDirectory().entryList(QDir::Files).size(), 1); // copied once
    QTRY_VERIFY(button(u"removeImageButton"_qs) && button(u"removeImageButton"_qs)->isVisible());
    m_script->file = path(u"einträge.xml"_qs);
    button(u"changeImageButton"_qs)->click();
    QCOMPARE(m_script->reports.size(), 1);
    const MvFoto good = foto();
    m_script->file = path(u"huge.webp"_qs);
    button(u"changeImageButton"_qs)->click();
    QVERIFY2(m_script->reports.last().contains(u"viel zu klein"_qs), qPrintable(m_script->reports.last()));
    QVERIFY(good.isValid() && foto() == good);
    button(u"removeImageButton"_qs)->click();
    QVERIFY(!foto().isValid());
    QCOMPARE(MvUndoController::instance().stack()->count(), 2);
    QTRY_VERIFY(button(u"changeImageButton"_qs));
    viewport->findChild<MvCalendarEventDelegateEditDeleteWidget *>()
        ->findChild<QToolButton *>(u"deleteEventButton"_qs)
        ->click();
    QCOMPARE(names(), (QStringList{u"Anna"_qs, u"Xaver"_qs}));
}

void tst_MvCalendarEventListWidget::keysAlone()
{
    MvCalendarEventListWidget list;
    list.resize(400, 400);
    list.show();
    QVERIFY(QTest::qWaitForWindowActive(&list));
    MvTableView *view = table(list);
    const auto press = [view](Qt::Key key) { QTest::keyClick(view, key); };
    const auto cursor = [view] { return QPoint(view->currentIndex().column(), view->currentIndex().row()); };
    list.findChild<QPushButton *>(u"newEntryButton"_qs)->setFocus();
    QTest::keyClick(list.focusWidget(), Qt::Key_Space);
    QVERIFY(openEditor() && openEditor()->findChild<QPushButton *>(u"okAndContinueButton"_qs)->isVisible());
    openEditor()->close();
    list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&list));
    QTest::keyClick(list.focusWidget(), Qt::Key_Tab);
    QCOMPARE(list.focusWidget()->objectName(), u"entrySearchField"_qs);
    QTest::keyClick(list.focusWidget(), Qt::Key_Tab);
    QVERIFY(view->hasFocus());
    QCOMPARE(cursor(), QPoint(0, 0));
    press(Qt::Key_Down);
    QCOMPARE(cursor(), QPoint(0, 1));
    m_script->file = path(u"foto.png"_qs);
    press(Qt::Key_Return);
    QVERIFY(registry().activeEventList().at(1).foto().isValid());
    QTRY_COMPARE(cursor(), QPoint(0, 1)); // although the table was filled anew
    m_script->file = path(u"huge.webp"_qs);
    press(Qt::Key_F2);
    QVERIFY(registry().activeEventList().at(1).imagePath().isFile());
    QCOMPARE(m_script->reports.size(), 1);
    press(Qt::Key_Delete);
    QVERIFY(!registry().activeEventList().at(1).foto().isValid());
    QCOMPARE(names().size(), 3);
    QTRY_COMPARE(cursor(), QPoint(0, 1));

    press(Qt::Key_Tab);
    QCOMPARE(cursor(), QPoint(3, 1));
    press(Qt::Key_Return);
    QCOMPARE(openEditor()->findChild<QLineEdit *>(u"descriptionEdit"_qs)->text(), u"Moritz"_qs);
    openEditor()->close();
    list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&list));
    press(Qt::Key_End);
    press(Qt::Key_Delete);
    QCOMPARE(names(), (QStringList{u"Anna"_qs, u"Moritz"_qs}));
    QTRY_COMPARE(cursor(), QPoint(3, 1)); // the last row now
    press(Qt::Key_Tab);
    QCOMPARE(list.focusWidget()->objectName(), u"changeEventListButton"_qs);
    QTest::keyClick(list.focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(view->hasFocus());
    QCOMPARE(cursor(), QPoint(3, 1));
}

MV_WIDGET_TEST_MAIN(tst_MvCalendarEventListWidget)
#include "tst_MvCalendarEventListWidget.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvWidgetDriver.h"
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumView.h"
#include "MvCalendar/MvGraphicsItemCalendariumCell.h"
#include "MvCalendar/MvGraphicsItemCalendariumCellsManager.h"
#include "MvCore/MvUndoController.h"
#include "MvModelBase/MvRenderingRule.h"

#include <QAccessible>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

using Cell = MvGraphicsItemCalendariumCell;
using Manager = MvGraphicsItemCalendariumCellsManager;

using MvEntries::entry;

namespace {

const QDate day(2027, 6, 5);
const QRectF pageRect(0, 0, 210, 180);

class Calendarium : public QGraphicsObject
{
public:
    QRectF boundingRect() const override { return pageRect; }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override { event->accept(); }
};

/// June 2027 in a grid on a canvas.
struct Canvas
{
    Canvas()
    {
        scene.addItem(item);
        manager->setHolidayConfig({MvLocale(), {}, MvCalendariumFeatures(FEATURE_ENTRIES)});
        view.resize(400, 350);
        view.show();
        view.activateWindow();
    }

    void pass(const QDate &month, const QRectF &rect)
    {
        manager->resetRectsForMonth(month, rect);
        for (int i = 0; i < month.daysInMonth(); ++i)
            manager->addRectForDate(month.addDays(i), QRect(i % 7 * 30, i / 7 * 30, 28, 28));
    }
    QPoint centre(const QDate &date) { return view.mapFromScene(manager->cell(date)->sceneBoundingRect().center()); }

    QGraphicsScene scene;
    MvCalendariumView view{&scene};
    Calendarium *item = new Calendarium;
    Manager *manager = new Manager(item);
};

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

constexpr auto openEditor = MvWidgetDriver::openWindow<MvCalendarDayEditorDialog>;

} // namespace

class tst_MvGraphicsItemCalendariumCells : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void passes_data();
    void passes();
    void clicks_data();
    void clicks();
    void dragIsNoClick();
    void menuLeadsToTheEditor();
    void notEditable();
    void hovers();
    void paintsForPeopleOnly_data();
    void paintsForPeopleOnly();
    void keyboard();
    void screenReader();
    void droppedFotos_data();
    void droppedFotos();
    void artwork_data();
    void artwork();
};

void tst_MvGraphicsItemCalendariumCells::init()
{
    failOnWarnings();
    MvUndoController::instance().clear();
    MvCalendarEventRegistry::instance().setEvents({});
}

void tst_MvGraphicsItemCalendariumCells::passes_data()
{
    const MvRows<QDate, QRectF, bool, bool, bool> row; // month, rect, titleLine, keeps, keepsOtherMonths
    const QDate june(2027, 6, 1);
    row("the same", june, pageRect, false, true, true);
    row("equal but for rounding", june, pageRect.adjusted(0, 0, 1e-11, 0), false, true, true);
    row("another rectangle", june, pageRect.adjusted(0, 0, 1, 0), false, false, true);
    row("a title line", june, pageRect, true, false, true);
    row("another month", QDate(2027, 7, 1), pageRect, false, false, false);
}

void tst_MvGraphicsItemCalendariumCells::passes()
{
    const auto [month, rect, titleLine, keeps, keepsOtherMonths] = MvRows<QDate, QRectF, bool, bool, bool>::current();
    Canvas canvas;
    canvas.pass({2027, 6, 1}, pageRect);
    canvas.manager->addRectForDate({2027, 5, 31}, {0, 0, 20.7, 28}); // of the month before
    QCOMPARE(canvas.manager->smallestWidth(), 20);
    const QPointer<Cell> cell = canvas.manager->cell(day);
    const QPointer<Cell> other = canvas.manager->cell({2027, 5, 31});
    QCOMPARE(cell->sceneBoundingRect(), QRectF(120, 0, 28, 28));

    canvas.manager->resetRectsForMonth(month, rect);
    canvas.manager->resetRectsForTitleLine(titleLine);
    QCOMPARE(canvas.manager->cell(day) == cell, keeps);
    QCOMPARE(canvas.manager->cell({2027, 5, 31}) == other, keepsOtherMonths);
    QCOMPARE(cell->scene() != nullptr, keeps);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(cell != nullptr, keeps);
}

void tst_MvGraphicsItemCalendariumCells::clicks_data()
{
    const MvRows<QString, bool> row; // gesture, opens
    row("click", u"c"_s, true);
    row("double click", u"cd"_s, false);
    row("right click", u"r"_s, false);
    row("right click, later a click", u"rwc"_s, true);
    row("double click, later a click", u"cdwc"_s, true);
}

void tst_MvGraphicsItemCalendariumCells::clicks()
{
    Canvas canvas;
    canvas.pass({2027, 6, 1}, pageRect);
    QVERIFY(QTest::qWaitForWindowExposed(&canvas.view));
    QWidget *viewport = canvas.view.viewport();
    QSignalSpy spy(canvas.manager->cell(day), &Cell::dateClicked);
    const auto [gesture, opens] = MvRows<QString, bool>::current();
    for (const QChar step : gesture) {
        if (step == u'c')
            QTest::mouseClick(viewport, Qt::LeftButton, {}, canvas.centre(day));
        else if (step == u'r')
            QTest::mouseClick(viewport, Qt::RightButton, {}, canvas.centre(day));
        else if (step == u'd') {
            QTest::mouseDClick(viewport, Qt::LeftButton, {}, canvas.centre(day));
            QTest::mouseRelease(viewport, Qt::LeftButton, {}, canvas.centre(day));
        } else
            QTest::qWait(600);
    }
    QVERIFY(spy.isEmpty()); // not before it is clear that no second click follows
    QTest::qWait(350);
    QCOMPARE(spy.count(), int(opens));
    QCOMPARE(openMenu() != nullptr, opens);
    if (!opens)
        return;
    QCOMPARE(spy.at(0).at(1).toPoint(), viewport->mapToGlobal(canvas.centre(day)));
    QCOMPARE(openMenu()->actions().last()->text(), u"Neuen Eintrag am 5. Juni erstellen…"_s);
    const QPointer<QMenu> menu = openMenu();
    QTest::keyClick(menu, Qt::Key_Escape);
    QTRY_VERIFY(!menu); // deletes itself
}

void tst_MvGraphicsItemCalendariumCells::dragIsNoClick()
{
    Canvas canvas;
    canvas.pass({2027, 6, 1}, pageRect);
    QVERIFY(QTest::qWaitForWindowExposed(&canvas.view));
    QSignalSpy spy(canvas.manager->cell(day), &Cell::dateClicked);
    QTest::mousePress(canvas.view.viewport(), Qt::LeftButton, {}, canvas.centre(day));
    canvas.item->setPos(5, 5);
    QTest::qWait(350);
    QCOMPARE(spy.count(), 0);
    QTest::mouseRelease(canvas.view.viewport(), Qt::LeftButton, {}, canvas.centre(day));
}

void tst_MvGraphicsItemCalendariumCells::menuLeadsToTheEditor()
{
    MvCalendarEventRegistry::instance().setEvents(
        {entry(u"Oma & Opa"_s, QDate(1950, 6, 5)), entry(u"Zoë"_s, day), entry(u"anderer Tag"_s, day.addDays(1))});
    Canvas canvas;
    const std::unique_ptr<QMenu> menu(canvas.manager->customEntryMenuForHoveredDate(day));
    QCOMPARE(menu->title(), u"Eigene Einträge bearbeiten"_s);
    QStringList texts;
    for (const QAction *action : menu->actions())
        texts.append(action->text());
    QCOMPARE(texts, (QStringList{u"„Oma && Opa“ bearbeiten…"_s, u"„Zoë“ bearbeiten…"_s, QString(),
                                 u"Neuen Eintrag am 5. Juni erstellen…"_s}));

    QSignalSpy spy(canvas.manager, &Manager::eventChanged);
    menu->actions().at(1)->trigger();
    QPointer<MvCalendarDayEditorDialog> dialog = openEditor();
    QVERIFY(dialog);
    QCOMPARE(dialog->findChild<QLineEdit *>(u"descriptionEdit"_s)->text(), u"Zoë"_s);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_VERIFY(!dialog);
    QCOMPARE(spy.count(), 0);

    menu->actions().last()->trigger();
    dialog = openEditor();
    QTest::keyClicks(dialog->findChild<QLineEdit *>(u"descriptionEdit"_s), u"Neu"_s);
    QTest::keyClick(dialog, Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(MvCalendarEventRegistry::instance().activeEventList().last().dateTime(), day.startOfDay());
}

void tst_MvGraphicsItemCalendariumCells::notEditable()
{
    Canvas canvas;
    canvas.manager->setEditable(false);
    canvas.pass({2027, 6, 1}, pageRect);
    QVERIFY(!canvas.manager->cell(day)->isVisible());
    QVERIFY(!canvas.manager->customEntryMenuForHoveredDate(day));
    QVERIFY(!canvas.manager->focusDate(day));
    canvas.manager->showEntryForDate(day, {});
    QTest::qWait(50);
    QVERIFY(!openMenu());
    canvas.manager->setEditable(true);
    QVERIFY(canvas.manager->cell(day)->isVisible());
}

void tst_MvGraphicsItemCalendariumCells::hovers()
{
    Canvas canvas;
    canvas.pass({2027, 6, 1}, pageRect);
    QVERIFY(QTest::qWaitForWindowExposed(&canvas.view));
    QCOMPARE(canvas.manager->cell(day)->opacity(), 0.01);
    QTest::mouseMove(canvas.view.viewport(), canvas.centre(day));
    QTRY_COMPARE(canvas.manager->hoveredDate(), day);
    QTRY_COMPARE(canvas.manager->cell(day)->opacity(), 0.5);
    QTest::mouseMove(canvas.view.viewport(), QPoint(2, 2));
    QTRY_COMPARE(canvas.manager->hoveredDate(), QDate());
    QTRY_COMPARE(canvas.manager->cell(day)->opacity(), 0.01);

    const auto hover = [&canvas] {
        QTest::mouseMove(canvas.view.viewport(), QPoint(2, 2));
        QTest::mouseMove(canvas.view.viewport(), canvas.centre(day));
        QTRY_COMPARE(canvas.manager->hoveredDate(), day);
    };
    hover();
    canvas.manager->setEditable(false);
    QCOMPARE(canvas.manager->hoveredDate(), QDate());
    canvas.manager->setEditable(true);
    hover();
    QSignalSpy spy(canvas.manager->cell(day), &MvGraphicsItemCalendariumCell::hoveredDate);
    canvas.pass({2027, 7, 1}, pageRect); // the cell goes
    QCOMPARE(canvas.manager->hoveredDate(), QDate());
    QCOMPARE(spy.count(), 1);
}

void tst_MvGraphicsItemCalendariumCells::paintsForPeopleOnly_data()
{
    const MvRows<unsigned, double, bool> row; // flags, opacity, paints
    row("on the screen", 0x800U, 0.5, true);
    row("on the screen, with warnings", 0x800800U, 0.5, true);
    row("hidden", 0x800U, 0.02, false);
    row("no rule", 0U, 0.5, false);
    row("print", 0x8800U, 0.5, false);
    row("thumbnail", 0x200800U, 0.5, false);
}

void tst_MvGraphicsItemCalendariumCells::paintsForPeopleOnly()
{
    const auto [flags, opacity, paints] = MvRows<unsigned, double, bool>::current();
    Cell cell(day, nullptr);
    cell.setBoundingRect({0, 0, 20, 20});
    cell.setOpacity(opacity);
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    MvRenderingRule(flags).encodeInto(painter);
    cell.paint(&painter, nullptr, nullptr);
    painter.end();
    QCOMPARE(image.pixelColor(10, 10).alpha() == 155, paints);
    QCOMPARE(image.pixelColor(10, 10).alpha() != 0, paints);
}

void tst_MvGraphicsItemCalendariumCells::keyboard()
{
    Canvas canvas;
    canvas.pass({2027, 6, 1}, pageRect);
    QVERIFY(QTest::qWaitForWindowActive(&canvas.view));
    QVERIFY(!canvas.manager->focusDate({2027, 7, 1}));
    QVERIFY(canvas.manager->focusDate(day));
    const auto focused = [&canvas] {
        const auto *cell = qobject_cast<Cell *>(canvas.scene.focusItem()->toGraphicsObject());
        return cell && cell->hasKeyboardFocus() && cell->opacity() == 1.0 ? cell->date() : QDate();
    };
    const auto press = [&canvas](Qt::Key key) { QTest::keyClick(canvas.view.viewport(), key); };
    QCOMPARE(focused(), day);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    QCOMPARE(focused(), QDate(2027, 6, 13));
    press(Qt::Key_End);
    press(Qt::Key_Right); // no cell there
    QCOMPARE(focused(), QDate(2027, 6, 30));
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    QCOMPARE(focused(), QDate(2027, 6, 22));
    press(Qt::Key_Home);
    QCOMPARE(focused(), QDate(2027, 6, 1));
    press(Qt::Key_Return);
    QTRY_VERIFY(openMenu());
    QTest::keyClick(openMenu(), Qt::Key_Escape);
    QTRY_VERIFY(!openMenu());
    QCOMPARE(focused(), QDate(2027, 6, 1));

    // a click leaves the keys to the calendarium
    QTest::mouseClick(canvas.view.viewport(), Qt::LeftButton, {}, canvas.centre(day));
    press(Qt::Key_Right);
    QCOMPARE(focused(), QDate());
    QCOMPARE(canvas.manager->cell(QDate(2027, 6, 1))->opacity(), 0.01);
}

void tst_MvGraphicsItemCalendariumCells::screenReader()
{
    MvCalendarEventRegistry::instance().setEvents({entry(u"Tim"_s, day), entry(u"Åsa"_s, day)});
    Canvas canvas;
    canvas.pass({2027, 6, 1}, pageRect);
    QVERIFY(QTest::qWaitForWindowActive(&canvas.view));
    QAccessibleInterface *view = QAccessible::queryAccessibleInterface(&canvas.view);
    QAccessibleInterface *cell = view->child(view->childCount() - 26); // the fifth of thirty
    QVERIFY(cell && cell->isValid());
    QCOMPARE(cell->role(), QAccessible::Button);
    QCOMPARE(cell->text(QAccessible::Name), u"Samstag, 5. Juni 2027"_s);
    QCOMPARE(cell->text(QAccessible::Description), u"Tim, Åsa"_s);
    QCOMPARE(cell->parent(), view);
    QCOMPARE(view->indexOfChild(cell), view->childCount() - 26);
    QGraphicsView other(&canvas.scene); // of the program around
    QCOMPARE(QAccessible::queryAccessibleInterface(&other)->indexOfChild(cell), -1);
    const QPoint centre = canvas.view.viewport()->mapToGlobal(canvas.centre(day));
    QVERIFY(cell->rect().contains(centre));
    QCOMPARE(view->childAt(centre.x(), centre.y()), cell);
    cell->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(cell->state().focused);
    cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(openMenu());
    openMenu()->close();
}

void tst_MvGraphicsItemCalendariumCells::droppedFotos_data()
{
    const MvRows<int, QStringList, bool, bool> row; // entries, files, accepted, opensTheEditor
    const QStringList fotos{u"text.txt"_s, u"rot.png"_s, u"blau.png"_s};
    row("no photo among the files", 1, QStringList{u"text.txt"_s}, false, false);
    row("a day without entries", 0, fotos, true, true);
    row("a day with one", 1, fotos, true, false);
    row("a day with two", 2, fotos, true, true);
    row("a photo that claims to be huge", 1, QStringList{u"huge.webp"_s}, true, false);
}

void tst_MvGraphicsItemCalendariumCells::droppedFotos()
{
    const QTemporaryDir folder;
    QVERIFY(MvWidgetDriver::writeFoto(folder.filePath(u"rot.png"_s), Qt::red));
    QVERIFY(MvWidgetDriver::writeFoto(folder.filePath(u"blau.png"_s), Qt::blue));
    QVERIFY(MvWidgetDriver::writeHugeFoto(folder.filePath(u"huge.webp"_s)));
    QVERIFY(MvWidgetDriver::write(folder.filePath(u"text.txt"_s), "kein Foto"));
    auto [entries, files, accepted, opensTheEditor] = MvRows<int, QStringList, bool, bool>::current();
    for (QString &file : files)
        file = folder.filePath(file);

    MvCalendarEventList events;
    for (int i = 0; i < entries; ++i)
        events.append(entry(QString::number(i), day));
    const bool isBroken = files.first().endsWith(u"huge.webp"_s);
    if (isBroken) {
        events.first().setFoto(MvFoto(QFileInfo(folder.filePath(u"rot.png"_s))));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"huge\\.webp“ kann nicht gelesen werden"_s));
    }
    MvCalendarEventRegistry::instance().setEvents(events);
    Canvas canvas;
    canvas.manager->setHolidayConfig({}); // entries that the page does not show count, too
    canvas.pass({2027, 6, 1}, pageRect);
    QVERIFY(QTest::qWaitForWindowExposed(&canvas.view));

    const QPoint pos = canvas.centre(day);
    MvWidgetDriver::Drag drag(canvas.view.viewport(), files);
    QCOMPARE(drag.isTaken(pos), accepted);
    drag.drop(pos);

    const QPointer<MvCalendarDayEditorDialog> editor = openEditor();
    QCOMPARE(editor != nullptr, opensTheEditor);
    QCOMPARE(MvUndoController::instance().stack()->count(), int(accepted && !editor && !isBroken));
    if (accepted && !editor) {
        const MvFoto foto = MvCalendarEventRegistry::instance().activeEventList().first().foto();
        QCOMPARE(QImage(foto.localFilePath()).pixelColor(20, 15), QColor(Qt::red)); // the first photo
    }
    if (editor) {
        QVERIFY(editor->hasPhoto());
        editor->rejectedClicked();
    }
}

void tst_MvGraphicsItemCalendariumCells::artwork_data()
{
    const MvRows<Qt::AspectRatioMode, QRectF> row; // mode, cell
    // view box 100 x 100 shown in 200 x 100 at (10, 20); the day is at (10, 20), 30 x 40, moved by its group
    row("stretched", Qt::IgnoreAspectRatio, QRectF(10 + 40, 20 + 20, 60, 40));
    row("fitted", Qt::KeepAspectRatio, QRectF(60 + 20, 20 + 20, 30, 40));
    row("filling", Qt::KeepAspectRatioByExpanding, QRectF(10 + 40, -30 + 40, 60, 80));
}

void tst_MvGraphicsItemCalendariumCells::artwork()
{
    const QByteArray svg = R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 100 100">
        <g transform="translate(10,0)"><rect id="child_Day_2027-06-05" x="10" y="20" width="30" height="40"/></g></svg>)svg";
    QSvgRenderer renderer(svg);
    const auto [mode, cell] = MvRows<Qt::AspectRatioMode, QRectF>::current();
    Canvas canvas;
    canvas.manager->detectCellBoundingBoxes(MvDateRange::monthOf(day), &renderer, mode, {10, 20, 200, 100});
    QCOMPARE(canvas.manager->cell(day)->sceneBoundingRect(), cell);
    QVERIFY(!canvas.manager->cell(day.addDays(1)));
}

MV_WIDGET_TEST_MAIN(tst_MvGraphicsItemCalendariumCells)
#include "tst_MvGraphicsItemCalendariumCells.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "pages/MvFotoHandle.h"
#include "pages/MvFrameNotices.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageDropTarget.h"
#include "pages/MvPageEntries.h"
#include "pages/MvPageItem.h"
#include "pages/MvScreenFotos.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvEntryBubble.h"
#include "MvCalendar/MvGraphicsItemCalendariumCell.h"
#include "MvCalendar/MvGraphicsItemCalendariumCellsManager.h"
#include "MvCore/MvUndoController.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvProject.h"
#include "MvWidgetDriver.h"
#include "MvWidgetTest.h"

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A canvas with three months of 2027 from January.
struct OpenCanvas
{
    explicit OpenCanvas(const QString &layout = u"MONTH_GRID_CLASSIC"_s)
    {
        QVERIFY(folder.isValid());
        project.newProject(MvProjectFixture::document(layout, 3));
        canvas = std::make_unique<MvPageCanvas>(&project);
        canvas->resize(900, 700);
        canvas->show();
        QVERIFY(QTest::qWaitForWindowExposed(canvas.get()));
        canvas->activateWindow();
        settle();
    }

    /// What changed is recorded and painted.
    void settle() { item()->refreshNow(); }
    MvPageItem *item() const { return canvas->pageItem(); }
    MvFotoFrame foto(int page = 0) const { return project.document().pages().at(page).fotoFrame(); }
    QPoint viewPoint(const QPointF &onPage) const { return canvas->mapFromScene(item()->mapToScene(onPage)); }
    QPoint viewPoint(const QDate &date) const { return viewPoint(item()->dateRect(date).center()); }
    int steps() const { return MvUndoController::instance().stack()->index(); }

    QString writeFoto(const QSize &size = {300, 200}) const
    {
        const QString path = folder.filePath(u"foto%1x%2.png"_s.arg(size.width()).arg(size.height()));
        return MvProjectFixture::writeFoto(path, size) ? path : QString();
    }
    void setFoto(const QSize &size = {300, 200})
    {
        const QString path = writeFoto(size);
        canvas->setFoto(path);
        settle();
        canvas->grab(); // asks for the photo
        QTRY_VERIFY(!item()->fotos()->foto(path, {16, 16}).isNull());
    }

    QString dropText() const
    {
        for (QGraphicsItem *child : item()->childItems()) {
            if (const auto *target = dynamic_cast<MvPageDropTarget *>(child))
                return target->text();
        }
        return {};
    }

    void dragMouse(const QPoint &from, const QPoint &to, bool release = true)
    {
        QTest::mouseMove(canvas->viewport(), from);
        QTest::mousePress(canvas->viewport(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, canvas->viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(canvas->viewport(), &move);
        if (release)
            QTest::mouseRelease(canvas->viewport(), Qt::LeftButton, {}, to);
    }

    QTemporaryDir folder;
    MvProject project;
    std::unique_ptr<MvPageCanvas> canvas;
};

} // namespace

/// The canvas, driven by mouse, keys and drops.
class tst_MvPageCanvas : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fotoDropped();
    void refusesWhatIsNoFoto();
    void fotoComesBack();
    void edgeOfTheFotoIsPulled();
    void fotoMovesInItsFrame();
    void contextMenuPlacesTheFoto();
    void keyboardGoesThroughTheCalendar();
    void zooms();
    void looksWithoutRecording();
    void layoutsReplaceTheCells();
    void daysAnswerInTheirRow_data();
    void daysAnswerInTheirRow();
    void wordsOnFramesFollowTheScreen();
};

void tst_MvPageCanvas::init()
{
    MvWidgetTest::failOnWarnings();
    MvCalendarEventRegistry::instance().setEvents({});
    MvUndoController::instance().clear();
}

void tst_MvPageCanvas::fotoDropped()
{
    using Placement = MvFotoFrame::Placement;
    const auto drop = [](OpenCanvas &open, const QPoint &position, const QSize &size, Qt::KeyboardModifiers modifiers) {
        MvWidgetDriver::Drag drag(open.canvas->viewport(), {open.writeFoto(size)}, modifiers);
        const QString said = drag.isTaken(position) ? open.dropText() : QString();
        return drag.drop(position) && open.dropText().isEmpty() ? said : QString();
    };
    const std::pair<QSize, Placement> fotos[] = {{{300, 200}, Placement::Top}, {{200, 300}, Placement::Left}};
    for (const auto &[size, placement] : fotos) {
        OpenCanvas open;
        QCOMPARE(drop(open, open.viewPoint(QPointF(40, 40)), size, {}), u"Foto der Seite"_s); // beside the days
        QCOMPARE(open.foto().path(), open.writeFoto(size));
        QCOMPARE(open.foto().placement(), placement);
        QCOMPARE(open.steps(), 1);
        MvUndoController::instance().undo();
        open.settle();
        QVERIFY(!open.foto().isValid());
        const QPoint day = open.viewPoint(QDate(2027, 1, 12));
        QCOMPARE(drop(open, day, size, {}), u"Foto der Seite"_s); // in passing, a day is not meant
        QVERIFY(open.foto().isValid());
        MvUndoController::instance().undo();
        open.settle();
        QCOMPARE(drop(open, open.viewPoint(QDate(2027, 1, 12)), size, Qt::ShiftModifier), u"Foto für den 12. Januar"_s);
        QVERIFY(!open.foto().isValid());
        auto *editor = MvWidgetDriver::openWindow<MvCalendarDayEditorDialog>(); // a new entry with the photo
        QVERIFY(editor);
        editor->rejectedClicked();
    }
    OpenCanvas open;
    const QPoint day = open.viewPoint(QDate(2027, 1, 12));
    MvWidgetDriver::Drag drag(open.canvas->viewport(), {open.writeFoto()}, {});
    QVERIFY(drag.isTaken(day));
    QCOMPARE(open.dropText(), u"Foto der Seite"_s);
    QTRY_COMPARE(open.dropText(), u"Foto für den 12. Januar"_s); // who waits there means it
    QDragLeaveEvent leave;                                       // or the next drag would go to this canvas
    QApplication::sendEvent(open.canvas->viewport(), &leave);
    QCOMPARE(open.dropText(), QString());
}

void tst_MvPageCanvas::refusesWhatIsNoFoto()
{
    OpenCanvas open;
    const QString letter = open.folder.filePath(u"brief.jpg"_s);
    QVERIFY(MvWidgetDriver::write(letter, "kein Foto"));
    QVERIFY(!MvWidgetDriver::Drag(open.canvas->viewport(), {letter}).isTaken(open.viewPoint(QPointF(40, 40))));
    QSignalSpy said(open.canvas.get(), &MvPageCanvas::message);
    open.canvas->setFoto(letter);
    QVERIFY(said.value(0).value(0).toString().contains(u"brief.jpg"));
    QVERIFY(!open.foto().isValid());
    QCOMPARE(open.steps(), 0);

    open.setFoto();
    QVERIFY(MvWidgetDriver::writeHugeFoto(letter));
    open.canvas->setFoto(letter);
    QVERIFY(said.last().value(0).toString().contains(u"viel zu klein"));
    QVERIFY(open.foto().isValid() && open.foto().path() != letter);
    QCOMPARE(open.steps(), 1);
}

/// Its file goes and comes while the page is shown.
void tst_MvPageCanvas::fotoComesBack()
{
    OpenCanvas open;
    open.setFoto();
    const QString path = open.foto().path();
    const auto fotoColor = [&open] {
        const QImage image = open.canvas->viewport()->grab().toImage();
        return image.pixelColor(open.viewPoint(open.item()->fotoRect().topLeft() + QPointF(30, 30)));
    };
    QCOMPARE(fotoColor(), QColor(Qt::red));
    QVERIFY(QFile::rename(path, path + u"-weg"_s));
    open.item()->fotos()->recheck(); // as when the program is activated again
    QTRY_VERIFY(open.item()->fotos()->isUnreadable(path) || (fotoColor(), false));
    QVERIFY(fotoColor() != QColor(Qt::red));
    QVERIFY(QFile::rename(path + u"-weg"_s, path));
    QTRY_COMPARE(fotoColor(), QColor(Qt::red)); // by itself
}

void tst_MvPageCanvas::edgeOfTheFotoIsPulled()
{
    OpenCanvas open;
    open.setFoto();
    const QRectF before = open.item()->fotoRect();
    const QPointF grip(before.center().x(), before.bottom());
    open.dragMouse(open.viewPoint(grip), open.viewPoint(grip - QPointF(0, 200)), false);
    QTRY_VERIFY(qAbs(open.item()->fotoRect().bottom() - (before.bottom() - 200)) < 20); // follows while it is pulled
    QCOMPARE(open.steps(), 1);
    QTest::keyClick(open.canvas.get(), Qt::Key_Escape);
    QTest::mouseRelease(open.canvas->viewport(), Qt::LeftButton, {}, open.viewPoint(grip));
    open.settle();
    QCOMPARE(open.item()->fotoRect(), before);

    open.dragMouse(open.viewPoint(grip), open.viewPoint(grip - QPointF(0, 200)));
    open.settle();
    QVERIFY(qAbs(open.item()->fotoRect().bottom() - (before.bottom() - 200)) < 20);
    QCOMPARE(open.steps(), 2);
    MvUndoController::instance().undo();
    open.settle();
    QCOMPARE(open.item()->fotoRect(), before);
}

void tst_MvPageCanvas::fotoMovesInItsFrame()
{
    OpenCanvas open;
    open.setFoto({200, 800}); // upright: the frame at its side shows a part of its height
    open.canvas->grab();
    const QPointF focus = open.foto().focus();
    const QPointF centre = open.item()->fotoRect().center();
    open.dragMouse(open.viewPoint(centre), open.viewPoint(centre + QPointF(0, 300)));
    QVERIFY(open.foto().focus().y() < focus.y()); // pulled down, more of its top is seen
    QCOMPARE(open.steps(), 2);

    const double y = open.foto().focus().y();
    QTest::keyClick(open.canvas.get(), Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(open.canvas.get(), Qt::Key_Down, Qt::AltModifier);
    QVERIFY(open.foto().focus().y() > y);
    QCOMPARE(open.steps(), 3); // both keys are one step
}

/// On a day it has that day's entries, too.
void tst_MvPageCanvas::contextMenuPlacesTheFoto()
{
    OpenCanvas open;
    open.setFoto();
    const std::unique_ptr<QMenu> menu(open.canvas->createContextMenu(open.viewPoint(QDate(2027, 1, 12))));
    menu->findChild<QAction *>(u"photoSize50"_s)->trigger();
    QCOMPARE(open.foto().share(), 0.5);
    QCOMPARE(open.steps(), 2);
    const QList<QAction *> actions = menu->actions();
    QVERIFY(std::any_of(actions.begin(), actions.end(),
                        [](const QAction *each) { return each->text().startsWith(u"Neuen Eintrag am 12. Jan"); }));
}

void tst_MvPageCanvas::keyboardGoesThroughTheCalendar()
{
    OpenCanvas open;
    QSignalSpy turned(open.canvas.get(), &MvPageCanvas::currentPageChanged);
    QTest::keyClick(open.canvas.get(), Qt::Key_Right); // begins
    QCOMPARE(open.canvas->focusDate(), QDate(2027, 1, 1));
    QTest::keyClick(open.canvas.get(), Qt::Key_Right);
    QTest::keyClick(open.canvas.get(), Qt::Key_Down);
    QCOMPARE(open.canvas->focusDate(), QDate(2027, 1, 9));
    MvCalendarEventRegistry::instance().setEvents({MvEntries::entry(u"Oma Erika"_s, {1941, 1, 9})});
    QTest::keyClick(open.canvas.get(), Qt::Key_Return);
    QTRY_VERIFY(open.canvas->entries()->bubble());
    auto *text = open.canvas->entries()->bubble()->findChild<QLineEdit *>(u"bubbleText"_s);
    QCOMPARE(text->text(), u"Oma Erika"_s);
    QTest::keyClick(text, Qt::Key_Escape);
    QVERIFY(!open.canvas->entries()->bubble());
    QCOMPARE(open.canvas->focusDate(), QDate(2027, 1, 9)); // as it was left
    for (int week = 0; week < 4; ++week)
        QTest::keyClick(open.canvas.get(), Qt::Key_Down);
    QTRY_COMPARE(open.canvas->focusDate(), QDate(2027, 2, 6)); // on the next page
    QCOMPARE(turned.size(), 1);
    QTest::keyClick(open.canvas.get(), Qt::Key_PageDown);
    QTest::keyClick(open.canvas.get(), Qt::Key_PageDown);
    QCOMPARE(open.canvas->currentPage(), 2); // there are three
    QTest::keyClick(open.canvas.get(), Qt::Key_Home);
    QCOMPARE(open.canvas->currentPage(), 0);
    open.settle();
    QVERIFY(open.canvas->accessibleDescription().contains(u"Seite 1 von 3"));
}

void tst_MvPageCanvas::zooms()
{
    OpenCanvas open;
    MvPageCanvas &canvas = *open.canvas;
    const auto turnWheel = [&canvas](int angle) {
        QWheelEvent event({50, 50}, {50, 50}, {}, {0, angle}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas.viewport(), &event);
        return canvas.currentPage();
    };
    QCOMPARE(turnWheel(-60), 0); // the whole page is seen: two half steps turn to the next
    QCOMPARE(turnWheel(-60), 1);
    QCOMPARE(turnWheel(120), 0);
    canvas.setZoom(8.0);
    QCOMPARE(turnWheel(-120), 0); // scrolls
    canvas.zoomToFit();
    const double fitted = canvas.zoom();
    canvas.resize(600, 500);
    const double smaller = canvas.zoom();
    QVERIFY(canvas.isFitted() && smaller < fitted);
    const QPoint position = open.viewPoint(QDate(2027, 1, 14));
    const QPointF onPage = canvas.mapToScene(position);
    for (int step = 0; step < 6; ++step) {
        QWheelEvent wheel(position, canvas.viewport()->mapToGlobal(position), {}, {0, 120}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas.viewport(), &wheel);
    }
    QVERIFY(!canvas.isFitted() && canvas.zoom() > 3.0 * smaller);
    QVERIFY((canvas.mapFromScene(onPage) - position).manhattanLength() <= 4); // stays under the mouse
    canvas.setZoom(1000.0);
    QCOMPARE(canvas.zoom(), MvPageCanvas::maximumZoom);
    canvas.zoomToFit();
    QCOMPARE(canvas.zoom(), smaller);
}

void tst_MvPageCanvas::looksWithoutRecording()
{
    OpenCanvas open;
    QSignalSpy refreshed(open.item(), &MvPageItem::refreshed);
    const QImage before = open.canvas->grab().toImage();
    open.canvas->setZoom(2.0);
    QTest::mouseMove(open.canvas->viewport(), open.viewPoint(QDate(2027, 1, 14)));
    open.canvas->zoomToFit();
    QTest::mouseMove(open.canvas->viewport(), QPoint(1, 1));
    QTest::qWait(20);
    QVERIFY(refreshed.size() <= 1); // the larger scale may ask for larger photos of entries
    refreshed.clear();
    QTRY_COMPARE(open.canvas->grab().toImage(), before);
    QCOMPARE(refreshed.size(), 0);
}

void tst_MvPageCanvas::layoutsReplaceTheCells()
{
    OpenCanvas open;
    const auto look = [&open](const QString &layout) {
        MvCalendarDocument document = open.project.document();
        document.setAppearance(MvProjectFixture::appearance(layout));
        open.project.change(document, u"Layout"_s);
        QSignalSpy refreshed(open.item(), &MvPageItem::refreshed);
        QVERIFY(refreshed.wait());
    };
    look(u"MONTH_ONLY"_s);
    QVERIFY(open.item()->dates().isEmpty());
    QTest::mouseClick(open.canvas->viewport(), Qt::LeftButton, {}, QPoint(450, 400));
    QTest::qWait(300);
    QVERIFY(!QApplication::activePopupWidget()); // no cell of the grid is left behind
    look(u"MONTH_GRID_LINES"_s);
    QCOMPARE(open.item()->dates().size(), 31);

    // a second calendarium adds its days; those of the first keep their places
    MvCalendarPage page = open.project.document().pages().at(0);
    MvCalendariumElement next(u"MONTH_GRID_COMPACT"_s);
    next.setMonthOffset(1);
    const MvCalendariumElement small(u"MONTH_GRID_COMPACT"_s);
    const QRectF large(100, 500, 1100, 900);
    page.setElements({{large, MvCalendariumElement()}, {{1300, 500, 400, 400}, next}, {{1300, 950, 400, 400}, small}});
    open.project.changePage(0, page, u"Elemente"_s);
    open.settle();
    QCOMPARE(open.item()->dates().size(), 31 + 28);
    QVERIFY(large.adjusted(-1, -1, 1, 1).contains(open.item()->dateRect({2027, 1, 31})));
    QVERIFY(open.item()->cells()->cell({2027, 1, 31}) && open.item()->cells()->cell({2027, 2, 28}));
}

void tst_MvPageCanvas::daysAnswerInTheirRow_data()
{
    const MvRows<QString> row; // layout
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        if (schema.calendariumType().traits().hasColumns)
            row(schema.ID().toString(), schema.ID().toString());
    }
}

/// Number and all columns of a list are the day: for the mouse, and for what is dropped.
void tst_MvPageCanvas::daysAnswerInTheirRow()
{
    const auto [layout] = MvRows<QString>::current();
    const OpenCanvas open(layout);
    const QDate day(2027, 1, 20);
    const QRectF row = open.item()->dateRect(day);
    int found = 0;
    double right = 0.0;
    for (const MvPaintRecording::Item &item : open.item()->recording().items(MvPaintRecording::Item::Text)) {
        const QPointF place = item.bounds.center();
        right = std::max(right, place.x());
        if (place.y() > row.top() && place.y() < row.bottom() && item.text.trimmed() == u"20"_s) {
            QCOMPARE(open.item()->dateAt(place), day);
            ++found;
        }
    }
    QCOMPARE(found, 1);
    QVERIFY(right > 0.0);
    QCOMPARE(open.item()->dateAt({right, row.center().y()}), day); // below the last heading
    const auto *cell = open.item()->cells()->cell(day);
    QVERIFY(cell && cell->mapRectToParent(cell->boundingRect()).contains(row.adjusted(1, 1, -1, -1)));
}

/// As large as all other words, however many pixels the screen has.
void tst_MvPageCanvas::wordsOnFramesFollowTheScreen()
{
    MvPageElement empty({}, MvFotoElement());
    empty.setRect({0, 0, 1200, 900});
    const auto invitation = [&empty](double ratio) {
        MvPaintRecorder recorder(nullptr);
        QPainter painter(&recorder);
        painter.scale(0.2 * ratio, 0.2 * ratio);
        MvFrameNotices::paint(painter, {empty}, empty.rect(), nullptr, ratio);
        painter.end();
        QRectF bounds;
        for (const MvPaintRecording::Item &item : recorder.recording().items(MvPaintRecording::Item::Text))
            bounds |= item.bounds;
        return bounds;
    };
    const QRectF usual = invitation(1.0);
    const QRectF fine = invitation(3.0);
    QVERIFY(usual.height() > 0.0 && empty.rect().contains(usual));
    QVERIFY(qAbs(fine.height() / usual.height() - 3.0) < 0.2);
    QVERIFY(qAbs(fine.center().x() / usual.center().x() - 3.0) < 0.1);
}

MV_WIDGET_TEST_MAIN(tst_MvPageCanvas)
#include "tst_MvPageCanvas.moc"

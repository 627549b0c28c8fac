// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "pages/MvFrameEdits.h"
#include "pages/MvFrameSnapping.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageDeviation.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"
#include "panels/MvCommonSlider.h"
#include "panels/MvPageEdits.h"
#include "panels/MvStudioPanels.h"

#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"
#include "MvWidgetTest.h"

using namespace Qt::StringLiterals;

/// Frames that somebody moves, resizes, lines up, puts on a page and takes away: numbers first, then mouse and keys.
class tst_MvFrames : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void catches_data();
    void catches();
    void arranges_data();
    void arranges();
    void mouse_data();
    void mouse();
    void keys();
    void comeAndGo();
    void deviatingPages();
    void severalInPanels_data();
    void severalInPanels();
    void goneBeneathPanels();

private:
    MvCalendarPage page() const { return m_project->document().pages().constFirst(); }
    QRectF rect(int element) const { return page().elements().value(element).rect(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(m_canvas.get(), key, modifiers); }
    void drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers, bool isReleased = true);

    std::unique_ptr<MvProject> m_project;
    std::unique_ptr<MvPageCanvas> m_canvas;
};

namespace {

// the template of the fixture with two photos
constexpr int title = 0;
constexpr int left = 1;
constexpr int right = 2;
constexpr int calendarium = 4;
constexpr int other = 5; // what somebody has added

} // namespace

void tst_MvFrames::init()
{
    MvWidgetTest::failOnWarnings();
    MvUndoController::instance().clear();
    m_canvas.reset();
    m_project = std::make_unique<MvProject>();
    MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 3);
    for (int number = 0; number < 3; ++number) {
        MvCalendarPage changed = document.pages().at(number);
        changed.setTemplate(MvProjectFixture::pageTemplate(u"two"_s, 2), document.format());
        document.setPage(number, changed);
    }
    m_project->newProject(document);
    m_canvas = std::make_unique<MvPageCanvas>(m_project.get());
    m_canvas->resize(1000, 760);
    m_canvas->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_canvas.get()));
    m_canvas->pageItem()->refreshNow();
}

void tst_MvFrames::drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers, bool isReleased)
{
    QWidget *viewport = m_canvas->viewport();
    const auto inView = [this](const QPointF &point) {
        return m_canvas->mapFromScene(m_canvas->pageItem()->mapToScene(point));
    };
    QTest::mousePress(viewport, Qt::LeftButton, modifiers, inView(from));
    for (const QPointF &point : {(from + to) / 2.0, to}) {
        QMouseEvent move(QEvent::MouseMove, inView(point), viewport->mapToGlobal(inView(point)), Qt::NoButton,
                         Qt::LeftButton, modifiers);
        QApplication::sendEvent(viewport, &move);
    }
    if (isReleased)
        QTest::mouseRelease(viewport, Qt::LeftButton, modifiers, inView(to));
    m_canvas->pageItem()->refreshNow();
}

void tst_MvFrames::catches_data()
{
    const MvRows<QRectF, Qt::Edges, QRectF, int> row; // frame; edges: none: it is moved; caught; guides
    // A4 lying: margin 87.5, gutters 43.75, columns every 236.6, rows every 82.1; numbers away from what is not meant
    const QRectF other(1050, 803, 500, 200);
    const Qt::Edges none;
    row("edge of the page", QRectF(6, 394, 177, 82), none, QRectF(0, 394, 177, 82), 1);
    row("middle of the page", QRectF(1340, 394, 300, 82), none, QRectF(1335, 394, 300, 82), 1);
    row("margin of the field", QRectF(92, 394, 100, 82), none, QRectF(87.5, 394, 100, 82), 1);
    row("line of another", other.translated(8, 329), none, other.translated(0, 329), 3);
    row("below another", QRectF(1721, 1008, 237, 124), none, QRectF(1721, 1003, 237, 124), 1);
    row("too far", QRectF(20, 394, 163, 82), none, QRectF(20, 394, 163, 82), 0);
    row("pulled right", QRectF(700, 394, 358, 82), Qt::Edges(Qt::RightEdge), QRectF(700, 394, 350, 82), 1);
    row("pulled corner", QRectF(1300, 700, 245, 98), (Qt::RightEdge | Qt::BottomEdge), QRectF(1300, 700, 250, 103), 2);
    row("only the pulled edge", QRectF(4, 394, 179, 82), Qt::Edges(Qt::BottomEdge), QRectF(4, 394, 179, 82), 0);
}

void tst_MvFrames::catches()
{
    const auto [frame, edges, caught, guides] = MvRows<QRectF, Qt::Edges, QRectF, int>::current();
    MvPageFormat format = MvPageFormat::fromName(u"A4"_s);
    format.setOrientation(MvPageFormat::Orientation::Landscape);
    const MvFrameSnapping snapping(format, {{1050, 803, 500, 200}});
    const auto result = edges ? snapping.resized(frame, edges, 9.0) : snapping.moved(frame, 9.0);
    QCOMPARE(result.rect, caught);
    QCOMPARE(result.guides.size(), guides);
    for (const QLineF &guide : result.guides) // on an edge or the middle of the frame
        QVERIFY(guide.dx() == 0.0
                    ? QList<double>({caught.left(), caught.center().x(), caught.right()}).contains(guide.x1())
                    : QList<double>({caught.top(), caught.center().y(), caught.bottom()}).contains(guide.y1()));
    QCOMPARE(MvFrameSnapping().moved(frame, 9.0).rect, frame);
}

void tst_MvFrames::arranges_data()
{
    using Line = MvFrameArrangement::Line;
    const MvRows<int, QList<QPointF>> row; // line: beyond those that there are: distributed across, down; corners
    row("left", int(Line::Left), {{0, 0}, {0, 50}, {0, 300}});
    row("centre", int(Line::Centre), {{250, 0}, {200, 50}, {275, 300}});
    row("right", int(Line::Right), {{500, 0}, {400, 50}, {550, 300}});
    row("top", int(Line::Top), {{0, 0}, {150, 0}, {550, 0}});
    row("bottom", int(Line::Bottom), {{0, 300}, {150, 350}, {550, 300}});
    row("across", -1, {{0, 0}, {225, 50}, {550, 300}}); // gaps of 125
    row("down", -2, {{0, 0}, {150, 175}, {550, 300}});  // gaps of 75
}

void tst_MvFrames::arranges()
{
    const auto [line, corners] = MvRows<int, QList<QPointF>>::current();
    const QList<QRectF> frames{{0, 0, 100, 100}, {150, 50, 200, 50}, {550, 300, 50, 100}};
    const QList<QRectF> arranged =
        line >= 0
            ? MvFrameArrangement::aligned(frames, MvFrameArrangement::Line(line), MvFrameArrangement::bounds(frames))
            : MvFrameArrangement::distributed(frames, line == -1 ? Qt::Horizontal : Qt::Vertical);
    for (int index = 0; index < frames.size(); ++index)
        QCOMPARE(arranged.at(index), QRectF(corners.at(index), frames.at(index).size()));
}

void tst_MvFrames::mouse_data()
{
    // at: 0 the middle of the last chosen, 1 its lower right corner
    const MvRows<QList<int>, int, Qt::KeyboardModifiers, QList<int>> row;
    row("an empty frame", QList<int>{left}, 0, Qt::KeyboardModifiers(), QList<int>{left});
    row("two together", QList<int>{right, left}, 0, Qt::KeyboardModifiers(), QList<int>{left, right});
    row("nothing catches with Ctrl", QList<int>{left}, 0, Qt::KeyboardModifiers(Qt::ControlModifier), QList<int>{left});
    row("a corner", QList<int>{left}, 1, Qt::KeyboardModifiers(), QList<int>{});
}

void tst_MvFrames::mouse()
{
    const auto [chosen, at, modifiers, moved] = MvRows<QList<int>, int, Qt::KeyboardModifiers, QList<int>>::current();
    const MvCalendarPage before = page();
    const double edge = m_project->document().format().fieldRect().left();
    m_canvas->selection()->selectElements(chosen);
    const QRectF frame = rect(left);
    const QPointF from = at == 0 ? frame.center() + QPointF(30, 30) : frame.bottomRight();
    drag(from, from + QPointF(-6, 90), modifiers, false);
    press(Qt::Key_Escape); // taken back
    QTest::mouseRelease(m_canvas->viewport(), Qt::LeftButton, {}, {1, 1});
    QVERIFY(page() == before);
    m_canvas->pageItem()->refreshNow();
    m_canvas->selection()->selectElements(chosen);

    drag(from, from + QPointF(-6, 90), modifiers);
    for (int element = 0; element < before.elements().size(); ++element) {
        const QRectF was = before.elements().at(element).rect();
        if (at == 1 && element == left)
            QVERIFY(rect(element).topLeft() == was.topLeft() && rect(element).height() > was.height() + 60);
        else
            QCOMPARE(rect(element) != was, moved.contains(element));
        QVERIFY(at == 1 || rect(element).size() == was.size());
    }
    if (at == 0) // it stood on the margin of the field, and stays there unless nothing is to catch
        QCOMPARE(qAbs(rect(left).left() - edge) < 0.01, modifiers == Qt::NoModifier);
    QCOMPARE(MvUndoController::instance().stack()->index(), 1);
    MvUndoController::instance().undo();
    QVERIFY(page() == before);
}

void tst_MvFrames::keys()
{
    const QRectF before = rect(right);
    m_canvas->setFocus();
    m_canvas->selection()->selectElement(right);
    press(Qt::Key_Right);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(rect(right), before.translated(10, 1));
    press(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(rect(right), before.translated(10, 1).adjusted(0, 0, -10, 0));
    QCOMPARE(MvUndoController::instance().stack()->index(), 1); // keys that follow each other are one step
    press(Qt::Key_Escape);
    QCOMPARE(m_canvas->selection()->kind(), MvPageSelection::Kind::Calendar);
    for (int element = 0; element <= calendarium; ++element) { // all can be reached
        m_canvas->selection()->selectNext();
        QCOMPARE(m_canvas->selection()->element(), element);
    }
    press(Qt::Key_Delete);
    QCOMPARE(page().elements().size(), calendarium);
}

void tst_MvFrames::comeAndGo()
{
    const MvCalendarDocument before = m_project->document();
    MvFrameEdits *frames = m_canvas->frames();
    frames->addText();
    frames->addFoto();
    frames->addSmallMonth();
    QCOMPARE(page().elements().size(), calendarium + 4);
    const QList<MvPageElement> added = page().elements().mid(calendarium + 1);
    for (const MvPageElement &one : added) {
        QVERIFY(before.format().safeRect().contains(one.rect()));
        for (const MvPageElement &other : added)
            QVERIFY(&one == &other || !one.rect().intersects(other.rect()));
    }
    QCOMPARE(added.at(2).calendarium()->monthOffset(), 1);

    m_canvas->selection()->selectElements({title, left});
    frames->duplicate();
    QCOMPARE(m_canvas->selection()->elements(), QList<int>({calendarium + 4, calendarium + 5}));
    QVERIFY(page().elements().last().slot().isEmpty()); // the template's place stays the original's
    frames->sendToBack();
    QCOMPARE(m_canvas->selection()->elements(), QList<int>({0, 1}));
    QVERIFY(page().elements().first().text());
    frames->bringToFront();
    frames->remove();
    QCOMPARE(page().elements().size(), calendarium + 4);
    QCOMPARE(m_canvas->selection()->kind(), MvPageSelection::Kind::Calendar);
    while (MvUndoController::instance().stack()->canUndo())
        MvUndoController::instance().undo();
    QVERIFY(m_project->document() == before);

    // what shares a simple page comes apart where it stands
    MvCalendarPage simple = page();
    simple.setTemplate({}, before.format());
    m_project->changePage(0, simple, u"simple"_s);
    m_canvas->selection()->selectElement(1);
    QVERIFY(!frames->moveBy({10, 10}));
    const QRectF place = page().elementsOn(before.format()).at(1).rect();
    frames->freeFrames();
    QVERIFY(!page().isSimple());
    QCOMPARE(page().elements().constFirst().rect(), place);
    m_canvas->selection()->selectElement(0);
    QVERIFY(frames->moveBy({10, 10}));
}

void tst_MvFrames::severalInPanels_data()
{
    // chosen: the last one is what panels are about; keys: what somebody types; empty for a click
    const MvRows<QList<int>, QByteArray, QString> row;
    const QList<int> fotos{title, right, left};
    const QList<int> texts{left, title, other};
    for (const auto &[chosen, control, keys] : {
             std::tuple(fotos, "photoCaption", u"Ostsee"_s),
             std::tuple(fotos, "photoFit", u"D"_s),
             std::tuple(fotos, "photoZoomSlider", u"R"_s),
             std::tuple(fotos, "photoStraighten", u"U"_s),
             std::tuple(fotos, "photoStraighten", u"7\n"_s),
             std::tuple(fotos, "photoBrightness", u"R"_s),
             std::tuple(fotos, "photoBorder", u"4\n"_s),
             std::tuple(fotos, "frameLeft", u"20\n"_s),
             std::tuple(fotos, "frameWidth", u"U"_s),
             std::tuple(texts, "textEdit", u"Gute Reise"_s),
             std::tuple(texts, "textPoints", u"12\n"_s),
             std::tuple(texts, "textBold", QString()),
             std::tuple(texts, "textHorizontal", u"D"_s),
         })
        row(QString::asprintf("%s %s", control, qPrintable(keys.trimmed())), chosen, QByteArray(control), keys);
}

/// What differs is shown so; one edit makes all alike that have it, in one step, and touches no other.
void tst_MvFrames::severalInPanels()
{
    const auto [chosen, control, keys] = MvRows<QList<int>, QByteArray, QString>::current();
    MvCalendarPage prepared = page();
    for (const int number : {left, right}) {
        MvFotoElement foto(u"/tmp/%1.jpg"_s.arg(number));
        foto.setCaption(u"Foto %1"_s.arg(number));
        foto.setFit(number == left ? MvFotoElement::Fit::Fill : MvFotoElement::Fit::Whole);
        foto.setZoom(1.0 + number);
        foto.setStraightening(number);
        foto.setBrightness(10 * number);
        foto.setBorder({10.0 * number, Qt::white});
        prepared.setFoto(number, foto);
    }
    MvPageElement wide = prepared.elements().at(left);
    wide.setRect(wide.rect().adjusted(0, 0, 30, 0));
    prepared.setElement(left, wide);
    MvTextElement said(u"Anders"_s);
    said.setPoints(31.0);
    said.setWeight(prepared.elements().at(title).text()->weight() > QFont::Medium ? QFont::Normal : QFont::Bold);
    said.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    prepared.addElement({{}, said});
    m_project->changePage(0, prepared, u"prepared"_s);

    QWidget window;
    MvStudioPanels panels(m_project.get(), &window, m_canvas->selection(), m_canvas->frames());
    panels.edits()->setScope(MvPageEdits::Scope::CurrentPage);
    auto *row = new QHBoxLayout(&window);
    for (const MvStudioPanel &panel : panels.selectionPanels())
        row->addWidget(panel.widget);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    m_canvas->selection()->selectElements(chosen);
    auto *widget = window.findChild<QWidget *>(QLatin1StringView(control));
    QVERIFY(widget);
    const auto isDifferent = [widget] {
        if (const auto *slider = qobject_cast<MvCommonSlider *>(widget))
            return slider->isDifferent();
        if (const auto *box = qobject_cast<QComboBox *>(widget))
            return box->currentIndex() < 0;
        if (const auto *box = qobject_cast<QCheckBox *>(widget))
            return box->checkState() == Qt::PartiallyChecked;
        const bool isText = widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit");
        return widget->property(isText ? "placeholderText" : "text").toString() == u"verschieden"_s;
    };
    QVERIFY(isDifferent());

    const int steps = MvUndoController::instance().stack()->index();
    widget->setFocus();
    if (keys.isEmpty())
        QTest::mouseClick(widget, Qt::LeftButton, {}, {8, widget->height() / 2});
    else if (const QHash<QString, Qt::Key> moves{{u"U"_s, Qt::Key_Up}, {u"D"_s, Qt::Key_Down}, {u"R"_s, Qt::Key_Right}};
             moves.contains(keys))
        QTest::keyClick(widget, moves.value(keys));
    else
        QTest::keyClicks(widget, keys.trimmed());
    if (keys.endsWith(u'\n'))
        QTest::keyClick(widget, Qt::Key_Return);
    QVERIFY(!isDifferent());
    QCOMPARE(MvUndoController::instance().stack()->index(), steps + 1);
    const MvCalendarPage edited = page();
    const bool isText = prepared.elements().at(chosen.last()).text();
    for (int number = 0; number < prepared.elements().size(); ++number) {
        const bool isMeant = chosen.contains(number) && (isText ? prepared.elements().at(number).text() != nullptr
                                                                : number == left || number == right);
        if (!isMeant && !control.startsWith("frame"))
            QCOMPARE(edited.elements().at(number), prepared.elements().at(number));
    }
    m_canvas->selection()->selectNothing();
    m_canvas->selection()->selectElements(chosen);
    QVERIFY(!isDifferent()); // as the page has it
    MvUndoController::instance().undo();
    QVERIFY(page() == prepared);
}

void tst_MvFrames::deviatingPages()
{
    MvCalendarDocument document = m_project->document();
    QCOMPARE(MvPageDeviation::of(document), QList<bool>({false, false, false}));
    const auto change = [&document](auto edit) {
        MvCalendarPage changed = document.pages().at(1);
        edit(changed);
        MvCalendarDocument other = document;
        other.setPage(1, changed);
        return MvPageDeviation::of(other);
    };
    const QList<bool> second{false, true, false};
    QCOMPARE(change([](MvCalendarPage &one) {
                 MvPageElement moved = one.elements().at(left);
                 moved.setRect(moved.rect().translated(50, 0));
                 one.setElement(left, moved);
             }),
             second);
    QCOMPARE(change([](MvCalendarPage &one) {
                 MvFotoElement foto = *one.elements().at(left).foto();
                 foto.setBorder({20.0, Qt::white});
                 one.setFoto(left, foto);
             }),
             second);
    QCOMPARE(change([&document](MvCalendarPage &one) { one.setTemplate({}, document.format()); }), second);
    QCOMPARE(change([](MvCalendarPage &one) { // a picture is no look
                 MvFotoElement foto = *one.elements().at(left).foto();
                 foto.setPath(u"/nicht/da.jpg"_s);
                 foto.setZoom(2.0);
                 one.setFoto(left, foto);
             }),
             QList<bool>({false, false, false}));
}

/// An undone step takes away the frame that a panel shows, or makes it one of another kind.
void tst_MvFrames::goneBeneathPanels()
{
    QWidget window;
    MvStudioPanels panels(m_project.get(), &window, m_canvas->selection(), m_canvas->frames());
    auto *row = new QHBoxLayout(&window);
    for (const MvStudioPanel &panel : panels.selectionPanels())
        row->addWidget(panel.widget);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    MvCalendarPage simple = page();
    simple.setTemplate({}, m_project->document().format());
    m_project->changePage(0, simple, u"simple"_s);
    for (const int chosen : {title, left, calendarium}) {
        MvUndoController::instance().undo();
        m_canvas->selection()->selectElements({right, chosen});
        QCOMPARE(m_canvas->selection()->elements().size(), 2);
        MvUndoController::instance().redo(); // to a page of two elements
        for (const int number : m_canvas->selection()->elementsOfKind())
            QVERIFY(number < page().elementsOn(m_project->document().format()).size());
    }
}

MV_WIDGET_TEST_MAIN(tst_MvFrames)
#include "tst_MvFrames.moc"

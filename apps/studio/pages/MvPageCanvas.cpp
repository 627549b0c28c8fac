// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageCanvas.h"

#include "common/MvDraggedDates.h"
#include "common/MvDraggedFotos.h"
#include "pages/MvFotoBar.h"
#include "pages/MvFotoHandle.h"
#include "pages/MvFotoInvitation.h"
#include "pages/MvFrameEdits.h"
#include "pages/MvPageDrop.h"
#include "pages/MvPageEntries.h"
#include "pages/MvPageFoto.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageKeys.h"
#include "pages/MvPageSelection.h"
#include "pages/MvPrintMarks.h"

#include "MvCalendar/MvGraphicsItemCalendariumCellsManager.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProject.h"

#include <QContextMenuEvent>
#include <QFileInfo>
#include <QGestureEvent>
#include <QMenu>
#include <QMimeData>
#include <QNativeGestureEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double zoomStep = 1.25;
constexpr double unitsPerInch = 254.0; // tenths of a millimetre
constexpr int fittingMargin = 8;       // pixels

} // namespace

MvPageCanvas::MvPageCanvas(MvProject *project, QWidget *parent)
    : MvCalendariumView(parent)
    , m_project(project)
    , m_scene(new QGraphicsScene(this))
    , m_item(new MvPageItem(project))
    , m_selection(new MvPageSelection(project, this))
    , m_foto(new MvPageFoto(project, m_item, m_selection, this))
    , m_frames(new MvFrameEdits(project, m_selection, this))
    , m_fotoHandle(new MvFotoHandle(project, m_item, m_selection))
    , m_fotoBar(new MvFotoBar(project, m_item, m_fotoHandle, this))
    , m_invitation(new MvFotoInvitation(m_item, this))
    , m_drop(new MvPageDrop(project, m_item, this))
    , m_entries(new MvPageEntries(project, m_item, this))
    , m_printMarks(new MvPrintMarks(project, m_item))
{
    setObjectName(u"pageCanvas"_s);
    setAccessibleName(tr("Kalenderseite"));
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignCenter);
    setAcceptDrops(true);
    setTransformationAnchor(NoAnchor);
    setViewportUpdateMode(MinimalViewportUpdate);
    // reaches the painter of every item, so that the cells of dates light up here and in no print
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                   QPainter::RenderHints::fromInt(MvRenderingRule::InteractiveScreen));
    viewport()->grabGesture(Qt::PinchGesture);
    m_scene->setItemIndexMethod(
        QGraphicsScene::NoIndex); // for some fifty items that change with every month it costs more than it saves
    m_scene->addItem(m_item);
    setScene(m_scene);
    applyPalette();
    m_keys = new MvPageKeys(this, m_item, m_fotoHandle);
    connect(m_item, &MvPageItem::refreshed, this, &MvPageCanvas::onRefreshed);
    connect(m_foto, &MvPageFoto::message, this, &MvPageCanvas::message);
    connect(m_entries, &MvPageEntries::message, this, &MvPageCanvas::message);
    connect(m_frames, &MvFrameEdits::message, this, &MvPageCanvas::message);
    connect(m_invitation, &QPushButton::clicked, m_foto, &MvPageFoto::choose);
    connect(m_fotoHandle, &MvFotoHandle::emptyFrameClicked, m_foto, &MvPageFoto::chooseFor);
    connect(m_selection, &MvPageSelection::changed, this, &MvPageCanvas::onSelectionChanged);
    connect(project, &MvProject::pagesReset, this, [this] { setCurrentPage(currentPage()); });
    connect(project, &MvProject::documentReplaced, this, &MvPageCanvas::onDocumentReplaced);
    onRefreshed();
}

MvPageCanvas::~MvPageCanvas()
{
    delete m_item; // before the project's signals and the scene go
}

int MvPageCanvas::currentPage() const
{
    return m_item->page();
}

void MvPageCanvas::setCurrentPage(int page)
{
    const int last = int(m_project->document().pages().size()) - 1;
    const int clamped = std::clamp(page, 0, std::max(0, last));
    if (clamped == currentPage())
        return;
    m_fotoHandle->cancelDrag();
    m_item->setPage(clamped);
    m_selection->setPage(clamped);
    Q_EMIT currentPageChanged(clamped);
}

void MvPageCanvas::nextPage()
{
    setCurrentPage(currentPage() + 1);
}

void MvPageCanvas::previousPage()
{
    setCurrentPage(currentPage() - 1);
}

void MvPageCanvas::onDocumentReplaced()
{
    setFocusDate({});
    setCurrentPage(0);
    zoomToFit();
    askForFotos();
}

/// Photos are decoded while everything else is put in order; nobody waits for what is not seen.
void MvPageCanvas::askForFotos()
{
    const double ratio = devicePixelRatioF();
    if (isVisible())
        m_item->askForFotos(viewportTransform() * QTransform::fromScale(ratio, ratio));
}

/// The page's rectangles are new: what stands on them follows.
void MvPageCanvas::onRefreshed()
{
    m_scene->setSceneRect(m_item->boundingRect());
    if (m_isFitted)
        zoomToFit();
    m_keys->follow();
    updateDescription();
}

// ---------------------------------------------------------------------------------------------------- zoom and scroll

double MvPageCanvas::pixelsPerUnit() const
{
    return logicalDpiX() / unitsPerInch;
}

double MvPageCanvas::zoom() const
{
    return transform().m11() / pixelsPerUnit();
}

double MvPageCanvas::fittingZoom() const
{
    const QRectF page = m_item->boundingRect();
    if (page.isEmpty())
        return 1.0;
    const QSizeF room = maximumViewportSize() - QSize(2 * fittingMargin, 2 * fittingMargin);
    return std::min(room.width() / page.width(), room.height() / page.height()) / pixelsPerUnit();
}

void MvPageCanvas::zoomToFit()
{
    m_isFitted = true;
    applyZoom(fittingZoom(), viewport()->rect().center());
}

void MvPageCanvas::setZoom(double zoom)
{
    m_isFitted = false;
    applyZoom(zoom, viewport()->rect().center());
}

void MvPageCanvas::zoomIn()
{
    setZoom(zoom() * zoomStep);
}

void MvPageCanvas::zoomOut()
{
    setZoom(zoom() / zoomStep);
}

/// The point of the viewport keeps its place on the page.
void MvPageCanvas::applyZoom(double zoom, const QPointF &fixedPoint)
{
    const double scale = std::clamp(zoom, minimumZoom, maximumZoom) * pixelsPerUnit();
    m_item->setPixelsPerUnit(scale * devicePixelRatioF());
    if (qFuzzyCompare(scale, transform().m11()))
        return;
    const QPointF onPage = viewportTransform().inverted().map(fixedPoint);
    setTransform(QTransform::fromScale(scale, scale));
    const QPointF moved = viewportTransform().map(onPage) - fixedPoint;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
    m_fotoHandle->adapt();
    m_fotoBar->follow();
    m_invitation->follow();
    Q_EMIT zoomChanged(this->zoom());
}

void MvPageCanvas::resizeEvent(QResizeEvent *event)
{
    MvCalendariumView::resizeEvent(event);
    if (m_isFitted)
        zoomToFit();
}

void MvPageCanvas::wheelEvent(QWheelEvent *event)
{
    constexpr int anglePerStep = 120;
    if (!(event->modifiers() & Qt::ControlModifier)) {
        if (verticalScrollBar()->maximum() > verticalScrollBar()->minimum()) {
            MvCalendariumView::wheelEvent(event);
            return;
        }
        // nothing to scroll: on to the next page
        if (event->phase() != Qt::ScrollMomentum)
            m_wheelAngle += event->angleDelta().y();
        const int pages = m_wheelAngle / anglePerStep;
        m_wheelAngle -= pages * anglePerStep;
        setCurrentPage(currentPage() - pages);
        event->accept();
        return;
    }
    const double factor = std::pow(zoomStep, double(event->angleDelta().y()) / anglePerStep);
    event->accept();
    if (m_fotoHandle->zoomAt(onPage(event->position()), factor))
        return;
    m_isFitted = false;
    applyZoom(zoom() * factor, event->position());
}

bool MvPageCanvas::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Gesture) {
        auto *pinch = static_cast<QPinchGesture *>(static_cast<QGestureEvent *>(event)->gesture(Qt::PinchGesture));
        if (pinch != nullptr) {
            m_isFitted = false;
            applyZoom(zoom() * pinch->scaleFactor(), viewport()->mapFromGlobal(pinch->hotSpot()));
            return true;
        }
    }
    if (event->type() == QEvent::NativeGesture) {
        const auto *gesture = static_cast<QNativeGestureEvent *>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            m_isFitted = false;
            applyZoom(zoom() * (1.0 + gesture->value()), gesture->position());
            return true;
        }
    }
    return MvCalendariumView::viewportEvent(event);
}

// ------------------------------------------------------------------------------------------------------------- pointer

void MvPageCanvas::mousePressEvent(QMouseEvent *event)
{
    const bool isHand = event->button() == Qt::LeftButton && m_isSpaceDown;
    if (event->button() != Qt::MiddleButton && !isHand) {
        setFocusDate({});
        const QPointF point = onPage(event->position());
        const int element = m_item->shownPage().elementAt(point, m_project->document().format());
        if (m_fotoHandle->isTaking(point))
            ; // chosen when the button is let go
        else if (const QDate date = dateAt(event->pos()); date.isValid()) {
            m_selection->selectDay(date);
            if (event->button() == Qt::LeftButton)
                m_entries->press(event->pos());
        } else if (element < 0 || m_item->elements().at(element).kind() == MvPageElement::Kind::Calendarium)
            m_selection->selectNothing();
        MvCalendariumView::mousePressEvent(event);
        event->accept(); // days look at a press and let it pass; nothing around the canvas wants it
        return;
    }
    m_isPanning = true;
    m_panFrom = event->pos();
    updateHand();
}

void MvPageCanvas::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isPanning) {
        if (!m_entries->move(event->pos(), event->modifiers()))
            MvCalendariumView::mouseMoveEvent(event);
        return;
    }
    const QPoint moved = event->pos() - m_panFrom;
    m_panFrom = event->pos();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

void MvPageCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_isPanning) {
        MvCalendariumView::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            m_entries->release(event->pos(), event->modifiers());
        return;
    }
    m_isPanning = false;
    updateHand();
}

/// The hand tool's cursor stands over those of the items.
void MvPageCanvas::updateHand()
{
    setInteractive(!m_isPanning && !m_isSpaceDown);
    if (m_isPanning)
        viewport()->setCursor(Qt::ClosedHandCursor);
    else if (m_isSpaceDown)
        viewport()->setCursor(Qt::OpenHandCursor);
    else
        viewport()->unsetCursor();
}

QDate MvPageCanvas::dateAt(const QPoint &position) const
{
    return m_item->dateAt(m_item->mapFromScene(mapToScene(position)));
}

QMenu *MvPageCanvas::createContextMenu(const QPoint &position)
{
    const QDate date = dateAt(position);
    QMenu *menu = date.isValid() ? m_item->cells()->customEntryMenuForHoveredDate(date) : nullptr;
    if (menu == nullptr)
        menu = new QMenu(this);
    menu->setObjectName(u"pageMenu"_s);
    if (!menu->isEmpty())
        menu->addSeparator();
    const int element = m_item->shownPage().elementAt(onPage(position), m_project->document().format());
    m_foto->addActions(menu, element);
    menu->addSeparator();
    m_frames->addActions(menu, element);
    return menu;
}

void MvPageCanvas::contextMenuEvent(QContextMenuEvent *event)
{
    QPoint position = event->pos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const QRectF rect = focusDate().isValid() ? m_item->dateRect(focusDate()) : m_item->pageRect();
        position = mapFromScene(m_item->mapToScene(rect.center()));
    }
    QMenu *menu = createContextMenu(position);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(viewport()->mapToGlobal(position));
    event->accept();
}

void MvPageCanvas::chooseFoto()
{
    m_foto->choose();
}

bool MvPageCanvas::hasFoto() const
{
    return m_foto->hasFoto();
}

void MvPageCanvas::setFoto(const QString &path)
{
    m_foto->set(path);
}

void MvPageCanvas::removePhoto()
{
    m_foto->remove();
}

void MvPageCanvas::setPrintMarksShown(bool shown)
{
    m_printMarks->setVisible(shown);
}

// ------------------------------------------------------------------------------------------------------ drag and drop

QPointF MvPageCanvas::onPage(const QPointF &position) const
{
    return m_item->mapFromScene(mapToScene(position.toPoint()));
}

void MvPageCanvas::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_drop->enter(event, onPage(event->position()))) {
        event->ignore();
        const QString file = event->mimeData()->urls().value(0).toLocalFile();
        if (!file.isEmpty() && !MvDraggedDates::isDates(file))
            Q_EMIT message(tr("„%1“ ist kein Foto, das gelesen werden kann.").arg(QFileInfo(file).fileName()));
        return;
    }
    MvCalendariumView::dragEnterEvent(event);
    event->acceptProposedAction();
    Q_EMIT message(tr("Loslassen setzt das Foto ein. Für einen Tag: auf ihm warten oder die Umschalttaste halten."));
}

void MvPageCanvas::dragMoveEvent(QDragMoveEvent *event)
{
    if (!m_drop->isActive()) {
        event->ignore();
        return;
    }
    MvCalendariumView::dragMoveEvent(event);
    m_drop->move(event, onPage(event->position()));
    event->acceptProposedAction();
}

void MvPageCanvas::dragLeaveEvent(QDragLeaveEvent *event)
{
    MvCalendariumView::dragLeaveEvent(event);
    m_drop->leave();
    Q_EMIT message({});
}

void MvPageCanvas::dropEvent(QDropEvent *event)
{
    if (!m_drop->isActive())
        return;
    m_drop->move(event, onPage(event->position()));
    const MvPageDrop::Target target = m_drop->target();
    const QStringList paths = m_drop->paths();
    const auto frame = MvDraggedFotos::frame(event->mimeData());
    m_drop->leave();
    Q_EMIT message({});
    event->acceptProposedAction();
    if (target.date.isValid()) {
        MvCalendariumView::dropEvent(event); // the day's cell takes it
        event->acceptProposedAction();
    } else if (frame && target.element >= 0) {
        MvCalendarDocument document = m_project->document();
        if (document.swapFotos({frame->first, frame->second}, {currentPage(), target.element}))
            m_project->change(document, tr("Fotos tauschen"));
    } else if (paths.size() == 1 && !QFileInfo(paths.constFirst()).isDir() && target.element >= 0) {
        m_foto->set(target.element, paths.constFirst());
    } else {
        Q_EMIT fotosDropped(paths, currentPage(), target.element);
    }
}

/// The keyboard stays where it was; a screen reader is told what was chosen.
void MvPageCanvas::onSelectionChanged()
{
    updateDescription();
    viewport()->update();
}

// ------------------------------------------------------------------------------------------------------------ keyboard

void MvPageCanvas::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_entries->cancel())
        return;
    if (event->key() == Qt::Key_Control)
        m_entries->setModifiers(Qt::ControlModifier);
    if (event->key() == Qt::Key_Space && !focusDate().isValid()) {
        m_isSpaceDown = true;
        updateHand();
    } else if (!m_keys->press(event)) {
        MvCalendariumView::keyPressEvent(event); // the day's cell goes on
    }
}

void MvPageCanvas::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Control)
        m_entries->setModifiers({});
    if (event->key() != Qt::Key_Space) {
        MvCalendariumView::keyReleaseEvent(event);
        return;
    }
    if (!event->isAutoRepeat()) {
        m_isSpaceDown = false;
        updateHand();
    }
}

void MvPageCanvas::focusInEvent(QFocusEvent *event)
{
    MvCalendariumView::focusInEvent(event);
    const bool isByKeyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                              event->reason() == Qt::ShortcutFocusReason;
    if (isByKeyboard)
        m_keys->enter();
}

void MvPageCanvas::focusOutEvent(QFocusEvent *event)
{
    MvCalendariumView::focusOutEvent(event);
    m_isSpaceDown = false;
    m_isPanning = false;
    updateHand();
}

QDate MvPageCanvas::focusDate() const
{
    return m_keys->focusDate();
}

bool MvPageCanvas::setFocusDate(const QDate &date)
{
    return m_keys->setFocusDate(date);
}

void MvPageCanvas::deleteChosen()
{
    const bool isOneFoto = m_selection->kind() == MvPageSelection::Kind::Foto && m_selection->elements().size() == 1;
    if (isOneFoto && m_foto->hasFoto())
        m_foto->remove();
    else
        m_frames->remove();
}

/// What a screen reader says of the page; its days tell for themselves.
void MvPageCanvas::updateDescription()
{
    setAccessibleDescription(tr("Seite %1 von %2: %3")
                                 .arg(currentPage() + 1)
                                 .arg(m_project->document().pages().size())
                                 .arg(MvPrintCheck::pageName(m_project->document(), currentPage())));
}

// ------------------------------------------------------------------------------------------------------------ painting

void MvPageCanvas::changeEvent(QEvent *event)
{
    MvCalendariumView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyPalette();
}

/// A table under the paper: a little darker than the window's panels.
void MvPageCanvas::applyPalette()
{
    constexpr int darker = 112;
    const QBrush table(palette().color(QPalette::Window).darker(darker));
    if (backgroundBrush() != table)
        setBackgroundBrush(table);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFotoHandle.h"

#include "common/MvDraggedFotos.h"
#include "common/MvStudioMerge.h"
#include "pages/MvFrameEdits.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"
#include "pages/MvScreenFotoSource.h"
#include "pages/MvScreenFotos.h"

#include "MvProject/MvProject.h"

#include <QCursor>
#include <QDrag>
#include <QFileInfo>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QPalette>
#include <QStyleHints>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double edgeReach = 24.0;  // tenths of a millimetre on either side of the edge
constexpr double handleReach = 9.0; // pixels
constexpr double snapReach = 7.0;   // pixels
constexpr int dragSide = 96;        // pixels of a photo that is dragged away
const QColor guideColor(0xd6, 0x1f, 0x69);

} // namespace

MvFotoHandle::MvFotoHandle(MvProject *project, MvPageItem *item, MvPageSelection *selection)
    : QGraphicsObject(item)
    , m_project(project)
    , m_item(item)
    , m_selection(selection)
{
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setZValue(1.0); // the edge can be gripped over the first cells
    connect(item, &MvPageItem::refreshed, this, &MvFotoHandle::adapt);
    connect(selection, &MvPageSelection::changed, this, [this] {
        adapt();
        Q_EMIT activeFrameChanged();
    });
    adapt();
}

// ----------------------------------------------------------------------------------------------------------- geometry

/// Frames and texts take the mouse; what lies above them, such as the days of a calendarium on a photo, keeps it.
void MvFotoHandle::adapt()
{
    prepareGeometryChange();
    m_bounds = m_item->boundingRect();
    m_shape = {};
    QPainterPath above;
    for (const MvPageElement &element : m_item->elements()) {
        QPainterPath outline;
        outline.addPolygon(element.outline());
        outline.closeSubpath();
        if (element.kind() == MvPageElement::Kind::Calendarium && !isWhole(element))
            above.addPath(outline);
        else
            m_shape = m_shape.united(outline);
    }
    m_shape = m_shape.subtracted(above);
    if (hasEdge()) {
        QPainterPath grip;
        grip.addRect(QRectF(edge().p1(), edge().p2())
                         .normalized()
                         .adjusted(-edgeReach / 2, -edgeReach / 2, edgeReach / 2, edgeReach / 2));
        m_shape = m_shape.united(grip);
    }
    if (isFree(m_selection->element())) {
        QPainterPath handles;
        handles.setFillRule(Qt::WindingFill);
        for (const QRectF &area :
             MvFrameGrips::areas(frameRect(m_selection->element()) & m_item->pageRect(), pageUnits(handleReach)))
            handles.addRect(area);
        m_shape = m_shape.united(handles);
    }
    setVisible(!m_shape.isEmpty());
    if (m_hovered >= m_item->elements().size())
        setHovered({});
    update();
}

QRectF MvFotoHandle::frameRect(int element) const
{
    return element >= 0 && element < m_item->elements().size() ? m_item->elements().at(element).rect() : QRectF();
}

/// The photo of a page without a template shares the page with the calendarium.
bool MvFotoHandle::hasEdge() const
{
    return m_item->shownPage().isSimple() && m_item->shownPage().fotoFrame().isValid();
}

/// The side of the photo that looks at the calendarium.
QLineF MvFotoHandle::edge() const
{
    const QRectF foto = frameRect(0) & m_item->pageRect();
    switch (m_item->shownPage().fotoFrame().placement()) {
    case MvFotoFrame::Placement::Left:
        return {foto.topRight(), foto.bottomRight()};
    case MvFotoFrame::Placement::Right:
        return {foto.topLeft(), foto.bottomLeft()};
    case MvFotoFrame::Placement::Top:
        break;
    }
    return {foto.bottomLeft(), foto.bottomRight()};
}

double MvFotoHandle::pageUnits(double pixels) const
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    const double scale = views.isEmpty() ? 1.0 : views.constFirst()->transform().m11();
    return pixels / std::max(scale, 0.01);
}

int MvFotoHandle::elementAt(const QPointF &point) const
{
    return m_item->shownPage().elementAt(point, m_project->document().format());
}

bool MvFotoHandle::isFree(int element) const
{
    return !frameRect(element).isEmpty() && MvFrameEdits::isFree(m_item->shownPage(), element);
}

/// A calendarium that somebody has put there is a frame like others; the page's own ones are made of days.
bool MvFotoHandle::isWhole(const MvPageElement &element) const
{
    return element.kind() != MvPageElement::Kind::Calendarium || element.slot().isEmpty();
}

bool MvFotoHandle::isTaking(const QPointF &point) const
{
    const Hit hit = hitAt(point, {});
    return hit.grip == Grip::Frame && hit.element >= 0;
}

MvFotoHandle::Hit MvFotoHandle::hitAt(const QPointF &point, Qt::KeyboardModifiers modifiers) const
{
    if (hasEdge()) {
        const QLineF line = edge();
        const double distance = line.dx() == 0.0 ? point.x() - line.x1() : point.y() - line.y1();
        if (qAbs(distance) <= edgeReach)
            return {Grip::Edge, elementAt(point)};
    }
    if (const int chosen = m_selection->element(); isFree(chosen)) {
        const QRectF seen = frameRect(chosen) & m_item->pageRect();
        const MvFrameGrips::Grip handle = MvFrameGrips::at(seen, point, pageUnits(handleReach));
        if (handle != MvFrameGrips::Grip::None)
            return {Grip::Frame, chosen, handle};
    }
    const int element = elementAt(point);
    if (element < 0 || !isWhole(m_item->elements().at(element)))
        return {};
    const bool hasFoto = m_item->foto(element) && !m_item->foto(element)->isEmpty();
    if (isFree(element) && (!hasFoto || modifiers.testFlag(Qt::AltModifier)))
        return {Grip::Frame, element, MvFrameGrips::Grip::Move};
    return {Grip::Foto, element};
}

// -------------------------------------------------------------------------------------------------------------- mouse

void MvFotoHandle::showCursor(const Hit &hit)
{
    const MvFotoElement *foto = m_item->foto(hit.element);
    const bool isInvitation = foto && foto->isEmpty() && m_grip == Grip::None;
    if (hit.grip == Grip::Edge)
        setCursor(edge().dx() == 0.0 ? Qt::SplitHCursor : Qt::SplitVCursor);
    else if (hit.grip == Grip::Frame && !(hit.handle == MvFrameGrips::Grip::Move && isInvitation))
        setCursor(MvFrameGrips::cursor(hit.handle));
    else if (m_swapWith >= 0)
        setCursor(Qt::DragMoveCursor);
    else if (!foto || foto->isEmpty())
        setCursor(Qt::PointingHandCursor);
    else
        setCursor(m_grip == Grip::Foto ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

void MvFotoHandle::setHovered(const Hit &hit)
{
    if (m_hovered == hit.element && m_hoveredGrip == hit.grip)
        return;
    const int before = activeFrame();
    m_hovered = hit.element;
    m_hoveredGrip = hit.grip;
    update();
    if (activeFrame() != before)
        Q_EMIT activeFrameChanged();
}

int MvFotoHandle::activeFrame() const
{
    if (m_item->foto(m_hovered) && !frameRect(m_hovered).isEmpty())
        return m_hovered;
    const int chosen = m_selection->element();
    return m_item->foto(chosen) && !frameRect(chosen).isEmpty() ? chosen : -1;
}

void MvFotoHandle::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    const Hit hit = hitAt(event->pos(), event->modifiers());
    setHovered(hit);
    showCursor(hit);
}

void MvFotoHandle::hoverLeaveEvent(QGraphicsSceneHoverEvent * /*event*/)
{
    setHovered({});
}

void MvFotoHandle::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const Hit hit = hitAt(event->pos(), event->modifiers());
    m_element = hit.element;
    m_grip = hit.grip;
    m_handle = hit.handle;
    m_pressedAt = event->pos();
    m_before = m_item->shownPage();
    m_hasMoved = false;
    if (m_grip == Grip::None) {
        event->ignore();
        return;
    }
    if (m_grip == Grip::Frame)
        beginSnapping();
    showCursor(hit);
}

void MvFotoHandle::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_grip == Grip::None)
        return;
    const QPoint moved = event->screenPos() - event->buttonDownScreenPos(Qt::LeftButton);
    if (!m_hasMoved && moved.manhattanLength() < QGuiApplication::styleHints()->startDragDistance() / 2)
        return;
    m_hasMoved = true;
    QWidget *viewport = event->widget();
    const bool hasFoto = m_item->foto(m_element) && !m_item->foto(m_element)->isEmpty();
    if (m_grip == Grip::Foto && hasFoto && viewport &&
        !viewport->rect().contains(viewport->mapFromGlobal(event->screenPos()))) {
        dragAway(viewport);
        return;
    }
    m_swapWith = swapTargetAt(event->pos());
    showCursor({m_grip, m_element, m_handle});
    m_item->setTrial(m_swapWith >= 0 ? m_before : dragged(event->pos(), event->modifiers()));
    update();
}

/// The drag goes on beyond the page, to another one in the strip.
void MvFotoHandle::dragAway(QWidget *source)
{
    const int element = m_element;
    cancelDrag();
    ungrabMouse();
    const QString path = m_item->foto(element) ? m_item->foto(element)->path() : QString();
    auto *drag = new QDrag(source);
    drag->setMimeData(MvDraggedFotos::createData({path}, std::pair(m_item->page(), element)));
    const QImage image = m_item->fotos()->foto(path, {dragSide, dragSide});
    if (!image.isNull())
        drag->setPixmap(QPixmap::fromImage(image.scaled(dragSide, dragSide, Qt::KeepAspectRatio)));
    drag->exec(Qt::CopyAction);
}

void MvFotoHandle::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_grip == Grip::None)
        return;
    if (!m_hasMoved) {
        const int element = m_element;
        const bool isEdge = m_grip == Grip::Edge;
        cancelDrag();
        if (!isEdge)
            choose(element, event->modifiers());
        return;
    }
    const int page = m_item->page();
    const int first = m_element;
    const int second = m_swapWith;
    const bool isFrame = m_grip == Grip::Frame;
    const MvCalendarPage changed = dragged(event->pos(), event->modifiers());
    const QString text = stepText();
    cancelDrag();
    if (second >= 0) {
        MvCalendarDocument document = m_project->document();
        if (document.swapFotos({page, first}, {page, second}))
            m_project->change(document, tr("Fotos tauschen"));
        m_selection->selectElement(second);
        return;
    }
    m_project->changePage(page, changed, text);
    if (isFrame && !m_selection->elements().contains(first))
        m_selection->selectElement(first);
}

void MvFotoHandle::choose(int element, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & (Qt::ShiftModifier | Qt::ControlModifier)) {
        m_selection->toggleElement(element);
        return;
    }
    m_selection->selectElement(element);
    if (const MvFotoElement *foto = m_item->foto(element); foto && foto->isEmpty())
        Q_EMIT emptyFrameClicked(element);
}

void MvFotoHandle::cancelDrag()
{
    m_grip = Grip::None;
    m_element = -1;
    m_swapWith = -1;
    m_handle = MvFrameGrips::Grip::None;
    m_guides.clear();
    m_item->setTrial({});
    showCursor({});
    update();
}

/// Another frame under the mouse takes the photo in exchange for its own.
int MvFotoHandle::swapTargetAt(const QPointF &point) const
{
    if (m_grip != Grip::Foto || !m_item->foto(m_element) || m_item->foto(m_element)->isEmpty())
        return -1;
    const int under = elementAt(point);
    return under != m_element && m_item->foto(under) ? under : -1;
}

QString MvFotoHandle::stepText() const
{
    switch (m_grip) {
    case Grip::Edge:
        return tr("Größe des Fotos ändern");
    case Grip::Frame:
        return m_handle == MvFrameGrips::Grip::Move ? tr("Rahmen verschieben") : tr("Größe des Rahmens ändern");
    default:
        return tr("Ausschnitt des Fotos verschieben");
    }
}

// ------------------------------------------------------------------------------------------------------------ changes

MvCalendarPage MvFotoHandle::dragged(const QPointF &point, Qt::KeyboardModifiers modifiers)
{
    MvCalendarPage page = m_before;
    const QPointF distance = point - m_pressedAt;
    m_guides.clear();
    if (m_grip == Grip::Edge) {
        pullEdge(page, distance);
    } else if (m_grip == Grip::Frame) {
        dragFrames(page, distance, !modifiers.testFlag(Qt::ControlModifier));
    } else {
        const QList<MvPageElement> elements = page.elementsOn(m_project->document().format());
        const MvPageElement element = elements.value(m_element);
        if (m_element >= 0 && element.foto() && !element.foto()->isEmpty())
            page.setFoto(m_element, movedFoto(m_element, *element.foto(), distance));
    }
    return page;
}

/// All that are chosen are moved with the one under the mouse.
QList<int> MvFotoHandle::draggedElements() const
{
    QList<int> elements = m_selection->elements();
    if (m_handle != MvFrameGrips::Grip::Move || !elements.contains(m_element))
        return {m_element};
    elements.removeIf([this](int element) { return !isFree(element); });
    return elements;
}

void MvFotoHandle::beginSnapping()
{
    const QList<int> moving = draggedElements();
    QList<QRectF> others;
    for (int element = 0; element < m_item->elements().size(); ++element)
        if (const QRectF rect = frameRect(element); !moving.contains(element) && !rect.isEmpty())
            others.append(rect);
    m_snapping = MvFrameSnapping(m_project->document().format(), others);
}

/// By whole tenths of a millimetre where nothing catches.
void MvFotoHandle::dragFrames(MvCalendarPage &page, const QPointF &distance, bool isSnapping)
{
    const QList<MvPageElement> elements = page.elementsOn(m_project->document().format());
    const QRectF before = elements.value(m_element).rect();
    const QPointF by(std::round(distance.x()), std::round(distance.y()));
    const double reach = isSnapping ? pageUnits(snapReach) : -1.0;
    const Qt::Edges edges = MvFrameGrips::edges(m_handle);
    const MvFrameSnapping::Result caught =
        edges ? m_snapping.resized(MvFrameGrips::pulled(before, edges, by), edges, reach)
              : m_snapping.moved(before.translated(by), reach);
    m_guides = caught.guides;
    for (const int number : draggedElements()) {
        MvPageElement element = elements.value(number);
        element.setRect(number == m_element ? caught.rect
                                            : element.rect().translated(caught.rect.topLeft() - before.topLeft()));
        page.setElement(number, element);
    }
}

void MvFotoHandle::pullEdge(MvCalendarPage &page, const QPointF &distance) const
{
    MvFotoFrame frame = page.fotoFrame();
    const QRectF sheet = m_item->pageRect();
    switch (frame.placement()) {
    case MvFotoFrame::Placement::Top:
        frame.setShare(frame.share() + distance.y() / sheet.height());
        break;
    case MvFotoFrame::Placement::Left:
        frame.setShare(frame.share() + distance.x() / sheet.width());
        break;
    case MvFotoFrame::Placement::Right:
        frame.setShare(frame.share() - distance.x() / sheet.width());
        break;
    }
    page.setFotoFrame(frame);
}

/// The photo moved under its frame by a distance in page units, as far as it reaches.
MvFotoElement MvFotoHandle::movedFoto(int element, const MvFotoElement &foto, const QPointF &distance) const
{
    const QSizeF size = MvScreenFotoSource(*m_item->fotos()).fullSize(QFileInfo(foto.path()));
    MvFotoElement moved = foto;
    if (!size.isEmpty())
        moved.setFocus(foto.movedFocus(size, frameRect(element).size(), distance));
    return moved;
}

void MvFotoHandle::moveFocus(const QPointF &distance)
{
    if (isDragging())
        return;
    m_item->refreshNow(); // the next key counts from where the one before led
    int element = m_selection->element();
    for (int other = 0; other < m_item->elements().size() && !m_item->foto(element); ++other)
        element = other;
    const MvFotoElement *foto = m_item->foto(element);
    if (!foto || foto->isEmpty())
        return;
    const QSizeF size = frameRect(element).size();
    MvCalendarPage page = m_item->shownPage();
    page.setFoto(element, movedFoto(element, *foto, {-distance.x() * size.width(), -distance.y() * size.height()}));
    m_project->changePage(m_item->page(), page, tr("Ausschnitt des Fotos verschieben"), MvStudioMerge::FotoFocus);
}

bool MvFotoHandle::zoomAt(const QPointF &point, double factor)
{
    const int element = elementAt(point);
    const MvFotoElement *foto = m_item->foto(element);
    if (!foto || foto->isEmpty() || isDragging())
        return false;
    MvFotoElement zoomed = *foto;
    zoomed.setZoom(foto->zoom() * factor);
    MvCalendarPage page = m_item->shownPage();
    page.setFoto(element, zoomed);
    m_project->changePage(m_item->page(), page, tr("Foto vergrößern"), MvStudioMerge::FotoZoom);
    return true;
}

// ----------------------------------------------------------------------------------------------------------- painting

/// The frame under the mouse and the chosen ones have an outline, the chosen one handles to pull.
void MvFotoHandle::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    const QColor color = QGuiApplication::palette().color(QPalette::Highlight);
    QPen pen(color, 2.0);
    pen.setCosmetic(true);
    painter->setPen(pen);
    const auto outline = [&](int element) {
        if (element < 0 || element >= m_item->elements().size())
            return;
        const MvPageElement &shown = m_item->elements().at(element);
        if (shown.rect().isEmpty())
            return;
        if (shown.rotation() == 0.0)
            painter->drawRect(shown.rect() & m_item->pageRect());
        else
            painter->drawPolygon(shown.outline());
    };
    painter->setBrush(Qt::NoBrush);
    outline(m_hovered);
    for (const int element : m_selection->elements())
        outline(element);
    if (m_swapWith >= 0) {
        QColor tint = color;
        tint.setAlpha(70);
        painter->setBrush(tint);
        outline(m_swapWith);
    }
    if (m_hoveredGrip == Grip::Edge || m_grip == Grip::Edge) {
        pen.setWidthF(3.0);
        painter->setPen(pen);
        painter->drawLine(edge());
    }
    if (const int chosen = m_selection->element(); isFree(chosen))
        MvFrameGrips::paint(*painter, frameRect(chosen) & m_item->pageRect(), pageUnits(handleReach), color);
    QPen guide(guideColor, 1.0);
    guide.setCosmetic(true);
    painter->setPen(guide);
    for (const QLineF &line : std::as_const(m_guides))
        painter->drawLine(line);
}

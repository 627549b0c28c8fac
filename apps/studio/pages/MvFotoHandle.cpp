// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFotoHandle.h"

#include "common/MvDraggedFotos.h"
#include "common/MvStudioMerge.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"
#include "pages/MvScreenFotos.h"

#include "MvProject/MvProject.h"

#include <QCursor>
#include <QDrag>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QPalette>
#include <QStyleHints>

#include <algorithm>
#include <utility>

namespace {

constexpr double edgeReach = 24.0;    // tenths of a millimetre on either side of the edge
constexpr double cornerReach = 9.0;   // pixels
constexpr int dragSide = 96;          // pixels of a photo that is dragged away
constexpr double smallestSide = 80.0; // of a frame, tenths of a millimetre

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
        if (element.kind() == MvPageElement::Kind::Calendarium)
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
    setVisible(!m_shape.isEmpty());
    if (m_hovered >= m_item->elements().size())
        setHovered(-1, Grip::None);
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

/// Of a corner, in page units.
double MvFotoHandle::gripReach() const
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    const double scale = views.isEmpty() ? 1.0 : views.constFirst()->transform().m11();
    return cornerReach / std::max(scale, 0.01);
}

int MvFotoHandle::elementAt(const QPointF &point) const
{
    return m_item->shownPage().elementAt(point, m_project->document().format());
}

/// Counted from the top left one, clockwise; -1 for none.
int MvFotoHandle::cornerAt(const QPointF &point, int element) const
{
    const QRectF rect = frameRect(element) & m_item->pageRect();
    const QPointF corners[] = {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()};
    const double reach = gripReach();
    for (int corner = 0; corner < 4; ++corner) {
        const QPointF away = point - corners[corner];
        if (std::max(qAbs(away.x()), qAbs(away.y())) <= reach)
            return corner;
    }
    return -1;
}

MvFotoHandle::Grip MvFotoHandle::gripAt(const QPointF &point, int element, Qt::KeyboardModifiers modifiers) const
{
    if (hasEdge()) {
        const QLineF line = edge();
        const double distance = line.dx() == 0.0 ? point.x() - line.x1() : point.y() - line.y1();
        if (qAbs(distance) <= edgeReach)
            return Grip::Edge;
    }
    const bool isOwnPlace = m_item->shownPage().isSimple() && element == 0;
    if (!isOwnPlace && m_selection->element() == element && cornerAt(point, element) >= 0)
        return Grip::Corner;
    if (!isOwnPlace && element >= 0 && modifiers.testFlag(Qt::AltModifier))
        return Grip::Whole;
    return element >= 0 ? Grip::Foto : Grip::None;
}

// -------------------------------------------------------------------------------------------------------------- mouse

void MvFotoHandle::showCursor(Grip grip)
{
    switch (grip) {
    case Grip::Edge:
        setCursor(edge().dx() == 0.0 ? Qt::SplitHCursor : Qt::SplitVCursor);
        return;
    case Grip::Corner:
        setCursor(m_corner % 2 == 0 ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor);
        return;
    case Grip::Whole:
        setCursor(Qt::SizeAllCursor);
        return;
    default:
        break;
    }
    const MvFotoElement *foto = m_item->foto(m_hovered);
    if (m_swapWith >= 0)
        setCursor(Qt::DragMoveCursor);
    else if (!foto || foto->isEmpty())
        setCursor(Qt::PointingHandCursor);
    else
        setCursor(m_grip == Grip::Foto ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

void MvFotoHandle::setHovered(int element, Grip grip)
{
    if (m_hovered == element && m_hoveredGrip == grip)
        return;
    const int before = activeFrame();
    m_hovered = element;
    m_hoveredGrip = grip;
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
    const int element = elementAt(event->pos());
    const Grip grip = gripAt(event->pos(), element, event->modifiers());
    m_corner = std::max(0, cornerAt(event->pos(), element));
    setHovered(element, grip);
    showCursor(grip);
}

void MvFotoHandle::hoverLeaveEvent(QGraphicsSceneHoverEvent * /*event*/)
{
    setHovered(-1, Grip::None);
}

void MvFotoHandle::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_element = elementAt(event->pos());
    m_grip = gripAt(event->pos(), m_element, event->modifiers());
    m_corner = std::max(0, cornerAt(event->pos(), m_element));
    m_pressedAt = event->pos();
    m_before = m_item->shownPage();
    m_hasMoved = false;
    if (m_grip == Grip::None)
        event->ignore();
    else
        showCursor(m_grip);
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
    showCursor(m_grip);
    m_item->setTrial(m_swapWith >= 0 ? m_before : dragged(event->pos()));
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
            choose(element);
        return;
    }
    const int page = m_item->page();
    const int first = m_element;
    const int second = m_swapWith;
    const MvCalendarPage changed = dragged(event->pos());
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
}

void MvFotoHandle::choose(int element)
{
    m_selection->selectElement(element);
    if (const MvFotoElement *foto = m_item->foto(element); foto && foto->isEmpty())
        Q_EMIT emptyFrameClicked(element);
}

void MvFotoHandle::cancelDrag()
{
    m_grip = Grip::None;
    m_element = -1;
    m_swapWith = -1;
    m_item->setTrial({});
    showCursor(Grip::Foto);
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
    case Grip::Corner:
        return tr("Größe des Rahmens ändern");
    case Grip::Whole:
        return tr("Rahmen verschieben");
    default:
        return tr("Ausschnitt des Fotos verschieben");
    }
}

// ------------------------------------------------------------------------------------------------------------ changes

MvCalendarPage MvFotoHandle::dragged(const QPointF &point) const
{
    MvCalendarPage page = m_before;
    const QPointF distance = point - m_pressedAt;
    const QList<MvPageElement> elements = page.elementsOn(m_project->document().format());
    if (m_grip == Grip::Edge) {
        pullEdge(page, distance);
        return page;
    }
    if (m_element < 0 || m_element >= elements.size())
        return page;
    MvPageElement element = elements.at(m_element);
    if (m_grip == Grip::Foto) {
        if (element.foto() && !element.foto()->isEmpty())
            page.setFoto(m_element, movedFoto(m_element, *element.foto(), distance));
        return page;
    }
    QRectF rect = element.rect();
    if (m_grip == Grip::Whole) {
        rect.translate(distance);
    } else {
        const bool isLeft = m_corner == 0 || m_corner == 3;
        const bool isTop = m_corner < 2;
        if (isLeft)
            rect.setLeft(std::min(rect.left() + distance.x(), rect.right() - smallestSide));
        else
            rect.setRight(std::max(rect.right() + distance.x(), rect.left() + smallestSide));
        if (isTop)
            rect.setTop(std::min(rect.top() + distance.y(), rect.bottom() - smallestSide));
        else
            rect.setBottom(std::max(rect.bottom() + distance.y(), rect.top() + smallestSide));
    }
    element.setRect(rect);
    page.setElement(m_element, element);
    return page;
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
    const QRectF rect = frameRect(element);
    QSizeF size = m_item->fotos()->fullSize(foto.path());
    if (size.isEmpty())
        size = m_item->fotos()->foto(foto.path(), MvScreenFotos::boundsFor(rect)).size();
    MvFotoElement moved = foto;
    if (!size.isEmpty())
        moved.setFocus(foto.movedFocus(size, rect.size(), distance));
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

/// The frame under the mouse and the chosen one have an outline, the chosen one corners to pull.
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
        if (shown.kind() == MvPageElement::Kind::Calendarium || shown.rect().isEmpty())
            return;
        if (shown.rotation() == 0.0)
            painter->drawRect(shown.rect() & m_item->pageRect());
        else
            painter->drawPolygon(shown.outline());
    };
    painter->setBrush(Qt::NoBrush);
    outline(m_hovered);
    outline(m_selection->element());
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
    const int chosen = m_selection->element();
    if (chosen < 0 || (m_item->shownPage().isSimple() && chosen == 0))
        return;
    const QRectF rect = frameRect(chosen) & m_item->pageRect();
    const double half = gripReach() / 2.0;
    painter->setBrush(Qt::white);
    for (const QPointF &corner : {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()})
        painter->drawRect(QRectF(corner - QPointF(half, half), corner + QPointF(half, half)));
}

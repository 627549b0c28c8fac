// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFotoHandle.h"

#include "common/MvStudioMerge.h"
#include "pages/MvPageItem.h"
#include "pages/MvScreenFotos.h"

#include "MvProject/MvProject.h"

#include <QCursor>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace {

constexpr double gripWidth = 24.0; // tenths of a millimetre on either side of the edge

} // namespace

MvFotoHandle::MvFotoHandle(MvProject *project, MvPageItem *item)
    : QGraphicsObject(item)
    , m_project(project)
    , m_item(item)
{
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setZValue(1.0); // the edge can be gripped over the first cells
    connect(item, &MvPageItem::refreshed, this, &MvFotoHandle::adapt);
    adapt();
}

void MvFotoHandle::adapt()
{
    prepareGeometryChange();
    m_bounds = m_item->fotoRect();
    setVisible(!m_bounds.isEmpty());
    if (m_bounds.isEmpty())
        return;
    const QRectF grip = QRectF(edge().p1(), edge().p2()).normalized();
    m_bounds |= grip.adjusted(-gripWidth / 2, -gripWidth / 2, gripWidth / 2, gripWidth / 2);
    m_bounds &= m_item->pageRect();
}

/// The side of the photo that looks at the calendarium.
QLineF MvFotoHandle::edge() const
{
    const QRectF foto = m_item->fotoRect();
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

MvFotoHandle::Grip MvFotoHandle::gripAt(const QPointF &point) const
{
    const QLineF line = edge();
    const bool isUpright = line.dx() == 0.0;
    const double distance = isUpright ? point.x() - line.x1() : point.y() - line.y1();
    if (qAbs(distance) <= gripWidth)
        return Grip::Edge;
    return m_item->fotoRect().contains(point) ? Grip::Foto : Grip::None;
}

void MvFotoHandle::showCursor(Grip grip)
{
    const bool isUpright = edge().dx() == 0.0;
    if (grip == Grip::Edge)
        setCursor(isUpright ? Qt::SplitHCursor : Qt::SplitVCursor);
    else
        setCursor(m_grip == Grip::Foto ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    if (m_hovered != grip) {
        m_hovered = grip;
        update();
    }
}

void MvFotoHandle::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    showCursor(gripAt(event->pos()));
}

void MvFotoHandle::hoverLeaveEvent(QGraphicsSceneHoverEvent * /*event*/)
{
    m_hovered = Grip::None;
    update();
}

void MvFotoHandle::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_grip = gripAt(event->pos());
    m_pressedAt = event->pos();
    m_frameBefore = m_item->shownPage().fotoFrame();
    if (m_grip == Grip::None)
        event->ignore();
    else
        showCursor(m_grip);
}

void MvFotoHandle::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_grip == Grip::None)
        return;
    MvCalendarPage page = m_item->shownPage();
    page.setFotoFrame(draggedFrame(event->pos()));
    m_item->setTrial(page);
}

void MvFotoHandle::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const Grip grip = m_grip;
    if (grip == Grip::None)
        return;
    MvCalendarPage page = m_item->shownPage();
    page.setFotoFrame(draggedFrame(event->pos()));
    cancelDrag();
    m_project->changePage(m_item->page(), page,
                          grip == Grip::Edge ? tr("Größe des Fotos ändern") : tr("Ausschnitt des Fotos verschieben"));
}

void MvFotoHandle::cancelDrag()
{
    m_grip = Grip::None;
    m_item->setTrial({});
    showCursor(Grip::Foto);
}

MvFotoFrame MvFotoHandle::draggedFrame(const QPointF &point) const
{
    if (m_grip == Grip::Foto)
        return movedFrame(point - m_pressedAt);
    MvFotoFrame frame = m_frameBefore;
    const QRectF page = m_item->pageRect();
    switch (frame.placement()) {
    case MvFotoFrame::Placement::Top:
        frame.setShare(frame.share() + (point.y() - m_pressedAt.y()) / page.height());
        break;
    case MvFotoFrame::Placement::Left:
        frame.setShare(frame.share() + (point.x() - m_pressedAt.x()) / page.width());
        break;
    case MvFotoFrame::Placement::Right:
        frame.setShare(frame.share() - (point.x() - m_pressedAt.x()) / page.width());
        break;
    }
    return frame;
}

/// The frame with the photo under it moved by a distance in page units, as far as the photo reaches.
MvFotoFrame MvFotoHandle::movedFrame(const QPointF &distance) const
{
    MvFotoFrame frame = m_frameBefore;
    const QRectF rect = frame.rect(m_project->document().format());
    const QSizeF foto = m_item->fotos()->foto(frame.path(), MvScreenFotos::boundsFor(rect)).size();
    const QRectF seen = frame.crop(foto, rect.size());
    if (seen.isEmpty())
        return frame;
    const double scale = seen.width() / rect.width();
    const auto moved = [scale](double middle, double part, double whole, double by) {
        return std::clamp(middle - by * scale, part / 2.0, std::max(part / 2.0, whole - part / 2.0)) / whole;
    };
    frame.setFocus({moved(seen.center().x(), seen.width(), foto.width(), distance.x()),
                    moved(seen.center().y(), seen.height(), foto.height(), distance.y())});
    return frame;
}

void MvFotoHandle::moveFocus(const QPointF &distance)
{
    if (m_item->fotoRect().isEmpty() || isDragging())
        return;
    m_item->refreshNow(); // the next key counts from where the one before led
    m_frameBefore = m_item->shownPage().fotoFrame();
    const QRectF rect = m_frameBefore.rect(m_project->document().format());
    MvCalendarPage page = m_item->shownPage();
    page.setFotoFrame(movedFrame({-distance.x() * rect.width(), -distance.y() * rect.height()}));
    m_project->changePage(m_item->page(), page, tr("Ausschnitt des Fotos verschieben"), MvStudioMerge::FotoFocus);
}

/// The edge shows that it can be pulled.
void MvFotoHandle::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    if (m_hovered != Grip::Edge && m_grip != Grip::Edge)
        return;
    QPen pen(QGuiApplication::palette().color(QPalette::Highlight), 3.0);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->drawLine(edge());
}

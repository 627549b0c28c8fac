// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPhotoHandle.h"

#include "common/MvStudioMerge.h"
#include "pages/MvPageItem.h"
#include "pages/MvScreenPhotos.h"

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

MvPhotoHandle::MvPhotoHandle(MvProject *project, MvPageItem *item)
    : QGraphicsObject(item)
    , m_project(project)
    , m_item(item)
{
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setZValue(1.0); // the edge can be gripped over the first cells
    connect(item, &MvPageItem::refreshed, this, &MvPhotoHandle::adapt);
    adapt();
}

void MvPhotoHandle::adapt()
{
    prepareGeometryChange();
    m_bounds = m_item->photoRect();
    setVisible(!m_bounds.isEmpty());
    if (m_bounds.isEmpty())
        return;
    const QRectF grip = QRectF(edge().p1(), edge().p2()).normalized();
    m_bounds |= grip.adjusted(-gripWidth / 2, -gripWidth / 2, gripWidth / 2, gripWidth / 2);
    m_bounds &= m_item->pageRect();
}

/// The side of the photo that looks at the calendarium.
QLineF MvPhotoHandle::edge() const
{
    const QRectF photo = m_item->photoRect();
    switch (m_item->shownPage().photoFrame().placement()) {
    case MvPhotoFrame::Placement::Left:
        return {photo.topRight(), photo.bottomRight()};
    case MvPhotoFrame::Placement::Right:
        return {photo.topLeft(), photo.bottomLeft()};
    case MvPhotoFrame::Placement::Top:
        break;
    }
    return {photo.bottomLeft(), photo.bottomRight()};
}

MvPhotoHandle::Grip MvPhotoHandle::gripAt(const QPointF &point) const
{
    const QLineF line = edge();
    const bool isUpright = line.dx() == 0.0;
    const double distance = isUpright ? point.x() - line.x1() : point.y() - line.y1();
    if (qAbs(distance) <= gripWidth)
        return Grip::Edge;
    return m_item->photoRect().contains(point) ? Grip::Photo : Grip::None;
}

void MvPhotoHandle::showCursor(Grip grip)
{
    const bool isUpright = edge().dx() == 0.0;
    if (grip == Grip::Edge)
        setCursor(isUpright ? Qt::SplitHCursor : Qt::SplitVCursor);
    else
        setCursor(m_grip == Grip::Photo ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    if (m_hovered != grip) {
        m_hovered = grip;
        update();
    }
}

void MvPhotoHandle::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    showCursor(gripAt(event->pos()));
}

void MvPhotoHandle::hoverLeaveEvent(QGraphicsSceneHoverEvent * /*event*/)
{
    m_hovered = Grip::None;
    update();
}

void MvPhotoHandle::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_grip = gripAt(event->pos());
    m_pressedAt = event->pos();
    m_frameBefore = m_item->shownPage().photoFrame();
    if (m_grip == Grip::None)
        event->ignore();
    else
        showCursor(m_grip);
}

void MvPhotoHandle::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_grip == Grip::None)
        return;
    MvCalendarPage page = m_item->shownPage();
    page.setPhotoFrame(draggedFrame(event->pos()));
    m_item->setTrial(page);
}

void MvPhotoHandle::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const Grip grip = m_grip;
    if (grip == Grip::None)
        return;
    MvCalendarPage page = m_item->shownPage();
    page.setPhotoFrame(draggedFrame(event->pos()));
    cancelDrag();
    m_project->changePage(m_item->page(), page,
                          grip == Grip::Edge ? tr("Größe des Fotos ändern") : tr("Ausschnitt des Fotos verschieben"));
}

void MvPhotoHandle::cancelDrag()
{
    m_grip = Grip::None;
    m_item->setTrial({});
    showCursor(Grip::Photo);
}

MvPhotoFrame MvPhotoHandle::draggedFrame(const QPointF &point) const
{
    if (m_grip == Grip::Photo)
        return movedFrame(point - m_pressedAt);
    MvPhotoFrame frame = m_frameBefore;
    const QRectF page = m_item->pageRect();
    switch (frame.placement()) {
    case MvPhotoFrame::Placement::Top:
        frame.setShare(frame.share() + (point.y() - m_pressedAt.y()) / page.height());
        break;
    case MvPhotoFrame::Placement::Left:
        frame.setShare(frame.share() + (point.x() - m_pressedAt.x()) / page.width());
        break;
    case MvPhotoFrame::Placement::Right:
        frame.setShare(frame.share() - (point.x() - m_pressedAt.x()) / page.width());
        break;
    }
    return frame;
}

/// The frame with the photo under it moved by a distance in page units, as far as the photo reaches.
MvPhotoFrame MvPhotoHandle::movedFrame(const QPointF &distance) const
{
    MvPhotoFrame frame = m_frameBefore;
    const QRectF rect = frame.rect(m_project->document().format());
    const QSizeF photo = m_item->photos()->photo(frame.path(), MvScreenPhotos::boundsFor(rect)).size();
    const QRectF seen = frame.crop(photo, rect.size());
    if (seen.isEmpty())
        return frame;
    const double scale = seen.width() / rect.width();
    const auto moved = [scale](double middle, double part, double whole, double by) {
        return std::clamp(middle - by * scale, part / 2.0, std::max(part / 2.0, whole - part / 2.0)) / whole;
    };
    frame.setFocus({moved(seen.center().x(), seen.width(), photo.width(), distance.x()),
                    moved(seen.center().y(), seen.height(), photo.height(), distance.y())});
    return frame;
}

void MvPhotoHandle::moveFocus(const QPointF &distance)
{
    if (m_item->photoRect().isEmpty() || isDragging())
        return;
    m_item->refreshNow(); // the next key counts from where the one before led
    m_frameBefore = m_item->shownPage().photoFrame();
    const QRectF rect = m_frameBefore.rect(m_project->document().format());
    MvCalendarPage page = m_item->shownPage();
    page.setPhotoFrame(movedFrame({-distance.x() * rect.width(), -distance.y() * rect.height()}));
    m_project->changePage(m_item->page(), page, tr("Ausschnitt des Fotos verschieben"), MvStudioMerge::PhotoFocus);
}

/// The edge shows that it can be pulled.
void MvPhotoHandle::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    if (m_hovered != Grip::Edge && m_grip != Grip::Edge)
        return;
    QPen pen(QGuiApplication::palette().color(QPalette::Highlight), 3.0);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->drawLine(edge());
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarPage.h"

#include <QGraphicsObject>
#include <QPainterPath>

#include <optional>

class MvPageItem;
class MvPageSelection;
class MvProject;

/// Lets the mouse work on the frames of the page. Dragging within a frame moves its photo, dragging on to another frame
/// exchanges the two, be it one of another page in the strip, the corners of the chosen frame change its size, with Alt
/// it is moved as a whole; on a page without a template the edge between photo and calendarium is pulled instead. A
/// click chooses.
///
/// The page shows each state while it is tried out; letting go makes it one undo step, Escape takes it back.
class MvFotoHandle : public QGraphicsObject
{
    Q_OBJECT

public:
    /// The item is the handle's parent and owns it. Project and selection are not owned.
    MvFotoHandle(MvProject *project, MvPageItem *item, MvPageSelection *selection);

    /// Moves what is seen of the chosen photo, or the page's first, by parts of its frame; an undo step that merges
    /// with the one before.
    void moveFocus(const QPointF &distance);
    /// Zooms the photo at a point of the page; false when there is none.
    bool zoomAt(const QPointF &point, double factor);
    bool isDragging() const { return m_grip != Grip::None; }
    void cancelDrag();

    /// The frame that the mouse is over, else the chosen one; -1 for none.
    int activeFrame() const;

    QRectF boundingRect() const override { return m_bounds; }
    QPainterPath shape() const override { return m_shape; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

Q_SIGNALS:
    /// activeFrame() is another one.
    void activeFrameChanged();
    /// Somebody has clicked an empty frame: asks for a photo.
    void emptyFrameClicked(int element);

protected:
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    enum class Grip { None, Foto, Edge, Corner, Whole };

    void adapt();
    void choose(int element);
    void setHovered(int element, Grip grip);
    int elementAt(const QPointF &point) const;
    Grip gripAt(const QPointF &point, int element, Qt::KeyboardModifiers modifiers) const;
    int cornerAt(const QPointF &point, int element) const;
    double gripReach() const;
    QLineF edge() const;
    bool hasEdge() const;
    QRectF frameRect(int element) const;
    void showCursor(Grip grip);
    int swapTargetAt(const QPointF &point) const;
    /// The page as the drag would leave it.
    MvCalendarPage dragged(const QPointF &point) const;
    void pullEdge(MvCalendarPage &page, const QPointF &distance) const;
    MvFotoElement movedFoto(int element, const MvFotoElement &foto, const QPointF &distance) const;
    QString stepText() const;
    void dragAway(QWidget *source);

    MvProject *m_project;
    MvPageItem *m_item;
    MvPageSelection *m_selection;
    QRectF m_bounds;
    QPainterPath m_shape;
    Grip m_grip = Grip::None;
    Grip m_hoveredGrip = Grip::None;
    int m_hovered = -1;
    int m_element = -1; // that is dragged
    int m_corner = 0;
    int m_swapWith = -1;
    bool m_hasMoved = false;
    QPointF m_pressedAt;
    MvCalendarPage m_before;
};

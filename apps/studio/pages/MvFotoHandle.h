// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoFrame.h"

#include <QGraphicsObject>

#include <optional>

class MvPageItem;
class MvProject;

/// Lets the mouse move the page's photo in its frame and pull the frame's edge towards or away from the calendarium.
///
/// The page shows each state while it is tried out; letting go makes it one undo step, Escape takes it back.
class MvFotoHandle : public QGraphicsObject
{
    Q_OBJECT

public:
    /// The item is the handle's parent and owns it. The project is not owned.
    MvFotoHandle(MvProject *project, MvPageItem *item);

    /// Moves what is seen of the photo by parts of its size; an undo step that merges with the one before.
    void moveFocus(const QPointF &distance);
    bool isDragging() const { return m_grip != Grip::None; }
    void cancelDrag();

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    enum class Grip { None, Foto, Edge };

    void adapt();
    Grip gripAt(const QPointF &point) const;
    QLineF edge() const;
    void showCursor(Grip grip);
    MvFotoFrame draggedFrame(const QPointF &point) const;
    MvFotoFrame movedFrame(const QPointF &distance) const;

    MvProject *m_project;
    MvPageItem *m_item;
    QRectF m_bounds;
    Grip m_grip = Grip::None;
    Grip m_hovered = Grip::None;
    QPointF m_pressedAt;
    MvFotoFrame m_frameBefore;
};

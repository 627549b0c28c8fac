// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarPage.h"
#include "pages/MvFrameGrips.h"
#include "pages/MvFrameSnapping.h"

#include <QGraphicsObject>
#include <QPainterPath>

#include <optional>

class MvPageItem;
class MvPageSelection;
class MvProject;

/// Lets the mouse work on the frames of the page. Dragging within a frame moves its photo, dragging on to another frame
/// exchanges the two, be it one of another page in the strip. The handles of the chosen frame resize and move it; with
/// Alt, and where there is no photo in it, it is moved as a whole from anywhere, together with the others that are
/// chosen. Frames catch at columns and other frames, with guides along them, unless Ctrl is held. On a page without a
/// template the edge between photo and calendarium is pulled instead. A click chooses, with Shift one more.
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
    /// Whether a press at a point of the page would be for a frame or its handles, whatever lies below.
    bool isTaking(const QPointF &point) const;
    /// Handles are as large on every scale: to be called after it changed.
    void adapt();
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
    enum class Grip { None, Foto, Edge, Frame };
    /// What is under the mouse.
    struct Hit
    {
        Grip grip = Grip::None;
        int element = -1;
        MvFrameGrips::Grip handle = MvFrameGrips::Grip::None; // of a frame
    };

    void choose(int element, Qt::KeyboardModifiers modifiers);
    void setHovered(const Hit &hit);
    int elementAt(const QPointF &point) const;
    Hit hitAt(const QPointF &point, Qt::KeyboardModifiers modifiers) const;
    bool isFree(int element) const;
    bool isWhole(const MvPageElement &element) const;
    double pageUnits(double pixels) const;
    QLineF edge() const;
    bool hasEdge() const;
    QRectF frameRect(int element) const;
    void showCursor(const Hit &hit);
    int swapTargetAt(const QPointF &point) const;
    /// The page as the drag would leave it; notes the guides.
    MvCalendarPage dragged(const QPointF &point, Qt::KeyboardModifiers modifiers);
    void dragFrames(MvCalendarPage &page, const QPointF &distance, bool isSnapping);
    QList<int> draggedElements() const;
    void beginSnapping();
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
    MvFrameGrips::Grip m_handle = MvFrameGrips::Grip::None; // that is pulled
    int m_hovered = -1;
    int m_element = -1; // that is dragged
    int m_swapWith = -1;
    MvFrameSnapping m_snapping;
    QList<QLineF> m_guides;
    bool m_hasMoved = false;
    QPointF m_pressedAt;
    MvCalendarPage m_before;
};

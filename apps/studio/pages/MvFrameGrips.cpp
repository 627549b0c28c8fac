// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFrameGrips.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace MvFrameGrips {

namespace {

constexpr double roomForEdges = 6.0; // reaches of a side that has a handle in its middle
constexpr double moverAway = 2.6;    // reaches from the upper edge

QPointF middle(const QRectF &frame, Grip grip)
{
    switch (grip) {
    case Grip::TopLeft:
        return frame.topLeft();
    case Grip::Top:
        return {frame.center().x(), frame.top()};
    case Grip::TopRight:
        return frame.topRight();
    case Grip::Right:
        return {frame.right(), frame.center().y()};
    case Grip::BottomRight:
        return frame.bottomRight();
    case Grip::Bottom:
        return {frame.center().x(), frame.bottom()};
    case Grip::BottomLeft:
        return frame.bottomLeft();
    case Grip::Left:
        return {frame.left(), frame.center().y()};
    default:
        return {};
    }
}

bool isThere(const QRectF &frame, Grip grip, double reach)
{
    switch (grip) {
    case Grip::Top:
    case Grip::Bottom:
        return frame.width() > roomForEdges * reach;
    case Grip::Left:
    case Grip::Right:
        return frame.height() > roomForEdges * reach;
    default:
        return grip != Grip::None && grip != Grip::Move;
    }
}

QRectF around(const QPointF &point, double reach)
{
    return {point - QPointF(reach, reach), point + QPointF(reach, reach)};
}

/// In low frames it stands beside the handle of the upper edge.
QRectF mover(const QRectF &frame, double reach)
{
    const bool isLow = frame.height() < 2 * moverAway * reach;
    if (isLow && frame.width() < 2 * roomForEdges * reach)
        return {};
    return around(isLow ? QPointF(frame.center().x() + 3 * reach, frame.center().y())
                        : QPointF(frame.center().x(), frame.top() + moverAway * reach),
                  reach * 1.2);
}

constexpr Grip resizing[] = {Grip::TopLeft, Grip::TopRight, Grip::BottomRight, Grip::BottomLeft,
                             Grip::Top,     Grip::Right,    Grip::Bottom,      Grip::Left};

} // namespace

Grip at(const QRectF &frame, const QPointF &point, double reach)
{
    if (frame.isEmpty())
        return Grip::None;
    for (const Grip grip : resizing)
        if (isThere(frame, grip, reach) && around(middle(frame, grip), reach).contains(point))
            return grip;
    return mover(frame, reach).contains(point) ? Grip::Move : Grip::None;
}

Qt::Edges edges(Grip grip)
{
    switch (grip) {
    case Grip::TopLeft:
        return Qt::TopEdge | Qt::LeftEdge;
    case Grip::Top:
        return Qt::TopEdge;
    case Grip::TopRight:
        return Qt::TopEdge | Qt::RightEdge;
    case Grip::Right:
        return Qt::RightEdge;
    case Grip::BottomRight:
        return Qt::BottomEdge | Qt::RightEdge;
    case Grip::Bottom:
        return Qt::BottomEdge;
    case Grip::BottomLeft:
        return Qt::BottomEdge | Qt::LeftEdge;
    case Grip::Left:
        return Qt::LeftEdge;
    default:
        return {};
    }
}

QRectF pulled(const QRectF &frame, Qt::Edges edges, const QPointF &distance)
{
    QRectF rect = frame;
    if (edges & Qt::LeftEdge)
        rect.setLeft(std::min(rect.left() + distance.x(), rect.right() - smallestSide));
    if (edges & Qt::RightEdge)
        rect.setRight(std::max(rect.right() + distance.x(), rect.left() + smallestSide));
    if (edges & Qt::TopEdge)
        rect.setTop(std::min(rect.top() + distance.y(), rect.bottom() - smallestSide));
    if (edges & Qt::BottomEdge)
        rect.setBottom(std::max(rect.bottom() + distance.y(), rect.top() + smallestSide));
    return rect;
}

Qt::CursorShape cursor(Grip grip)
{
    switch (grip) {
    case Grip::TopLeft:
    case Grip::BottomRight:
        return Qt::SizeFDiagCursor;
    case Grip::TopRight:
    case Grip::BottomLeft:
        return Qt::SizeBDiagCursor;
    case Grip::Top:
    case Grip::Bottom:
        return Qt::SizeVerCursor;
    case Grip::Left:
    case Grip::Right:
        return Qt::SizeHorCursor;
    default:
        return Qt::SizeAllCursor;
    }
}

QList<QRectF> areas(const QRectF &frame, double reach)
{
    QList<QRectF> areas;
    for (const Grip grip : resizing)
        if (isThere(frame, grip, reach))
            areas.append(around(middle(frame, grip), reach));
    if (const QRectF rect = mover(frame, reach); !rect.isEmpty())
        areas.append(rect);
    return areas;
}

void paint(QPainter &painter, const QRectF &frame, double reach, const QColor &color)
{
    painter.save();
    QPen pen(color, 2.0);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::white);
    for (const Grip grip : resizing)
        if (isThere(frame, grip, reach))
            painter.drawRect(around(middle(frame, grip), reach / 2.0));
    const QRectF round = mover(frame, reach);
    if (!round.isEmpty()) {
        painter.drawEllipse(round);
        const QPointF centre = round.center();
        const double arm = round.width() * 0.36;
        const double tip = arm * 0.3;
        pen.setWidthF(1.5);
        painter.setPen(pen);
        for (const QPointF &way : {QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0), QPointF(0, -1)}) {
            const QPointF end = centre + way * arm;
            const QPointF side(way.y(), way.x());
            painter.drawLine(centre, end);
            painter.drawLine(end, end - way * tip + side * tip);
            painter.drawLine(end, end - way * tip - side * tip);
        }
    }
    painter.restore();
}

} // namespace MvFrameGrips

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvBubblePlacement.h"

#include <QPolygonF>

#include <algorithm>

namespace {

using Side = MvBubblePlacement::Side;

bool isBeside(Side side)
{
    return side == Side::Right || side == Side::Left;
}

/// How much of the room lies on that side of the target.
int spaceOn(Side side, const QRect &target, const QRect &room)
{
    switch (side) {
    case Side::Right:
        return room.right() - target.right();
    case Side::Left:
        return target.left() - room.left();
    case Side::Below:
        return room.bottom() - target.bottom();
    case Side::Above:
        return target.top() - room.top();
    }
    return 0;
}

int clamped(int value, int least, int most)
{
    return std::max(least, std::min(value, most));
}

} // namespace

MvBubblePlacement MvBubblePlacement::beside(const QRect &target, const QSize &size, const QRect &room)
{
    QRect seen = target & room;
    if (seen.isEmpty())
        seen = QRect(QPoint(clamped(target.center().x(), room.left(), room.right()),
                            clamped(target.center().y(), room.top(), room.bottom())),
                     QSize(1, 1));
    const auto missing = [&](Side side) {
        return (isBeside(side) ? size.width() : size.height()) + arrowLength - spaceOn(side, seen, room);
    };
    constexpr Side sides[] = {Side::Right, Side::Left, Side::Below, Side::Above};
    const auto *fitting = std::find_if(std::begin(sides), std::end(sides), [&](Side s) { return missing(s) <= 0; });
    MvBubblePlacement result;
    result.side = fitting != std::end(sides)
                      ? *fitting
                      : *std::min_element(std::begin(sides), std::end(sides),
                                          [&](Side a, Side b) { return missing(a) < missing(b); });
    const bool beside = isBeside(result.side);
    const QSize all = (size + QSize(beside ? arrowLength : 0, beside ? 0 : arrowLength)).boundedTo(room.size());
    QRect rect(QPoint(), all);
    rect.moveCenter(seen.center());
    if (result.side == Side::Right)
        rect.moveLeft(seen.right() + 1);
    else if (result.side == Side::Left)
        rect.moveRight(seen.left() - 1);
    else if (result.side == Side::Below)
        rect.moveTop(seen.bottom() + 1);
    else
        rect.moveBottom(seen.top() - 1);
    rect.moveLeft(clamped(rect.left(), room.left(), room.right() + 1 - rect.width()));
    rect.moveTop(clamped(rect.top(), room.top(), room.bottom() + 1 - rect.height()));
    result.rect = rect;
    constexpr int corner = radius + arrowWidth / 2;
    const int x = clamped(seen.center().x(), rect.left() + corner, rect.right() - corner);
    const int y = clamped(seen.center().y(), rect.top() + corner, rect.bottom() - corner);
    result.tip = result.side == Side::Right   ? QPoint(rect.left(), y)
                 : result.side == Side::Left  ? QPoint(rect.right(), y)
                 : result.side == Side::Below ? QPoint(x, rect.top())
                                              : QPoint(x, rect.bottom());
    return result;
}

QMargins MvBubblePlacement::margins() const
{
    return {side == Side::Right ? arrowLength : 0, side == Side::Below ? arrowLength : 0,
            side == Side::Left ? arrowLength : 0, side == Side::Above ? arrowLength : 0};
}

QPainterPath MvBubblePlacement::outline() const
{
    constexpr double line = 0.5; // the middle of an outline one pixel wide
    const QRectF all = QRectF(rect).translated(-rect.topLeft()).adjusted(line, line, -line, -line);
    const QRectF body = all.marginsRemoved(margins());
    const QPointF point = QPointF(tip - rect.topLeft());
    QPainterPath path;
    path.addRoundedRect(body, radius, radius);
    const bool beside = isBeside(side);
    const QPointF along = beside ? QPointF(0, arrowWidth / 2.0) : QPointF(arrowWidth / 2.0, 0);
    const QPointF foot = side == Side::Right   ? QPointF(body.left() + 1, point.y())
                         : side == Side::Left  ? QPointF(body.right() - 1, point.y())
                         : side == Side::Below ? QPointF(point.x(), body.top() + 1)
                                               : QPointF(point.x(), body.bottom() - 1);
    QPainterPath arrow;
    arrow.addPolygon(QPolygonF({foot - along, point, foot + along, foot - along}));
    return path.united(arrow);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvRectParts.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <numeric>
#include <tuple>
#include <vector>

namespace {

constexpr int corners = 5;        // of a rectangle in a path, with the first one again
constexpr size_t mostRects = 800; // each is compared with each

/// On the device, in the 64ths of a pixel in which it is rasterised, and in the path.
struct Rect
{
    qint64 left, top, right, bottom;
    QPointF topLeft, bottomRight;
};

bool canDivide(const QPainter &painter, const QPainterPath &path)
{
    if (path.elementCount() < 2 * corners || path.elementCount() % corners != 0 || path.fillRule() != Qt::WindingFill ||
        painter.paintEngine()->type() != QPaintEngine::Raster)
        return false;
    const QTransform device = painter.deviceTransform();
    return painter.testRenderHint(QPainter::Antialiasing) && device.type() <= QTransform::TxScale &&
           device.m11() > 0.0 && device.m22() > 0.0 &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

/// Whether five elements go round a rectangle as QPainterPath::addRect() does.
bool isRect(const QPainterPath &path, int first)
{
    if (!path.elementAt(first).isMoveTo())
        return false;
    for (int i = first + 1; i < first + corners; ++i) {
        if (!path.elementAt(i).isLineTo())
            return false;
    }
    const QPointF topLeft = path.elementAt(first);
    const QPointF bottomRight = path.elementAt(first + 2);
    return topLeft.x() < bottomRight.x() && topLeft.y() < bottomRight.y() &&
           QPointF(path.elementAt(first + 1)) == QPointF(bottomRight.x(), topLeft.y()) &&
           QPointF(path.elementAt(first + 3)) == QPointF(topLeft.x(), bottomRight.y()) &&
           QPointF(path.elementAt(first + 4)) == topLeft;
}

qint64 rasterised(double coordinate)
{
    return static_cast<qint64>(coordinate * 64.0); // as the raster engine does
}

/// None if there is anything but rectangles in it.
std::vector<Rect> rectsOf(const QPainterPath &path, const QTransform &device)
{
    std::vector<Rect> rects;
    for (int first = 0; first < path.elementCount(); first += corners) {
        if (!isRect(path, first))
            return {};
        const QPointF topLeft = path.elementAt(first);
        const QPointF bottomRight = path.elementAt(first + 2);
        const QPointF start = device.map(topLeft);
        const QPointF end = device.map(bottomRight);
        rects.push_back({rasterised(start.x()), rasterised(start.y()), rasterised(end.x()), rasterised(end.y()),
                         topLeft, bottomRight});
    }
    return rects;
}

/// Makes one of those that `touch` the one before, which edges that cancel each other part.
template <class Order, class Touch>
void join(std::vector<Rect> &rects, Order order, Touch touch)
{
    std::sort(rects.begin(), rects.end(), [&](const Rect &a, const Rect &b) { return order(a) < order(b); });
    std::vector<Rect> joined;
    for (const Rect &rect : rects) {
        if (!joined.empty() && touch(joined.back(), rect)) {
            joined.back().right = rect.right;
            joined.back().bottom = rect.bottom;
            joined.back().bottomRight = rect.bottomRight;
        } else {
            joined.push_back(rect);
        }
    }
    rects = joined;
}

void joinNeighbours(std::vector<Rect> &rects)
{
    join(
        rects, [](const Rect &rect) { return std::tuple(rect.top, rect.bottom, rect.left); },
        [](const Rect &a, const Rect &b) { return a.top == b.top && a.bottom == b.bottom && a.right == b.left; });
    join(
        rects, [](const Rect &rect) { return std::tuple(rect.left, rect.right, rect.top); },
        [](const Rect &a, const Rect &b) { return a.left == b.left && a.right == b.right && a.bottom == b.top; });
}

bool sharePixel(const Rect &a, const Rect &b)
{
    const auto overlap = [](qint64 start, qint64 end, qint64 otherStart, qint64 otherEnd) {
        return start >> 6 <= otherEnd >> 6 && otherStart >> 6 <= end >> 6;
    };
    return overlap(a.left, a.right, b.left, b.right) && overlap(a.top, a.bottom, b.top, b.bottom);
}

/// Of each rectangle the first one that it is connected with by shared pixels.
std::vector<size_t> groupsOf(const std::vector<Rect> &rects)
{
    std::vector<size_t> first(rects.size());
    std::iota(first.begin(), first.end(), size_t(0));
    const auto root = [&first](size_t i) {
        while (first[i] != i)
            i = first[i] = first[first[i]];
        return i;
    };
    for (size_t i = 0; i < rects.size(); ++i) {
        for (size_t j = 0; j < i; ++j) {
            if (sharePixel(rects[i], rects[j]))
                first[std::max(root(i), root(j))] = std::min(root(i), root(j));
        }
    }
    for (size_t i = 0; i < rects.size(); ++i)
        first[i] = root(i);
    return first;
}

void addRect(QPainterPath &path, const Rect &rect)
{
    path.moveTo(rect.topLeft);
    path.lineTo(rect.bottomRight.x(), rect.topLeft.y());
    path.lineTo(rect.bottomRight);
    path.lineTo(rect.topLeft.x(), rect.bottomRight.y());
    path.closeSubpath();
}

} // namespace

QList<QPainterPath> MvRectParts::of(const QPainter &painter, const QPainterPath &path)
{
    if (!canDivide(painter, path))
        return {path};
    std::vector<Rect> rects = rectsOf(path, painter.deviceTransform());
    joinNeighbours(rects);
    if (rects.empty() || rects.size() > mostRects)
        return {path};
    const std::vector<size_t> groups = groupsOf(rects);
    std::vector<QPainterPath> ofGroup(rects.size());
    for (size_t i = 0; i < rects.size(); ++i)
        addRect(ofGroup[groups[i]], rects[i]);
    QList<QPainterPath> parts;
    for (QPainterPath &part : ofGroup) {
        part.setFillRule(Qt::WindingFill);
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts;
}

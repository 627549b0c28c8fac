// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFrameArrangement.h"

#include <algorithm>
#include <numeric>

namespace MvFrameArrangement {

QList<QRectF> aligned(const QList<QRectF> &frames, Line line, const QRectF &bounds)
{
    QList<QRectF> moved = frames;
    for (QRectF &frame : moved) {
        switch (line) {
        case Line::Left:
            frame.moveLeft(bounds.left());
            break;
        case Line::Centre:
            frame.moveLeft(bounds.center().x() - frame.width() / 2.0);
            break;
        case Line::Right:
            frame.moveRight(bounds.right());
            break;
        case Line::Top:
            frame.moveTop(bounds.top());
            break;
        case Line::Middle:
            frame.moveTop(bounds.center().y() - frame.height() / 2.0);
            break;
        case Line::Bottom:
            frame.moveBottom(bounds.bottom());
            break;
        }
    }
    return moved;
}

QList<QRectF> distributed(const QList<QRectF> &frames, Qt::Orientation orientation)
{
    if (frames.size() < 3)
        return frames;
    const bool isAcross = orientation == Qt::Horizontal;
    const auto begin = [isAcross](const QRectF &frame) { return isAcross ? frame.left() : frame.top(); };
    const auto length = [isAcross](const QRectF &frame) { return isAcross ? frame.width() : frame.height(); };
    QList<int> order(frames.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return begin(frames[a]) + length(frames[a]) / 2.0 < begin(frames[b]) + length(frames[b]) / 2.0;
    });
    const QRectF &first = frames[order.first()];
    const QRectF &last = frames[order.last()];
    double taken = 0.0;
    for (const QRectF &frame : frames)
        taken += length(frame);
    const double gap = (begin(last) + length(last) - begin(first) - taken) / double(frames.size() - 1);
    QList<QRectF> moved = frames;
    double next = begin(first);
    for (const int number : order) {
        if (isAcross)
            moved[number].moveLeft(next);
        else
            moved[number].moveTop(next);
        next += length(frames[number]) + gap;
    }
    return moved;
}

QRectF bounds(const QList<QRectF> &frames)
{
    QRectF all;
    for (const QRectF &frame : frames)
        all |= frame;
    return all;
}

} // namespace MvFrameArrangement

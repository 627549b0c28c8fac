// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFrameSnapping.h"

#include "pages/MvFrameGrips.h"

#include "MvProject/MvPageFormat.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double same = 0.05; // a line and an edge on it, in page units

} // namespace

MvFrameSnapping::MvFrameSnapping(const MvPageFormat &format, const QList<QRectF> &others)
{
    addRect(format.trimRect(), true, false);
    addRect(format.safeRect(), false, false);
    addRect(format.fieldRect(), true, false);
    if (format.bleed() > 0.0)
        addRect(format.mediaRect(), false, false);
    const QRectF sheet = format.trimRect();
    for (int column = 1; column <= MvPageFormat::fieldColumns; ++column) {
        const QRectF area = format.fieldArea(column, column, 1, 1);
        for (const double x : {area.left(), area.right()})
            m_vertical.append({x, sheet.top(), sheet.bottom(), false, false});
    }
    for (int row = 1; row <= MvPageFormat::fieldRows; ++row) {
        const QRectF area = format.fieldArea(1, 1, row, row);
        for (const double y : {area.top(), area.bottom()})
            m_horizontal.append({y, sheet.left(), sheet.right(), false, false});
    }
    for (const QRectF &other : others)
        addRect(other, true, true);
}

void MvFrameSnapping::addRect(const QRectF &rect, bool hasMiddle, bool isOfFrame)
{
    for (const double x : {rect.left(), rect.right()})
        m_vertical.append({x, rect.top(), rect.bottom(), isOfFrame, false});
    for (const double y : {rect.top(), rect.bottom()})
        m_horizontal.append({y, rect.left(), rect.right(), isOfFrame, false});
    if (!hasMiddle)
        return;
    m_vertical.append({rect.center().x(), rect.top(), rect.bottom(), isOfFrame, true});
    m_horizontal.append({rect.center().y(), rect.left(), rect.right(), isOfFrame, true});
}

MvFrameSnapping::Catch MvFrameSnapping::nearest(const QList<Line> &lines, const QList<Place> &places, double reach)
{
    Catch found;
    bool isOfFrame = false;
    for (const Line &line : lines) {
        for (const Place &place : places) {
            const double by = line.at - place.at;
            if (qAbs(by) > reach || !canMeet(line, place))
                continue;
            const double gain = found.isCaught ? qAbs(found.by) - qAbs(by) : 1.0;
            if (gain > same || (gain > -same && line.isOfFrame && !isOfFrame)) {
                found = {by, true};
                isOfFrame = line.isOfFrame;
            }
        }
    }
    return found;
}

/// Of several lines at one place there is one guide, as long as all of them and the frame.
void MvFrameSnapping::addGuides(QList<QLineF> &guides, const QList<Line> &lines, const QList<Place> &places,
                                double from, double to, Qt::Orientation orientation)
{
    for (const Place &place : places) {
        double begin = from;
        double end = to;
        bool isMet = false;
        for (const Line &line : lines) {
            if (qAbs(line.at - place.at) > same || !canMeet(line, place))
                continue;
            isMet = true;
            begin = std::min(begin, line.from);
            end = std::max(end, line.to);
        }
        if (isMet)
            guides.append(orientation == Qt::Vertical ? QLineF(place.at, begin, place.at, end)
                                                      : QLineF(begin, place.at, end, place.at));
    }
}

MvFrameSnapping::Result MvFrameSnapping::moved(const QRectF &rect, double reach) const
{
    const auto across = [](const QRectF &at) {
        return QList<Place>{{at.left()}, {at.center().x(), true}, {at.right()}};
    };
    const auto along = [](const QRectF &at) {
        return QList<Place>{{at.top()}, {at.center().y(), true}, {at.bottom()}};
    };
    const Catch x = nearest(m_vertical, across(rect), reach);
    const Catch y = nearest(m_horizontal, along(rect), reach);
    Result result{rect.translated(x.by, y.by), {}};
    const QRectF &at = result.rect;
    if (x.isCaught)
        addGuides(result.guides, m_vertical, across(at), at.top(), at.bottom(), Qt::Vertical);
    if (y.isCaught)
        addGuides(result.guides, m_horizontal, along(at), at.left(), at.right(), Qt::Horizontal);
    return result;
}

MvFrameSnapping::Result MvFrameSnapping::resized(const QRectF &rect, Qt::Edges edges, double reach) const
{
    const bool isAcross = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool isAlong = edges & (Qt::TopEdge | Qt::BottomEdge);
    const auto x = [edges](const QRectF &frame) { return edges & Qt::LeftEdge ? frame.left() : frame.right(); };
    const auto y = [edges](const QRectF &frame) { return edges & Qt::TopEdge ? frame.top() : frame.bottom(); };
    const Catch across = isAcross ? nearest(m_vertical, {{x(rect)}}, reach) : Catch();
    const Catch along = isAlong ? nearest(m_horizontal, {{y(rect)}}, reach) : Catch();
    Result result{MvFrameGrips::pulled(rect, edges, {across.by, along.by}), {}};
    const QRectF &at = result.rect;
    if (across.isCaught)
        addGuides(result.guides, m_vertical, {{x(at)}}, at.top(), at.bottom(), Qt::Vertical);
    if (along.isCaught)
        addGuides(result.guides, m_horizontal, {{y(at)}}, at.left(), at.right(), Qt::Horizontal);
    return result;
}

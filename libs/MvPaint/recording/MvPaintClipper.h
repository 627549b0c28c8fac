// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecordingData.h"

#include <QHash>
#include <QRectF>

#include <optional>

/// Cuts a recording's shapes down to its clips: what MvPaintRecording::clipped() does.
///
/// Shapes that no clip touches stay as they are; of others the cut outline is left, of images a smaller one.
class MvPaintClipper
{
public:
    MvPaintClipper(const MvPaintRecordingData &recording, const QRectF &outer)
        : m_recording(recording)
        , m_outer(outer)
    {}

    /// The caller owns it.
    MvPaintRecordingData *clip();

private:
    /// A clip in the coordinates of a shape.
    struct Region
    {
        QPainterPath path;
        std::optional<QRectF> rect; // when it is one: nearly always
    };

    QPainterPath regionOnPage(const MvPaintClip *clip);
    void enter(size_t state);

    template <class Line>
    void add(const MvPaintShape::Lines<Line> &shape);
    template <class Rect>
    void add(const MvPaintShape::Rects<Rect> &shape);
    template <class Rect>
    void add(const MvPaintShape::Ellipse<Rect> &shape);
    template <class Point>
    void add(const MvPaintShape::Points<Point> &shape);
    template <class Polygon>
    void add(const MvPaintShape::Poly<Polygon> &shape);
    void add(const MvPaintShape::Path &shape);
    void add(const MvPaintShape::Image &shape);
    void add(const MvPaintShape::Bitmap &shape);
    void add(const MvPaintShape::Tiles &shape);
    void add(const MvPaintShape::Outlines &shape);

    /// Keeps the operation, cuts it down or leaves it out.
    template <class Shape>
    void addShape(const Shape &shape, const QPainterPath &path, bool isFilled);
    template <class Shape>
    void addPicture(const Shape &shape, const QSizeF &pixels, const QRectF &source);
    void fill(const QPainterPath &path, const QBrush &brush);
    bool isInside(const QRectF &bounds) const;
    bool isOutside(const QRectF &bounds) const { return !bounds.intersects(m_region.path.boundingRect()); }
    /// How far the pen reaches beyond a shape.
    double reachOfPen() const;

    void append(const MvPaintOperation::Shape &shape) { append(shape, m_state); }
    void append(const MvPaintOperation::Shape &shape, const MvPaintState &state);

    const MvPaintRecordingData &m_recording;
    const QRectF m_outer;
    MvPaintRecordingData *m_clipped = nullptr;
    QHash<const MvPaintClip *, QPainterPath> m_regions; // on the page
    MvPaintState m_state;                               // of the operation, without its clip
    Region m_region;
    bool m_isStateAppended = false; // the last one of m_clipped is m_state
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// What a recording is made of; shared by the recorder, which fills it, and the recording, which plays it.

#include "MvPaint/MvPaintMark.h"
#include "MvPaint/MvTextOutline.h"

#include <QBrush>
#include <QImage>
#include <QLine>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QPolygonF>
#include <QRegion>
#include <QSharedData>
#include <QTransform>

#include <memory>
#include <variant>
#include <vector>

/// One clip operation; a clip in force is the chain from here to the root, intersected.
struct MvPaintClip
{
    std::shared_ptr<const MvPaintClip> parent;
    std::variant<QRegion, QPainterPath> shape; // in the coordinates of the transform
    QTransform transform;
};

struct MvPaintState
{
    QPen pen;
    QBrush brush;
    QPointF brushOrigin;
    QBrush background;
    Qt::BGMode backgroundMode = Qt::TransparentMode;
    QTransform transform;
    std::shared_ptr<const MvPaintClip> clip;
    bool clipEnabled = false;
    double opacity = 1.0;
    QPainter::CompositionMode mode = QPainter::CompositionMode_SourceOver;
    QPainter::RenderHints hints;

    const MvPaintClip *effectiveClip() const { return clipEnabled ? clip.get() : nullptr; }
};

/// The shapes a painter can be asked for. Whole-number forms are kept apart, since targets round them differently.
namespace MvPaintShape {
template <class Line>
struct Lines
{
    QList<Line> lines;
};
template <class Rect>
struct Rects
{
    QList<Rect> rects;
};
template <class Rect>
struct Ellipse
{
    Rect rect;
};
template <class Point>
struct Points
{
    QList<Point> points;
};
template <class Polygon>
struct Poly
{
    Polygon polygon;
    QPaintEngine::PolygonDrawMode drawMode;
};
struct Path
{
    QPainterPath path;
};
struct Image
{
    QImage image;
    QRectF target;
    QRectF source;
    Qt::ImageConversionFlags flags;
};
struct Bitmap
{
    QPixmap pixmap; // one bit deep: drawn in the colour of the pen
    QRectF target;
    QRectF source;
};
struct Tiles
{
    QPixmap pixmap;
    QRectF target;
    QPointF offset;
};
struct Outlines
{
    QList<MvPlacedOutline> lines;
    QColor color;
};
} // namespace MvPaintShape

struct MvPaintOperation
{
    using Shape = std::variant<MvPaintShape::Lines<QLine>, MvPaintShape::Lines<QLineF>, MvPaintShape::Rects<QRect>,
                               MvPaintShape::Rects<QRectF>, MvPaintShape::Ellipse<QRect>, MvPaintShape::Ellipse<QRectF>,
                               MvPaintShape::Points<QPoint>, MvPaintShape::Points<QPointF>,
                               MvPaintShape::Poly<QPolygon>, MvPaintShape::Poly<QPolygonF>, MvPaintShape::Path,
                               MvPaintShape::Image, MvPaintShape::Bitmap, MvPaintShape::Tiles, MvPaintShape::Outlines>;

    Shape shape;
    size_t state = 0; // index into the recording's states
    std::shared_ptr<const MvPaintMark> mark = {};
};

struct MvPaintRecordingData : QSharedData
{
    std::vector<MvPaintState> states;
    std::vector<MvPaintOperation> operations;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvPaintClipper.h"

#include "MvPaint/MvPaintPlayer.h"

#include <QPainterPathStroker>

#include <algorithm>
#include <cmath>

using namespace MvPaintShape;

namespace {

constexpr double tolerance = 1e-3; // of a page unit or a dot: not worth cutting

std::optional<QRectF> rectOf(const QPainterPath &path)
{
    const QRectF bounds = path.boundingRect();
    bool isRect = path.elementCount() == 5 || path.isEmpty();
    for (int i = 0; i < path.elementCount() && isRect; ++i) {
        const QPainterPath::Element &corner = path.elementAt(i);
        const auto isOneOf = [](double value, double a, double b) {
            return std::abs(value - a) < tolerance || std::abs(value - b) < tolerance;
        };
        isRect = !corner.isCurveTo() && isOneOf(corner.x, bounds.left(), bounds.right()) &&
                 isOneOf(corner.y, bounds.top(), bounds.bottom());
    }
    return isRect ? std::optional(bounds) : std::nullopt;
}

/// Grows rectangles without width or height, which nothing would intersect.
QRectF grown(const QRectF &bounds, double by)
{
    by = std::max(by, tolerance / 2.0);
    return bounds.adjusted(-by, -by, by, by);
}

/// A gradient that follows the bounds of its shape keeps them when the shape is cut.
QBrush bound(const QBrush &brush, const QRectF &bounds)
{
    const QGradient *gradient = brush.gradient();
    if (!gradient || gradient->coordinateMode() == QGradient::LogicalMode)
        return brush;
    QGradient logical = *gradient;
    logical.setCoordinateMode(QGradient::LogicalMode);
    QBrush made(logical);
    made.setTransform(QTransform::fromScale(bounds.width(), bounds.height()) *
                      QTransform::fromTranslate(bounds.x(), bounds.y()));
    return made;
}

} // namespace

MvPaintRecordingData *MvPaintClipper::clip()
{
    m_clipped = new MvPaintRecordingData;
    std::optional<size_t> entered;
    for (const MvPaintOperation &operation : m_recording.operations) {
        if (entered != operation.state)
            enter(operation.state);
        entered = operation.state;
        std::visit([this](const auto &shape) { add(shape); }, operation.shape);
    }
    return m_clipped;
}

QPainterPath MvPaintClipper::regionOnPage(const MvPaintClip *clip)
{
    if (!clip) {
        QPainterPath outer;
        outer.addRect(m_outer);
        return outer;
    }
    const auto known = m_regions.constFind(clip);
    if (known != m_regions.constEnd())
        return *known;
    QPainterPath own;
    if (const QRegion *region = std::get_if<QRegion>(&clip->shape))
        own.addRegion(*region);
    else
        own = std::get<QPainterPath>(clip->shape);
    const QPainterPath region = clip->transform.map(own).intersected(regionOnPage(clip->parent.get()));
    m_regions.insert(clip, region);
    return region;
}

void MvPaintClipper::enter(size_t state)
{
    m_state = m_recording.states[state];
    m_region.path = m_state.transform.inverted().map(regionOnPage(m_state.effectiveClip()));
    m_region.rect = rectOf(m_region.path);
    m_state.clip.reset();
    m_state.clipEnabled = false;
    m_isStateAppended = false;
}

bool MvPaintClipper::isInside(const QRectF &bounds) const
{
    return m_region.rect ? grown(*m_region.rect, tolerance).contains(bounds) : m_region.path.contains(bounds);
}

double MvPaintClipper::reachOfPen() const
{
    const QPen &pen = m_state.pen;
    if (pen.style() == Qt::NoPen)
        return 0.0;
    const double width = std::max(pen.widthF(), pen.isCosmetic() ? 1.0 : 0.0);
    return width * (pen.joinStyle() == Qt::MiterJoin ? std::max(1.0, pen.miterLimit()) : 1.0);
}

void MvPaintClipper::append(const MvPaintOperation::Shape &shape, const MvPaintState &state)
{
    const bool isOwn = &state == &m_state;
    if (!isOwn || !m_isStateAppended)
        m_clipped->states.push_back(state);
    m_isStateAppended = isOwn;
    m_clipped->operations.push_back({shape, m_clipped->states.size() - 1});
}

void MvPaintClipper::fill(const QPainterPath &path, const QBrush &brush)
{
    const QPainterPath left = path.intersected(m_region.path);
    if (left.isEmpty() || brush.style() == Qt::NoBrush)
        return;
    MvPaintState state = m_state;
    state.pen = Qt::NoPen;
    state.brush = bound(brush, path.boundingRect());
    append(Path{left}, state);
}

template <class Shape>
void MvPaintClipper::addShape(const Shape &shape, const QPainterPath &path, bool isFilled)
{
    const QRectF bounds = grown(path.boundingRect(), reachOfPen());
    if (isInside(bounds)) {
        append(shape);
        return;
    }
    if (isOutside(bounds))
        return;
    if (isFilled)
        fill(path, m_state.brush);
    if (m_state.pen.style() != Qt::NoPen) {
        QPainterPathStroker stroker(m_state.pen);
        if (m_state.pen.widthF() <= 0.0)
            stroker.setWidth(1.0 / std::sqrt(std::abs(m_state.transform.determinant())));
        fill(stroker.createStroke(path), m_state.pen.brush());
    }
}

/// An image of what is seen, with as many pixels for it; a target may round the parts of images that it is asked for.
template <class Shape>
void MvPaintClipper::addPicture(const Shape &shape, const QSizeF &pixels, const QRectF &source)
{
    if (isInside(shape.target)) {
        append(shape);
        return;
    }
    const QRectF seen = shape.target & m_region.path.boundingRect();
    if (seen.isEmpty() || source.isEmpty() || isOutside(shape.target))
        return;
    const QSizeF density(pixels.width() / shape.target.width(), pixels.height() / shape.target.height());
    const QSize size(int(std::ceil(seen.width() * density.width())), int(std::ceil(seen.height() * density.height())));
    QImage image(size.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(image.width() / seen.width(), image.height() / seen.height());
    painter.translate(-seen.topLeft());
    if (!m_region.rect)
        painter.setClipPath(m_region.path);
    MvPaintRecordingData alone;
    alone.states.emplace_back();
    alone.states.front().pen = m_state.pen;
    alone.states.front().hints = painter.renderHints();
    alone.operations.push_back({shape, 0});
    MvPaintPlayer(painter, alone).play();
    painter.end();
    append(Image{image, seen, image.rect(), Qt::AutoColor});
}

template <class Line>
void MvPaintClipper::add(const Lines<Line> &shape)
{
    QPainterPath path;
    for (const Line &line : shape.lines) {
        path.moveTo(line.p1());
        path.lineTo(line.p2());
    }
    addShape(shape, path, false);
}

template <class Rect>
void MvPaintClipper::add(const Rects<Rect> &shape)
{
    for (const Rect &rect : shape.rects) {
        QPainterPath path;
        path.addRect(rect);
        addShape(Rects<Rect>{{rect}}, path, true);
    }
}

template <class Rect>
void MvPaintClipper::add(const Ellipse<Rect> &shape)
{
    QPainterPath path;
    path.addEllipse(shape.rect);
    addShape(shape, path, true);
}

template <class Point>
void MvPaintClipper::add(const Points<Point> &shape)
{
    for (const Point &point : shape.points) {
        if (isInside(grown({point, QSizeF()}, 0.0))) // too small to be cut
            append(Points<Point>{{point}});
    }
}

template <class Polygon>
void MvPaintClipper::add(const Poly<Polygon> &shape)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(shape.polygon));
    if (shape.drawMode != QPaintEngine::PolylineMode)
        path.closeSubpath();
    if (shape.drawMode == QPaintEngine::WindingMode)
        path.setFillRule(Qt::WindingFill);
    addShape(shape, path, shape.drawMode != QPaintEngine::PolylineMode);
}

void MvPaintClipper::add(const Path &shape)
{
    addShape(shape, shape.path, true);
}

void MvPaintClipper::add(const Image &shape)
{
    addPicture(shape, shape.source.size(), shape.source);
}

void MvPaintClipper::add(const Bitmap &shape)
{
    addPicture(shape, shape.source.size(), shape.source);
}

void MvPaintClipper::add(const Tiles &shape)
{
    addPicture(shape, shape.target.size(), shape.target);
}

void MvPaintClipper::add(const Outlines &shape)
{
    Outlines whole{{}, shape.color};
    for (const MvPlacedOutline &line : shape.lines) {
        const QRectF bounds = grown(line.bounds(), 0.0);
        if (isInside(bounds)) {
            whole.lines.append(line);
        } else if (!isOutside(bounds)) {
            fill(line.outline.path().translated(line.baseline), shape.color);
            for (const MvTextOutline::Picture &picture : line.outline.pictures()) {
                const QRectF pixels = picture.image.rect();
                addPicture(Image{picture.image, picture.rect.translated(line.baseline), pixels, Qt::AutoColor},
                           pixels.size(), pixels);
            }
        }
    }
    if (!whole.lines.isEmpty())
        append(whole);
}

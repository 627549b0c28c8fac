// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvPaintPlayer.h"

#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvRectParts.h"

#include <optional>

using namespace MvPaintShape;

namespace {
/// The rectangle that a path of five elements goes round, as QPainterPath::addRect() makes it.
std::optional<QRectF> rectOf(const QPainterPath &path)
{
    if (path.elementCount() != 5)
        return std::nullopt;
    for (int i = 1; i < 5; ++i) {
        if (!path.elementAt(i).isLineTo())
            return std::nullopt;
    }
    const QPointF topLeft = path.elementAt(0);
    const QPointF bottomRight = path.elementAt(2);
    const bool isRect = QPointF(path.elementAt(1)) == QPointF(bottomRight.x(), topLeft.y()) &&
                        QPointF(path.elementAt(3)) == QPointF(topLeft.x(), bottomRight.y()) &&
                        QPointF(path.elementAt(4)) == topLeft;
    if (!isRect)
        return std::nullopt;
    return QRectF(topLeft, bottomRight);
}

bool isAncestor(const MvPaintClip *ancestor, const MvPaintClip *clip)
{
    while (clip && clip != ancestor)
        clip = clip->parent.get();
    return clip == ancestor;
}
} // namespace

MvPaintPlayer::MvPaintPlayer(QPainter &painter, const MvPaintRecordingData &recording)
    : m_painter(painter)
    , m_recorder(dynamic_cast<MvPaintRecorder *>(painter.device()))
    , m_around(m_recorder ? m_recorder->mark() : nullptr)
    , m_recording(recording)
    , m_base(painter.worldMatrixEnabled() ? painter.worldTransform() : QTransform())
    , m_baseOpacity(painter.opacity())
{}

void MvPaintPlayer::play()
{
    m_painter.save();
    for (const MvPaintOperation &operation : m_recording.operations) {
        enter(m_recording.states[operation.state]);
        if (m_recorder)
            m_recorder->setMark(carried(operation.mark));
        std::visit([this](const auto &shape) { paint(shape); }, operation.shape);
    }
    enterClip(nullptr);
    m_painter.restore();
    if (m_recorder)
        m_recorder->setMark(m_around);
}

/// The mark, within that of the target.
std::shared_ptr<const MvPaintMark> MvPaintPlayer::carried(const std::shared_ptr<const MvPaintMark> &mark)
{
    if (!mark || !m_around)
        return mark ? mark : m_around;
    std::shared_ptr<const MvPaintMark> &known = m_carried[mark.get()];
    if (!known) {
        MvPaintMark within = *mark;
        within.around = carried(mark->around);
        known = std::make_shared<const MvPaintMark>(within);
    }
    return known;
}

void MvPaintPlayer::enter(const MvPaintState &state)
{
    if (m_state == &state)
        return;
    enterClip(state.effectiveClip());

    const MvPaintState *before = m_state;
    const auto changes = [before, &state](auto MvPaintState::*field) {
        return !before || before->*field != state.*field;
    };
    if (changes(&MvPaintState::transform))
        setTransform(state.transform);
    if (changes(&MvPaintState::hints))
        setHints(state.hints);
    if (changes(&MvPaintState::pen))
        m_painter.setPen(state.pen);
    if (changes(&MvPaintState::brush))
        m_painter.setBrush(state.brush);
    if (changes(&MvPaintState::brushOrigin))
        m_painter.setBrushOrigin(state.brushOrigin);
    if (changes(&MvPaintState::background))
        m_painter.setBackground(state.background);
    if (changes(&MvPaintState::backgroundMode))
        m_painter.setBackgroundMode(state.backgroundMode);
    if (changes(&MvPaintState::opacity))
        m_painter.setOpacity(state.opacity * m_baseOpacity);
    if (changes(&MvPaintState::mode))
        m_painter.setCompositionMode(state.mode);
    m_state = &state;
}

void MvPaintPlayer::enterClip(const MvPaintClip *clip)
{
    while (!m_clips.empty() && !isAncestor(m_clips.back(), clip)) {
        m_painter.restore(); // the only way back to a wider clip
        m_clips.pop_back();
        m_state = nullptr;
    }
    const MvPaintClip *now = m_clips.empty() ? nullptr : m_clips.back();
    if (!clip || clip == now)
        return;
    enterClip(clip->parent.get());
    addClip(*clip);
}

void MvPaintPlayer::addClip(const MvPaintClip &clip)
{
    m_painter.save();
    setTransform(clip.transform);
    if (const QRegion *region = std::get_if<QRegion>(&clip.shape)) {
        if (region->rectCount() == 1)
            m_painter.setClipRect(QRectF(region->boundingRect()), Qt::IntersectClip);
        else
            m_painter.setClipRegion(*region, Qt::IntersectClip);
    } else {
        const QPainterPath &path = std::get<QPainterPath>(clip.shape);
        if (const auto rect = rectOf(path))
            m_painter.setClipRect(*rect, Qt::IntersectClip);
        else
            m_painter.setClipPath(path, Qt::IntersectClip);
    }
    m_state = nullptr;
    m_clips.push_back(&clip);
}

void MvPaintPlayer::setTransform(const QTransform &transform)
{
    m_painter.setTransform(transform * m_base);
}

void MvPaintPlayer::setHints(QPainter::RenderHints hints)
{
    const QPainter::RenderHints now = m_painter.renderHints();
    m_painter.setRenderHints(now & ~hints, false);
    m_painter.setRenderHints(hints, true);
}

template <class Line>
void MvPaintPlayer::paint(const Lines<Line> &shape)
{
    m_painter.drawLines(shape.lines.constData(), int(shape.lines.size()));
}

template <class Rect>
void MvPaintPlayer::paint(const Rects<Rect> &shape)
{
    if (m_state->pen.style() == Qt::NoPen && shape.rects.size() == 1)
        m_painter.fillRect(shape.rects.first(), m_state->brush); // that is how a filled rectangle gets here
    else
        m_painter.drawRects(shape.rects.constData(), int(shape.rects.size()));
}

template <class Rect>
void MvPaintPlayer::paint(const Ellipse<Rect> &shape)
{
    m_painter.drawEllipse(shape.rect);
}

template <class Point>
void MvPaintPlayer::paint(const Points<Point> &shape)
{
    m_painter.drawPoints(shape.points.constData(), int(shape.points.size()));
}

template <class Polygon>
void MvPaintPlayer::paint(const Poly<Polygon> &shape)
{
    const auto *points = shape.polygon.constData();
    const int count = int(shape.polygon.size());
    switch (shape.drawMode) {
    case QPaintEngine::OddEvenMode:
        m_painter.drawPolygon(points, count, Qt::OddEvenFill);
        break;
    case QPaintEngine::WindingMode:
        m_painter.drawPolygon(points, count, Qt::WindingFill);
        break;
    case QPaintEngine::ConvexMode:
        m_painter.drawConvexPolygon(points, count);
        break;
    case QPaintEngine::PolylineMode:
        m_painter.drawPolyline(points, count);
        break;
    }
}

void MvPaintPlayer::paint(const Path &shape)
{
    if (m_state->pen.style() != Qt::NoPen || m_state->brush.style() != Qt::SolidPattern) {
        m_painter.drawPath(shape.path);
        return;
    }
    const QList<QPainterPath> parts = MvRectParts::of(m_painter, shape.path);
    for (const QPainterPath &part : parts)
        m_painter.drawPath(part);
}

void MvPaintPlayer::paint(const Image &shape)
{
    m_painter.drawImage(shape.target, shape.image, shape.source, shape.flags);
}

void MvPaintPlayer::paint(const Bitmap &shape)
{
    m_painter.drawPixmap(shape.target, shape.pixmap, shape.source);
}

void MvPaintPlayer::paint(const Tiles &shape)
{
    m_painter.drawTiledPixmap(shape.target, shape.pixmap, shape.offset);
}

void MvPaintPlayer::paint(const Outlines &shape)
{
    MvOutlinePainter::fillOutlines(m_painter, shape.lines, shape.color);
}

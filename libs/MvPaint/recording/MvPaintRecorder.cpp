// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvPaintRecorder.h"

#include "MvPaint/MvPaintRecordingData.h"

#include <QPaintEngine>
#include <QTextItem>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace MvPaintShape;

namespace {

bool isPlaced(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

bool isPlaced(const QRectF &rect)
{
    return isPlaced(rect.topLeft()) && isPlaced(rect.bottomRight());
}

/// False for circles of colours so far off that the squares of their distances are no numbers: Qt would read colours
/// from beside its table of them.
bool canBePainted(const QBrush &brush, const QTransform &transform)
{
    const QGradient *gradient = brush.gradient();
    if (!gradient || gradient->type() != QGradient::RadialGradient)
        return true;
    const auto isNear = [](const QPointF &point) {
        constexpr double farthest = 1e12;
        return std::abs(point.x()) < farthest && std::abs(point.y()) < farthest;
    };
    const auto staysNear = [isNear](const QTransform &way) {
        return isNear({way.m11(), way.m12()}) && isNear({way.m21(), way.m22()}) && isNear({way.dx(), way.dy()});
    };
    const auto &radial = static_cast<const QRadialGradient &>(*gradient);
    const QTransform there = brush.transform() * transform;
    return isNear(radial.center()) && isNear(radial.focalPoint()) && isNear({radial.radius(), radial.focalRadius()}) &&
           staysNear(there) && staysNear(there.inverted());
}

} // namespace

/// Turns the calls of a painter into operations; states are kept once for all operations between two changes.
class MvPaintRecorderEngine : public QPaintEngine
{
public:
    MvPaintRecorderEngine()
        : QPaintEngine(AllFeatures)
    {}

    const MvPaintRecordingData *data() const { return m_data.constData(); }

    bool begin(QPaintDevice *) override;
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &now) override;

    void drawLines(const QLine *lines, int count) override { add(Lines<QLine>{{lines, lines + count}}); }
    void drawLines(const QLineF *lines, int count) override { add(Lines<QLineF>{{lines, lines + count}}); }
    void drawRects(const QRect *rects, int count) override { add(Rects<QRect>{{rects, rects + count}}); }
    void drawRects(const QRectF *rects, int count) override
    {
        if (std::all_of(rects, rects + count, [](const QRectF &rect) { return isPlaced(rect); }))
            add(Rects<QRectF>{{rects, rects + count}}); // Qt would never end to fill others with a gradient
    }
    void drawEllipse(const QRect &rect) override { add(Ellipse<QRect>{rect}); }
    void drawEllipse(const QRectF &rect) override { add(Ellipse<QRectF>{rect}); }
    void drawPoints(const QPoint *points, int count) override { add(Points<QPoint>{{points, points + count}}); }
    void drawPoints(const QPointF *points, int count) override { add(Points<QPointF>{{points, points + count}}); }
    void drawPolygon(const QPoint *points, int count, PolygonDrawMode drawMode) override
    {
        add(Poly<QPolygon>{QPolygon(QList<QPoint>(points, points + count)), drawMode});
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode drawMode) override
    {
        add(Poly<QPolygonF>{QPolygonF(QList<QPointF>(points, points + count)), drawMode});
    }
    void drawPath(const QPainterPath &path) override;
    void drawPixmap(const QRectF &target, const QPixmap &pixmap, const QRectF &source) override;
    void drawImage(const QRectF &target, const QImage &image, const QRectF &source,
                   Qt::ImageConversionFlags flags) override
    {
        if (isPlaced(target))
            add(Image{image, target, source, flags});
    }
    void drawTiledPixmap(const QRectF &target, const QPixmap &pixmap, const QPointF &offset) override
    {
        add(Tiles{pixmap, target, offset});
    }
    void drawTextItem(const QPointF &position, const QTextItem &item) override;

    void addOutlines(const QPainter &painter, const QList<MvPlacedOutline> &lines, const QColor &color);

    std::shared_ptr<const MvPaintMark> mark;

private:
    void add(MvPaintOperation::Shape &&shape);
    void updateClip(const QPaintEngineState &now);
    void intersectClip(const QPaintEngineState &now);
    std::shared_ptr<const MvPaintClip> known(std::shared_ptr<const MvPaintClip> clip) const;

    template <class Value>
    void change(Value MvPaintState::*field, const Value &value)
    {
        if (m_state.*field == value)
            return;
        m_state.*field = value;
        m_stateKept = false;
    }

    QSharedDataPointer<MvPaintRecordingData> m_data{new MvPaintRecordingData}; // detaches from recordings given out
    MvPaintState m_state;
    bool m_stateKept = false;                      // the last of the states kept equals m_state
    std::shared_ptr<const MvPaintClip> m_leftClip; // in force before the clip was last dropped
    const QTextItem *m_textItem = nullptr;         // while its outline is on the way
};

bool MvPaintRecorderEngine::begin(QPaintDevice *)
{
    m_data = new MvPaintRecordingData;
    m_state = MvPaintState();
    m_stateKept = false;
    m_leftClip.reset();
    return true;
}

void MvPaintRecorderEngine::add(MvPaintOperation::Shape &&shape)
{
    if (!m_stateKept) {
        m_data->states.push_back(m_state);
        MvPaintState &kept = m_data->states.back();
        if (!canBePainted(kept.pen.brush(), kept.transform))
            kept.pen = Qt::NoPen;
        if (!canBePainted(kept.brush, kept.transform))
            kept.brush = Qt::NoBrush;
        m_stateKept = true;
    }
    m_data->operations.push_back({std::move(shape), m_data->states.size() - 1, mark});
}

void MvPaintRecorderEngine::updateState(const QPaintEngineState &now)
{
    const DirtyFlags dirty = now.state();
    if (dirty & DirtyPen)
        change(&MvPaintState::pen, now.pen());
    if (dirty & DirtyBrush)
        change(&MvPaintState::brush, now.brush());
    if (dirty & DirtyBrushOrigin)
        change(&MvPaintState::brushOrigin, now.brushOrigin());
    if (dirty & DirtyBackground)
        change(&MvPaintState::background, now.backgroundBrush());
    if (dirty & DirtyBackgroundMode)
        change(&MvPaintState::backgroundMode, now.backgroundMode());
    if (dirty & DirtyTransform)
        change(&MvPaintState::transform, now.transform());
    if (dirty & DirtyHints)
        change(&MvPaintState::hints, now.renderHints());
    if (dirty & DirtyCompositionMode)
        change(&MvPaintState::mode, now.compositionMode());
    if (dirty & DirtyOpacity)
        change(&MvPaintState::opacity, double(now.opacity()));
    if (dirty & DirtyClipEnabled)
        change(&MvPaintState::clipEnabled, now.isClipEnabled());
    if (dirty & (DirtyClipPath | DirtyClipRegion))
        updateClip(now);
}

void MvPaintRecorderEngine::updateClip(const QPaintEngineState &now)
{
    if (now.clipOperation() != Qt::IntersectClip) {
        m_leftClip = m_state.clip;
        change(&MvPaintState::clip, std::shared_ptr<const MvPaintClip>());
    }
    if (now.clipOperation() != Qt::NoClip)
        intersectClip(now);
}

void MvPaintRecorderEngine::intersectClip(const QPaintEngineState &now)
{
    auto clip = std::make_shared<MvPaintClip>();
    clip->parent = m_state.clip;
    clip->transform = now.transform();
    // both flags together only come with the first state of all, where the other shape is empty
    if ((now.state() & DirtyClipPath) && !((now.state() & DirtyClipRegion) && now.clipPath().isEmpty()))
        clip->shape = now.clipPath();
    else
        clip->shape = now.clipRegion();

    change(&MvPaintState::clip, known(std::move(clip)));
}

/// QPainter::restore() drops the clip and then sets the earlier clips again, one by one. They are recognised and
/// replaced by the recorded ones, so that replaying does not have to leave and enter them again.
std::shared_ptr<const MvPaintClip> MvPaintRecorderEngine::known(std::shared_ptr<const MvPaintClip> clip) const
{
    for (auto former = m_leftClip; former; former = former->parent) {
        if (former->parent == clip->parent && former->transform == clip->transform && former->shape == clip->shape)
            return former;
    }
    return clip;
}

void MvPaintRecorderEngine::drawPath(const QPainterPath &path)
{
    if (m_textItem && m_state.brush.style() == Qt::SolidPattern) {
        const QTextItem &item = *m_textItem;
        add(Outlines{{{QPointF(), MvTextOutline(item.font(), item.text(), path, item.width())}},
                     m_state.brush.color()});
    } else {
        add(Path{path});
    }
}

void MvPaintRecorderEngine::drawTextItem(const QPointF &position, const QTextItem &item)
{
    // the base class moves the painter to the position and fills the outline, which comes back as a path
    m_textItem = &item;
    QPaintEngine::drawTextItem(position, item);
    m_textItem = nullptr;
}

void MvPaintRecorderEngine::drawPixmap(const QRectF &target, const QPixmap &pixmap, const QRectF &source)
{
    if (pixmap.isQBitmap())
        add(Bitmap{pixmap, target, source});
    else
        add(Image{pixmap.toImage(), target, source, Qt::AutoColor});
}

void MvPaintRecorderEngine::addOutlines(const QPainter &painter, const QList<MvPlacedOutline> &lines,
                                        const QColor &color)
{
    // the painter tells its engine of changes when it draws itself; only clips come at once
    change(&MvPaintState::transform, painter.deviceTransform());
    change(&MvPaintState::hints, painter.renderHints());
    change(&MvPaintState::mode, painter.compositionMode());
    change(&MvPaintState::opacity, double(painter.opacity()));
    change(&MvPaintState::clipEnabled, painter.hasClipping());
    add(Outlines{lines, color});
}

MvPaintRecorder::MvPaintRecorder(const QPainter &target)
    : MvPaintRecorder(target.device())
{}

MvPaintRecorder::MvPaintRecorder(const QPaintDevice *target)
    : m_metrics(metricsOf(target))
    , m_engine(std::make_unique<MvPaintRecorderEngine>())
{}

MvPaintRecorder::~MvPaintRecorder() = default;

MvPaintRecorder::Metrics MvPaintRecorder::metricsOf(const QPaintDevice *target)
{
    if (!target)
        return {};
    return {target->width(),        target->height(),      target->widthMM(),     target->heightMM(),
            target->colorCount(),   target->depth(),       target->logicalDpiX(), target->logicalDpiY(),
            target->physicalDpiX(), target->physicalDpiY()};
}

MvPaintRecording MvPaintRecorder::recording() const
{
    return MvPaintRecording(m_engine->data());
}

void MvPaintRecorder::recordOutlines(const QPainter &painter, const QList<MvPlacedOutline> &lines, const QColor &color)
{
    if (m_engine->painter() == &painter)
        m_engine->addOutlines(painter, lines, color);
}

void MvPaintRecorder::setMark(const std::shared_ptr<const MvPaintMark> &mark)
{
    m_engine->mark = mark;
}

std::shared_ptr<const MvPaintMark> MvPaintRecorder::mark() const
{
    return m_engine->mark;
}

QPaintEngine *MvPaintRecorder::paintEngine() const
{
    return m_engine.get();
}

int MvPaintRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_metrics.width;
    case PdmHeight:
        return m_metrics.height;
    case PdmWidthMM:
        return m_metrics.widthMM;
    case PdmHeightMM:
        return m_metrics.heightMM;
    case PdmNumColors:
        return m_metrics.colorCount;
    case PdmDepth:
        return m_metrics.depth;
    case PdmDpiX:
        return m_metrics.dpiX;
    case PdmDpiY:
        return m_metrics.dpiY;
    case PdmPhysicalDpiX:
        return m_metrics.physicalDpiX;
    case PdmPhysicalDpiY:
        return m_metrics.physicalDpiY;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    }
    return 0;
}

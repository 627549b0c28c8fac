// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfPagePainter.h"

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfImages.h"
#include "MvProject/MvPdfPageParts.h"
#include "MvProject/MvPdfShading.h"
#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvPdfTextPainter.h"
#include "MvProject/MvPressColors.h"

#include <algorithm>
#include <cmath>

using namespace MvPaintShape;

namespace {

/// What a shape is made of, for fill and pen; nothing for pictures and texts.
struct PathsOf
{
    QList<QPainterPath> paths;
    bool isFilled = true;

    template <class Line>
    void operator()(const Lines<Line> &shape)
    {
        isFilled = false;
        for (const Line &line : shape.lines) {
            QPainterPath path(QPointF(line.p1()));
            path.lineTo(line.p2());
            paths.append(path);
        }
    }
    template <class Rect>
    void operator()(const Rects<Rect> &shape)
    {
        for (const Rect &rect : shape.rects) {
            paths.append(QPainterPath());
            paths.last().addRect(QRectF(rect));
        }
    }
    template <class Rect>
    void operator()(const Ellipse<Rect> &shape)
    {
        paths.append(QPainterPath());
        paths.last().addEllipse(QRectF(shape.rect));
    }
    template <class Point>
    void operator()(const Points<Point> &shape)
    {
        isFilled = false;
        for (const Point &point : shape.points) {
            QPainterPath path{QPointF(point)};
            path.lineTo(point);
            if (path.elementCount() < 2) // a line of no length is left out
                path.lineTo(QPointF(point) + QPointF(1e-6, 0.0));
            paths.append(path);
        }
    }
    template <class Polygon>
    void operator()(const Poly<Polygon> &shape)
    {
        QPainterPath path;
        path.addPolygon(QPolygonF(shape.polygon));
        isFilled = shape.drawMode != QPaintEngine::PolylineMode;
        if (isFilled)
            path.closeSubpath();
        if (shape.drawMode == QPaintEngine::WindingMode)
            path.setFillRule(Qt::WindingFill);
        paths.append(path);
    }
    void operator()(const Path &shape) { paths.append(shape.path); }
    template <class Other>
    void operator()(const Other &)
    {}
};

/// Where a shape is painted, in its own coordinates.
QRectF boundsOf(const MvPaintState &state, const MvPaintOperation::Shape &shape)
{
    QRectF bounds;
    if (const auto *outlines = std::get_if<Outlines>(&shape)) {
        for (const MvPlacedOutline &line : outlines->lines)
            bounds |= line.bounds();
        return bounds;
    }
    const auto target = [](const auto &other) {
        if constexpr (requires { other.target; })
            return other.target;
        else
            return QRectF();
    };
    bounds = std::visit(target, shape);
    PathsOf parts;
    std::visit(parts, shape);
    for (const QPainterPath &path : std::as_const(parts.paths)) {
        bounds |= path.controlPointRect().adjusted(0.0, 0.0, 1e-9, 1e-9); // lines have no area
    }
    if (parts.paths.isEmpty() || state.pen.style() == Qt::NoPen)
        return bounds;
    const double reach = std::max(1.0, state.pen.widthF()) * std::max(1.5, state.pen.miterLimit());
    return bounds.adjusted(-reach, -reach, reach, reach);
}

/// The name of a way to blend; empty for ways that a PDF does not know.
QByteArray blendName(QPainter::CompositionMode mode)
{
    switch (mode) {
    case QPainter::CompositionMode_SourceOver:
        return "Normal";
    case QPainter::CompositionMode_Multiply:
        return "Multiply";
    case QPainter::CompositionMode_Screen:
        return "Screen";
    case QPainter::CompositionMode_Overlay:
        return "Overlay";
    case QPainter::CompositionMode_Darken:
        return "Darken";
    case QPainter::CompositionMode_Lighten:
        return "Lighten";
    case QPainter::CompositionMode_ColorDodge:
        return "ColorDodge";
    case QPainter::CompositionMode_ColorBurn:
        return "ColorBurn";
    case QPainter::CompositionMode_HardLight:
        return "HardLight";
    case QPainter::CompositionMode_SoftLight:
        return "SoftLight";
    case QPainter::CompositionMode_Difference:
        return "Difference";
    case QPainter::CompositionMode_Exclusion:
        return "Exclusion";
    default:
        return {};
    }
}

/// Whether a shape can be written as what it is.
bool canWrite(const MvPaintState &state, const MvPaintOperation::Shape &shape)
{
    if (!state.transform.isAffine() || std::holds_alternative<Bitmap>(shape) || std::holds_alternative<Tiles>(shape))
        return false;
    if (std::holds_alternative<Image>(shape) || std::holds_alternative<Outlines>(shape))
        return true;
    const bool isPenKnown = state.pen.style() == Qt::NoPen || state.pen.brush().style() == Qt::SolidPattern;
    const Qt::BrushStyle brush = state.brush.style();
    return isPenKnown && (brush == Qt::NoBrush || brush == Qt::SolidPattern || MvPdfShading::canDescribe(state.brush));
}

/// Whether lengths and angles stay what they are to each other.
bool keepsShapes(const QTransform &transform)
{
    const QPointF x(transform.m11(), transform.m12());
    const QPointF y(transform.m21(), transform.m22());
    const double size = QPointF::dotProduct(x, x);
    return std::abs(size - QPointF::dotProduct(y, y)) <= 1e-9 * size &&
           std::abs(QPointF::dotProduct(x, y)) <= 1e-9 * size;
}

double scaleOf(const QTransform &transform)
{
    return std::sqrt(std::abs(transform.determinant()));
}

/// How many dots a side of a picture takes; all that there are where it has more room, or a length that is no number.
int dotsOf(const QPointF &side, double dot, int most)
{
    const double dots = std::ceil(std::hypot(side.x(), side.y()) / dot);
    return dots < most ? int(dots) : most;
}

bool contains(const QRectF &outer, const QRectF &inner)
{
    constexpr double noise = 0.5; // units: less than rounding
    return inner.left() >= outer.left() - noise && inner.right() <= outer.right() + noise &&
           inner.top() >= outer.top() - noise && inner.bottom() <= outer.bottom() + noise;
}

} // namespace

MvPdfPagePainter::MvPdfPagePainter(const Shared &shared, const QTransform &toUnits, const QRectF &page,
                                   MvPdfPageParts &parts)
    : m_shared(shared)
    , m_toUnits(toUnits)
    , m_page(page)
    , m_parts(parts)
    , m_content(shared.press)
{}

void MvPdfPagePainter::paint(const MvPaintRecording &recording)
{
    const MvPaintRecordingData &data = recording.data();
    const bool isKnown = std::all_of(data.operations.cbegin(), data.operations.cend(), [&](const auto &operation) {
        return !blendName(data.states[operation.state].mode).isEmpty();
    });
    if (!isKnown) {
        m_bounds = m_toUnits.mapRect(m_page);
        paintAsPicture(recording, m_page, Qt::white, m_parts.addPicture({}));
        leavePart();
        return;
    }
    for (size_t i = 0; i < data.operations.size(); ++i) {
        const MvPaintOperation &operation = data.operations[i];
        const MvPaintState &state = data.states[operation.state];
        const QRectF bounds = state.transform.mapRect(boundsOf(state, operation.shape));
        m_bounds = m_toUnits.mapRect(bounds) & m_toUnits.mapRect(m_page);
        if (m_bounds.isEmpty() || (m_isDecoration && std::holds_alternative<Outlines>(operation.shape)))
            continue; // blank, or beside the page
        m_operation = i;
        if (canWrite(state, operation.shape)) {
            enter(state);
            paintShape(operation.shape);
        } else {
            const QList<int> lines = m_parts.partsOfLines(i);
            paintAsPicture(recording.part(int(i), 1), bounds & m_page, Qt::transparent,
                           lines.isEmpty() ? m_parts.partOf(i) : lines.constFirst());
        }
    }
    leaveClips(0);
    leavePart();
}

void MvPdfPagePainter::enter(const MvPaintState &state)
{
    m_state = &state;
    m_transform = state.transform * m_toUnits;
    enterClips(state.effectiveClip());
}

void MvPdfPagePainter::paintShape(const MvPaintOperation::Shape &shape)
{
    if (const auto *outlines = std::get_if<Outlines>(&shape)) {
        paintOutlines(*outlines);
        return;
    }
    enterPart(m_parts.partOf(m_operation));
    if (const auto *image = std::get_if<Image>(&shape)) {
        useOpacity(m_state->opacity, m_state->opacity);
        paintImage(image->image, image->target, image->source);
    } else {
        PathsOf parts;
        std::visit(parts, shape);
        paintPaths(parts.paths, parts.isFilled);
    }
}

void MvPdfPagePainter::paintPaths(const QList<QPainterPath> &paths, bool isFilled)
{
    const bool hasPen = m_state->pen.style() != Qt::NoPen;
    const double fillOpacity = m_state->brush.gradient() ? 1.0 : double(m_state->brush.color().alphaF());
    const double penOpacity = double(m_state->pen.color().alphaF());
    useOpacity(fillOpacity * m_state->opacity, penOpacity * m_state->opacity);
    if (paths.size() > 1 && !isFilled && penOpacity * m_state->opacity == 1.0) {
        QPainterPath all; // where they meet, nothing can be told apart
        for (const QPainterPath &path : paths)
            all.addPath(path);
        stroke(all);
        return;
    }
    for (const QPainterPath &path : paths) {
        if (isFilled)
            fill(path);
        if (hasPen)
            stroke(path);
    }
}

void MvPdfPagePainter::fill(const QPainterPath &path)
{
    if (m_state->brush.style() == Qt::NoBrush || path.isEmpty())
        return;
    if (m_state->brush.gradient()) {
        fillWithGradient(path);
        return;
    }
    m_content.setFillColor(m_state->brush.color().rgb());
    noteInk(m_state->brush.color().rgb());
    m_content.addPath(m_transform.map(path), MvPdfContent::Subpaths::AsTheyAre);
    m_content.finishPath(path.fillRule() == Qt::WindingFill ? "f" : "f*");
}

void MvPdfPagePainter::fillWithGradient(const QPainterPath &path)
{
    const MvPdfShading shading(m_state->brush, path.boundingRect(), m_shared.press);
    for (const QGradientStop &stop : m_state->brush.gradient()->stops())
        noteInk(stop.second.rgb());
    const QTransform transform = shading.transform() * m_transform;
    m_content.save();
    if (shading.isTranslucent())
        useOpacity(m_state->opacity, m_state->opacity, maskOf(shading.opacity(), transform));
    m_content.addPath(m_transform.map(path), MvPdfContent::Subpaths::AsTheyAre);
    m_content.finishPath(path.fillRule() == Qt::WindingFill ? "W n" : "W* n");
    m_content.concat(transform);
    m_content.paintShading(m_shared.file.addOnce(shading.colors()));
    m_content.restore();
}

QByteArray MvPdfPagePainter::maskOf(const QByteArray &shading, const QTransform &transform)
{
    MvPdfContent mask;
    mask.concat(transform);
    mask.paintShading(m_shared.file.addOnce(shading));
    QByteArray box;
    MvPdfSyntax::append(box, m_bounds.topLeft());
    MvPdfSyntax::append(box, m_bounds.bottomRight());
    const int group =
        m_shared.file.addStream("/Type/XObject/Subtype/Form/BBox[" + box +
                                    "]/Group<</S/Transparency/CS/DeviceGray>>/Resources" + mask.resources(),
                                mask.bytes());
    return "/SMask<</Type/Mask/S/Luminosity/G " + MvPdfSyntax::reference(group) + ">>";
}

void MvPdfPagePainter::stroke(const QPainterPath &path)
{
    QPen pen = m_state->pen;
    if (pen.style() == Qt::NoPen || path.elementCount() == 0)
        return;
    const bool isCosmetic = pen.isCosmetic();
    if (pen.widthF() == 0.0)
        pen.setWidthF(1.0);
    constexpr double thin = 142.0; // units: half a millimetre
    const double scale = scaleOf(isCosmetic ? m_toUnits : m_transform);
    const bool isLikeType = m_shared.press && pen.widthF() * scale <= thin;
    const QRgb color = isLikeType ? MvPressColors::colorOfType(pen.color().rgb()) : pen.color().rgb();
    m_content.setStrokeColor(color);
    noteInk(color);
    if (isCosmetic || keepsShapes(m_transform)) {
        m_content.setPen(pen, scale);
        m_content.addPath(m_transform.map(path), MvPdfContent::Subpaths::Closed);
        m_content.finishPath("S");
        return;
    }
    m_content.save();
    m_content.concat(m_transform);
    m_content.setPen(pen, 1.0);
    m_content.addPath(path, MvPdfContent::Subpaths::Closed, 4);
    m_content.finishPath("S");
    m_content.restore();
}

/// Lines of one part together.
void MvPdfPagePainter::paintOutlines(const Outlines &shape)
{
    const QList<int> parts = m_parts.partsOfLines(m_operation);
    const double opacity = m_state->opacity * double(shape.color.alphaF());
    const QRgb color = m_shared.press ? MvPressColors::colorOfType(shape.color.rgb()) : shape.color.rgb();
    // black goes over everything, so that no gap shows around it when the plates do not quite meet
    const bool isOverprinted = (color | 0xff000000) == qRgb(0, 0, 0) && opacity == 1.0;
    noteInk(color);
    for (qsizetype first = 0, next = 0; first < shape.lines.size(); first = next) {
        while (next < shape.lines.size() && parts[next] == parts[first])
            ++next;
        enterPart(parts[first]);
        useOpacity(opacity, opacity, {}, isOverprinted);
        m_content.setFillColor(color);
        paintLines(shape.lines.sliced(first, next - first));
    }
}

void MvPdfPagePainter::paintLines(const QList<MvPlacedOutline> &lines)
{
    QList<MvPlacedOutline> known;
    QPainterPath others;
    others.setFillRule(Qt::WindingFill);
    for (const MvPlacedOutline &line : lines) {
        if (line.outline.isEmpty())
            continue;
        if (line.outline.glyphs().isEmpty())
            others.addPath(line.outline.path().translated(line.baseline));
        else
            known.append(line);
    }
    if (!known.isEmpty())
        MvPdfTextPainter(m_content, m_shared.fonts, m_transform).paint(known);
    if (!others.isEmpty()) {
        m_content.addPath(m_transform.map(others), MvPdfContent::Subpaths::AsTheyAre);
        m_content.finishPath("f");
    }
    for (const MvPlacedOutline &line : lines) {
        for (const MvTextOutline::Picture &picture : line.outline.pictures())
            paintImage(picture.image, picture.rect.translated(line.baseline), picture.image.rect());
    }
}

void MvPdfPagePainter::paintImage(const QImage &image, const QRectF &target, const QRectF &source)
{
    const QRect part = source.toAlignedRect() & image.rect();
    if (part.isEmpty() || target.isEmpty())
        return;
    const bool isCut = QRectF(part) != source;
    if (isCut) {
        QPainterPath path;
        path.addRect(target);
        m_content.save();
        m_content.addPath(m_transform.map(path), MvPdfContent::Subpaths::AsTheyAre);
        m_content.finishPath("W n");
    }
    const double x = target.width() / source.width();
    const double y = target.height() / source.height();
    placeImage(image, part,
               {target.x() + (part.x() - source.x()) * x, target.y() + (part.y() - source.y()) * y, part.width() * x,
                part.height() * y},
               m_transform);
    if (isCut)
        m_content.restore();
}

void MvPdfPagePainter::placeImage(const QImage &image, const QRect &part, const QRectF &target,
                                  const QTransform &transform)
{
    const auto place = [&transform](const QPointF &corner) {
        const QPointF mapped = transform.map(corner);
        return QPointF(std::round(mapped.x()), std::round(mapped.y()));
    };
    const QPointF origin = place(target.bottomLeft());
    const QPointF width = place(target.bottomRight()) - origin;
    const QPointF height = place(target.topLeft()) - origin;
    const double dot = scaleOf(m_toUnits);
    const QSize needed(dotsOf(width, dot, part.width()), dotsOf(height, dot, part.height()));
    const int object = m_shared.images.object(image, part, needed);
    m_content.save();
    m_content.concat({width.x(), width.y(), height.x(), height.y(), origin.x(), origin.y()});
    m_content.paintObject(object);
    m_content.restore();
    const MvPdfImageEncoder::Ink ink = m_shared.images.ink(object);
    noteInk(ink.percent, origin + width * ink.place.x() + height * (1.0 - ink.place.y()));
}

void MvPdfPagePainter::paintAsPicture(const MvPaintRecording &recording, const QRectF &bounds, const QColor &ground,
                                      int part)
{
    // what has no place that can be said, may be anywhere
    const bool isKnown = std::isfinite(bounds.left()) && std::isfinite(bounds.top()) && std::isfinite(bounds.right()) &&
                         std::isfinite(bounds.bottom());
    const QRect dots = (isKnown ? bounds & m_page : m_page).toAlignedRect();
    QImage image(dots.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) // nothing of it is on the page
        return;
    image.fill(ground);
    QPainter painter(&image);
    painter.translate(-dots.topLeft());
    recording.replay(painter);
    painter.end();
    m_state = nullptr;
    leaveClips(0);
    enterPart(part);
    useOpacity(1.0, 1.0);
    placeImage(image, image.rect(), dots, m_toUnits);
}

const MvPdfPagePainter::Clip &MvPdfPagePainter::clipOf(const MvPaintClip &clip)
{
    const auto known = m_knownClips.constFind(&clip);
    if (known != m_knownClips.cend())
        return *known;
    QPainterPath path;
    if (const auto *region = std::get_if<QRegion>(&clip.shape))
        path.addRegion(*region);
    else
        path = std::get<QPainterPath>(clip.shape);
    Clip mapped;
    mapped.path = (clip.transform * m_toUnits).map(path);
    if (const auto rect = MvPdfContent::rectOf(mapped.path))
        mapped.rect = rect->normalized();
    return *m_knownClips.insert(&clip, mapped);
}

/// Clips that cut nothing off the shape are left out.
void MvPdfPagePainter::enterClips(const MvPaintClip *clip)
{
    std::vector<const MvPaintClip *> wanted;
    for (; clip; clip = clip->parent.get()) {
        const Clip &known = clipOf(*clip);
        if (!known.rect || !contains(*known.rect, m_bounds))
            wanted.push_back(clip);
    }
    std::reverse(wanted.begin(), wanted.end());
    const auto [shared, other] = std::mismatch(m_clips.begin(), m_clips.end(), wanted.begin(), wanted.end());
    const auto keep = size_t(shared - m_clips.begin());
    if (wanted.size() > keep)
        leavePart();
    leaveClips(keep);
    for (size_t i = m_clips.size(); i < wanted.size(); ++i) {
        const QPainterPath &path = clipOf(*wanted[i]).path;
        m_content.save();
        m_content.addPath(path, MvPdfContent::Subpaths::AsTheyAre);
        if (path.isEmpty())
            m_content.addRect(QRectF());
        m_content.finishPath(path.fillRule() == Qt::WindingFill ? "W n" : "W* n");
        m_clips.push_back(wanted[i]);
    }
}

void MvPdfPagePainter::leaveClips(size_t keep)
{
    if (m_clips.size() > keep)
        leavePart(); // what is marked lies within one clip
    for (; m_clips.size() > keep; m_clips.pop_back())
        m_content.restore();
}

void MvPdfPagePainter::noteInk(double percent, const QPointF &place)
{
    if (percent > m_mostInk.percent)
        m_mostInk = {percent, place};
}

void MvPdfPagePainter::noteInk(QRgb color)
{
    if (m_shared.press)
        noteInk(m_shared.press->inks(color).total(), m_bounds.center());
}

void MvPdfPagePainter::useOpacity(double fill, double stroke, const QByteArray &mask, bool isOverprinted)
{
    const QPainter::CompositionMode mode = m_state ? m_state->mode : QPainter::CompositionMode_SourceOver;
    const bool isUsual = fill == 1.0 && stroke == 1.0 && mask.isEmpty() && mode == QPainter::CompositionMode_SourceOver;
    const bool isForInks = m_shared.press && isOverprinted && isUsual;
    if (isUsual && !isForInks && m_content.state() == 0)
        return;
    const QByteArray inks = !m_shared.press ? "" : isForInks ? "/OP true/op true/OPM 1" : "/OP false/op false/OPM 0";
    m_content.setState(m_shared.file.addOnce("<</Type/ExtGState/ca " + MvPdfSyntax::number(fill, 3) + "/CA " +
                                             MvPdfSyntax::number(stroke, 3) + "/BM/" + blendName(mode) + mask + inks +
                                             ">>"),
                       !isUsual || !m_shared.press);
}

void MvPdfPagePainter::enterPart(int part)
{
    if (m_isDecoration)
        part = MvPdfPageParts::decoration;
    QRectF seen = m_bounds;
    for (const MvPaintClip *clip : m_clips)
        seen &= clipOf(*clip).path.boundingRect();
    m_parts.addBounds(part, seen);
    if (m_part == part)
        return;
    leavePart();
    m_part = part;
    if (part == MvPdfPageParts::decoration)
        m_content.append("/Artifact BMC\n");
    else
        m_content.append("/P<</MCID " + QByteArray::number(m_parts.addContent(part)) + ">>BDC\n");
}

void MvPdfPagePainter::leavePart()
{
    if (m_part)
        m_content.append("EMC\n");
    m_part.reset();
}

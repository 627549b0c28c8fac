// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvPaintRecording.h"

#include "MvPaint/MvPaintClipper.h"
#include "MvPaint/MvPaintPlayer.h"

#include <QStringList>
#include <QtMath>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace MvPaintShape;

namespace {
using Item = MvPaintRecording::Item;

template <class Rect>
QPainterPath rectPath(const Rect &rect)
{
    QPainterPath path;
    path.addRect(QRectF(rect));
    return path;
}

template <class Rect>
QPainterPath ellipsePath(const Rect &rect)
{
    QPainterPath path;
    path.addEllipse(QRectF(rect));
    return path;
}

QRectF boundsOf(const MvPaintClip &clip)
{
    const QRectF own = std::visit([](const auto &shape) { return QRectF(shape.boundingRect()); }, clip.shape);
    const QRectF onPage = clip.transform.mapRect(own);
    return clip.parent ? onPage & boundsOf(*clip.parent) : onPage;
}

/// Describes the operations of one recording as items in page coordinates.
class Lister
{
public:
    QList<Item> list(const MvPaintRecordingData &recording)
    {
        for (const MvPaintOperation &operation : recording.operations) {
            m_state = &recording.states[operation.state];
            std::visit([this](const auto &shape) { add(shape); }, operation.shape);
        }
        return m_items;
    }

private:
    template <class Line>
    void add(const Lines<Line> &shape)
    {
        for (const Line &line : shape.lines) {
            QPainterPath path(QPointF(line.p1()));
            path.lineTo(line.p2());
            Item item = stroked(Item::Line, path);
            item.line = m_state->transform.map(QLineF(line));
            item.bounds = QRectF(item.line.p1(), item.line.p2()).normalized();
            m_items.append(item);
        }
    }
    template <class Rect>
    void add(const Rects<Rect> &shape)
    {
        for (const Rect &rect : shape.rects)
            m_items.append(filled(Item::Rect, rectPath(rect)));
    }
    template <class Rect>
    void add(const Ellipse<Rect> &shape)
    {
        m_items.append(filled(Item::Ellipse, ellipsePath(shape.rect)));
    }
    template <class Point>
    void add(const Points<Point> &shape)
    {
        for (const Point &point : shape.points) {
            Item item = stroked(Item::Point, QPainterPath(point));
            item.bounds = QRectF(m_state->transform.map(QPointF(point)), QSizeF());
            m_items.append(item);
        }
    }
    template <class Polygon>
    void add(const Poly<Polygon> &shape)
    {
        QPainterPath path;
        path.addPolygon(QPolygonF(shape.polygon));
        const bool isOpen = shape.drawMode == QPaintEngine::PolylineMode;
        if (!isOpen)
            path.closeSubpath();
        if (shape.drawMode == QPaintEngine::WindingMode)
            path.setFillRule(Qt::WindingFill);
        m_items.append(isOpen ? stroked(Item::Polygon, path) : filled(Item::Polygon, path));
    }
    void add(const Path &shape) { m_items.append(filled(Item::Path, shape.path)); }
    void add(const Image &shape) { addPicture(shape.target); }
    void add(const Bitmap &shape) { addPicture(shape.target); }
    void add(const Tiles &shape) { addPicture(shape.target); }
    void add(const Outlines &shape)
    {
        for (const MvPlacedOutline &line : shape.lines) {
            QPainterPath seen = line.outline.path().translated(line.baseline);
            for (const MvTextOutline::Picture &picture : line.outline.pictures())
                seen.addRect(picture.rect.translated(line.baseline));
            Item item = plain(Item::Text, seen);
            item.fill = shape.color;
            item.text = line.outline.text();
            item.font = line.outline.font();
            item.baseline = m_state->transform.map(line.baseline);
            item.angle = qRadiansToDegrees(std::atan2(m_state->transform.m12(), m_state->transform.m11()));
            m_items.append(item);
        }
    }

    void addPicture(const QRectF &target)
    {
        Item item = plain(Item::Image, QPainterPath());
        item.bounds = m_state->transform.mapRect(target);
        m_items.append(item);
    }

    Item plain(Item::Kind kind, const QPainterPath &shape) const
    {
        Item item;
        item.kind = kind;
        item.shape = m_state->transform.map(shape);
        item.bounds = item.shape.boundingRect();
        item.opacity = m_state->opacity;
        if (const MvPaintClip *clip = m_state->effectiveClip())
            item.clip = boundsOf(*clip);
        return item;
    }

    Item stroked(Item::Kind kind, const QPainterPath &shape) const
    {
        Item item = plain(kind, shape);
        const QPen &pen = m_state->pen;
        if (pen.style() != Qt::NoPen) {
            item.stroke = pen.color();
            item.strokeStyle = pen.style();
            const double scale = std::sqrt(std::abs(m_state->transform.determinant()));
            item.strokeWidth = pen.isCosmetic() ? pen.widthF() : pen.widthF() * scale;
        }
        return item;
    }

    Item filled(Item::Kind kind, const QPainterPath &shape) const
    {
        Item item = stroked(kind, shape);
        if (m_state->brush.style() == Qt::SolidPattern)
            item.fill = m_state->brush.color();
        return item;
    }

    const MvPaintState *m_state = nullptr;
    QList<Item> m_items;
};

/// Rounds halves up, also those that floating point has made slightly too small.
QString number(double value)
{
    constexpr double noise = 1e-6;
    const double rounded = std::floor(value * 100.0 + 0.5 + noise) / 100.0;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'g', 12); // no "-0"
}

QString point(const QPointF &point)
{
    return number(point.x()) + u',' + number(point.y());
}

QString rect(const QRectF &rect)
{
    return point(rect.topLeft()) + u' ' + number(rect.width()) + u'x' + number(rect.height());
}

QString color(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString kindName(Item::Kind kind)
{
    switch (kind) {
    case Item::Line:
        return u"line"_s;
    case Item::Rect:
        return u"rect"_s;
    case Item::Ellipse:
        return u"ellipse"_s;
    case Item::Point:
        return u"point"_s;
    case Item::Polygon:
        return u"polygon"_s;
    case Item::Path:
        return u"path"_s;
    case Item::Image:
        return u"image"_s;
    case Item::Text:
        return u"text"_s;
    }
    return {};
}

QString penStyleName(Qt::PenStyle style)
{
    switch (style) {
    case Qt::DashLine:
        return u"dashed"_s;
    case Qt::DotLine:
        return u"dotted"_s;
    case Qt::DashDotLine:
    case Qt::DashDotDotLine:
    case Qt::CustomDashLine:
        return u"patterned"_s;
    default:
        return {};
    }
}

QString place(const Item &item)
{
    switch (item.kind) {
    case Item::Line:
        return point(item.line.p1()) + u' ' + point(item.line.p2());
    case Item::Point:
        return point(item.bounds.topLeft());
    case Item::Text:
        return u'"' + item.text + u"\" "_s + point(item.baseline);
    default:
        return rect(item.bounds);
    }
}

/// The rectangles that a path consists of; none when there is anything else in it, or only one.
QList<QRectF> rectsOf(const QPainterPath &path)
{
    constexpr int corners = 5; // with the first one again
    const int count = path.elementCount();
    QList<QRectF> rects;
    for (int first = 0; first < count; first += corners) {
        if (count - first < corners || !path.elementAt(first).isMoveTo())
            return {};
        QPolygonF outline;
        for (int i = 0; i < corners; ++i) {
            if (i > 0 && !path.elementAt(first + i).isLineTo())
                return {};
            outline << QPointF(path.elementAt(first + i));
        }
        const QRectF rect(outline[0], outline[2]);
        if (outline != QPolygonF(rect))
            return {};
        rects.append(rect.normalized());
    }
    return rects.size() > 1 ? rects : QList<QRectF>();
}

QString describeFont(const QFont &font)
{
    QStringList words{u"font"_s, font.family()};
    words << (font.pixelSize() > 0 ? QString::number(font.pixelSize()) : number(font.pointSizeF()) + u"pt"_s);
    if (font.bold())
        words << u"bold"_s;
    if (font.italic())
        words << u"italic"_s;
    if (font.letterSpacing() != 0.0 && font.letterSpacing() != 100.0)
        words << u"spacing"_s << number(font.letterSpacing());
    return words.join(u' ');
}

QString describeItem(const Item &item)
{
    QStringList words{kindName(item.kind), place(item)};
    if (item.fill.isValid())
        words << u"fill"_s << color(item.fill);
    if (item.kind == Item::Text) {
        words << describeFont(item.font);
        if (item.angle != 0.0)
            words << u"turned"_s << number(item.angle);
    }
    if (item.stroke.isValid()) {
        words << u"pen"_s << color(item.stroke) << number(item.strokeWidth);
        if (const QString style = penStyleName(item.strokeStyle); !style.isEmpty())
            words << style;
    }
    if (item.opacity < 1.0)
        words << u"opacity"_s << number(item.opacity);
    if (!item.clip.isNull())
        words << u"clip"_s << rect(item.clip);
    QString text = words.join(u' ');
    if (item.kind == Item::Path) {
        for (const QRectF &part : rectsOf(item.shape))
            text += u"\n    "_s + rect(part);
    }
    return text;
}
} // namespace

MvPaintRecording::MvPaintRecording()
    : d(new MvPaintRecordingData)
{}

MvPaintRecording::MvPaintRecording(const MvPaintRecordingData *data)
    : d(data)
{}

MvPaintRecording::MvPaintRecording(const MvPaintRecording &) = default;
MvPaintRecording &MvPaintRecording::operator=(const MvPaintRecording &) = default;
MvPaintRecording::MvPaintRecording(MvPaintRecording &&) noexcept = default;
MvPaintRecording &MvPaintRecording::operator=(MvPaintRecording &&) noexcept = default;
MvPaintRecording::~MvPaintRecording() = default;

bool MvPaintRecording::isEmpty() const
{
    return d->operations.empty();
}

int MvPaintRecording::operationCount() const
{
    return int(d->operations.size());
}

void MvPaintRecording::replay(QPainter &painter) const
{
    if (!isEmpty() && painter.isActive())
        MvPaintPlayer(painter, *d).play();
}

MvPaintRecording MvPaintRecording::clipped(const QRectF &rect) const
{
    return MvPaintRecording(MvPaintClipper(*d, rect).clip());
}

MvPaintRecording MvPaintRecording::part(int first, int count) const
{
    const int begin = std::clamp(first, 0, operationCount());
    const int end = begin + std::clamp(count, 0, operationCount() - begin);
    auto *some = new MvPaintRecordingData;
    some->states = d->states;
    some->operations.assign(d->operations.begin() + begin, d->operations.begin() + end);
    return MvPaintRecording(some);
}

const MvPaintRecordingData &MvPaintRecording::data() const
{
    return *d;
}

QList<MvPaintRecording::Item> MvPaintRecording::items() const
{
    return Lister().list(*d);
}

QList<MvPaintRecording::Item> MvPaintRecording::items(Item::Kind kind) const
{
    QList<Item> found = items();
    found.removeIf([kind](const Item &item) { return item.kind != kind; });
    return found;
}

QString MvPaintRecording::describe() const
{
    QString text;
    const QList<Item> all = items();
    for (const Item &item : all)
        text += describeItem(item) + u'\n';
    return text;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfContent.h"

#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvPressColors.h"

#include <QPen>

#include <algorithm>
#include <cmath>

namespace {

constexpr int rectElements = 5; // with the first corner again

QPointF rounded(const QPointF &point, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return {std::round(point.x() * scale) / scale, std::round(point.y() * scale) / scale};
}

/// Writes subpaths with rounded coordinates and leaves out what rounding has made nothing.
class PathWriter
{
public:
    PathWriter(QByteArray &out, MvPdfContent::Subpaths subpaths, int decimals)
        : m_out(out)
        , m_isClosing(subpaths == MvPdfContent::Subpaths::Closed)
        , m_decimals(decimals)
    {}
    ~PathWriter() { close(); }
    PathWriter(const PathWriter &) = delete;
    PathWriter &operator=(const PathWriter &) = delete;

    void moveTo(const QPointF &point)
    {
        close();
        m_start = m_now = rounded(point, m_decimals);
        m_isBegun = false;
    }
    void lineTo(const QPointF &point, bool isLast)
    {
        const QPointF end = rounded(point, m_decimals);
        const bool isClosed = m_isBegun && m_isClosing && isLast && end == m_start;
        if (isClosed || (end == m_now && (m_isBegun || !isLast)))
            return;
        begin();
        write(end, " l\n");
    }
    void curveTo(const QPointF &first, const QPointF &second, const QPointF &point)
    {
        const QPointF a = rounded(first, m_decimals);
        const QPointF b = rounded(second, m_decimals);
        const QPointF end = rounded(point, m_decimals);
        if (a == m_now && b == m_now && end == m_now)
            return;
        begin();
        const bool isShortStart = a == m_now;
        const bool isShortEnd = !isShortStart && b == end;
        if (!isShortStart)
            MvPdfSyntax::append(m_out, a, m_decimals);
        if (!isShortEnd)
            MvPdfSyntax::append(m_out, b, m_decimals);
        write(end, isShortStart ? " v\n" : isShortEnd ? " y\n" : " c\n");
    }
    /// To be called at the end of a subpath that ends where it has begun.
    void setClosed() { m_isClosed = true; }

private:
    void begin()
    {
        if (!m_isBegun)
            write(m_start, " m\n");
        m_isBegun = true;
    }
    void close()
    {
        if (m_isBegun && m_isClosing && m_isClosed)
            m_out += "h\n";
        m_isClosed = false;
    }
    void write(const QPointF &point, const char *command)
    {
        MvPdfSyntax::append(m_out, point, m_decimals);
        m_out.chop(1);
        m_out += command;
        m_now = point;
    }

    QByteArray &m_out;
    const bool m_isClosing;
    const int m_decimals;
    QPointF m_start;
    QPointF m_now;
    bool m_isBegun = false;
    bool m_isClosed = false;
};

} // namespace

MvPdfContent::MvPdfContent(const MvPressColors *press)
    : m_press(press)
{
    if (press) // it begins with another black than theirs
        m_now.fill = m_now.stroke = qRgba(0, 0, 0, 0);
}

void MvPdfContent::save()
{
    m_outer.push_back(m_now);
    m_bytes += "q\n";
}

void MvPdfContent::restore()
{
    m_now = m_outer.back();
    m_outer.pop_back();
    m_bytes += "Q\n";
}

void MvPdfContent::concat(const QTransform &transform)
{
    for (const double value : {transform.m11(), transform.m12(), transform.m21(), transform.m22()}) {
        MvPdfSyntax::append(m_bytes, value, 6);
        m_bytes += ' ';
    }
    MvPdfSyntax::append(m_bytes, QPointF(transform.dx(), transform.dy()), 2);
    m_bytes += "cm\n";
}

void MvPdfContent::appendColor(QRgb color, const char *command)
{
    for (const int part : {qRed(color), qGreen(color), qBlue(color)}) {
        // a little more, so that readers come back to the same number whether they round or cut off
        const bool isWhole = part == 0 || part == 255;
        MvPdfSyntax::append(m_bytes, (part + (isWhole ? 0.0 : 0.04)) / 255.0, 4);
        m_bytes += ' ';
    }
    m_bytes += command;
}

void MvPdfContent::appendInks(QRgb color, const char *command)
{
    for (const double part : m_press->inks(color).parts) {
        MvPdfSyntax::append(m_bytes, part, 3);
        m_bytes += ' ';
    }
    m_bytes += command;
}

void MvPdfContent::setState(int object, bool isTranslucent)
{
    use(m_now.state, object, "ExtGState", " gs\n");
    m_isTranslucent = m_isTranslucent || isTranslucent;
}

void MvPdfContent::setFillColor(QRgb color)
{
    if (m_now.fill != (color | 0xff000000))
        m_press ? appendInks(color, "k\n") : appendColor(color, "rg\n");
    m_now.fill = color | 0xff000000;
}

void MvPdfContent::setStrokeColor(QRgb color)
{
    if (m_now.stroke != (color | 0xff000000))
        m_press ? appendInks(color, "K\n") : appendColor(color, "RG\n");
    m_now.stroke = color | 0xff000000;
}

void MvPdfContent::setPen(const QPen &pen, double scale)
{
    const double width = pen.widthF() * scale;
    QByteArray commands;
    MvPdfSyntax::append(commands, width, 2);
    commands += " w ";
    commands += pen.capStyle() == Qt::RoundCap ? '1' : pen.capStyle() == Qt::SquareCap ? '2' : '0';
    commands += " J ";
    const bool isMiter = pen.joinStyle() == Qt::MiterJoin || pen.joinStyle() == Qt::SvgMiterJoin;
    commands += isMiter ? '0' : pen.joinStyle() == Qt::RoundJoin ? '1' : '2';
    commands += " j ";
    if (isMiter) {
        MvPdfSyntax::append(commands, std::max(1.0, pen.miterLimit()), 2);
        commands += " M ";
    }
    commands += '[';
    const QList<qreal> dashes = pen.dashPattern();
    for (const double dash : dashes) {
        MvPdfSyntax::append(commands, dash * width, 2);
        commands += ' ';
    }
    commands += ']';
    MvPdfSyntax::append(commands, pen.dashOffset() * width, 2);
    commands += " d\n";
    if (commands != m_now.pen)
        m_bytes += commands;
    m_now.pen = commands;
}

/// The rectangle that the subpath beginning with the element is.
std::optional<QRectF> MvPdfContent::rectAt(const QPainterPath &path, int first)
{
    if (path.elementCount() < first + rectElements ||
        (path.elementCount() > first + rectElements && !path.elementAt(first + rectElements).isMoveTo()))
        return std::nullopt;
    for (int i = 1; i < rectElements; ++i) {
        if (!path.elementAt(first + i).isLineTo())
            return std::nullopt;
    }
    const QPointF a = path.elementAt(first);
    const QPointF b = path.elementAt(first + 1);
    const QPointF c = path.elementAt(first + 2);
    const QPointF d = path.elementAt(first + 3);
    if (QPointF(path.elementAt(first + 4)) != a)
        return std::nullopt;
    if (a.y() == b.y() && b.x() == c.x() && c.y() == d.y() && d.x() == a.x())
        return QRectF(a, c); // goes round as the path does
    if (a.x() == b.x() && b.y() == c.y() && c.x() == d.x() && d.y() == a.y())
        return QRectF(b, d);
    return std::nullopt;
}

std::optional<QRectF> MvPdfContent::rectOf(const QPainterPath &path)
{
    return path.elementCount() == rectElements ? rectAt(path, 0) : std::nullopt;
}

void MvPdfContent::addRect(const QRectF &rect, int decimals)
{
    // edges are rounded, not sizes: what touches goes on touching
    const QPointF from = rounded(rect.topLeft(), decimals);
    const QPointF to = rounded(rect.bottomRight(), decimals);
    MvPdfSyntax::append(m_bytes, from, decimals);
    MvPdfSyntax::append(m_bytes, to - from, decimals);
    m_bytes += "re\n";
}

void MvPdfContent::addPath(const QPainterPath &path, Subpaths subpaths, int decimals)
{
    PathWriter writer(m_bytes, subpaths, decimals);
    const int count = path.elementCount();
    QPointF start;
    for (int i = 0; i < count; ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            if (const auto rect = rectAt(path, i)) {
                writer.moveTo(element); // ends the subpath before
                addRect(*rect, decimals);
                i += rectElements - 1;
                continue;
            }
            start = element;
            writer.moveTo(element);
            continue;
        }
        const int last = element.isCurveTo() ? i + 2 : i;
        const bool isLast = last + 1 == count || path.elementAt(last + 1).isMoveTo();
        if (element.isCurveTo())
            writer.curveTo(element, path.elementAt(i + 1), path.elementAt(last));
        else
            writer.lineTo(element, isLast);
        if (isLast && QPointF(path.elementAt(last)) == start)
            writer.setClosed();
        i = last;
    }
}

void MvPdfContent::finishPath(const char *command)
{
    m_bytes += command;
    m_bytes += '\n';
}

QByteArray MvPdfContent::name(const char *kind, int object)
{
    QByteArray &known = m_resources[kind][object];
    if (known.isEmpty())
        known = kind[0] + QByteArray::number(object);
    return known;
}

void MvPdfContent::call(const char *kind, int object, const char *command)
{
    m_bytes += '/' + name(kind, object) + command;
}

void MvPdfContent::use(int &now, int object, const char *kind, const char *command)
{
    if (now != object)
        call(kind, object, command);
    now = object;
}

void MvPdfContent::setFont(int object, double size)
{
    if (m_now.font == object && m_now.fontSize == size)
        return;
    m_now.font = object;
    m_now.fontSize = size;
    m_bytes += '/' + name("Font", object) + ' ';
    MvPdfSyntax::append(m_bytes, size, 2);
    m_bytes += " Tf\n";
}

QByteArray MvPdfContent::resources() const
{
    QByteArray dictionary = "<<";
    for (const auto &[kind, objects] : m_resources) {
        dictionary += '/' + kind + "<<";
        for (const auto &[object, name] : objects)
            dictionary += '/' + name + ' ' + MvPdfSyntax::reference(object);
        dictionary += ">>";
    }
    return dictionary + ">>";
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvTextOutline.h"

#include "MvCore/MvSharedData.h"
#include "MvPaint/MvGlyphLine.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>

struct MvTextOutlineImpl : MvSharedData
{
    QFont font;
    QString text;
    QPainterPath path;
    QRectF bounds;
    double advance = 0.0;
    QList<MvTextOutline::Group> groups;
    QList<MvTextOutline::Glyph> glyphs;
    QList<MvTextOutline::Picture> pictures;
};

namespace {
using Group = MvTextOutline::Group;

QList<Group> subPaths(const QPainterPath &path)
{
    QList<Group> parts;
    const int count = path.elementCount();
    for (int i = 0; i < count; ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            parts.append(Group());
            parts.last().path.setFillRule(Qt::WindingFill);
            parts.last().path.moveTo(element);
            break;
        case QPainterPath::LineToElement:
            parts.last().path.lineTo(element);
            break;
        case QPainterPath::CurveToElement:
            parts.last().path.cubicTo(element, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return parts;
}

void measure(Group &group)
{
    const QRectF box = group.path.controlPointRect();
    group.left = box.left();
    group.right = box.right();
    group.top = box.top();
    group.bottom = box.bottom();
}

void unite(Group &group, const Group &other)
{
    group.path.addPath(other.path);
    group.left = std::min(group.left, other.left);
    group.right = std::max(group.right, other.right);
    group.top = std::min(group.top, other.top);
    group.bottom = std::max(group.bottom, other.bottom);
}

QList<Group> groupsOf(const QPainterPath &path)
{
    QList<Group> parts = subPaths(path);
    std::for_each(parts.begin(), parts.end(), measure);
    std::stable_sort(parts.begin(), parts.end(), [](const Group &a, const Group &b) { return a.left < b.left; });

    QList<Group> groups;
    for (const Group &part : std::as_const(parts)) {
        if (!groups.isEmpty() && part.left <= groups.last().right)
            unite(groups.last(), part);
        else
            groups.append(part);
    }
    if (groups.size() == 1)
        groups.first().path = path; // one record instead of two
    return groups;
}

/// QPainterPath caches a converted form inside its shared data when it is first filled. Filling it here, before the
/// path is shared, means that threads that fill it later only read.
void prepareForThreads(const MvTextOutlineImpl &outline)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(2.0 - outline.bounds.left(), 2.0 - outline.bounds.top());
    painter.fillPath(outline.path, Qt::black);
    for (const Group &group : outline.groups)
        painter.fillPath(group.path, Qt::black);
}
} // namespace

MvTextOutline::MvTextOutline()
    : d(new MvTextOutlineImpl)
{}

MvTextOutline::MvTextOutline(const QFont &font, const QString &text)
    : d(new MvTextOutlineImpl)
{
    const double advance = QFontMetricsF(font).horizontalAdvance(text);
    const MvGlyphLine line(font, text);
    *this = MvTextOutline(font, text, line.path(), advance);
    d->glyphs = line.glyphs();
    d->pictures = line.pictures();
    for (const Picture &picture : line.pictures())
        d->bounds |= picture.rect;
}

MvTextOutline::MvTextOutline(const QFont &font, const QString &text, const QPainterPath &path, double advance)
    : d(new MvTextOutlineImpl)
{
    d->font = font;
    d->text = text;
    d->path = path;
    d->path.setFillRule(Qt::WindingFill);
    d->bounds = path.controlPointRect();
    d->advance = advance;
    if (path.isEmpty())
        return;
    d->groups = groupsOf(d->path);
    prepareForThreads(*d.constData());
}

MvTextOutline::MvTextOutline(const MvTextOutline &) = default;
MvTextOutline &MvTextOutline::operator=(const MvTextOutline &) = default;
MvTextOutline::MvTextOutline(MvTextOutline &&) noexcept = default;
MvTextOutline &MvTextOutline::operator=(MvTextOutline &&) noexcept = default;
MvTextOutline::~MvTextOutline() = default;

bool MvTextOutline::isEmpty() const
{
    return d->groups.isEmpty() && d->pictures.isEmpty();
}

QFont MvTextOutline::font() const
{
    return d->font;
}

QString MvTextOutline::text() const
{
    return d->text;
}

const QPainterPath &MvTextOutline::path() const
{
    return d->path;
}

const QList<MvTextOutline::Glyph> &MvTextOutline::glyphs() const
{
    return d->glyphs;
}

const QList<MvTextOutline::Picture> &MvTextOutline::pictures() const
{
    return d->pictures;
}

QRectF MvTextOutline::bounds() const
{
    return d->bounds;
}

double MvTextOutline::advance() const
{
    return d->advance;
}

int MvTextOutline::elementCount() const
{
    return d->path.elementCount();
}

const QList<MvTextOutline::Group> &MvTextOutline::groups() const
{
    return d->groups;
}

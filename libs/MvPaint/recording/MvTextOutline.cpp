// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvTextOutline.h"

#include "MvCore/MvSharedData.h"
#include "MvPaint/MvGlyphLine.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <mutex>
#include <vector>

struct MvTextOutlineImpl : MvSharedData
{
    QFont font;
    QString text;
    QPainterPath path;
    QRectF bounds;
    double advance = 0.0;
    QList<MvTextOutline::Glyph> glyphs;
    QList<MvTextOutline::Picture> pictures;

    mutable std::once_flag isForRaster;
    mutable QList<MvTextOutline::Group> groups; // when it is
};

namespace {
using Group = MvTextOutline::Group;

/// A closed line of a path: its elements from the first to before the end, and its room.
struct Contour
{
    int first, end;
    double left, right, top, bottom;
};

std::vector<Contour> contoursOf(const QPainterPath &path)
{
    std::vector<Contour> contours;
    const int count = path.elementCount();
    for (int i = 0; i < count; ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            contours.push_back({i, i + 1, element.x, element.x, element.y, element.y});
            continue;
        }
        Contour &contour = contours.back();
        contour.end = i + 1;
        contour.left = std::min(contour.left, element.x);
        contour.right = std::max(contour.right, element.x);
        contour.top = std::min(contour.top, element.y);
        contour.bottom = std::max(contour.bottom, element.y);
    }
    return contours;
}

void append(QPainterPath &part, const QPainterPath &path, const Contour &contour)
{
    for (int i = contour.first; i < contour.end; ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            part.moveTo(element);
        } else if (element.isLineTo()) {
            part.lineTo(element);
        } else {
            part.cubicTo(element, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        }
    }
}

QList<Group> contoursAsParts(const QPainterPath &path)
{
    QList<Group> parts;
    for (const Contour &contour : contoursOf(path)) {
        Group part{{}, contour.left, contour.right, contour.top, contour.bottom};
        part.path.setFillRule(Qt::WindingFill);
        append(part.path, path, contour);
        parts.append(part);
    }
    return parts;
}

/// The glyph where it stands, as a path of its own: filling a path changes it, and the glyph's is that of many texts.
Group placed(const MvTextOutline::Glyph &glyph)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addPath(glyph.path);
    path.translate(glyph.origin);
    const QRectF bounds = path.controlPointRect();
    return {path, bounds.left(), bounds.right(), bounds.top(), bounds.bottom()};
}

QList<Group> glyphsAsParts(const QList<MvTextOutline::Glyph> &glyphs)
{
    QList<Group> parts;
    for (const MvTextOutline::Glyph &glyph : glyphs) {
        if (!glyph.path.isEmpty())
            parts.append(placed(glyph));
    }
    return parts;
}

/// Joins the parts that share an x.
QList<Group> groupsOf(QList<Group> parts)
{
    std::stable_sort(parts.begin(), parts.end(), [](const Group &a, const Group &b) { return a.left < b.left; });
    QList<Group> groups;
    for (const Group &part : std::as_const(parts)) {
        if (groups.isEmpty() || groups.constLast().right < part.left) {
            groups.append(part);
            continue;
        }
        Group &group = groups.last();
        group.path.addPath(part.path);
        group.right = std::max(group.right, part.right);
        group.top = std::min(group.top, part.top);
        group.bottom = std::max(group.bottom, part.bottom);
    }
    return groups;
}

/// QPainterPath caches a converted form inside its shared data when it is first filled. Filling it here, before others
/// may fill it, means that threads that do so later only read.
void prepareForThreads(const MvTextOutlineImpl &outline)
{
    thread_local QImage image(1, 1, QImage::Format_ARGB32_Premultiplied); // making it takes as long as a short text
    QPainter painter(&image);
    painter.translate(2.0 - outline.bounds.left(), 2.0 - outline.bounds.top());
    painter.fillPath(outline.path, Qt::black);
    for (const Group &group : outline.groups)
        painter.fillPath(group.path, Qt::black);
}

void makeForRaster(const MvTextOutlineImpl &outline)
{
    if (outline.path.isEmpty())
        return;
    const QList<Group> parts = glyphsAsParts(outline.glyphs);
    outline.groups = groupsOf(parts.isEmpty() ? contoursAsParts(outline.path) : parts);
    if (outline.groups.size() == 1)
        outline.groups.first().path = outline.path; // one record instead of two
    prepareForThreads(outline);
}

void setPath(MvTextOutlineImpl &outline, const QPainterPath &path)
{
    if (path.isEmpty())
        return; // not even its start: QPainterPath changes that when it is asked whether it is empty
    outline.path = path;
    outline.path.setFillRule(Qt::WindingFill);
    outline.bounds = path.controlPointRect();
}
} // namespace

MvTextOutline::MvTextOutline()
    : d(new MvTextOutlineImpl)
{}

MvTextOutline::MvTextOutline(const QFont &font, const QString &text)
    : d(new MvTextOutlineImpl)
{
    d->font = font;
    d->text = text;
    d->advance = MvTextOutlineCache::instance().advance(font, text); // mostly asked for before
    const MvGlyphLine line(font, text);
    setPath(*d, line.path());
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
    d->advance = advance;
    setPath(*d, path);
}

MvTextOutline::MvTextOutline(const MvTextOutline &) = default;
MvTextOutline &MvTextOutline::operator=(const MvTextOutline &) = default;
MvTextOutline::MvTextOutline(MvTextOutline &&) noexcept = default;
MvTextOutline &MvTextOutline::operator=(MvTextOutline &&) noexcept = default;
MvTextOutline::~MvTextOutline() = default;

bool MvTextOutline::isEmpty() const
{
    return d->path.isEmpty() && d->pictures.isEmpty();
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

const QPainterPath &MvTextOutline::pathForRaster() const
{
    groups();
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
    std::call_once(d->isForRaster, [this] { makeForRaster(*d); });
    return d->groups;
}

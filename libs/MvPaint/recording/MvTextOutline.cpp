// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvTextOutline.h"

#include "MvCore/MvSharedData.h"
#include "MvPaint/MvGlyphLine.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <vector>

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

using Contours = std::vector<Contour>::const_iterator;

Group groupOf(const QPainterPath &path, Contours first, Contours end)
{
    Group group{{}, first->left, first->right, first->top, first->bottom};
    int elements = 0;
    for (Contours contour = first; contour != end; ++contour) {
        elements += contour->end - contour->first;
        group.right = std::max(group.right, contour->right);
        group.top = std::min(group.top, contour->top);
        group.bottom = std::max(group.bottom, contour->bottom);
    }
    group.path.setFillRule(Qt::WindingFill);
    group.path.reserve(elements);
    for (Contours contour = first; contour != end; ++contour)
        append(group.path, path, *contour);
    return group;
}

QList<Group> groupsOf(const QPainterPath &path)
{
    std::vector<Contour> contours = contoursOf(path);
    std::stable_sort(contours.begin(), contours.end(),
                     [](const Contour &a, const Contour &b) { return a.left < b.left; });
    QList<Group> groups;
    for (Contours first = contours.cbegin(); first != contours.cend();) {
        double right = first->right;
        Contours end = first + 1;
        for (; end != contours.cend() && end->left <= right; ++end)
            right = std::max(right, end->right);
        groups.append(groupOf(path, first, end));
        first = end;
    }
    if (groups.size() == 1)
        groups.first().path = path; // one record instead of two
    return groups;
}

/// QPainterPath caches a converted form inside its shared data when it is first filled. Filling it here, before the
/// path is shared, means that threads that fill it later only read.
void prepareForThreads(const MvTextOutlineImpl &outline)
{
    thread_local QImage image(1, 1, QImage::Format_ARGB32_Premultiplied); // making it takes as long as a short text
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
    const double advance = MvTextOutlineCache::instance().advance(font, text); // mostly asked for before
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

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvGlyphOutlines.h"

#include "MvModelBase/MvFontSupply.h"

#include <QRawFont>

#include <algorithm>
#include <cmath>

namespace {

/// Of the font's size: by how much the same outline may differ when the text engine rounds it. A face that it makes
/// oblique, bold or wide itself differs by far more.
constexpr double rounding = 1.0 / 250.0;

bool isSame(const QRectF &one, const QRectF &other, double em)
{
    return std::max({std::abs(one.left() - other.left()), std::abs(one.right() - other.right()),
                     std::abs(one.top() - other.top()), std::abs(one.bottom() - other.bottom())}) <= rounding * em;
}

} // namespace

MvGlyphOutlines &MvGlyphOutlines::instance()
{
    static MvGlyphOutlines outlines;
    return outlines;
}

int MvGlyphOutlines::faceOf(const QRawFont &font)
{
    const Face face{font.familyName(), font.styleName(), font.weight(), font.style()};
    const QMutexLocker lock(&m_mutex);
    const auto found = m_faces.constFind(face);
    return found != m_faces.cend() ? *found : *m_faces.insert(face, ++m_lastFace);
}

QPainterPath MvGlyphOutlines::outline(int face, const QRawFont &font, quint32 index)
{
    const Key key{face, font.pixelSize(), index};
    {
        const QMutexLocker lock(&m_mutex);
        if (const QPainterPath *known = m_outlines.object(key))
            return *known;
    }
    QPainterPath fresh = drawn(face, font, index);
    if (fresh.isEmpty())
        fresh = {}; // without a start: QPainterPath changes one when it is asked whether it is empty
    else
        fresh.setFillRule(Qt::WindingFill);
    const QMutexLocker lock(&m_mutex);
    m_outlines.insert(key, new QPainterPath(fresh), entryCost + fresh.elementCount());
    return fresh;
}

QPainterPath MvGlyphOutlines::drawn(int face, const QRawFont &font, quint32 index)
{
    std::optional<Drawing> drawing = known(face);
    if (!drawing) {
        const QByteArray file = MvFontSupply::fileOf(font); // which locks, too
        const QMutexLocker lock(&m_mutex);
        if (file.isEmpty())
            return compared(face, font, index);
        drawing = m_drawings[face] = std::make_shared<MvFontDrawing>(file);
    }
    return *drawing ? (*drawing)->glyph(index, font.pixelSize()) : font.pathForGlyph(index);
}

std::optional<MvGlyphOutlines::Drawing> MvGlyphOutlines::known(int face)
{
    const QMutexLocker lock(&m_mutex);
    const auto known = m_drawings.constFind(face);
    return known != m_drawings.cend() ? std::optional(*known) : std::nullopt;
}

/// The first glyph of a face that is seen tells whether the font's own drawing is what the text engine shows.
QPainterPath MvGlyphOutlines::compared(int face, const QRawFont &font, quint32 index)
{
    const QPainterPath shown = font.pathForGlyph(index);
    if (shown.isEmpty())
        return shown;
    auto drawing = std::make_shared<MvFontDrawing>(font);
    const QPainterPath own = drawing->isThere() ? drawing->glyph(index, font.pixelSize()) : QPainterPath();
    const bool isShown = isSame(own.controlPointRect(), shown.controlPointRect(), font.pixelSize());
    m_drawings.insert(face, isShown ? Drawing(std::move(drawing)) : nullptr);
    return isShown ? own : shown;
}

void MvGlyphOutlines::forget()
{
    const QMutexLocker lock(&m_mutex);
    m_faces.clear();
    m_drawings.clear();
    m_outlines.clear();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPainterPath>

#include <memory>

class QByteArray;
class QRawFont;
struct hb_face_t;
struct hb_font_t;

/// How a font's glyphs are drawn, read from its tables: in any size the same shape. The text engine would take each
/// glyph through the font's instructions for the pixels of screens, which mean nothing on paper and take most of the
/// time of drawing it.
///
/// Immutable once made; any thread.
class MvFontDrawing
{
public:
    explicit MvFontDrawing(const QRawFont &font);
    /// The first font of a file.
    explicit MvFontDrawing(const QByteArray &file);

    /// False for a font without outlines of its own or with variable ones: only the text engine knows these.
    bool isThere() const { return m_font != nullptr; }

    /// From the glyph's origin, in the pixels of that size. Empty for a glyph that is blank or missing.
    QPainterPath glyph(quint32 index, double em) const;

private:
    struct Release
    {
        void operator()(hb_font_t *font) const;
    };

    void setFace(hb_face_t *face);

    std::unique_ptr<hb_font_t, Release> m_font;
    int m_unitsPerEm = 1000;
};

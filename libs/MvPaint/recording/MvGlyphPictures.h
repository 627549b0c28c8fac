// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QRectF>

class QFont;
class QRawFont;
class QString;

/// Glyphs that have no outline: emoji and other bitmaps. Any thread.
class MvGlyphPictures
{
public:
    struct Glyph
    {
        QImage image; // null: nothing is seen of it
        QRectF rect;  // in ems from the glyph's origin
    };

    /// Whether a text may need pictures: false where all of its glyphs have outlines for certain.
    static bool mayBeNeeded(const QFont &font, const QString &text);
    /// Whether the font has bitmaps alone.
    static bool hasNoOutlines(const QRawFont &font);
    /// Fine enough for print; painted once per font, glyph and size.
    static Glyph of(const QRawFont &font, quint32 index);
};

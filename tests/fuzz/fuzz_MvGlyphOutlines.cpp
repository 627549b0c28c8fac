// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvPaint/MvGlyphOutlines.h"

#include <QRawFont>

/// A font file: its glyphs have outlines of a size that can be painted, or none. The first one tells whether the font's
/// tables draw the others, so each of a few begins once.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr quint32 glyphs = 24;
    constexpr double farthest = 1e6;
    const QRawFont font(MvFuzz::bytes(data, size), 20.0, QFont::PreferNoHinting);
    if (!font.isValid())
        return 0;
    for (quint32 first = 0; first < glyphs; first += glyphs / 4) {
        MvGlyphOutlines::instance().forget();
        const int face = MvGlyphOutlines::instance().faceOf(font);
        for (quint32 i = 0; i < glyphs; ++i) {
            const QRectF bounds =
                MvGlyphOutlines::instance().outline(face, font, (first + i) % glyphs).controlPointRect();
            MvFuzz::check(QRectF(-farthest, -farthest, 2 * farthest, 2 * farthest).contains(bounds) || bounds.isEmpty(),
                          "an outline is near its origin");
        }
    }
    return 0;
}

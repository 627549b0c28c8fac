// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvTextOutline.h"

/// The glyphs of a text that have no outline: emoji and other bitmaps.
class MvGlyphPictures
{
public:
    /// With their places in a line whose baseline starts at (0, 0); the path gets the outlines of all others. Nothing
    /// is given, and the path is left alone, when all glyphs have outlines.
    ///
    /// A font of bitmaps is never asked for outlines or for other sizes than its own: that spoils its measures of all
    /// texts that follow.
    static QList<MvTextOutline::Picture> of(const QFont &font, const QString &text, QPainterPath *path);
};

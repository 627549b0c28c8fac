#pragma once

#include "MvModelBase/MvTextOutline.h"

/// The glyphs of a text that have no outline: emoji and other bitmaps.
class MvGlyphPictures
{
public:
    /// With their places in a line whose baseline starts at (0, 0). Looks only at texts that may have any: those with
    /// characters of the planes where emoji are, or `hasNoOutline`.
    static QList<MvTextOutline::Picture> of(const QFont &font, const QString &text, bool hasNoOutline);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/mvpaint_export.h"

#include <QFont>
#include <QString>

/// Which characters can be shown at all: in a font or in one that steps in for it.
class MVPAINT_EXPORT MvGlyphCoverage
{
public:
    /// The characters of the text that no font has, each once and in their order. Blanks, marks and what is never seen
    /// do not count. What was looked up is kept until the fonts change. Safe to use from several threads.
    static QString missingCharacters(const QFont &font, const QString &text);
};

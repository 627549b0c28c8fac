// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFont>

/// The font of boxes that tests measure with: half an em per character, ascent 0.8 em, descent 0.2 em, no line gap.
/// A box is 0.35 em wide (bold: 0.45 em), in the middle of its character, from the baseline up to 0.7 em.
class MvBoxFont
{
public:
    /// The family to put into schemata and appearances: "MvBox". Registers the font.
    static QString family();

    /// Regular or bold, unhinted.
    static QFont font(int pixelSize, bool bold = false);
};

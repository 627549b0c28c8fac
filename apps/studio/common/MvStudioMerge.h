// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Edits that follow each other quickly, as while a spin box is held down, become one undo step; one number for each
/// kind of them.
class MvStudioMerge
{
public:
    enum Kind : int {
        FotoFocus = 1,
        MonthCount,
        PageFormat,
        StartDate,
        Colors,
        Fonts,
        ColumnHeaders,
        FotoZoom,
        FotoStraightening,
        FotoBorder,
        FotoCaption,
        Text,
        TextLook,
        ElementMove,
        FotoBrightness,
        FotoContrast,
    };
};

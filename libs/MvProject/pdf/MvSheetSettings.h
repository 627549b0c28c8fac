// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSizeF>

/// How the pages of a PDF are laid on the sheets of a printer at home. At first each page is a sheet of its own.
struct MvSheetSettings
{
    enum class Kind {
        Pages,   ///< as they are
        Tiles,   ///< each page on several sheets that are glued together
        Several, ///< several pages on a sheet
    };

    Kind kind = Kind::Pages;
    QSizeF paper = {2100.0, 2970.0}; ///< tenths of a millimetre; turned as it fits better
    double margin = 50.0;            ///< what the printer leaves white at each edge
    double overlap = 100.0;          ///< of neighbouring tiles
    int perSheet = 2;
    /// Of several pages: in the order in which the cut stacks, laid on each other, are the calendar, and with marks.
    bool isForCutting = false;
    /// Cut pages have the next one on their back.
    bool isTwoSided = false;

    bool areSheets() const { return kind != Kind::Pages; }
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTransform>

class MvPdfContent;
class MvPdfFile;
class MvPdfFonts;
class MvPressSheet;
class MvTextOutline;

/// Writes what stands on a sheet beside the page: marks in registration colour, which every plate has, and the line
/// about the page in black.
class MvPdfMarks
{
public:
    /// The transform leads from the sheet's coordinates to the units of the content.
    static void paint(MvPdfContent &content, const MvPressSheet &sheet, const QTransform &toUnits, MvPdfFile &file);
    static void paintSlug(MvPdfContent &content, const MvPressSheet &sheet, const MvTextOutline &slug,
                          const QTransform &toUnits, MvPdfFonts &fonts);
};

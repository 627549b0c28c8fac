// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/MvPressSettings.h"
#include "MvProject/MvSheetSettings.h"
#include "MvProject/mvproject_export.h"

class MvExportObserver;
class MvPageSource;

/// Writes pages as one PDF: vectors, sRGB, exact MediaBox, BleedBox and TrimBox.
///
/// For a press: its inks, PDF/X-4, and sheets with marks; a page without a bleed gets one. For a printer at home: tiles
/// of large pages, or several pages on a sheet (MvSheetPlan); not for both.
class MVPROJECT_EXPORT MvPdfExporter
{
public:
    /// Dots per inch that the painter reports; images are scaled for it.
    static constexpr int resolution = 300;

    /// Pages are painted one after the other into a temporary file, so that memory does not grow with what has been
    /// painted, and the finished file takes the target's name at the end. Painting happens in the thread that calls,
    /// what is done with the painted page in another one, unless `jobs` is 1.
    static MvExportResult write(const MvPageSource &source, const QFileInfo &target,
                                MvExportObserver *observer = nullptr, int jobs = 0, const MvPressSettings &press = {},
                                const MvSheetSettings &sheets = {});
};

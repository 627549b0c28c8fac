// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/mvproject_export.h"

class MvExportObserver;
class MvPageSource;

/// Writes each page as a PNG of the trimmed page, sRGB, with its resolution in the file.
class MVPROJECT_EXPORT MvPngExporter
{
public:
    static constexpr int minimumDpi = 10;
    static constexpr int maximumDpi = 1200;

    /// File names by MvFileNamePattern. Dots per inch outside the limits, and pages of more than 32000 pixels per side,
    /// are errors. The first page that cannot be written ends the export.
    static MvExportResult write(const MvPageSource &source, const QString &pattern, int dpi,
                                MvExportObserver *observer = nullptr);
};

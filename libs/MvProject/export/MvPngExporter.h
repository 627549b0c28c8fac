// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/mvproject_export.h"

#include <QSize>

class MvExportObserver;
class MvPageFormat;
class MvPageSource;

/// Writes each page as a PNG of the trimmed page, sRGB, with its resolution in the file.
class MVPROJECT_EXPORT MvPngExporter
{
public:
    static constexpr int minimumDpi = 10;
    static constexpr int maximumDpi = 1200;

    static constexpr int maximumPixels = 32000; // per side

    /// The size of the trimmed page.
    static QSize pixelSize(const MvPageFormat &format, int dpi);
    /// Whether resolution and size in pixels lie within the limits.
    static MvOutcome checkSize(const MvPageFormat &format, int dpi);

    /// File names by MvFileNamePattern. A size that checkSize() refuses is an error. The first page that cannot be
    /// written ends the export.
    static MvExportResult write(const MvPageSource &source, const QString &pattern, int dpi,
                                MvExportObserver *observer = nullptr);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/mvproject_export.h"

#include <QSize>
#include <QStringList>

class MvExportObserver;
class MvPageFormat;
class MvPageSource;

/// Writes each page as a picture of the trimmed page, sRGB, with its resolution in the file: PNG, JPEG or TIFF.
class MVPROJECT_EXPORT MvPictureExporter
{
public:
    static constexpr int minimumDpi = 10;
    static constexpr int maximumDpi = 1200;

    static constexpr int maximumPixels = 32000; // per side

    /// The endings of the files that it writes, in lower case: png, jpg, jpeg, tif, tiff.
    static QStringList suffixes();

    /// The size of the trimmed page.
    static QSize pixelSize(const MvPageFormat &format, int dpi);
    /// Whether resolution and size in pixels lie within the limits.
    static MvOutcome checkSize(const MvPageFormat &format, int dpi);

    /// File names by MvFileNamePattern; the ending says which kind of picture, PNG if it is none of suffixes(). A size
    /// that checkSize() refuses is an error. The first page that cannot be written ends the export. So many pages are
    /// made at a time as `jobs` says, 0 for what suits the computer; the files are the same.
    static MvExportResult write(const MvPageSource &source, const QString &pattern, int dpi,
                                MvExportObserver *observer = nullptr, int jobs = 0);
};

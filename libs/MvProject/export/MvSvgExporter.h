// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/mvproject_export.h"

class MvExportObserver;
class MvPageSource;

/// Writes each page as an SVG of the trimmed page, measured in millimetres.
class MVPROJECT_EXPORT MvSvgExporter
{
public:
    /// File names by MvFileNamePattern. The first page that cannot be written ends the export. So many pages are made
    /// at a time as `jobs` says, 0 for what suits the computer.
    static MvExportResult write(const MvPageSource &source, const QString &pattern,
                                MvExportObserver *observer = nullptr, int jobs = 0);
};

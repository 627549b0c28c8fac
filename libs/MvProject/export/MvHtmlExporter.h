// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>

class MvExportObserver;
class MvPageSource;

/// Writes pages as one HTML document to be read on a screen or aloud: each page a section, each month a table with its
/// weekdays and weeks as headings, dates as times, in the calendar's colours and language. Photos and places on paper
/// are not part of it. The document needs no other file.
class MVPROJECT_EXPORT MvHtmlExporter
{
public:
    /// The source must have content(). Same input, same bytes.
    static MvExportResult write(const MvPageSource &source, const QFileInfo &target,
                                MvExportObserver *observer = nullptr);
    static QByteArray document(const MvPageSource &source, MvExportObserver *observer = nullptr);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvExportResult.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

class MvExportObserver;

/// Makes a file of each page, as fast as the processors allow: the calling thread records the pages one after the other
/// and writes the files in the order of the pages; between the two, threads turn recordings into bytes. As
/// many pages as there are threads are in memory, and the one that is being recorded.
class MvPageFiles
{
public:
    struct Content
    {
        QByteArray bytes;
        QString error; // a sentence; empty when there are bytes
    };
    /// In the calling thread.
    using Record = std::function<MvPaintRecording(int page)>;
    /// In any thread, several at a time.
    using Encode = std::function<Content(const MvPaintRecording &recording)>;

    /// One thread per processor, but no more than memory likes.
    static int defaultJobs();

    /// As many pages at a time as `jobs` says; 1 is the calling thread alone, 0 stands for defaultJobs(). The first
    /// page that cannot be written ends it. The observer, if any, is not owned.
    static MvExportResult write(const QStringList &paths, int jobs, const Record &record, const Encode &encode,
                                MvExportObserver *observer);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageContent.h"

#include <QHash>

#include <condition_variable>
#include <functional>
#include <mutex>

/// Hands pages from the thread that makes them to the one that exports, and carries progress and the wish to
/// cancel between them. Any thread.
class MvExportFeed : public MvExportObserver
{
public:
    /// One of the two, as the file that is written needs it.
    struct Page
    {
        MvPaintRecording recording; ///< of what is printed above ground and photos
        MvPageContent content;      ///< what there is to read
    };

    /// The function is called in the thread that exports.
    explicit MvExportFeed(const std::function<void(int done, int total)> &progress)
        : m_progress(progress)
    {}

    void put(int number, const Page &page);
    /// Waits for the page and gives it away; an empty one once cancelled.
    Page take(int number);
    void cancel();

    void pagesDone(int done, int total) override { m_progress(done, total); }
    bool isCancelled() const override;

private:
    std::function<void(int, int)> m_progress;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<int, Page> m_pages;
    bool m_isCancelled = false;
};

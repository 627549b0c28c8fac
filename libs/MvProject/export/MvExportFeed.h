// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvExportObserver.h"

#include <QHash>

#include <condition_variable>
#include <functional>
#include <mutex>

/// Hands recorded pages from the thread that records to the one that exports, and carries progress and the wish to
/// cancel between them. Any thread.
class MvExportFeed : public MvExportObserver
{
public:
    /// The function is called in the thread that exports.
    explicit MvExportFeed(const std::function<void(int done, int total)> &progress)
        : m_progress(progress)
    {}

    void put(int page, const MvPaintRecording &recording);
    /// Waits for the page and gives it away; an empty recording once cancelled.
    MvPaintRecording take(int page);
    void cancel();

    void pagesDone(int done, int total) override { m_progress(done, total); }
    bool isCancelled() const override;

private:
    std::function<void(int, int)> m_progress;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<int, MvPaintRecording> m_recordings;
    bool m_isCancelled = false;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvExportFeed.h"

void MvExportFeed::put(int page, const MvPaintRecording &recording)
{
    const std::lock_guard lock(m_mutex);
    m_recordings.insert(page, recording);
    m_changed.notify_all();
}

MvPaintRecording MvExportFeed::take(int page)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return m_isCancelled || m_recordings.contains(page); });
    return m_isCancelled ? MvPaintRecording() : m_recordings.take(page);
}

void MvExportFeed::cancel()
{
    const std::lock_guard lock(m_mutex);
    m_isCancelled = true;
    m_changed.notify_all();
}

bool MvExportFeed::isCancelled() const
{
    const std::lock_guard lock(m_mutex);
    return m_isCancelled;
}

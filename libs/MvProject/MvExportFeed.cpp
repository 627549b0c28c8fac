#include "MvProject/MvExportFeed.h"

#include <QMutexLocker>

void MvExportFeed::put(int page, const MvPaintRecording &recording)
{
    const QMutexLocker lock(&m_mutex);
    m_recordings.insert(page, recording);
    m_changed.wakeAll();
}

MvPaintRecording MvExportFeed::take(int page)
{
    const QMutexLocker lock(&m_mutex);
    while (!m_isCancelled && !m_recordings.contains(page))
        m_changed.wait(&m_mutex);
    return m_isCancelled ? MvPaintRecording() : m_recordings.take(page);
}

void MvExportFeed::cancel()
{
    const QMutexLocker lock(&m_mutex);
    m_isCancelled = true;
    m_changed.wakeAll();
}

bool MvExportFeed::isCancelled() const
{
    const QMutexLocker lock(&m_mutex);
    return m_isCancelled;
}

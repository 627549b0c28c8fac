// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvExportFeed.h"

void MvExportFeed::put(int number, const Page &page)
{
    const std::lock_guard lock(m_mutex);
    m_pages.insert(number, page);
    m_changed.notify_all();
}

MvExportFeed::Page MvExportFeed::take(int number)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return m_isCancelled || m_pages.contains(number); });
    return m_isCancelled ? Page() : m_pages.take(number);
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

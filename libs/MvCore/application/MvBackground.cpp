// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvBackground.h"

#include <QThreadPool>

#include <system_error>
#include <thread>

void MvBackground::start(QThreadPool &pool, const std::function<void()> &work)
{
    // a pool whose threads are all at work has some: it takes this up in its turn
    if (pool.activeThreadCount() >= pool.maxThreadCount() || hasThread())
        pool.start(work);
    else
        work();
}

bool MvBackground::hasThread()
{
    try {
        std::thread([] {}).join();
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}

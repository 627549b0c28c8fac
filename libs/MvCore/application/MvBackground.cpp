// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvBackground.h"

#include <QMutex>
#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>
#include <memory>
#include <system_error>
#include <thread>

namespace {

constexpr int forEver = -1;

} // namespace

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

bool MvBackground::keepThreads()
{
    static QMutex mutex; // exports may begin beside each other
    const QMutexLocker locker(&mutex);
    QThreadPool &pool = *QThreadPool::globalInstance();
    if (pool.expiryTimeout() == forEver)
        return true;
    const int wanted = std::max(pool.maxThreadCount(), 1);
    const auto gate = std::make_shared<QSemaphore>(); // each stays in its thread until all have one
    int begun = 0;
    for (; begun < wanted && hasThread(); ++begun)
        pool.start([gate] { gate->acquire(); });
    gate->release(begun);
    if (begun == 0)
        return false;
    if (begun < wanted)
        pool.setMaxThreadCount(begun); // what comes beside them waits for one of these
    pool.setExpiryTimeout(forEver);
    return true;
}

QString MvBackground::noThreads()
{
    return tr("das Betriebssystem gibt dem Programm keinen Thread, um Seiten zu malen; die Grenze für Prozesse oder "
              "Speicher ist erreicht");
}

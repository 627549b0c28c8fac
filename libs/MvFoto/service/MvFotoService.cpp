// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoService.h"

#include "MvCore/MvBackground.h"
#include "MvFoto/MvImageLoader.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>
#include <QThread>

#include <algorithm>

template class MvSingleton<MvFotoService>;

namespace {

constexpr int mostThreads = 3; // more would only compete for memory

int usualThreads()
{
    return std::clamp(QThread::idealThreadCount() - 1, 1, mostThreads); // the window keeps a core
}

MvImageCache::Key keyFor(const MvFotoOrder &order)
{
    const MvFotoStamp stamp = order.stamp.value_or(MvFotoStamp());
    return {order.path, stamp.changed, stamp.bytes, order.size, int(order.fit)};
}

QImage decode(const MvFotoOrder &order, const QSize &full)
{
    // kept here, and not a second time by the loader, whose room is for photos in print size
    MvImageLoader &loader = MvImageLoader::instance();
    const QFileInfo file(order.path);
    switch (order.fit) {
    case MvFotoOrder::Fit::Within:
        break;
    case MvFotoOrder::Fit::WithinOwnSize:
        return loader.loadUncached(file, full.scaled(order.size, Qt::KeepAspectRatio).boundedTo(full));
    case MvFotoOrder::Fit::Covering: {
        const QImage image = loader.loadUncached(file, full.scaled(order.size, Qt::KeepAspectRatioByExpanding));
        QRect middle(QPoint(), order.size);
        middle.moveCenter(image.rect().center());
        return image.isNull() ? image : image.copy(middle & image.rect());
    }
    }
    return loader.loadUncached(file, order.size);
}

} // namespace

MvFotoService::MvFotoService(int threads, qint64 byteLimit)
    : m_cache(byteLimit)
{
    m_pool.setMaxThreadCount(threads > 0 ? threads : usualThreads());
}

MvFotoService::~MvFotoService()
{
    stop();
}

void MvFotoService::setupInstance()
{
    qAddPostRoutine([] { instance().stop(); }); // threads must not outlive the application's object
}

void MvFotoService::stop()
{
    m_jobs.clear();
    m_pool.waitForDone();
}

MvFotoRequest MvFotoService::request(const MvFotoOrder &order, Urgency urgency)
{
    std::shared_ptr<State> state = m_requests.value(order).lock();
    if (state) {
        if (!state->isStarted && state->urgency < int(urgency))
            enqueueRequest(state, urgency);
        return MvFotoRequest(state);
    }
    forgetUnwanted();
    state = std::make_shared<State>(State{order});
    m_requests.insert(order, state);
    const std::optional<QImage> kept = order.stamp ? m_cache.kept(keyFor(order)) : std::nullopt;
    if (kept) {
        state->image = *kept;
        state->isStarted = state->isDone = true;
    } else {
        enqueueRequest(state, urgency);
    }
    return MvFotoRequest(state);
}

void MvFotoService::forgetUnwanted()
{
    if (m_requests.size() < m_requestsToLookThrough)
        return;
    m_requests.removeIf([](const auto &request) { return request.value().expired(); });
    m_requestsToLookThrough = 2 * m_requests.size() + 64;
}

QImage MvFotoService::otherSize(const MvFotoOrder &order)
{
    QImage best = m_cache.otherSize(keyFor(order));
    for (const std::weak_ptr<State> &request : std::as_const(m_requests)) {
        const std::shared_ptr<State> state = request.lock();
        if (!state || state->image.width() <= best.width())
            continue;
        MvFotoOrder same = state->order;
        same.size = order.size;
        if (same == order)
            best = state->image;
    }
    return best;
}

void MvFotoService::enqueueRequest(const std::shared_ptr<State> &state, Urgency urgency)
{
    state->urgency = int(urgency);
    const std::weak_ptr<State> wanted = state; // dropping the requests gives it up
    const auto start = [wanted] {
        const std::shared_ptr<State> present = wanted.lock();
        return present && !std::exchange(present->isStarted, true);
    };
    const auto work = [this, wanted, order = state->order]() -> Use {
        MvFotoOrder found = order;
        found.stamp = MvFotoStamp::of(order.path); // before: what changes while it is read is read again
        const bool needsFullSize = order.fit != MvFotoOrder::Fit::Within;
        const QSize full = needsFullSize ? MvImageLoader::instance().size(QFileInfo(order.path)) : QSize();
        const QImage image = m_cache.image(keyFor(found), [&] { return decode(found, full); });
        return [this, wanted, order, found, full, image] {
            const std::shared_ptr<State> present = wanted.lock();
            if (!present)
                return;
            present->order = found;
            present->fullSize = full;
            present->image = image;
            present->isDone = true;
            if (!(found == order)) { // whoever asks like this again means the file as it is by then
                m_requests.remove(order);
                m_requests.insert(found, wanted);
            }
            Q_EMIT arrived(order);
        };
    };
    enqueue(urgency, {start, work});
}

void MvFotoService::run(Urgency urgency, QObject *receiver, const Task &task)
{
    const QPointer<QObject> present(receiver);
    const auto work = [present, task]() -> Use {
        const Use use = task();
        return [present, use] {
            if (present && use)
                use();
        };
    };
    enqueue(urgency, {[present] { return !present.isNull(); }, work});
}

void MvFotoService::enqueue(Urgency urgency, const Job &job)
{
    ++m_number;
    const bool isLatestFirst = urgency == Urgency::Listed || urgency == Urgency::Seen;
    m_jobs.emplace(Rank(-int(urgency), isLatestFirst ? -m_number : m_number), job);
    startNext();
}

void MvFotoService::startNext()
{
    while (m_running < m_pool.maxThreadCount() && !m_jobs.empty()) {
        const Job job = m_jobs.extract(m_jobs.begin()).mapped();
        if (!job.start())
            continue;
        ++m_running;
        MvBackground::start(m_pool, [this, task = job.task] {
            const Use use = task();
            const auto finish = [this, use] {
                --m_running;
                startNext(); // before: what is called may take its time
                if (use)
                    use();
            };
            QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
        });
    }
}

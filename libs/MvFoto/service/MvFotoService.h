// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoRequest.h"
#include "MvFoto/MvImageCache.h"
#include "MvFoto/mvfoto_export.h"

#include "MvCore/MvSingleton.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <map>
#include <memory>
#include <utility>

class MvFotoService;
extern template class MVFOTO_EXPORT MvSingleton<MvFotoService>;

/// Decodes the photos of a program with windows, off the GUI thread. All that shows photos, or waits for one, asks here
/// and stays responsive; whoever may wait (an export's thread, the command line) decodes by MvFotoAccess or
/// MvDirectFotoSource.
///
/// There is one queue for everybody: what is more urgent comes first, however long the others wait, and a few threads,
/// fewer than the computer has, take from it. An order is worked off once, however many ask for it. Asking gives an
/// MvFotoRequest; giving up is dropping that: what nobody wants any more when its turn comes is passed over. (A
/// decoding that has begun is not interrupted.) Images stay in a cache bounded in bytes, beside those that requests
/// still hold.
///
/// Thin classes suit it to those who ask: MvFotoPages for pages that are painted anew when their photos are there,
/// MvFotoThumbnails for lists, MvFotoLoader for one photo and then.
///
/// All operations and signals belong to the GUI thread.
class MVFOTO_EXPORT MvFotoService : public QObject, public MvSingleton<MvFotoService>
{
    Q_OBJECT

public:
    enum class Urgency {
        Background, // nobody looks at it just now
        Listed,     // a small picture in a list; the latest first, since who scrolls has left the others
        Seen,       // on the page in sight; the latest first, since who turns pages has left the others
        Awaited,    // somebody has chosen this very photo and waits
    };

    /// What is called on the GUI thread in the end.
    using Use = std::function<void()>;
    /// Called in a thread of the service.
    using Task = std::function<Use()>;

    static constexpr qint64 cacheLimit = qint64(256) << 20; // bytes

    /// Without a number of threads, one fewer than the computer has, at most three.
    explicit MvFotoService(int threads = 0, qint64 byteLimit = cacheLimit);
    /// Waits for what is being worked on.
    ~MvFotoService() override;
    void setupInstance() override;

    /// The photo: done at once if it is at hand, else arrived() follows. An order that waits already becomes more
    /// urgent if need be, never less.
    MvFotoRequest request(const MvFotoOrder &order, Urgency urgency);
    /// The largest image at hand of the same file and fit in any size, to be shown meanwhile; else null.
    QImage otherSize(const MvFotoOrder &order);

    /// Other work on photos, such as copying one: the task gives what is to be called with its result. Neither is
    /// called when the receiver is gone by then.
    void run(Urgency urgency, QObject *receiver, const Task &task);

    /// Forgets what waits, and waits for what is being worked on. For the end of the program.
    void stop();

Q_SIGNALS:
    /// A request for this order is done now.
    void arrived(const MvFotoOrder &order);

private:
    using State = MvFotoRequest::State;
    struct Job
    {
        std::function<bool()> start; // false when nobody wants it any more
        Task task;
    };
    using Rank = std::pair<int, qint64>; // the smallest first

    void enqueue(Urgency urgency, const Job &job);
    void enqueueRequest(const std::shared_ptr<State> &state, Urgency urgency);
    void startNext();
    void forgetUnwanted();

    MvImageCache m_cache;
    QHash<MvFotoOrder, std::weak_ptr<State>> m_requests;
    qsizetype m_requestsToLookThrough = 64;
    std::map<Rank, Job> m_jobs;
    qint64 m_number = 0;
    int m_running = 0;
    QThreadPool m_pool;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
// What Qt promises its threads, told to the thread sanitizer. Qt's libraries are not built with it, so it does not see
// their locks and counters, and takes for a race whatever a task of a pool, a semaphore, a thread that ends or a posted
// call hands over. These calls stand before Qt's own, call those, and say which thread has seen what of which. Left out
// of the search is what Qt does to its own lists between the tasks of a thread and while it posts a call; whatever of
// ours is called there is searched again. Linked into every program of the tests.
#include <QMetaObject>
#include <QRunnable>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <dlfcn.h>
#include <functional>
#include <sanitizer/tsan_interface.h>
#include <utility>

extern "C" {
void __tsan_ignore_thread_begin();
void __tsan_ignore_thread_end();
Q_DECL_EXPORT void mvDestroyThreadPool(QThreadPool *pool) __asm__("_ZN11QThreadPoolD1Ev");
}

namespace {

/// Whether a thread is among Qt's own matters. Has left them when it ends.
class Whereabouts
{
public:
    ~Whereabouts() { setInQt(false); }

    /// Gives what it was before.
    bool setInQt(bool isInQt)
    {
        if (m_isInQt != isInQt)
            isInQt ? __tsan_ignore_thread_begin() : __tsan_ignore_thread_end();
        return std::exchange(m_isInQt, isInQt);
    }

private:
    bool m_isInQt = false;
};

thread_local Whereabouts whereabouts;

class Visit
{
public:
    explicit Visit(bool isInQt)
        : m_before(whereabouts.setInQt(isInQt))
    {}
    ~Visit() { whereabouts.setInQt(m_before); }
    Q_DISABLE_COPY_MOVE(Visit)

private:
    bool m_before;
};

template <typename Function>
Function original(const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

/// A task sees what its starter did, and who waits for the pool sees what its tasks did.
class Task : public QRunnable
{
public:
    Task(QThreadPool *pool, std::function<void()> work)
        : m_pool(pool)
        , m_work(std::move(work))
    {
        __tsan_release(this);
    }

    void run() override
    {
        whereabouts.setInQt(false);
        __tsan_acquire(this);
        m_work();
        m_work = nullptr;
        __tsan_release(m_pool);
        whereabouts.setInQt(true); // until the next one
    }

private:
    QThreadPool *m_pool;
    std::function<void()> m_work;
};

/// A call sees what its sender did, and whoever destroys it last sees what the call did.
class Call : public QtPrivate::QSlotObjectBase
{
public:
    explicit Call(QtPrivate::QSlotObjectBase *call)
        : QSlotObjectBase(&Call::operate)
        , m_call(call)
    {
        __tsan_release(this);
    }

private:
    static void operate(int operation, QSlotObjectBase *self, QObject *receiver, void **arguments, bool *)
    {
        const Visit visit(false);
        auto *call = static_cast<Call *>(self);
        __tsan_acquire(call);
        if (operation == QSlotObjectBase::Call) {
            call->m_call->call(receiver, arguments);
            __tsan_release(call);
        } else if (operation == Destroy) {
            call->m_call->destroyIfLastRef();
            delete call;
        }
    }

    QtPrivate::QSlotObjectBase *m_call;
};

} // namespace

void QThreadPool::start(std::function<void()> work, int priority)
{
    start(new Task(this, std::move(work)), priority);
}

bool QThreadPool::waitForDone(int milliseconds)
{
    static const auto wait = original<bool (*)(QThreadPool *, int)>("_ZN11QThreadPool11waitForDoneEi");
    const bool isDone = wait(this, milliseconds);
    __tsan_acquire(this);
    return isDone;
}

/// Its destructor, which waits for the tasks.
void mvDestroyThreadPool(QThreadPool *pool)
{
    static const auto destroy = original<void (*)(QThreadPool *)>("_ZN11QThreadPoolD1Ev");
    pool->waitForDone();
    destroy(pool);
}

/// Who waits for a thread sees what it did.
void QThread::start(Priority priority)
{
    static const auto start = original<void (*)(QThread *, Priority)>("_ZN7QThread5startENS_8PriorityE");
    QObject::connect(
        this, &QThread::finished, this, [this] { __tsan_release(this); },
        Qt::ConnectionType(Qt::DirectConnection | Qt::SingleShotConnection));
    start(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto wait = original<bool (*)(QThread *, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool isDone = wait(this, deadline);
    __tsan_acquire(this);
    return isDone;
}

void QSemaphore::acquire(int count)
{
    static const auto acquire = original<void (*)(QSemaphore *, int)>("_ZN10QSemaphore7acquireEi");
    acquire(this, count);
    __tsan_acquire(this);
}

void QSemaphore::release(int count)
{
    static const auto release = original<void (*)(QSemaphore *, int)>("_ZN10QSemaphore7releaseEi");
    __tsan_release(this);
    release(this, count);
}

bool QMetaObject::invokeMethodImpl(QObject *receiver, QtPrivate::QSlotObjectBase *call, Qt::ConnectionType type,
                                   void *result)
{
    using Invoke = bool (*)(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *);
    static const auto invoke = original<Invoke>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    auto *told = new ::Call(call);
    const Visit visit(true);
    return invoke(receiver, told, type, result);
}

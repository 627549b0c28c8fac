// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QRecursiveMutex>

#include <atomic>

/// One object of a class for the whole process: created on first use, set up once, never destroyed.
///
/// State that must exist once across all binaries needs one exported instantiation: the header of T declares, before
/// the class, `extern template class MVCALENDAR_EXPORT MvSingleton<T>;`, its source holds
/// `template class MvSingleton<T>;`.
template <class T>
class MvSingleton
{
public:
    MvSingleton(const MvSingleton &) = delete;
    MvSingleton &operator=(const MvSingleton &) = delete;

    /// The object. The creating thread may ask again while it constructs or sets the object up: it then gets the
    /// object as far as it is. Other threads wait until it is complete.
    static T &instance();

    /// Called once, right after construction, for what needs the object to be reachable through instance().
    virtual void setupInstance() {}

protected:
    MvSingleton() = default;
    virtual ~MvSingleton() = default;
};

template <class T>
T &MvSingleton<T>::instance()
{
    static std::atomic<T *> complete = nullptr;
    static QRecursiveMutex mutex;
    static T *unfinished = nullptr;

    if (T *object = complete.load(std::memory_order_acquire))
        return *object;
    QMutexLocker lock(&mutex);
    if (!unfinished) {
        unfinished = new T;
        unfinished->setupInstance();
        complete.store(unfinished, std::memory_order_release);
    }
    return *unfinished;
}

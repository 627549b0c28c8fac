// SPDX-License-Identifier: LGPL-2.1-or-later
// Races that the thread sanitizer must find in spite of all that it is told: planted_race RACE. "none" hands everything
// over as it should be and must be found clean.
#include <QCoreApplication>
#include <QThreadPool>

#include <atomic>
#include <cstring>
#include <memory>
#include <vector>

namespace {

int number = 0;
char bytes[64];
std::atomic<int> step = 0;

void waitForStep(int wanted)
{
    while (step.load(std::memory_order_relaxed) < wanted) // so that it surely happens, and orders nothing
        QThread::yieldCurrentThread();
}

void nextStep()
{
    step.fetch_add(1, std::memory_order_relaxed);
}

/// Two tasks, later ones of their threads, change one thing.
void inBoth(QThreadPool &pool, const std::function<void(int)> &change)
{
    for (int i = 0; i < 20; ++i)
        pool.start([] { QThread::usleep(100); });
    pool.waitForDone();
    for (int i = 0; i < 2; ++i) {
        pool.start([i, change] {
            waitForStep(i);
            change(i);
            nextStep();
            waitForStep(2);
        });
    }
    pool.waitForDone();
}

/// What a task wrote is read without waiting for the task.
int early(QThreadPool &pool)
{
    pool.start([] {
        number = 1;
        nextStep();
        waitForStep(2);
    });
    waitForStep(1);
    const int result = number;
    nextStep();
    pool.waitForDone();
    return result;
}

/// The starter changes what it has handed to a task.
int late(QThreadPool &pool)
{
    auto list = std::make_unique<std::vector<int>>(100, 1);
    pool.start([list = list.get()] {
        number = list->front();
        nextStep();
        waitForStep(2);
    });
    waitForStep(1);
    list.reset();
    nextStep();
    pool.waitForDone();
    return number;
}

/// A call that a task has posted changes what the task goes on changing.
void fromCall(QThreadPool &pool)
{
    QObject receiver;
    pool.start([&receiver] {
        QMetaObject::invokeMethod(&receiver, [] {
            number = 1;
            nextStep();
        });
        waitForStep(1);
        number = 2;
        nextStep();
    });
    while (step.load(std::memory_order_relaxed) < 2)
        QCoreApplication::processEvents();
    pool.waitForDone();
}

/// Many tasks, each with a call on the main thread, and a thread that is waited for.
int clean(QThreadPool &pool)
{
    QObject receiver;
    auto list = std::make_shared<std::vector<int>>(100, 1);
    for (int i = 0; i < 200; ++i) {
        pool.start([list, &receiver] {
            const int sum = list->front();
            QMetaObject::invokeMethod(&receiver, [sum, copy = std::vector<int>(10, sum)] { number += copy.back(); });
        });
    }
    list.reset();
    while (number < 200)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const std::unique_ptr<QThread> thread(QThread::create([] { ++number; }));
    thread->start();
    thread->wait();
    return number;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QByteArray race = argv[argc - 1];
    QThreadPool pool;
    pool.setMaxThreadCount(2);
    int result = 0;
    if (race == "none")
        result = clean(pool);
    else if (race == "number")
        inBoth(pool, [](int i) { number += i; });
    else if (race == "bytes")
        inBoth(pool, [](int i) { std::memset(bytes, i, 8 + size_t(i)); });
    else if (race == "result")
        result = early(pool);
    else if (race == "call")
        fromCall(pool);
    else if (race == "destruction")
        result = late(pool);
    qInfo("%d %d", result, int(bytes[0]));
    return 0;
}

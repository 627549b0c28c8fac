// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvBatchProcess.h"

#include <QEventLoop>
#include <QList>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

/// Has the tasks of a batch done by several workers, each taking the next one that is left.
///
/// A worker that dies is replaced. What it was at is tried once more in a new one, unless it was the first that the
/// worker did or took too long: so a calendar fails by itself alone, never by one before it.
class MvBatchPool : public QObject
{
    Q_OBJECT

public:
    /// Called for every task that has an end; false stops the work as a signal does.
    using Done = std::function<bool(const MvBatchResult &result)>;

    MvBatchPool(const MvBatchLimits &limits, int workers, const Done &done);

    /// Works until the tasks are done or somebody wants it to end (MvInterruption): then the pages under way are
    /// finished, and the tasks that nobody has begun have no result.
    void run(const QList<MvBatchWorker::Task> &tasks);
    bool isInterrupted() const { return m_isInterrupted; }

private:
    struct Slot
    {
        std::unique_ptr<MvBatchProcess> process;
        bool isSecondTry = false;
    };

    void begin(Slot &slot, const MvBatchWorker::Task &task, bool isSecondTry);
    void next(Slot &slot);
    void take(Slot &slot, const MvBatchResult &result, bool isDead);
    bool isWorthAnotherTry(const Slot &slot, const MvBatchResult &result, bool isDead) const;
    void replace(Slot &slot);
    void interrupt();

    const MvBatchLimits m_limits;
    const int m_workers;
    const Done m_done;
    std::vector<Slot> m_slots;
    QEventLoop m_loop;
    QList<MvBatchWorker::Task> m_tasks;
    qsizetype m_next = 0;
    int m_busy = 0;
    bool m_isInterrupted = false;
};

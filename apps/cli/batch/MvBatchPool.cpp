// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchPool.h"

#include "MvInterruption.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

MvBatchPool::MvBatchPool(const MvBatchLimits &limits, int workers, const Done &done)
    : m_limits(limits)
    , m_workers(workers)
    , m_done(done)
{}

void MvBatchPool::run(const QList<MvBatchWorker::Task> &tasks)
{
    m_tasks = tasks;
    m_next = 0;
    MvInterruption::watch(MvInterruption::Again::EndsTheProgram);
    const MvInterruption interruption;
    connect(&interruption, &MvInterruption::asked, this, &MvBatchPool::interrupt);
    m_isInterrupted = MvInterruption::isAsked();
    m_slots = std::vector<Slot>(size_t(qMin<qsizetype>(m_workers, tasks.size())));
    for (Slot &slot : m_slots) {
        replace(slot);
        next(slot);
    }
    if (m_busy > 0)
        m_loop.exec();
    for (const Slot &slot : m_slots)
        slot.process->dismiss();
    m_slots.clear();
}

void MvBatchPool::replace(Slot &slot)
{
    if (slot.process)
        slot.process.release()->deleteLater(); // it is its signal that we are in
    slot.process = std::make_unique<MvBatchProcess>(m_limits);
    connect(slot.process.get(), &MvBatchProcess::finished, this,
            [this, &slot](const MvBatchResult &result) { take(slot, result, false); });
    connect(slot.process.get(), &MvBatchProcess::died, this,
            [this, &slot](const MvBatchResult &result) { take(slot, result, true); });
}

void MvBatchPool::begin(Slot &slot, const MvBatchWorker::Task &task, bool isSecondTry)
{
    ++m_busy;
    slot.isSecondTry = isSecondTry;
    slot.process->perform(task);
}

void MvBatchPool::next(Slot &slot)
{
    if (!m_isInterrupted && m_next < m_tasks.size())
        begin(slot, m_tasks[m_next++], false);
}

void MvBatchPool::take(Slot &slot, const MvBatchResult &result, bool isDead)
{
    --m_busy;
    const MvBatchWorker::Task task = slot.process->task();
    const bool isAgain = isWorthAnotherTry(slot, result, isDead);
    const bool isLeft = isAgain || m_next < m_tasks.size();
    if ((isDead || isAgain) && isLeft && !m_isInterrupted)
        replace(slot);
    if (isAgain) {
        begin(slot, task, true);
        return;
    }
    MvBatchResult told = result;
    if (m_isInterrupted && isDead && result.state == MvBatchResult::State::Crashed)
        told.state = MvBatchResult::State::Interrupted; // by whoever sent the signal to all
    if (!m_done(told))
        interrupt();
    next(slot);
    if (m_busy == 0)
        m_loop.quit();
}

bool MvBatchPool::isWorthAnotherTry(const Slot &slot, const MvBatchResult &result, bool isDead) const
{
    if (m_isInterrupted || slot.isSecondTry)
        return false;
    if (result.state == MvBatchResult::State::Interrupted) // somebody ended the worker, not the batch
        return true;
    if (slot.process->isFresh())
        return false;
    if (isDead)
        return result.state == MvBatchResult::State::Crashed;
    // what an old worker keeps may be what is missing now
    const bool isPoor =
        result.state == MvBatchResult::State::Failed || !result.facts.value(u"missingPhotos"_s).toArray().isEmpty();
    return isPoor && result.facts.value(u"peakMemory"_s).toDouble() > 0.5 * m_limits.megabytes;
}

void MvBatchPool::interrupt()
{
    m_isInterrupted = true;
    for (Slot &slot : m_slots) {
        if (slot.process)
            slot.process->interrupt();
    }
}

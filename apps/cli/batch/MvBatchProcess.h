// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvBatchResult.h"
#include "MvBatchWorker.h"

#include <QCoreApplication>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

/// What one calendar of a batch may cost.
struct MvBatchLimits
{
    int seconds = 600;
    int megabytes = 4096; // of memory that the worker asks for itself; programs and files that it maps do not count
};

/// A worker (MvBatchWorker) as the batch sees it: begun with the object, given one task at a time, killed when a task
/// takes too long. It ends with the batch, however that ends. What it leaves in the folder of temporary files goes
/// with the object.
class MvBatchProcess : public QObject
{
    Q_OBJECT

public:
    explicit MvBatchProcess(const MvBatchLimits &limits, QObject *parent = nullptr);
    /// Lets the worker end, by force after a moment.
    ~MvBatchProcess() override;

    /// One at a time. finished() or died() follows.
    void perform(const MvBatchWorker::Task &task);
    const MvBatchWorker::Task &task() const { return m_task; }
    /// Whether this task is its first, so that nothing before can have spoilt it.
    bool isFresh() const { return m_tasks <= 1; }
    /// The worker ends after what it is at; there is no more for it.
    void dismiss();
    /// The worker finishes the pages under way, answers and ends.
    void interrupt();

Q_SIGNALS:
    void finished(const MvBatchResult &result);
    /// Without an answer; the result says why. The object is of no more use.
    void died(const MvBatchResult &result);

private:
    void start();
    void readAnswer();
    void end();
    QString describeEnd() const;

    const MvBatchLimits m_limits;
    QTemporaryDir m_folder; // of temporary files
    QProcess m_process;
    QTimer m_timer;
    MvBatchWorker::Task m_task;
    QByteArray m_said; // the end of what stands on its error output
    int m_tasks = 0;
    bool m_isBusy = false;
    bool m_isTimedOut = false;
};

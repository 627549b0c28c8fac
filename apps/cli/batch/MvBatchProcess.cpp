// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchProcess.h"

#include <csignal>

#include <sys/resource.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// In the new process, before the program begins: only what a signal handler may do.
void limit(pid_t batch, rlim_t bytes)
{
#ifdef __linux__
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != batch)
        ::_exit(1);
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    Q_UNUSED(bytes) // the sanitizers take terabytes of addresses for themselves
#else
    rlimit memory = {};
    ::getrlimit(RLIMIT_DATA, &memory);
    memory.rlim_max = qMin(memory.rlim_max, bytes);
    memory.rlim_cur = memory.rlim_max;
    ::setrlimit(RLIMIT_DATA, &memory);
#endif
}

} // namespace

MvBatchProcess::MvBatchProcess(const MvBatchLimits &limits, QObject *parent)
    : QObject(parent)
    , m_limits(limits)
{
    m_timer.setSingleShot(true);
    m_timer.callOnTimeout(this, [this] {
        m_isTimedOut = true;
        m_process.kill();
    });
    start();
}

MvBatchProcess::~MvBatchProcess()
{
    disconnect(&m_process, nullptr, this, nullptr);
    m_process.closeWriteChannel();
    constexpr int patience = 2000; // milliseconds
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience)) {
        m_process.kill();
        m_process.waitForFinished(patience);
    }
}

void MvBatchProcess::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (m_folder.isValid())
        environment.insert(u"TMPDIR"_s, m_folder.path());
    m_process.setProcessEnvironment(environment);
    m_process.setProgram(QCoreApplication::applicationFilePath());
    m_process.setArguments({MvBatchWorker::name()});
    m_process.setChildProcessModifier(
        [batch = ::getpid(), bytes = rlim_t(m_limits.megabytes) << 20] { limit(batch, bytes); });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &MvBatchProcess::readAnswer);
    connect(&m_process, &QProcess::readyReadStandardError, this, [this] {
        constexpr qsizetype enough = 4096;
        m_said = (m_said + m_process.readAllStandardError()).right(enough);
    });
    connect(&m_process, &QProcess::finished, this, &MvBatchProcess::end);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            QMetaObject::invokeMethod(this, &MvBatchProcess::end, Qt::QueuedConnection);
    });
    m_process.start();
}

void MvBatchProcess::perform(const MvBatchWorker::Task &task)
{
    m_task = task;
    m_said.clear();
    m_isBusy = true;
    ++m_tasks;
    m_timer.start(m_limits.seconds * 1000);
    if (m_process.state() == QProcess::NotRunning) // it has died while it had nothing to do
        QMetaObject::invokeMethod(this, &MvBatchProcess::end, Qt::QueuedConnection);
    else
        m_process.write(task.toLine());
}

void MvBatchProcess::dismiss()
{
    m_process.closeWriteChannel();
}

void MvBatchProcess::interrupt()
{
    if (m_process.state() == QProcess::Running)
        m_process.terminate();
    m_process.closeWriteChannel();
}

void MvBatchProcess::readAnswer()
{
    if (!m_isBusy || !m_process.canReadLine())
        return;
    const std::optional<MvBatchResult> result = MvBatchResult::fromLine(m_process.readLine());
    if (!result) { // cannot be, and would be waited for until the time is over
        m_process.kill();
        return;
    }
    m_timer.stop();
    m_isBusy = false;
    Q_EMIT finished(*result);
}

void MvBatchProcess::end()
{
    readAnswer();
    m_timer.stop();
    if (!m_isBusy)
        return; // the next task finds out
    m_isBusy = false;
    MvBatchResult result{m_task.job.line, m_task.job.id, MvBatchResult::State::Crashed, describeEnd(), {}};
    if (m_isTimedOut) {
        result.state = MvBatchResult::State::TimedOut;
        result.reason = tr("nicht fertig nach %n Sekunden (--time-limit)", nullptr, m_limits.seconds);
        result.facts.insert(u"seconds"_s, m_limits.seconds);
    }
    Q_EMIT died(result);
}

QString MvBatchProcess::describeEnd() const
{
    if (m_process.error() == QProcess::FailedToStart)
        return tr("der Arbeitsprozess ließ sich nicht starten: %1").arg(m_process.errorString());
    const QString how = m_process.exitStatus() == QProcess::CrashExit
                            ? tr("der Arbeitsprozess endete durch Signal %1").arg(m_process.exitCode())
                            : tr("der Arbeitsprozess endete mit Rückgabewert %1").arg(m_process.exitCode());
    const QString said = QString::fromLocal8Bit(m_said.trimmed().split('\n').constLast()).simplified();
    const QString limit = tr("erlaubt sind %1 MB Speicher (--memory-limit)").arg(m_limits.megabytes);
    return how + u"; "_s + (said.isEmpty() ? QString() : said + u"; "_s) + limit;
}

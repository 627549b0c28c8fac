// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchProgress.h"

#include <QTextStream>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 terminalPause = 200; // milliseconds
constexpr qint64 logPause = 10'000;

} // namespace

MvBatchProgress::MvBatchProgress(QTextStream &stream, qsizetype all, Detail detail)
    : m_stream(stream)
    , m_all(all)
    , m_detail(detail)
    , m_isTerminal(isatty(STDERR_FILENO))
{
    m_clock.start();
}

void MvBatchProgress::add(const MvBatchResult &result, const QString &place)
{
    ++m_done;
    m_skipped += result.state == MvBatchResult::State::Skipped ? 1 : 0;
    const bool isInterrupted = result.state == MvBatchResult::State::Interrupted; // it has not failed
    m_failed += result.isComplete() || isInterrupted ? 0 : 1;
    if (!result.isComplete() && !isInterrupted)
        printLine(place + u": "_s + result.reason);
    else if (result.isComplete() && m_detail == Detail::EveryCalendar)
        printLine(place + u": "_s +
                  (result.state == MvBatchResult::State::Skipped
                       ? tr("unverändert")
                       : tr("%1 s").arg(result.facts.value(u"seconds"_s).toDouble(), 0, 'f', 2)));
    if (m_detail != Detail::FailuresAlone)
        printState();
}

void MvBatchProgress::printLine(const QString &text)
{
    m_stream << (m_isTerminal ? "\r\033[K" : "") << "mvcalendar: " << text.simplified() << '\n';
    m_stream.flush();
}

void MvBatchProgress::printState()
{
    if (m_clock.elapsed() - m_told < (m_isTerminal ? terminalPause : logPause))
        return;
    m_told = m_clock.elapsed();
    const QString text = counts() + remaining();
    if (!m_isTerminal) {
        printLine(text);
        return;
    }
    m_stream << "\r\033[Kmvcalendar: " << text;
    m_stream.flush();
}

QString MvBatchProgress::counts() const
{
    return tr("%1 von %2 Kalendern, davon unverändert %3, misslungen %4")
        .arg(m_done)
        .arg(m_all)
        .arg(m_skipped)
        .arg(m_failed);
}

QString MvBatchProgress::remaining() const
{
    if (m_done <= m_skipped)
        return {};
    const double seconds = double(m_clock.elapsed()) / 1000.0 / m_done * double(m_all - m_done);
    return u"; "_s + (seconds < 90 ? tr("noch etwa %n Sekunden", nullptr, int(seconds) + 1)
                                   : tr("noch etwa %n Minuten", nullptr, int(seconds / 60.0) + 1));
}

void MvBatchProgress::finish()
{
    if (m_detail != Detail::FailuresAlone)
        printLine(counts());
    else if (m_isTerminal)
        m_stream << "\r\033[K";
}

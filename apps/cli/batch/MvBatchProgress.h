// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvBatchResult.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

class QTextStream;

/// Tells a person how far a batch is: each calendar that failed at once, and how many are done; in one line that
/// changes on a terminal, every few seconds in a log.
class MvBatchProgress
{
    Q_DECLARE_TR_FUNCTIONS(MvBatchProgress)

public:
    enum class Detail { FailuresAlone, Usual, EveryCalendar };

    /// The stream outlives the object.
    MvBatchProgress(QTextStream &stream, qsizetype all, Detail detail);

    /// Takes one more; the place is what the calendar is called.
    void add(const MvBatchResult &result, const QString &place);
    /// The last line, with what came of all of them.
    void finish();

    int failed() const { return m_failed; }
    int done() const { return m_done; }

private:
    QString counts() const;
    QString remaining() const;
    void printLine(const QString &text);
    void printState();

    QTextStream &m_stream;
    const qsizetype m_all;
    const Detail m_detail;
    const bool m_isTerminal;
    QElapsedTimer m_clock;
    qint64 m_told = 0; // when, on the clock
    int m_done = 0;
    int m_skipped = 0;
    int m_failed = 0;
};

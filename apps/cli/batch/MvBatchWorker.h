// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvBatchJob.h"
#include "MvBatchResult.h"
#include "plain/MvCliCommand.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

/// A process that makes one calendar after the other: fonts, tables and outlines are there from the second one on.
///
/// It is a program of its own, begun by the batch, not a copy of it: whatever a calendar does to it, nothing is shared
/// with the batch or with other workers, and there are no locks that a copied thread would have held. Beginning it
/// takes less than a page does. It reads tasks from its standard input, a line each, and answers each with a line of
/// the report; it ends with its input, with the batch, or when it is asked to (MvInterruption).
class MvBatchWorker
{
    Q_DECLARE_TR_FUNCTIONS(MvBatchWorker)

public:
    /// What the program is called with to be one.
    static QString name() { return QStringLiteral("batch-worker"); }

    struct Task
    {
        MvBatchJob job;
        QString fingerprint;
        std::optional<MvBatchResult> known; // of an earlier run with that fingerprint

        QByteArray toLine() const;
        static Task fromLine(const QByteArray &line);
    };

    /// Until the input ends; the exit code.
    MvCliCommand::ExitCode run();
    /// Makes one calendar, or finds that it is there.
    static MvBatchResult perform(const Task &task);

private:
    static bool isThere(const MvBatchResult &known);
    static MvBatchResult render(const Task &task);
};

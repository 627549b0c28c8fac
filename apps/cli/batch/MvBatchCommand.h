// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvBatchList.h"
#include "MvBatchWorker.h"
#include "plain/MvCliCommand.h"

class MvBatchReport;
class MvBatchProgress;

/// "batch": makes the calendars of a list, several at a time; see docs/batch.md. What was made before and is unchanged
/// is left alone.
class MvBatchCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvBatchCommand)

public:
    QString name() const override { return QStringLiteral("batch"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

private:
    /// What this run is to do, and the what it is not about.
    struct Plan
    {
        QList<MvBatchWorker::Task> tasks;
        QList<MvBatchResult> refused;
        QHash<int, QString> places; // line -> what a person calls it
        QHash<QString, int> others; // fingerprint -> line
    };

    static Plan plan(const MvBatchList &list, const MvBatchList::Shard &shard, const MvBatchReport &report);
    static Result judge(const MvBatchProgress &progress, const Plan &plan, bool isInterrupted);
};

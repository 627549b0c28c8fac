// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvBatchResult.h"
#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QString>

#include <optional>

/// The report of a batch, and what the next run knows of this one: a file with a line for each calendar.
///
/// Lines are added as calendars are done, so that a run that is killed has told what it did; at the end the file is
/// replaced by one with a line for each, in the order of the list. One run at a time has the file.
class MvBatchReport
{
    Q_DECLARE_TR_FUNCTIONS(MvBatchReport)

public:
    /// Takes the file and reads what earlier runs have left. One that is no report is refused and stays as it is. An
    /// empty path, or "-", gives a report that goes to the standard output alone and knows nothing.
    MvOutcome open(const QString &path);
    /// What is known of a calendar with that fingerprint (MvBatchInputs).
    std::optional<MvBatchResult> known(const QString &fingerprint) const;

    MvOutcome add(const MvBatchResult &result);
    /// Puts the file in order. Calendars of the list that this run was not about (another shard, or not begun) keep
    /// what is known of them: their fingerprints, with their lines in the list.
    MvOutcome finish(const QHash<QString, int> &others);

private:
    bool lock();
    static bool isCut(const QByteArray &line, int number);
    MvOutcome dropFrom(qint64 begin);
    MvOutcome readLines();
    MvOutcome write(const QByteArray &bytes);

    QFile m_file;
    bool m_isLacking = false; // the end of its last line
    QHash<QString, MvBatchResult> m_known;
    QList<MvBatchResult> m_results;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvBatchJob.h"
#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

class QIODevice;

/// The calendars of a file, one JSON object on each line; empty lines count, but mean nothing. A line that cannot be
/// used stands in the list with its error and spoils no other, but for two that would write the same file: neither of
/// them is made.
struct MvBatchList : MvOutcome
{
    Q_DECLARE_TR_FUNCTIONS(MvBatchList)

public:
    /// One part of several that a list is divided into, so that several computers can work on it.
    struct Shard
    {
        int number = 1; // from 1
        int count = 1;

        /// "3/8"; nothing else is valid.
        static Shard fromText(const QString &text);
        bool isValid() const { return number >= 1 && number <= count; }
        /// Neighbours in the list go to different shards: large orders often stand together.
        bool has(qsizetype index) const { return index % count == number - 1; }
    };

    static constexpr qsizetype longestLine = 1 << 20; // bytes

    QString place; // the file's name, for messages
    QList<MvBatchJob> jobs;

    /// Reads a file, or the standard input for "-".
    static MvBatchList read(const QString &path);
    /// "auftraege.jsonl, Zeile 7 (4711)".
    QString placeOf(const MvBatchJob &job) const;

private:
    void readLines(QIODevice &device);
    void refuseSharedOutputs();
};

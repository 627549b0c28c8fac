// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// What became of one calendar of a batch: a line of the report, as docs/batch.md describes it.
struct MvBatchResult
{
    enum class State {
        Done,
        Skipped, // was made before, of the same options and files, and is still there
        Failed,
        Refused, // the line or its options make no sense
        TimedOut,
        Crashed, // also for want of memory
        Interrupted,
    };

    int line = 0;
    QString id;
    State state = State::Failed;
    QString reason;    // why it is not there, in one sentence
    QJsonObject facts; // everything else, by the names that the report has for it

    /// The calendar is there, whole.
    bool isComplete() const { return state == State::Done || state == State::Skipped; }
    QString fingerprint() const { return facts.value(QStringLiteral("fingerprint")).toString(); }

    QJsonObject toJson() const;
    /// With its end of line.
    QByteArray toLine() const;
    /// Nothing for an object that is no result.
    static std::optional<MvBatchResult> fromJson(const QJsonObject &object);
    static std::optional<MvBatchResult> fromLine(const QByteArray &line);
};

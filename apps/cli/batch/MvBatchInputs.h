// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QJsonArray>
#include <QString>
#include <QStringList>

class MvCliArguments;
struct MvRenderOutcome;

/// What a calendar is made of, so that one that is there need not be made again: its options, the program and what the
/// user has put beside its layouts, colours and holidays are one fingerprint; files and folders of photos are compared
/// by their content, wherever a clock may stand. Fonts of the computer are not looked at.
class MvBatchInputs
{
public:
    /// Of the options and the program.
    static QString fingerprint(const QJsonObject &options);
    /// The files and folders that a calendar was made of.
    static QStringList of(const MvCliArguments &call, const MvRenderOutcome &outcome);

    /// A list of {"path", "hash", "bytes"}. What is not there or cannot be read has an empty hash. A folder counts with
    /// the names and contents of all that is in it, not hidden, and none of the calendar's own files, the results.
    static QJsonArray digests(const QStringList &paths, const QStringList &results = {});
    /// Whether all of them are still what they were; an empty list is.
    static bool areUnchanged(const QJsonArray &digests, const QStringList &results = {});
    /// Whether one of them was written since, a moment that QDateTime gives in milliseconds: then nobody can tell which
    /// content was read.
    static bool anyWrittenSince(const QStringList &paths, qint64 moment, const QStringList &results);
};

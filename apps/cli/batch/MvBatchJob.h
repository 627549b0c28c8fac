// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "plain/MvCliArguments.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/// One calendar of a batch, as a line of its file has it: a JSON object of options of "render" by their long names.
///
///     {"id": "4711", "year": 2027, "region": "BY", "vacations": true, "entries": "4711.csv", "output": "4711.pdf"}
///
/// A switch is true or false, what may be given several times is a list. "id" is what people call the calendar.
struct MvBatchJob
{
    Q_DECLARE_TR_FUNCTIONS(MvBatchJob)

public:
    int line = 0; // of the file, from 1
    QString id;
    QJsonObject options; // without the id; complete, so that they mean the same on any day
    QString error;       // what is wrong with the line, in one sentence; empty when it can be tried

    static MvBatchJob fromLine(const QByteArray &text, int line);

    struct Call : MvOutcome
    {
        MvCliArguments arguments;
    };
    /// The options as a call of "render". Unknown ones, and those that mean nothing in a batch, are an error.
    Call call() const;
    /// The patterns of the files that it writes.
    QStringList outputs() const { return call().arguments.values(QStringLiteral("output")); }
    /// What a person calls it: its id, else its first file.
    QString name() const;

private:
    void readId();
    void completeYear(const MvCliArguments &given);
};

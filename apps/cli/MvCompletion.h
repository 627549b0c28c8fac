// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

#include <memory>
#include <vector>

/// What could stand next in a call, for the shells: "mvcalendar complete WORD..." prints a candidate and a word about
/// it to the line, parted by a tab. The files in apps/cli/completion teach it to bash, zsh and fish.
class MvCompletion
{
    Q_DECLARE_TR_FUNCTIONS(MvCompletion)

public:
    struct Candidate
    {
        QString text;
        QString help;
    };

    /// The commands outlive it.
    explicit MvCompletion(const std::vector<std::unique_ptr<MvCliCommand>> &commands)
        : m_commands(commands)
    {}

    /// What may take the place of the last word, which is the one being typed; empty where a file is expected.
    QList<Candidate> candidates(const QStringList &words) const;
    void print(const QStringList &words, QTextStream &out) const;

private:
    static QList<Candidate> valuesOf(const MvCliOption &option, const QStringList &words);
    static QList<Candidate> optionsOf(const QList<MvCliOption> &options, const QStringList &words);
    static QList<Candidate> places(const QString &option, const QStringList &words);

    const std::vector<std::unique_ptr<MvCliCommand>> &m_commands;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCliCommand.h"

#include <memory>
#include <vector>

/// The program: finds the command, checks its options, runs it, reports errors in one line.
class MvCli
{
    Q_DECLARE_TR_FUNCTIONS(MvCli)

public:
    MvCli();

    /// Whether the call is of a command that lays out pages. No application needs to exist yet.
    bool hasPages(const QStringList &arguments) const;
    /// Runs one call; the arguments do not hold the program's name. Gives the exit code.
    int run(const QStringList &arguments, QTextStream &out, QTextStream &err) const;

private:
    MvCliCommand::Result dispatch(const QStringList &arguments, const MvCliCommand::Streams &streams) const;
    /// Runs the command as the call and the user's file of settings say.
    MvCliCommand::Result runCommand(const MvCliCommand &command, const QStringList &arguments,
                                    const MvCliCommand::Streams &streams) const;
    const MvCliCommand *find(const QString &name) const;
    QStringList commandNames() const;
    void printHelp(QTextStream &out) const;
    static void printHelp(const MvCliCommand &command, QTextStream &out);

    std::vector<std::unique_ptr<MvCliCommand>> m_commands;
};

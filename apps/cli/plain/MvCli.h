// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

#include <memory>
#include <vector>

/// The program: finds the command, checks its options, runs it, reports errors in one line.
///
/// There are two of it: one with the plain commands alone, and one with all (MvPagesCli), which takes longer to load.
class MvCli
{
    Q_DECLARE_TR_FUNCTIONS(MvCli)

public:
    using Commands = std::vector<std::unique_ptr<MvCliCommand>>;

    /// With the commands that can be plain.
    MvCli();
    virtual ~MvCli() = default;
    MvCli(const MvCli &) = delete;
    MvCli &operator=(const MvCli &) = delete;

    /// Whether these commands suffice for the call. No application needs to exist yet.
    bool isPlain(const QStringList &arguments) const;
    /// Runs one call; the arguments do not hold the program's name. Gives the exit code.
    int run(const QStringList &arguments, QTextStream &out, QTextStream &err) const;

protected:
    explicit MvCli(Commands commands)
        : m_commands(std::move(commands))
    {}

    virtual MvCliCommand::Result dispatch(const QStringList &arguments, const MvCliCommand::Streams &streams) const;
    const Commands &commands() const { return m_commands; }
    const MvCliCommand *find(const QString &name) const;

private:
    /// Runs the command as the call and the user's file of settings say.
    MvCliCommand::Result runCommand(const MvCliCommand &command, const QStringList &arguments,
                                    const MvCliCommand::Streams &streams) const;
    void printHelp(QTextStream &out) const;
    static void printHelp(const MvCliCommand &command, QTextStream &out);

    Commands m_commands;
};

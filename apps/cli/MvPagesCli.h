// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCli.h"

/// The program with all its commands.
class MvPagesCli : public MvCli
{
    Q_DECLARE_TR_FUNCTIONS(MvPagesCli)

public:
    MvPagesCli();

    /// Whether the call is of a command that lays out pages. No application needs to exist yet.
    bool hasPages(const QStringList &arguments) const;

protected:
    MvCliCommand::Result dispatch(const QStringList &arguments, const MvCliCommand::Streams &streams) const override;
};

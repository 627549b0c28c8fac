// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

/// "pack": a project with all that it shows, for another computer.
class MvPackCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvPackCommand)

public:
    QString name() const override { return QStringLiteral("pack"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool hasPages() const override { return true; }
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;
};

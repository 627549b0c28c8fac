// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

/// "new": a photo calendar as a project, to be gone on with in the studio.
class MvNewCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvNewCommand)

public:
    QString name() const override { return QStringLiteral("new"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool hasPages() const override { return true; }
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;
};

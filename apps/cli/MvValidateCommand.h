// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

/// "validate": what of a project would print badly.
class MvValidateCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvValidateCommand)

public:
    QString name() const override { return QStringLiteral("validate"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool hasPages() const override { return true; }
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

/// "regions": the countries and regions whose holidays are known.
class MvRegionsCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvRegionsCommand)

public:
    QString name() const override { return QStringLiteral("regions"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool isPlain(const QStringList &) const override { return true; }
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;
};

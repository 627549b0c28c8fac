// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

/// "templates": how pages of photo calendars can be divided.
class MvTemplatesCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvTemplatesCommand)

public:
    QString name() const override { return QStringLiteral("templates"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliCommand.h"

/// "themes": what photo calendars can look like.
class MvThemesCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvThemesCommand)

public:
    QString name() const override { return QStringLiteral("themes"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;
};

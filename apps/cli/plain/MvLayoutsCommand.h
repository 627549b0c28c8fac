// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvLayoutCatalogue.h"
#include "plain/MvCliCommand.h"

#include <functional>

/// "layouts": what can be given to "render".
class MvLayoutsCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvLayoutsCommand)

public:
    using Layouts = QList<MvLayoutCatalogue::Layout>;

    /// Lists what the function gives.
    explicit MvLayoutsCommand(const std::function<Layouts()> &layouts)
        : m_layouts(layouts)
    {}

    QString name() const override { return QStringLiteral("layouts"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool isPlain(const QStringList &arguments) const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

    /// The list as both "layouts" and "colors" print it.
    static void print(const Layouts &layouts, bool asJson, QTextStream &out);

private:
    std::function<Layouts()> m_layouts;
};

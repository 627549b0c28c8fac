// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvSchemaNames.h"
#include "plain/MvCliCommand.h"

class MvCalendariumColorSchema;
class MvCliValues;

/// "colors": lists the colour schemas, and keeps, renames, removes, hides and shows them.
class MvColorsCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvColorsCommand)

public:
    QString name() const override { return QStringLiteral("colors"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

private:
    using Kind = MvSchemaNames::Kind;

    static Result keep(const MvCliValues &values, const Streams &streams);
    static Result change(const MvCliValues &values, const QString &task, const MvCalendariumColorSchemaID &id);
    static MvCalendariumColorSchemaID schemaId(MvCliValues &values, const QString &option);
    static QList<MvSchemaNames::Schema> hidden();
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvSchemaListCommand.h"

class MvCalendariumColorSchema;
class MvCliValues;

/// "colors": lists the colour schemas, and keeps, renames, removes, hides and shows them.
class MvColorsCommand : public MvSchemaListCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvColorsCommand)

public:
    MvColorsCommand()
        : MvSchemaListCommand(Kind::Colors)
    {}

    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

private:
    static Result keep(const MvCliValues &values, const Streams &streams);
    static Result change(const MvCliValues &values, const QString &task, const MvCalendariumColorSchemaID &id);
    static MvCalendariumColorSchemaID schemaId(MvCliValues &values, const QString &option);
    static QList<Schema> hidden();
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCliCommand.h"

#include "MvCalendar/MvCalendariumColorSchemaID.h"
#include "MvXML/MvLocalizedText.h"

/// "layouts", and the list of "colors": what can be given to "render".
class MvSchemaListCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvSchemaListCommand)

public:
    enum class Kind {
        Layouts,
        Colors,
    };

    /// A schema's id and name.
    struct Schema
    {
        QString id;
        QString name;
        QString description;   // of layouts
        MvLocalizedText names; // any of which a user may type
    };

    explicit MvSchemaListCommand(Kind kind)
        : m_kind(kind)
    {}

    /// What there is, in the order in which it is offered.
    static QList<Schema> schemata(Kind kind);
    /// The id of the schema with that id or name, whatever the case; empty when there is none. Of equal ones a shipped
    /// schema is found. Colours are found under each of their ids, offered or not.
    static QString find(Kind kind, const QString &idOrName);
    /// What is taken when nobody names one.
    static QString defaultId(Kind kind);
    /// What to say of an option's value that find() does not find.
    static QString unknownError(Kind kind, const QString &option, const QString &idOrName);

    QString name() const override;
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

protected:
    static void print(const QList<Schema> &schemata, bool asJson, QTextStream &out);
    static Schema describe(const MvCalendariumColorSchemaID &id);

private:
    static QList<Schema> findable(Kind kind);

    Kind m_kind;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchemaID.h"
#include "MvXML/MvLocalizedText.h"
#include "plain/MvLayoutsCommand.h"

/// Layouts and colour schemas by id and name, as somebody types them.
class MvSchemaNames
{
    Q_DECLARE_TR_FUNCTIONS(MvSchemaNames)

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

    /// What there is, in the order in which it is offered.
    static QList<Schema> schemata(Kind kind);
    /// The id of the schema with that id or name, whatever the case; empty when there is none. Of equal ones a shipped
    /// schema is found. Colours are found under each of their ids, offered or not.
    static QString find(Kind kind, const QString &idOrName);
    /// What is taken when nobody names one.
    static QString defaultId(Kind kind);
    /// What to say of an option's value that find() does not find.
    static QString unknownError(Kind kind, const QString &option, const QString &idOrName);

    static Schema describe(const MvCalendariumColorSchemaID &id);
    /// For a list.
    static MvLayoutsCommand::Layouts rows(const QList<Schema> &schemata);

private:
    static QList<Schema> findable(Kind kind);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvSchemaNames.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "plain/MvNearMiss.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QList<MvSchemaNames::Schema> MvSchemaNames::schemata(Kind kind)
{
    QList<Schema> result;
    if (kind == Kind::Layouts) {
        for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata())
            result.append({schema.ID().toString(), schema.name(), schema.description(), schema.localizedName()});
        return result;
    }
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    for (const MvCalendariumColorSchema &schema : registry.visibleSchemata())
        result.append(describe(registry.id(schema)));
    return result;
}

MvSchemaNames::Schema MvSchemaNames::describe(const MvCalendariumColorSchemaID &id)
{
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    return {id.toString(), registry.name(id), {}, registry.localizedName(id)};
}

/// Those of users after the shipped ones.
QList<MvSchemaNames::Schema> MvSchemaNames::findable(Kind kind)
{
    QList<Schema> all;
    if (kind == Kind::Layouts) {
        all = schemata(kind);
    } else {
        const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
        for (const MvCalendariumColorSchema &schema : registry.allSchemata()) {
            for (const MvCalendariumColorSchemaID &id : registry.ids(schema))
                all.append(describe(id));
        }
    }
    std::stable_partition(all.begin(), all.end(), [](const Schema &schema) {
        return !MvCalendariumColorSchemaID(schema.id).isUserSchema(); // layouts' ids have the same prefix
    });
    return all;
}

QString MvSchemaNames::find(Kind kind, const QString &idOrName)
{
    const QList<Schema> all = findable(kind);
    const auto hasId = [&](const Schema &schema) { return schema.id.compare(idOrName, Qt::CaseInsensitive) == 0; };
    auto found = std::find_if(all.cbegin(), all.cend(), hasId);
    if (found == all.cend())
        found = std::find_if(all.cbegin(), all.cend(),
                             [&](const Schema &schema) { return schema.names.isAnyOf(idOrName); });
    return found != all.cend() ? found->id : QString();
}

QString MvSchemaNames::defaultId(Kind kind)
{
    if (kind == Kind::Layouts)
        return MvCalendariumLayoutSchemaRegistry::instance().defaultSchema().ID().toString();
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    return registry.id(registry.defaultSchema()).toString();
}

QString MvSchemaNames::unknownError(Kind kind, const QString &option, const QString &idOrName)
{
    QStringList ids;
    QStringList names;
    for (const Schema &schema : schemata(kind)) {
        ids.append(schema.id);
        names.append(schema.name);
    }
    return tr("--%1 „%2“: erlaubt sind %3").arg(option, idOrName, ids.join(u", "_s)) +
           MvNearMiss::describe(idOrName, ids + names);
}

MvLayoutsCommand::Layouts MvSchemaNames::rows(const QList<Schema> &schemata)
{
    MvLayoutsCommand::Layouts rows;
    for (const Schema &schema : schemata)
        rows.append({schema.id, schema.name, schema.description});
    return rows;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvSchemaListCommand.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCliValues.h"
#include "MvNearMiss.h"
#include "MvTextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

QList<MvSchemaListCommand::Schema> MvSchemaListCommand::schemata(Kind kind)
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

MvSchemaListCommand::Schema MvSchemaListCommand::describe(const MvCalendariumColorSchemaID &id)
{
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    return {id.toString(), registry.name(id), {}, registry.localizedName(id)};
}

/// Those of users after the shipped ones.
QList<MvSchemaListCommand::Schema> MvSchemaListCommand::findable(Kind kind)
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

QString MvSchemaListCommand::find(Kind kind, const QString &idOrName)
{
    const QList<Schema> all = findable(kind);
    const auto hasId = [&](const Schema &schema) { return schema.id.compare(idOrName, Qt::CaseInsensitive) == 0; };
    auto found = std::find_if(all.cbegin(), all.cend(), hasId);
    if (found == all.cend())
        found = std::find_if(all.cbegin(), all.cend(),
                             [&](const Schema &schema) { return schema.names.isAnyOf(idOrName); });
    return found != all.cend() ? found->id : QString();
}

QString MvSchemaListCommand::defaultId(Kind kind)
{
    if (kind == Kind::Layouts)
        return MvCalendariumLayoutSchemaRegistry::instance().defaultSchema().ID().toString();
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    return registry.id(registry.defaultSchema()).toString();
}

QString MvSchemaListCommand::unknownError(Kind kind, const QString &option, const QString &idOrName)
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

QString MvSchemaListCommand::name() const
{
    return m_kind == Kind::Layouts ? u"layouts"_s : u"colors"_s;
}

QString MvSchemaListCommand::summary() const
{
    return m_kind == Kind::Layouts ? tr("zählt die Layouts auf") : tr("zählt die Farbschemata auf");
}

QList<MvCliOption> MvSchemaListCommand::options() const
{
    return {formatOption({u"text"_s, u"json"_s}), jsonOption()};
}

QStringList MvSchemaListCommand::examples() const
{
    return {name(), name() + u" --format json"_s};
}

MvCliCommand::Result MvSchemaListCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const QString format = values.format({u"text"_s, u"json"_s});
    if (!values.isOk())
        return misused(values.error());

    print(schemata(m_kind), format == u"json"_s, streams.out);
    return {};
}

void MvSchemaListCommand::print(const QList<Schema> &schemata, bool asJson, QTextStream &out)
{
    QJsonArray array;
    MvTextTable table;
    for (const Schema &schema : schemata) {
        QJsonObject object{{u"id"_s, schema.id}, {u"name"_s, schema.name}};
        if (!schema.description.isEmpty())
            object.insert(u"description"_s, schema.description);
        array.append(object);
        table.addRow({schema.id, schema.name});
    }
    if (asJson)
        out << QString::fromUtf8(QJsonDocument(array).toJson());
    else
        table.print(out);
}

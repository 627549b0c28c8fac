#include "MvSchemaListCommand.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCliValues.h"
#include "MvTextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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
    const MvCalendariumColorSchemaList visible = registry.visibleSchemata();
    for (const MvCalendariumColorSchema &schema : visible) {
        const MvCalendariumColorSchemaID id = registry.id(schema);
        result.append({id.toString(), registry.name(id), {}, registry.localizedName(id)});
    }
    return result;
}

QString MvSchemaListCommand::find(Kind kind, const QString &idOrName)
{
    // ids that are not offered any more are still understood
    if (kind == Kind::Colors &&
        MvCalendariumColorSchemaRegistry::instance().contains(MvCalendariumColorSchemaID(idOrName)))
        return idOrName;
    for (const Schema &schema : schemata(kind))
        if (schema.id.compare(idOrName, Qt::CaseInsensitive) == 0 || schema.names.isAnyOf(idOrName))
            return schema.id;
    return {};
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
    return {formatOption({u"text"_s, u"json"_s})};
}

QStringList MvSchemaListCommand::examples() const
{
    return {name(), name() + u" --format json"_s};
}

MvCliCommand::Result MvSchemaListCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const QString format = values.choice(u"format"_s, {u"text"_s, u"json"_s});
    if (!values.isOk())
        return misused(values.error());

    QJsonArray array;
    MvTextTable table;
    for (const Schema &schema : schemata(m_kind)) {
        QJsonObject object{{u"id"_s, schema.id}, {u"name"_s, schema.name}};
        if (!schema.description.isEmpty())
            object.insert(u"description"_s, schema.description);
        array.append(object);
        table.addRow({schema.id, schema.name});
    }
    if (format == u"json"_s)
        streams.out << QString::fromUtf8(QJsonDocument(array).toJson());
    else
        table.print(streams.out);
    return {};
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvThemesCommand.h"

#include "MvProject/MvPageTemplateRegistry.h"
#include "MvProject/MvThemeRegistry.h"
#include "plain/MvCliValues.h"
#include "plain/MvTextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QJsonObject describe(const MvCalendarTheme &theme)
{
    QJsonObject templates;
    for (const MvPageKind kind : {MvPageKind::Cover, MvPageKind::Month, MvPageKind::Free, MvPageKind::Back})
        templates.insert(MvPageTemplateRegistry::kindName(kind), QJsonArray::fromStringList(theme.templateIds(kind)));
    return {{u"id"_s, theme.id()},
            {u"name"_s, theme.name()},
            {u"description"_s, theme.description()},
            {u"layouts"_s, QJsonArray::fromStringList(theme.layoutIds())},
            {u"colors"_s, QJsonArray::fromStringList(theme.colorSchemaIds())},
            {u"templates"_s, templates}};
}

} // namespace

QString MvThemesCommand::summary() const
{
    return tr("zählt die Themen für Fotokalender auf");
}

QList<MvCliOption> MvThemesCommand::options() const
{
    return {formatOption({u"text"_s, u"json"_s}), jsonOption()};
}

QStringList MvThemesCommand::examples() const
{
    return {u"themes"_s, u"themes --json"_s};
}

MvCliCommand::Result MvThemesCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const QString format = values.format({u"text"_s, u"json"_s});
    if (!values.isOk())
        return misused(values.error());
    QJsonArray array;
    MvTextTable table;
    for (const MvCalendarTheme &theme : MvThemeRegistry::instance().themes()) {
        array.append(describe(theme));
        table.addRow({theme.id(), theme.name(), theme.description()});
    }
    if (format == u"json"_s)
        streams.out << QString::fromUtf8(QJsonDocument(array).toJson());
    else
        table.print(streams.out);
    return {};
}

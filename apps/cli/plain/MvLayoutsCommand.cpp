// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvLayoutsCommand.h"

#include "plain/MvCliValues.h"
#include "plain/MvTextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

QString MvLayoutsCommand::summary() const
{
    return tr("zählt die Layouts auf");
}

QList<MvCliOption> MvLayoutsCommand::options() const
{
    return {formatOption({u"text"_s, u"json"_s}), jsonOption()};
}

QStringList MvLayoutsCommand::examples() const
{
    return {name(), name() + u" --format json"_s};
}

bool MvLayoutsCommand::isPlain(const QStringList &) const
{
    return MvLayoutCatalogue::isComplete();
}

MvCliCommand::Result MvLayoutsCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const QString format = values.format({u"text"_s, u"json"_s});
    if (!values.isOk())
        return misused(values.error());

    print(m_layouts(), format == u"json"_s, streams.out);
    return {};
}

void MvLayoutsCommand::print(const Layouts &layouts, bool asJson, QTextStream &out)
{
    QJsonArray array;
    MvTextTable table;
    for (const MvLayoutCatalogue::Layout &layout : layouts) {
        QJsonObject object{{u"id"_s, layout.id}, {u"name"_s, layout.name}};
        if (!layout.description.isEmpty())
            object.insert(u"description"_s, layout.description);
        array.append(object);
        table.addRow({layout.id, layout.name});
    }
    if (asJson)
        out << QString::fromUtf8(QJsonDocument(array).toJson());
    else
        table.print(out);
}

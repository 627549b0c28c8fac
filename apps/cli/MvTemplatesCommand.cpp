// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTemplatesCommand.h"

#include "MvProject/MvPageTemplateRegistry.h"
#include "plain/MvCliValues.h"
#include "plain/MvTextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// A usual paper of the shape.
MvPageFormat paperOf(MvPageFormat::Shape shape)
{
    switch (shape) {
    case MvPageFormat::Shape::Square:
        return MvPageFormat(QSizeF(3000.0, 3000.0));
    case MvPageFormat::Shape::Panorama:
        return MvPageFormat(QSizeF(4200.0, 1485.0));
    case MvPageFormat::Shape::Narrow:
        return MvPageFormat(QSizeF(1485.0, 4200.0));
    case MvPageFormat::Shape::Portrait:
        return MvPageFormat(QSizeF(2100.0, 2970.0));
    case MvPageFormat::Shape::Landscape:
        break;
    }
    return MvPageFormat(QSizeF(2970.0, 2100.0));
}

/// How many photos the template has room for, by the words for the shapes of paper.
QJsonObject fotosByShape(const MvPageTemplate &pageTemplate)
{
    QJsonObject counts;
    for (const MvPageFormat::Shape shape : MvPageFormat::shapes()) {
        const MvPageFormat paper = paperOf(shape);
        if (!pageTemplate.slotsFor(paper).isEmpty())
            counts.insert(MvPageFormat::shapeName(shape), MvPageTemplateRegistry::fotoCount(pageTemplate, paper));
    }
    return counts;
}

} // namespace

QString MvTemplatesCommand::summary() const
{
    return tr("zählt die Vorlagen für Seiten auf, mit ihren Fotos");
}

QList<MvCliOption> MvTemplatesCommand::options() const
{
    return {{u"kind"_s, u"cover|month|free|back"_s, tr("nur die für Titelblatt, Monate, freie Seiten oder Rückseite")},
            formatOption({u"text"_s, u"json"_s}),
            jsonOption()};
}

QStringList MvTemplatesCommand::examples() const
{
    return {u"templates"_s, u"templates --kind cover"_s, u"templates --json"_s};
}

MvCliCommand::Result MvTemplatesCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const QString format = values.format({u"text"_s, u"json"_s});
    const QString kind =
        values.has(u"kind"_s) ? values.choice(u"kind"_s, {u"cover"_s, u"month"_s, u"free"_s, u"back"_s}) : QString();
    if (!values.isOk())
        return misused(values.error());
    QJsonArray array;
    MvTextTable table;
    for (const MvPageTemplate &pageTemplate : MvPageTemplateRegistry::instance().templates()) {
        const QString kindName = MvPageTemplateRegistry::kindName(pageTemplate.kind());
        if (!kind.isEmpty() && kind != kindName)
            continue;
        const QJsonObject fotos = fotosByShape(pageTemplate);
        array.append(QJsonObject{{u"id"_s, pageTemplate.id()},
                                 {u"name"_s, pageTemplate.name()},
                                 {u"kind"_s, kindName},
                                 {u"photos"_s, fotos}});
        table.addRow(
            {pageTemplate.id(), kindName, tr("%n Fotos", nullptr, fotos.begin()->toInt()), pageTemplate.name()});
    }
    if (format == u"json"_s)
        streams.out << QString::fromUtf8(QJsonDocument(array).toJson());
    else
        table.print(streams.out);
    return {};
}

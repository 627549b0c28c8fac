// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvLayoutCatalogue.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvTranslations.h"
#include "MvXML/MvXMLFile.h"

#include <QMap>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

QFileInfo shippedFile()
{
    return MvDirectoryConfig::instance().resource(u"schemas/calendar_layout.xml"_s);
}

/// The first tags of the layouts, as a document: the cells in them are most of the file.
QByteArray headsOf(const QByteArray &shipped)
{
    const QByteArrayView begin = "<calendararea ";
    QByteArray heads = "<layouts>";
    for (qsizetype start = shipped.indexOf(begin); start >= 0; start = shipped.indexOf(begin, start + 1)) {
        bool isQuoted = false;
        qsizetype end = start;
        for (; end < shipped.size() && (isQuoted || shipped.at(end) != '>'); ++end)
            isQuoted ^= shipped.at(end) == '"';
        heads += QByteArrayView(shipped).sliced(start, end - start);
        heads += "/>";
    }
    return heads + "</layouts>";
}

QString textOf(const QXmlStreamAttributes &attributes, const QString &key)
{
    QMap<QString, QString> texts;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QString name = attribute.name().toString();
        if (name.startsWith(key + u'_'))
            texts.insert(name.mid(key.size() + 1), attribute.value().toString());
    }
    texts.insert(u"de"_s, attributes.value(key).toString());
    texts.removeIf([](const auto &text) { return text.value().isEmpty(); });
    return MvTranslations::choose(texts);
}

} // namespace

bool MvLayoutCatalogue::isComplete()
{
    return MvXMLFile::isEmbedded(shippedFile()) &&
           !MvDirectoryConfig::instance().programDataFile(userFileName()).exists();
}

QList<MvLayoutCatalogue::Layout> MvLayoutCatalogue::layouts()
{
    QList<Layout> found;
    QXmlStreamReader reader(headsOf(MvXMLFile::loadBytes(shippedFile())));
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != "calendararea"_L1)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        const QString id = attributes.value("layoutschema"_L1).toString();
        const QString name = textOf(attributes, u"name"_s);
        found.append({id, name.isEmpty() ? id : name, textOf(attributes, u"description"_s)});
    }
    return found;
}

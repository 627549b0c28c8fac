// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLElement.h"

#include "MvXML/MvShippedXML.h"

#include <QXmlStreamReader>

#include <algorithm>

QList<std::pair<QString, QString>>::const_iterator MvXMLElement::find(const QString &attribute) const
{
    return std::find_if(attributes.cbegin(), attributes.cend(),
                        [&attribute](const auto &known) { return known.first == attribute; });
}

QString MvXMLElement::attribute(const QString &attribute, const QString &defaultValue) const
{
    const auto found = find(attribute);
    return found == attributes.cend() ? defaultValue : found->second;
}

MvXMLElement MvXMLElement::load(const QFileInfo &file, MvXMLFile::Error *error)
{
    MvXMLFile::Error found;
    const QByteArray bytes = MvXMLFile::loadBytes(file, &found);
    MvXMLElement root;
    if (!found.isError() && MvXMLFile::isEmbedded(file)) {
        root = MvShippedXML(bytes).next();
    } else if (!found.isError()) {
        QXmlStreamReader reader(bytes);
        reader.setNamespaceProcessing(false);
        if (reader.readNextStartElement())
            root = read(reader);
        found = MvXMLFile::errorOf(reader, bytes);
    }
    if (error)
        *error = found;
    return found.isError() ? MvXMLElement() : root;
}

/// The element whose first tag has just been read; no deeper than files may be.
MvXMLElement MvXMLElement::read(QXmlStreamReader &reader)
{
    MvXMLElement element{reader.qualifiedName().toString(), {}, reader.lineNumber(), {}};
    for (const QXmlStreamAttribute &attribute : reader.attributes())
        element.attributes.append({attribute.qualifiedName().toString(), attribute.value().toString()});
    while (reader.readNextStartElement())
        element.children.append(read(reader));
    return element;
}

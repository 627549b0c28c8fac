// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLElement.h"

#include <QXmlStreamReader>

QString MvXMLElement::attribute(const QString &attribute, const QString &defaultValue) const
{
    return hasAttribute(attribute) ? attributes.value(attribute).toString() : defaultValue;
}

MvXMLElement MvXMLElement::load(const QFileInfo &file, MvXMLFile::Error *error)
{
    MvXMLFile::Error found;
    const QByteArray bytes = MvXMLFile::loadBytes(file, &found);
    MvXMLElement root;
    if (!found.isError()) {
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

MvXMLElement MvXMLElement::read(QXmlStreamReader &reader) // no deeper than files may be
{
    MvXMLElement element{reader.qualifiedName().toString(), reader.attributes(), reader.lineNumber(), {}};
    while (reader.readNextStartElement())
        element.children.append(read(reader));
    return element;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/MvXMLFile.h"

#include <QList>
#include <QXmlStreamAttributes>

class QXmlStreamReader;

/// An element of an XML file with the elements in it; texts between them are left out. For who reads small files once
/// and needs no document to change.
struct MVXML_EXPORT MvXMLElement
{
    QString name; // as it stands in the file, with its prefix
    QXmlStreamAttributes attributes;
    qint64 line = 0; // where its first tag ends, from 1
    QList<MvXMLElement> children;

    bool isNull() const { return name.isEmpty(); }
    bool hasAttribute(const QString &attribute) const { return attributes.hasAttribute(attribute); }
    /// The default where there is no such attribute.
    QString attribute(const QString &attribute, const QString &defaultValue = {}) const;

    /// The root element of a file with all checks of MvXMLFile; a null one on error.
    static MvXMLElement load(const QFileInfo &file, MvXMLFile::Error *error = nullptr);
    /// The element whose first tag the reader has just read; afterwards the reader stands at its last.
    static MvXMLElement read(QXmlStreamReader &reader);
};

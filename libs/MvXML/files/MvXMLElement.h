// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/MvXMLFile.h"

#include <QList>

#include <utility>

class QXmlStreamReader;

/// An element of an XML file with the elements in it; texts between them are left out. For who reads files once and
/// needs no document to change.
struct MVXML_EXPORT MvXMLElement
{
    QString name; // as it stands in the file, with its prefix
    QList<std::pair<QString, QString>> attributes;
    qint64 line = 0; // where its first tag ends, from 1; 0 in a shipped file
    QList<MvXMLElement> children;

    bool isNull() const { return name.isEmpty(); }
    bool hasAttribute(const QString &attribute) const { return find(attribute) != attributes.cend(); }
    /// The default where there is no such attribute.
    QString attribute(const QString &attribute, const QString &defaultValue = {}) const;

    /// The root element of a file with all checks of MvXMLFile; a null one on error.
    static MvXMLElement load(const QFileInfo &file, MvXMLFile::Error *error = nullptr);

private:
    QList<std::pair<QString, QString>>::const_iterator find(const QString &attribute) const;
    static MvXMLElement read(QXmlStreamReader &reader);
};

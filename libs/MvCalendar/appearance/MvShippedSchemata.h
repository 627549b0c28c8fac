// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QDomElement>
#include <QFileInfo>
#include <QString>

/// The schemas of a shipped file. Nearly every page is made with one of them, which is found without reading the
/// others.
class MvShippedSchemata
{
public:
    /// A file below the resource root and the attribute that names its schemas.
    MvShippedSchemata(const QString &file, const QString &idAttribute);

    QFileInfo file() const { return m_file; }
    /// The root element with all schemas; a null one when there is no such file.
    QDomElement all() const;
    /// The element "calendararea" of an id. A null one where it takes all() to know: there may be none, or the file is
    /// not the one that is part of the program and has to be checked first.
    QDomElement one(const QString &id) const;

private:
    QFileInfo m_file;
    QByteArray m_idAttribute;
};

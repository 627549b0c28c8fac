// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvSchemaPlace.h"

#include "MvXML/MvXMLLoader.h"

#include <QDebug>
#include <QDomElement>

MvSchemaPlace::MvSchemaPlace(const QFileInfo &inFile, const QDomElement &element)
    : file(inFile)
    , line(element.lineNumber())
    , column(element.columnNumber())
{}

void MvSchemaPlace::warn(const QString &message) const
{
    MvXMLLoader::Error error;
    error.message = message;
    error.line = line;
    error.column = column;
    qWarning().noquote() << (file.filePath().isEmpty() ? message : error.describe(file));
}

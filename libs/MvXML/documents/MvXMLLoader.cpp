// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLLoader.h"

#include <QDebug>

#include <new>

QDomDocument MvXMLLoader::loadDocument(const QFileInfo &file, Error *error)
{
    Error found;
    QByteArray bytes;
    try {
        bytes = readLimited(file, Limits::ofDocuments().bytes, found);
    } catch (const std::bad_alloc &) {
        found = outOfMemory();
    }
    if (!found.isError() && !isEmbedded(file))
        return parse(bytes, error);
    QDomDocument document;
    if (!found.isError())
        document.setContent(bytes, &found.message, &found.line, &found.column);
    if (error)
        *error = found;
    return document;
}

QDomDocument MvXMLLoader::parse(const QByteArray &bytes, Error *error)
{
    Error found;
    QDomDocument document;
    try {
        QString wideText;
        found = checkDecoding(bytes, Limits::ofDocuments(), wideText);
        const bool isBuilt =
            !found.isError() &&
            (wideText.isEmpty() ? document.setContent(bytes, &found.message, &found.line, &found.column)
                                : document.setContent(wideText, &found.message, &found.line, &found.column));
        if (isBuilt)
            found = {};
    } catch (const std::bad_alloc &) {
        found = outOfMemory();
    }
    if (error)
        *error = found;
    return found.isError() ? QDomDocument() : document;
}

QDomElement MvXMLLoader::loadDocumentElement(const QFileInfo &file)
{
    const QFileInfo present(file.filePath()); // the given QFileInfo may have cached an older state
    if (!present.exists())
        return {};
    Error error;
    const QDomDocument document = loadDocument(present, &error);
    if (error.isError())
        qWarning().noquote() << error.describe(present);
    return document.documentElement();
}

#include "MvXML/MvXMLLoader.h"

QString MvXMLLoader::Error::describe(const QFileInfo &file) const
{
    return QStringLiteral("%1:%2:%3: %4").arg(file.filePath()).arg(line).arg(column).arg(message);
}

QDomDocument MvXMLLoader::loadDocument(const QFileInfo &file, Error *error)
{
    QFile device(file.filePath());
    if (!device.open(QIODevice::ReadOnly)) {
        if (error)
            error->message = device.errorString();
        return {};
    }
    return parse(device.readAll(), error);
}

QDomDocument MvXMLLoader::parse(const QByteArray &bytes, Error *error)
{
    Error ignored;
    Error &e = error ? *error : ignored;
    QDomDocument document;
    if (!document.setContent(bytes, &e.message, &e.line, &e.column))
        return {};
    return document;
}

QDomElement MvXMLLoader::loadDocumentElement(const QFileInfo &file)
{
    return loadDocument(file).documentElement();
}

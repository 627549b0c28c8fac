// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLLoader.h"

#include "MvCore/MvRegularFile.h"
#include "MvXML/MvXMLGuard.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <new>

using namespace Qt::StringLiterals;

namespace {

QByteArray readLimited(const QFileInfo &file, qint64 mostBytes, MvXMLLoader::Error &error)
{
    constexpr qsizetype piece = 1024LL * 1024;
    const MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(file.filePath()));
    error.message = opened.error;
    if (!opened.isOk())
        return {};
    QByteArray bytes;
    bytes.reserve(std::min(opened.file->size(), mostBytes) + 1);
    while (bytes.size() <= mostBytes) { // the size that is told may be wrong
        const QByteArray part = opened.file->read(piece);
        if (part.isEmpty())
            break;
        bytes += part;
    }
    if (opened.file->error() != QFileDevice::NoError)
        error.message = MvXMLLoader::tr("Die Datei lässt sich nicht zu Ende lesen.");
    return bytes;
}

/// The text as UTF-8 whose declaration says so, too: a reader of bytes would go by what it said before. Places stay.
QByteArray asUtf8(const QString &wideText)
{
    static const QRegularExpression declared(uR"(^\s*<\?xml\s[^>]*?encoding\s*=\s*(["'])([^"'>]*)\1)"_s);
    QString text = wideText;
    if (const auto match = declared.match(text.left(1024)); match.hasMatch()) {
        const QString encoding = u"UTF-8"_s + match.captured(1);
        text.replace(match.capturedStart(2), match.capturedLength(2) + 1,
                     encoding.leftJustified(match.capturedLength(2) + 1));
    }
    return text.toUtf8();
}

/// Embedded in the program: as it was built, and in UTF-8.
bool isEmbedded(const QFileInfo &file)
{
    return file.filePath().startsWith(u':');
}

/// All checks; for UTF-16 and UTF-32 also the decoded text.
MvXMLLoader::Error check(const QByteArray &bytes, const MvXMLLoader::Limits &limits, QString &wideText)
{
    if (bytes.size() > limits.bytes)
        return {MvXMLLoader::tr("Die Datei ist größer als %1 MiB.").arg(limits.bytes / (1024LL * 1024))};
    if (QByteArrayView(bytes).trimmed().isEmpty())
        return {MvXMLLoader::tr("Die Datei ist leer.")};
    wideText = MvXMLGuard::wideText(bytes);
    const QByteArray utf8 = wideText.isEmpty() ? bytes : wideText.toUtf8();
    bool isEnough = false;
    const MvXMLLoader::Error error =
        limits.isWellFormed ? MvXMLGuard::scan(utf8) : MvXMLGuard::scanAlone(utf8, limits.elements, isEnough);
    if (error.isError() || isEnough)
        return error;
    return wideText.isEmpty() ? MvXMLGuard::readThrough(bytes, limits.elements)
                              : MvXMLGuard::readThrough(wideText, limits.elements);
}

/// Runs the function; where the memory does not suffice, that is the error.
template <typename Function>
void withinMemory(MvXMLLoader::Error &error, Function function)
{
    try {
        function();
    } catch (const std::bad_alloc &) {
        error = {MvXMLLoader::tr("Der Arbeitsspeicher reicht für diese Datei nicht aus.")};
    }
}

} // namespace

QString MvXMLLoader::Error::describe(const QFileInfo &file) const
{
    const QString path = QDir::toNativeSeparators(file.filePath());
    if (line <= 0)
        return u"%1: %2"_s.arg(path, message);
    return u"%1:%2:%3: %4"_s.arg(path).arg(line).arg(column).arg(message);
}

QByteArray MvXMLLoader::loadBytes(const QFileInfo &file, Error *error, const Limits &limits)
{
    Error found;
    QByteArray bytes;
    withinMemory(found, [&] {
        bytes = readLimited(file, limits.bytes, found);
        if (found.isError() || isEmbedded(file))
            return;
        QString wideText;
        found = ::check(bytes, limits, wideText);
        if (!wideText.isEmpty())
            bytes = asUtf8(wideText);
    });
    if (error)
        *error = found;
    return found.isError() ? QByteArray() : bytes;
}

QDomDocument MvXMLLoader::loadDocument(const QFileInfo &file, Error *error)
{
    Error found;
    QByteArray bytes;
    withinMemory(found, [&] { bytes = readLimited(file, Limits::ofDocuments().bytes, found); });
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
    withinMemory(found, [&] {
        QString wideText;
        found = ::check(bytes, Limits::ofDocuments(), wideText);
        if (found.isError())
            return;
        const bool isBuilt = wideText.isEmpty()
                                 ? document.setContent(bytes, &found.message, &found.line, &found.column)
                                 : document.setContent(wideText, &found.message, &found.line, &found.column);
        if (isBuilt)
            found = {};
    });
    if (error)
        *error = found;
    return found.isError() ? QDomDocument() : document;
}

MvXMLLoader::Error MvXMLLoader::errorOf(const QXmlStreamReader &reader, const QByteArray &bytes)
{
    return MvXMLGuard::errorOf(reader, bytes);
}

MvXMLLoader::Error MvXMLLoader::check(const QByteArray &bytes, const Limits &limits)
{
    Error found;
    withinMemory(found, [&] {
        QString wideText;
        found = ::check(bytes, limits, wideText);
    });
    return found;
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

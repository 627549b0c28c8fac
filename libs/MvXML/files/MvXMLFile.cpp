// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLFile.h"

#include "MvCore/MvRegularFile.h"
#include "MvXML/MvXMLGuard.h"

#include <QDir>
#include <QRegularExpression>
#include <QResource>

#include <algorithm>
#include <new>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

QString MvXMLFile::Error::describe(const QFileInfo &file) const
{
    const QString path = QDir::toNativeSeparators(file.filePath());
    if (line <= 0)
        return u"%1: %2"_s.arg(path, message);
    return u"%1:%2:%3: %4"_s.arg(path).arg(line).arg(column).arg(message);
}

QByteArray MvXMLFile::readLimited(const QFileInfo &file, qint64 mostBytes, Error &error)
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
        error.message = tr("Die Datei lässt sich nicht zu Ende lesen.");
    return bytes;
}

MvXMLFile::Error MvXMLFile::checkDecoding(const QByteArray &bytes, const Limits &limits, QString &wideText)
{
    if (bytes.size() > limits.bytes)
        return {tr("Die Datei ist größer als %1 MiB.").arg(limits.bytes / (1024LL * 1024))};
    if (QByteArrayView(bytes).trimmed().isEmpty())
        return {tr("Die Datei ist leer.")};
    wideText = MvXMLGuard::wideText(bytes);
    const QByteArray utf8 = wideText.isEmpty() ? bytes : wideText.toUtf8();
    bool isEnough = false;
    const Error error =
        limits.isWellFormed ? MvXMLGuard::scan(utf8) : MvXMLGuard::scanAlone(utf8, limits.elements, isEnough);
    if (error.isError() || isEnough)
        return error;
    return wideText.isEmpty() ? MvXMLGuard::readThrough(bytes, limits.elements)
                              : MvXMLGuard::readThrough(wideText, limits.elements);
}

QByteArray MvXMLFile::loadBytes(const QFileInfo &file, Error *error, const Limits &limits)
{
    Error found;
    QByteArray bytes;
    try {
        const QResource embedded(file.filePath());
        const bool isThere = isEmbedded(file) && embedded.isValid();
        bytes = isThere ? embedded.uncompressedData() : readLimited(file, limits.bytes, found);
        if (!found.isError() && !isEmbedded(file)) {
            QString wideText;
            found = checkDecoding(bytes, limits, wideText);
            if (!wideText.isEmpty())
                bytes = asUtf8(wideText);
        }
    } catch (const std::bad_alloc &) {
        found = outOfMemory();
    }
    if (error)
        *error = found;
    return found.isError() ? QByteArray() : bytes;
}

MvXMLFile::Error MvXMLFile::check(const QByteArray &bytes, const Limits &limits)
try {
    QString wideText;
    return checkDecoding(bytes, limits, wideText);
} catch (const std::bad_alloc &) {
    return outOfMemory();
}

MvXMLFile::Error MvXMLFile::errorOf(const QXmlStreamReader &reader, const QByteArray &bytes)
{
    return MvXMLGuard::errorOf(reader, bytes);
}

MvXMLFile::Error MvXMLFile::outOfMemory()
{
    return {tr("Der Arbeitsspeicher reicht für diese Datei nicht aus.")};
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/MvXMLFile.h"

#include <QByteArray>
#include <QString>

class QXmlStreamReader;

/// The checks a document from outside must pass before it is built in memory; used by MvXMLFile.
class MvXMLGuard
{
public:
    static constexpr int tagLimit = 64 * 1024;
    static constexpr int attributeLimit = 512; // of a tag: readers compare each with all
    static constexpr int depthLimit = 256;

    /// Decodes a text with a UTF-16 or UTF-32 byte order mark; otherwise empty, and the bytes are to be used.
    static QString wideText(const QByteArray &bytes);

    /// Looks at the raw text without interpreting it: tags that are too long or have too many attributes, declared
    /// entities, NUL characters. Such texts would make an XML reader itself use up time or memory.
    static MvXMLFile::Error scan(QByteArrayView utf8);
    /// The same, and counts depth and elements on the way; whether it is well-formed shows when the text is read. With
    /// a document type it cannot tell: `isEnough` is then false.
    static MvXMLFile::Error scanAlone(QByteArrayView utf8, int mostElements, bool &isEnough);

    /// Reads the text once as a stream: well-formed, not too deep, not too many elements.
    static MvXMLFile::Error readThrough(const QByteArray &bytes, int mostElements);
    static MvXMLFile::Error readThrough(const QString &text, int mostElements);
    /// Why a reader of the bytes has stopped; none when it has read them to their end.
    static MvXMLFile::Error errorOf(const QXmlStreamReader &reader, const QByteArray &bytes);
};

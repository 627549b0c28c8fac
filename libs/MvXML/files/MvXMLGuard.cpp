// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLGuard.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString tooDeep()
{
    return MvXMLFile::tr("Die Elemente sind tiefer als %1 Ebenen verschachtelt.").arg(MvXMLGuard::depthLimit);
}

QString tooManyElements()
{
    return MvXMLFile::tr("Die Datei hat zu viele Elemente.");
}

/// Walks over the raw text and knows what it stands in: text, tag, comment, character data or instruction.
class RawScan
{
public:
    explicit RawScan(QByteArrayView text, int mostElements = std::numeric_limits<int>::max(),
                     int deepest = std::numeric_limits<int>::max())
        : m_text(text)
        , m_mostElements(mostElements)
        , m_deepest(deepest)
    {}

    bool hasDocumentType() const { return m_hasDocumentType; }

    MvXMLFile::Error run()
    {
        if (const qsizetype nul = m_text.indexOf('\0'); nul >= 0)
            return errorAt(nul, MvXMLFile::tr("Ein NUL-Zeichen darf nicht vorkommen."));
        qsizetype position = m_text.indexOf('<');
        while (position >= 0) {
            if (startsWith(position, "<!--"))
                position = after(position + 4, "-->");
            else if (startsWith(position, "<![CDATA["))
                position = after(position + 9, "]]>");
            else if (startsWith(position, "<?"))
                position = after(position + 2, "?>");
            else if (startsWith(position, "<!ENTITY"))
                return errorAt(position, MvXMLFile::tr("Entitäten dürfen nicht vereinbart werden."));
            else if (startsWith(position, "<!ATTLIST")) // a default of 60 KiB would count for every element
                return errorAt(position, MvXMLFile::tr("Vorgaben für Attribute dürfen nicht vereinbart werden."));
            else if (startsWith(position, "<!")) {
                m_hasDocumentType = true;
                position += 2; // declarations may hold others; only their start counts
            } else if (const MvXMLFile::Error error = passTag(position); error.isError()) {
                return error;
            }
            if (position < 0)
                break; // not closed: the stream pass names the place
            position = m_text.indexOf('<', position);
        }
        return {};
    }

private:
    bool startsWith(qsizetype position, QByteArrayView word) const { return m_text.sliced(position).startsWith(word); }

    qsizetype after(qsizetype position, QByteArrayView word) const
    {
        const qsizetype found = position <= m_text.size() ? m_text.indexOf(word, position) : -1;
        return found < 0 ? -1 : found + word.size();
    }

    /// Goes behind the tag, and counts.
    MvXMLFile::Error passTag(qsizetype &position)
    {
        int attributes = 0;
        const qsizetype end = endOfTag(position, attributes);
        if (attributes > MvXMLGuard::attributeLimit)
            return errorAt(
                position,
                MvXMLFile::tr("Eine Auszeichnung hat mehr als %1 Attribute.").arg(MvXMLGuard::attributeLimit));
        if (end < 0)
            return errorAt(position,
                           MvXMLFile::tr("Eine Auszeichnung ist länger als %1 KiB.").arg(MvXMLGuard::tagLimit / 1024));
        const bool isEnd = startsWith(position, "</");
        if (!isEnd && ++m_elements > m_mostElements)
            return errorAt(end, tooManyElements());
        if (isEnd)
            --m_depth;
        else if (end < 2 || m_text.at(end - 2) != '/')
            ++m_depth;
        if (m_depth > m_deepest)
            return errorAt(end, tooDeep());
        position = end;
        return {};
    }

    /// Behind the ">" of a tag; -1 when it is too long. A ">" in quotes belongs to a value. Counts quoted values.
    qsizetype endOfTag(qsizetype start, int &attributes) const
    {
        const qsizetype limit = std::min(m_text.size(), start + MvXMLGuard::tagLimit);
        char quote = 0;
        for (qsizetype i = start + 1; i < limit; ++i) {
            const char c = m_text.at(i);
            if (quote) {
                quote = c == quote ? 0 : quote;
            } else if (c == '"' || c == '\'') {
                quote = c;
                ++attributes;
            } else if (c == '>') {
                return i + 1;
            }
        }
        return limit == m_text.size() ? limit : -1;
    }

    MvXMLFile::Error errorAt(qsizetype position, const QString &message) const
    {
        const QByteArrayView before = m_text.first(position);
        const qsizetype lineStart = before.lastIndexOf('\n') + 1;
        return {message, int(before.count('\n')) + 1, int(position - lineStart) + 1};
    }

    QByteArrayView m_text;
    int m_mostElements;
    int m_deepest;
    int m_elements = 0;
    int m_depth = 0;
    bool m_hasDocumentType = false;
};

QString messageOf(const QXmlStreamReader &reader)
{
    switch (reader.error()) {
    case QXmlStreamReader::PrematureEndOfDocumentError:
        return MvXMLFile::tr("Die Datei endet zu früh.");
    case QXmlStreamReader::NotWellFormedError:
        return MvXMLFile::tr("Das ist kein wohlgeformtes XML (%1)").arg(reader.errorString());
    default:
        return reader.errorString();
    }
}

MvXMLFile::Error errorAt(const QXmlStreamReader &reader, const QString &message)
{
    return {message, int(reader.lineNumber()), int(reader.columnNumber()) + 1};
}

MvXMLFile::Error readThroughStream(QXmlStreamReader &reader, int mostElements)
{
    const auto error = [&reader](const QString &message) { return errorAt(reader, message); };
    reader.setNamespaceProcessing(false); // as the document is built
    int depth = 0;
    int elements = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > MvXMLGuard::depthLimit)
                return error(tooDeep());
            if (++elements > mostElements)
                return error(tooManyElements());
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty()) // what the raw look took for a comment or a value
                return error(MvXMLFile::tr("Entitäten dürfen nicht vereinbart werden."));
            if (reader.text().contains("<!ATTLIST"_L1))
                return error(MvXMLFile::tr("Vorgaben für Attribute dürfen nicht vereinbart werden."));
            break;
        case QXmlStreamReader::EntityReference:
            return error(MvXMLFile::tr("Die Entität \"%1\" ist nicht bekannt.").arg(reader.name()));
        default:
            break;
        }
    }
    return reader.hasError() ? error(messageOf(reader)) : MvXMLFile::Error{};
}

/// Place of the first bytes that are not UTF-8, in a text that does not name another encoding. The XML reader knows
/// only that there are some, since it decodes ahead.
MvXMLFile::Error wrongEncoding(const QByteArray &bytes)
{
    const QByteArray head = bytes.left(256).toLower();
    if (head.contains("encoding=") && !head.contains("utf-8"))
        return {};
    QStringDecoder whole(QStringConverter::Utf8);
    const QString decoded = whole.decode(bytes);
    if (!whole.hasError())
        return {};
    const QList<QByteArray> lines = bytes.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QStringDecoder decoder(QStringConverter::Utf8);
        const QString line = decoder.decode(lines.at(i));
        if (decoder.hasError())
            return {MvXMLFile::tr("Die Zeichen sind nicht als UTF-8 gespeichert."), int(i) + 1,
                    int(line.indexOf(QChar::ReplacementCharacter)) + 1};
    }
    return {};
}

} // namespace

QString MvXMLGuard::wideText(const QByteArray &bytes)
{
    const std::optional<QStringConverter::Encoding> encoding = QStringConverter::encodingForData(bytes, u'<');
    if (!encoding || *encoding == QStringConverter::Utf8)
        return {};
    QStringDecoder decoder(*encoding);
    return decoder.decode(bytes);
}

MvXMLFile::Error MvXMLGuard::scan(QByteArrayView utf8)
{
    return RawScan(utf8).run();
}

MvXMLFile::Error MvXMLGuard::scanAlone(QByteArrayView utf8, int mostElements, bool &isEnough)
{
    RawScan scan(utf8, mostElements, depthLimit);
    const MvXMLFile::Error error = scan.run();
    isEnough = !scan.hasDocumentType();
    return error;
}

MvXMLFile::Error MvXMLGuard::errorOf(const QXmlStreamReader &reader, const QByteArray &bytes)
{
    if (!reader.hasError())
        return {};
    const MvXMLFile::Error encoding = wrongEncoding(bytes);
    return encoding.isError() ? encoding : errorAt(reader, messageOf(reader));
}

MvXMLFile::Error MvXMLGuard::readThrough(const QByteArray &bytes, int mostElements)
{
    QXmlStreamReader reader(bytes);
    const MvXMLFile::Error error = readThroughStream(reader, mostElements);
    const MvXMLFile::Error encoding = error.isError() ? wrongEncoding(bytes) : MvXMLFile::Error();
    return encoding.isError() ? encoding : error;
}

MvXMLFile::Error MvXMLGuard::readThrough(const QString &text, int mostElements)
{
    QXmlStreamReader reader(text);
    return readThroughStream(reader, mostElements);
}

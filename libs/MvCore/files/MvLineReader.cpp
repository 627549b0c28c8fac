// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvLineReader.h"

#include <QIODevice>

#include <algorithm>

namespace {

const QByteArray byteOrderMark = QByteArrayLiteral("\xef\xbb\xbf");

std::optional<QStringConverter::Encoding> wideEncodingOf(const QByteArray &head)
{
    for (const char16_t first : {u'B', u'b'}) {
        const auto encoding = QStringConverter::encodingForData(head, first);
        if (encoding && *encoding != QStringConverter::Utf8)
            return encoding;
    }
    return {};
}

} // namespace

MvLineReader::MvLineReader(QIODevice *device, qsizetype longestLine, const GoOn &goOn)
    : m_device(device)
    , m_longestLine(longestLine)
    , m_goOn(goOn)
{}

bool MvLineReader::next(QByteArray *line)
{
    line->resize(0);
    m_isCut = false;
    skipLineEnd();
    if (!fill())
        return false;
    do {
        const char *begin = m_piece.cbegin() + m_at;
        const char *end = std::find_if(begin, m_piece.cend(), [](char c) { return c == '\n' || c == '\r'; });
        append(line, begin, end - begin);
        m_at += end - begin;
        if (end != m_piece.cend()) {
            m_isAfterReturn = *end == '\r';
            ++m_at;
            break;
        }
    } while (fill());
    if (line->startsWith(byteOrderMark))
        line->remove(0, byteOrderMark.size());
    return true;
}

/// After a carriage return: all others, and the line feed that ends them.
void MvLineReader::skipLineEnd()
{
    while (m_isAfterReturn && fill()) {
        const char c = m_piece.at(m_at);
        m_isAfterReturn = c == '\r';
        if (c == '\r' || c == '\n')
            ++m_at;
    }
    m_isAfterReturn = false;
}

/// True when there is a byte to look at.
bool MvLineReader::fill()
{
    while (m_at == m_piece.size()) {
        if (m_isAtEnd || !readPiece())
            return false;
    }
    return true;
}

bool MvLineReader::readPiece()
{
    m_piece = m_device->read(pieceSize);
    m_at = 0;
    const bool isFirst = m_bytesRead == 0;
    m_bytesRead += m_piece.size();
    m_isAtEnd = m_piece.isEmpty() || (m_goOn && !m_goOn(m_bytesRead));
    if (m_isAtEnd) {
        m_piece.clear();
        return false;
    }
    if (isFirst)
        if (const auto encoding = wideEncodingOf(m_piece))
            m_decoder.emplace(*encoding);
    if (m_decoder)
        m_piece = QString(m_decoder->decode(m_piece)).toUtf8();
    return true;
}

void MvLineReader::append(QByteArray *line, const char *bytes, qsizetype count)
{
    const qsizetype fitting = std::min(count, m_longestLine - line->size());
    line->append(bytes, fitting);
    m_isCut = m_isCut || fitting < count;
}

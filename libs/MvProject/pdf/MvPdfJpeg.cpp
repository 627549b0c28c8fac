// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfJpeg.h"

#include <QtEndian>

namespace {

enum Marker : uchar {
    Restart0 = 0xd0,
    Restart7 = 0xd7,
    Start = 0xd8,
    End = 0xd9,
    Scan = 0xda,
    Tables = 0xdb,
    Interval = 0xdd,
    Huffman = 0xc4,
    Baseline = 0xc0,
    Progressive = 0xc2,
    Jfif = 0xe0,
    Adobe = 0xee, // says how the colours are stored
};

uchar byteAt(const QByteArray &bytes, qsizetype at)
{
    return uchar(bytes[at]);
}

bool isNeeded(uchar marker)
{
    return marker == Scan || marker == Tables || marker == Interval || marker == Huffman || marker == Jfif ||
           marker == Adobe || (marker >= Baseline && marker <= Progressive);
}

/// Where the data of a scan end: at the next marker that is not one of its own.
qsizetype endOfScan(const QByteArray &file, qsizetype at)
{
    for (; at + 1 < file.size(); ++at) {
        if (byteAt(file, at) != 0xff)
            continue;
        const uchar next = byteAt(file, at + 1);
        if (next != 0x00 && next != 0xff && (next < Restart0 || next > Restart7))
            return at;
    }
    return file.size();
}

} // namespace

MvPdfJpeg::MvPdfJpeg(const QByteArray &file)
{
    if (!readParts(file))
        m_content.clear();
}

bool MvPdfJpeg::readParts(const QByteArray &file)
{
    if (file.size() < 4 || byteAt(file, 0) != 0xff || byteAt(file, 1) != Start)
        return false;
    m_content.reserve(file.size());
    m_content = file.first(2);
    for (qsizetype at = 2; at + 4 <= file.size() || at + 2 == file.size();) {
        if (byteAt(file, at) != 0xff)
            return false;
        const uchar marker = byteAt(file, at + 1);
        if (marker == 0xff) { // fills
            ++at;
            continue;
        }
        if (marker == End) {
            m_content += file.sliced(at, 2); // what follows is another picture
            return m_components > 0;
        }
        const qsizetype length = at + 4 <= file.size() ? qFromBigEndian<quint16>(file.constData() + at + 2) : 0;
        if (length < 2 || at + 2 + length > file.size())
            return false;
        qsizetype next = at + 2 + length;
        if (marker >= Baseline && marker <= 0xcf && marker != Huffman && marker != 0xc8 && marker != 0xcc &&
            (marker > Progressive || !readFrame(file.sliced(at, 2 + length))))
            return false;
        if (marker == Scan)
            next = endOfScan(file, next);
        if (isNeeded(marker))
            m_content += file.sliced(at, next - at);
        at = next;
    }
    return false;
}

bool MvPdfJpeg::readFrame(const QByteArray &part)
{
    constexpr qsizetype head = 10;
    constexpr int bits = 8;
    if (part.size() < head || byteAt(part, 4) != bits)
        return false;
    m_size = {qFromBigEndian<quint16>(part.constData() + 7), qFromBigEndian<quint16>(part.constData() + 5)};
    m_components = byteAt(part, 9);
    return m_components == 1 || m_components == 3;
}

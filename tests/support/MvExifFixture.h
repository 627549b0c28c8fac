// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QSize>
#include <QtEndian>

/// What cameras note in their files, put there by hand.
namespace MvExifFixture {

inline QByteArray little(quint32 value, int bytes)
{
    QByteArray text(4, 0);
    qToLittleEndian(value, text.data());
    return text.first(bytes);
}

inline QByteArray big(quint32 value)
{
    QByteArray text(4, 0);
    qToBigEndian(value, text.data());
    return text;
}

inline QByteArray note(int tag, int type, quint32 count, quint32 value)
{
    return little(quint32(tag), 2) + little(quint32(type), 2) + little(count, 4) + little(value, 4);
}

/// How the camera was held (1 to 8) and, if it is not empty, the text that it has for the time of the photo.
inline QByteArray block(int orientation, const QByteArray &time = {})
{
    constexpr quint32 second = 8 + 2 + 2 * 12 + 4; // where the part about the photo begins
    constexpr quint32 text = second + 2 + 12 + 4;
    return "II*" + QByteArray(1, 0) + little(8, 4)                                                               //
           + little(2, 2) + note(0x0112, 3, 1, quint32(orientation)) + note(0x8769, 4, 1, second) + little(0, 4) //
           + little(1, 2) + note(0x9003, 2, quint32(time.size()) + 1, text) + little(0, 4)                       //
           + time + QByteArray(1, 0);
}

/// What is written about the photo, in more than three bytes.
inline QByteArray described(const QByteArray &text)
{
    constexpr quint32 place = 8 + 2 + 12 + 4;
    return "II*" + QByteArray(1, 0) + little(8, 4) + little(1, 2) + note(0x010e, 2, quint32(text.size()) + 1, place) +
           little(0, 4) + text + QByteArray(1, 0);
}

inline QByteArray inJpeg(const QByteArray &jpeg, const QByteArray &block)
{
    const QByteArray content = QByteArray("Exif\0\0", 6) + block;
    return jpeg.first(2) + "\xff\xe1" + big(quint32(content.size()) + 2).last(2) + content + jpeg.mid(2);
}

inline QByteArray inPng(const QByteArray &png, const QByteArray &block)
{
    const QByteArray content = "eXIf" + block;
    quint32 sum = 0xffffffff;
    for (const char byte : content) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? 0xedb88320 ^ (sum >> 1) : sum >> 1;
    }
    constexpr int head = 8 + 25; // the file's mark, and what says the size
    return png.first(head) + big(quint32(block.size())) + content + big(~sum) + png.mid(head);
}

inline QByteArray inWebP(const QByteArray &webP, const QSize &size, const QByteArray &block)
{
    const QByteArray padding(block.size() & 1, 0);
    const QByteArray extended = "VP8X" + little(10, 4) + little(8, 4) + little(quint32(size.width()) - 1, 3) +
                                little(quint32(size.height()) - 1, 3);
    const QByteArray content =
        "WEBP" + extended + webP.mid(12) + "EXIF" + little(quint32(block.size()), 4) + block + padding;
    return "RIFF" + little(quint32(content.size()), 4) + content;
}

} // namespace MvExifFixture

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvExifBlock.h"

#include <QIODevice>
#include <QtEndian>

namespace {

constexpr qint64 mostBytes = 1 << 20;
constexpr qint64 mostBytesOfTiff = 64 << 20; // the notes of a TIFF may lie behind the picture
constexpr int mostPieces = 20'000;           // before the search is given up

QByteArray ofJpeg(QIODevice *device)
{
    qint64 start = 2; // after the mark of the file
    for (int piece = 0; piece < mostPieces; ++piece) {
        device->seek(start);
        const QByteArray head = device->read(10);
        if (head.size() < 10 || uchar(head.at(0)) != 0xff)
            return {};
        const uchar marker = uchar(head.at(1));
        if (marker == 0xff) { // fills up
            ++start;
            continue;
        }
        if (marker == 0xda || marker == 0xd9) // the picture; the end
            return {};
        const qint64 length = qFromBigEndian<quint16>(head.constData() + 2);
        if (marker == 0xe1 && head.endsWith(QByteArray("Exif\0\0", 6))) {
            device->seek(start + 4);
            return device->read(length - 2);
        }
        start += 2 + length;
    }
    return {};
}

QByteArray ofPng(QIODevice *device)
{
    qint64 start = 8;
    for (int piece = 0; piece < mostPieces; ++piece) {
        device->seek(start);
        const QByteArray head = device->read(8);
        if (head.size() < 8 || head.endsWith("IEND"))
            return {};
        const qint64 length = qFromBigEndian<quint32>(head.constData());
        if (head.endsWith("eXIf"))
            return length <= mostBytes ? device->read(length) : QByteArray();
        start += 12 + length;
    }
    return {};
}

QByteArray ofWebP(QIODevice *device)
{
    qint64 start = 12;
    for (int piece = 0; piece < mostPieces; ++piece) {
        device->seek(start);
        const QByteArray head = device->read(8);
        if (head.size() < 8)
            return {};
        const qint64 length = qFromLittleEndian<quint32>(head.constData() + 4);
        if (head.startsWith("EXIF"))
            return length <= mostBytes ? device->read(length) : QByteArray();
        start += 8 + length + (length & 1);
    }
    return {};
}

} // namespace

QByteArray MvExifBlock::find(QIODevice *device, const QByteArray &format)
{
    if (format == "jpeg")
        return ofJpeg(device);
    if (format == "png")
        return ofPng(device);
    if (format == "webp")
        return ofWebP(device);
    if (format == "tiff" && device->size() <= mostBytesOfTiff) {
        device->seek(0);
        return device->readAll();
    }
    return {};
}

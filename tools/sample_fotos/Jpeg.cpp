// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Jpeg.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QImageWriter>

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 asciiType = 2;
constexpr quint16 shortType = 3;
constexpr quint16 longType = 4;
constexpr quint16 orientationTag = 0x0112;
constexpr quint16 capturePointerTag = 0x8769;
constexpr quint16 captureTimeTag = 0x9003;

/// The segment of capture data: one directory with orientation and a pointer, one with the time.
QByteArray captureSegment(const QDateTime &taken)
{
    const QByteArray time = taken.toString(u"yyyy:MM:dd HH:mm:ss"_s).toLatin1() + '\0';
    QByteArray segment;
    QDataStream stream(&segment, QIODevice::WriteOnly); // numbers with the large end first
    stream.writeRawData("Exif\0\0MM\0*", 10);
    stream << quint32(8) // the first directory, counted from "MM" as all places are
           << quint16(2) << orientationTag << shortType << quint32(1) << quint16(1) << quint16(0) << capturePointerTag
           << longType << quint32(1) << quint32(38) << quint32(0);
    stream << quint16(1) << captureTimeTag << asciiType << quint32(time.size()) << quint32(56) << quint32(0);
    stream.writeRawData(time.constData(), int(time.size()));
    return segment;
}

} // namespace

bool Jpeg::write(const QImage &image, const QDateTime &taken, const QString &path)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(86);
    if (!writer.write(image))
        return false;
    const QByteArray segment = captureSegment(taken);
    const qsizetype size = segment.size() + 2;
    QByteArray jpeg = buffer.data();
    jpeg.insert(2, QByteArray("\xff\xe1") + char(size >> 8) + char(size & 255) + segment);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(jpeg) == jpeg.size() && file.flush();
}

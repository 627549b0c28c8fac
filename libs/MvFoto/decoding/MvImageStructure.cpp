// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvImageStructure.h"

#include <QtEndian>

#include <cstring>

namespace {

constexpr uchar startOfScan = 0xda;
constexpr uchar endOfImage = 0xd9;
constexpr qsizetype mostPngStretches = 10'000;
constexpr int mostPngChunks = 300'000; // of 8 KB usually

/// Goes through the markers of a JPEG, whose compressed data lies between them.
class JpegMarkers
{
public:
    explicit JpegMarkers(QIODevice *device)
        : m_device(device)
    {
        m_device->seek(2); // after the start
    }

    /// The next marker; 0 after the end of the image and of the file. Its content is passed over.
    uchar next()
    {
        if (m_last == endOfImage || !(m_last == startOfScan ? findMarker() : expectMarker()))
            return 0;
        m_last = take();
        const bool isAlone = m_last == 0x01 || (m_last >= 0xd0 && m_last <= endOfImage);
        if (!isAlone) {
            const int high = take();
            skip((high << 8 | take()) - 2);
        }
        return m_last;
    }

private:
    bool fill()
    {
        if (m_at < m_buffer.size())
            return true;
        m_buffer = m_device->read(1 << 16);
        m_at = 0;
        return !m_buffer.isEmpty();
    }

    uchar take() { return fill() ? uchar(m_buffer.at(m_at++)) : uchar(0); }

    void skip(qint64 count)
    {
        while (count > 0 && fill()) {
            const qint64 step = qMin(count, qint64(m_buffer.size()) - m_at);
            m_at += step;
            count -= step;
        }
    }

    /// Stands after the 0xff of a marker afterwards; some writers repeat it.
    bool expectMarker()
    {
        if (take() != 0xff)
            return false;
        while (fill() && uchar(m_buffer.at(m_at)) == 0xff)
            ++m_at;
        return fill();
    }

    /// The same, after compressed data. A 0xff that belongs to the data is followed by 0 or a restart marker.
    bool findMarker()
    {
        while (fill()) {
            const void *found = std::memchr(m_buffer.constData() + m_at, 0xff, size_t(m_buffer.size() - m_at));
            if (!found) {
                m_at = m_buffer.size();
                continue;
            }
            m_at = static_cast<const char *>(found) - m_buffer.constData();
            if (!expectMarker())
                return false;
            const uchar marker = uchar(m_buffer.at(m_at));
            if (marker != 0 && (marker < 0xd0 || marker > 0xd7))
                return true;
        }
        return false;
    }

    QIODevice *m_device;
    QByteArray m_buffer;
    qint64 m_at = 0;
    uchar m_last = 0xd8;
};

} // namespace

MvImageStructure::Jpeg MvImageStructure::jpeg(QIODevice *device, int mostScans)
{
    JpegMarkers markers(device);
    Jpeg jpeg;
    while (const uchar marker = markers.next()) {
        jpeg.hasEnd = marker == endOfImage;
        if (marker == startOfScan && ++jpeg.scans > mostScans)
            break;
    }
    return jpeg;
}

QList<MvImageDevice::Stretch> MvImageStructure::pngWithoutTexts(QIODevice *device, PngPart part)
{
    QList<MvImageDevice::Stretch> stretches{{0, 8}};
    const qint64 size = device->size();
    int chunks = 0;
    for (qint64 start = 8; start < size; ++chunks) {
        device->seek(start);
        const QByteArray head = device->read(8);
        if (head.size() < 8)
            break;
        const QByteArray type = head.mid(4);
        const bool isRest = part == PngPart::Head && type == "IDAT";
        const qint64 length =
            isRest ? size - start : qMin(12 + qint64(qFromBigEndian<quint32>(head.constData())), size - start);
        if (type != "tEXt" && type != "zTXt" && type != "iTXt") {
            MvImageDevice::Stretch &last = stretches.last();
            if (last.start + last.length == start)
                last.length += length;
            else
                stretches.append({start, length});
        }
        if (stretches.size() > mostPngStretches || chunks > mostPngChunks)
            return {};
        start += length;
    }
    return stretches;
}

QSize MvImageStructure::gifCanvas(QIODevice *device)
{
    device->seek(6);
    const QByteArray sides = device->read(4);
    if (sides.size() < 4)
        return {};
    return {qFromLittleEndian<quint16>(sides.constData()), qFromLittleEndian<quint16>(sides.constData() + 2)};
}

bool MvImageStructure::isAnimatedWebP(QIODevice *device)
{
    device->seek(12);
    const QByteArray head = device->read(9);
    return head.startsWith("VP8X") && head.size() == 9 && (uchar(head.at(8)) & 0x02);
}

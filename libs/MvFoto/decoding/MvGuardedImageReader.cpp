// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvGuardedImageReader.h"

#include "MvCore/MvRegularFile.h"
#include "MvFoto/MvExif.h"
#include "MvFoto/MvExifBlock.h"
#include "MvFoto/MvHeifImage.h"
#include "MvFoto/MvImageDevice.h"
#include "MvFoto/MvImageFormat.h"
#include "MvFoto/MvImageStructure.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImageReader>
#include <QMutex>
#include <QPixelFormat>
#include <QTransform>

#include <cstdlib>
#include <limits>
#include <utility>

namespace {

constexpr int smoothQuality = 90;              // of scaled decoding: smooth instead of fast
constexpr qint64 quickPixels = 4'500'000;      // decoded in some 50 ms
constexpr qint64 quickBytes = 16 << 20;        // a file to be looked through
constexpr qint64 quickHeicPixels = 1'000'000;  // the same time for a format that takes more of it
constexpr int quickScans = 12;                 // as in usual progressive files
constexpr int missingGray = 128;               // what a JPEG decoder puts in the place of missing data
constexpr qint64 largePixels = 16'000'000;     // above this, the file must hold a plausible amount of data
constexpr qint64 mostPixelsPerByte = 4096;     // a blank page as a bitmap still has more
constexpr qint64 mostPixelsPerByteAtAll = 256; // of JPEG and BMP
constexpr qint64 largeMemory = 128 << 20;      // bytes; one such image at a time
constexpr qint64 otherFileLimit = 256 << 20;   // bytes of files that decoders load as a whole

/// As QImageReader does it: mirrored first, then turned.
QImage turned(const QImage &image, QImageIOHandler::Transformations turn)
{
    const QImage mirrored =
        image.mirrored(turn & QImageIOHandler::TransformationMirror, turn & QImageIOHandler::TransformationFlip);
    return turn & QImageIOHandler::TransformationRotate90 ? mirrored.transformed(QTransform().rotate(90)) : mirrored;
}

/// Whether one edge of the picture is nothing but the gray that stands for missing data; after turning it may be any.
bool hasGrayEdge(const QImage &image)
{
    const auto isGray = [&image](int x, int y) {
        const QRgb color = image.pixel(x, y);
        return std::abs(qRed(color) - missingGray) <= 1 && std::abs(qGreen(color) - missingGray) <= 1 &&
               std::abs(qBlue(color) - missingGray) <= 1;
    };
    const auto isGrayRow = [&](int y) {
        int x = 0;
        while (x < image.width() && isGray(x, y))
            ++x;
        return x == image.width();
    };
    const auto isGrayColumn = [&](int x) {
        int y = 0;
        while (y < image.height() && isGray(x, y))
            ++y;
        return y == image.height();
    };
    return isGrayRow(0) || isGrayRow(image.height() - 1) || isGrayColumn(0) || isGrayColumn(image.width() - 1);
}

qint64 pixelsOf(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

qint64 processLimit()
{
    const int megabytes = QImageReader::allocationLimit();
    return megabytes > 0 ? qint64(megabytes) << 20 : std::numeric_limits<qint64>::max();
}

/// One large image is decoded at a time: several threads do not take several times the memory.
QMutex &largeImages()
{
    static QMutex mutex;
    return mutex;
}

} // namespace

MvGuardedImageReader::MvGuardedImageReader(const QFileInfo &file)
{
    MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(file.filePath()));
    m_source = std::move(opened.file);
    m_error = opened.error;
    open();
}

MvGuardedImageReader::MvGuardedImageReader(const QByteArray &content)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(content);
    buffer->open(QIODevice::ReadOnly);
    m_source = std::move(buffer);
    open();
}

MvGuardedImageReader::~MvGuardedImageReader() = default;

void MvGuardedImageReader::open()
{
    if (!m_source)
        return;
    const QByteArray format = MvImageFormat::fromContent(m_source->peek(MvImageFormat::headSize));
    if (format.isEmpty()) {
        m_error = tr("Gelesen werden JPEG, PNG, HEIC, TIFF, WebP, BMP und GIF.");
        return;
    }
    const bool isLoadedAsAWhole = format == "webp" || format == "gif" || format == "heic";
    if (m_source->size() > (isLoadedAsAWhole ? otherFileLimit : fileLimit)) {
        m_error = tr("Die Datei ist zu groß.");
        return;
    }
    m_device = std::make_unique<MvImageDevice>(m_source.get());
    m_device->setTimeLimit(timeLimit);
    m_format = format;
    if (format == "heic") {
        m_heif = MvHeifImage::open(m_device.get(), &m_error);
        if (m_heif)
            m_heif->setTimeLimit(timeLimit);
        else
            m_device.reset(); // nothing will be read
    } else {
        openReader();
    }
}

void MvGuardedImageReader::openReader()
{
    if (m_format == "png")
        m_device->setStretches(MvImageStructure::pngWithoutTexts(m_source.get(), MvImageStructure::PngPart::Head));
    if (m_format == "gif")
        m_canvas = MvImageStructure::gifCanvas(m_source.get());
    m_reader = std::make_unique<QImageReader>();
    m_reader->setDevice(m_device.get());
    m_reader->setAutoDetectImageFormat(false); // no other decoder gets to see the file
    m_reader->setFormat(m_format);
    m_reader->setQuality(smoothQuality);
    m_reader->setAutoTransform(false);
    // turned afterwards, when it is smaller
    m_turn =
        m_reader->supportsOption(QImageIOHandler::ImageTransformation) ? m_reader->transformation() : exif().turn();
}

MvExif MvGuardedImageReader::exif() const
{
    if (m_heif)
        return MvExif(m_heif->exif());
    return m_reader ? MvExif(MvExifBlock::find(m_source.get(), m_format)) : MvExif();
}

bool MvGuardedImageReader::isTurned() const
{
    return m_turn & QImageIOHandler::TransformationRotate90;
}

QSize MvGuardedImageReader::size() const
{
    if (m_heif)
        return m_heif->size();
    if (!m_reader)
        return {};
    const QSize size = m_reader->size();
    return isTurned() ? size.transposed() : size;
}

/// Checks the whole file, not only its header.
void MvGuardedImageReader::lookThrough()
{
    if (std::exchange(m_isLookedThrough, true))
        return;
    if (m_format == "png")
        m_device->setStretches(MvImageStructure::pngWithoutTexts(m_source.get(), MvImageStructure::PngPart::All));
    m_mayBeCutOff = m_format == "bmp";
    if (m_format == "jpeg") {
        const MvImageStructure::Jpeg jpeg = MvImageStructure::jpeg(m_source.get(), scanLimit);
        m_scans = jpeg.scans;
        m_mayBeCutOff = !jpeg.hasEnd;
    }
}

void MvGuardedImageReader::setTimeLimit(double seconds)
{
    if (m_device)
        m_device->setTimeLimit(seconds);
    if (m_heif)
        m_heif->setTimeLimit(seconds);
}

bool MvGuardedImageReader::isQuick()
{
    if (!m_device)
        return true; // nothing will be read
    if (isHollow(size()))
        return true;
    const qint64 mostPixels = m_heif ? quickHeicPixels : quickPixels;
    if (m_source->size() > quickBytes || pixelsOf(decodedSize(size())) > mostPixels)
        return false;
    lookThrough();
    return m_scans <= quickScans;
}

/// Whether the file holds too little data for a picture of its size.
bool MvGuardedImageReader::isHollow(const QSize &full) const
{
    const qint64 pixels = pixelsOf(decodedSize(full));
    return pixels > largePixels && pixels / mostPixelsPerByte > m_source->size();
}

/// The image that the decoder fills, in bytes.
qint64 MvGuardedImageReader::largestImage(const QSize &full, const QSize &target) const
{
    const qint64 pixels = pixelsOf(decodedSize(full));
    if (m_format == "jpeg") { // made smaller on the way, by up to 8
        const qint64 divisor =
            qBound(1, qMin(full.width() / (2 * target.width()), full.height() / (2 * target.height())), 8);
        return 4 * pixels / (divisor * divisor);
    }
    if (m_heif)
        return 4 * pixels;
    const QPixelFormat format = QImage::toPixelFormat(m_reader->imageFormat());
    return pixels * qMax<qint64>(4, format.bitsPerPixel() / 8);
}

/// What decoding takes at its worst moment, in bytes.
qint64 MvGuardedImageReader::neededMemory(const QSize &full, const QSize &target) const
{
    if (m_heif)
        return m_heif->bytesPerPixel() * pixelsOf(full);
    const qint64 image = largestImage(full, target);
    if (m_format == "jpeg" && m_scans > 1)
        return image + 6 * pixelsOf(full); // several passes are gathered in full
    if (m_format == "gif")
        return 2 * image;
    if (m_format == "webp" && MvImageStructure::isAnimatedWebP(m_source.get()))
        return 4 * image;
    return image;
}

bool MvGuardedImageReader::isWithinLimits(const QSize &full, const QSize &target)
{
    const QSize decoded = decodedSize(full);
    const QString size = tr("%1 × %2 Bildpunkte").arg(decoded.width()).arg(decoded.height());
    // decoders fill in missing data; too little of it is not a picture
    const bool isCutOff = m_mayBeCutOff && pixelsOf(full) / mostPixelsPerByteAtAll > m_source->size();
    if (full.isEmpty() || target.isEmpty() || isCutOff)
        m_error = tr("Die Datei ist beschädigt oder nicht vollständig.");
    else if (isHollow(full))
        m_error = tr("Die Datei ist viel zu klein für die %1, die sie haben will.").arg(size);
    else if (m_scans > scanLimit)
        m_error = tr("Das Bild ist in mehr als %1 Durchgängen gespeichert. So etwas tut kein übliches Programm.")
                      .arg(scanLimit);
    else if (neededMemory(full, target) > memoryLimit || largestImage(full, target) > processLimit())
        m_error = tr("Das Bild ist zu groß: %1. Verkleinern Sie es in einem Bildprogramm.").arg(size);
    return m_error.isEmpty();
}

bool MvGuardedImageReader::hasRunOut() const
{
    return m_device->hasRunOut() || (m_heif && m_heif->hasRunOut());
}

QImage MvGuardedImageReader::read(const QSize &bounds)
{
    if (!m_device)
        return {};
    const QSize full = size();
    const QSize target =
        bounds.isEmpty() || full.isEmpty() ? full : full.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
    lookThrough();
    if (!isWithinLimits(full, target))
        return {};
    QMutexLocker lock(neededMemory(full, target) > largeMemory ? &largeImages() : nullptr);
    const QImage image = decoded(full, target);
    const bool isCutOff = m_format == "jpeg" && m_mayBeCutOff && !image.isNull() && hasGrayEdge(image);
    if (!image.isNull() && !isCutOff && !hasRunOut()) { // decoders accept truncated files
        const bool isAsPainted = !image.colorSpace().isValid() || image.colorSpace() == QColorSpace(QColorSpace::SRgb);
        m_isUnchangedJpeg = m_format == "jpeg" && isAsPainted && target == full && image.size() == full &&
                            m_turn == QImageIOHandler::TransformationNone;
        return readyToPaint(image, target);
    }
    m_error =
        hasRunOut() ? tr("Das Bild zu lesen dauert zu lange.") : tr("Die Datei ist beschädigt oder nicht vollständig.");
    return {};
}

/// What the decoder is asked for, upright. That of JPEG halves on the way: it saves time, and nothing is seen of it
/// where enough pixels are left to spare. What it does not come to by halving, it scales to, which is once too often.
QSize MvGuardedImageReader::givenSize(const QSize &full, const QSize &target) const
{
    constexpr double spare = 1.4; // times as many each way
    if (m_format == "jpeg") {
        for (const int divisor : {8, 4, 2}) {
            const bool isLarge =
                full.width() >= spare * divisor * target.width() && full.height() >= spare * divisor * target.height();
            if (isLarge && full.width() % divisor == 0 && full.height() % divisor == 0)
                return full / divisor;
        }
    }
    const double much = m_format == "jpeg" ? 2 * spare : 2.0;
    return full.width() > much * target.width() && full.height() > much * target.height() ? 2 * target : full;
}

/// The picture as it is stored, not turned yet, at least as large as the target.
QImage MvGuardedImageReader::decoded(const QSize &full, const QSize &target)
{
    if (m_heif)
        return m_heif->decode();
    if (const QSize given = givenSize(full, target); given != full)
        m_reader->setScaledSize(isTurned() ? given.transposed() : given);
    QImage image = m_reader->read();
    if (m_format == "jpeg" && !image.colorSpace().isValid() && exif().isAdobeRgb())
        image.setColorSpace(QColorSpace::AdobeRgb);
    return image;
}

QImage MvGuardedImageReader::readyToPaint(QImage image, const QSize &target) const
{
    if (const QSize stored = isTurned() ? target.transposed() : target; image.size() != stored)
        image = image.scaled(stored, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (m_turn != QImageIOHandler::TransformationNone)
        image = turned(image, m_turn);
    const QColorSpace srgb(QColorSpace::SRgb);
    if (image.colorSpace().isValid() && image.colorSpace() != srgb)
        image.convertToColorSpace(srgb);
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return image;
}

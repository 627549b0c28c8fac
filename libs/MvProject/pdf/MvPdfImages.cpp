// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfImages.h"

#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfJpeg.h"
#include "MvProject/MvPdfSyntax.h"

#include <QColorSpace>
#include <QHashFunctions>

namespace {

/// Twice 64 bits that follow from all pixels: equal ones for different pictures are as likely as a faulty computer.
QByteArray hashOf(const QImage &image)
{
    constexpr size_t seeds[] = {0x6d76, 0x63616c};
    const qsizetype width = (qsizetype(image.width()) * image.depth() + 7) / 8; // lines may have more behind
    QByteArray all;
    for (const size_t seed : seeds) {
        size_t hash = qHashMulti(seed, image.width(), image.height(), int(image.format()));
        for (int y = 0; y < image.height(); ++y)
            hash = qHashBits(image.constScanLine(y), size_t(width), hash);
        all.append(reinterpret_cast<const char *>(&hash), sizeof(hash));
    }
    return all;
}

/// Without colour tables and other forms that only some pictures have.
QImage plain(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

} // namespace

int MvPdfImages::object(const QImage &image, const QRect &part, const QSize &needed)
{
    const Use use{image.cacheKey(), part, needed};
    if (const auto known = m_uses.constFind(use); known != m_uses.cend())
        return *known;
    QImage seen = part == image.rect() ? image : image.copy(part);
    if (constexpr double much = 1.5; seen.width() > much * needed.width() && seen.height() > much * needed.height())
        seen = seen.scaled(needed.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    seen = plain(seen); // which leaves those as they are that come from a file
    const QByteArray hash = hashOf(seen);
    const auto known = m_contents.constFind(hash);
    const int object = known != m_contents.cend() ? *known : *m_contents.insert(hash, add(seen));
    m_uses.insert(use, object);
    return object;
}

MvPdfImageEncoder::Stream MvPdfImages::packed(const QImage &image)
{
    if (!m_press)
        return inColors(image);
    return m_keepsFotoColors && MvPdfImageEncoder::isColorFoto(image) ? inOwnColors(image)
                                                                      : MvPdfImageEncoder::inks(image, *m_press);
}

/// With the profile that says what they are, and with the ink that they are likely to become.
MvPdfImageEncoder::Stream MvPdfImages::inOwnColors(const QImage &image)
{
    if (m_profile == 0)
        m_profile = m_file.addStream("/N 3", QColorSpace(QColorSpace::SRgb).iccProfile());
    MvPdfImageEncoder::Stream stream = inColors(image);
    stream.entries.replace("/DeviceRGB", "[/ICCBased " + MvPdfSyntax::reference(m_profile) + "]");
    stream.ink = MvPdfImageEncoder::inkOf(image, *m_press);
    return stream;
}

MvPdfImageEncoder::Stream MvPdfImages::inColors(const QImage &image)
{
    if (const MvPdfJpeg jpeg(MvImageLoader::instance().jpegOf(image));
        !jpeg.content().isEmpty() && jpeg.size() == image.size())
        return MvPdfImageEncoder::stored(jpeg);
    return MvPdfImageEncoder::colors(image);
}

int MvPdfImages::add(const QImage &image)
{
    MvPdfImageEncoder::Stream colors = packed(image);
    if (MvPdfImageEncoder::isTranslucent(image)) {
        const MvPdfImageEncoder::Stream opacity = MvPdfImageEncoder::opacity(image);
        colors.entries += "/SMask " + MvPdfSyntax::reference(m_file.addPackedStream(opacity.entries, opacity.content));
    }
    const int object = m_file.addPackedStream(colors.entries, colors.content);
    if (m_press)
        m_inks.insert(object, colors.ink);
    return object;
}

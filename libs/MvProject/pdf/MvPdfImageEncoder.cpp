// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfImageEncoder.h"

#include "MvProject/MvInkJpeg.h"
#include "MvProject/MvPdfJpeg.h"
#include "MvProject/MvPressColors.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QtEndian>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace {

constexpr int inkCount = 4;

QByteArray entriesIn(const QByteArray &colors, const QSize &size, const QByteArray &filter)
{
    return "/Type/XObject/Subtype/Image/BitsPerComponent 8/Width " + QByteArray::number(size.width()) + "/Height " +
           QByteArray::number(size.height()) + "/ColorSpace" + colors + filter;
}

QByteArray entriesOf(const QSize &size, bool isGray, const QByteArray &filter)
{
    return entriesIn(isGray ? "/DeviceGray" : "/DeviceRGB", size, filter);
}

/// The fields of some pixels with most ink: a single pixel wets no paper. So many bytes for each pixel, row by row.
MvPdfImageEncoder::Ink mostInk(const QByteArray &inks, const QSize &size, int perPixel)
{
    constexpr int side = 16;
    MvPdfImageEncoder::Ink most;
    for (int top = 0; top < size.height(); top += side) {
        const int bottom = std::min(top + side, size.height());
        for (int left = 0; left < size.width(); left += side) {
            const int right = std::min(left + side, size.width());
            quint64 sum = 0;
            for (int y = top; y < bottom; ++y) {
                const char *from = inks.constData() + (qsizetype(y) * size.width() + left) * perPixel;
                sum = std::accumulate(from, from + qsizetype(right - left) * perPixel, sum,
                                      [](quint64 all, char ink) { return all + uchar(ink); });
            }
            const double percent = double(sum) / 2.55 / ((bottom - top) * (right - left));
            if (percent > most.percent)
                most = {percent, {(left + right) / 2.0 / size.width(), (top + bottom) / 2.0 / size.height()}};
        }
    }
    return most;
}

/// The amount of black in each pixel of a grey picture.
QByteArray blacksOf(const QImage &gray)
{
    QByteArray blacks;
    blacks.reserve(qsizetype(gray.width()) * gray.height());
    for (int y = 0; y < gray.height(); ++y) {
        const uchar *line = gray.constScanLine(y);
        std::transform(line, line + gray.width(), std::back_inserter(blacks),
                       [](uchar value) { return char(uchar(255 - value)); });
    }
    return blacks;
}

bool isGray(const QImage &image)
{
    return image.format() == QImage::Format_Grayscale8;
}

QByteArray written(const QImage &image, const char *format, int quality)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    return writer.write(image) ? buffer.data() : QByteArray();
}

/// The packed pixels of a PNG file, whose form PDF knows as well.
QByteArray pixelsOfPng(const QByteArray &png)
{
    constexpr qsizetype signature = 8;
    constexpr qsizetype around = 12; // length, name and checksum
    QByteArray pixels;
    for (qsizetype at = signature; at + around <= png.size();) {
        const auto size = qsizetype(qFromBigEndian<quint32>(png.constData() + at));
        if (png.sliced(at + 4, 4) == "IDAT")
            pixels += png.sliced(at + 8, size);
        at += size + around;
    }
    return pixels;
}

QImage withoutColorSpace(QImage image)
{
    image.setColorSpace({});
    return image;
}

} // namespace

bool MvPdfImageEncoder::isTranslucent(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return false;
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar *line = alpha.constScanLine(y);
        if (std::any_of(line, line + alpha.width(), [](uchar value) { return value != 255; }))
            return true;
    }
    return false;
}

MvPdfImageEncoder::Stream MvPdfImageEncoder::colors(const QImage &image)
{
    const bool isGray = image.allGray();
    const auto plain = [isGray](const QImage &part) {
        return withoutColorSpace(part.convertToFormat(isGray ? QImage::Format_Grayscale8 : QImage::Format_RGB888));
    };
    if (isTranslucent(image) || isFlat(image, plain))
        return lossless(plain(image));
    const bool isWrittenAsItIs = !isGray && image.format() == QImage::Format_RGB32;
    return jpeg(isWrittenAsItIs ? withoutColorSpace(image) : plain(image)); // a large one is not converted for nothing
}

MvPdfImageEncoder::Stream MvPdfImageEncoder::inks(const QImage &image, const MvPressColors &press)
{
    constexpr qsizetype sizeBefore = 4; // bytes of the length that packed bytes begin with
    if (image.allGray()) {
        const QImage gray = press.grays(image);
        Stream stream = isTranslucent(image) ? lossless(gray) : colors(gray);
        stream.ink = mostInk(blacksOf(gray), gray.size(), 1);
        return stream;
    }
    const auto plain = [](const QImage &part) { return part.convertToFormat(QImage::Format_RGB888); };
    const bool isDrawing = isFlat(image, plain);
    const bool isExact = isDrawing || isTranslucent(image); // colours must end where the opacity does
    const QByteArray inks = isDrawing ? press.drawing(image) : press.photo(image);
    const QByteArray photo = isExact ? QByteArray() : MvInkJpeg::packed(inks, image.size(), quality);
    const Ink most = mostInk(inks, image.size(), inkCount);
    if (!photo.isEmpty())
        return {entriesIn("/DeviceCMYK", image.size(), "/Filter/DCTDecode"), photo, most};
    return {entriesIn("/DeviceCMYK", image.size(), "/Filter/FlateDecode"), qCompress(inks).sliced(sizeBefore), most};
}

MvPdfImageEncoder::Ink MvPdfImageEncoder::inkOf(const QImage &image, const MvPressColors &press)
{
    return mostInk(press.photo(image), image.size(), inkCount);
}

bool MvPdfImageEncoder::isColorFoto(const QImage &image)
{
    const auto plain = [](const QImage &part) { return part.convertToFormat(QImage::Format_RGB888); };
    return !image.allGray() && !isFlat(image, plain);
}

MvPdfImageEncoder::Stream MvPdfImageEncoder::opacity(const QImage &image)
{
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    const QImage gray(alpha.constBits(), alpha.width(), alpha.height(), alpha.bytesPerLine(),
                      QImage::Format_Grayscale8);
    return lossless(gray);
}

MvPdfImageEncoder::Stream MvPdfImageEncoder::jpeg(const QImage &image)
{
    return {entriesOf(image.size(), isGray(image), "/Filter/DCTDecode"), written(image, "jpeg", quality)};
}

MvPdfImageEncoder::Stream MvPdfImageEncoder::stored(const MvPdfJpeg &jpeg)
{
    return {entriesOf(jpeg.size(), jpeg.isGray(), "/Filter/DCTDecode"), jpeg.content()};
}

MvPdfImageEncoder::Stream MvPdfImageEncoder::lossless(const QImage &image)
{
    constexpr int defaultLevel = -1;
    const QByteArray colors = isGray(image) ? "1" : "3";
    return {entriesOf(image.size(), isGray(image),
                      "/Filter/FlateDecode/DecodeParms<</Predictor 15/Colors " + colors + "/Columns " +
                          QByteArray::number(image.width()) + ">>"),
            pixelsOfPng(written(image, "png", defaultLevel))};
}

/// Looks at some of the rows.
bool MvPdfImageEncoder::isFlat(const QImage &image, const std::function<QImage(const QImage &)> &plain)
{
    constexpr int small = 64; // pixels
    constexpr int rows = 64;
    constexpr qsizetype flatRatio = 4; // photographs do not pack that well
    if (image.width() <= small && image.height() <= small)
        return true;
    QByteArray sample;
    for (int y = 0; y < image.height(); y += std::max(1, image.height() / rows)) {
        const QImage row = plain(image.copy(0, y, image.width(), 1));
        sample.append(reinterpret_cast<const char *>(row.constBits()), qsizetype(row.width()) * row.depth() / 8);
    }
    return qCompress(sample, 1).size() * flatRatio < sample.size();
}

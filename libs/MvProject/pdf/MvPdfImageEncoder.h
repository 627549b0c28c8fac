// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPointF>

#include <functional>

class MvPdfJpeg;
class MvPressColors;

/// Packs pictures for a PDF: photographs as JPEG, what has few colours or large areas of one without any loss.
class MvPdfImageEncoder
{
public:
    static constexpr int quality = 92; // of JPEG

    /// Where most of all inks lies, in percent of one and as a share of width and height from the upper left corner.
    struct Ink
    {
        double percent = 0.0;
        QPointF place;
    };

    /// An image stream: what its dictionary says, without a mask, and its bytes.
    struct Stream
    {
        QByteArray entries;
        QByteArray content;
        Ink ink = {}; // of a picture for the press
    };

    /// The colours; what is translucent keeps its colour and is never packed with losses.
    static Stream colors(const QImage &image);
    /// The colours as inks; a grey picture as black alone.
    static Stream inks(const QImage &image, const MvPressColors &press);
    /// Where a photo would have most of all inks.
    static Ink inkOf(const QImage &image, const MvPressColors &press);
    /// Whether it has colours, and no areas of one as drawings have.
    static bool isColorFoto(const QImage &image);
    /// The opacity as shades of grey.
    static Stream opacity(const QImage &image);
    /// A file that is taken in as it is.
    static Stream stored(const MvPdfJpeg &jpeg);
    /// Whether any pixel is not opaque.
    static bool isTranslucent(const QImage &image);

private:
    static Stream jpeg(const QImage &image);
    static Stream lossless(const QImage &image);
    /// The function makes what would be packed.
    static bool isFlat(const QImage &image, const std::function<QImage(const QImage &)> &plain);
};

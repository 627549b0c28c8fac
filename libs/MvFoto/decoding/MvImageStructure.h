// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvImageDevice.h"

#include <QIODevice>
#include <QList>
#include <QSize>

/// What the raw structure of an image file tells before anything is decoded. The position of the device is moved.
class MvImageStructure
{
public:
    struct Jpeg
    {
        int scans = 0;       // passes over the picture that it is stored in: 1, or some 10 usually
        bool hasEnd = false; // the mark of its end is there; few complete files go without
    };
    /// Counting ends above `mostScans`.
    static Jpeg jpeg(QIODevice *device, int mostScans);

    enum class PngPart { Head, All };
    /// A PNG without its texts, which a decoder unpacks although nobody asked for them: a few bytes may become
    /// gigabytes. For the head, texts after the picture stay: finding them takes going through the file. Both begin
    /// alike. Empty when there are too many pieces for an honest file.
    static QList<MvImageDevice::Stretch> pngWithoutTexts(QIODevice *device, PngPart part);

    /// The canvas of a GIF, which a decoder makes in full however small the picture on it is; empty when there is none.
    static QSize gifCanvas(QIODevice *device);

    /// Whether a WebP has several pictures, for which a decoder keeps several canvases.
    static bool isAnimatedWebP(QIODevice *device);
};

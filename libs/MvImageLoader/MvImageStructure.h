#pragma once

#include "MvImageLoader/MvImageDevice.h"

#include <QIODevice>
#include <QList>
#include <QSize>

/// What the raw structure of an image file tells before anything is decoded. The position of the device is moved.
class MvImageStructure
{
public:
    /// The number of passes over the picture that a JPEG is stored in: 1, or some 10 usually. Counting ends above
    /// `most`. 0 when the structure is broken before the first one.
    static int jpegScans(QIODevice *device, int most);

    /// A PNG without its texts, which a decoder unpacks although nobody asked for them: a few bytes may become
    /// gigabytes. Empty when there are too many pieces for an honest file.
    static QList<MvImageDevice::Stretch> pngWithoutTexts(QIODevice *device);

    /// The canvas of a GIF, which a decoder makes in full however small the picture on it is; empty when there is none.
    static QSize gifCanvas(QIODevice *device);

    /// Whether a WebP has several pictures, for which a decoder keeps several canvases.
    static bool isAnimatedWebP(QIODevice *device);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFoto.h"
#include "MvFoto/mvfoto_export.h"

#include <QImage>
#include <QSize>
#include <QString>

/// The pixels of photos, turned and in sRGB (see MvImageLoader). A photo that cannot be read, or may not be opened,
/// gives a null image. Any thread.
class MVFOTO_EXPORT MvFotoAccess
{
public:
    /// Bits of the caching option; further bits are reserved.
    enum Caching {
        NoCaching = 0,
        UseMemory = 1, // keep the decoded image, and take a kept one
    };

    /// Size in pixels of the photo in full resolution; invalid when it cannot be read.
    static QSize preferredSize(const MvFoto &foto);
    static QImage fullRes(const MvFoto &foto);
    /// Medium resolution: the longer side has at most 128 * 2^quality pixels, 2048 for quality 4. Smaller photos stay
    /// as they are.
    static QImage midRes(const MvFoto &foto, int quality, int caching);
    /// Why a photo gave a null image last, for a person; empty for one that may not be opened.
    static QString error(const MvFoto &foto);
    /// The photo within the bounds (pixels), keeping its aspect ratio; decoded once per size and file state.
    static QImage scaled(const MvFoto &foto, const QSize &bounds);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QByteArray>

/// The raster formats that are read, told by their first bytes. A file's name counts for nothing: a drawing in SVG
/// that calls itself "foto.png" could pull in other files of this computer.
class MVFOTO_EXPORT MvImageFormat
{
public:
    /// Number of bytes fromContent() wants to see.
    static constexpr int headSize = 32;

    /// "jpeg", "png", "gif", "bmp", "tiff", "webp" or "heic"; empty for everything else.
    static QByteArray fromContent(const QByteArray &head);
};

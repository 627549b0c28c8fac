// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QSize>

/// A JPEG file of inks, which Qt writes none of.
class MvInkJpeg
{
public:
    /// Four bytes for each pixel, row by row; the quality is that of Qt, 0 to 100. Empty when it cannot be written, as
    /// with sides of more than 65500 pixels.
    static QByteArray packed(const QByteArray &inks, const QSize &size, int quality);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

class QIODevice;

/// Where a file keeps what its camera noted: a piece of JPEG, PNG and WebP, the whole file of a TIFF. (That of a HEIF
/// file is found by MvHeifImage.)
class MvExifBlock
{
public:
    /// The block for MvExif, by the file's format as MvImageFormat names it; empty when there is none, or when it is
    /// larger than an honest one. Moves the position of the device.
    static QByteArray find(QIODevice *device, const QByteArray &format);
};

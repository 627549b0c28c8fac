// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

class QIODevice;

/// The main photo of a HEIF file (HEIC, as telephones write it). What decodes it is loaded with the first of them.
///
/// Only the head is read at first, the picture when it is decoded. Decoding is bounded in time, as far as it happens
/// between two readings, and in what is read: a file may name the same data again and again. Sizes are for the caller
/// to judge before.
class MVFOTO_EXPORT MvHeifImage
{
public:
    /// Reads the head. The device must outlive this; its position is moved. Null when no such file can be decoded on
    /// this computer; the error says why.
    static std::unique_ptr<MvHeifImage> open(QIODevice *device, QString *error);
    virtual ~MvHeifImage();
    MvHeifImage(const MvHeifImage &) = delete;
    MvHeifImage &operator=(const MvHeifImage &) = delete;

    /// In pixels, turned, mirrored and cropped as the file says; invalid for a file without a photo.
    virtual QSize size() const = 0;
    /// What decode() takes at its worst moment, for each pixel.
    virtual int bytesPerPixel() const = 0;
    /// What the camera noted (MvExif); empty when it did not.
    virtual QByteArray exif() const = 0;

    /// Seconds that decoding may take from now on.
    virtual void setTimeLimit(double seconds) = 0;
    /// The photo in full size with its colour space, 8 bits for each channel; null when it is damaged.
    virtual QImage decode() = 0;
    /// Whether reading was given up.
    virtual bool hasRunOut() const = 0;

protected:
    MvHeifImage() = default;
};

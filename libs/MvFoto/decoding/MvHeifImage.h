// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QImage>
#include <QSize>

#include <memory>

class QIODevice;
struct heif_context;
struct heif_image_handle;

/// The main photo of a HEIF file (HEIC, as telephones write it), decoded by libheif.
///
/// Only the head is read at first, the picture when it is decoded. Decoding is bounded in time, as far as it happens
/// between two readings, and in what is read: a file may name the same data again and again. Sizes are for the caller
/// to judge before.
class MvHeifImage
{
public:
    /// Reads the head. The device must outlive this; its position is moved.
    explicit MvHeifImage(QIODevice *device);
    ~MvHeifImage();
    MvHeifImage(const MvHeifImage &) = delete;
    MvHeifImage &operator=(const MvHeifImage &) = delete;

    /// In pixels, turned, mirrored and cropped as the file says; invalid for a file without a photo.
    QSize size() const;
    /// What decode() takes at its worst moment, for each pixel.
    int bytesPerPixel() const;
    /// What the camera noted (MvExif); empty when it did not.
    QByteArray exif() const;

    /// Seconds that decoding may take from now on.
    void setTimeLimit(double seconds);
    /// The photo in full size with its colour space, 8 bits for each channel; null when it is damaged.
    QImage decode();
    /// Whether reading was given up.
    bool hasRunOut() const { return m_hasRunOut; }

private:
    struct Callbacks;
    bool mayGoOn(qint64 bytes);

    struct FreeContext
    {
        void operator()(heif_context *context) const;
    };
    struct ReleaseHandle
    {
        void operator()(heif_image_handle *handle) const;
    };

    QIODevice *m_device;
    qint64 m_bytesLeft; // that may be read
    QElapsedTimer m_sinceReading;
    double m_secondsLeft; // between readings
    bool m_hasRunOut = false;
    std::unique_ptr<heif_context, FreeContext> m_context;
    std::unique_ptr<heif_image_handle, ReleaseHandle> m_handle;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvHeifImage.h"

#include <QElapsedTimer>

class QIODevice;
struct heif_context;
struct heif_image_handle;

/// Such a photo as libheif decodes it.
class MvHeifDecoder : public MvHeifImage
{
public:
    explicit MvHeifDecoder(QIODevice *device);
    ~MvHeifDecoder() override;

    QSize size() const override;
    int bytesPerPixel() const override;
    QByteArray exif() const override;
    void setTimeLimit(double seconds) override;
    QImage decode() override;
    bool hasRunOut() const override { return m_hasRunOut; }

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

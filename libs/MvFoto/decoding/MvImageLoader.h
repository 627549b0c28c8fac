// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvImageCache.h"
#include "MvFoto/mvfoto_export.h"

#include "MvCore/MvSingleton.h"

#include <QByteArray>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QSize>
#include <QString>

class MvImageLoader;
extern template class MVFOTO_EXPORT MvSingleton<MvImageLoader>;

/// Reads image files as they are to be printed: turned as the camera says, in sRGB, at the size that is needed.
///
/// Everything goes through MvGuardedImageReader and its bounds; what that refuses gives a null image. Decoded images
/// are kept process-wide as long as there is room, and read again when the file has changed. Any thread.
class MVFOTO_EXPORT MvImageLoader : public MvSingleton<MvImageLoader>
{
public:
    static constexpr qint64 cacheLimit = 96 << 20; // bytes: a photo of 24 megapixels in full size

    /// Lets this process decode images of up to 1 GB; for a program's start. Qt has one limit for all image readers of
    /// a process, 128 MB (33 million pixels) unless it was changed. So it is for the program to decide, not for this
    /// library: until then, images that need more are refused with an error that says so.
    static void raiseProcessLimit();

    /// The image in full size.
    QImage load(const QFileInfo &file);
    /// The image scaled smoothly, keeping its aspect ratio, to the largest size within the bounds; smaller images grow.
    /// An empty bound gives a null image.
    QImage loadScaled(const QFileInfo &file, const QSize &bounds);
    /// The same without keeping the image, for what is looked at once.
    QImage loadUncached(const QFileInfo &file, const QSize &bounds);

    /// The content of the JPEG file whose very pixels the image has, so that it need not be packed anew. Empty for any
    /// other image, also one that was scaled, turned or converted, and when the file has changed since.
    QByteArray jpegOf(const QImage &image);

    /// Why a file gave a null image, in one sentence for a person; empty when nothing is known against it.
    QString error(const QFileInfo &file);
    /// Whether decoding takes no longer than a window may stand still.
    static bool isQuick(const QFileInfo &file);

    /// Size of the turned image in pixels, from the file's head alone, which is read once for each state of the file;
    /// invalid when the file cannot be read.
    QSize size(const QFileInfo &file);
    /// The format of the content, as MvImageFormat names it.
    static QByteArray format(const QFileInfo &file);

    /// Another limit than `cacheLimit`, in bytes, for programs that paint each page once.
    void setCacheLimit(qint64 bytes) { m_cache.setByteLimit(bytes); }
    /// Forgets the decoded images.
    void clear() { m_cache.clear(); }
    const MvImageCache &cache() const { return m_cache; }

private:
    friend class MvSingleton<MvImageLoader>;
    MvImageLoader();
    QImage read(const QFileInfo &file, const QSize &bounds);

    MvImageCache m_cache;
    QMutex m_mutex; // for what follows
    QHash<MvImageCache::Key, QString> m_errors;
    QHash<MvImageCache::Key, QSize> m_sizes;
    QHash<qint64, MvImageCache::Key> m_jpegs; // by the cache keys of their images
};

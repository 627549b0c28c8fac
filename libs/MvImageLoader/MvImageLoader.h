#pragma once

#include "MvImageLoader/MvImageCache.h"
#include "MvImageLoader/mvimageloader_export.h"

#include "MvCore/MvSingleton.h"

#include <QByteArray>
#include <QFileInfo>
#include <QImage>
#include <QSize>

class MvImageLoader;
extern template class MVIMAGELOADER_EXPORT MvSingleton<MvImageLoader>;

/// Reads image files as they are to be printed: turned as the camera says, in sRGB, at the size that is needed.
///
/// Only regular files in the formats of MvImageFormat are read, up to 1 GB decoded; everything else gives a null
/// image. Decoded images are kept process-wide as long as there is room, and read again when the file has changed. Any
/// thread.
class MVIMAGELOADER_EXPORT MvImageLoader : public MvSingleton<MvImageLoader>
{
public:
    static constexpr qint64 decodeLimit = qint64(1) << 30; // bytes
    static constexpr qint64 cacheLimit = 384 << 20;        // bytes

    /// The image in full size.
    QImage load(const QFileInfo &file);
    /// The image scaled smoothly, keeping its aspect ratio, to the largest size within the bounds; smaller images grow.
    /// An empty bound gives a null image.
    QImage loadScaled(const QFileInfo &file, const QSize &bounds);
    /// The same without keeping the image, for what is looked at once.
    QImage loadUncached(const QFileInfo &file, const QSize &bounds);
    /// What loadScaled() gave, if it is still kept; null otherwise. Never decodes.
    QImage kept(const QFileInfo &file, const QSize &bounds);

    /// Size of the turned image in pixels, from the file's head alone; invalid when the file cannot be read.
    QSize size(const QFileInfo &file);
    /// The format of the content, as MvImageFormat names it.
    static QByteArray format(const QFileInfo &file);

    /// Forgets the decoded images.
    void clear() { m_cache.clear(); }
    const MvImageCache &cache() const { return m_cache; }

private:
    friend class MvSingleton<MvImageLoader>;
    MvImageLoader();

    MvImageCache m_cache;
};

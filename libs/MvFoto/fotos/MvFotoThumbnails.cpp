// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoThumbnails.h"

#include "MvFoto/MvFotoAccess.h"

namespace {

constexpr qsizetype cacheLimit = 32 << 20; // bytes

QImage croppedImage(const MvFoto &foto, const QSize &size)
{
    const QSize bounds = MvFotoAccess::preferredSize(foto).scaled(size, Qt::KeepAspectRatioByExpanding);
    const QImage image = MvFotoAccess::scaled(foto, bounds);
    QRect middle(QPoint(), size);
    middle.moveCenter(image.rect().center());
    return image.isNull() ? image : image.copy(middle & image.rect());
}

} // namespace

MvFotoThumbnails::MvFotoThumbnails(QObject *parent)
    : QObject(parent)
    , m_pixmaps(cacheLimit)
{
    m_pool.setMaxThreadCount(1); // lists scroll on while pictures arrive one by one
}

MvFotoThumbnails::~MvFotoThumbnails()
{
    m_pool.clear();
    m_pool.waitForDone();
}

QPixmap MvFotoThumbnails::cropped(const MvFoto &foto, const QSize &size, qreal pixelRatio)
{
    if (!foto.isValid() || size.isEmpty())
        return {};
    const Key key{foto.localFilePath(), foto.localFileInfo().lastModified(), (QSizeF(size) * pixelRatio).toSize()};
    const QPixmap *known = m_pixmaps.object(key);
    if (!known) {
        make(key, foto);
        return {};
    }
    QPixmap pixmap = *known;
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

void MvFotoThumbnails::make(const Key &key, const MvFoto &foto)
{
    if (m_inTheMaking.contains(key))
        return;
    m_inTheMaking.insert(key);
    const auto work = [this, key, foto] {
        const QImage image = croppedImage(foto, key.pixels);
        QMetaObject::invokeMethod(
            this, [this, key, image] { keep(key, image); }, Qt::QueuedConnection);
    };
    m_pool.start(work, ++m_latest);
}

void MvFotoThumbnails::keep(const Key &key, const QImage &image)
{
    m_inTheMaking.remove(key);
    m_pixmaps.insert(key, new QPixmap(QPixmap::fromImage(image)), std::max(qsizetype(1), image.sizeInBytes()));
    Q_EMIT ready();
}

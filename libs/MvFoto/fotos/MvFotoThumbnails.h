// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFoto.h"
#include "MvFoto/mvfoto_export.h"

#include <QCache>
#include <QDateTime>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QSize>
#include <QString>
#include <QThreadPool>

/// Small pictures of photos for lists: made in the background, the latest asked for first, and kept as long as there is
/// room. GUI thread.
class MVFOTO_EXPORT MvFotoThumbnails : public QObject
{
    Q_OBJECT

public:
    explicit MvFotoThumbnails(QObject *parent = nullptr);
    /// Waits for the picture that is being made.
    ~MvFotoThumbnails() override;

    /// The middle of the photo, filling the size (pixels; times `pixelRatio` on the screen) without distortion. Null
    /// as long as it is not ready, and for a photo that cannot be read.
    QPixmap cropped(const MvFoto &foto, const QSize &size, qreal pixelRatio);

Q_SIGNALS:
    /// A picture that was asked for is there.
    void ready();

private:
    struct Key
    {
        QString path;
        QDateTime changed; // a file that has changed is read again
        QSize pixels;
        bool operator==(const Key &) const = default;
    };
    friend size_t qHash(const Key &key, size_t seed)
    {
        return qHashMulti(seed, key.path, key.pixels.width(), key.pixels.height());
    }

    void make(const Key &key, const MvFoto &foto);
    void keep(const Key &key, const QImage &image);

    QCache<Key, QPixmap> m_pixmaps; // costs in bytes
    QSet<Key> m_inTheMaking;
    QThreadPool m_pool;
    int m_latest = 0;
};

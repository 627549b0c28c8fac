// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFoto.h"
#include "MvFoto/MvFotoRequest.h"
#include "MvFoto/mvfoto_export.h"

#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QSize>

/// Small pictures of photos for a list, made by MvFotoService, the latest asked for first. GUI thread.
class MVFOTO_EXPORT MvFotoThumbnails : public QObject
{
    Q_OBJECT

public:
    explicit MvFotoThumbnails(QObject *parent = nullptr);

    /// The middle of the photo, filling the size (pixels; times `pixelRatio` on the screen) without distortion. Null
    /// as long as it is not ready, and for a photo that cannot be read or may not be opened.
    QPixmap cropped(const MvFoto &foto, const QSize &size, qreal pixelRatio);

Q_SIGNALS:
    /// A picture that was asked for is there.
    void ready();

private:
    void tellArrival(const MvFotoOrder &order);

    QHash<MvFotoOrder, MvFotoRequest> m_awaited;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoThumbnails.h"

#include "MvFoto/MvFotoService.h"

MvFotoThumbnails::MvFotoThumbnails(QObject *parent)
    : QObject(parent)
{
    connect(&MvFotoService::instance(), &MvFotoService::arrived, this, &MvFotoThumbnails::tellArrival);
}

QPixmap MvFotoThumbnails::cropped(const MvFoto &foto, const QSize &size, qreal pixelRatio)
{
    if (!foto.mayBeOpened() || size.isEmpty())
        return {};
    const QString path = foto.localFilePath();
    const QSize pixels = (QSizeF(size) * pixelRatio).toSize();
    const MvFotoOrder order{path, pixels, MvFotoOrder::Fit::Covering, MvFotoStamp::of(path)};
    const MvFotoRequest request = MvFotoService::instance().request(order, MvFotoService::Urgency::Listed);
    if (!request.isDone())
        m_awaited.insert(order, request);
    QPixmap pixmap = QPixmap::fromImage(request.image());
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

void MvFotoThumbnails::tellArrival(const MvFotoOrder &order)
{
    if (m_awaited.remove(order))
        Q_EMIT ready();
}

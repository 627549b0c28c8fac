// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvDrawable.h"

#include <QPainter>

void MvDrawable::draw(QPainter &painter, const QRectF &rect) const
{
    if (isNull() || rect.isEmpty())
        return;
    QRectF target(QPointF(), QSizeF(size()).scaled(rect.size(), Qt::KeepAspectRatio));
    target.moveCenter(rect.center());
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_image);
    painter.restore();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvQualityTypeManager.h"

#include <QPainter>
#include <QPainterPath>

template class MvSingleton<MvQualityTypeManager>;

namespace {

constexpr int largestSize = 512;

QPixmap drawWarning(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 100.0, size / 100.0);
    painter.setPen(QPen(QColor(0x8a, 0x5a, 0x00), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(0xff, 0xc8, 0x2e));
    painter.drawPolygon(QPolygonF({{50, 10}, {94, 88}, {6, 88}}));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x3a, 0x28, 0x00));
    painter.drawRoundedRect(QRectF(45, 36, 10, 28), 5, 5);
    painter.drawEllipse(QPointF(50, 75), 6, 6);
    return pixmap;
}

} // namespace

QPixmap MvQualityTypeManager::qualityWarningPixmap(int size)
{
    if (size < 1)
        return {};
    const int edge = qMin(size, largestSize);
    QPixmap &pixmap = m_warnings[edge];
    if (pixmap.isNull())
        pixmap = drawWarning(edge);
    return pixmap;
}

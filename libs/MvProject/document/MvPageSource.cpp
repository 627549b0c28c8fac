// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageSource.h"

#include "MvModelBase/MvRenderingRule.h"

#include <QCoreApplication>
#include <QPainter>

QString MvPageSource::error() const
{
    if (!format.isValid())
        return QCoreApplication::translate("MvPageSource", "Die Seite hat keine Größe");
    if (pages.isEmpty() || !paint)
        return QCoreApplication::translate("MvPageSource", "Der Kalender hat keine Seiten");
    return {};
}

void MvPageSource::paintPage(QPainter &painter, int page, const QPointF &corner, double scale) const
{
    const QPainter::RenderHints hints = painter.renderHints();
    painter.save();
    painter.translate(corner);
    painter.scale(scale, scale);
    painter.setClipRect(format.mediaRect());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    MvRenderingRule(MvRenderingRule::Print).encodeInto(painter);
    paint(painter, page);
    painter.restore();
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(hints);
}

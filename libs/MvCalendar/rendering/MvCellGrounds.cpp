// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCellGrounds.h"

#include "MvPaint/MvRectParts.h"

#include <QList>
#include <QPainter>

#include <algorithm>
#include <utility>

void MvCellGrounds::add(const QRectF &rect, const QColor &color)
{
    QPainterPath &shape = m_shapes[color.rgba()];
    shape.setFillRule(Qt::WindingFill); // cells that overlap fill what they share, too
    shape.addRect(rect);
}

void MvCellGrounds::paint(QPainter &painter)
{
    QList<QRgb> colors = m_shapes.keys();
    std::sort(colors.begin(), colors.end());
    for (const QRgb color : std::as_const(colors)) {
        const QList<QPainterPath> parts = MvRectParts::of(painter, m_shapes.value(color));
        for (const QPainterPath &part : parts)
            painter.fillPath(part, QColor::fromRgba(color));
    }
    m_shapes.clear();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QHash>
#include <QPainterPath>
#include <QRectF>

class QPainter;

/// The backgrounds of a pass. Rectangles of one colour are filled as one shape, since neighbouring ones would show a
/// hairline between them.
class MvCellGrounds
{
public:
    void add(const QRectF &rect, const QColor &color);
    /// Paints and forgets them. The same ones always give the same file.
    void paint(QPainter &painter);

private:
    QHash<QRgb, QPainterPath> m_shapes; // by colour
};

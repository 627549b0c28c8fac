// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QImage>
#include <QRectF>
#include <QSize>

class QPainter;

/// Something that can be drawn into a rectangle; an image for the time being. A small value, pixels are shared.
class MVFOTO_EXPORT MvDrawable
{
public:
    MvDrawable() = default;
    explicit MvDrawable(const QImage &image)
        : m_image(image)
    {}

    bool isNull() const { return m_image.isNull(); }
    QSize size() const { return m_image.size(); }
    QImage toImage() const { return m_image; }

    /// Draws the image smoothly into the rectangle, as large as fits, centred; nothing when null.
    void draw(QPainter &painter, const QRectF &rect) const;

private:
    QImage m_image;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvSampleFoto.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

struct Light
{
    QColor high, low, far, near;
};

const Light lights[] = {
    {QColor(0x6f, 0xa8, 0xd6), QColor(0xe9, 0xf1, 0xf4), QColor(0x8f, 0xaf, 0xc0), QColor(0x4f, 0x7d, 0x5a)},
    {QColor(0x52, 0x6a, 0x9c), QColor(0xf3, 0xc9, 0xa0), QColor(0x9a, 0x7f, 0x92), QColor(0x4a, 0x45, 0x5c)},
    {QColor(0x9c, 0xcf, 0xcf), QColor(0xf7, 0xf3, 0xe0), QColor(0x7f, 0xb0, 0x9c), QColor(0x3f, 0x6f, 0x6a)},
    {QColor(0x8a, 0xb4, 0xe0), QColor(0xfb, 0xe6, 0xb8), QColor(0xd1, 0xa8, 0x6a), QColor(0x8c, 0x6a, 0x3a)},
};

QPainterPath hills(const QRectF &rect, double height, double waves, double shift)
{
    constexpr int steps = 24;
    QPainterPath path(rect.bottomLeft());
    for (int step = 0; step <= steps; ++step) {
        const double x = double(step) / steps;
        const double rise =
            height + 0.07 * std::sin(waves * x + shift) + 0.03 * std::sin(2.7 * waves * x + 2.0 * shift);
        path.lineTo(rect.left() + x * rect.width(), rect.bottom() - rise * rect.height());
    }
    path.lineTo(rect.bottomRight());
    path.closeSubpath();
    return path;
}

} // namespace

void MvSampleFoto::paint(QPainter &painter, const QRectF &rect, int number)
{
    const Light &light = lights[unsigned(number) % std::size(lights)];
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    QLinearGradient sky(rect.topLeft(), rect.bottomLeft());
    sky.setColorAt(0.0, light.high);
    sky.setColorAt(0.8, light.low);
    painter.fillRect(rect, sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(hills(rect, 0.42, 5.0, 1.0 + number), light.far);
    painter.fillPath(hills(rect, 0.22, 3.5, 2.5 * number), light.near);
    painter.restore();
}

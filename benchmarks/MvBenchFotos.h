// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QRandomGenerator>

/// Photos as cameras make them, for programs that have none.
namespace MvBenchFotos {

constexpr QSize largeSize(6000, 4000); // 24 megapixels

/// Coloured spots with grain, as hard to pack as a photo is. Each number gives another one.
inline QImage painted(const QSize &size, quint32 number = 1)
{
    QRandomGenerator random(number);
    QImage spots(size / 100, QImage::Format_RGB32);
    for (int y = 0; y < spots.height(); ++y)
        random.fillRange(reinterpret_cast<quint32 *>(spots.scanLine(y)), spots.width());
    QImage image =
        spots.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int grain = int((quint32(x) * 2654435761u ^ quint32(y) * 2246822519u) >> 28);
            line[x] =
                qRgb(qRed(line[x]) * 3 / 4 + grain, qGreen(line[x]) * 3 / 4 + grain, qBlue(line[x]) * 3 / 4 + grain);
        }
    }
    return image;
}

} // namespace MvBenchFotos

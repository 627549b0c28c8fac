// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoTone.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double full = 50.0; // of a correction

/// The full correction takes the root of a tone, or its square.
double brightened(double tone, double amount)
{
    return std::pow(tone, std::exp2(-amount));
}

/// An S for more contrast; for less, tones come half as far from the middle at the full correction.
double withContrast(double tone, double amount)
{
    if (amount < 0.0)
        return 0.5 + (tone - 0.5) * (1.0 + 0.5 * amount);
    const double s = tone * tone * (3.0 - 2.0 * tone);
    return tone + amount * (s - tone);
}

} // namespace

MvFotoTone::MvFotoTone(int brightness, int contrast)
    : m_isNeutral(brightness == 0 && contrast == 0)
{
    if (m_isNeutral)
        return;
    for (size_t i = 0; i < m_curve.size(); ++i) {
        const double tone = withContrast(brightened(double(i) / 255.0, brightness / full), contrast / full);
        m_curve[i] = uchar(std::lround(255.0 * std::clamp(tone, 0.0, 1.0)));
    }
}

QImage MvFotoTone::applied(const QImage &image) const
{
    if (m_isNeutral || image.isNull())
        return image;
    QImage made = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < made.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(made.scanLine(y));
        for (int x = 0; x < made.width(); ++x) {
            const QRgb pixel = line[x];
            line[x] = qRgba(m_curve[size_t(qRed(pixel))], m_curve[size_t(qGreen(pixel))], m_curve[size_t(qBlue(pixel))],
                            qAlpha(pixel));
        }
    }
    return made;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// By the definition of WCAG 2.1.
namespace MvContrast {

inline double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

inline double ratio(double luminance, double other)
{
    return (std::max(luminance, other) + 0.05) / (std::min(luminance, other) + 0.05);
}

/// From 1 to 21.
inline double ratio(const QColor &color, const QColor &other)
{
    return ratio(luminance(color), luminance(other));
}

} // namespace MvContrast

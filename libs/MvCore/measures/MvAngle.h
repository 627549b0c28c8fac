// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QRectF>

/// An angle in degrees, clockwise on paper.
class MVCORE_EXPORT MvAngle
{
public:
    constexpr MvAngle() = default;
    constexpr explicit MvAngle(double degrees)
        : m_degrees(degrees)
    {}

    constexpr double degrees() const { return m_degrees; }

    /// The rectangle turned about its centre: exact for quarter turns, the bounding rectangle for other angles.
    QRectF rotateRect(const QRectF &rect) const;

    bool operator==(const MvAngle &) const = default;

private:
    double m_degrees = 0.0;
};

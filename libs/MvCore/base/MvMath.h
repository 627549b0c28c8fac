// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

/// Units of type, screen and paper. Lengths on paper are tenths of a millimetre throughout the project.
class MVCORE_EXPORT MvMath
{
public:
    static constexpr double tenthMillimetresPerInch = 254.0;
    static constexpr double pointsPerInch = 72.0;
    /// Dots per inch at which layout fonts are measured.
    static constexpr double referenceDpi = 200.0;

    /// Typographic points as pixels of a device with the given dots per inch.
    static double point2pixel(double points, double dpi) { return points * dpi / pointsPerInch; }
    static double pixel2point(double pixels, double dpi) { return pixels * pointsPerInch / dpi; }

    /// A pixel measure at the reference resolution in tenths of a millimetre.
    static double referencePixel2tenthMillimetre(double pixels)
    {
        return pixels * tenthMillimetresPerInch / referenceDpi;
    }

    /// Dots per inch of the printed page: 300.
    static int printerResolution();
    /// The printer resolution in dots per metre, truncated: what QImage::setDotsPerMeterX() takes.
    static int printerResolution2dpm();
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Smooth randomness of the plane, the same on every computer: values about -1 to 1, zero on average.
namespace Noise {

/// Lumps about one unit apart.
double at(double x, double y, unsigned seed = 0);

/// Lumps with ever finer ones upon them, each octave half as large and half as strong.
double fractal(double x, double y, int octaves, unsigned seed = 0);

/// As fractal(), with sharp crests: rock, veins, rays. 0 to 1.
double ridged(double x, double y, int octaves, unsigned seed = 0);

} // namespace Noise

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Noise.h"

#include <cmath>
#include <cstdint>

namespace {

/// A slope in the direction that belongs to a point of the lattice, taken towards (dx, dy).
double slope(int x, int y, unsigned seed, double dx, double dy)
{
    uint32_t hash = uint32_t(x) * 0x9e3779b1U ^ uint32_t(y) * 0x85ebca77U ^ (seed + 1) * 0xc2b2ae3dU;
    hash ^= hash >> 15;
    hash *= 0x2c1b3c6dU;
    hash ^= hash >> 12;
    static constexpr double part = 0.92387953251;
    static constexpr double rest = 0.38268343236;
    static constexpr double directions[8][2] = {{part, rest},   {rest, part},   {-rest, part}, {-part, rest},
                                                {-part, -rest}, {-rest, -part}, {rest, -part}, {part, -rest}};
    const double *direction = directions[hash >> 29];
    return direction[0] * dx + direction[1] * dy;
}

double eased(double t)
{
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

} // namespace

double Noise::at(double x, double y, unsigned seed)
{
    const double left = std::floor(x);
    const double top = std::floor(y);
    const double dx = x - left;
    const double dy = y - top;
    const int column = int(left);
    const int row = int(top);
    const double u = eased(dx);
    const double above = std::lerp(slope(column, row, seed, dx, dy), slope(column + 1, row, seed, dx - 1.0, dy), u);
    const double below =
        std::lerp(slope(column, row + 1, seed, dx, dy - 1.0), slope(column + 1, row + 1, seed, dx - 1.0, dy - 1.0), u);
    return std::lerp(above, below, eased(dy)) * 1.5;
}

double Noise::fractal(double x, double y, int octaves, unsigned seed)
{
    double sum = 0.0;
    double strength = 0.5;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += strength * at(x, y, seed + unsigned(octave) * 17U);
        strength *= 0.5;
        const double turned = 1.6 * x - 1.2 * y; // so that the lattices never lie on each other
        y = 1.2 * x + 1.6 * y;
        x = turned;
    }
    return sum;
}

double Noise::ridged(double x, double y, int octaves, unsigned seed)
{
    double sum = 0.0;
    double strength = 0.5;
    for (int octave = 0; octave < octaves; ++octave) {
        const double crest = 1.0 - std::abs(at(x, y, seed + unsigned(octave) * 29U));
        sum += strength * crest * crest;
        strength *= 0.5;
        const double turned = 1.6 * x - 1.2 * y;
        y = 1.2 * x + 1.6 * y;
        x = turned;
    }
    return sum;
}

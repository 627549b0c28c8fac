// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Canvas.h"

#include <QPainterPath>
#include <QPointF>
#include <QRandomGenerator>

/// What many of the pictures have in common: skies, ridges, trees, water. Lengths in heights of the picture.
namespace Nature {

/// Between two numbers.
double random(QRandomGenerator &generator, double from, double to);

/// A sky from the top down to a height, with a sun or moon whose light spreads so far.
struct Sky
{
    std::vector<LightStop> stops; // 0 at the top, 1 at the horizon
    double horizon = 1.0;
    QPointF sun;
    Light glow;          // black for none
    double spread = 0.3; // of the glow
    double disc = 0.0;   // radius of what is seen of the sun itself
};
void paintSky(Canvas &canvas, const Sky &sky);

/// Clouds over what is there, lit from a point; amount 0 to 1, size of the lumps.
struct Clouds
{
    double amount = 0.4;
    double size = 0.25;
    double flatness = 2.5; // how much wider than high
    Light lit;
    Light shaded;
    double bottom = 0.7; // below, there are none
    unsigned seed = 1;
};
void paintClouds(Canvas &canvas, const Clouds &clouds, const QPointF &sun);

/// The heights of a ridge for a place: base, rise and length of its waves, octaves of detail.
struct Ridge
{
    double base = 0.5;
    double rise = 0.1;
    double length = 0.6;
    int octaves = 6;
    unsigned seed = 1;

    double top(double x) const;
};

/// Covers everything under the ridge; shade(x, y, depth under the ridge).
template <typename Shade>
void paintRidge(Canvas &canvas, const Ridge &ridge, const Shade &shade)
{
    std::vector<double> tops(size_t(std::ceil(canvas.aspect() / canvas.pixel())) + 1);
    for (size_t column = 0; column < tops.size(); ++column)
        tops[column] = ridge.top((double(column) + 0.5) * canvas.pixel());
    const double highest = *std::min_element(tops.cbegin(), tops.cend());
    canvas.paint(
        [&](double x, double y, const Light &below) {
            const double depth = y - tops[size_t(x / canvas.pixel())];
            const double covered = std::clamp(depth / canvas.pixel() + 0.5, 0.0, 1.0);
            return covered > 0.0 ? mixed(below, shade(x, y, depth), covered) : below;
        },
        highest - 2.0 * canvas.pixel());
}

/// Rock with snow under a ridge: light from the left or right (-1 to 1), snow above a height.
struct Rock
{
    Light lit;
    Light shaded;
    Light snowLit;
    Light snowShaded;
    double snowLine = 0.0; // height on the canvas where snow ends
    double sunSide = 1.0;
    double grain = 9.0; // lumps per unit
    Light haze;
    double hazeTop = 1.0; // where haze begins
    double hazeBottom = 1.0;
    double hazeStrength = 0.8;
    unsigned seed = 1;
};
Light rockLight(const Rock &rock, double x, double y, double depth);

/// The outline of a fir that stands at a point.
QPainterPath fir(QRandomGenerator &generator, const QPointF &foot, double height, double slimness = 0.36);
/// The outline of a broad-leaved tree.
QPainterPath leafTree(QRandomGenerator &generator, const QPointF &foot, double height);
/// A row of firs along a ridge.
QPainterPath firs(QRandomGenerator &generator, const Ridge &ridge, double width, double from, double to, double gap);

/// Still or moving water below a shore that mirrors what stands above it.
struct Water
{
    double shore = 0.7;
    Light deep;
    double deepness = 0.6; // how much of it at the lower edge
    double calm = 1.0;     // 1 like a mirror, 0 rough
    double stretch = 1.1;
    unsigned seed = 1;
};
void paintWater(Canvas &canvas, const Water &water);

/// Stars above a height, brighter ones with a glow.
void paintStars(Canvas &canvas, QRandomGenerator &generator, int count, double bottom);

/// Discs of light as a lens draws lights far behind.
void paintBokeh(Canvas &canvas, QRandomGenerator &generator, int count, const std::vector<Light> &lights,
                double smallest, double largest, double strength);

} // namespace Nature

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <functional>
#include <thread>
#include <vector>

class QPainter;

/// Light of one point, each part 0 to 1; more is cut off at the end.
struct Light
{
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;

    static constexpr Light of(unsigned rgb)
    {
        return {(rgb >> 16 & 255U) / 255.0, (rgb >> 8 & 255U) / 255.0, (rgb & 255U) / 255.0};
    }
    Light operator+(const Light &other) const { return {r + other.r, g + other.g, b + other.b}; }
    Light operator*(double factor) const { return {r * factor, g * factor, b * factor}; }
    Light operator*(const Light &other) const { return {r * other.r, g * other.g, b * other.b}; }
    double brightness() const { return 0.3 * r + 0.59 * g + 0.11 * b; }
    QColor colour(double alpha = 1.0) const;
};

inline Light mixed(const Light &a, const Light &b, double part)
{
    return {a.r + (b.r - a.r) * part, a.g + (b.g - a.g) * part, a.b + (b.b - a.b) * part};
}

/// 0 below from, 1 above to, smooth between.
inline double step(double from, double to, double value)
{
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

/// The light at a place between stops, which ascend.
struct LightStop
{
    double at;
    Light light;
};
Light between(const std::vector<LightStop> &stops, double at);

/// A picture while it is painted: light added, covered and blurred, point by point or with a painter.
///
/// The unit of length is the height of the picture; the origin is its upper left corner.
class Canvas
{
public:
    Canvas(int width, int height);

    /// Width in units of the height.
    double aspect() const { return double(m_width) / m_height; }
    /// One pixel in these units.
    double pixel() const { return 1.0 / m_height; }
    /// What is there now; the nearest edge for places outside.
    Light at(double x, double y) const;

    /// Gives each point between two heights new light: shade(x, y, light that is there). It must depend on nothing
    /// else that changes, since two threads share the work.
    template <typename Shade>
    void paint(const Shade &shade, double top = 0.0, double bottom = 1.0)
    {
        const int first = std::clamp(int(std::floor(top * m_height)), 0, m_height);
        const int end = std::clamp(int(std::ceil(bottom * m_height)), 0, m_height);
        const auto rows = [&](int start) {
            for (int row = start; row < end; row += 2) {
                for (int column = 0; column < m_width; ++column) {
                    Light &light = m_lights[size_t(row) * size_t(m_width) + size_t(column)];
                    light = shade((column + 0.5) / m_height, (row + 0.5) / m_height, light);
                }
            }
        };
        std::thread other(rows, first + 1);
        rows(first);
        other.join();
    }

    using Drawing = std::function<void(QPainter &)>;

    /// Lays over it what a painter draws, softened by so much.
    void draw(const Drawing &drawing, double blur = 0.0);
    /// Adds the light of what a painter draws, softened by so much.
    void shine(const Drawing &drawing, double blur, double strength = 1.0);

    /// Lays a shape over it: its cover (0 to 1) is what a painter draws in white, its light comes from shade(x, y).
    template <typename Shade>
    void cover(const Drawing &drawing, const Shade &shade, double blur = 0.0)
    {
        const std::vector<float> mask = maskOf(drawing, blur);
        paint([&](double x, double y, const Light &below) {
            const float covered = mask[size_t(y * m_height) * size_t(m_width) + size_t(x * m_height)];
            return covered > 0.0F ? mixed(below, shade(x, y), double(covered)) : below;
        });
    }

    /// Softens all of it.
    void blur(double radius);
    /// Bright places shine over their edges.
    void bloom(double from, double radius, double strength);
    /// Darkens the corners and lays a fine grain over it, which keeps gradients from showing steps.
    void finish(double vignette, double grain);

    QImage toImage() const;

private:
    QImage layerOf(const Drawing &drawing) const;
    std::vector<float> maskOf(const Drawing &drawing, double blur) const;

    int m_width;
    int m_height;
    std::vector<Light> m_lights;
};

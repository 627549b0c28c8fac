// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Canvas.h"

#include "Noise.h"

#include <QPainter>

#include <array>

namespace {

/// A plane of numbers, of which several lie side by side for each point.
template <size_t parts>
using Plane = std::vector<std::array<float, parts>>;

/// The mean of neighbours along rows or columns, as wide as twice the radius.
template <size_t parts>
void softenLines(Plane<parts> &plane, int count, int length, int lineStep, int pointStep, int radius)
{
    std::vector<std::array<float, parts>> line(static_cast<size_t>(length));
    for (int number = 0; number < count; ++number) {
        const auto point = [&](int index) -> std::array<float, parts> & {
            return plane[size_t(number) * size_t(lineStep) +
                         size_t(std::clamp(index, 0, length - 1)) * size_t(pointStep)];
        };
        std::array<double, parts> sum{};
        for (int index = -radius; index <= radius; ++index)
            for (size_t part = 0; part < parts; ++part)
                sum[part] += double(point(index)[part]);
        for (int index = 0; index < length; ++index) {
            for (size_t part = 0; part < parts; ++part) {
                line[size_t(index)][part] = float(sum[part] / (2 * radius + 1));
                sum[part] += double(point(index + radius + 1)[part]) - double(point(index - radius)[part]);
            }
        }
        for (int index = 0; index < length; ++index)
            point(index) = line[size_t(index)];
    }
}

/// Three means after each other are as good as a bell.
template <size_t parts>
void soften(Plane<parts> &plane, int width, int height, double radius)
{
    const int pixels = int(std::lround(radius * height * 0.6));
    for (int pass = 0; pixels > 0 && pass < 3; ++pass) {
        softenLines(plane, height, width, width, 1, pixels);
        softenLines(plane, width, height, 1, width, pixels);
    }
}

Plane<4> planeOf(const QImage &layer, double blur)
{
    Plane<4> plane(size_t(layer.width()) * size_t(layer.height()));
    for (int row = 0; row < layer.height(); ++row) {
        const auto *pixels = reinterpret_cast<const QRgb *>(layer.constScanLine(row));
        for (int column = 0; column < layer.width(); ++column) {
            const QRgb pixel = pixels[column];
            plane[size_t(row) * size_t(layer.width()) + size_t(column)] = {
                float(qRed(pixel)) / 255.0F, float(qGreen(pixel)) / 255.0F, float(qBlue(pixel)) / 255.0F,
                float(qAlpha(pixel)) / 255.0F};
        }
    }
    soften(plane, layer.width(), layer.height(), blur);
    return plane;
}

void prepare(QPainter &painter, int height)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(height, height);
}

} // namespace

QColor Light::colour(double alpha) const
{
    const auto part = [](double value) { return float(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(part(r), part(g), part(b), part(alpha));
}

Light between(const std::vector<LightStop> &stops, double at)
{
    for (size_t i = 1; i < stops.size(); ++i) {
        if (at < stops[i].at)
            return mixed(stops[i - 1].light, stops[i].light, step(stops[i - 1].at, stops[i].at, at));
    }
    return stops.back().light;
}

Canvas::Canvas(int width, int height)
    : m_width(width)
    , m_height(height)
    , m_lights(size_t(width) * size_t(height))
{}

Light Canvas::at(double x, double y) const
{
    const double column = std::clamp(x * m_height - 0.5, 0.0, m_width - 1.001);
    const double row = std::clamp(y * m_height - 0.5, 0.0, m_height - 1.001);
    const size_t corner = size_t(row) * size_t(m_width) + size_t(column);
    const double dx = column - std::floor(column);
    const double dy = row - std::floor(row);
    return mixed(mixed(m_lights[corner], m_lights[corner + 1], dx),
                 mixed(m_lights[corner + size_t(m_width)], m_lights[corner + size_t(m_width) + 1], dx), dy);
}

QImage Canvas::layerOf(const Drawing &drawing) const
{
    QImage layer(m_width, m_height, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    prepare(painter, m_height);
    drawing(painter);
    return layer;
}

std::vector<float> Canvas::maskOf(const Drawing &drawing, double blur) const
{
    QImage layer(m_width, m_height, QImage::Format_Grayscale8);
    layer.fill(Qt::black);
    {
        QPainter painter(&layer);
        prepare(painter, m_height);
        painter.setBrush(Qt::white);
        drawing(painter);
    }
    Plane<1> plane(m_lights.size());
    for (int row = 0; row < m_height; ++row)
        for (int column = 0; column < m_width; ++column)
            plane[size_t(row) * size_t(m_width) + size_t(column)][0] = float(layer.constScanLine(row)[column]) / 255.0F;
    soften(plane, m_width, m_height, blur);
    std::vector<float> mask(plane.size());
    std::transform(plane.cbegin(), plane.cend(), mask.begin(), [](const auto &point) { return point[0]; });
    return mask;
}

void Canvas::draw(const Drawing &drawing, double blur)
{
    const Plane<4> layer = planeOf(layerOf(drawing), blur);
    for (size_t i = 0; i < m_lights.size(); ++i) {
        const auto &[r, g, b, alpha] = layer[i];
        m_lights[i] = m_lights[i] * (1.0 - double(alpha)) + Light{double(r), double(g), double(b)};
    }
}

void Canvas::shine(const Drawing &drawing, double blur, double strength)
{
    const Plane<4> layer = planeOf(layerOf(drawing), blur);
    for (size_t i = 0; i < m_lights.size(); ++i)
        m_lights[i] = m_lights[i] + Light{double(layer[i][0]), double(layer[i][1]), double(layer[i][2])} * strength;
}

void Canvas::blur(double radius)
{
    Plane<3> plane(m_lights.size());
    for (size_t i = 0; i < m_lights.size(); ++i)
        plane[i] = {float(m_lights[i].r), float(m_lights[i].g), float(m_lights[i].b)};
    soften(plane, m_width, m_height, radius);
    for (size_t i = 0; i < m_lights.size(); ++i)
        m_lights[i] = {double(plane[i][0]), double(plane[i][1]), double(plane[i][2])};
}

void Canvas::bloom(double from, double radius, double strength)
{
    Canvas glow(m_width, m_height);
    for (size_t i = 0; i < m_lights.size(); ++i)
        glow.m_lights[i] = m_lights[i] * step(from, from + 0.3, m_lights[i].brightness());
    glow.blur(radius);
    for (size_t i = 0; i < m_lights.size(); ++i) {
        const Light added = glow.m_lights[i] * strength;
        Light &light = m_lights[i]; // as two pictures on one screen
        light = {1.0 - (1.0 - std::min(light.r, 1.0)) * (1.0 - std::min(added.r, 1.0)),
                 1.0 - (1.0 - std::min(light.g, 1.0)) * (1.0 - std::min(added.g, 1.0)),
                 1.0 - (1.0 - std::min(light.b, 1.0)) * (1.0 - std::min(added.b, 1.0))};
    }
}

void Canvas::finish(double vignette, double grain)
{
    const double middle = aspect() / 2.0;
    paint([&](double x, double y, const Light &light) {
        const double fromMiddle = std::hypot((x - middle) / middle, (y - 0.5) / 0.5) / std::sqrt(2.0);
        const double speck = Noise::at(x * m_height * 0.61, y * m_height * 0.61, 91) * grain;
        return light * (1.0 - vignette * std::pow(fromMiddle, 3.0)) + Light{speck, speck, speck};
    });
}

QImage Canvas::toImage() const
{
    QImage image(m_width, m_height, QImage::Format_RGB32);
    for (int row = 0; row < m_height; ++row) {
        auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < m_width; ++column)
            pixels[column] = m_lights[size_t(row) * size_t(m_width) + size_t(column)].colour().rgb();
    }
    return image;
}

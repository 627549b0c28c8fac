// SPDX-License-Identifier: LGPL-2.1-or-later
// The sea by day and at dusk.
#include "Motifs.h"
#include "Nature.h"
#include "Noise.h"

#include <QPainter>

using namespace Nature;

namespace {

/// The open sea under a horizon: waves that grow towards the viewer, a path of glitter under the sun.
struct Sea
{
    double horizon = 0.0;
    Light far;
    Light near;
    Light crest;
    double sunX = 0.0;
    Light glitter;
    double glitterWidth = 0.0;
};

void paintSea(Canvas &canvas, const Sea &sea)
{
    canvas.paint(
        [&](double x, double y, const Light &) {
            const double far = std::max(0.0, (y - sea.horizon) / (1.0 - sea.horizon));
            const double depth = 1.0 / (0.035 + far);
            const double across = (x - 0.9) * depth * 2.2;
            const double away = std::log(0.02 + far) * 14.0;
            const double wave = Noise::ridged(across * 0.7 + Noise::at(across, away) * 0.3, away * 1.7, 5, 9) - 0.52;
            const double ripple = Noise::fractal(across * 3.0, away * 6.0, 4, 12);
            Light light = mixed(sea.far, sea.near, std::pow(far, 0.7));
            light = light * (1.0 + 0.55 * wave + 0.2 * ripple);
            light = mixed(light, sea.crest, step(0.16, 0.34, wave + 0.16 * ripple) * 0.55 * (0.35 + 0.65 * far));
            const double path = std::exp(-std::pow((x - sea.sunX) / (sea.glitterWidth * (0.35 + far)), 2.0));
            const double spark = step(0.12, 0.42, Noise::fractal(across * 4.0, away * 8.0, 3, 31) + 0.22 * path);
            return light + sea.glitter * (path * (0.18 + 0.9 * spark));
        },
        sea.horizon);
}

void drawSail(QPainter &painter, const QPainterPath &sail, const QPointF &from, const QPointF &to, const Light &light,
              const Light &shade)
{
    QLinearGradient gradient(from, to);
    gradient.setColorAt(0.0, light.colour());
    gradient.setColorAt(1.0, shade.colour());
    painter.setBrush(gradient);
    painter.drawPath(sail);
}

/// A boat under main sail and jib, as high as size, its water line at the origin.
void drawBoat(QPainter &painter, double size, const Light &sailLight)
{
    painter.scale(size, size);
    painter.setBrush(QColor(72, 52, 42));
    painter.drawRect(QRectF(-0.006, -1.0, 0.013, 0.95));
    QPainterPath mainSail(QPointF(0.012, -0.96));
    mainSail.cubicTo(0.2, -0.6, 0.34, -0.3, 0.36, -0.125);
    mainSail.quadTo(0.2, -0.095, 0.012, -0.115);
    mainSail.closeSubpath();
    drawSail(painter, mainSail, {0.0, -0.4}, {0.36, -0.3}, sailLight, mixed(sailLight, Light::of(0x7f97b4), 0.45));
    QPainterPath jib(QPointF(-0.012, -0.86));
    jib.cubicTo(-0.07, -0.5, -0.2, -0.25, -0.3, -0.11);
    jib.quadTo(-0.14, -0.1, -0.02, -0.14);
    jib.closeSubpath();
    drawSail(painter, jib, {-0.02, -0.4}, {-0.28, -0.2}, mixed(sailLight, Light::of(0xd9483b), 0.85),
             Light::of(0xa52b2b));
    painter.setPen(QPen(QColor(120, 132, 148, 90), 0.004));
    for (const double y : {-0.3, -0.48, -0.66})
        painter.drawLine(QPointF(0.015, y), QPointF(0.35 + (y + 0.12) * 0.42, y + 0.035));
    painter.setPen(Qt::NoPen);
    QPainterPath hull(QPointF(-0.36, -0.085));
    hull.quadTo(-0.26, 0.012, -0.18, 0.02);
    hull.lineTo(0.27, 0.02);
    hull.quadTo(0.34, 0.0, 0.37, -0.075);
    hull.quadTo(0.0, -0.045, -0.36, -0.085);
    painter.setBrush(QColor(244, 240, 230));
    painter.drawPath(hull);
    painter.save();
    painter.setClipPath(hull);
    painter.setBrush(QColor(30, 60, 98));
    painter.drawRect(QRectF(-0.4, -0.018, 0.8, 0.02));
    painter.setBrush(QColor(110, 58, 44));
    painter.drawRect(QRectF(-0.4, 0.004, 0.8, 0.03));
    painter.restore();
    painter.setBrush(QColor(205, 196, 178));
    painter.drawRoundedRect(QRectF(-0.1, -0.1, 0.2, 0.04), 0.012, 0.012);
}

void drawGull(QPainter &painter, const QPointF &at, double size)
{
    QPainterPath wings(at + QPointF(-size, -0.25 * size));
    wings.quadTo(at + QPointF(-0.45 * size, -0.5 * size), at);
    wings.quadTo(at + QPointF(0.45 * size, -0.55 * size), at + QPointF(size, -0.2 * size));
    wings.quadTo(at + QPointF(0.45 * size, -0.33 * size), at + QPointF(0.05 * size, 0.14 * size));
    wings.quadTo(at + QPointF(-0.45 * size, -0.3 * size), at + QPointF(-size, -0.25 * size));
    painter.drawPath(wings);
}

} // namespace

QImage Motifs::sailing()
{
    QRandomGenerator generator(108);
    Canvas canvas(3200, 1800);
    const QPointF sun(1.45, 0.06);
    paintSky(canvas, {{{0.0, Light::of(0x2f7fd0)}, {0.6, Light::of(0x7db9ea)}, {1.0, Light::of(0xd8ecf6)}},
                      0.56,
                      sun,
                      Light::of(0xfff4d8) * 0.35,
                      0.3,
                      0.0});
    paintClouds(canvas, {0.34, 0.16, 2.6, Light::of(0xffffff), Light::of(0xa8bfd9), 0.58, 203}, sun);
    const Ridge island{0.565, 0.045, 0.55, 6, 14};
    paintRidge(canvas, island, [](double x, double y, double depth) {
        const double wood = Noise::fractal(x * 30.0, y * 40.0, 4, 3);
        return mixed(mixed(Light::of(0x6f97a0), Light::of(0x8fae98), 0.5 + wood), Light::of(0xcfe2ea),
                     0.45 + step(0.0, 0.05, depth) * 0.25);
    });
    paintSea(canvas,
             {0.56, Light::of(0x4d9fc6), Light::of(0x0b4f86), Light::of(0xc9ecf2), 1.45, Light::of(0xffffff), 0.3});
    const QPointF boat(0.78, 0.74);
    canvas.draw(
        [&](QPainter &painter) { // its mirror
            painter.translate(boat + QPointF(0.0, 0.015));
            painter.scale(1.0, -0.5);
            painter.setOpacity(0.4);
            drawBoat(painter, 0.56, Light::of(0xf6f2e4));
        },
        0.012);
    canvas.draw([&](QPainter &painter) {
        painter.translate(boat);
        painter.rotate(4.0);
        drawBoat(painter, 0.56, Light::of(0xfffaee));
    });
    canvas.draw(
        [&](QPainter &painter) { // foam along the hull and behind
            for (int fleck = 0; fleck < 420; ++fleck) {
                const double along = generator.generateDouble();
                painter.setBrush(QColor(246, 253, 255, 40 + int(generator.bounded(120))));
                const double x = boat.x() - 0.2 + along * 0.62;
                const double y =
                    boat.y() + 0.012 + (along - 0.3) * 0.03 + random(generator, -0.006, 0.008) * (1.0 + 2.0 * along);
                painter.drawEllipse(QPointF(x, y), random(generator, 0.002, 0.011), random(generator, 0.0008, 0.0028));
            }
        },
        0.0012);
    canvas.draw([&](QPainter &painter) {
        painter.translate(1.36, 0.588);
        drawBoat(painter, 0.085, Light::of(0xffffff));
    });
    canvas.draw([](QPainter &painter) {
        painter.setBrush(QColor(250, 252, 255, 235));
        drawGull(painter, {1.22, 0.26}, 0.034);
        drawGull(painter, {1.34, 0.2}, 0.024);
        drawGull(painter, {0.3, 0.33}, 0.02);
    });
    canvas.bloom(0.88, 0.02, 0.22);
    canvas.finish(0.14, 0.01);
    return canvas.toImage();
}

// ---- lighthouse

namespace {

constexpr double towerFoot = 0.66;
constexpr double towerTop = 0.3;
const QPointF lamp(0.42, 0.272);

void drawTower(QPainter &painter)
{
    const double x = lamp.x();
    const auto half = [](double y) { return 0.026 + 0.018 * (y - towerTop) / (towerFoot - towerTop); };
    constexpr int bands = 7;
    for (int band = 0; band < bands; ++band) {
        const double from = towerTop + (towerFoot - towerTop) * band / bands;
        const double to = towerTop + (towerFoot - towerTop) * (band + 1) / bands;
        painter.setBrush(band % 2 ? QColor(238, 228, 220) : QColor(186, 48, 46));
        painter.drawPolygon(QPolygonF({{x - half(from), from},
                                       {x + half(from), from},
                                       {x + half(to), to + 0.0006},
                                       {x - half(to), to + 0.0006}}));
    }
    QLinearGradient round(x - 0.045, 0, x + 0.045, 0); // lit from the left by the sunset
    round.setColorAt(0.0, QColor(255, 190, 130, 110));
    round.setColorAt(0.35, QColor(255, 200, 160, 0));
    round.setColorAt(0.6, QColor(30, 24, 66, 70));
    round.setColorAt(1.0, QColor(20, 16, 56, 205));
    painter.setBrush(round);
    painter.drawPolygon(QPolygonF({{x - half(towerTop), towerTop},
                                   {x + half(towerTop), towerTop},
                                   {x + half(towerFoot), towerFoot},
                                   {x - half(towerFoot), towerFoot}}));
    painter.setBrush(QColor(44, 36, 52));
    painter.drawRect(QRectF(x - 0.037, towerTop - 0.007, 0.074, 0.009));
    for (int post = 0; post < 11; ++post)
        painter.drawRect(QRectF(x - 0.036 + post * 0.0071, towerTop - 0.022, 0.0012, 0.016));
    painter.drawRect(QRectF(x - 0.037, towerTop - 0.023, 0.074, 0.002));
    painter.setBrush(QColor(255, 232, 176));
    painter.drawRect(QRectF(x - 0.02, 0.254, 0.04, 0.04));
    painter.setBrush(QColor(44, 36, 52));
    for (const double bar : {-0.021, -0.008, 0.006, 0.019})
        painter.drawRect(QRectF(x + bar, 0.254, 0.002, 0.04));
    painter.drawPolygon(QPolygonF({{x - 0.027, 0.256}, {x - 0.012, 0.234}, {x + 0.012, 0.234}, {x + 0.027, 0.256}}));
    painter.drawEllipse(QPointF(x, 0.231), 0.0065, 0.0065);
    for (const double y : {0.4, 0.5, 0.59}) {
        painter.setBrush(QColor(52, 34, 50));
        painter.drawRoundedRect(QRectF(x - 0.007, y, 0.013, 0.022), 0.006, 0.006);
    }
}

void drawKeepersHouse(QPainter &painter)
{
    painter.setBrush(QColor(222, 206, 206));
    painter.drawRect(QRectF(0.475, 0.61, 0.1, 0.055));
    painter.setBrush(QColor(120, 100, 128, 120));
    painter.drawRect(QRectF(0.53, 0.61, 0.045, 0.055));
    painter.setBrush(QColor(96, 44, 48));
    painter.drawPolygon(QPolygonF({{0.466, 0.612}, {0.492, 0.578}, {0.56, 0.578}, {0.586, 0.612}}));
    painter.drawRect(QRectF(0.545, 0.566, 0.012, 0.02));
}

void drawHouseLights(QPainter &painter)
{
    painter.setBrush(QColor(255, 206, 116));
    painter.drawRect(QRectF(0.487, 0.627, 0.013, 0.017));
    painter.drawRect(QRectF(0.512, 0.627, 0.013, 0.017));
    painter.drawRect(QRectF(0.55, 0.627, 0.013, 0.017));
}

} // namespace

QImage Motifs::lighthouse()
{
    QRandomGenerator generator(110);
    Canvas canvas(1800, 2700);
    const QPointF sun(0.08, 0.66);
    paintSky(canvas, {{{0.0, Light::of(0x1c2353)},
                       {0.35, Light::of(0x4b4486)},
                       {0.65, Light::of(0xb5628a)},
                       {0.86, Light::of(0xf2906a)},
                       {1.0, Light::of(0xffc27a)}},
                      0.7,
                      sun,
                      Light::of(0xff9a50) * 0.5,
                      0.16,
                      0.0});
    paintStars(canvas, generator, 330, 0.3);
    paintClouds(canvas, {0.32, 0.1, 4.0, Light::of(0xffa07c), Light::of(0x4c3f7c), 0.66, 321}, sun);
    canvas.paint([](double x, double y, const Light &below) { // the beams
        const double dx = x - lamp.x();
        const double dy = y - lamp.y();
        const double away = std::abs(dx);
        const double off = std::abs(dy + dx * 0.16) / (0.012 + away * 0.12);
        return below +
               Light::of(0xffe2a4) * (0.62 * std::exp(-off * off) * std::exp(-away / 0.26) * step(0.0, 0.02, away));
    });
    paintSea(canvas, {0.7, Light::of(0x9a5f86), Light::of(0x1d2050), Light::of(0xf4b49a), 0.08,
                      Light::of(0xff9a5c) * 0.75, 0.16});
    canvas.draw([](QPainter &painter) { drawKeepersHouse(painter); });
    canvas.draw([](QPainter &painter) { drawTower(painter); });
    canvas.draw([](QPainter &painter) { drawHouseLights(painter); });
    const auto cliff = [](double x) { // rises to the right, falls into the sea at the left
        const double shape = step(0.16, 0.36, x) * 0.17 - 0.03 * step(0.5, 0.7, x);
        return 0.83 - shape + 0.03 * Noise::fractal(x * 9.0, 4.0, 6, 55) + 0.3 * step(0.22, 0.1, x);
    };
    canvas.paint([&](double x, double y, const Light &below) {
        const double depth = y - cliff(x);
        const double surf = 0.935 + 0.015 * Noise::fractal(x * 7.0, 1.0, 4, 5) + 0.02 * step(0.5, 0.7, x);
        const double covered = std::clamp(depth / canvas.pixel() + 0.5, 0.0, 1.0) * step(surf + 0.006, surf - 0.006, y);
        if (covered <= 0.0)
            return below;
        const double rock = Noise::ridged(x * 13.0, y * 9.0, 6, 66);
        const double aside = Noise::ridged(x * 13.0 - 0.06, y * 9.0 - 0.05, 6, 66);
        const double lit = std::clamp(0.3 + (rock - aside) * 4.0, 0.0, 1.0);
        const double grass =
            step(0.03, 0.0, depth + 0.03 * Noise::fractal(x * 40.0, y * 40.0, 3, 8)) * step(0.3, 0.36, x);
        const Light stone = mixed(Light::of(0x17142f), Light::of(0xb0645e), lit * step(1.05, 0.72, y));
        return mixed(below, mixed(stone, Light::of(0x4a3d4c) * (0.8 + 0.6 * lit), grass), covered);
    });
    canvas.draw(
        [&](QPainter &painter) { // surf at the foot of the rock
            for (int fleck = 0; fleck < 900; ++fleck) {
                const double x = random(generator, 0.15, 0.68);
                const double y = 0.935 + 0.015 * Noise::fractal(x * 7.0, 1.0, 4, 5) + 0.02 * step(0.5, 0.7, x) +
                                 random(generator, -0.016, 0.014);
                painter.setBrush(QColor(236, 210, 224, 20 + int(generator.bounded(70))));
                painter.drawEllipse(QPointF(x, y), random(generator, 0.002, 0.014), random(generator, 0.001, 0.005));
            }
        },
        0.003);
    canvas.shine(
        [](QPainter &painter) {
            drawHouseLights(painter);
            painter.setBrush(QColor(255, 226, 160));
            painter.drawEllipse(lamp, 0.02, 0.02);
        },
        0.018, 1.3);
    canvas.bloom(0.8, 0.03, 0.3);
    canvas.finish(0.2, 0.012);
    return canvas.toImage();
}

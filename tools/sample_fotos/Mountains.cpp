// SPDX-License-Identifier: LGPL-2.1-or-later
// Mountains, snow and mist.
#include "Motifs.h"
#include "Nature.h"
#include "Noise.h"

#include <QPainter>

using namespace Nature;

// ---- winter hut

namespace {

/// The ground of the winter evening: drifts in blue shade, a warm pool of light before the hut.
void paintSnowField(Canvas &canvas, const Ridge &field, const QPointF &door)
{
    paintRidge(canvas, field, [&](double x, double y, double depth) {
        const double far = depth / (1.0 - field.base);
        const double drift = Noise::fractal(x * 3.0, y * 9.0 / (0.5 + far), 5, 21);
        const double aside = Noise::fractal(x * 3.0 + 0.03, y * 9.0 / (0.5 + far), 5, 21);
        const double lit = std::clamp(0.5 + (drift - aside) * 9.0, 0.0, 1.0);
        const Light snow = mixed(Light::of(0x6f7fb0), Light::of(0xc3c9e6), 0.25 + 0.55 * lit);
        const Light shaded = mixed(snow, Light::of(0x46558a), 0.35 * far);
        const double glow = std::exp(-std::hypot((x - door.x()) * 1.0, (y - door.y()) * 2.6) / 0.11);
        const double sparkle = std::pow(std::max(0.0, Noise::at(x * 240.0, y * 240.0, 4)), 6.0) * 0.5;
        return shaded + Light::of(0xffb057) * (0.85 * glow * (0.6 + 0.5 * lit)) + Light{sparkle, sparkle, sparkle};
    });
}

/// A snowed-in hut, its front 0.2 wide.
void drawHut(QPainter &painter, const QPointF &corner)
{
    painter.translate(corner);
    painter.setBrush(QColor(58, 38, 34));
    painter.drawRect(QRectF(0.0, -0.105, 0.21, 0.11));
    painter.setBrush(QColor(74, 49, 42));
    painter.drawPolygon(QPolygonF({{0.0, -0.1}, {0.105, -0.185}, {0.21, -0.1}}));
    for (int board = 0; board < 9; ++board) {
        painter.setBrush(QColor(30, 20, 22, 70 + board % 3 * 25));
        painter.drawRect(QRectF(0.0, -0.102 + board * 0.0118, 0.21, 0.0016));
    }
    painter.setBrush(QColor(82, 74, 86));
    painter.drawRect(QRectF(0.148, -0.205, 0.022, 0.06));
    painter.setBrush(QColor(226, 231, 248));
    painter.drawRoundedRect(QRectF(0.145, -0.212, 0.028, 0.012), 0.005, 0.005);
    QPainterPath roof(QPointF(-0.026, -0.082));
    roof.cubicTo(-0.03, -0.1, -0.01, -0.108, 0.0, -0.118);
    roof.lineTo(0.088, -0.2);
    roof.quadTo(0.105, -0.216, 0.122, -0.2);
    roof.lineTo(0.21, -0.118);
    roof.cubicTo(0.22, -0.108, 0.24, -0.1, 0.236, -0.082);
    roof.quadTo(0.228, -0.08, 0.222, -0.09);
    roof.lineTo(0.105, -0.178);
    roof.lineTo(-0.012, -0.09);
    roof.quadTo(-0.018, -0.08, -0.026, -0.082);
    QLinearGradient snow(0, -0.21, 0, -0.08);
    snow.setColorAt(0.0, QColor(228, 231, 248));
    snow.setColorAt(1.0, QColor(152, 163, 206));
    painter.setBrush(snow);
    painter.drawPath(roof);
}

void drawHutLights(QPainter &painter, const QPointF &corner)
{
    painter.translate(corner);
    for (const QRectF &window : {QRectF(0.022, -0.075, 0.042, 0.036), QRectF(0.146, -0.075, 0.042, 0.036),
                                 QRectF(0.09, -0.138, 0.03, 0.026), QRectF(0.089, -0.078, 0.036, 0.08)}) {
        QLinearGradient light(0, window.top(), 0, window.bottom());
        light.setColorAt(0.0, QColor(255, 214, 120));
        light.setColorAt(1.0, QColor(255, 168, 70));
        painter.setBrush(light);
        painter.drawRect(window);
        painter.setBrush(QColor(70, 42, 30));
        painter.drawRect(QRectF(window.center().x() - 0.0016, window.top(), 0.0032, window.height()));
        if (window.height() < 0.05)
            painter.drawRect(QRectF(window.left(), window.center().y() - 0.0014, window.width(), 0.0028));
    }
}

/// Firs under snow: dark, with white boughs from above.
void paintSnowyFirs(Canvas &canvas, QRandomGenerator &generator, const QList<QPointF> &feet, double from, double to,
                    const Light &dark, const Light &snow)
{
    for (const QPointF &foot : feet) {
        const double height = random(generator, from, to);
        const QPainterPath tree = fir(generator, foot, height, 0.42);
        const unsigned seed = generator.generate() % 1000U;
        canvas.cover([&](QPainter &painter) { painter.drawPath(tree); },
                     [&](double x, double y) {
                         const double side = (x - foot.x()) / height;
                         const double tier = Noise::fractal(
                             x * 14.0 / height * 0.3, (y - std::abs(side) * height * 0.6) * 9.0 / height, 4, seed);
                         const double white = step(-0.06, 0.2, tier - side * 0.35);
                         return mixed(dark, snow, white * (0.75 + 0.4 * side));
                     });
    }
}

void paintSnowFall(Canvas &canvas, QRandomGenerator &generator, int count, double largest)
{
    canvas.draw(
        [&](QPainter &painter) {
            for (int flake = 0; flake < count; ++flake) {
                const double size = largest * std::pow(generator.generateDouble(), 2.0) + 0.0006;
                painter.setBrush(QColor(240, 243, 255, 60 + int(generator.bounded(120))));
                painter.drawEllipse(QPointF(random(generator, 0, canvas.aspect()), generator.generateDouble()), size,
                                    size);
            }
        },
        largest * 0.3);
}

} // namespace

QImage Motifs::winterHut()
{
    QRandomGenerator generator(101);
    Canvas canvas(2700, 1800);
    const QPointF sun(0.35, 0.52);
    paintSky(canvas, {{{0.0, Light::of(0x1d2c5c)},
                       {0.35, Light::of(0x4a5f9c)},
                       {0.7, Light::of(0x9d96c4)},
                       {0.88, Light::of(0xe0b3bb)},
                       {1.0, Light::of(0xf6cdae)}},
                      0.58,
                      sun,
                      Light::of(0xff9a5c) * 0.35,
                      0.25,
                      0.0});
    paintStars(canvas, generator, 260, 0.26);
    paintClouds(canvas, {0.18, 0.1, 6.0, Light::of(0xf0b8b0), Light::of(0x6c6ca4), 0.5, 31}, sun);
    const Rock rock{Light::of(0x7c7fa6),
                    Light::of(0x3d4775),
                    Light::of(0xf3d3d6),
                    Light::of(0x7f8dc0),
                    0.9,
                    -1.0,
                    7.0,
                    Light::of(0xa9a4cc),
                    0.36,
                    0.62,
                    0.75,
                    3};
    paintRidge(canvas, {0.43, 0.22, 0.62, 8, 12},
               [&](double x, double y, double depth) { return rockLight(rock, x, y, depth); });
    const Ridge forest{0.585, 0.05, 0.5, 4, 6};
    const QPainterPath farFirs = firs(generator, forest, canvas.aspect(), 0.03, 0.075, 0.012);
    canvas.cover([&](QPainter &painter) { painter.drawPath(farFirs); },
                 [](double x, double y) {
                     return mixed(Light::of(0x4a5688), Light::of(0x8d94c2),
                                  step(0.5, 0.62, y) + 0.2 * Noise::at(x * 30, y * 60));
                 });
    const QPointF hut(0.86, 0.735);
    paintSnowField(canvas, {0.64, 0.07, 1.1, 3, 8}, hut + QPointF(0.1, 0.02));
    QList<QPointF> behind;
    for (int i = 0; i < 15; ++i)
        behind.append({random(generator, -0.02, 1.5), random(generator, 0.63, 0.68)});
    std::sort(behind.begin(), behind.end(), [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
    paintSnowyFirs(canvas, generator, behind, 0.16, 0.3, Light::of(0x2b3863), Light::of(0xa9b5df));
    canvas.draw([&](QPainter &painter) { drawHut(painter, hut); });
    canvas.draw([&](QPainter &painter) { drawHutLights(painter, hut); });
    canvas.shine([&](QPainter &painter) { drawHutLights(painter, hut); }, 0.02, 0.9);
    canvas.draw(
        [&](QPainter &painter) { // smoke
            for (int puff = 0; puff < 40; ++puff) {
                const double rise = puff / 40.0;
                painter.setBrush(QColor(214, 204, 226, int(46 * (1.0 - rise))));
                painter.drawEllipse(
                    hut + QPointF(0.16 + 0.05 * rise + 0.012 * std::sin(rise * 9.0), -0.215 - rise * 0.24),
                    0.008 + 0.03 * rise, 0.01 + 0.026 * rise);
            }
        },
        0.006);
    paintSnowyFirs(canvas, generator, {{0.13, 0.93}, {0.3, 0.83}, {1.37, 0.86}}, 0.42, 0.56, Light::of(0x1c2749),
                   Light::of(0xb9c3ea));
    paintSnowFall(canvas, generator, 420, 0.003);
    canvas.bloom(0.8, 0.02, 0.25);
    canvas.finish(0.22, 0.012);
    return canvas.toImage();
}

// ---- morning mist

QImage Motifs::morningMist()
{
    QRandomGenerator generator(103);
    Canvas canvas(3600, 1440);
    const QPointF sun(1.72, 0.34);
    paintSky(canvas, {{{0.0, Light::of(0x7d9cc0)},
                       {0.4, Light::of(0xc9cdd0)},
                       {0.75, Light::of(0xf4d3a6)},
                       {1.0, Light::of(0xfbc98d)}},
                      0.62,
                      sun,
                      Light::of(0xffd9a0) * 0.55,
                      0.22,
                      0.032});
    paintClouds(canvas, {0.2, 0.07, 8.0, Light::of(0xffe9cc), Light::of(0xbca9ae), 0.4, 77}, sun);
    constexpr int count = 8;
    for (int number = 0; number < count; ++number) {
        const double near = number / double(count - 1);
        const Ridge ridge{0.42 + 0.52 * std::pow(near, 1.25), 0.05 + 0.06 * near, 0.9 - 0.25 * near, 5,
                          unsigned(20 + number)};
        const Light hill = mixed(Light::of(0xd8b9a2), Light::of(0x1f3234), std::pow(near, 0.8));
        const Light mist = mixed(Light::of(0xfbd9ac), Light::of(0xe9c8a4), near);
        const auto shade = [&](double x, double y, double depth) {
            const double patch = 0.5 + 0.9 * Noise::fractal(x * 2.6, y * 7.0, 4, unsigned(50 + number));
            const double misty = step(0.0, 0.17, depth) * std::clamp(patch, 0.0, 1.0) * (1.0 - 0.35 * near);
            const double sunny = std::exp(-std::abs(x - sun.x()) / 0.5) * (1.0 - near) * 0.35;
            return mixed(mixed(hill, mist, misty), Light::of(0xffdca4), sunny);
        };
        if (number > 0) {
            const double size = 0.012 + 0.085 * near * near;
            const QPainterPath trees =
                firs(generator, ridge, canvas.aspect(), size * 0.5, size, size * (number % 2 ? 0.55 : 1.3));
            canvas.cover([&](QPainter &painter) { painter.drawPath(trees); },
                         [&](double x, double y) { return shade(x, y, 0.015); });
        }
        paintRidge(canvas, ridge, shade);
        if (number == 4) { // the village church
            const QPointF foot(0.62, ridge.top(0.62) + 0.02);
            canvas.cover(
                [&](QPainter &painter) {
                    painter.translate(foot);
                    painter.drawRect(QRectF(-0.012, -0.085, 0.024, 0.09));
                    painter.drawPolygon(QPolygonF({{-0.014, -0.085}, {0.0, -0.165}, {0.014, -0.085}}));
                    painter.drawPolygon(QPolygonF(
                        {{0.008, 0.0}, {0.008, -0.042}, {0.02, -0.06}, {0.068, -0.06}, {0.08, -0.042}, {0.08, 0.0}}));
                    for (const double house : {-0.11, -0.06, 0.12, 0.16})
                        painter.drawPolygon(QPolygonF({{house - 0.022, 0.012},
                                                       {house - 0.022, -0.014},
                                                       {house, -0.036},
                                                       {house + 0.022, -0.014},
                                                       {house + 0.022, 0.012}}));
                },
                [&](double x, double y) { return shade(x, y, 0.03); });
        }
    }
    canvas.bloom(0.85, 0.05, 0.35);
    canvas.finish(0.18, 0.012);
    return canvas.toImage();
}

// ---- mountain lake

QImage Motifs::mountainLake()
{
    QRandomGenerator generator(109);
    Canvas canvas(2700, 1800);
    const QPointF sun(1.02, 0.3);
    paintSky(canvas, {{{0.0, Light::of(0x3f74ad)},
                       {0.4, Light::of(0x8cb6d8)},
                       {0.75, Light::of(0xf2d3b2)},
                       {1.0, Light::of(0xfcc28a)}},
                      0.6,
                      sun,
                      Light::of(0xffcf92) * 0.4,
                      0.2,
                      0.0});
    paintClouds(canvas, {0.3, 0.1, 4.0, Light::of(0xfff0dc), Light::of(0xa9a6bd), 0.5, 15}, sun);
    const Light haze = Light::of(0xf0cfae);
    const Rock far{Light::of(0xb79f98),
                   Light::of(0x67789c),
                   Light::of(0xffeedd),
                   Light::of(0xa3b3d2),
                   0.34,
                   1.0,
                   6.0,
                   haze,
                   0.28,
                   0.6,
                   0.9,
                   41};
    paintRidge(canvas, {0.36, 0.26, 0.7, 8, 5},
               [&](double x, double y, double depth) { return rockLight(far, x, y, depth); });
    const Rock near{Light::of(0xa48370),
                    Light::of(0x3f5068),
                    Light::of(0xfff0df),
                    Light::of(0x8c9dbf),
                    0.3,
                    1.0,
                    7.0,
                    haze,
                    0.4,
                    0.64,
                    0.55,
                    44};
    paintRidge(canvas, {0.5, 0.27, 0.9, 8, 33},
               [&](double x, double y, double depth) { return rockLight(near, x, y, depth); });
    for (int number = 0; number < 3; ++number) {
        const Ridge ridge{0.595 + number * 0.022, 0.07 - number * 0.02, 0.55, 5, unsigned(60 + number * 4)};
        const Light wood = mixed(Light::of(0x5f7a74), Light::of(0x1f3b39), number / 2.0);
        const auto shade = [&](double x, double y) {
            const double tops = Noise::fractal(x * 40.0, y * 26.0, 4, 8);
            return mixed(wood * (1.0 + 0.5 * tops) + Light::of(0x46331a) * std::max(0.0, tops), haze,
                         0.3 * step(0.52, 0.66, y) * (1.0 - number * 0.3));
        };
        const QPainterPath trees =
            firs(generator, ridge, canvas.aspect(), 0.02 + 0.012 * number, 0.05 + 0.02 * number, 0.008);
        canvas.cover([&](QPainter &painter) { painter.drawPath(trees); }, shade);
        paintRidge(canvas, ridge, [&](double x, double y, double) { return shade(x, y); });
    }
    paintWater(canvas, {0.655, Light::of(0x12364a), 0.5, 0.86, 1.05, 17});
    canvas.paint([](double x, double y, const Light &below) { // mist over the water
        const double band = std::exp(-std::pow((y - 0.65) / 0.018, 2.0));
        return mixed(below, Light::of(0xfbe3c8),
                     0.55 * band * std::clamp(0.6 + 1.1 * Noise::fractal(x * 2.2, y * 20.0, 4, 6), 0.0, 1.0));
    });
    canvas.draw([&](QPainter &painter) { // reeds
        for (int blade = 0; blade < 520; ++blade) {
            const double x = blade % 3 ? random(generator, -0.02, 0.5) : random(generator, 1.15, 1.52);
            const double height = random(generator, 0.05, 0.16) * (blade % 3 ? 1.0 - x * 1.2 : (x - 1.0) * 1.6);
            const double lean = random(generator, -0.025, 0.035);
            QPainterPath path(QPointF(x, 1.0));
            path.quadTo(x, 1.0 - height * 0.6, x + lean, 1.0 - height - 0.03);
            painter.strokePath(
                path, QPen(mixed(Light::of(0x24301f), Light::of(0xb78f4c), generator.generateDouble() * 0.8).colour(),
                           0.0022));
        }
    });
    canvas.bloom(0.85, 0.03, 0.3);
    canvas.finish(0.2, 0.012);
    return canvas.toImage();
}

// ---- northern lights

namespace {

Light auroraLight(double x, double y)
{
    Light sum;
    for (int curtain = 0; curtain < 3; ++curtain) {
        const double bend = Noise::fractal(x * 1.3 + curtain * 5.0, 0.4 * y + curtain, 3, unsigned(70 + curtain));
        const double foot = 0.47 - 0.1 * curtain + 0.2 * bend + 0.05 * std::sin(x * 4.0 + curtain * 2.0);
        const double above = foot - y;
        const double body = above < 0.0 ? std::exp(above / 0.028) : std::exp(-above / (0.13 + 0.03 * curtain));
        const double rays =
            0.45 +
            0.75 * std::pow(std::clamp(0.5 + Noise::fractal(x * 22.0 + bend * 9.0, y * 0.9, 4, unsigned(80 + curtain)),
                                       0.0, 1.0),
                            1.6);
        const double patches =
            std::clamp(0.55 + 1.2 * Noise::fractal(x * 1.7 + 9.0 * curtain, 1.0, 3, unsigned(90 + curtain)), 0.0, 1.0);
        const Light tint = mixed(Light::of(0x3dffa2), Light::of(0x8a4dff), step(0.02, 0.3, above));
        sum = sum + tint * (body * rays * patches * (0.95 - 0.25 * curtain));
    }
    return sum;
}

} // namespace

QImage Motifs::northernLights()
{
    QRandomGenerator generator(113);
    Canvas canvas(2700, 1800);
    paintSky(canvas, {{{0.0, Light::of(0x050a1f)}, {0.6, Light::of(0x0d2140)}, {1.0, Light::of(0x1f4a5c)}},
                      0.66,
                      {0.7, 0.6},
                      Light{},
                      0.3,
                      0.0});
    canvas.paint(
        [](double x, double y, const Light &below) { // a pale river of stars
            const double across = (y - 0.9 + x * 0.75) / 1.25;
            const double dust = Noise::fractal(x * 5.0, y * 5.0, 6, 61);
            return below + Light::of(0x9fa8d8) * (0.16 * std::exp(-std::pow(across / 0.16, 2.0)) *
                                                  std::clamp(0.7 + 1.3 * dust, 0.0, 1.5));
        },
        0.0, 0.7);
    paintStars(canvas, generator, 5200, 0.68);
    canvas.paint([](double x, double y, const Light &below) { return below + auroraLight(x, y) * 0.8; }, 0.0, 0.75);
    const Rock rock{Light::of(0x3d6a72),
                    Light::of(0x12283f),
                    Light::of(0xa9e6d2),
                    Light::of(0x3a6280),
                    0.95,
                    -1.0,
                    7.0,
                    Light::of(0x2b6468),
                    0.5,
                    0.72,
                    0.6,
                    51};
    paintRidge(canvas, {0.6, 0.17, 0.6, 8, 21},
               [&](double x, double y, double depth) { return rockLight(rock, x, y, depth); });
    const Ridge forest{0.675, 0.03, 0.5, 4, 27};
    const QPainterPath farFirs = firs(generator, forest, canvas.aspect(), 0.02, 0.06, 0.011);
    canvas.cover([&](QPainter &painter) { painter.drawPath(farFirs); },
                 [](double, double y) { return mixed(Light::of(0x0c2233), Light::of(0x2a5a62), step(0.62, 0.72, y)); });
    canvas.paint(
        [&](double, double y, const Light &below) { return mixed(below, Light::of(0x143440), step(0.66, 0.69, y)); },
        0.64, 0.7);
    paintWater(canvas, {0.688, Light::of(0x07192b), 0.42, 0.9, 1.15, 23});
    paintRidge(canvas, {0.93, 0.1, 0.7, 4, 36}, [](double x, double y, double depth) {
        const double drift = Noise::fractal(x * 4.0, y * 8.0, 5, 33);
        return mixed(Light::of(0x3d7b83), Light::of(0x16324c), std::clamp(0.35 + depth * 2.5 + drift, 0.0, 1.0)) +
               Light::of(0x2a7a5c) * (0.5 * std::exp(-depth / 0.02));
    });
    paintSnowyFirs(canvas, generator, {{1.28, 0.9}, {1.42, 0.93}, {0.09, 0.97}, {1.16, 0.94}}, 0.38, 0.6,
                   Light::of(0x081522), Light::of(0x5fa6a2));
    canvas.bloom(0.6, 0.03, 0.3);
    canvas.finish(0.2, 0.014);
    return canvas.toImage();
}

// ---- balloons

namespace {

struct Balloon
{
    QPointF centre;
    double radius;
    QList<QColor> gores;
};

/// The envelope as a sphere drawn out to its mouth, gore by gore.
QPainterPath envelope(const Balloon &balloon, double from, double to) // of the width, -1 to 1
{
    const double r = balloon.radius;
    QPainterPath path(balloon.centre + QPointF(0, -r));
    path.cubicTo(balloon.centre + QPointF(from * r * 0.8, -r), balloon.centre + QPointF(from * r * 1.28, 0.1 * r),
                 balloon.centre + QPointF(from * r * 0.62, 0.72 * r));
    path.lineTo(balloon.centre + QPointF(from * r * 0.2, 1.22 * r));
    path.lineTo(balloon.centre + QPointF(to * r * 0.2, 1.22 * r));
    path.lineTo(balloon.centre + QPointF(to * r * 0.62, 0.72 * r));
    path.cubicTo(balloon.centre + QPointF(to * r * 1.28, 0.1 * r), balloon.centre + QPointF(to * r * 0.8, -r),
                 balloon.centre + QPointF(0, -r));
    return path;
}

void drawBalloon(QPainter &painter, const Balloon &balloon, double haze)
{
    const double r = balloon.radius;
    constexpr int count = 12;
    for (int gore = 0; gore < count; ++gore) {
        const double from = -std::cos(3.14159 * gore / count);
        const double to = -std::cos(3.14159 * (gore + 1) / count);
        painter.setBrush(balloon.gores[gore % balloon.gores.size()]);
        painter.drawPath(envelope(balloon, from, to + 0.004));
    }
    QRadialGradient round(balloon.centre + QPointF(0.42 * r, -0.35 * r), 1.75 * r); // the sun is at the right
    round.setColorAt(0.0, QColor(255, 240, 205, 120));
    round.setColorAt(0.35, QColor(255, 226, 180, 20));
    round.setColorAt(0.7, QColor(40, 30, 70, 90));
    round.setColorAt(1.0, QColor(30, 24, 66, 170));
    painter.setBrush(round);
    painter.drawPath(envelope(balloon, -1.0, 1.0));
    painter.setPen(QPen(QColor(60, 46, 44), r * 0.012));
    for (const double side : {-1.0, -0.4, 0.4, 1.0})
        painter.drawLine(balloon.centre + QPointF(side * 0.19 * r, 1.22 * r),
                         balloon.centre + QPointF(side * 0.12 * r, 1.48 * r));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(122, 84, 52));
    painter.drawRoundedRect(QRectF(balloon.centre.x() - 0.13 * r, balloon.centre.y() + 1.46 * r, 0.26 * r, 0.19 * r),
                            0.03 * r, 0.03 * r);
    painter.setBrush(QColor(226, 206, 196, int(255 * haze)));
    painter.drawPath(envelope(balloon, -1.0, 1.0));
}

} // namespace

QImage Motifs::balloons()
{
    QRandomGenerator generator(107);
    Canvas canvas(2100, 2800);
    const QPointF sun(0.7, 0.62);
    paintSky(canvas, {{{0.0, Light::of(0x3d7ec4)},
                       {0.45, Light::of(0x9cc6e6)},
                       {0.8, Light::of(0xf7ddbb)},
                       {1.0, Light::of(0xfcc793)}},
                      0.7,
                      sun,
                      Light::of(0xffc98a) * 0.4,
                      0.16,
                      0.0});
    paintClouds(canvas, {0.26, 0.09, 3.5, Light::of(0xfff6ea), Light::of(0xb5bdd4), 0.62, 5}, sun);
    for (int number = 0; number < 7; ++number) {
        const double near = number / 6.0;
        const Ridge ridge{0.66 + 0.3 * std::pow(near, 1.3), 0.05 + 0.05 * near, 0.5, 5, unsigned(110 + number)};
        const Light hill = mixed(Light::of(0xb9a9b4), Light::of(0x2f5a34), std::pow(near, 0.7));
        const auto shade = [&](double x, double y, double depth) {
            const double fields = Noise::fractal(x * 12.0, y * 30.0, 3, unsigned(7 + number));
            const Light ground = mixed(hill, Light::of(0xd6b45c), std::clamp(fields * 1.6, 0.0, 0.6) * near);
            const double misty = step(0.0, 0.1, depth) * (1.0 - near) * 0.85;
            return mixed(ground * (1.0 + 0.25 * fields), Light::of(0xfbdcb6), misty) +
                   Light::of(0x3a2a10) * (std::exp(-depth / 0.006) * near);
        };
        const QPainterPath trees = [&] {
            QPainterPath path;
            path.setFillRule(Qt::WindingFill);
            for (double x = 0.0; x < 0.76; x += random(generator, 0.008, 0.05) * (0.4 + near)) {
                const double height = random(generator, 0.012, 0.03) * (0.35 + near);
                path.addPath(leafTree(generator, QPointF(x, ridge.top(x) + 0.003), height));
            }
            return path;
        }();
        canvas.cover([&](QPainter &painter) { painter.drawPath(trees); },
                     [&](double x, double y) { return shade(x, y, 0.02) * 0.8; });
        paintRidge(canvas, ridge, shade);
    }
    const QColor red(204, 52, 44);
    const QColor yellow(246, 190, 56);
    const QColor white(246, 240, 228);
    const QColor blue(38, 92, 156);
    const QColor teal(32, 140, 136);
    const QColor orange(232, 118, 38);
    const std::pair<Balloon, double> all[] = {
        {{{0.62, 0.52}, 0.022, {teal, white}}, 0.4},          {{{0.15, 0.56}, 0.03, {blue, yellow}}, 0.32},
        {{{0.44, 0.44}, 0.036, {orange, white}}, 0.25},       {{{0.6, 0.17}, 0.062, {blue, white, blue, yellow}}, 0.1},
        {{{0.16, 0.22}, 0.05, {teal, yellow, orange}}, 0.14}, {{{0.35, 0.3}, 0.15, {red, yellow, red, white}}, 0.0}};
    for (const auto &[balloon, haze] : all)
        canvas.draw([&, b = &balloon, h = haze](QPainter &painter) { drawBalloon(painter, *b, h); });
    canvas.bloom(0.85, 0.03, 0.25);
    canvas.finish(0.16, 0.012);
    return canvas.toImage();
}

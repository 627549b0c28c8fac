// SPDX-License-Identifier: LGPL-2.1-or-later
// Blossoms, meadows and woods.
#include "Motifs.h"
#include "Nature.h"
#include "Noise.h"

#include <QPainter>

using namespace Nature;

// ---- cherry blossom

namespace {

/// One blossom of five notched petals, seen from before; turned and tilted.
void drawBlossom(QPainter &painter, QRandomGenerator &generator, const QPointF &at, double size)
{
    painter.save();
    painter.translate(at);
    painter.rotate(random(generator, 0.0, 360.0));
    painter.scale(size, size * random(generator, 0.68, 1.0));
    painter.rotate(random(generator, 0.0, 360.0));
    const double warm = generator.generateDouble();
    for (int petal = 0; petal < 5; ++petal) {
        painter.save();
        painter.rotate(72.0 * petal + random(generator, -5.0, 5.0));
        QPainterPath path(QPointF(0, 0));
        path.cubicTo(-0.34, -0.2, -0.56, -0.75, -0.24, -0.98);
        path.quadTo(-0.08, -1.04, 0.0, -0.9);
        path.quadTo(0.08, -1.04, 0.24, -0.98);
        path.cubicTo(0.56, -0.75, 0.34, -0.2, 0, 0);
        QRadialGradient light(QPointF(0, 0), 1.05);
        light.setColorAt(0.0, QColor(214, 92, 130));
        light.setColorAt(0.22, QColor(243, 168, 192));
        light.setColorAt(0.65, QColor(253, 222, 230).lighter(100 + int(4 * warm)));
        light.setColorAt(1.0, QColor(255, 243, 246));
        painter.setBrush(light);
        painter.drawPath(path);
        QLinearGradient fold(QPointF(-0.4, 0), QPointF(0.4, 0));
        fold.setColorAt(0.0, QColor(190, 90, 130, 60));
        fold.setColorAt(0.45, QColor(255, 255, 255, 0));
        fold.setColorAt(1.0, QColor(255, 255, 255, 70));
        painter.setBrush(fold);
        painter.drawPath(path);
        painter.restore();
    }
    for (int thread = 0; thread < 14; ++thread) {
        const double angle = thread * 0.4488 + random(generator, -0.15, 0.15);
        const double length = random(generator, 0.28, 0.5);
        const QPointF end(std::cos(angle) * length, std::sin(angle) * length);
        painter.setPen(QPen(QColor(226, 120, 150), 0.018));
        painter.drawLine(QPointF(), end);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(238, 182, 70));
        painter.drawEllipse(end, 0.038, 0.038);
    }
    painter.setBrush(QColor(166, 70, 96));
    painter.drawEllipse(QPointF(), 0.08, 0.08);
    painter.restore();
}

/// A branch from one point to another that thins out; gives points along it.
QList<QPointF> drawBranch(QPainter &painter, QRandomGenerator &generator, const QPointF &from, const QPointF &to,
                          double width)
{
    QList<QPointF> points;
    const QPointF across(-(to - from).y(), (to - from).x());
    const double bend = random(generator, -0.14, 0.14);
    for (int i = 0; i <= 24; ++i) {
        const double part = i / 24.0;
        const double knot = 0.012 * Noise::at(part * 9.0, width * 400.0, 5);
        points.append(from + (to - from) * part + across * (bend * std::sin(part * 3.1416) + knot));
    }
    for (int i = 0; i < 24; ++i) {
        const double thick = width * (1.0 - 0.8 * i / 24.0);
        painter.setPen(QPen(QColor(74, 50, 46), thick, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(points[i], points[i + 1]);
    }
    for (int i = 0; i < 24; ++i) {
        const double thick = width * (1.0 - 0.8 * i / 24.0);
        painter.setPen(QPen(QColor(146, 108, 98, 170), thick * 0.3, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(points[i] + QPointF(-0.12, -0.25) * thick, points[i + 1] + QPointF(-0.12, -0.25) * thick);
    }
    painter.setPen(Qt::NoPen);
    return points;
}

struct Spray
{
    QPointF from;
    QPointF to;
    double width = 0.0;
    int blossoms = 0;
    double size = 0.0;
};

void drawSpray(QPainter &painter, QRandomGenerator &generator, const Spray &spray)
{
    const QList<QPointF> points = drawBranch(painter, generator, spray.from, spray.to, spray.width);
    for (int number = 0; number < spray.blossoms; ++number) {
        const QPointF near = points[6 + int(generator.bounded(19))];
        const QPointF off(random(generator, -1.5, 1.5) * spray.size, random(generator, -1.3, 1.5) * spray.size);
        painter.setPen(QPen(QColor(120, 104, 70), spray.size * 0.06));
        painter.drawLine(near, near + off);
        painter.setPen(Qt::NoPen);
        if (number % 5 == 0) { // a bud
            painter.setBrush(QColor(224, 96, 138));
            painter.drawEllipse(near + off, spray.size * 0.24, spray.size * 0.32);
            painter.setBrush(QColor(246, 170, 196, 150));
            painter.drawEllipse(near + off - QPointF(0.06, 0.1) * spray.size, spray.size * 0.12, spray.size * 0.16);
        } else {
            drawBlossom(painter, generator, near + off, spray.size * random(generator, 0.75, 1.1));
        }
    }
}

} // namespace

QImage Motifs::cherryBlossom()
{
    QRandomGenerator generator(104);
    Canvas canvas(1800, 2700);
    canvas.paint([](double x, double y, const Light &) {
        const double lump = Noise::fractal(x * 2.2, y * 2.2, 3, 12);
        const Light sky = between({{0.0, Light::of(0x86bde6)}, {0.5, Light::of(0xc4def0)}, {1.0, Light::of(0xcfdcb8)}},
                                  y + 0.3 * lump);
        return mixed(sky, Light::of(0xf6cfdc),
                     std::clamp(0.35 + 1.2 * Noise::fractal(x * 1.5 + 4.0, y * 1.5, 2, 18), 0.0, 0.8));
    });
    paintBokeh(canvas, generator, 110,
               {Light::of(0xffeef4), Light::of(0xf7b9cf), Light::of(0xffffff), Light::of(0xbfdcb0)}, 0.012, 0.055,
               0.38);
    canvas.draw(
        [&](QPainter &painter) {
            drawSpray(painter, generator, {{0.72, 0.9}, {0.05, 0.62}, 0.022, 46, 0.045});
        },
        0.016);
    canvas.draw(
        [&](QPainter &painter) {
            drawSpray(painter, generator, {{-0.05, 0.05}, {0.6, 0.16}, 0.02, 34, 0.045});
        },
        0.01);
    canvas.draw([&](QPainter &painter) {
        drawSpray(painter, generator, {{0.3, 0.47}, {0.58, 0.16}, 0.011, 20, 0.046});
        drawSpray(painter, generator, {{0.22, 0.55}, {0.63, 0.66}, 0.01, 16, 0.046});
        drawSpray(painter, generator, {{-0.05, 0.74}, {0.6, 0.31}, 0.027, 40, 0.056});
    });
    canvas.draw(
        [&](QPainter &painter) { // falling petals
            for (int petal = 0; petal < 22; ++petal) {
                painter.save();
                painter.translate(random(generator, 0.0, 0.67), random(generator, 0.5, 1.0));
                painter.rotate(random(generator, 0.0, 180.0));
                painter.setBrush(QColor(255, 226, 234, 210));
                painter.drawEllipse(QPointF(), random(generator, 0.007, 0.014), random(generator, 0.004, 0.008));
                painter.restore();
            }
        },
        0.002);
    canvas.bloom(0.85, 0.03, 0.2);
    canvas.finish(0.12, 0.012);
    return canvas.toImage();
}

// ---- poppy meadow

namespace {

void drawPoppy(QPainter &painter, QRandomGenerator &generator, const QPointF &at, double size)
{
    painter.save();
    painter.translate(at);
    painter.rotate(random(generator, -18.0, 18.0));
    painter.scale(size, size * random(generator, 0.62, 0.85));
    const QColor red = QColor::fromHsv(int(random(generator, 2, 12)), 225, int(random(generator, 205, 240)));
    for (const double angle : {-52.0, 52.0, -14.0, 16.0}) { // behind first
        painter.save();
        painter.rotate(angle);
        QPainterPath petal(QPointF(0, 0.2));
        petal.cubicTo(-0.95, 0.0, -0.8, -1.05, -0.1, -0.95);
        petal.quadTo(0.05, -1.02, 0.2, -0.94);
        petal.cubicTo(0.85, -0.95, 0.85, 0.0, 0, 0.2);
        QRadialGradient light(QPointF(0, 0.1), 1.2);
        light.setColorAt(0.0, red.darker(190));
        light.setColorAt(0.35, red.darker(112));
        light.setColorAt(0.8, red);
        light.setColorAt(1.0, red.lighter(125));
        painter.setBrush(light);
        painter.drawPath(petal);
        painter.restore();
    }
    painter.setBrush(QColor(38, 22, 34));
    painter.drawEllipse(QPointF(0, -0.12), 0.2, 0.17);
    painter.setBrush(QColor(136, 150, 96));
    painter.drawEllipse(QPointF(0, -0.14), 0.09, 0.08);
    painter.restore();
}

void drawRays(QPainter &painter, QRandomGenerator &generator, const QPointF &at, double size, const QColor &petals,
              const QColor &middle)
{
    painter.save();
    painter.translate(at);
    painter.scale(size, size * random(generator, 0.6, 0.95));
    const int count = 13;
    for (int petal = 0; petal < count; ++petal) {
        painter.save();
        painter.rotate(360.0 / count * petal + random(generator, -6.0, 6.0));
        painter.setBrush(petal % 2 ? petals : petals.darker(112));
        painter.drawEllipse(QPointF(0, -0.62), 0.16, 0.4);
        painter.restore();
    }
    painter.setBrush(middle);
    painter.drawEllipse(QPointF(), 0.3, 0.28);
    painter.restore();
}

void drawStem(QPainter &painter, QRandomGenerator &generator, const QPointF &head, double height)
{
    QPainterPath stem(head);
    const double sway = random(generator, -0.25, 0.25) * height;
    stem.quadTo(head + QPointF(sway * 0.1, height * 0.5), head + QPointF(sway, height));
    painter.strokePath(stem, QPen(QColor(74, 112, 52), std::max(0.0012, height * 0.02)));
}

/// Grass and flowers that stand at about one depth: y where they root, scale of everything.
void drawMeadowRow(QPainter &painter, QRandomGenerator &generator, double y, double scale, double width, double density)
{
    const int blades = int(width / (0.0055 * scale));
    for (int blade = 0; blade < blades; ++blade) {
        const double x = random(generator, -0.05, width + 0.05);
        const double height = random(generator, 0.05, 0.14) * scale;
        QPainterPath path(QPointF(x, y));
        const double sway = random(generator, -0.4, 0.5) * height;
        path.quadTo(x + sway * 0.1, y - height * 0.6, x + sway, y - height);
        const Light green = mixed(Light::of(0x2f5a22), Light::of(0xa8c253), std::pow(generator.generateDouble(), 1.4));
        painter.strokePath(path, QPen(green.colour(), random(generator, 0.0018, 0.0042) * scale));
    }
    const int flowers = int(width * density / (0.05 * scale));
    for (int flower = 0; flower < flowers; ++flower) {
        const QPointF head(random(generator, -0.03, width + 0.03), y - random(generator, 0.07, 0.19) * scale);
        const double kind = generator.generateDouble() + 0.25 * Noise::at(head.x() * 3.0, y * 9.0, 3);
        drawStem(painter, generator, head, y - head.y() + 0.01);
        if (kind < 0.6)
            drawPoppy(painter, generator, head, random(generator, 0.022, 0.032) * scale);
        else if (kind < 0.8)
            drawRays(painter, generator, head, random(generator, 0.014, 0.02) * scale, QColor(250, 250, 244),
                     QColor(240, 188, 48));
        else
            drawRays(painter, generator, head, random(generator, 0.013, 0.018) * scale, QColor(64, 92, 200),
                     QColor(46, 44, 120));
    }
}

} // namespace

QImage Motifs::poppyMeadow()
{
    QRandomGenerator generator(105);
    Canvas canvas(2700, 1800);
    const QPointF sun(0.3, -0.1);
    paintSky(canvas, {{{0.0, Light::of(0x3585cf)}, {0.6, Light::of(0x8fc3ec)}, {1.0, Light::of(0xe2f0f4)}},
                      0.5,
                      sun,
                      Light::of(0xfff2d0) * 0.25,
                      0.3,
                      0.0});
    paintClouds(canvas, {0.42, 0.17, 2.2, Light::of(0xffffff), Light::of(0xa9bcd4), 0.56, 88}, sun);
    for (int number = 0; number < 4; ++number) {
        const double near = number / 3.0;
        const Ridge ridge{0.48 + 0.05 * near, 0.05 * (1.0 - 0.5 * near), 0.6, 4, unsigned(130 + number)};
        const auto shade = [&](double x, double y, double) {
            const double wood = Noise::fractal(x * 26.0, y * 60.0, 4, unsigned(number));
            return mixed(mixed(Light::of(0x86a6b4), Light::of(0x4d7f3e), near), Light::of(0xa8b860),
                         std::clamp(wood + 0.1, 0.0, 0.7) * near) *
                   (1.0 + 0.3 * wood);
        };
        const QPainterPath trees = [&] {
            QPainterPath path;
            path.setFillRule(Qt::WindingFill);
            for (double x = 0.0; x < canvas.aspect(); x += random(generator, 0.01, 0.08 + 0.05 * near))
                path.addPath(leafTree(generator, QPointF(x, ridge.top(x) + 0.012),
                                      random(generator, 0.02, 0.035 + 0.03 * near)));
            return path;
        }();
        canvas.cover([&](QPainter &painter) { painter.drawPath(trees); },
                     [&](double x, double y) { return shade(x, y, 0.0) * 0.8; });
        paintRidge(canvas, ridge, shade);
    }
    const Ridge meadow{0.55, 0.015, 0.8, 3, 140};
    paintRidge(canvas, meadow, [](double x, double y, double depth) {
        const double lump = Noise::fractal(x * 9.0, y * 26.0, 5, 44);
        const double red =
            std::clamp(Noise::fractal(x * 14.0, y * 70.0, 4, 46) * 2.0 - 0.15, 0.0, 1.0) * step(0.35, 0.0, depth);
        const Light green = mixed(Light::of(0x9fb85a), Light::of(0x3c6426), step(0.0, 0.4, depth)) * (1.0 + 0.4 * lump);
        return mixed(green, Light::of(0xd2402c), red * 0.8);
    });
    constexpr int rows = 22;
    for (int row = 0; row < rows; ++row) {
        const double near = row / double(rows - 1);
        const double scale = 0.12 + 1.5 * std::pow(near, 1.7);
        const double y = 0.565 + 0.5 * std::pow(near, 1.4);
        const double blur = near > 0.9 ? 0.004 + (near - 0.9) * 0.06 : near < 0.4 ? (0.4 - near) * 0.004 : 0.0;
        canvas.draw([&](QPainter &painter) { drawMeadowRow(painter, generator, y, scale, canvas.aspect(), 0.5); },
                    blur);
    }
    canvas.bloom(0.88, 0.03, 0.2);
    canvas.finish(0.16, 0.012);
    return canvas.toImage();
}

// ---- lavender

QImage Motifs::lavender()
{
    QRandomGenerator generator(111);
    Canvas canvas(2400, 2400);
    const QPointF sun(0.66, 0.37);
    constexpr double horizon = 0.43;
    const QPointF vanishing(0.62, horizon - 0.02);
    paintSky(canvas, {{{0.0, Light::of(0x5d76b8)},
                       {0.5, Light::of(0xd6a6b4)},
                       {0.85, Light::of(0xfbc183)},
                       {1.0, Light::of(0xffd794)}},
                      horizon,
                      sun,
                      Light::of(0xffb45c) * 0.55,
                      0.15,
                      0.026});
    paintClouds(canvas, {0.34, 0.08, 5.0, Light::of(0xffc48e), Light::of(0x8a78a8), 0.42, 64}, sun);
    paintRidge(canvas, {0.42, 0.05, 0.5, 5, 144}, [](double x, double, double depth) {
        return mixed(Light::of(0x8f7ba4), Light::of(0xe8b48e),
                     step(0.0, 0.06, depth) * 0.6 + std::exp(-std::abs(x - 0.66) / 0.15) * 0.4);
    });
    canvas.paint(
        [&](double x, double y, const Light &below) {
            const double depth = y - horizon;
            if (depth <= 0.0)
                return below;
            const double row = (x - vanishing.x()) / (depth + 0.02) * 2.4; // rows meet at the vanishing point
            const double far = std::log(depth + 0.012) * 10.0;
            const double wobble = Noise::fractal(row * 1.7, far * 3.0, 4, 22) * 0.2;
            const double place = row + wobble - std::floor(row + wobble); // across one row, 0 to 1
            const double hump = std::sin(place * 3.1416);
            const double blossom = Noise::fractal(row * 11.0, far * 14.0, 5, 25);
            const double lit = std::clamp(0.35 + 0.55 * (place - 0.3) + 0.9 * blossom, 0.0, 1.0);
            const Light purple = mixed(Light::of(0x3e2670), Light::of(0xb08ae0), lit);
            const Light earth = mixed(Light::of(0x4d5a2c), Light::of(0x8a7a4a), 0.5 + blossom);
            const Light field = mixed(earth * 0.75, purple, step(0.28, 0.55, hump + 0.25 * blossom));
            const double haze = std::exp(-depth / 0.07);
            const double warm = std::exp(-std::hypot(x - sun.x(), (y - horizon) * 0.8) / 0.4);
            return mixed(field, Light::of(0xe2a6a0), haze * 0.75) + Light::of(0xff9c4c) * (0.22 * warm * (0.4 + lit));
        },
        horizon);
    const QPointF foot(0.27, 0.462); // a lone tree
    const QPainterPath tree = leafTree(generator, foot, 0.24);
    canvas.cover([&](QPainter &painter) { painter.drawPath(tree); },
                 [&](double x, double y) {
                     const double leaf = Noise::fractal(x * 60.0, y * 60.0, 4, 30);
                     const double side = step(-0.06, 0.1, x - foot.x() + 0.3 * (foot.y() - 0.15 - y) + 0.08 * leaf);
                     return mixed(Light::of(0x2a2a34), Light::of(0xc68a4c), side * (0.55 + 0.8 * leaf));
                 });
    canvas.draw(
        [&](QPainter &painter) { // its shadow falls towards the viewer
            painter.setBrush(QColor(36, 18, 60, 110));
            painter.drawPolygon(QPolygonF({{0.262, 0.463}, {0.278, 0.463}, {0.12, 0.58}, {-0.04, 0.6}, {-0.02, 0.54}}));
        },
        0.01);
    canvas.draw([&](QPainter &painter) { // single spikes before all
        for (int spike = 0; spike < 1500; ++spike) {
            const double near = std::pow(generator.generateDouble(), 0.8);
            const double y = 0.78 + 0.26 * near;
            const double x = random(generator, 0.0, 1.0);
            const double row = (x - vanishing.x()) / (y - horizon + 0.02) * 2.4;
            if (std::abs(row - std::floor(row) - 0.5) > 0.27)
                continue;
            const double size = 0.02 + 0.04 * near;
            const double lean = random(generator, -0.3, 0.3) * size;
            for (int bead = 0; bead < 7; ++bead) {
                const double part = bead / 7.0;
                painter.setBrush(
                    mixed(Light::of(0x5a3a9c), Light::of(0xcdb0f2), generator.generateDouble()).colour(0.9));
                painter.drawEllipse(QPointF(x + lean * part, y - size * part), size * 0.075 * (1.2 - part),
                                    size * 0.085);
            }
        }
    });
    canvas.bloom(0.82, 0.04, 0.3);
    canvas.finish(0.2, 0.012);
    return canvas.toImage();
}

// ---- birch wood

namespace {

struct Trunk
{
    double x;
    double width;
    double lean;
    double near; // 0 far to 1 near
    unsigned seed;
};

void paintTrunk(Canvas &canvas, const Trunk &trunk, const Light &mist)
{
    const double foot = 0.66 + 0.26 * trunk.near;
    const auto centre = [&](double y) {
        return trunk.x + trunk.lean * (foot - y) + 0.012 * trunk.near * Noise::at(y * 3.0, trunk.x * 9.0, trunk.seed);
    };
    canvas.cover(
        [&](QPainter &painter) {
            QPolygonF outline;
            for (int i = 0; i <= 40; ++i) {
                const double y = -0.02 + (foot + 0.02) * i / 40.0;
                outline.prepend({centre(y) - trunk.width * 0.5 * (0.75 + 0.25 * y / foot + (i == 40 ? 0.25 : 0.0)), y});
                outline.append({centre(y) + trunk.width * 0.5 * (0.75 + 0.25 * y / foot + (i == 40 ? 0.25 : 0.0)), y});
            }
            painter.drawPolygon(outline);
        },
        [&](double x, double y) {
            const double side = (x - centre(y)) / trunk.width * 2.0; // -1 to 1
            const double scale = 0.03 / trunk.width;
            const double bark = Noise::fractal(side * 0.8 + 3.0, y * 60.0 * scale, 4, trunk.seed);
            const double eye = Noise::fractal(side * 1.3, y * 13.0 * scale, 3, trunk.seed + 5);
            const double round = std::clamp(0.85 - 0.55 * side - 0.35 * side * side, 0.1, 1.0);
            Light light = mixed(Light::of(0x7b7486), Light::of(0xfff4e2), round) * (1.0 + 0.15 * bark);
            light = mixed(light, Light::of(0x2c2422), step(0.17, 0.3, bark) * 0.8);
            light = mixed(light, Light::of(0x241c1c), step(0.24, 0.34, eye) * 0.9);
            light = mixed(light, Light::of(0x33291f), step(foot - 0.2, foot, y) * 0.45);
            return mixed(mist, light, 0.12 + 0.88 * std::pow(trunk.near, 0.7));
        },
        0.0006 + 0.0012 * (1.0 - trunk.near));
}

void drawLeaves(QPainter &painter, QRandomGenerator &generator, int count, const QRectF &area, double size,
                double alpha)
{
    for (int leaf = 0; leaf < count; ++leaf) {
        const double warm = generator.generateDouble();
        const Light light = between({{0.0, Light::of(0x8f9a2c)},
                                     {0.3, Light::of(0xe8b92e)},
                                     {0.7, Light::of(0xf39a1e)},
                                     {1.0, Light::of(0xc04a18)}},
                                    warm);
        painter.save();
        painter.translate(area.x() + area.width() * generator.generateDouble(),
                          area.y() + area.height() * std::pow(generator.generateDouble(), 1.5));
        painter.rotate(random(generator, 0.0, 360.0));
        painter.setBrush(light.colour(alpha * random(generator, 0.5, 1.0)));
        painter.drawEllipse(QPointF(), size * random(generator, 0.6, 1.2), size * random(generator, 0.35, 0.7));
        painter.restore();
    }
}

void paintForestFloor(Canvas &canvas, const Light &mist)
{
    canvas.paint(
        [&](double x, double y, const Light &below) {
            const double depth = y - 0.63;
            const double scale = 1.0 / (0.12 + depth);
            const double leaf = Noise::fractal(x * 12.0 * scale, y * 30.0 * scale, 5, 70);
            const double patch = Noise::fractal(x * 3.0 * scale, y * 6.0 * scale, 4, 74);
            const Light floor = between({{-0.5, Light::of(0x4a2a14)},
                                         {0.0, Light::of(0xa35a1e)},
                                         {0.3, Light::of(0xe09a34)},
                                         {0.7, Light::of(0xf6c860)}},
                                        leaf * 1.1 + 0.12);
            const Light green = mixed(floor, Light::of(0x5d6f2a), std::clamp(patch * 1.6, 0.0, 0.6));
            return mixed(below, mixed(green, mist, std::exp(-depth / 0.09)), step(0.0, 0.03, depth));
        },
        0.62);
}

} // namespace

QImage Motifs::birchWood()
{
    QRandomGenerator generator(112);
    Canvas canvas(2640, 1980);
    const Light mist = Light::of(0xffe2a0);
    canvas.paint([&](double x, double y, const Light &) {
        const double leaf = Noise::fractal(x * 5.0, y * 5.0, 6, 40);
        const double bright = std::exp(-std::hypot(x - 0.86, y - 0.4) / 0.42);
        return between(
            {{0.0, Light::of(0xa8681c)}, {0.45, Light::of(0xe0a43a)}, {0.8, mist}, {1.1, Light::of(0xfff6d8)}},
            0.25 + 0.75 * bright + 0.45 * leaf);
    });
    canvas.draw(
        [&](QPainter &painter) {
            drawLeaves(painter, generator, 2600, {0.0, 0.0, 1.34, 0.6}, 0.014, 0.5);
        },
        0.009);
    paintForestFloor(canvas, mist);
    std::vector<Trunk> trunks;
    for (int number = 0; number < 44; ++number) {
        const double near = std::pow(number / 43.0, 2.2) * 0.62;
        trunks.push_back({random(generator, 0.0, 1.34), 0.007 + 0.034 * near, random(generator, -0.05, 0.05), near,
                          unsigned(200 + number)});
    }
    for (const Trunk &trunk : {Trunk{1.19, 0.062, -0.02, 0.86, 301}, Trunk{0.55, 0.05, 0.03, 0.78, 303},
                               Trunk{0.19, 0.088, 0.015, 1.0, 302}})
        trunks.push_back(trunk);
    int number = 0;
    for (const Trunk &trunk : trunks) {
        paintTrunk(canvas, trunk, mist);
        if (++number % 11 == 0)
            canvas.draw(
                [&](QPainter &painter) {
                    drawLeaves(painter, generator, 900, {0.0, 0.0, 1.34, 0.42}, 0.007 + 0.004 * trunk.near, 0.85);
                },
                0.0012);
    }
    canvas.paint([](double x, double y, const Light &below) { // rays of the sun through the crowns
        const double angle = std::atan2(x - 0.95, y + 0.35);
        const double ray = std::pow(std::clamp(0.5 + 1.1 * Noise::fractal(angle * 16.0, 0.5, 3, 5), 0.0, 1.0), 2.0);
        return below + Light::of(0xffd98a) * (0.24 * ray * step(0.95, 0.2, y));
    });
    canvas.draw([&](QPainter &painter) { drawLeaves(painter, generator, 1500, {0.0, 0.78, 1.34, 0.3}, 0.008, 0.95); });
    canvas.draw(
        [&](QPainter &painter) {
            drawLeaves(painter, generator, 260, {0.0, -0.02, 1.34, 0.3}, 0.013, 0.95);
        },
        0.002);
    canvas.bloom(0.8, 0.04, 0.3);
    canvas.finish(0.22, 0.012);
    return canvas.toImage();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// A town by night at its river.
#include "Motifs.h"
#include "Nature.h"
#include "Noise.h"

#include <QPainter>

using namespace Nature;

namespace {

constexpr double quay = 0.66;

struct House
{
    QRectF wall;
    int roof; // 0 flat, 1 gable, 2 hipped, 3 tower with spire
    Light light;
};

QList<House> street(QRandomGenerator &generator, double width, double lowest, double highest, const Light &light,
                    double flat)
{
    QList<House> houses;
    for (double x = -0.02; x < width;) {
        const double wide = random(generator, 0.06, 0.13);
        const double high = random(generator, lowest, highest);
        const int roof = generator.generateDouble() < flat ? 0 : generator.generateDouble() < 0.55 ? 1 : 2;
        houses.append({QRectF(x, quay - high, wide, high + 0.01), roof, light * random(generator, 0.75, 1.25)});
        x += wide * (roof == 0 ? 1.02 : 0.99);
    }
    return houses;
}

void drawHouse(QPainter &painter, const House &house)
{
    const QRectF wall = house.wall;
    QLinearGradient light(0, wall.top(), 0, quay);
    light.setColorAt(0.0, house.light.colour());
    light.setColorAt(1.0, (house.light * 1.35 + Light::of(0x2a1606)).colour()); // lamps light the street
    painter.setBrush(light);
    painter.drawRect(wall);
    painter.setBrush((house.light * 0.62).colour());
    const double rise = std::min(0.07, wall.width() * 0.55);
    if (house.roof == 1)
        painter.drawPolygon(QPolygonF({wall.topLeft() + QPointF(-0.003, 0),
                                       {wall.center().x(), wall.top() - rise},
                                       wall.topRight() + QPointF(0.003, 0)}));
    else if (house.roof == 2)
        painter.drawPolygon(QPolygonF({wall.topLeft() + QPointF(-0.003, 0),
                                       {wall.left() + wall.width() * 0.22, wall.top() - rise * 0.8},
                                       {wall.right() - wall.width() * 0.22, wall.top() - rise * 0.8},
                                       wall.topRight() + QPointF(0.003, 0)}));
    else if (house.roof == 3)
        painter.drawPolygon(
            QPolygonF({wall.topLeft(), {wall.center().x(), wall.top() - wall.width() * 2.6}, wall.topRight()}));
}

void drawWindows(QPainter &painter, QRandomGenerator &generator, const House &house, double lit)
{
    const double across = 0.0125;
    const double down = 0.021;
    const int columns = int((house.wall.width() - 0.008) / across);
    const double margin = (house.wall.width() - columns * across) / 2.0;
    for (int column = 0; column < columns; ++column) {
        const double top = house.wall.top() + 0.012;
        for (int row = 0; top + row * down < quay - 0.022; ++row) {
            if (generator.generateDouble() > lit)
                continue;
            const double y = top + row * down;
            const Light light = mixed(Light::of(0xffb04a), Light::of(0xffe6b0), generator.generateDouble());
            painter.setBrush((light * random(generator, 0.6, 1.05)).colour());
            painter.drawRect(
                QRectF(house.wall.left() + margin + column * across + 0.003, y, across - 0.006, down * 0.52));
        }
    }
}

void drawCathedral(QPainter &painter, double x)
{
    const Light stone = Light::of(0x5a4658);
    for (const double side : {-0.052, 0.052})
        drawHouse(painter, {QRectF(x + side - 0.024, 0.28, 0.048, 0.39), 3, stone});
    drawHouse(painter, {QRectF(x - 0.045, 0.38, 0.09, 0.29), 1, stone * 0.9});
    drawHouse(painter, {QRectF(x + 0.06, 0.43, 0.2, 0.24), 2, stone * 0.8});
    painter.setBrush(QColor(255, 196, 110));
    painter.drawEllipse(QPointF(x, 0.43), 0.02, 0.017);
    painter.setBrush(QColor(120, 70, 60));
    painter.drawEllipse(QPointF(x, 0.43), 0.007, 0.006);
    painter.setBrush(QColor(255, 190, 100));
    for (const double at : {-0.052, 0.052, 0.1, 0.13, 0.16, 0.19})
        painter.drawRoundedRect(QRectF(x + at - 0.005, at > 0.06 ? 0.48 : 0.34, 0.01, at > 0.06 ? 0.05 : 0.035), 0.005,
                                0.005);
}

void drawBridge(QPainter &painter, double from, double to)
{
    QPainterPath bridge;
    bridge.addRect(QRectF(from, 0.628, to - from, 0.05));
    constexpr int arches = 6;
    const double span = (to - from) / arches;
    for (int arch = 0; arch < arches; ++arch) {
        QPainterPath hole;
        hole.addEllipse(QPointF(from + span * (arch + 0.5), 0.69), span * 0.41, 0.045);
        bridge = bridge.subtracted(hole);
    }
    QLinearGradient stone(0, 0.625, 0, 0.68);
    stone.setColorAt(0.0, QColor(196, 140, 92));
    stone.setColorAt(1.0, QColor(74, 50, 56));
    painter.setBrush(stone);
    painter.drawPath(bridge);
}

QList<QPointF> lamps(double width)
{
    QList<QPointF> points;
    constexpr double first = 0.04;
    constexpr double distance = 0.085;
    for (int number = 0; first + number * distance < width; ++number) {
        const double x = first + number * distance;
        points.append({x, x > 1.42 ? 0.607 : 0.632});
    }
    return points;
}

void drawLamps(QPainter &painter, double width)
{
    for (const QPointF &lamp : lamps(width)) {
        painter.setBrush(QColor(40, 30, 34));
        painter.drawRect(QRectF(lamp.x() - 0.0008, lamp.y(), 0.0016, 0.028));
        painter.setBrush(QColor(255, 226, 160));
        painter.drawEllipse(lamp, 0.0042, 0.0042);
    }
}

} // namespace

QImage Motifs::cityByNight()
{
    QRandomGenerator generator(115);
    Canvas canvas(3600, 1600);
    const double width = canvas.aspect();
    paintSky(canvas, {{{0.0, Light::of(0x16235c)},
                       {0.45, Light::of(0x3f4c94)},
                       {0.8, Light::of(0x8f68a4)},
                       {1.0, Light::of(0xea8f80)}},
                      0.66,
                      {0.5, 0.66},
                      Light::of(0xff9a5c) * 0.22,
                      0.3,
                      0.0});
    paintStars(canvas, generator, 240, 0.3);
    paintClouds(canvas, {0.2, 0.09, 6.0, Light::of(0x8a6a9c), Light::of(0x2c3264), 0.55, 47}, {0.5, 0.7});
    paintRidge(canvas, {0.58, 0.07, 0.8, 5, 150}, [](double x, double y, double) {
        return mixed(Light::of(0x39355f), Light::of(0x6a4a70), step(0.52, 0.66, y) + 0.2 * Noise::at(x * 20, y * 20));
    });
    const QList<House> back = street(generator, width, 0.16, 0.31, Light::of(0x4a4478), 0.3);
    const QList<House> front = street(generator, width, 0.09, 0.19, Light::of(0x5e4468), 0.15);
    canvas.draw([&](QPainter &painter) {
        for (const House &house : back)
            drawHouse(painter, house);
    });
    QRandomGenerator windows(7);
    canvas.draw([&](QPainter &painter) {
        for (const House &house : back)
            drawWindows(painter, windows, house, 0.32);
        drawCathedral(painter, 0.78);
        for (const House &house : front)
            drawHouse(painter, house);
        for (const House &house : front)
            drawWindows(painter, windows, house, 0.55);
        painter.setBrush(QColor(58, 44, 54));
        painter.drawRect(QRectF(0.0, 0.652, width, 0.02));
        drawBridge(painter, 1.42, width + 0.3);
        drawLamps(painter, width);
    });
    canvas.shine(
        [&](QPainter &painter) {
            painter.setBrush(QColor(255, 180, 90));
            for (const QPointF &lamp : lamps(width))
                painter.drawEllipse(lamp, 0.008, 0.008);
        },
        0.018, 1.2);
    canvas.bloom(0.55, 0.015, 0.3);
    paintWater(canvas, {0.672, Light::of(0x0a1230), 0.5, 0.35, 1.25, 19});
    canvas.draw(
        [&](QPainter &painter) { // lights are drawn out on the water
            for (const QPointF &lamp : lamps(width)) {
                for (int streak = 0; streak < 46; ++streak) {
                    const double y = 0.685 + 0.3 * std::pow(generator.generateDouble(), 1.4);
                    const double half = random(generator, 0.002, 0.012) * (0.5 + (y - 0.67) * 3.0);
                    painter.setBrush(QColor(255, 190, 104, int(90 * (1.05 - y)) + 18));
                    painter.drawEllipse(QPointF(lamp.x() + random(generator, -0.006, 0.006), y), half,
                                        0.0011 + (y - 0.67) * 0.004);
                }
            }
        },
        0.0015);
    canvas.bloom(0.75, 0.02, 0.25);
    canvas.finish(0.2, 0.014);
    return canvas.toImage();
}

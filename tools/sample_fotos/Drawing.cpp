// SPDX-License-Identifier: LGPL-2.1-or-later
// What a child draws with wax crayons.
#include "Motifs.h"
#include "Nature.h"
#include "Noise.h"

#include <QPainter>

using namespace Nature;

namespace {

/// Wax on rough paper: lines that tremble, areas of strokes to and fro.
class Crayons
{
public:
    Crayons(QPainter &painter, QRandomGenerator &generator)
        : m_painter(painter)
        , m_generator(generator)
    {}

    void line(const QPolygonF &points, const QColor &colour, double width = 0.009)
    {
        for (int pass = 0; pass < 2; ++pass) {
            QPainterPath path(trembled(points.first()));
            for (qsizetype i = 1; i < points.size(); ++i) {
                const QPointF middle = (points[i - 1] + points[i]) / 2.0;
                path.quadTo(trembled(middle), trembled(points[i]));
            }
            m_painter.strokePath(path, pen(colour, width));
        }
    }

    void area(const QPainterPath &shape, const QColor &colour, double angle = 0.6, double gap = 0.0085)
    {
        m_painter.save();
        m_painter.setClipPath(shape);
        const QRectF box = shape.boundingRect();
        const double reach = std::hypot(box.width(), box.height()) / 2.0 + 0.01;
        const QPointF along(std::cos(angle), std::sin(angle));
        const QPointF across(-along.y(), along.x());
        double off = -reach;
        while (off < reach) {
            const QPointF from = box.center() + across * off - along * reach;
            const QPointF to = box.center() + across * (off + random(m_generator, -0.01, 0.01)) + along * reach;
            m_painter.setPen(pen(colour.lighter(96 + int(m_generator.bounded(10))), 0.0095));
            m_painter.drawLine(trembled(from), trembled(to));
            off += gap * random(m_generator, 0.6, 1.3);
        }
        m_painter.restore();
        m_painter.setPen(Qt::NoPen);
    }

    void polygon(const QPolygonF &points, const QColor &fill, const QColor &edge, double angle = 0.6)
    {
        QPainterPath path;
        path.addPolygon(points);
        path.closeSubpath();
        area(path, fill, angle);
        line(points + QPolygonF({points.first()}), edge);
    }

    void disc(const QPointF &centre, double radius, const QColor &fill, const QColor &edge, double angle = 0.6)
    {
        QPainterPath path;
        path.addEllipse(centre, radius, radius);
        area(path, fill, angle);
        ring(centre, radius, edge);
    }

    void ring(const QPointF &centre, double radius, const QColor &edge, double width = 0.008)
    {
        QPolygonF points;
        for (int i = 0; i <= 14; ++i)
            points.append(centre + QPointF(std::cos(i * 0.4488), std::sin(i * 0.4488)) * radius);
        line(points, edge, width);
    }

    QRandomGenerator &generator() { return m_generator; }

private:
    static QPen pen(const QColor &colour, double width)
    {
        return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    }
    QPointF trembled(const QPointF &point)
    {
        return point + QPointF(random(m_generator, -0.003, 0.003), random(m_generator, -0.003, 0.003));
    }

    QPainter &m_painter;
    QRandomGenerator &m_generator;
};

const QColor black(52, 46, 56);
const QColor red(220, 58, 50);
const QColor yellow(250, 198, 40);
const QColor green(92, 168, 66);
const QColor darkGreen(46, 122, 62);
const QColor blue(72, 140, 216);
const QColor brown(146, 92, 56);
const QColor skin(248, 194, 158);

void drawSkyAndMeadow(Crayons &crayons)
{
    QPainterPath sky;
    sky.addRect(QRectF(0.04, 0.04, 0.92, 0.15));
    crayons.area(sky, QColor(128, 186, 236), 0.12, 0.012);
    QPainterPath meadow(QPointF(0.04, 0.8));
    meadow.quadTo(0.3, 0.74, 0.55, 0.79);
    meadow.quadTo(0.8, 0.83, 0.96, 0.76);
    meadow.lineTo(0.96, 0.96);
    meadow.lineTo(0.04, 0.96);
    crayons.area(meadow, green, 1.35, 0.008);
    crayons.disc({0.15, 0.17}, 0.075, yellow, QColor(240, 160, 30));
    for (int ray = 0; ray < 13; ++ray) {
        const QPointF along(std::cos(ray * 0.4833), std::sin(ray * 0.4833));
        const QPointF middle(0.15, 0.17);
        crayons.line({middle + along * 0.095, middle + along * (ray % 2 ? 0.14 : 0.16)}, QColor(248, 176, 34), 0.011);
    }
    const QColor bows[] = {red, QColor(246, 140, 40), yellow, green, blue, QColor(132, 84, 176)};
    for (int bow = 0; bow < 6; ++bow) {
        QPolygonF points;
        const double radius = 0.42 - bow * 0.021;
        for (int i = 0; i <= 16; ++i) {
            const double angle = 3.1416 + i * 0.19635;
            points.append(QPointF(0.56, 0.72) + QPointF(std::cos(angle), std::sin(angle)) * radius);
        }
        for (int pass = 0; pass < 2; ++pass)
            crayons.line(points, bows[bow], 0.014);
    }
}

void drawHouse(Crayons &crayons)
{
    crayons.polygon({{0.12, 0.84}, {0.12, 0.58}, {0.4, 0.58}, {0.4, 0.84}}, QColor(252, 226, 150), black, 0.1);
    crayons.polygon({{0.32, 0.47}, {0.32, 0.39}, {0.365, 0.39}, {0.365, 0.52}}, brown, black, 0.1);
    crayons.polygon({{0.085, 0.59}, {0.26, 0.41}, {0.435, 0.59}}, red, black, 0.9);
    crayons.polygon({{0.23, 0.84}, {0.23, 0.71}, {0.3, 0.71}, {0.3, 0.84}}, brown, black, 1.5);
    for (const double x : {0.15, 0.325}) {
        crayons.polygon({{x, 0.7}, {x, 0.63}, {x + 0.055, 0.63}, {x + 0.055, 0.7}}, QColor(170, 214, 244), black, 0.4);
        crayons.line({{x + 0.0275, 0.63}, {x + 0.0275, 0.7}}, black, 0.006);
        crayons.line({{x, 0.665}, {x + 0.055, 0.665}}, black, 0.006);
    }
    crayons.ring({0.26, 0.52}, 0.024, black);
    for (int puff = 0; puff < 4; ++puff)
        crayons.ring({0.35 + puff * 0.022, 0.365 - puff * 0.035}, 0.014 + puff * 0.005, QColor(150, 150, 160), 0.006);
}

void drawTree(Crayons &crayons)
{
    crayons.polygon({{0.835, 0.86}, {0.845, 0.62}, {0.885, 0.62}, {0.895, 0.86}}, brown, brown.darker(130), 1.4);
    for (const QPointF &crown : {QPointF(0.82, 0.58), QPointF(0.9, 0.57), QPointF(0.86, 0.5)})
        crayons.disc(crown, 0.07, green, darkGreen, random(crayons.generator(), 0.0, 3.0));
    for (const QPointF &apple :
         {QPointF(0.8, 0.56), QPointF(0.86, 0.6), QPointF(0.91, 0.54), QPointF(0.85, 0.48), QPointF(0.93, 0.6)})
        crayons.disc(apple, 0.012, red, red.darker(120));
}

struct Figure
{
    QPointF head;
    double size = 0.0;
    QColor dress;
    QColor hair;
    bool hasSkirt = false;
};

void drawFigure(Crayons &crayons, const Figure &figure)
{
    const double s = figure.size;
    const QPointF h = figure.head;
    const auto at = [&](double x, double y) { return h + QPointF(x, y) * s; };
    crayons.line({at(-0.35, 3.1), at(-0.4, 4.3)}, black);
    crayons.line({at(0.35, 3.1), at(0.4, 4.3)}, black);
    crayons.line({at(-0.4, 4.3), at(-0.8, 4.35)}, black, 0.012);
    crayons.line({at(0.4, 4.3), at(0.8, 4.35)}, black, 0.012);
    crayons.line({at(-0.5, 1.4), at(-1.55, 2.1)}, skin.darker(120), 0.01);
    crayons.line({at(0.5, 1.4), at(1.55, 2.1)}, skin.darker(120), 0.01);
    if (figure.hasSkirt)
        crayons.polygon({at(-0.35, 1.05), at(0.35, 1.05), at(1.05, 3.2), at(-1.05, 3.2)}, figure.dress,
                        figure.dress.darker(135), 1.2);
    else
        crayons.polygon({at(-0.6, 1.05), at(0.6, 1.05), at(0.6, 3.2), at(-0.6, 3.2)}, figure.dress,
                        figure.dress.darker(135), 0.3);
    crayons.disc(h, s, skin, black, 0.4);
    for (int strand = 0; strand < 12; ++strand) {
        const double angle = 3.3 + strand * 0.25;
        const QPointF root = at(std::cos(angle) * 0.95, std::sin(angle) * 0.95);
        crayons.line(
            {root,
             root + QPointF(std::cos(angle) * 0.35, figure.hasSkirt && (strand < 3 || strand > 8) ? 0.95 : -0.3) * s},
            figure.hair, 0.007);
    }
    crayons.line({at(-0.36, -0.18), at(-0.34, -0.1)}, black, 0.009);
    crayons.line({at(0.36, -0.18), at(0.34, -0.1)}, black, 0.009);
    crayons.line({at(-0.45, 0.3), at(0.0, 0.62), at(0.45, 0.3)}, red, 0.007);
}

void drawFlower(Crayons &crayons, const QPointF &at, const QColor &colour)
{
    crayons.line({at, at + QPointF(0.004, 0.07)}, darkGreen, 0.007);
    for (int petal = 0; petal < 5; ++petal)
        crayons.ring(at + QPointF(std::cos(petal * 1.2566), std::sin(petal * 1.2566)) * 0.015, 0.009, colour, 0.008);
    crayons.ring(at, 0.004, yellow, 0.009);
}

void drawCat(Crayons &crayons)
{
    const QColor grey(140, 138, 150);
    crayons.disc({0.7, 0.89}, 0.034, grey, black);
    crayons.disc({0.735, 0.85}, 0.023, grey, black);
    crayons.line({{0.72, 0.835}, {0.72, 0.812}, {0.733, 0.826}}, black, 0.006);
    crayons.line({{0.742, 0.828}, {0.755, 0.812}, {0.754, 0.838}}, black, 0.006);
    crayons.line({{0.668, 0.9}, {0.64, 0.88}, {0.645, 0.845}}, grey.darker(120), 0.01);
}

} // namespace

QImage Motifs::childrensDrawing()
{
    QRandomGenerator generator(102);
    Canvas canvas(2400, 2400);
    const auto paper = [&](double x, double y) { // its tooth, 0 to 1
        return std::clamp(0.5 + 0.9 * Noise::fractal(x * 170.0, y * 170.0, 3, 6), 0.0, 1.0);
    };
    const Light white = Light::of(0xfbf6ea);
    canvas.paint([&](double, double, const Light &) { return white; });
    canvas.draw([&](QPainter &painter) {
        Crayons crayons(painter, generator);
        drawSkyAndMeadow(crayons);
        drawHouse(crayons);
        drawTree(crayons);
        for (const Figure &figure : {Figure{{0.5, 0.65}, 0.036, blue, brown, false},
                                     Figure{{0.61, 0.665}, 0.034, QColor(226, 84, 140), yellow.darker(120), true},
                                     Figure{{0.7, 0.72}, 0.025, QColor(246, 140, 40), brown.darker(130), false}})
            drawFigure(crayons, figure);
        drawCat(crayons);
        for (const QPointF &at :
             {QPointF(0.1, 0.87), QPointF(0.46, 0.88), QPointF(0.57, 0.9), QPointF(0.8, 0.88), QPointF(0.93, 0.85)})
            drawFlower(crayons, at, generator.bounded(2) ? QColor(220, 80, 150) : QColor(150, 84, 190));
        crayons.line({{0.62, 0.13}, {0.64, 0.11}, {0.66, 0.13}, {0.68, 0.11}, {0.7, 0.13}}, black, 0.007);
        crayons.line({{0.76, 0.2}, {0.775, 0.185}, {0.79, 0.2}, {0.805, 0.185}, {0.82, 0.2}}, black, 0.007);
    });
    canvas.paint([&](double x, double y, const Light &drawn) { // wax stays on the tops of the paper
        const double tooth = paper(x, y);
        const double wax = std::clamp(1.0 - drawn.brightness() / white.brightness() + 0.25, 0.0, 1.0);
        const double kept = step(0.12, 0.46, tooth + 0.22 * wax);
        const double relief = (tooth - paper(x + 0.0006, y + 0.0006)) * 0.16;
        return mixed(white, drawn, 0.2 + 0.8 * kept) * (1.0 - 0.05 * (1.0 - tooth)) + Light{relief, relief, relief};
    });
    canvas.finish(0.05, 0.006);
    return canvas.toImage();
}

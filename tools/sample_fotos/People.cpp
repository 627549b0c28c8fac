// SPDX-License-Identifier: LGPL-2.1-or-later
// Faces, a cat, and what a child draws.
#include "Motifs.h"
#include "Nature.h"
#include "Noise.h"

#include <QPainter>

using namespace Nature;

namespace {

QPainterPath ellipse(const QPointF &centre, double across, double down)
{
    QPainterPath path;
    path.addEllipse(centre, across, down);
    return path;
}

// ---- faces: drawn about the origin, the head two units high

struct Face
{
    Light skin;
    Light lips;
    Light eyes;
    Light brows;
    bool isOld = false;
};

/// Skin with light from the upper left.
void fillSkin(QPainter &painter, const QPainterPath &shape, const Light &skin, const QPointF &bright, double reach)
{
    QRadialGradient gradient(bright, reach);
    gradient.setColorAt(0.0, mixed(skin, Light::of(0xfff4e4), 0.45).colour());
    gradient.setColorAt(0.5, skin.colour());
    gradient.setColorAt(1.0, (skin * Light::of(0xc98a78)).colour());
    painter.setBrush(gradient);
    painter.drawPath(shape);
}

void drawEye(QPainter &painter, const Face &face, double x)
{
    const double side = x < 0.0 ? -1.0 : 1.0;
    QPainterPath opening(QPointF(x - 0.16, 0.02));
    opening.quadTo(x, -0.12, x + 0.16, 0.02);
    opening.quadTo(x, face.isOld ? 0.06 : 0.1, x - 0.16, 0.02);
    painter.setBrush(QColor(252, 248, 244));
    painter.drawPath(opening);
    painter.save();
    painter.setClipPath(opening);
    painter.setBrush(face.eyes.colour());
    painter.drawEllipse(QPointF(x, -0.005), 0.078, 0.078);
    painter.setBrush(QColor(22, 16, 18));
    painter.drawEllipse(QPointF(x, -0.005), 0.038, 0.038);
    painter.setBrush(QColor(255, 255, 255, 230));
    painter.drawEllipse(QPointF(x - 0.028, -0.035), 0.02, 0.02);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    QPainterPath lid(QPointF(x - 0.165, 0.025));
    lid.quadTo(x, -0.14, x + 0.165, 0.02);
    painter.strokePath(lid, QPen(QColor(70, 40, 36), 0.024, Qt::SolidLine, Qt::RoundCap));
    QPainterPath brow(QPointF(x - 0.19 * side, -0.19));
    brow.quadTo(x, -0.29, x + 0.2 * side, -0.2);
    painter.strokePath(brow, QPen(face.brows.colour(0.85), face.isOld ? 0.06 : 0.04, Qt::SolidLine, Qt::RoundCap));
    painter.setPen(Qt::NoPen);
}

void drawNoseAndMouth(QPainter &painter, const Face &face)
{
    const QColor shade = (face.skin * Light::of(0xc07c68)).colour(0.75);
    painter.setBrush(Qt::NoBrush);
    QPainterPath nose(QPointF(0.03, 0.0));
    nose.cubicTo(0.05, 0.14, 0.11, 0.24, 0.07, 0.29);
    nose.quadTo(0.0, 0.33, -0.07, 0.29);
    painter.strokePath(nose, QPen(shade, 0.026, Qt::SolidLine, Qt::RoundCap));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 250, 240, 70));
    painter.drawEllipse(QPointF(-0.02, 0.24), 0.04, 0.035);
    QPainterPath smile(QPointF(-0.27, 0.47));
    smile.quadTo(0.0, 0.56, 0.27, 0.47);
    smile.quadTo(0.0, 0.76, -0.27, 0.47);
    painter.setBrush(QColor(250, 246, 242));
    painter.drawPath(smile);
    painter.strokePath(smile, QPen(face.lips.colour(), 0.04, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const double side : {-1.0, 1.0}) {
        QRadialGradient cheek(QPointF(side * 0.42, 0.33), 0.25);
        cheek.setColorAt(0.0, QColor(238, 112, 98, 105));
        cheek.setColorAt(1.0, QColor(238, 112, 98, 0));
        painter.setBrush(cheek);
        painter.drawEllipse(QPointF(side * 0.42, 0.33), 0.25, 0.25);
    }
}

QPainterPath headShape()
{
    QPainterPath head(QPointF(0.0, -0.95));
    head.cubicTo(0.5, -0.95, 0.74, -0.55, 0.71, -0.05);
    head.cubicTo(0.69, 0.42, 0.38, 0.93, 0.0, 0.93);
    head.cubicTo(-0.38, 0.93, -0.69, 0.42, -0.71, -0.05);
    head.cubicTo(-0.74, -0.55, -0.5, -0.95, 0.0, -0.95);
    return head;
}

void drawFace(QPainter &painter, const Face &face)
{
    for (const double side : {-1.0, 1.0})
        fillSkin(painter, ellipse({side * 0.71, 0.08}, 0.1, 0.17), face.skin * 0.95, {side * 0.7, 0.0}, 0.25);
    fillSkin(painter, headShape(), face.skin, {-0.25, -0.3}, 1.5);
    for (const double side : {-0.29, 0.29})
        drawEye(painter, face, side);
    drawNoseAndMouth(painter, face);
}

/// Strands between two curves, for hair and beards.
void drawStrands(QPainter &painter, QRandomGenerator &generator, const QPointF &root, const QRectF &ends, int count,
                 const Light &dark, const Light &bright, double width)
{
    for (int strand = 0; strand < count; ++strand) {
        const QPointF end(random(generator, ends.left(), ends.right()), random(generator, ends.top(), ends.bottom()));
        QPainterPath path(root + QPointF(random(generator, -0.12, 0.12), random(generator, -0.04, 0.04)));
        const QPointF middle = (root + end) / 2.0 + QPointF((end.x() - root.x()) * 0.45, -0.12);
        path.quadTo(middle, end);
        painter.strokePath(path, QPen(mixed(dark, bright, std::pow(generator.generateDouble(), 1.5)).colour(), width,
                                      Qt::SolidLine, Qt::RoundCap));
    }
}

} // namespace

// ---- girl with a hat

namespace {

void drawGirl(QPainter &painter, QRandomGenerator &generator)
{
    const Light darkHair = Light::of(0x6a3a1c);
    const Light brightHair = Light::of(0xd89a58);
    for (const double side : {-1.0, 1.0})
        drawStrands(painter, generator, {side * 0.45, -0.6},
                    QRectF(QPointF(side * 0.62, 0.9), QPointF(side * 1.05, 1.6)).normalized(), 800, darkHair,
                    brightHair, 0.013);
    QPainterPath dress(QPointF(-1.45, 3.2));
    dress.cubicTo(-1.35, 1.75, -0.9, 1.45, -0.35, 1.32);
    dress.lineTo(0.35, 1.32);
    dress.cubicTo(0.9, 1.45, 1.35, 1.75, 1.45, 3.2);
    QPainterPath neck;
    neck.addRoundedRect(QRectF(-0.25, 0.6, 0.5, 0.95), 0.22, 0.22);
    QLinearGradient cloth(-1.2, 1.4, 1.2, 2.6);
    cloth.setColorAt(0.0, QColor(96, 146, 190));
    cloth.setColorAt(1.0, QColor(44, 78, 128));
    painter.setBrush(cloth);
    painter.drawPath(dress);
    painter.save();
    painter.setClipPath(dress);
    painter.setBrush(QColor(246, 244, 236, 225));
    for (int row = 0; row < 9; ++row)
        for (int dot = 0; dot < 14; ++dot)
            painter.drawEllipse(QPointF(-1.6 + dot * 0.24 + (row % 2) * 0.12, 1.45 + row * 0.21), 0.035, 0.035);
    painter.restore();
    fillSkin(painter, neck, Light::of(0xe8b592) * 0.93, {-0.2, 1.2}, 0.9);
    fillSkin(painter, ellipse({0.0, 1.42}, 0.42, 0.16), Light::of(0xf0c09c), {-0.2, 1.3}, 0.8);
    drawFace(painter, {Light::of(0xf2c3a0), Light::of(0xc65a58), Light::of(0x4a7d8c), darkHair, false});
    for (const double side : {-1.0, 1.0})
        drawStrands(painter, generator, {side * 0.1, -0.86},
                    QRectF(QPointF(side * 0.66, -0.1), QPointF(side * 0.8, 0.75)).normalized(), 300, darkHair,
                    brightHair, 0.012);
}

void drawStrawHat(QPainter &painter, QRandomGenerator &generator)
{
    const auto straw = [&](const QPainterPath &shape, const QPointF &from, const QPointF &to) {
        QLinearGradient gradient(from, to);
        gradient.setColorAt(0.0, QColor(250, 226, 166));
        gradient.setColorAt(0.6, QColor(226, 184, 112));
        gradient.setColorAt(1.0, QColor(158, 112, 60));
        painter.setBrush(gradient);
        painter.drawPath(shape);
        painter.save();
        painter.setClipPath(shape);
        for (int line = 0; line < 420; ++line) {
            const QPointF at(random(generator, -1.7, 1.7), random(generator, -1.8, -0.2));
            painter.setPen(QPen(QColor(122, 82, 36, 40 + int(generator.bounded(50))), 0.012));
            painter.drawLine(at, at + QPointF(random(generator, 0.06, 0.2), random(generator, -0.03, 0.03)));
        }
        painter.restore();
        painter.setPen(Qt::NoPen);
    };
    QPainterPath crown(QPointF(-0.8, -0.7));
    crown.cubicTo(-0.82, -1.55, -0.5, -1.72, 0.0, -1.72);
    crown.cubicTo(0.5, -1.72, 0.82, -1.55, 0.8, -0.7);
    crown.closeSubpath();
    straw(crown, {-0.7, -1.6}, {0.8, -0.8});
    QPainterPath ribbon(QPointF(-0.81, -0.72));
    ribbon.quadTo(-0.82, -0.9, -0.8, -1.03);
    ribbon.quadTo(0.0, -0.86, 0.8, -1.03);
    ribbon.quadTo(0.82, -0.9, 0.81, -0.72);
    ribbon.closeSubpath();
    painter.setBrush(QColor(196, 66, 62));
    painter.drawPath(ribbon);
    QPainterPath brim(QPointF(-1.62, -0.42));
    brim.cubicTo(-1.5, -0.85, -0.8, -0.82, 0.0, -0.78);
    brim.cubicTo(0.8, -0.82, 1.5, -0.85, 1.62, -0.42);
    brim.cubicTo(1.1, -0.62, 0.6, -0.56, 0.0, -0.5);
    brim.cubicTo(-0.6, -0.56, -1.1, -0.62, -1.62, -0.42);
    straw(brim, {-1.4, -0.8}, {1.3, -0.35});
    QPainterPath shadow(QPointF(-0.72, -0.55));
    shadow.quadTo(0.0, -0.42, 0.72, -0.55);
    shadow.cubicTo(0.74, -0.3, 0.5, -0.22, 0.0, -0.2);
    shadow.cubicTo(-0.5, -0.22, -0.74, -0.3, -0.72, -0.55);
    QLinearGradient dim(0, -0.55, 0, -0.15);
    dim.setColorAt(0.0, QColor(110, 50, 30, 110));
    dim.setColorAt(1.0, QColor(110, 50, 30, 0));
    painter.setBrush(dim);
    painter.drawPath(shadow);
}

} // namespace

QImage Motifs::girlWithHat()
{
    QRandomGenerator generator(106);
    Canvas canvas(2100, 2800);
    canvas.paint([](double x, double y, const Light &) {
        const double leaf = Noise::fractal(x * 3.0, y * 3.0, 5, 90);
        return between({{-0.4, Light::of(0x2f5a34)},
                        {0.1, Light::of(0x7fa453)},
                        {0.45, Light::of(0xd6dc94)},
                        {0.8, Light::of(0xfff6d0)}},
                       0.55 - 0.6 * y + 0.8 * leaf);
    });
    canvas.blur(0.02);
    paintBokeh(canvas, generator, 70,
               {Light::of(0xfff2b8), Light::of(0xf2b8c6), Light::of(0xe5f0b4), Light::of(0xffffff)}, 0.012, 0.05, 0.3);
    const auto place = [](QPainter &painter) {
        painter.translate(0.37, 0.46);
        painter.scale(0.185, 0.185);
        painter.rotate(-3.0);
    };
    canvas.draw(
        [&](QPainter &painter) {
            place(painter);
            drawGirl(painter, generator);
            drawStrawHat(painter, generator);
        },
        0.0008);
    canvas.draw(
        [&](QPainter &painter) { // blossoms close to the lens
            for (int flower = 0; flower < 26; ++flower) {
                painter.setBrush(
                    mixed(Light::of(0xf6dcea), Light::of(0xe07a9a), generator.generateDouble()).colour(0.75));
                painter.drawEllipse(QPointF(random(generator, 0.0, 0.75), random(generator, 0.9, 1.02)), 0.03, 0.024);
            }
        },
        0.016);
    canvas.bloom(0.85, 0.03, 0.25);
    canvas.finish(0.18, 0.012);
    return canvas.toImage();
}

// ---- grandfather

namespace {

void drawGrandfather(QPainter &painter, QRandomGenerator &generator)
{
    const Light dark = Light::of(0x9a948e);
    const Light bright = Light::of(0xfbf8f2);
    QPainterPath coat(QPointF(-2.0, 3.4));
    coat.cubicTo(-1.85, 1.8, -1.1, 1.4, -0.45, 1.2);
    coat.lineTo(0.45, 1.2);
    coat.cubicTo(1.1, 1.4, 1.85, 1.8, 2.0, 3.4);
    QLinearGradient wool(-1.6, 1.3, 1.6, 2.8);
    wool.setColorAt(0.0, QColor(150, 62, 52));
    wool.setColorAt(1.0, QColor(84, 28, 34));
    painter.setBrush(wool);
    painter.drawPath(coat);
    painter.save();
    painter.setClipPath(coat);
    for (int stitch = 0; stitch < 46; ++stitch) {
        painter.setPen(QPen(QColor(60, 16, 20, 60), 0.022));
        painter.drawLine(QPointF(-2.0 + stitch * 0.09, 1.1), QPointF(-2.0 + stitch * 0.09, 3.4));
    }
    painter.setPen(Qt::NoPen);
    painter.restore();
    painter.setBrush(QColor(232, 226, 212));
    painter.drawPolygon(QPolygonF({{-0.5, 1.15}, {0.0, 1.85}, {0.5, 1.15}}));
    fillSkin(painter, ellipse({0.0, 1.0}, 0.34, 0.5), Light::of(0xd9a384) * 0.92, {-0.2, 0.9}, 0.8);
    for (const double side : {-1.0, 1.0})
        drawStrands(painter, generator, {side * 0.6, -0.45},
                    QRectF(QPointF(side * 0.72, -0.2), QPointF(side * 0.9, 0.3)).normalized(), 160, dark, bright,
                    0.022);
    drawFace(painter, {Light::of(0xe6b494), Light::of(0xb0645a), Light::of(0x4f6f8a), Light::of(0xe8e4de), true});
    for (int strand = 0; strand < 1100; ++strand) { // the beard
        const double angle = random(generator, 0.12, 3.02);
        const QPointF root(std::cos(angle) * 0.58, 0.36 + std::sin(angle) * 0.42);
        const QPointF end(std::cos(angle) * random(generator, 0.62, 0.78),
                          0.42 + std::sin(angle) * random(generator, 0.75, 1.0));
        QPainterPath path(root);
        path.quadTo((root + end) / 2.0 + QPointF(random(generator, -0.06, 0.06), 0.0), end);
        painter.strokePath(path, QPen(mixed(dark, bright, generator.generateDouble()).colour(0.9), 0.016, Qt::SolidLine,
                                      Qt::RoundCap));
    }
    for (int strand = 0; strand < 260; ++strand) { // and moustache
        const double side = strand % 2 ? 1.0 : -1.0;
        QPainterPath path(QPointF(side * random(generator, 0.0, 0.1), random(generator, 0.35, 0.4)));
        path.quadTo(side * 0.26, 0.34, side * random(generator, 0.28, 0.42), random(generator, 0.44, 0.54));
        painter.strokePath(
            path, QPen(mixed(dark, bright, generator.generateDouble()).colour(), 0.014, Qt::SolidLine, Qt::RoundCap));
    }
    painter.setBrush(Qt::NoBrush);
    for (const double side : {-0.29, 0.29}) // glasses
        painter.strokePath(ellipse({side, 0.0}, 0.23, 0.2), QPen(QColor(66, 52, 46), 0.03));
    painter.strokePath(
        [] {
            QPainterPath bridge(QPointF(-0.07, -0.02));
            bridge.quadTo(0.0, -0.08, 0.07, -0.02);
            return bridge;
        }(),
        QPen(QColor(66, 52, 46), 0.03));
    painter.setPen(Qt::NoPen);
    QPainterPath cap(QPointF(-0.78, -0.45));
    cap.cubicTo(-0.9, -1.2, -0.4, -1.34, 0.1, -1.3);
    cap.cubicTo(0.7, -1.26, 0.9, -0.9, 0.78, -0.45);
    cap.quadTo(0.0, -0.72, -0.78, -0.45);
    QLinearGradient tweed(-0.8, -1.3, 0.8, -0.4);
    tweed.setColorAt(0.0, QColor(124, 128, 116));
    tweed.setColorAt(1.0, QColor(58, 62, 60));
    painter.setBrush(tweed);
    painter.drawPath(cap);
    QPainterPath peak(QPointF(-0.74, -0.47));
    peak.quadTo(0.0, -0.72, 0.74, -0.47);
    peak.quadTo(0.0, -0.4, -0.74, -0.47);
    painter.setBrush(QColor(48, 52, 50));
    painter.drawPath(peak);
}

} // namespace

QImage Motifs::grandfather()
{
    QRandomGenerator generator(114);
    Canvas canvas(2700, 1800);
    const QPointF sun(0.3, 0.12);
    paintSky(canvas, {{{0.0, Light::of(0x6ea8dc)}, {0.7, Light::of(0xd6e6ee)}, {1.0, Light::of(0xf4e6c8)}},
                      0.55,
                      sun,
                      Light::of(0xfff0c0) * 0.3,
                      0.3,
                      0.0});
    paintRidge(canvas, {0.46, 0.12, 0.7, 5, 160}, [](double, double y, double) {
        return mixed(Light::of(0x8ea9bd), Light::of(0xd2dad6), step(0.3, 0.55, y));
    });
    paintRidge(canvas, {0.55, 0.05, 0.4, 5, 163}, [](double x, double y, double) {
        return mixed(Light::of(0x5f7d4a), Light::of(0xd69a3c),
                     std::clamp(0.4 + 1.5 * Noise::fractal(x * 9.0, y * 9.0, 4, 3), 0.0, 1.0));
    });
    paintWater(canvas, {0.58, Light::of(0x3a6a86), 0.45, 0.6, 1.1, 27});
    canvas.paint(
        [](double x, double y, const Light &below) {
            return mixed(below,
                         mixed(Light::of(0x86a04a), Light::of(0xc8b45c), 0.5 + Noise::fractal(x * 8.0, y * 20.0, 4, 9)),
                         step(0.82, 0.88, y + 0.04 * Noise::at(x * 3.0, 2.0)));
        },
        0.75);
    canvas.blur(0.012);
    paintBokeh(canvas, generator, 40, {Light::of(0xfff0c0), Light::of(0xf4c870), Light::of(0xffffff)}, 0.015, 0.045,
               0.25);
    canvas.draw(
        [&](QPainter &painter) {
            painter.translate(1.0, 0.48);
            painter.scale(0.24, 0.24);
            painter.rotate(2.5);
            drawGrandfather(painter, generator);
        },
        0.0008);
    canvas.bloom(0.88, 0.03, 0.2);
    canvas.finish(0.18, 0.012);
    return canvas.toImage();
}

// ---- cat at the window

namespace {

QPainterPath catShape()
{
    QPainterPath body(QPointF(-0.16, 0.0)); // sits, seen from behind a little; foot at the origin
    body.cubicTo(-0.21, -0.1, -0.16, -0.26, -0.085, -0.31);
    body.cubicTo(-0.115, -0.36, -0.11, -0.4, -0.095, -0.425);
    body.lineTo(-0.105, -0.51);
    body.quadTo(-0.07, -0.49, -0.048, -0.465);
    body.quadTo(0.0, -0.478, 0.046, -0.465);
    body.quadTo(0.07, -0.49, 0.103, -0.51);
    body.lineTo(0.095, -0.425);
    body.cubicTo(0.11, -0.4, 0.115, -0.36, 0.085, -0.31);
    body.cubicTo(0.14, -0.26, 0.16, -0.1, 0.12, 0.0);
    body.closeSubpath();
    return body;
}

void drawTail(QPainter &painter)
{
    QPainterPath tail(QPointF(-0.12, -0.02));
    tail.cubicTo(-0.24, 0.01, -0.3, -0.02, -0.34, 0.05);
    tail.cubicTo(-0.36, 0.12, -0.33, 0.2, -0.3, 0.22);
    painter.strokePath(tail, QPen(QColor(214, 132, 64), 0.045, Qt::SolidLine, Qt::RoundCap));
    for (int ring = 0; ring < 6; ++ring) {
        const double at = 0.3 + ring * 0.12;
        const QPointF point = tail.pointAtPercent(at);
        painter.save();
        painter.translate(point);
        painter.rotate(-tail.angleAtPercent(at));
        painter.setBrush(QColor(150, 78, 34, 150));
        painter.drawEllipse(QPointF(), 0.008, 0.0225);
        painter.restore();
    }
}

void drawCatFace(QPainter &painter)
{
    for (const double side : {-1.0, 1.0}) {
        painter.setBrush(QColor(236, 164, 140));
        painter.drawPolygon(QPolygonF({{side * 0.092, -0.488}, {side * 0.086, -0.437}, {side * 0.058, -0.458}}));
        painter.setBrush(QColor(160, 196, 92));
        painter.drawEllipse(QPointF(side * 0.042, -0.395), 0.019, 0.017);
        painter.setBrush(QColor(20, 20, 22));
        painter.drawEllipse(QPointF(side * 0.042, -0.395), 0.007, 0.0155);
        painter.setBrush(QColor(255, 255, 255));
        painter.drawEllipse(QPointF(side * 0.042 - 0.006, -0.402), 0.0042, 0.0042);
        painter.setBrush(QColor(252, 238, 220));
        painter.drawEllipse(QPointF(side * 0.02, -0.345), 0.027, 0.021);
        painter.setPen(QPen(QColor(255, 250, 240, 200), 0.0018));
        for (const double tilt : {-0.014, 0.0, 0.014})
            painter.drawLine(QPointF(side * 0.035, -0.347 + tilt * 0.4), QPointF(side * 0.135, -0.355 + tilt * 1.6));
        painter.setPen(Qt::NoPen);
    }
    painter.setBrush(QColor(222, 110, 104));
    painter.drawPolygon(QPolygonF({{-0.012, -0.364}, {0.012, -0.364}, {0.0, -0.352}}));
    painter.setBrush(QColor(252, 238, 220));
    painter.drawEllipse(QPointF(-0.045, -0.012), 0.034, 0.02);
    painter.drawEllipse(QPointF(0.045, -0.012), 0.034, 0.02);
}

void paintCat(Canvas &canvas, const QPointF &foot)
{
    canvas.draw(
        [&](QPainter &painter) {
            painter.translate(foot);
            drawTail(painter);
        },
        0.0012);
    const QPainterPath shape = catShape().translated(foot);
    canvas.cover(
        [&](QPainter &painter) { painter.drawPath(shape); },
        [&](double x, double y) {
            const double dx = (x - foot.x()) / 0.17;
            const double fur = Noise::fractal(x * 90.0, y * 40.0, 3, 13);
            const double stripe = Noise::at((x - foot.x()) * 4.0, (y - std::abs(x - foot.x()) * 0.5) * 26.0, 17);
            Light coat = mixed(Light::of(0xe29a4c), Light::of(0x9a5020), step(0.1, 0.45, stripe + 0.3 * fur) * 0.75);
            const double lit = std::clamp(0.82 + 0.45 * dx + 0.3 * fur, 0.35, 1.3); // from the lamp at the right
            const double chest = std::hypot(dx * 0.17 / 0.055, (y - foot.y() + 0.21) / 0.1) + 0.5 * fur;
            coat = mixed(Light::of(0xfceedc), coat, step(0.65, 1.15, chest));
            return coat * lit + Light::of(0x2c3a66) * (0.35 * step(-0.2, -1.0, dx));
        },
        0.0014);
    canvas.draw(
        [&](QPainter &painter) {
            painter.translate(foot);
            drawCatFace(painter);
        },
        0.0008);
}

void paintEveningOutside(Canvas &canvas, QRandomGenerator &generator)
{
    paintSky(canvas, {{{0.0, Light::of(0x16204a)}, {0.6, Light::of(0x4d568e)}, {1.0, Light::of(0xc08a9c)}},
                      0.7,
                      {0.3, 0.2},
                      Light::of(0xdfe6ff) * 0.25,
                      0.12,
                      0.04});
    paintStars(canvas, generator, 120, 0.4);
    paintRidge(canvas, {0.6, 0.08, 0.4, 5, 170}, [](double, double y, double) {
        return mixed(Light::of(0x3a3f70), Light::of(0x6a5c86), step(0.5, 0.7, y));
    });
    paintRidge(canvas, {0.68, 0.05, 0.5, 4, 172}, [](double, double, double) { return Light::of(0xaab4dc) * 0.62; });
    paintBokeh(canvas, generator, 26, {Light::of(0xffc878), Light::of(0xff9a5c), Light::of(0xffe8b0)}, 0.008, 0.02,
               0.35);
    canvas.blur(0.004);
    canvas.draw(
        [&](QPainter &painter) {
            for (int flake = 0; flake < 240; ++flake) {
                painter.setBrush(QColor(240, 244, 255, 60 + int(generator.bounded(120))));
                const double size = random(generator, 0.001, 0.005);
                painter.drawEllipse(QPointF(generator.generateDouble(), generator.generateDouble() * 0.8), size, size);
            }
        },
        0.0015);
}

void drawWindowFrame(QPainter &painter)
{
    const auto bar = [&](const QRectF &rect, bool upright) {
        QLinearGradient wood(rect.topLeft(), upright ? rect.topRight() : rect.bottomLeft());
        wood.setColorAt(0.0, QColor(206, 188, 172));
        wood.setColorAt(0.3, QColor(246, 232, 212));
        wood.setColorAt(1.0, QColor(160, 132, 118));
        painter.setBrush(wood);
        painter.drawRect(rect);
    };
    bar({0.0, 0.0, 0.07, 0.8}, true);
    bar({0.93, 0.0, 0.07, 0.8}, true);
    bar({0.485, 0.0, 0.032, 0.8}, true);
    bar({0.0, 0.0, 1.0, 0.05}, false);
    bar({0.0, 0.3, 1.0, 0.028}, false);
    QLinearGradient sill(0, 0.78, 0, 1.0);
    sill.setColorAt(0.0, QColor(250, 236, 212));
    sill.setColorAt(0.12, QColor(226, 196, 160));
    sill.setColorAt(0.16, QColor(150, 112, 92));
    sill.setColorAt(1.0, QColor(96, 66, 60));
    painter.setBrush(sill);
    painter.drawRect(QRectF(0.0, 0.78, 1.0, 0.22));
}

void drawCandle(QPainter &painter)
{
    painter.setBrush(QColor(90, 110, 100));
    painter.drawRoundedRect(QRectF(0.765, 0.795, 0.13, 0.024), 0.01, 0.01);
    QLinearGradient wax(0.79, 0, 0.87, 0);
    wax.setColorAt(0.0, QColor(216, 62, 50));
    wax.setColorAt(0.4, QColor(240, 110, 80));
    wax.setColorAt(1.0, QColor(148, 30, 34));
    painter.setBrush(wax);
    painter.drawRoundedRect(QRectF(0.795, 0.63, 0.07, 0.17), 0.012, 0.012);
    painter.setBrush(QColor(48, 30, 26));
    painter.drawRect(QRectF(0.8285, 0.612, 0.003, 0.02));
}

void drawFlame(QPainter &painter)
{
    QPainterPath flame(QPointF(0.83, 0.545));
    flame.cubicTo(0.838, 0.575, 0.848, 0.585, 0.848, 0.604);
    flame.cubicTo(0.848, 0.628, 0.812, 0.628, 0.812, 0.604);
    flame.cubicTo(0.812, 0.585, 0.824, 0.575, 0.83, 0.545);
    QLinearGradient light(0, 0.545, 0, 0.625);
    light.setColorAt(0.0, QColor(255, 190, 80));
    light.setColorAt(0.6, QColor(255, 240, 190));
    light.setColorAt(1.0, QColor(255, 170, 70));
    painter.setBrush(light);
    painter.drawPath(flame);
}

} // namespace

QImage Motifs::catAtWindow()
{
    QRandomGenerator generator(116);
    Canvas canvas(2400, 2400);
    paintEveningOutside(canvas, generator);
    canvas.draw([](QPainter &painter) { drawWindowFrame(painter); });
    canvas.paint([](double x, double y, const Light &below) { // the candle's light in the room
        const double away = std::hypot(x - 0.83, y - 0.59);
        const double grain = 0.05 * Noise::fractal(x * 3.0, y * 60.0, 3, 5) * step(0.78, 0.8, y);
        return below * Light{0.78, 0.7, 0.68} + Light::of(0xffa04a) * (0.4 * std::exp(-away / 0.22)) +
               Light{grain, grain, grain};
    });
    canvas.draw(
        [](QPainter &painter) { // a shadow on the sill
            painter.setBrush(QColor(40, 20, 26, 140));
            painter.drawEllipse(QPointF(0.33, 0.825), 0.23, 0.02);
        },
        0.012);
    paintCat(canvas, {0.38, 0.825});
    canvas.draw([](QPainter &painter) {
        drawCandle(painter);
        drawFlame(painter);
    });
    canvas.shine([](QPainter &painter) { drawFlame(painter); }, 0.035, 1.5);
    canvas.bloom(0.8, 0.02, 0.25);
    canvas.finish(0.2, 0.012);
    return canvas.toImage();
}

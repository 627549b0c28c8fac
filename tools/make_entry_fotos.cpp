// SPDX-License-Identifier: LGPL-2.1-or-later
// Paints the portraits of the sample list, flat and friendly, and a landscape for the photo of a page.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

struct Portrait {
    QString fileName;
    QColor sky;
    QColor ground;
    QColor dress;
    QColor hair;
    QColor skin;
    bool isOld; // bun and glasses; otherwise short hair and a bow tie
};

constexpr int width = 600;
constexpr int height = 800;

void paintBackground(QPainter &painter, const Portrait &portrait)
{
    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0, portrait.sky.lighter(118));
    sky.setColorAt(1, portrait.sky);
    painter.fillRect(0, 0, width, height, sky);
    painter.setBrush(portrait.ground);
    painter.drawEllipse(QPointF(300, 900), 620, 330);
    painter.setBrush(QColor(255, 255, 255, 120));
    for (const QPointF &leaf : {QPointF(85, 150), QPointF(510, 110), QPointF(545, 330), QPointF(60, 400)})
        painter.drawEllipse(leaf, 34, 34);
}

void paintShoulders(QPainter &painter, const Portrait &portrait)
{
    painter.setBrush(portrait.dress);
    painter.drawRoundedRect(QRectF(110, 590, 380, 320), 150, 150);
    painter.setBrush(portrait.skin.darker(112));
    painter.drawRoundedRect(QRectF(250, 500, 100, 130), 45, 45);
    if (portrait.isOld) {
        painter.setBrush(Qt::white);
        for (int bead = -4; bead <= 4; ++bead)
            painter.drawEllipse(QPointF(300 + bead * 22, 652 - bead * bead * 2.4), 11, 11);
    } else {
        painter.setBrush(portrait.dress.darker(170));
        painter.drawPolygon(QPolygonF({{300, 640}, {235, 605}, {235, 678}}));
        painter.drawPolygon(QPolygonF({{300, 640}, {365, 605}, {365, 678}}));
        painter.drawEllipse(QPointF(300, 641), 17, 17);
    }
}

void paintHead(QPainter &painter, const Portrait &portrait)
{
    painter.setBrush(portrait.hair);
    if (portrait.isOld)
        painter.drawEllipse(QPointF(300, 165), 78, 70);
    painter.drawEllipse(QPointF(300, 345), portrait.isOld ? 188 : 172, 190);
    painter.setBrush(portrait.skin);
    painter.drawEllipse(QPointF(150, 395), 28, 38);
    painter.drawEllipse(QPointF(450, 395), 28, 38);
    painter.drawEllipse(QPointF(300, 390), 148, 172);
    QPainterPath fringe;
    fringe.moveTo(146, 380);
    fringe.cubicTo(150, 240, 240, 200, 310, 205);
    fringe.cubicTo(400, 208, 450, 270, 454, 380);
    fringe.cubicTo(410, 330, 350, 285, portrait.isOld ? 300 : 250, 282);
    fringe.cubicTo(235, 300, 180, 330, 146, 380);
    painter.setBrush(portrait.hair);
    painter.drawPath(fringe);
}

void paintFace(QPainter &painter, const Portrait &portrait)
{
    painter.setBrush(QColor(226, 120, 110, 90));
    painter.drawEllipse(QPointF(205, 455), 34, 26);
    painter.drawEllipse(QPointF(395, 455), 34, 26);
    painter.setBrush(QColor(60, 45, 40));
    painter.drawEllipse(QPointF(240, 395), 13, 16);
    painter.drawEllipse(QPointF(360, 395), 13, 16);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(150, 70, 60), 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(235, 425, 130, 90), 205 * 16, 130 * 16);
    painter.setPen(QPen(portrait.skin.darker(125), 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(283, 410, 34, 40), 200 * 16, 140 * 16);
    if (portrait.isOld) {
        painter.setPen(QPen(QColor(120, 50, 60), 7));
        painter.drawEllipse(QPointF(240, 395), 50, 44);
        painter.drawEllipse(QPointF(360, 395), 50, 44);
        painter.drawLine(QPointF(290, 390), QPointF(310, 390));
    }
    painter.restore();
}

bool paint(const Portrait &portrait, const QDir &folder)
{
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintBackground(painter, portrait);
    paintShoulders(painter, portrait);
    paintHead(painter, portrait);
    paintFace(painter, portrait);
    painter.end();
    QImageWriter writer(folder.filePath(portrait.fileName), "jpeg");
    writer.setQuality(85);
    return writer.write(image);
}

// ---- landscape

constexpr QSize landscape(1800, 1200);
constexpr int shore = 800; // where the lake begins

QColor mixed(const QColor &a, const QColor &b, double part)
{
    return QColor::fromRgbF(float(a.redF() + (b.redF() - a.redF()) * part),
                            float(a.greenF() + (b.greenF() - a.greenF()) * part),
                            float(a.blueF() + (b.blueF() - a.blueF()) * part));
}

/// The heights of a ridge, a fractal line.
std::vector<double> ridge(QRandomGenerator &random, double base, double rise)
{
    std::vector<double> heights(size_t(landscape.width()), base);
    double length = 620.0;
    for (double size = rise; size > 0.6; size *= 0.52, length *= 0.47) {
        const double phase = random.bounded(1.0) * length;
        std::vector<double> knots;
        for (int knot = 0; knot <= landscape.width() / length + 3; ++knot)
            knots.push_back((random.bounded(1.0) - 0.5) * 2.0 * size);
        for (int x = 0; x < landscape.width(); ++x) {
            const double at = (x + phase) / length;
            const auto knot = size_t(at);
            const double part = at - std::floor(at);
            heights[size_t(x)] -= knots[knot] + (knots[knot + 1] - knots[knot]) * part;
        }
    }
    return heights;
}

void paintSky(QPainter &painter)
{
    QLinearGradient sky(0, 0, 0, shore);
    sky.setColorAt(0.0, QColor(74, 124, 172));
    sky.setColorAt(0.45, QColor(158, 192, 214));
    sky.setColorAt(0.75, QColor(248, 222, 186));
    sky.setColorAt(1.0, QColor(252, 198, 146));
    painter.fillRect(QRect(QPoint(), landscape), sky);
    QRadialGradient glow(QPointF(1260, 470), 620);
    glow.setColorAt(0.0, QColor(255, 248, 226, 255));
    glow.setColorAt(0.09, QColor(255, 244, 214, 225));
    glow.setColorAt(0.12, QColor(255, 238, 200, 110));
    glow.setColorAt(1.0, QColor(255, 226, 180, 0));
    painter.fillRect(QRect(QPoint(), landscape), glow);
}

void paintRidges(QPainter &painter, QRandomGenerator &random)
{
    constexpr int count = 6;
    const QColor far(186, 190, 204);
    const QColor near(34, 62, 66);
    for (int number = 0; number < count; ++number) {
        const double depth = number / double(count - 1);
        const std::vector<double> heights = ridge(random, 470 + 270 * depth, 150 - 112 * depth);
        QPainterPath path(QPointF(0, shore));
        for (int x = 0; x < landscape.width(); ++x) {
            const double tree = number >= count - 2 ? random.bounded(5.0 + 13.0 * depth) : 0.0;
            path.lineTo(x, std::min(heights[size_t(x)] - tree, double(shore - 6)));
        }
        path.lineTo(landscape.width(), shore);
        path.closeSubpath();
        const QColor colour = mixed(far, near, std::pow(depth, 1.2));
        QLinearGradient mist(0, 380 + 200 * depth, 0, shore);
        mist.setColorAt(0.0, colour);
        mist.setColorAt(1.0, mixed(colour, QColor(250, 214, 176), 0.42 * (1.0 - 0.7 * depth)));
        painter.fillPath(path, mist);
    }
}

/// The land above it upside down, darker, broken by waves.
void paintLake(QImage &image, QRandomGenerator &random)
{
    for (int y = shore; y < landscape.height(); ++y) {
        const double far = (y - shore) / double(landscape.height() - shore);
        const double wave = std::sin(y * (0.9 - 0.55 * far)) * (1.0 + 9.0 * far);
        const int from = std::clamp(int(shore - 1 - (y - shore) * 1.35 + wave), 0, shore - 1);
        const int shift = int((random.bounded(1.0) - 0.5) * (2.0 + 8.0 * far));
        for (int x = 0; x < landscape.width(); ++x) {
            const QColor above = image.pixelColor(std::clamp(x + shift, 0, landscape.width() - 1), from);
            image.setPixelColor(x, y, mixed(above, QColor(24, 58, 84), 0.22 + 0.42 * far));
        }
    }
}

bool paintLandscape(const QDir &folder)
{
    QRandomGenerator random(11);
    QImage image(landscape, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSky(painter);
    paintRidges(painter, random);
    painter.end();
    paintLake(image, random);
    QImageWriter writer(folder.filePath(QStringLiteral("bergsee.jpg")), "jpeg");
    writer.setQuality(82);
    return writer.write(image);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QDir folder(application.arguments().value(1));
    const Portrait erika = {QStringLiteral("oma-erika.jpg"),
                            QColor(168, 206, 214),
                            QColor(142, 178, 128),
                            QColor(150, 84, 120),
                            QColor(222, 220, 216),
                            QColor(244, 208, 180),
                            true};
    const Portrait ben = {QStringLiteral("ben.jpg"),
                          QColor(244, 214, 150),
                          QColor(120, 160, 150),
                          QColor(74, 118, 168),
                          QColor(110, 70, 42),
                          QColor(240, 196, 164),
                          false};
    return paint(erika, folder) && paint(ben, folder) && paintLandscape(folder) ? 0 : 1;
}

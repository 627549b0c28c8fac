// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Nature.h"

#include "Noise.h"

#include <QPainter>

double Nature::random(QRandomGenerator &generator, double from, double to)
{
    return from + (to - from) * generator.generateDouble();
}

void Nature::paintSky(Canvas &canvas, const Sky &sky)
{
    canvas.paint(
        [&](double x, double y, const Light &) {
            const double distance = std::hypot(x - sky.sun.x(), (y - sky.sun.y()) * 1.15);
            const double near = std::exp(-distance / sky.spread);
            Light light = between(sky.stops, y / sky.horizon) + sky.glow * near;
            if (sky.disc > 0.0)
                light = light + Light{1.0, 0.97, 0.88} * step(sky.disc * 1.25, sky.disc * 0.85, distance);
            return light;
        },
        0.0, 1.0);
}

void Nature::paintClouds(Canvas &canvas, const Clouds &clouds, const QPointF &sun)
{
    const auto density = [&](double x, double y) {
        const double across = x / clouds.size / clouds.flatness;
        const double down = y / clouds.size;
        const double bend = Noise::fractal(across * 0.7 + 3.1, down * 0.7, 3, clouds.seed + 5);
        return Noise::fractal(across + bend * 0.5, down + bend * 0.35, 7, clouds.seed);
    };
    const double threshold = 0.38 - 0.62 * clouds.amount;
    canvas.paint(
        [&](double x, double y, const Light &below) {
            const double here = density(x, y);
            const double cover = step(threshold, threshold + 0.3, here) * step(clouds.bottom, clouds.bottom - 0.25, y);
            if (cover <= 0.0)
                return below;
            const double length = std::max(0.05, std::hypot(sun.x() - x, sun.y() - y));
            const double reach = clouds.size * 0.16;
            const double behind = density(x + (sun.x() - x) / length * reach, y + (sun.y() - y) / length * reach);
            const double lit = std::clamp(0.62 + (here - behind) * 1.9 - (here - threshold) * 0.45, 0.0, 1.0);
            return mixed(below, mixed(clouds.shaded, clouds.lit, lit), cover);
        },
        0.0, clouds.bottom);
}

double Nature::Ridge::top(double x) const
{
    return base - rise * (0.4 + 1.6 * Noise::fractal(x / length + 7.3, seed * 3.7, octaves, seed));
}

Light Nature::rockLight(const Rock &rock, double x, double y, double depth)
{
    // furrows run down the slope, so lumps are higher than wide, and wander with the height
    const double lean = Noise::fractal(x * 2.3, y * 2.3, 3, rock.seed + 40) * 0.22;
    const double across = (x + lean) * rock.grain;
    const double down = (y + lean * 0.6) * rock.grain * 0.62;
    const double reach = 0.05;
    const double here = Noise::ridged(across, down, 6, rock.seed);
    const double aside = Noise::ridged(across + reach * rock.sunSide, down - reach * 0.6, 6, rock.seed);
    const double lit = std::clamp(0.42 + (here - aside) * 5.5, 0.0, 1.0);
    const double coarse = Noise::fractal(across * 0.5, down * 0.5, 5, rock.seed + 9);
    const double snow = step(-0.05, 0.06, rock.snowLine - y + coarse * 0.16 + (here - 0.5) * 0.16);
    const Light stone = mixed(rock.shaded, rock.lit, lit) * (0.9 + 0.35 * coarse);
    const Light white = mixed(rock.snowShaded, rock.snowLit, step(0.15, 0.75, lit));
    const double haze = rock.hazeStrength * step(rock.hazeTop, rock.hazeBottom, y);
    const double rim = 0.12 * std::exp(-depth / 0.012);
    return mixed(mixed(stone, white, snow), rock.haze, haze) + rock.snowLit * rim * (1.0 - haze);
}

QPainterPath Nature::fir(QRandomGenerator &generator, const QPointF &foot, double height, double slimness)
{
    const int tiers = 9 + int(generator.bounded(5));
    std::vector<QPointF> left;
    std::vector<QPointF> right;
    for (int tier = 0; tier < tiers; ++tier) {
        const double part = (tier + 1.0) / tiers;
        const double y = foot.y() - height * (1.0 - 0.94 * part);
        const double half = height * slimness * 0.5 * std::pow(part, 0.9);
        const double droop = height * 0.035;
        left.emplace_back(foot.x() - half * random(generator, 0.75, 1.12), y + droop * random(generator, 0.4, 1.2));
        left.emplace_back(foot.x() - half * random(generator, 0.38, 0.52), y - droop * 0.15);
        right.emplace_back(foot.x() + half * random(generator, 0.75, 1.12), y + droop * random(generator, 0.4, 1.2));
        right.emplace_back(foot.x() + half * random(generator, 0.38, 0.52), y - droop * 0.15);
    }
    QPainterPath path(QPointF(foot.x(), foot.y() - height));
    for (const QPointF &point : left)
        path.lineTo(point);
    const double trunk = height * 0.018;
    path.lineTo(foot.x() - trunk, foot.y() - height * 0.05);
    path.lineTo(foot.x() - trunk, foot.y());
    path.lineTo(foot.x() + trunk, foot.y());
    path.lineTo(foot.x() + trunk, foot.y() - height * 0.05);
    for (auto point = right.crbegin(); point != right.crend(); ++point)
        path.lineTo(*point);
    path.closeSubpath();
    return path;
}

QPainterPath Nature::leafTree(QRandomGenerator &generator, const QPointF &foot, double height)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const double trunk = height * 0.03;
    path.addRect(foot.x() - trunk, foot.y() - height * 0.5, 2 * trunk, height * 0.5);
    for (int lump = 0; lump < 60; ++lump) {
        const double angle = random(generator, 0.0, 6.283);
        const double far = std::sqrt(generator.generateDouble());
        const double size = height * random(generator, 0.035, 0.1);
        path.addEllipse(QPointF(foot.x() + std::cos(angle) * far * height * 0.34,
                                foot.y() - height * 0.62 + std::sin(angle) * far * height * 0.32),
                        size, size * 0.85);
    }
    return path;
}

QPainterPath Nature::firs(QRandomGenerator &generator, const Ridge &ridge, double width, double from, double to,
                          double gap)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    double x = -0.05;
    while (x < width + 0.05) {
        path.addPath(fir(generator, QPointF(x, ridge.top(x) + from * 0.15), random(generator, from, to)));
        x += gap * random(generator, 0.4, 1.5);
    }
    return path;
}

void Nature::paintWater(Canvas &canvas, const Water &water)
{
    const Canvas land = canvas;
    canvas.paint(
        [&](double x, double y, const Light &) {
            const double far = std::max(0.0, (y - water.shore) / (1.0 - water.shore)); // 0 at the shore
            const double depth = 1.0 / (0.06 + far);                                   // waves are smaller far away
            const double rough = (1.0 - water.calm) * 0.05 + 0.003;
            const double wave = Noise::fractal(x * 1.1 * depth, far * depth * 16.0, 4, water.seed);
            const double sway = Noise::fractal(x * 3.0 * depth, far * depth * 26.0, 2, water.seed + 3);
            const double source = water.shore - (y - water.shore) * water.stretch + wave * rough * (0.4 + 5.0 * far);
            const Light mirrored =
                land.at(x + sway * rough * (0.3 + far), std::clamp(source, 0.0, water.shore - 0.002));
            const double deep = water.deepness * (0.25 + 0.75 * far) + wave * 0.10 * (1.0 - water.calm * 0.6);
            const double edge = std::exp(-std::max(0.0, y - water.shore) / 0.004) * 0.12;
            return mixed(mirrored, water.deep, std::clamp(deep, 0.0, 1.0)) * (1.0 - edge);
        },
        water.shore);
}

void Nature::paintStars(Canvas &canvas, QRandomGenerator &generator, int count, double bottom)
{
    const auto sprinkle = [&](int number, double smallest, double largest) {
        return [&generator, &canvas, number, smallest, largest, bottom](QPainter &painter) {
            for (int star = 0; star < number; ++star) {
                const double bright = std::pow(generator.generateDouble(), 3.0);
                const Light tint = mixed({0.75, 0.83, 1.0}, {1.0, 0.92, 0.8}, generator.generateDouble());
                const double size = smallest + (largest - smallest) * bright;
                painter.setBrush(tint.colour(0.25 + 0.75 * bright));
                painter.drawEllipse(QPointF(random(generator, 0.0, canvas.aspect()), random(generator, 0.0, bottom)),
                                    size, size);
            }
        };
    };
    canvas.shine(sprinkle(count, 0.0004, 0.0012), 0.0);
    canvas.shine(sprinkle(count / 60, 0.0015, 0.0026), 0.0012, 1.2);
}

void Nature::paintBokeh(Canvas &canvas, QRandomGenerator &generator, int count, const std::vector<Light> &lights,
                        double smallest, double largest, double strength)
{
    canvas.draw(
        [&](QPainter &painter) {
            for (int disc = 0; disc < count; ++disc) {
                const Light &light = lights[size_t(generator.bounded(int(lights.size())))];
                const double size = random(generator, smallest, largest);
                const QPointF centre(random(generator, 0.0, canvas.aspect()), random(generator, 0.0, 1.0));
                painter.setBrush(light.colour(strength * random(generator, 0.3, 1.0)));
                painter.drawEllipse(centre, size, size);
            }
        },
        0.0025);
}

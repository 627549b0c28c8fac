// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoFocus.h"

#include "MvProject/MvFotoFaces.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array frames{0.5, 0.7, 1.0, 1.35, 1.6, 2.0, 2.5, 3.0}; // width by height
constexpr int steps = 100;                                            // of an axis
constexpr double headOfUpright = 0.42; // of the height, in an upright picture of which nothing is known
constexpr double pull = 0.1;           // of all that should be seen, towards the usual place

constexpr double ofNarrow = 0.25; // frames that cannot show all faces do not decide for those that can
constexpr double ofFace = 3.0;
constexpr double ofHead = 1.5;
constexpr double ofTop = 0.6;    // of all that stands out
constexpr double nearTop = 0.12; // of what stands out lies above its top
constexpr double heightOfTop = 0.15;
constexpr double airOfTop = 0.04;
constexpr double smooth = 1.5; // difference from pixel to pixel that is no detail
constexpr int cells = 20;      // along the longer side

/// A part of the picture that should be seen.
struct Part
{
    QRectF rect;
    double weight = 1.0;
    bool isWhole = false; // a half of it is worth less than half
};

/// The picture's cells with what stands out in them.
QList<Part> standingOut(const QImage &image)
{
    const QImage small = image.scaled(cells, cells, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    const double count = small.width() * small.height();
    for (int y = 0; y < small.height(); ++y) {
        for (int x = 0; x < small.width(); ++x) {
            const QRgb pixel = small.pixel(x, y);
            red += qRed(pixel) / count;
            green += qGreen(pixel) / count;
            blue += qBlue(pixel) / count;
        }
    }
    const double scale = double(image.width()) / small.width();
    const auto detail = [&](int cellX, int cellY) {
        double sum = 0.0;
        int pixels = 0;
        for (int y = int(cellY * scale) + 1; y < std::min(int((cellY + 1) * scale), image.height() - 1); ++y) {
            for (int x = int(cellX * scale) + 1; x < std::min(int((cellX + 1) * scale), image.width() - 1); ++x) {
                sum += std::hypot(qGray(image.pixel(x + 1, y)) - qGray(image.pixel(x - 1, y)),
                                  qGray(image.pixel(x, y + 1)) - qGray(image.pixel(x, y - 1)));
                ++pixels;
            }
        }
        return sum / std::max(1, pixels);
    };
    QList<Part> parts;
    double mean = 0.0;
    for (int y = 0; y < small.height(); ++y) {
        for (int x = 0; x < small.width(); ++x) {
            const QRgb pixel = small.pixel(x, y);
            const double unlike = std::hypot(qRed(pixel) - red, qGreen(pixel) - green, qBlue(pixel) - blue);
            const QRectF rect(double(x) / small.width(), double(y) / small.height(), 1.0 / small.width(),
                              1.0 / small.height());
            const QPointF away = rect.center() - QPointF(0.5, 0.5);
            const double middle = 1.0 - 1.2 * QPointF::dotProduct(away, away);
            const double weight = middle * (unlike + 4.0) * std::max(0.0, detail(x, y) - smooth);
            parts.append({rect, weight, false});
            mean += weight / count;
        }
    }
    double sum = 0.0;
    for (Part &part : parts) { // what is everywhere does not stand out
        part.weight = std::max(0.0, part.weight - mean);
        sum += part.weight;
    }
    for (Part &part : parts)
        part.weight = sum > 0.0 ? part.weight / sum : 0.0;
    return parts;
}

/// The upper end of it, with air above.
Part topOf(const QList<Part> &cellsByRow)
{
    double above = 0.0;
    const auto top = std::find_if(cellsByRow.cbegin(), cellsByRow.cend(), [&above](const Part &part) {
        above += part.weight;
        return above >= nearTop;
    });
    const double y = top == cellsByRow.cend() ? 0.5 : top->rect.top();
    const double start = std::max(0.0, y - airOfTop);
    return {QRectF(0.0, start, 1.0, heightOfTop), ofTop, true};
}

QList<Part> partsOf(const QImage &image)
{
    QList<Part> parts;
    for (const MvFotoFace &face : MvFotoFaces::in(image)) {
        parts.append({face.face, ofFace * face.score, true});
        parts.append({face.head, ofHead * face.score, true});
    }
    if (!parts.isEmpty())
        return parts;
    parts = standingOut(image);
    const bool isAny = std::any_of(parts.cbegin(), parts.cend(), [](const Part &part) { return part.weight > 0.0; });
    if (isAny)
        parts.append(topOf(parts));
    return parts;
}

QPointF middleOf(const QList<Part> &parts)
{
    QRectF all;
    for (const Part &part : parts)
        all |= part.rect;
    return all.center();
}

/// Along one axis: where a part begins and ends.
struct Span
{
    double start = 0.0;
    double end = 0.0;
    double weight = 0.0;
    bool isWhole = false;
};

double seenOf(const Span &span, double start, double end)
{
    const double seen = std::max(0.0, std::min(span.end, end) - std::max(span.start, start)) / (span.end - span.start);
    return span.weight * (span.isWhole ? seen * seen * seen : seen);
}

/// The place along an axis whose crops hold the most. `shown`: the part of the axis that each frame shows.
double bestPlace(const QList<Span> &spans, const QList<double> &shown, double usual)
{
    if (spans.isEmpty())
        return usual;
    double weight = 0.0;
    double first = 1.0;
    double last = 0.0;
    for (const Span &span : spans) {
        weight += span.weight;
        const bool isPart = span.isWhole && span.end - span.start < 1.0;
        first = std::min(first, isPart ? span.start : 1.0);
        last = std::max(last, isPart ? span.end : 0.0);
    }
    const double needed = last - first; // for all faces
    double best = usual;
    double most = -1.0;
    for (int step = 0; step <= steps; ++step) {
        const double place = double(step) / steps;
        double value = -pull * weight * std::abs(place - usual);
        for (const double part : shown) {
            const double start = std::clamp(place - part / 2.0, 0.0, 1.0 - part);
            const double counts = part < needed ? ofNarrow : 1.0;
            for (const Span &span : spans)
                value += counts * seenOf(span, start, start + part);
        }
        if (value > most + 1e-9) {
            most = value;
            best = place;
        }
    }
    return best;
}

} // namespace

QPointF MvFotoFocus::of(const QImage &image)
{
    if (image.isNull())
        return {0.5, 0.5};
    const bool isLarge = image.width() > side || image.height() > side;
    const QImage small = (isLarge ? image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image)
                             .convertToFormat(QImage::Format_RGB32);
    QList<Span> across;
    QList<Span> down;
    const double shape = double(small.width()) / small.height();
    QPointF usual(0.5, shape < 1.0 ? headOfUpright : 0.5);
    const QList<Part> parts = partsOf(small);
    if (parts.size() > 1 && parts.constFirst().isWhole)
        usual = middleOf(parts);
    for (const Part &part : parts) {
        if (part.weight <= 0.0 || part.rect.isEmpty())
            continue;
        across.append({part.rect.left(), part.rect.right(), part.weight, part.isWhole});
        down.append({part.rect.top(), part.rect.bottom(), part.weight, part.isWhole});
    }
    QList<double> widths;
    QList<double> heights;
    for (const double frame : frames) {
        if (frame < shape)
            widths.append(frame / shape);
        else
            heights.append(shape / frame);
    }
    return {bestPlace(across, widths, usual.x()), bestPlace(down, heights, usual.y())};
}

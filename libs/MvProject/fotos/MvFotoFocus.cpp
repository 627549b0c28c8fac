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

constexpr double edgeOfThing = 0.3;  // of what its strongest cell has
constexpr double leastOfThing = 0.5; // of all that stands out
constexpr double largestThing = 0.5; // of the picture
constexpr double ofThing = 1.5;
constexpr double widestFigure = 0.5; // of the picture's width
constexpr double aboveFigure = 0.12; // of its height: masts and ears are too thin for cells

/// A part of the picture that should be seen.
struct Part
{
    QRectF rect;
    double weight = 1.0;
    bool isWhole = false; // a half of it is worth less than half
};

/// The picture's cells, row by row, with what stands out in them.
struct Cells
{
    QSize grid;
    QList<Part> parts;

    double weight(int x, int y) const { return parts.at(y * grid.width() + x).weight; }
};

/// How much the brightness changes from pixel to pixel in a cell.
double detailOf(const QImage &image, double scale, int cellX, int cellY)
{
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
}

Cells standingOut(const QImage &image)
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
    Cells found{small.size(), {}};
    double mean = 0.0;
    for (int y = 0; y < small.height(); ++y) {
        for (int x = 0; x < small.width(); ++x) {
            const QRgb pixel = small.pixel(x, y);
            const double unlike = std::hypot(qRed(pixel) - red, qGreen(pixel) - green, qBlue(pixel) - blue);
            const QRectF rect(double(x) / small.width(), double(y) / small.height(), 1.0 / small.width(),
                              1.0 / small.height());
            const QPointF away = rect.center() - QPointF(0.5, 0.5);
            const double middle = 1.0 - 1.2 * QPointF::dotProduct(away, away);
            const double detail = std::max(0.0, detailOf(image, scale, x, y) - smooth);
            found.parts.append({rect, middle * (unlike + 4.0) * detail, false});
            mean += found.parts.constLast().weight / count;
        }
    }
    double sum = 0.0;
    for (Part &part : found.parts) { // what is everywhere does not stand out
        part.weight = std::max(0.0, part.weight - mean);
        sum += part.weight;
    }
    for (Part &part : found.parts)
        part.weight = sum > 0.0 ? part.weight / sum : 0.0;
    return found;
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

/// The one thing that stands out: cells that hang together around the strongest. Empty when they are spread over the
/// picture, or hold too little of all.
QRectF thingIn(const Cells &found)
{
    const auto smoothed = [&found](int x, int y) {
        double sum = 0.0;
        for (int v = std::max(0, y - 1); v <= std::min(found.grid.height() - 1, y + 1); ++v) {
            for (int u = std::max(0, x - 1); u <= std::min(found.grid.width() - 1, x + 1); ++u)
                sum += found.weight(u, v) * (u == x && v == y ? 2.0 : 1.0);
        }
        return sum;
    };
    QList<double> weights;
    for (int y = 0; y < found.grid.height(); ++y) {
        for (int x = 0; x < found.grid.width(); ++x)
            weights.append(smoothed(x, y));
    }
    const auto strongest = std::max_element(weights.cbegin(), weights.cend());
    const double least = strongest == weights.cend() ? 0.0 : edgeOfThing * *strongest;
    if (!(least > 0.0))
        return {};
    QList<qsizetype> waiting{strongest - weights.cbegin()};
    QRectF rect;
    double held = 0.0;
    while (!waiting.isEmpty()) {
        const qsizetype cell = waiting.takeLast();
        if (weights.at(cell) < least)
            continue;
        weights[cell] = 0.0; // seen
        held += found.parts.at(cell).weight;
        rect |= found.parts.at(cell).rect;
        const int x = int(cell % found.grid.width());
        const int y = int(cell / found.grid.width());
        for (const QPoint &next : {QPoint(x - 1, y), QPoint(x + 1, y), QPoint(x, y - 1), QPoint(x, y + 1)}) {
            if (QRect(QPoint(), found.grid).contains(next))
                waiting.append(next.y() * found.grid.width() + next.x());
        }
    }
    const bool isOne = held >= leastOfThing && rect.width() * rect.height() <= largestThing;
    return isOne ? rect.adjusted(-airOfTop / 2.0, -airOfTop, airOfTop / 2.0, 0.0) & QRectF(0.0, 0.0, 1.0, 1.0)
                 : QRectF();
}

/// What stays in sight of a thing that is too tall for its frame.
QRectF headOf(const QRectF &thing)
{
    const double above = thing.width() <= widestFigure ? aboveFigure * thing.height() : 0.0;
    const double top = std::max(0.0, thing.top() - above);
    const double bottom = thing.top() + std::min(heightOfTop, thing.height());
    return {QPointF(thing.left(), top), QPointF(thing.right(), bottom)};
}

/// What is to be seen, for any frame.
struct Sight
{
    QList<Part> parts;
    MvFotoInterest interest;
};

Sight sightOf(const QImage &image)
{
    Sight sight;
    QList<MvFotoInterest::Part> wholes;
    for (const MvFotoFace &face : MvFotoFaces::in(image)) {
        sight.parts.append({face.face, ofFace * face.score, true});
        sight.parts.append({face.head, ofHead * face.score, true});
        wholes.append({face.face, ofFace * face.score});
        wholes.append({face.head, ofHead * face.score});
    }
    if (!wholes.isEmpty()) {
        sight.interest = MvFotoInterest(wholes);
        return sight;
    }
    const Cells found = standingOut(image);
    sight.parts = found.parts;
    QList<double> amounts;
    for (const Part &part : found.parts)
        amounts.append(part.weight);
    if (std::none_of(amounts.cbegin(), amounts.cend(), [](double amount) { return amount > 0.0; }))
        return sight;
    const QRectF thing = thingIn(found);
    if (thing.isEmpty()) {
        sight.parts.append(topOf(found.parts));
    } else { // whatever stands out above it
        sight.parts.append({headOf(thing), ofTop, true});
        wholes.append({thing, ofThing});
        wholes.append({headOf(thing), ofTop});
    }
    sight.interest = MvFotoInterest(wholes, found.grid, amounts);
    return sight;
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

MvFotoFocus::Found MvFotoFocus::in(const QImage &image)
{
    if (image.isNull())
        return {};
    const bool isLarge = image.width() > side || image.height() > side;
    const QImage small = (isLarge ? image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image)
                             .convertToFormat(QImage::Format_RGB32);
    QList<Span> across;
    QList<Span> down;
    const double shape = double(small.width()) / small.height();
    QPointF usual(0.5, shape < 1.0 ? headOfUpright : 0.5);
    const Sight sight = sightOf(small);
    if (sight.parts.size() > 1 && sight.parts.constFirst().isWhole)
        usual = middleOf(sight.parts);
    for (const Part &part : sight.parts) {
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
    return {{bestPlace(across, widths, usual.x()), bestPlace(down, heights, usual.y())}, sight.interest};
}

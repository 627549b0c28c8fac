// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoFocus.h"

#include <QList>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// clusters of skin, as parts of the picture
constexpr double smallestFace = 0.002;
constexpr double largestFace = 0.45;
constexpr int fewestPixels = 12;
constexpr double compact = 0.55;       // of its rectangle that a head fills
constexpr double leastScore = 0.03;    // of a face
constexpr double alsoFaces = 0.35;     // of the best one's score
constexpr double eyesFromTop = 0.4;    // of the cluster's height: it has a neck below, and hair above that is not in it
constexpr double headOfUpright = 0.42; // of the height, in an upright picture of which nothing is known
constexpr double usualDetail = 1.5;    // of the mean gradient: what is more stands out
constexpr double fullConfidence = 0.35; // of the detail that stands out lies together

/// Brightness and gradients of a picture, row by row.
struct Field
{
    explicit Field(const QSize &pixels)
        : size(pixels)
        , values(qsizetype(pixels.width()) * pixels.height(), 0.0)
    {}
    double &at(int x, int y) { return values[qsizetype(y) * size.width() + x]; }
    double at(int x, int y) const { return values[qsizetype(y) * size.width() + x]; }

    QSize size;
    QList<double> values;
};

struct Cluster
{
    QRect rect;
    int pixels = 0;
};

bool isSkin(QRgb color)
{
    const double red = qRed(color);
    const double green = qGreen(color);
    const double blue = qBlue(color);
    const double y = 0.299 * red + 0.587 * green + 0.114 * blue;
    const double cb = 128.0 + 0.564 * (blue - y);
    const double cr = 128.0 + 0.713 * (red - y);
    return y > 45.0 && red > green && green > 0.55 * blue && cb > 80.0 && cb < 125.0 && cr > 135.0 && cr < 172.0;
}

/// Takes a cluster out of the mask, beginning at one of its pixels.
Cluster taken(QList<char> &mask, const QSize &size, const QPoint &start)
{
    Cluster cluster{QRect(start, QSize(1, 1)), 0};
    QList<QPoint> open{start};
    const auto visit = [&](const QPoint &pixel) {
        if (!QRect({}, size).contains(pixel))
            return;
        char &isOpen = mask[qsizetype(pixel.y()) * size.width() + pixel.x()];
        if (isOpen)
            open.append(pixel);
        isOpen = 0;
    };
    mask[qsizetype(start.y()) * size.width() + start.x()] = 0;
    while (!open.isEmpty()) {
        const QPoint pixel = open.takeLast();
        ++cluster.pixels;
        cluster.rect |= QRect(pixel, QSize(1, 1));
        for (const QPoint &step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            visit(pixel + step);
    }
    return cluster;
}

QList<Cluster> skinClusters(const QImage &image)
{
    QList<char> mask;
    mask.reserve(qsizetype(image.width()) * image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        std::transform(line, line + image.width(), std::back_inserter(mask), isSkin);
    }
    QList<Cluster> clusters;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (mask[qsizetype(y) * image.width() + x])
                clusters.append(taken(mask, image.size(), {x, y}));
        }
    }
    return clusters;
}

/// How much a cluster looks like a head: 0 for not at all.
double faceScore(const Cluster &cluster, const QSize &picture)
{
    const double share = double(cluster.pixels) / (double(picture.width()) * picture.height());
    if (cluster.pixels < fewestPixels || share < smallestFace || share > largestFace)
        return 0.0;
    const QRect &rect = cluster.rect;
    const int edges = int(rect.left() == 0) + int(rect.top() == 0) + int(rect.right() == picture.width() - 1) +
                      int(rect.bottom() == picture.height() - 1);
    if (edges > 2)
        return 0.0;
    const double proportion = double(rect.height()) / rect.width(); // with its neck a head is taller than wide
    const double shape = proportion < 0.6 || proportion > 3.5 ? 0.0 : proportion < 0.9 ? 0.5 : 1.0;
    const double fill = cluster.pixels / (double(rect.width()) * rect.height());
    const double height = (rect.top() + eyesFromTop * rect.height()) / picture.height();
    const double place = height < 0.66 ? 1.0 : std::max(0.0, 1.0 - 2.5 * (height - 0.66));
    return std::sqrt(share) * shape * std::min(1.0, fill / compact) * place * (edges == 2 ? 0.6 : 1.0);
}

std::optional<QPointF> focusOfFaces(const QImage &image)
{
    const QList<Cluster> clusters = skinClusters(image);
    QList<double> scores;
    for (const Cluster &cluster : clusters)
        scores.append(faceScore(cluster, image.size()));
    const double best = scores.isEmpty() ? 0.0 : *std::max_element(scores.cbegin(), scores.cend());
    if (best < leastScore)
        return std::nullopt;
    QPointF sum;
    double weight = 0.0;
    for (qsizetype i = 0; i < clusters.size(); ++i) {
        if (scores[i] < alsoFaces * best)
            continue;
        const QRectF rect(clusters[i].rect);
        sum += scores[i] * QPointF(rect.center().x(), rect.top() + eyesFromTop * rect.height());
        weight += scores[i];
    }
    return QPointF(sum.x() / weight / image.width(), sum.y() / weight / image.height());
}

Field gradients(const QImage &image)
{
    Field gradients(image.size());
    const auto brightness = [&image](int x, int y) { return qGray(image.pixel(x, y)); };
    for (int y = 1; y + 1 < image.height(); ++y) {
        for (int x = 1; x + 1 < image.width(); ++x)
            gradients.at(x, y) =
                std::hypot(brightness(x + 1, y) - brightness(x - 1, y), brightness(x, y + 1) - brightness(x, y - 1));
    }
    return gradients;
}

/// The middle of what stands out, nearer to the usual place the less of it lies together.
QPointF focusOfDetail(const QImage &image, const QPointF &usual)
{
    const Field field = gradients(image);
    double mean = 0.0;
    for (const double value : field.values)
        mean += value / double(field.values.size());
    const double threshold = usualDetail * mean + 4.0; // noise counts for nothing
    QPointF sum;
    double weight = 0.0;
    double squares = 0.0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double excess = std::max(0.0, field.at(x, y) - threshold);
            const QPointF place((x + 0.5) / image.width(), (y + 0.5) / image.height());
            sum += excess * place;
            squares += excess * QPointF::dotProduct(place, place);
            weight += excess;
        }
    }
    if (weight <= 0.0)
        return usual;
    const QPointF middle = sum / weight;
    const double spread = std::sqrt(std::max(0.0, squares / weight - QPointF::dotProduct(middle, middle)));
    const double confidence = std::clamp(1.0 - spread / fullConfidence, 0.0, 1.0);
    return usual + confidence * (middle - usual);
}

} // namespace

QPointF MvFotoFocus::of(const QImage &image)
{
    if (image.isNull())
        return {0.5, 0.5};
    const bool isLarge = image.width() > side || image.height() > side;
    const QImage small = (isLarge ? image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image)
                             .convertToFormat(QImage::Format_RGB32);
    const QPointF usual(0.5, small.height() > small.width() ? headOfUpright : 0.5);
    const std::optional<QPointF> faces = focusOfFaces(small);
    const QPointF focus = faces ? *faces : focusOfDetail(small, usual);
    return {std::clamp(focus.x(), 0.0, 1.0), std::clamp(focus.y(), 0.0, 1.0)};
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoFaces.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr double smallest = 8.0; // pixels of a face's width
constexpr double largest = 0.7;  // of the picture's shorter side
constexpr double sizeStep = 1.15;
constexpr double faceHeight = 1.25; // of its width
constexpr double leastTone = 0.6;
constexpr double leastLikeness = 0.28;
constexpr double moreOfSmall = 0.2;   // small windows often look like a face by chance
constexpr double small = 0.15;        // of the picture's shorter side
constexpr double alsoFaces = 0.5;     // of the best one's score
constexpr double skinOfPicture = 0.4; // that is beyond the picture's edge
constexpr double highestHat = 1.1;    // of the face's height
constexpr double hair = 0.3;          // the same, where nothing stands out
constexpr double air = 0.15;
constexpr int standsOut = 36; // of the sum of the differences of three channels

/// Sums of values over rectangles.
class Sums
{
public:
    explicit Sums(const QSize &size)
        : m_size(size)
        , m_sums(size_t(size.width() + 1) * size_t(size.height() + 1), 0.0)
    {}

    /// Row by row, each from the left.
    void set(int x, int y, double value) { at(x + 1, y + 1) = value + at(x, y + 1) + at(x + 1, y) - at(x, y); }

    /// The mean of the part that lies in the picture; otherwise when there is none.
    double mean(const QRectF &rect, double otherwise = 0.0) const
    {
        const int left = std::clamp(int(std::lround(rect.left())), 0, m_size.width());
        const int right = std::clamp(int(std::lround(rect.right())), 0, m_size.width());
        const int top = std::clamp(int(std::lround(rect.top())), 0, m_size.height());
        const int bottom = std::clamp(int(std::lround(rect.bottom())), 0, m_size.height());
        const int area = (right - left) * (bottom - top);
        if (area <= 0)
            return otherwise;
        return (at(right, bottom) - at(left, bottom) - at(right, top) + at(left, top)) / area;
    }

private:
    double &at(int x, int y) { return m_sums[size_t(y) * size_t(m_size.width() + 1) + size_t(x)]; }
    double at(int x, int y) const { return m_sums[size_t(y) * size_t(m_size.width() + 1) + size_t(x)]; }

    QSize m_size;
    std::vector<double> m_sums;
};

/// 0 to 1, by the share of red and of green: skin of all people lies between two curves.
double skinTone(QRgb color)
{
    constexpr double darkest = 30.0; // of a channel on average; dark hair has the tones of skin, but less light
    constexpr double litEnough = 55.0;
    const double sum = qRed(color) + qGreen(color) + qBlue(color);
    if (sum <= 3.0 * darkest)
        return 0.0;
    const double red = qRed(color) / sum;
    const double green = qGreen(color) / sum;
    const double upper = -1.3767 * red * red + 1.0743 * red + 0.1452;
    const double lower = -0.776 * red * red + 0.5601 * red + 0.1766;
    const double away = std::abs(2.0 * green - upper - lower) / (upper - lower);
    const double byGreen = std::clamp(1.7 * (1.0 - away), 0.0, 1.0);
    const double byRed = std::clamp((red - 0.355) / 0.02, 0.0, 1.0) * std::clamp((0.58 - red) / 0.05, 0.0, 1.0);
    return byGreen * byRed * std::min(1.0, (sum / 3.0 - darkest) / (litEnough - darkest));
}

/// A picture, ready to be looked at through windows.
class Seen
{
public:
    explicit Seen(const QImage &picture)
        : m_picture(picture)
        , m_skin(picture.size())
        , m_light(picture.size())
        , m_squares(picture.size())
    {
        for (int y = 0; y < picture.height(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
            for (int x = 0; x < picture.width(); ++x) {
                const double light = qGray(line[x]);
                m_skin.set(x, y, skinTone(line[x]));
                m_light.set(x, y, light);
                m_squares.set(x, y, light * light);
            }
        }
    }

    double score(const QRectF &window) const
    {
        const double toned = filling(window) * (1.0 - surroundings(window));
        if (toned < leastTone) // most of all windows
            return 0.0;
        const double side = std::min(m_picture.width(), m_picture.height());
        const double eyes = (window.top() + 0.4 * window.height()) / m_picture.height();
        const double place = eyes < 0.66 ? 1.0 : std::max(0.0, 1.0 - 2.5 * (eyes - 0.66));
        const double size = window.width() / side;
        const double likeness = toned * place * structure(window);
        const double demanded = leastLikeness + moreOfSmall * std::clamp(1.5 * (small - size) / small, 0.0, 1.0);
        return likeness < demanded ? 0.0 : likeness * std::pow(size, 0.25);
    }

    MvFotoFace face(const QRectF &window, double score) const;

private:
    static QRectF part(const QRectF &window, double left, double top, double right, double bottom)
    {
        return QRectF(QPointF(window.left() + left * window.width(), window.top() + top * window.height()),
                      QPointF(window.left() + right * window.width(), window.top() + bottom * window.height()));
    }

    double filling(const QRectF &window) const
    {
        const double all = 0.7 * m_skin.mean(part(window, 0.06, 0.2, 0.94, 0.75)) +
                           0.15 * m_skin.mean(part(window, 0.2, 0.04, 0.8, 0.2)) +
                           0.15 * m_skin.mean(part(window, 0.25, 0.75, 0.75, 0.96));
        const double cheeks = m_skin.mean(part(window, 0.18, 0.5, 0.82, 0.68));
        return cheeks * (0.5 + 0.5 * all);
    }

    double surroundings(const QRectF &window) const
    {
        return (m_skin.mean(part(window, -0.4, 0.1, -0.08, 0.8), skinOfPicture) +
                m_skin.mean(part(window, 1.08, 0.1, 1.4, 0.8), skinOfPicture) +
                m_skin.mean(part(window, 0.1, -0.4, 0.9, -0.08), skinOfPicture)) /
               3.0;
    }

    double structure(const QRectF &window) const
    {
        const double mean = m_light.mean(window);
        const double contrast = std::sqrt(std::max(0.0, m_squares.mean(window) - mean * mean)) + 6.0;
        const auto light = [&](double left, double top, double right, double bottom) {
            return m_light.mean(part(window, left, top, right, bottom), mean) / contrast;
        };
        const double leftEye = light(0.14, 0.27, 0.42, 0.47);
        const double rightEye = light(0.58, 0.27, 0.86, 0.47);
        const double leftCheek = light(0.14, 0.5, 0.4, 0.68);
        const double rightCheek = light(0.6, 0.5, 0.86, 0.68);
        const double eyes = std::clamp(1.4 * std::min(leftCheek - leftEye, rightCheek - rightEye), 0.0, 1.0);
        const double bridge = std::clamp(light(0.43, 0.27, 0.57, 0.47) - 0.5 * (leftEye + rightEye), 0.0, 1.0);
        const double mouth = std::clamp(0.5 * (leftCheek + rightCheek) - light(0.32, 0.7, 0.68, 0.86), 0.0, 1.0);
        const double lopsided = std::abs(leftEye - rightEye) + 0.5 * std::abs(leftCheek - rightCheek);
        const double balance = std::clamp(1.2 - 0.6 * lopsided, 0.0, 1.0);
        return eyes <= 0.0 ? 0.0 : balance * (0.5 * eyes + 0.3 * bridge + 0.2 * mouth);
    }

    double topOfHead(const QRectF &window) const;

    const QImage &m_picture;
    Sums m_skin;
    Sums m_light;
    Sums m_squares;
};

/// Upwards from the face as long as the middle differs from what is seen at both sides, beyond the brim of a hat.
double Seen::topOfHead(const QRectF &window) const
{
    const auto color = [this](double x, int y) {
        return m_picture.pixel(std::clamp(int(x), 0, m_picture.width() - 1), y);
    };
    const auto differs = [](QRgb a, QRgb b) {
        return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) >
               standsOut;
    };
    const int lowest = std::clamp(int(window.top()), 0, m_picture.height() - 1);
    const int highest = std::max(0, int(window.top() - highestHat * window.height()));
    for (int y = lowest; y >= highest; --y) {
        const QRgb middle = color(window.center().x(), y);
        if (!differs(middle, color(window.left() - 1.1 * window.width(), y)) ||
            !differs(middle, color(window.right() + 1.1 * window.width(), y)))
            return std::min(double(y), window.top() - hair * window.height());
    }
    return window.top() - hair * window.height(); // what is above is no head, but a background
}

MvFotoFace Seen::face(const QRectF &window, double score) const
{
    const double top = std::max(0.0, topOfHead(window) - air * window.height());
    const QRectF head(QPointF(window.left() - 0.25 * window.width(), top),
                      QPointF(window.right() + 0.25 * window.width(), window.bottom() + 0.1 * window.height()));
    const auto share = [this](const QRectF &rect) {
        const QRectF inside = rect & QRectF(m_picture.rect());
        return QRectF(inside.left() / m_picture.width(), inside.top() / m_picture.height(),
                      inside.width() / m_picture.width(), inside.height() / m_picture.height());
    };
    return {share(window), share(head), score};
}

struct Candidate
{
    QRectF window;
    double score = 0.0;
};

// NOLINTBEGIN(clang-analyzer-security.FloatLoopCounter): places between the pixels, none of which has to be met
QList<Candidate> candidates(const Seen &seen, const QSize &picture)
{
    QList<Candidate> found;
    const double widest = largest * std::min(picture.width(), picture.height());
    for (double width = smallest; width <= widest; width *= sizeStep) {
        const QSizeF size(width, faceHeight * width);
        const double step = std::max(1.0, width / 9.0);
        // over the edges, too: of a face there the middle is seen
        for (double y = -0.2 * size.height(); y < picture.height() - 0.7 * size.height(); y += step) {
            for (double x = -0.3 * width; x < picture.width() - 0.7 * width; x += step) {
                const QRectF window(QPointF(x, y), size);
                const double score = seen.score(window);
                if (score > 0.0)
                    found.append({window, score});
            }
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Candidate &a, const Candidate &b) { return a.score > b.score; });
    return found;
}
// NOLINTEND(clang-analyzer-security.FloatLoopCounter)

bool overlap(const QRectF &a, const QRectF &b)
{
    const QRectF both = a & b;
    const double smaller = std::min(a.width() * a.height(), b.width() * b.height());
    return both.width() * both.height() > 0.15 * smaller;
}

} // namespace

QList<MvFotoFace> MvFotoFaces::in(const QImage &picture)
{
    const Seen seen(picture);
    QList<Candidate> kept;
    const QList<Candidate> all = candidates(seen, picture.size());
    for (const Candidate &candidate : all) {
        if (candidate.score < alsoFaces * all.constFirst().score)
            break;
        if (std::none_of(kept.cbegin(), kept.cend(),
                         [&](const Candidate &better) { return overlap(better.window, candidate.window); }))
            kept.append(candidate);
    }
    QList<MvFotoFace> faces;
    for (const Candidate &candidate : std::as_const(kept))
        faces.append(seen.face(candidate.window, candidate.score));
    return faces;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvUncoveredParts.h"

#include "MvProject/MvVeilField.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostCovers = 8;
constexpr qsizetype mostParts = 3;
constexpr double leastOfFrame = 0.15; // of its area: less is not worth aiming at
constexpr double leastOfLargest = 0.6;

double areaOf(const QRectF &rect)
{
    return rect.width() * rect.height();
}

bool isWritten(const MvTextElement &text, const QList<MvPageElement> &elements)
{
    const bool hasCaption = std::any_of(elements.cbegin(), elements.cend(), [](const MvPageElement &element) {
        return element.foto() && !element.foto()->caption().isEmpty();
    });
    QString words = text.text();
    if (!hasCaption)
        words.remove(u"{caption}"_s).remove(u"{photos}"_s);
    return !words.trimmed().isEmpty();
}

/// What lies above the frame and hides a part of it, the largest first.
QList<QRectF> coversOf(const QList<MvPageElement> &elements, int frame, const QRectF &seen, const MvPageFormat &format)
{
    QList<MvPageElement> above;
    QList<QRectF> covers;
    for (int number = 0; number < elements.size(); ++number) {
        const MvPageElement &element = elements.at(number);
        if (element.foto() && number > frame)
            covers.append(element.rect());
        if (element.foto() || element.calendarium() || isWritten(*element.text(), elements))
            above.append(element);
        if (element.calendarium() || (element.text() && isWritten(*element.text(), elements)))
            covers.append(element.rect());
    }
    const QList<MvVeilField> veils = MvVeilField::of(above, format, false);
    for (const MvVeilField &veil : veils)
        covers.append(veil.rect);
    covers.removeIf([&seen](const QRectF &cover) { return areaOf(cover & seen) <= 0.0; });
    std::sort(covers.begin(), covers.end(),
              [&seen](const QRectF &a, const QRectF &b) { return areaOf(a & seen) > areaOf(b & seen); });
    covers.resize(std::min(covers.size(), mostCovers));
    return covers;
}

/// The places where a part may begin or end along an axis.
QList<double> edgesOf(double first, double last, const QList<double> &between)
{
    QList<double> edges{first, last};
    for (const double edge : between) {
        if (edge > first && edge < last && !edges.contains(edge))
            edges.append(edge);
    }
    std::sort(edges.begin(), edges.end());
    return edges;
}

QList<QRectF> freeRects(const QRectF &seen, const QList<QRectF> &covers)
{
    QList<double> across, down;
    for (const QRectF &cover : covers) {
        across << cover.left() << cover.right();
        down << cover.top() << cover.bottom();
    }
    const QList<double> xs = edgesOf(seen.left(), seen.right(), across);
    const QList<double> ys = edgesOf(seen.top(), seen.bottom(), down);
    QList<QRectF> found;
    const auto addIfFree = [&](const QRectF &rect) {
        if (std::none_of(covers.cbegin(), covers.cend(), [&](const QRectF &cover) { return cover.intersects(rect); }))
            found.append(rect);
    };
    for (qsizetype left = 0; left < xs.size(); ++left) {
        for (qsizetype right = left + 1; right < xs.size(); ++right) {
            for (qsizetype top = 0; top < ys.size(); ++top) {
                for (qsizetype bottom = top + 1; bottom < ys.size(); ++bottom)
                    addIfFree({QPointF(xs.at(left), ys.at(top)), QPointF(xs.at(right), ys.at(bottom))});
            }
        }
    }
    return found;
}

} // namespace

QList<QRectF> MvUncoveredParts::of(const QList<MvPageElement> &elements, int frame, const MvPageFormat &format)
{
    const QRectF rect = elements.value(frame).rect();
    const QRectF seen = rect & format.trimRect();
    if (seen.isEmpty())
        return {rect};
    const QList<QRectF> covers = coversOf(elements, frame, seen, format);
    if (covers.isEmpty())
        return {seen};
    QList<QRectF> free = freeRects(seen, covers);
    std::stable_sort(free.begin(), free.end(), [](const QRectF &a, const QRectF &b) { return areaOf(a) > areaOf(b); });
    if (free.isEmpty() || areaOf(free.constFirst()) < leastOfFrame * areaOf(seen))
        return {seen};
    QList<QRectF> parts;
    for (const QRectF &one : std::as_const(free)) {
        const bool isPart =
            std::any_of(parts.cbegin(), parts.cend(), [&one](const QRectF &larger) { return larger.contains(one); });
        if (!isPart && parts.size() < mostParts && areaOf(one) >= leastOfLargest * areaOf(free.constFirst()))
            parts.append(one);
    }
    return parts;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoAim.h"

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvUncoveredParts.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int steps = 40;             // of an axis, then between two of these
constexpr double ofCells = 1.0;       // beside a part to be seen whole of weight 1
constexpr double pull = 0.35;         // of all that should be seen, for the whole frame's diagonal
constexpr double ofLargest = 0.1;     // of it, for parts of the frame that are larger than others
constexpr double hardlyAway = 0.005;  // of the photo: foci that count as the same
constexpr double belowMiddle = 0.06;  // of its height: what is seen whole has more room above than below
constexpr double hardlyCovered = 0.9; // of a frame's area is seen: more is cut off by the trim alone

double shareOf(const QRectF &part, const QRectF &seen)
{
    const QRectF common = part & seen;
    return common.width() * common.height() / (part.width() * part.height());
}

/// One photo in one frame, looked at with any focus.
class Look
{
public:
    Look(const MvFotoPoolItem &photo, const MvFotoElement &foto, const QSizeF &frame, const QRectF &seen)
        : m_foto(foto)
        , m_size(photo.size)
        , m_frame(frame)
        , m_seen(seen)
    {
        // where nothing stands out, the focus knows more of it than all that there is to see
        const bool isPoint = photo.interest.wholes().isEmpty();
        const MvFotoInterest interest = isPoint ? MvFotoInterest::at(photo.focus) : photo.interest;
        m_down = isPoint ? 0.0 : belowMiddle;
        const auto inPixels = [this](MvFotoInterest::Part part) {
            part.rect = {part.rect.x() * m_size.width(), part.rect.y() * m_size.height(),
                         part.rect.width() * m_size.width(), part.rect.height() * m_size.height()};
            return part;
        };
        QPointF sum;
        for (const MvFotoInterest::Part &whole : interest.wholes()) {
            m_wholes.append(inPixels(whole));
            m_weight += whole.weight;
            sum += whole.weight * whole.rect.center(); // a face counts for more than the hat on it
        }
        m_start = m_weight > 0.0 ? sum / m_weight : photo.focus;
        const QList<MvFotoInterest::Part> cells = interest.cells();
        for (const MvFotoInterest::Part &cell : cells) {
            m_cells.append(inPixels(cell));
            m_weight += ofCells * cell.weight;
        }
        m_middle = {m_start.x() * m_size.width(), m_start.y() * m_size.height()};
    }

    /// The better one axis after the other: most photos can be moved along one only.
    QPointF best() const
    {
        QPointF focus = m_start;
        for (int round = 0; round < (isFreeAlong(Qt::Horizontal) && isFreeAlong(Qt::Vertical) ? 2 : 1); ++round) {
            focus.setX(bestAlong(Qt::Horizontal, focus));
            focus.setY(bestAlong(Qt::Vertical, focus));
        }
        return focus;
    }

    double value(const QPointF &focus) const
    {
        MvFotoElement foto = m_foto;
        foto.setFocus(focus);
        const QTransform toFrame = foto.transform(m_size, m_frame);
        double value = 0.0;
        QRectF all;
        for (const MvFotoInterest::Part &whole : m_wholes) {
            const QRectF stands = toFrame.mapRect(whole.rect);
            value += whole.weight * std::pow(shareOf(stands, m_seen), 3); // a half of it is worth less than half
            all |= stands;
        }
        for (const MvFotoInterest::Part &cell : m_cells)
            value += ofCells * cell.weight * shareOf(toFrame.mapRect(cell.rect), m_seen);
        const double down = std::min(m_down * m_seen.height(), std::max(0.0, m_seen.height() - all.height()) / 4.0);
        const QPointF wanted = m_seen.center() + QPointF(0.0, down);
        const QPointF away = toFrame.map(m_middle) - wanted;
        const double most = std::hypot(m_frame.width(), m_frame.height());
        const double area = m_seen.width() * m_seen.height() / (m_frame.width() * m_frame.height());
        return value + m_weight * (ofLargest * area - pull * std::hypot(away.x(), away.y()) / most);
    }

private:
    bool isFreeAlong(Qt::Orientation axis) const { return cropAt(axis, 0.0) != cropAt(axis, 1.0); }

    QRectF cropAt(Qt::Orientation axis, double place) const
    {
        MvFotoElement foto = m_foto;
        foto.setFocus(moved(m_start, axis, place));
        return foto.crop(m_size, m_frame);
    }

    static QPointF moved(QPointF focus, Qt::Orientation axis, double place)
    {
        axis == Qt::Horizontal ? focus.setX(place) : focus.setY(place);
        return focus;
    }

    double bestAlong(Qt::Orientation axis, const QPointF &from) const
    {
        const double usual = axis == Qt::Horizontal ? from.x() : from.y();
        if (!isFreeAlong(axis))
            return usual;
        double best = usual;
        double most = value(from);
        const auto look = [&](double first, double last) {
            for (int step = 0; step <= steps; ++step) {
                const double place = first + (last - first) * step / steps;
                if (const double found = value(moved(from, axis, place)); found > most + 1e-9) {
                    most = found;
                    best = place;
                }
            }
        };
        look(0.0, 1.0);
        look(std::max(0.0, best - 1.0 / steps), std::min(1.0, best + 1.0 / steps));
        return best;
    }

    MvFotoElement m_foto;
    QSizeF m_size;
    QSizeF m_frame;
    QRectF m_seen;
    QList<MvFotoInterest::Part> m_wholes, m_cells; // in pixels
    QPointF m_middle;                              // of what is worth seeing, in pixels
    QPointF m_start;                               // the same as a focus
    double m_weight = 0.0;
    double m_down = 0.0; // of the height that is seen
};

bool isSame(const QPointF &a, const QPointF &b)
{
    return std::abs(a.x() - b.x()) < hardlyAway && std::abs(a.y() - b.y()) < hardlyAway;
}

/// A frame with a photo of the pool, and what its focus follows from.
struct Frame
{
    MvFotoElement foto;
    QSizeF size;
    QList<QRectF> uncovered;

    bool operator==(const Frame &) const = default;
};

Frame frameOf(const QList<MvPageElement> &elements, int number, const MvPageFormat &format)
{
    const MvPageElement &element = elements.at(number);
    Frame frame{*element.foto(), element.rect().size(), MvUncoveredParts::of(elements, number, format)};
    for (QRectF &part : frame.uncovered)
        part.translate(-element.rect().topLeft());
    return frame;
}

/// The foci that photos have without anybody's doing, by path.
using Foci = QHash<QString, QList<QPointF>>;

bool isKnown(const Foci &foci, const MvFotoElement &foto)
{
    const QList<QPointF> known = foci.value(foto.path());
    return std::any_of(known.cbegin(), known.cend(),
                       [&foto](const QPointF &focus) { return isSame(focus, foto.focus()); });
}

} // namespace

QPointF MvFotoAim::focus(const MvFotoPoolItem &photo, const MvFotoElement &foto, const QSizeF &frame,
                         const QList<QRectF> &uncovered)
{
    if (photo.size.isEmpty() || frame.isEmpty() || uncovered.isEmpty())
        return photo.focus;
    const QSizeF largest = uncovered.constFirst().size();
    const bool isWhole = largest.width() * largest.height() >= hardlyCovered * frame.width() * frame.height();
    if (isWhole && photo.interest.wholes().isEmpty())
        return photo.focus;
    QPointF best = photo.focus;
    double most = 0.0;
    for (const QRectF &seen : uncovered) {
        const Look look(photo, foto, frame, seen);
        const QPointF found = look.best();
        const double value = look.value(found);
        if (&seen == &uncovered.constFirst() || value > most) {
            most = value;
            best = found;
        }
    }
    return best;
}

MvFotoElement MvFotoAim::aimed(const MvFotoPoolItem &photo, const MvCalendarPage &page, int element,
                               const MvPageFormat &format)
{
    const QList<MvPageElement> elements = page.elementsOn(format);
    if (element < 0 || element >= elements.size() || !elements.at(element).foto())
        return {};
    const Frame frame = frameOf(elements, element, format);
    MvFotoElement foto = frame.foto;
    if (!frame.size.isEmpty())
        foto.setFocus(focus(photo, foto, frame.size, frame.uncovered));
    return foto;
}

MvCalendarDocument MvFotoAim::followed(const MvCalendarDocument &before, const MvCalendarDocument &changed)
{
    MvCalendarDocument result = changed;
    const MvFotoPool &pool = changed.fotoPool();
    if (pool.isEmpty() || before == changed)
        return result;
    Foci foci;
    for (const MvFotoPoolItem &item : pool.items())
        foci[item.path].append(item.focus);
    const auto isSamePage = [&](const MvCalendarDocument &document, const MvCalendarDocument &other, int page) {
        return before.format() == changed.format() && other.pages().contains(document.pages().at(page));
    };
    const auto forEach = [&](const MvCalendarDocument &document, const MvCalendarDocument &other, const auto &visit) {
        for (int page = 0; page < document.pages().size(); ++page) {
            if (isSamePage(document, other, page))
                continue;
            const QList<MvPageElement> elements = document.pages().at(page).elementsOn(document.format());
            for (int number = 0; number < elements.size(); ++number) {
                const MvFotoElement *foto = elements.at(number).foto();
                const MvFotoPoolItem *item = foto ? pool.find(foto->path()) : nullptr;
                if (item && !elements.at(number).rect().isEmpty())
                    visit(*item, frameOf(elements, number, document.format()), page, number);
            }
        }
    };
    QHash<std::pair<int, int>, Frame> stood;
    forEach(before, changed, [&](const MvFotoPoolItem &item, const Frame &frame, int page, int number) {
        stood.insert({page, number}, frame);
        const QPointF aimed = focus(item, frame.foto, frame.size, frame.uncovered);
        if (isSame(aimed, frame.foto.focus()))
            foci[item.path].append(frame.foto.focus());
    });
    forEach(changed, before, [&](const MvFotoPoolItem &item, const Frame &frame, int page, int number) {
        const auto known = stood.constFind({page, number});
        const bool hasStayed = known != stood.cend() && known->foto.path() == frame.foto.path();
        const bool isPlaced = hasStayed && known->foto.focus() != frame.foto.focus(); // by hand, just now
        if ((hasStayed && *known == frame) || isPlaced || !isKnown(foci, frame.foto))
            return;
        MvFotoElement foto = frame.foto;
        foto.setFocus(focus(item, foto, frame.size, frame.uncovered));
        result.setFoto({page, number}, foto);
    });
    return result;
}

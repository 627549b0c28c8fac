// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoDistribution.h"

#include "MvFoto/MvFotoResolution.h"
#include "MvProject/MvFotoAim.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

namespace {

using FrameId = MvCalendarDocument::FrameId;

constexpr int monthsPerYear = 12;
constexpr double weightOfSeason = 0.5; // of half a year, beside a photo of which nothing is seen
constexpr double weightOfOrder = 0.3;  // of the whole pool, for photos without a time
constexpr double weightOfCoarseness = 0.6;
constexpr double weightOfLost = 0.5; // of what should be seen whole and has no room

struct Frame
{
    FrameId id;
    QSizeF size; // tenths of a millimetre
    MvPageKind kind = MvPageKind::Month;
    QDate month = {}; // the page's first
    int months = 1;   // on the page
    int place = 0;    // among the frames of its page
    bool isMain = false;
    bool isInIndex = false;
    bool isEmpty = true;

    bool hasMonthOf(const QDate &date) const
    {
        const int away = (date.month() - month.month() + monthsPerYear) % monthsPerYear;
        return away < months;
    }
    bool hasDate(const QDate &date) const { return date >= month && date < month.addMonths(months); }
};

/// A photo that waits, with its place among those that do.
struct Waiting
{
    MvFotoPoolItem item;
    double place = 0.0; // 0 for the first, 1 for the last
    bool isTaken = false;
};

double area(const QSizeF &size)
{
    return size.width() * size.height();
}

QList<Frame> framesOfPage(const MvCalendarDocument &document, int number)
{
    const bool isFacing = document.isFacingMonth(number + 1);
    const MvCalendarPage &page = document.pages()[number];
    const MvPageKind kind = isFacing ? MvPageKind::Month : page.kind();
    const QList<MvPageElement> elements = page.elementsOn(document.format());
    QList<Frame> frames;
    for (int element = 0; element < elements.size(); ++element) {
        const MvFotoElement *foto = elements[element].foto();
        if (!foto || page.frameSize(element, document.format()).isEmpty())
            continue;
        Frame frame{{number, element}, page.frameSize(element, document.format()), kind};
        frame.month = document.pageDates().value(number);
        frame.months = kind == MvPageKind::Month ? page.monthCount() : 1;
        frame.place = int(frames.size());
        frame.isEmpty = foto->isEmpty();
        frames.append(frame);
    }
    const auto largest = std::max_element(frames.begin(), frames.end(),
                                          [](const Frame &a, const Frame &b) { return area(a.size) < area(b.size); });
    if (largest != frames.end())
        largest->isMain = true;
    const bool isBound = page.kind() == MvPageKind::Cover || page.kind() == MvPageKind::Back;
    for (Frame &frame : frames)
        frame.isInIndex = isBound && frames.size() >= MvFotoDistribution::framesOfIndex;
    return frames;
}

/// How much of the faces, or of the one thing, can't be seen in a frame of the shape, however the photo is moved in it.
double lostOf(const MvFotoInterest &interest, double photoShape, double frameShape)
{
    const QSizeF seen(std::min(1.0, frameShape / photoShape), std::min(1.0, photoShape / frameShape));
    double lost = 0.0;
    double all = 0.0;
    for (const MvFotoInterest::Part &whole : interest.wholes()) {
        all += whole.weight;
        lost += whole.weight * (1.0 - std::min(1.0, seen.width() / whole.rect.width()) *
                                          std::min(1.0, seen.height() / whole.rect.height()));
    }
    return all > 0.0 ? lost / all : 0.0;
}

/// How badly a photo suits a frame: 0 for a photo of its shape and enough pixels.
double misfit(const MvFotoPoolItem &foto, const Frame &frame)
{
    const double photoShape = double(foto.size.width()) / foto.size.height();
    const double frameShape = frame.size.width() / frame.size.height();
    const double seen = std::min(photoShape / frameShape, frameShape / photoShape);
    const QSizeF pixels = frame.size.scaled(QSizeF(foto.size), Qt::KeepAspectRatio);
    const double ppi = MvFotoResolution::pixelsPerInch(pixels, frame.size);
    const double coarseness = std::max(0.0, 1.0 - ppi / MvFotoResolution::poorBelow);
    return 1.0 - seen + weightOfCoarseness * coarseness + weightOfLost * lostOf(foto.interest, photoShape, frameShape);
}

/// From 0 for the page's own months to 1 for half a year away; in between for a photo without a time.
double seasonsAway(const QDate &date, const Frame &frame)
{
    if (!date.isValid())
        return 0.5;
    if (frame.hasMonthOf(date))
        return 0.0;
    const double middle = frame.month.month() + (frame.months - 1) / 2.0;
    const double away = std::abs(std::remainder(date.month() - middle, double(monthsPerYear)));
    return away / (monthsPerYear / 2.0);
}

/// The work on one document.
class Distribution
{
public:
    Distribution(const MvCalendarDocument &document, const std::function<bool(int page)> &isWanted)
        : m_document(document)
    {
        for (int page = 0; page < document.pages().size(); ++page) {
            const QList<Frame> frames = framesOfPage(document, page);
            m_all += frames;
            if (isWanted(page))
                std::copy_if(frames.begin(), frames.end(), std::back_inserter(m_frames),
                             [](const Frame &frame) { return frame.isEmpty; });
        }
        const QHash<QString, int> uses = document.fotoUses();
        for (const MvFotoPoolItem &item : document.fotoPool().items()) {
            if (!uses.contains(item.path) && !item.size.isEmpty())
                m_waiting.append({item});
        }
        for (qsizetype i = 0; i < m_waiting.size(); ++i)
            m_waiting[i].place = double(i) / double(std::max<qsizetype>(1, m_waiting.size() - 1));
    }

    MvFotoDistribution::Result run();

private:
    using Selection = std::function<bool(const Frame &)>;

    void fill(const Selection &isMeant);
    void fillWithOwn(const Selection &isMeant);
    void fillWithOthers(const Selection &isMeant);
    void fillByShape(const Selection &isMeant);
    void fillIndexesWithOthers();
    void fillIndexes();
    /// The waiting photo of the smallest cost, the first of equals; null when none has a finite one.
    Waiting *cheapest(const std::function<double(const Waiting &)> &cost);
    void put(Frame &frame, Waiting &waiting);
    bool put(Frame &frame, const MvFotoPoolItem &item);

    MvCalendarDocument m_document;
    QList<Frame> m_all;    // of all pages, as they were
    QList<Frame> m_frames; // that are to be filled
    QList<Waiting> m_waiting;
    int m_placed = 0;
};

Waiting *Distribution::cheapest(const std::function<double(const Waiting &)> &cost)
{
    Waiting *best = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (Waiting &waiting : m_waiting) {
        const double price = waiting.isTaken ? least : cost(waiting);
        if (price < least) {
            least = price;
            best = &waiting;
        }
    }
    return best;
}

bool Distribution::put(Frame &frame, const MvFotoPoolItem &item)
{
    MvFotoElement foto = m_document.foto(frame.id); // with fit and border of its template
    foto.setPath(item.path);
    foto.setFocus(item.focus);
    frame.isEmpty = !m_document.setFoto(frame.id, foto);
    if (!frame.isEmpty)
        m_document.setFoto(frame.id, MvFotoAim::aimed(item, m_document.pages().at(frame.id.page), frame.id.element,
                                                      m_document.format()));
    m_placed += frame.isEmpty ? 0 : 1;
    return !frame.isEmpty;
}

void Distribution::put(Frame &frame, Waiting &waiting)
{
    waiting.isTaken = put(frame, waiting.item) || waiting.isTaken;
}

void Distribution::fillWithOwn(const Selection &isMeant)
{
    for (Frame &frame : m_frames) {
        if (!frame.isEmpty || !isMeant(frame))
            continue;
        Waiting *own = cheapest([&frame](const Waiting &waiting) {
            const QDate date = waiting.item.captured.date();
            if (!date.isValid() || !frame.hasMonthOf(date))
                return std::numeric_limits<double>::infinity();
            constexpr double anotherYear = 10.0; // more than any misfit
            return misfit(waiting.item, frame) + (frame.hasDate(date) ? 0.0 : anotherYear);
        });
        if (own)
            put(frame, *own);
    }
}

void Distribution::fillWithOthers(const Selection &isMeant)
{
    const auto isOpen = [&](const Frame &frame) { return frame.isEmpty && isMeant(frame); };
    const auto open = std::count_if(m_frames.begin(), m_frames.end(), isOpen);
    int number = 0;
    for (Frame &frame : m_frames) {
        if (!isOpen(frame))
            continue;
        const double place = double(number++) / double(std::max<qsizetype>(1, open - 1));
        Waiting *other = cheapest([&](const Waiting &waiting) {
            const QDate date = waiting.item.captured.date();
            const double order = date.isValid() ? 0.0 : weightOfOrder * std::abs(waiting.place - place);
            return misfit(waiting.item, frame) + weightOfSeason * seasonsAway(date, frame) + order;
        });
        if (other)
            put(frame, *other);
    }
}

void Distribution::fillByShape(const Selection &isMeant)
{
    for (Frame &frame : m_frames) {
        if (!frame.isEmpty || !isMeant(frame))
            continue;
        if (Waiting *best = cheapest([&frame](const Waiting &waiting) { return misfit(waiting.item, frame); }))
            put(frame, *best);
    }
}

void Distribution::fill(const Selection &isMeant)
{
    fillWithOwn(isMeant);
    fillWithOthers(isMeant);
}

/// Index by index, as long as there are photos for the whole of it.
void Distribution::fillIndexesWithOthers()
{
    for (int page = 0; page < m_document.pages().size(); ++page) {
        const auto isInIndex = [page](const Frame &frame) { return frame.isInIndex && frame.id.page == page; };
        const auto open = std::count_if(m_frames.cbegin(), m_frames.cend(),
                                        [&](const Frame &frame) { return isInIndex(frame) && frame.isEmpty; });
        const auto waiting =
            std::count_if(m_waiting.cbegin(), m_waiting.cend(), [](const Waiting &photo) { return !photo.isTaken; });
        if (open > 0 && waiting >= open)
            fillWithOthers(isInIndex);
    }
}

/// Frame by frame the photos of the months, as far as there are any.
void Distribution::fillIndexes()
{
    QList<QString> photos;
    for (const Frame &frame : std::as_const(m_all)) {
        const QString path = m_document.foto(frame.id).path();
        if (frame.kind == MvPageKind::Month && frame.isMain && !path.isEmpty())
            photos.append(path);
    }
    for (Frame &frame : m_frames) {
        if (!frame.isInIndex || !frame.isEmpty)
            continue;
        const QString path = photos.value(frame.place);
        const MvFotoPoolItem *known = m_document.fotoPool().find(path);
        if (!path.isEmpty())
            put(frame, known ? *known : MvFotoPoolItem{path, {}, {}});
    }
}

MvFotoDistribution::Result Distribution::run()
{
    fill([](const Frame &frame) { return frame.kind == MvPageKind::Month && frame.isMain; });
    fillByShape([](const Frame &frame) { return frame.kind == MvPageKind::Cover && !frame.isInIndex; });
    fill([](const Frame &frame) { return frame.kind == MvPageKind::Month; });
    fill([](const Frame &frame) { return frame.kind == MvPageKind::Free; });
    fill([](const Frame &frame) { return frame.kind == MvPageKind::Back && !frame.isInIndex; });
    fillIndexesWithOthers();
    fillIndexes();
    MvFotoDistribution::Result result{m_document, m_placed, 0, {}};
    for (const Frame &frame : std::as_const(m_all))
        result.emptyFrames += m_document.foto(frame.id).isEmpty() ? 1 : 0;
    const QHash<QString, int> uses = m_document.fotoUses();
    for (const QString &path : m_document.fotoPool().paths()) {
        if (!uses.contains(path))
            result.unused.append(path);
    }
    return result;
}

} // namespace

MvFotoDistribution::Result MvFotoDistribution::distribute(const MvCalendarDocument &document)
{
    return Distribution(document, [](int) { return true; }).run();
}

MvFotoDistribution::Result MvFotoDistribution::distribute(const MvCalendarDocument &document, int page)
{
    return Distribution(document, [page](int number) { return number == page; }).run();
}

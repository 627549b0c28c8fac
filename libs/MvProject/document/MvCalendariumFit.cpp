// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendariumFit.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvPaint/MvPaintRecorder.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr double air = 0.86; // numbers may fill this part of a column's width, so that neighbours do not touch
constexpr double step = 0.95;
constexpr int mostSteps = 32;           // to a fifth of the size, which is the floor of every layout
constexpr double largestLinePart = 0.5; // of the room's height

constexpr int mostKept = 32; // fits: more than the calendaria of a calendar have layouts and sizes, with its strip

const QDate longestMonth(2026, 8, 1); // 31 days in six weeks

/// In the longest month, without what makes no difference to numbers: long names of holidays are no reason for smaller
/// ones.
MvCalendariumContentConfig withoutTexts(const MvCalendariumContentConfig &content)
{
    MvCalendariumHolidayConfig empty = content.holidayConfig();
    empty.setFeatures(FEATURE_NONE);
    empty.setFeature(FEATURE_CALENDAR_WEEKS, content.hasFeatures(FEATURE_CALENDAR_WEEKS));
    MvCalendariumContentConfig without = content.moveToDay(longestMonth);
    without.setHolidayConfig(empty);
    return without;
}

/// The first step from this one on that is small enough. The last one is, and what follows a small one. Mostly it is
/// the first, or where nothing helps, the last; so these are tried before those between.
int firstStep(int from, const std::function<bool(int)> &isSmallEnough)
{
    if (from >= mostSteps || isSmallEnough(from))
        return from;
    int tooLarge = from;
    int smallEnough = mostSteps;
    for (int tried = mostSteps - 1; smallEnough - tooLarge > 1; tried = (tooLarge + smallEnough) / 2) {
        if (isSmallEnough(tried))
            smallEnough = tried;
        else
            tooLarge = tried;
    }
    return smallEnough;
}

QList<MvCalendariumFit> &keptFits()
{
    static QList<MvCalendariumFit> fits;
    static const bool isForgetting [[maybe_unused]] = // fonts that come or go change what fits
        (MvFontSupply::whenFontsChange([] { fits.clear(); }), true);
    return fits;
}

} // namespace

MvCalendariumFit::MvCalendariumFit(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content,
                                   const MvSpaceMagnitude &paper, const QSizeF &room, bool withLine,
                                   const MvRenderingSources &sources)
    : m_appearance(appearance)
    , m_content(withoutTexts(content))
    , m_paper(paper)
    , m_room(room)
    , m_mayHaveLine(withLine)
    , m_sources(sources)
{
    if (withLine && !makeRenderer(appearance, 1.0)->rendersMonthInformation()) {
        m_lineAppearance = appearance;
        m_lineAppearance.setLayoutSchemaByID(appearance.layoutSchema().monthLayout());
    }
    m_scale = largestScale();
    m_sources = {nullptr, nullptr, sources.language}; // the others need not outlive this
}

MvCalendariumFit MvCalendariumFit::shared(const MvCalendariumAppearance &appearance,
                                          const MvCalendariumContentConfig &content, const MvSpaceMagnitude &paper,
                                          const QSizeF &room, bool withLine, const MvRenderingSources &sources)
{
    QList<MvCalendariumFit> &kept = keptFits();
    const MvCalendariumContentConfig measured = withoutTexts(content);
    const auto known = std::find_if(kept.begin(), kept.end(), [&](const MvCalendariumFit &fit) {
        return fit.m_room == room && fit.m_mayHaveLine == withLine && fit.m_paper == paper &&
               fit.m_sources.language == sources.language && fit.m_content == measured &&
               fit.m_appearance == appearance;
    });
    if (known != kept.end()) {
        std::rotate(kept.begin(), known, known + 1);
    } else {
        kept.prepend(MvCalendariumFit(appearance, content, paper, room, withLine, sources));
        if (kept.size() > mostKept)
            kept.removeLast();
    }
    return kept.constFirst();
}

/// The first of the steps from 1 downwards that leaves room; the last step when none does. Numbers are asked first,
/// since a trial is a whole pass.
double MvCalendariumFit::largestScale() const
{
    const auto scale = [](int tried) { return std::pow(step, tried); };
    int found = firstStep(0, [&](int tried) { return hasRoom(scale(tried)); });
    if (m_appearance.type().traits().monthsPerPage() == 1) // hasRoom() of year layouts covers everything
        found = firstStep(found, [&](int tried) { return findsNothingUnfitting(scale(tried)); });
    return scale(found);
}

QSizeF MvCalendariumFit::roomBelowLine(double scale) const
{
    return {m_room.width(), m_room.height() - lineHeight(scale)};
}

bool MvCalendariumFit::hasRoom(double scale) const
{
    return makeRenderer(m_appearance, scale)->hasRoom(roomBelowLine(scale));
}

bool MvCalendariumFit::findsNothingUnfitting(double scale) const
{
    const QSizeF room = roomBelowLine(scale);
    MvCalendariumAppearance withoutHeaders = m_appearance; // headers are sized by themselves
    withoutHeaders.setColumnHeaders(QString());
    const Renderer renderer = makeRenderer(withoutHeaders, scale);
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    // strips keep their own distance between numbers, and use more rows where they are narrower
    const double width = m_appearance.type().traits().isStrip ? room.width() : air * room.width();
    renderer->render(painter, {QPointF(), QSizeF(width, room.height())});
    const QList<MvUnfittingText> &unfitting = renderer->unfittingTexts();
    return std::all_of(unfitting.cbegin(), unfitting.cend(),
                       [](const MvUnfittingText &text) { return text.isOfHeads; });
}

double MvCalendariumFit::lineHeight(double scale) const
{
    if (!m_lineAppearance.isValid())
        return 0.0;
    const double height = makeRenderer(m_lineAppearance, scale)->minimumSizeHint().height();
    return std::min(height, largestLinePart * m_room.height());
}

void MvCalendariumFit::apply(MvCalendariumRenderer &renderer, double scale) const
{
    renderer.setProductSize(m_paper);
    renderer.setScale(scale, scale * renderer.appearance().optimizedSize().lengthFactor(m_paper));
}

MvCalendariumFit::Renderer MvCalendariumFit::makeRenderer(const MvCalendariumAppearance &appearance, double scale) const
{
    Renderer made(MvCalendariumRendererFactory::instance().createRenderer(appearance));
    made->setCalendarInformation(m_content, m_content.dayRange());
    made->setSources(m_sources);
    apply(*made, scale);
    return made;
}

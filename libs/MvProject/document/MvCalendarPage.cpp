// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendarPage.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvCalendariumFit.h"
#include "MvProject/MvFotoPainter.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int monthsPerYear = 12;
constexpr double tallestStrip = 0.4;         // of its width: a strip beside a photo lies at the page's foot
constexpr double narrowStrip = 900.0;        // less than that and the days take several rows,
constexpr double tallestNarrowStrip = 450.0; // which need height

/// The range of a page that shows a year: it starts with the page's first month, not with that of the whole calendar.
MvDateRange twelveMonths(const QDate &month)
{
    return {month, month.addMonths(monthsPerYear).addDays(-1)};
}

/// The days that both ranges have in common; those of the year when there are none.
MvDateRange partOf(const MvDateRange &calendar, const MvDateRange &year)
{
    const MvDateRange part(std::max(calendar.start(), year.start()), std::min(calendar.end(), year.end()));
    return calendar.isValid() && part.isValid() ? part : year;
}

MvCalendariumContentConfig monthsAhead(const MvCalendariumContentConfig &content, int months)
{
    return months == 0 ? content : content.moveToDay(content.date().addMonths(months));
}

} // namespace

/// How the calendarium of a page is painted.
struct MvCalendarPage::Pass
{
    const MvRenderingSources &sources;
    Prepare prepare = {};
    double pixelsPerUnit = 0.0; // 0: as the painter is scaled
};

MvCalendarPage::MvCalendarPage(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content)
    : m_appearance(appearance)
    , m_content(content)
{}

void MvCalendarPage::setAppearance(const MvCalendariumAppearance &appearance)
{
    if (!(appearance.layoutSchema() == m_appearance.layoutSchema()))
        m_unknownLayout.clear();
    if (!(appearance.colorSchema() == m_appearance.colorSchema()))
        m_unknownColors.clear();
    m_appearance = appearance;
}

int MvCalendarPage::monthCount() const
{
    return m_appearance.type().traits().monthsPerPage();
}

MvDateRange MvCalendarPage::printedMonths() const
{
    if (!isValid() || !m_appearance.rendererShowsDays())
        return {};
    const QDate first = m_content.moveToDayInMonth(1).date().addMonths(m_appearance.offsetMonth());
    return {first, first.addMonths(monthCount()).addDays(-1)};
}

MvCalendarPage::CalendarWeeks MvCalendarPage::calendarWeeks() const
{
    const auto asking = renderer(m_appearance, {}, {});
    const auto areShownWhen = [this, &asking](bool asked) {
        asking->setCalendarInformation(m_content.withFeature(FEATURE_CALENDAR_WEEKS, asked), {});
        return asking->isConfigured(calendar_render_week_of_year);
    };
    if (areShownWhen(false))
        return CalendarWeeks::Always;
    return areShownWhen(true) ? CalendarWeeks::AsAsked : CalendarWeeks::Never;
}

QRectF MvCalendarPage::calendariumRect(const MvPageFormat &format) const
{
    QRectF rect = format.contentRect();
    if (!m_foto.isValid() || !format.isValid())
        return rect;
    const QRectF foto = m_foto.rect(format);
    const double gap = rect.left(); // the calendarium keeps the distance that it has from the page's edges
    switch (m_foto.placement()) {
    case MvFotoFrame::Placement::Top:
        rect.setTop(foto.bottom() + gap);
        break;
    case MvFotoFrame::Placement::Left:
        rect.setLeft(foto.right() + gap);
        break;
    case MvFotoFrame::Placement::Right:
        rect.setRight(foto.left() - gap);
        break;
    }
    if (m_appearance.type().traits().isStrip) {
        const double tallest = rect.width() < narrowStrip ? tallestNarrowStrip : tallestStrip * rect.width();
        rect.setTop(std::max(rect.top(), rect.bottom() - tallest));
    }
    return rect.isEmpty() ? QRectF() : rect;
}

MvPageFindings MvCalendarPage::paint(QPainter &painter, const MvPageFormat &format, const MvDateRange &documentRange,
                                     const MvRenderingSources &sources) const
{
    paintGround(painter, format);
    paintFoto(painter, format, sources.fotosOrDefault());
    return paintCalendarium(painter, format, documentRange, {sources});
}

void MvCalendarPage::paintGround(QPainter &painter, const MvPageFormat &format) const
{
    const QColor color = m_appearance.cellColor(MvCalendarCellColorKey(
        MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_EMPTY, MvParityLogicEnum::even));
    if (m_appearance.isValid() && m_appearance.isOpaqueColor(color))
        painter.fillRect(format.mediaRect(), color);
}

void MvCalendarPage::paintFoto(QPainter &painter, const MvPageFormat &format, MvFotoSource &fotos) const
{
    if (m_foto.isValid())
        MvFotoPainter(painter, m_foto, fotos).paint(m_foto.rect(format));
}

MvPaintRecording MvCalendarPage::record(const MvPageFormat &format, const MvDateRange &documentRange,
                                        const Prepare &prepare, const MvRenderingRule &rule, double pixelsPerUnit,
                                        const MvRenderingSources &sources, MvPageFindings *findings) const
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    rule.encodeInto(painter);
    const double scale = pixelsPerUnit > 0.0 ? pixelsPerUnit : 1.0;
    const MvPageFindings found = paintCalendarium(painter, format, documentRange, {sources, prepare, scale});
    painter.end();
    if (findings)
        *findings = found;
    return recorder.recording();
}

QList<MvUnfittingText> MvCalendarPage::unfittingTexts(const MvPageFormat &format, const MvDateRange &documentRange,
                                                      const MvRenderingSources &sources) const
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    return paintCalendarium(painter, format, documentRange, {sources}).unfitting;
}

MvPageFindings MvCalendarPage::paintCalendarium(QPainter &painter, const MvPageFormat &format,
                                                const MvDateRange &documentRange, const Pass &pass) const
{
    QRectF rect = calendariumRect(format);
    if (!isValid() || rect.isEmpty())
        return {};
    const MvCalendariumFit fit =
        MvCalendariumFit::shared(m_appearance, m_content, format.magnitude(), rect.size(), pass.sources);
    MvPageFindings found;
    if (fit.lineHeight() > 0.0) {
        const auto line = renderer(fit.lineAppearance(), documentRange, pass.sources);
        fit.apply(*line);
        line->render(painter, {rect.left(), rect.top(), rect.width(), fit.lineHeight()});
        found.unfitting = line->unfittingTexts();
        rect.setTop(rect.top() + fit.lineHeight());
    }
    const auto calendarium = renderer(m_appearance, documentRange, pass.sources);
    fit.apply(*calendarium);
    calendarium->setPixelsPerUnit(pass.pixelsPerUnit);
    if (pass.prepare)
        pass.prepare(*calendarium);
    calendarium->render(painter, rect);
    found.unfitting += calendarium->unfittingTexts();
    found.fotos = calendarium->paintedFotos();
    return found;
}

std::unique_ptr<MvCalendariumRenderer> MvCalendarPage::renderer(const MvCalendariumAppearance &appearance,
                                                                const MvDateRange &documentRange,
                                                                const MvRenderingSources &sources) const
{
    std::unique_ptr<MvCalendariumRenderer> made(MvCalendariumRendererFactory::instance().createRenderer(appearance));
    const MvCalendariumContentConfig content = m_content.moveToDayInMonth(1);
    switch (appearance.type().traits().range) {
    case MvCalendariumTraits::Range::Year:
        made->setCalendarInformation(content, twelveMonths(content.date()));
        break;
    case MvCalendariumTraits::Range::YearWithinCalendar:
        made->setCalendarInformation(monthsAhead(content, appearance.offsetMonth()),
                                     partOf(documentRange, twelveMonths(content.date())));
        break;
    case MvCalendariumTraits::Range::Calendar:
        made->setCalendarInformation(monthsAhead(content, appearance.offsetMonth()), documentRange);
        break;
    }
    made->setSources(sources);
    made->setModelInfo(sources.entriesOrDefault().project());
    return made;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPagePainter.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintMark.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvCalendariumFit.h"
#include "MvProject/MvFotoPainter.h"
#include "MvProject/MvFotoVeil.h"
#include "MvProject/MvPageInks.h"
#include "MvProject/MvPageTextPainter.h"
#include "MvProject/MvVeilField.h"

#include <QPainter>
#include <QSet>

#include <algorithm>

namespace {

constexpr int monthsPerYear = 12;

/// Of what a calendarium's cells have beneath them on a photo: the veil is to be seen through them.
constexpr double cellsOnFoto = 0.5;

constexpr double veilPadding = 0.05; // of its shorter side
constexpr double leastPadding = 10.0;
constexpr double mostPadding = 40.0;

/// What a veil leaves to the calendarium on it: its type does not touch the edge.
QRectF onVeil(const QRectF &veil)
{
    const double padding = std::clamp(veilPadding * std::min(veil.width(), veil.height()), leastPadding, mostPadding);
    return veil.adjusted(padding, padding, -padding, -padding);
}

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

void MvPagePainter::paintGround(QPainter &painter) const
{
    const QColor color = MvPageInks(m_page).ground();
    if (color.isValid() && color.alpha() > 0)
        painter.fillRect(m_format.mediaRect(), color);
}

void MvPagePainter::paintFotos(QPainter &painter, MvFotoSource &fotos) const
{
    MvFotoVeil(m_page, m_format, m_elements, fotos).paintFotos(painter);
}

MvPageFindings MvPagePainter::paintCalendaria(QPainter &painter, const Pass &pass) const
{
    MvPageFindings found;
    if (!m_page.isValid())
        return found;
    const MvFotoVeil veil(m_page, m_format, m_elements, pass.sources.fotosOrDefault());
    const MvPageTextPainter texts(m_page, m_format, m_elements, pass.context);
    const QList<MvVeilField> fields = veilFields(texts);
    for (const MvVeilField &field : fields)
        veil.paint(painter, field);
    const auto standsOnField = [&fields](const MvPageElement &element) {
        return std::any_of(fields.cbegin(), fields.cend(),
                           [&](const MvVeilField &field) { return field.elements.contains(element); });
    };
    for (const MvPageElement &element : m_elements) {
        if (!element.calendarium())
            continue;
        QRectF rect = element.rect();
        if (element.isOnFoto() && !standsOnField(element)) {
            veil.paint(painter, rect, MvPageInks(m_page).of(element));
            rect = onVeil(rect);
        }
        const MvPaintMarking mark(painter, MvPaintMark::Kind::Group, int(&element - m_elements.constData()));
        if (!rect.isEmpty())
            paintCalendarium(painter, element, rect, pass, found);
    }
    for (int number = 0; number < m_elements.size(); ++number) {
        const MvPageElement &element = m_elements[number];
        if (element.text())
            texts.paint(painter, number, element.isOnFoto() && !standsOnField(element) ? &veil : nullptr, found);
    }
    return found;
}

/// Those of what is written at all.
QList<MvVeilField> MvPagePainter::veilFields(const MvPageTextPainter &texts) const
{
    QList<MvPageElement> written = m_elements;
    written.removeIf(
        [&texts](const MvPageElement &element) { return element.text() && texts.lines(*element.text()).isEmpty(); });
    return MvVeilField::of(written, m_format, !m_page.background().foto().isEmpty());
}

/// Years beside a month, and on a back, are counted from the calendar's beginning, as on its cover.
QDate MvPagePainter::beginningOfYear(const MvDateRange &range) const
{
    const QDate month = m_page.contentConfig().date();
    if (range.isValid() && m_page.kind() == MvPageKind::Back)
        return range.start();
    if (!range.isValid() || m_page.kind() != MvPageKind::Month || m_page.monthCount() > 1)
        return month;
    const QDate start = range.start();
    const int months = monthsPerYear * (month.year() - start.year()) + month.month() - start.month();
    return start.addMonths(months - (months % monthsPerYear + monthsPerYear) % monthsPerYear);
}

/// The calendarium's month, and how it is shown.
MvCalendariumContentConfig MvPagePainter::contentOf(const MvCalendariumElement &shown,
                                                    const MvCalendariumAppearance &appearance,
                                                    const MvDateRange &range) const
{
    const bool isYear = appearance.type().traits().range == MvCalendariumTraits::Range::Year;
    const QDate month = isYear ? beginningOfYear(range) : m_page.contentConfig().date();
    return monthsAhead(m_page.contentConfig().moveToDay(month).moveToDayInMonth(1), shown.monthOffset());
}

MvPageContent MvPagePainter::content(const Pass &pass) const
{
    MvPageContent content;
    content.name = MvCalendarTitle::ofPage(m_page, m_page.contentConfig().language());
    content.ground = MvPageInks(m_page).ground();
    content.ink = MvPageInks(m_page).text();
    const MvPageTextPainter texts(m_page, m_format, m_elements, pass.context);
    QSet<QDate> known;
    for (const MvPageElement &element : m_elements) {
        if (element.text()) {
            content.texts += texts.lines(*element.text());
            continue;
        }
        const MvCalendariumElement *shown = element.calendarium();
        if (!shown)
            continue;
        const MvCalendariumAppearance appearance = appearanceOf(*shown, m_page.appearance());
        const auto made =
            renderer(appearance, contentOf(*shown, appearance, pass.context.range), pass.context.range, pass.sources);
        const bool isMonth = appearance.type().traits().range == MvCalendariumTraits::Range::Calendar;
        const QDate first = isMonth ? made->startDate() : made->startDateOfCalendar();
        const QDate end = isMonth ? first : made->endDateOfCalendar();
        for (QDate month = first; month <= end && appearance.type() != CALENDAR_YEAR_ONLY; month = month.addMonths(1)) {
            if (!known.contains(month))
                content.months.append(MvMonthTable::of(*made, month));
            known.insert(month);
        }
    }
    return content;
}

void MvPagePainter::paintCalendarium(QPainter &painter, const MvPageElement &element, QRectF rect, const Pass &pass,
                                     MvPageFindings &found) const
{
    const MvCalendariumElement &shown = *element.calendarium();
    const MvCalendariumAppearance appearance = appearanceOf(shown, m_page.appearance());
    const MvCalendariumContentConfig content = contentOf(shown, appearance, pass.context.range);
    const auto make = [&](const MvCalendariumAppearance &look) {
        auto made = renderer(look, content, pass.context.range, pass.sources);
        if (shown.isOnFoto())
            made->setBackgroundAlpha(cellsOnFoto);
        return made;
    };
    const MvCalendariumFit fit = MvCalendariumFit::shared(appearance, m_page.contentConfig(), m_format.magnitude(),
                                                          rect.size(), shown.hasMonthLine(), pass.sources);
    if (fit.lineHeight() > 0.0) {
        const auto line = make(fit.lineAppearance());
        fit.apply(*line);
        line->render(painter, {rect.left(), rect.top(), rect.width(), fit.lineHeight()});
        found.unfitting += line->unfittingTexts();
        rect.setTop(rect.top() + fit.lineHeight());
    }
    const auto calendarium = make(appearance);
    fit.apply(*calendarium);
    calendarium->setPixelsPerUnit(pass.pixelsPerUnit);
    if (pass.prepare)
        pass.prepare(*calendarium);
    calendarium->render(painter, rect);
    found.unfitting += calendarium->unfittingTexts();
    found.fotos += calendarium->paintedFotos();
}

std::unique_ptr<MvCalendariumRenderer> MvPagePainter::renderer(const MvCalendariumAppearance &appearance,
                                                               const MvCalendariumContentConfig &content,
                                                               const MvDateRange &documentRange,
                                                               const MvRenderingSources &sources)
{
    std::unique_ptr<MvCalendariumRenderer> made(MvCalendariumRendererFactory::instance().createRenderer(appearance));
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

MvCalendariumAppearance MvPagePainter::appearanceOf(const MvCalendariumElement &element,
                                                    const MvCalendariumAppearance &page)
{
    if (element.layout().isEmpty() || element.layout() == page.layoutSchema().ID().toString())
        return page;
    MvCalendariumAppearance appearance = page;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(element.layout()));
    if (!appearance.layoutSchema().isValid())
        return page;
    appearance.adoptLayoutSuggestions();
    // the page's grid is on for the lines of its own layout; one without lines would be given all of them
    if (appearance.layoutSchema().allCellsHaveNoBorder() && !page.layoutSchema().allCellsHaveNoBorder()) {
        MvBorderConfig grid = appearance.gridConfig();
        grid.setIsEnabled(false);
        appearance.setGridConfig(grid);
    }
    return appearance;
}

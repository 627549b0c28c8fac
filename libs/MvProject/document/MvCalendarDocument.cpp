// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendarDocument.h"

#include "MvProductBase/MvCalendariumHolidayConfigDefault.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvPageSource.h"

#include <QPainter>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsPerYear = 12;

MvPageFormat a4Landscape()
{
    MvPageFormat format = MvPageFormat::fromName(u"A4"_s);
    format.setOrientation(MvPageFormat::Orientation::Landscape);
    return format;
}

/// From one month to the other; negative when the second is earlier.
int monthsTo(const QDate &from, const QDate &to)
{
    return (to.year() - from.year()) * monthsPerYear + to.month() - from.month();
}

QDate monthOf(const MvCalendarPage &page)
{
    return page.contentConfig().moveToDayInMonth(1).date();
}

MvCalendarPage movedTo(const QDate &month, const MvCalendarPage &page)
{
    MvCalendarPage moved = page;
    moved.setContentConfig(page.contentConfig().moveToDay(month));
    return moved;
}

} // namespace

MvCalendarDocument::MvCalendarDocument()
    : m_format(a4Landscape())
{
    m_look.setContentConfig({QDate(), MvCalendariumHolidayConfigDefault::instance().defaultConfig()});
    setRange(MvDateRange::createDefaultCalendarDateRange());
}

void MvCalendarDocument::setAppearance(const MvCalendariumAppearance &appearance)
{
    const int monthsBefore = monthsPerPage();
    m_look.setAppearance(appearance);
    for (MvCalendarPage &page : m_pages)
        page.setAppearance(appearance);
    if (look().monthCount() != monthsBefore)
        divide(m_range, look().monthCount());
}

void MvCalendarDocument::setHolidayConfig(const MvCalendariumHolidayConfig &config)
{
    m_look.setHolidayConfig(config);
    for (MvCalendarPage &page : m_pages)
        page.setHolidayConfig(config);
}

void MvCalendarDocument::setFeature(const MvCalendariumFeatures &feature, bool on)
{
    m_look.setFeature(feature, on);
    for (MvCalendarPage &page : m_pages)
        page.setFeature(feature, on);
}

void MvCalendarDocument::setRange(const MvDateRange &range)
{
    if (range != m_range)
        divide(range, monthsPerPage());
}

void MvCalendarDocument::setPage(int page, const MvCalendarPage &content)
{
    if (page < 0 || page >= m_pages.size())
        return;
    const int monthsBefore = monthsPerPage();
    m_pages[page] = movedTo(monthOf(m_pages[page]), content);
    if (m_pages.size() == 1 && content.monthCount() != monthsBefore)
        divide(m_range, content.monthCount());
}

QList<QDate> MvCalendarDocument::pageDates() const
{
    QList<QDate> dates;
    for (const MvCalendarPage &page : m_pages)
        dates.append(monthOf(page));
    return dates;
}

void MvCalendarDocument::setPages(const MvDateRange &range, const QList<MvCalendarPage> &pages)
{
    if (pages.isEmpty())
        return;
    m_pages = pages;
    MvDateRange whole = range;
    if (!whole.isValid()) {
        const QDate last = monthOf(pages.constLast()).addMonths(monthsPerPage());
        whole = {monthOf(pages.constFirst()), last.addDays(-1)};
    }
    divide(whole, monthsPerPage());
}

/// The distance of the pages: a page of a year among those of months does not count.
int MvCalendarDocument::monthsPerPage() const
{
    if (m_pages.size() < 2)
        return look().monthCount();
    return monthsTo(monthOf(m_pages[0]), monthOf(m_pages[1])) == monthsPerYear ? monthsPerYear : 1;
}

const MvCalendarPage &MvCalendarDocument::nearestPage(const QDate &month, const QList<MvCalendarPage> &pages) const
{
    const MvCalendarPage *nearest = &m_look;
    int distance = -1;
    for (const MvCalendarPage &page : pages) {
        const int pageDistance = std::abs(monthsTo(monthOf(page), month));
        if (distance < 0 || pageDistance < distance) {
            nearest = &page;
            distance = pageDistance;
        }
    }
    return *nearest;
}

void MvCalendarDocument::divide(const MvDateRange &range, int monthsPerPage)
{
    if (!m_pages.isEmpty()) {
        m_look = m_pages.constFirst();
        m_look.setFotoFrame({});
    }
    const QList<MvCalendarPage> before = std::exchange(m_pages, {});
    for (const MvCalendarPage &page : before) {
        if (page.fotoFrame().isValid())
            m_spareFotos.insert(monthOf(page), page.fotoFrame());
    }
    m_range = range;
    for (int number = 0; number < range.monthCount(); number += monthsPerPage) {
        const QDate month = range.monthAt(number);
        MvCalendarPage page = movedTo(month, nearestPage(month, before));
        page.setFotoFrame(m_spareFotos.take(month));
        m_pages.append(page);
    }
}

bool MvCalendarDocument::isValid() const
{
    if (!m_format.isValid() || !m_range.isValid() || m_pages.isEmpty())
        return false;
    return std::all_of(m_pages.cbegin(), m_pages.cend(), [](const MvCalendarPage &page) { return page.isValid(); });
}

MvPageFindings MvCalendarDocument::paint(QPainter &painter, int page, const MvRenderingSources &sources) const
{
    if (!isValid() || page < 0 || page >= m_pages.size())
        return {};
    return m_pages[page].paint(painter, m_format, m_range, sources);
}

bool MvCalendarDocument::lacksLeapDay() const
{
    bool hasFebruary = false;
    for (const MvCalendarPage &page : m_pages) {
        const MvDateRange months = page.printedMonths();
        if (!months.isValid() || !page.contentConfig().hasFeatures(FEATURE_ENTRIES))
            continue;
        for (int year = months.start().year(); year <= months.end().year(); ++year) {
            const QDate march(year, 3, 1);
            if (!months.contains(march.addDays(-1)))
                continue;
            if (QDate::isLeapYear(year))
                return false;
            hasFebruary = true;
        }
    }
    return hasFebruary;
}

QList<MvUnfittingText> MvCalendarDocument::unfittingTexts(int page, const MvRenderingSources &sources) const
{
    if (!isValid() || page < 0 || page >= m_pages.size())
        return {};
    return m_pages[page].unfittingTexts(m_format, m_range, sources);
}

QStringList MvCalendarDocument::missingFotos() const
{
    QStringList paths;
    for (const MvCalendarPage &page : m_pages) {
        if (!paths.contains(page.fotoFrame().path()) && page.fotoFrame().isMissing())
            paths.append(page.fotoFrame().path());
    }
    return paths;
}

MvPageSource MvCalendarDocument::pageSource(const MvRenderingSources &sources, const Found &found) const
{
    MvPageSource source;
    source.format = m_format;
    source.pages = isValid() ? pageDates() : QList<QDate>();
    source.paint = [document = *this, sources, found](QPainter &painter, int page) {
        const MvPageFindings findings = document.paint(painter, page, sources);
        if (found)
            found(page, findings);
    };
    source.title = m_title.isEmpty() ? MvCalendarTitle::ofRange(m_range) : m_title;
    source.author = m_author;
    if (const MvLocale language = holidayConfig().language(); language.isValid())
        source.language = language.name().replace(u'_', u'-');
    return source;
}

bool MvCalendarDocument::operator==(const MvCalendarDocument &other) const
{
    return m_range == other.m_range && m_format == other.m_format && m_title == other.m_title &&
           m_author == other.m_author && m_pages == other.m_pages && m_spareFotos == other.m_spareFotos &&
           look() == other.look();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendarDocument.h"

#include "MvProductBase/MvCalendariumHolidayConfigDefault.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvExportFotos.h"
#include "MvProject/MvFotoAim.h"
#include "MvProject/MvPagePainter.h"
#include "MvProject/MvPageSource.h"

#include <QPainter>

#include <cstdlib>
#include <memory>

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

bool isMonth(const MvCalendarPage &page)
{
    return page.kind() == MvPageKind::Month;
}

/// What is on a page, without its look.
MvCalendarPage contentOf(const MvCalendarPage &page)
{
    return page.withLookOf({});
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

void MvCalendarDocument::setEntryDisplay(const MvEntryDisplay &display)
{
    const auto set = [&display](MvCalendarPage &page) {
        MvCalendariumContentConfig content = page.contentConfig();
        content.setEntryDisplay(display);
        page.setContentConfig(content);
    };
    set(m_look);
    for (MvCalendarPage &page : m_pages)
        set(page);
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

void MvCalendarDocument::setFormat(const MvPageFormat &format)
{
    const MvCalendarDocument unchanged = *this;
    const MvPageFormat before = std::exchange(m_format, format);
    for (MvCalendarPage &page : m_pages)
        page.setFormat(before, format);
    for (MvCalendarPage &page : m_sparePages)
        page.setFormat(before, format);
    m_look.setFormat(before, format);
    *this = MvFotoAim::followed(unchanged, *this);
}

void MvCalendarDocument::setPage(int page, const MvCalendarPage &content)
{
    if (page < 0 || page >= m_pages.size())
        return;
    const int monthsBefore = monthsPerPage();
    const MvCalendarPage before = m_pages[page];
    m_pages[page] =
        before.kind() == MvPageKind::Free && content.isValid() ? content : movedTo(monthOf(before), content);
    m_pages[page].setKind(before.kind());
    if (isMonth(before) && monthPages().size() == 1 && content.monthCount() != monthsBefore)
        divide(m_range, content.monthCount());
}

bool MvCalendarDocument::isMonthPage(int page) const
{
    return page >= 0 && page < m_pages.size() && isMonth(m_pages[page]);
}

bool MvCalendarDocument::isFacingMonth(int page) const
{
    return page > 0 && isMonthPage(page) && m_pages[page - 1].kind() == MvPageKind::Free &&
           monthOf(m_pages[page - 1]) == monthOf(m_pages[page]);
}

QRectF MvCalendarDocument::bindingRect(int page) const
{
    return turned(m_format.bindingRect(), page);
}

QRectF MvCalendarDocument::safeRect(int page) const
{
    return turned(m_format.safeRect(), page);
}

QRectF MvCalendarDocument::turned(const QRectF &rect, int page) const
{
    const bool hangsAbove = m_format.binding() == MvPageFormat::Binding::Top && isFacingMonth(page + 1);
    return hangsAbove ? QRectF(QPointF(rect.left(), m_format.trimSize().height() - rect.bottom()), rect.size()) : rect;
}

int MvCalendarDocument::insertPage(int before, const MvCalendarPage &page)
{
    MvCalendarPage inserted = page;
    if (isMonth(page))
        inserted.setKind(MvPageKind::Free);
    if (!inserted.appearance().isValid())
        inserted.setAppearance(appearance());
    const int place = placeFor(inserted.kind(), before < 0 ? int(m_pages.size()) : before);
    if (!inserted.contentConfig().isValid()) {
        const MvCalendarPage &neighbour = place > 0 ? m_pages[place - 1] : look();
        inserted.setContentConfig(neighbour.contentConfig());
    }
    m_pages.insert(place, dated(inserted));
    return place;
}

bool MvCalendarDocument::removePage(int page)
{
    if (page < 0 || page >= m_pages.size() || isMonth(m_pages[page]))
        return false;
    m_pages.removeAt(page);
    return true;
}

bool MvCalendarDocument::movePage(int from, int to)
{
    if (from < 0 || from >= m_pages.size() || isMonth(m_pages[from]) || to < 0 || to >= m_pages.size())
        return false;
    const MvCalendarPage moved = m_pages.takeAt(from);
    const bool canGo = placeFor(moved.kind(), to) == to;
    m_pages.insert(canGo ? to : from, moved);
    return canGo && from != to;
}

int MvCalendarDocument::duplicatePage(int page)
{
    if (page < 0 || page >= m_pages.size())
        return -1;
    MvCalendarPage copy = m_pages[page];
    copy.setKind(MvPageKind::Free);
    return insertPage(page + 1, copy);
}

QList<QDate> MvCalendarDocument::pageDates() const
{
    QList<QDate> dates;
    for (const MvCalendarPage &page : m_pages)
        dates.append(monthOf(page));
    return dates;
}

bool MvCalendarDocument::swapFotos(const FrameId &first, const FrameId &second)
{
    if (!isFrame(first) || !isFrame(second))
        return false;
    const MvFotoElement one = foto(first);
    const MvFotoElement other = foto(second);
    setFoto(first, one.withPictureOf(other));
    setFoto(second, other.withPictureOf(one));
    return true;
}

QList<MvCalendarDocument::FrameId> MvCalendarDocument::frames() const
{
    QList<FrameId> frames;
    for (int page = 0; page < m_pages.size(); ++page) {
        const QList<MvPageElement> elements = m_pages[page].elementsOn(m_format);
        for (int element = 0; element < elements.size(); ++element) {
            if (elements[element].foto())
                frames.append({page, element});
        }
    }
    return frames;
}

MvFotoElement MvCalendarDocument::foto(const FrameId &frame) const
{
    if (frame.page < 0 || frame.page >= m_pages.size())
        return {};
    const MvPageElement element = m_pages[frame.page].elementsOn(m_format).value(frame.element);
    return element.foto() ? *element.foto() : MvFotoElement();
}

bool MvCalendarDocument::setFoto(const FrameId &frame, const MvFotoElement &foto)
{
    return isFrame(frame) && m_pages[frame.page].setFoto(frame.element, foto);
}

bool MvCalendarDocument::isFrame(const FrameId &frame) const
{
    return frame.page >= 0 && frame.page < m_pages.size() &&
           !m_pages[frame.page].frameSize(frame.element, m_format).isEmpty();
}

QHash<QString, int> MvCalendarDocument::fotoUses() const
{
    QHash<QString, int> uses;
    const auto count = [&uses](const MvFotoElement &foto) {
        if (!foto.isEmpty())
            ++uses[foto.path()];
    };
    for (const FrameId &frame : frames())
        count(foto(frame));
    for (const MvCalendarPage &page : m_pages)
        count(page.background().foto());
    return uses;
}

bool MvCalendarDocument::replaceFoto(const QString &path, const QString &by)
{
    bool isFound = false;
    for (MvCalendarPage &page : m_pages)
        isFound |= page.replaceFoto(path, by);
    for (MvCalendarPage &page : m_sparePages)
        isFound |= page.replaceFoto(path, by);
    if (const MvFotoPoolItem *known = m_fotoPool.find(path)) {
        MvFotoPoolItem item = *known;
        item.path = MvFotoElement(by).path();
        isFound |= m_fotoPool.replace(path, item) || m_fotoPool.remove(path);
    }
    return isFound;
}

void MvCalendarDocument::setPages(const MvDateRange &range, const QList<MvCalendarPage> &pages)
{
    if (pages.isEmpty())
        return;
    m_pages = pages;
    MvDateRange whole = range;
    const QList<MvCalendarPage> months = monthPages();
    if (!whole.isValid() && !months.isEmpty()) {
        const QDate last = monthOf(months.constLast()).addMonths(monthsPerPage());
        whole = {monthOf(months.constFirst()), last.addDays(-1)};
    }
    divide(whole, monthsPerPage());
}

void MvCalendarDocument::setSparePages(const QMap<QDate, MvCalendarPage> &pages)
{
    m_sparePages.clear();
    for (const auto &[month, page] : pages.asKeyValueRange())
        m_sparePages.insert(month, contentOf(page));
}

QMap<QDate, MvFotoFrame> MvCalendarDocument::spareFotos() const
{
    QMap<QDate, MvFotoFrame> fotos;
    for (const auto &[month, page] : m_sparePages.asKeyValueRange()) {
        if (page.isSimple() && page.fotoFrame().isValid())
            fotos.insert(month, page.fotoFrame());
    }
    return fotos;
}

void MvCalendarDocument::setSpareFotos(const QMap<QDate, MvFotoFrame> &fotos)
{
    m_sparePages.removeIf([](const auto &spare) { return spare.value().isSimple(); });
    for (const auto &[month, foto] : fotos.asKeyValueRange()) {
        MvCalendarPage page;
        page.setFotoFrame(foto);
        m_sparePages.insert(month, page);
    }
}

const MvCalendarPage &MvCalendarDocument::look() const
{
    const auto first = std::find_if(m_pages.cbegin(), m_pages.cend(), isMonth);
    return first == m_pages.cend() ? m_look : *first;
}

QList<MvCalendarPage> MvCalendarDocument::monthPages() const
{
    QList<MvCalendarPage> months;
    std::copy_if(m_pages.cbegin(), m_pages.cend(), std::back_inserter(months), isMonth);
    return months;
}

/// The place nearest to the wanted one where a page of the kind may go: covers come first, backs last.
int MvCalendarDocument::placeFor(MvPageKind kind, int wanted) const
{
    const auto is = [](MvPageKind asked) {
        return [asked](const MvCalendarPage &page) { return page.kind() == asked; };
    };
    const int covers = int(std::count_if(m_pages.cbegin(), m_pages.cend(), is(MvPageKind::Cover)));
    const int backs = int(std::count_if(m_pages.cbegin(), m_pages.cend(), is(MvPageKind::Back)));
    const int count = int(m_pages.size());
    if (kind == MvPageKind::Cover)
        return std::clamp(wanted, 0, covers);
    if (kind == MvPageKind::Back)
        return std::clamp(wanted, count - backs, count);
    return std::clamp(wanted, covers, count - backs);
}

/// A cover with the calendar's first month, a back with its last.
MvCalendarPage MvCalendarDocument::dated(const MvCalendarPage &page) const
{
    if (!m_range.isValid())
        return page;
    if (page.kind() == MvPageKind::Cover)
        return movedTo(m_range.monthAt(0), page);
    return page.kind() == MvPageKind::Back ? movedTo(m_range.monthAt(m_range.monthCount() - 1), page) : page;
}

/// The distance of the pages: a page of a year among those of months does not count.
int MvCalendarDocument::monthsPerPage() const
{
    const QList<MvCalendarPage> months = monthPages();
    if (months.size() < 2)
        return look().monthCount();
    return monthsTo(monthOf(months[0]), monthOf(months[1])) == monthsPerYear ? monthsPerYear : 1;
}

MvCalendarPage MvCalendarDocument::nearestPage(const QDate &month, const QList<MvCalendarPage> &months) const
{
    const MvCalendarPage *nearest = &m_look;
    int distance = -1;
    for (const MvCalendarPage &page : months) {
        const int pageDistance = std::abs(monthsTo(monthOf(page), month));
        if (distance < 0 || pageDistance < distance) {
            nearest = &page;
            distance = pageDistance;
        }
    }
    return distance == 0 ? *nearest : movedTo(month, nearest->withoutOwnContent(m_format));
}

void MvCalendarDocument::divide(const MvDateRange &range, int monthsPerPage)
{
    const QList<MvCalendarPage> months = monthPages();
    const QList<MvCalendarPage> before = std::exchange(m_pages, {});
    if (!months.isEmpty())
        m_look = months.constFirst().withoutOwnContent(m_format);
    for (const MvCalendarPage &page : months) {
        if (page.hasOwnContent(m_format))
            m_sparePages.insert(monthOf(page), contentOf(page));
    }
    m_range = range;
    for (int number = 0; number < range.monthCount(); number += monthsPerPage) {
        const QDate month = range.monthAt(number);
        MvCalendarPage page = nearestPage(month, months);
        page.setKind(MvPageKind::Month);
        if (m_sparePages.contains(month))
            page = m_sparePages.take(month).withLookOf(page);
        m_pages.append(page);
    }
    putBack(before);
}

/// The pages that are no month's: free ones behind the month that they followed, or the nearest one before it.
void MvCalendarDocument::putBack(const QList<MvCalendarPage> &before)
{
    QDate followed;
    for (const MvCalendarPage &page : before) {
        if (isMonth(page)) {
            followed = monthOf(page);
            continue;
        }
        int place = page.kind() == MvPageKind::Back ? int(m_pages.size()) : 0;
        if (page.kind() == MvPageKind::Cover) {
            place = placeFor(page.kind(), int(m_pages.size()));
        } else if (page.kind() == MvPageKind::Free) {
            const auto isBefore = [&followed](const MvCalendarPage &other) {
                return other.kind() != MvPageKind::Back &&
                       (!isMonth(other) || (followed.isValid() && monthOf(other) <= followed));
            };
            while (place < m_pages.size() && isBefore(m_pages[place]))
                ++place;
        }
        m_pages.insert(place, dated(page));
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
    return m_pages[page].paint(painter, m_format, context(), sources);
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
    return m_pages[page].unfittingTexts(m_format, context(), sources);
}

QStringList MvCalendarDocument::missingFotos() const
{
    QStringList paths;
    for (const MvCalendarPage &page : m_pages) {
        for (const QString &path : page.fotoPaths()) {
            if (!paths.contains(path) && MvFotoElement(path).isMissing())
                paths.append(path);
        }
    }
    return paths;
}

MvPageSource MvCalendarDocument::pageSource(const MvRenderingSources &sources, const Found &found) const
{
    MvPageSource source;
    source.format = m_format;
    const MvLocale language = holidayConfig().language();
    if (isValid()) {
        source.pages = pageDates();
        std::transform(m_pages.cbegin(), m_pages.cend(), std::back_inserter(source.kinds),
                       [](const MvCalendarPage &page) { return page.kind(); });
        std::transform(m_pages.cbegin(), m_pages.cend(), std::back_inserter(source.names),
                       [&language](const MvCalendarPage &page) { return MvCalendarTitle::ofPage(page, language); });
        for (int page = 0; page < m_pages.size(); ++page)
            source.bindings.append(bindingRect(page));
    }
    const auto own = std::make_shared<MvExportFotos>(m_pages, m_format);
    source.paint = [document = *this, sources, found, own](QPainter &painter, int page) {
        MvRenderingSources given = sources;
        if (!given.fotos)
            given.fotos = own.get();
        own->begin(painter, page);
        const MvPageFindings findings = document.paint(painter, page, given);
        own->end(page);
        if (found)
            found(page, findings);
    };
    source.content = [document = *this, sources](int page) {
        return MvPagePainter(document.m_pages[page], document.m_format).content({document.context(), sources});
    };
    source.missingFotos = [own] { return own->unread(); };
    source.title = m_title.isEmpty() ? MvCalendarTitle::ofRange(m_range, language) : m_title;
    source.author = m_author;
    if (language.isValid()) {
        source.language = language.name().replace(u'_', u'-');
        source.region = holidayConfig().province().isEmpty() ? language.country() : holidayConfig().province();
    }
    return source;
}

bool MvCalendarDocument::operator==(const MvCalendarDocument &other) const
{
    return m_range == other.m_range && m_format == other.m_format && m_title == other.m_title &&
           m_author == other.m_author && m_entriesFile == other.m_entriesFile && m_themeId == other.m_themeId &&
           m_pages == other.m_pages && m_sparePages == other.m_sparePages && m_fotoPool == other.m_fotoPool &&
           look() == other.look();
}

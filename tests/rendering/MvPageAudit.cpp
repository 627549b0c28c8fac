// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageAudit.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Item = MvPaintRecording::Item;

constexpr double hair = 0.5;      // page units that nobody sees
constexpr double tolerance = 1.0; // a tenth of a millimetre

/// Between two texts on one line, in sizes of their type: more than there is between letters. A blank is some 0.25.
double leastGap(const QFont &font)
{
    return font.family() == u"MvBox"_s ? 0.17 : 0.1;
}

QString trimmedNumber(const QString &text)
{
    QString number = text.trimmed();
    while (number.size() > 1 && number.startsWith(u'0'))
        number.remove(0, 1);
    if (number.endsWith(u'.'))
        number.chop(1);
    return number;
}

QString describe(const QRectF &rect)
{
    return u"%1,%2 %3x%4"_s.arg(rect.x(), 0, 'f', 1)
        .arg(rect.y(), 0, 'f', 1)
        .arg(rect.width(), 0, 'f', 1)
        .arg(rect.height(), 0, 'f', 1);
}

QString describe(const Item &item)
{
    const QString what = item.kind == Item::Text ? u"\"%1\""_s.arg(item.text) : u"shape"_s;
    return what + u" at "_s + describe(item.bounds);
}

/// Asked a million times: cheaper than what QRectF does for rectangles of any sign.
bool overlap(const QRectF &a, const QRectF &b, double allowed)
{
    return std::min(a.right(), b.right()) - std::max(a.left(), b.left()) > allowed &&
           std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top()) > allowed;
}

bool holds(const QRectF &region, const Item &item)
{
    const QPointF center = item.bounds.center();
    return center.x() >= region.left() && center.x() <= region.right() && center.y() >= region.top() &&
           center.y() <= region.bottom();
}

/// Of lines, too, which have no height or no width.
bool isWithin(const QRectF &outer, const QRectF &inner, double allowed)
{
    return inner.left() >= outer.left() - allowed && inner.right() <= outer.right() + allowed &&
           inner.top() >= outer.top() - allowed && inner.bottom() <= outer.bottom() + allowed;
}

bool isCut(const Item &text)
{
    return !text.clip.isNull() && !isWithin(text.clip, text.bounds, hair);
}

} // namespace

QString MvPageAudit::name(Kind kind)
{
    static const QStringList names{u"leaves the calendarium"_s, u"cut by its cell"_s,     u"texts meet"_s,
                                   u"texts run on"_s,           u"line through text"_s,   u"photo on text"_s,
                                   u"type too small"_s,         u"negative size"_s,       u"cells overlap"_s,
                                   u"day not once"_s,           u"missing, unreported"_s, u"reported, though whole"_s};
    return names.at(kind);
}

QString MvPageAudit::essence(const QString &text)
{
    QString left;
    for (const QChar c : text) {
        const bool isBreak = c.isSpace() || c == u'-' || c == u',' || c == QChar(0x00AD) || c == QChar(0x2010) ||
                             c == QChar(0x2011) || c.category() == QChar::Other_Format;
        if (!isBreak)
            left += c;
    }
    return left;
}

QList<MvPageAudit::Fault> MvPageAudit::faults(const MvPrintedPage &page)
{
    return MvPageAudit(page).m_faults;
}

MvPageAudit::MvPageAudit(const MvPrintedPage &page)
    : m_page(page)
    , m_rect(page.page().calendariumRect(page.format()))
{
    for (const Item &item : page.items) {
        if (item.kind == Item::Text && !item.bounds.isEmpty())
            m_texts.append(item);
    }
    findDays();
    checkPlaces();
    checkPairs();
    checkLines();
    checkType();
    checkCells();
    checkDays();
    checkDayTexts();
    checkWords();
    checkHeads();
    checkReports();
}

// ---- ink

void MvPageAudit::checkPlaces()
{
    for (const Item &item : m_page.items) {
        const double pen = item.stroke.isValid() ? item.strokeWidth : 0.0;
        if (!isWithin(m_rect, item.bounds, tolerance + pen))
            add(LeavesElement, describe(item) + u", beyond "_s + describe(m_rect));
        if (item.kind == Item::Text && isCut(item))
            add(LeavesCell, describe(item) + u", clip "_s + describe(item.clip));
    }
}

void MvPageAudit::checkPairs()
{
    QList<Item> sorted = m_texts;
    for (const Item &item : m_page.items) {
        if (item.kind == Item::Image)
            sorted.append(item);
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const Item &a, const Item &b) { return a.bounds.top() < b.bounds.top(); });
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        for (qsizetype j = i + 1; j < sorted.size() && sorted.at(j).bounds.top() < sorted.at(i).bounds.bottom(); ++j)
            checkPair(sorted.at(i), sorted.at(j));
    }
}

void MvPageAudit::checkPair(const Item &a, const Item &b)
{
    if (a.kind == Item::Image || b.kind == Item::Image) {
        const Item &text = a.kind == Item::Text ? a : b;
        const Item &image = a.kind == Item::Text ? b : a;
        const QRectF covered = image.bounds.adjusted(hair, hair, -hair, -hair);
        if (text.kind == Item::Text && overlap(text.bounds, covered, 0.0) && text.shape.intersects(covered))
            add(FotoOnText, describe(text));
        return;
    }
    if (overlap(a.bounds, b.bounds, hair)) {
        if (a.shape.intersects(b.shape))
            add(TextsMeet, describe(a) + u" and "_s + describe(b));
        return;
    }
    const Item &left = a.bounds.left() < b.bounds.left() ? a : b;
    const Item &right = &left == &a ? b : a;
    const QFont &font = a.font.pixelSize() < b.font.pixelSize() ? a.font : b.font;
    const bool isOneText = m_page.page().appearance().type() == CALENDAR_HOLIDAYS || left.text.back().isSpace() ||
                           right.text.front().isSpace() || right.text.front() == u',';
    if (qAbs(a.baseline.y() - b.baseline.y()) < tolerance && !isOneText &&
        right.bounds.left() - left.bounds.right() < leastGap(font) * font.pixelSize())
        add(TextsRunOn, describe(left) + u" and "_s + describe(right));
}

void MvPageAudit::checkLines()
{
    for (const Item &line : m_page.items) {
        if (line.kind != Item::Line || !line.stroke.isValid())
            continue;
        const QRectF middle = line.bounds.adjusted(-hair / 2.0, -hair / 2.0, hair / 2.0, hair / 2.0);
        for (const Item &text : std::as_const(m_texts)) {
            if (overlap(middle, text.bounds, 0.0) && text.shape.intersects(middle))
                add(LineThrough, describe(text) + u", line "_s + describe(line.bounds));
        }
    }
}

void MvPageAudit::checkType()
{
    for (const Item &item : std::as_const(m_texts)) {
        const double floor = isOfDay(item) ? m_page.textFloor : m_page.headFloor;
        if (item.font.pixelSize() < floor - tolerance)
            add(TypeTooSmall, describe(item) + u", %1 pixels under %2"_s.arg(item.font.pixelSize()).arg(floor));
    }
}

/// Whether it is one of the day's texts, or a part of it.
bool MvPageAudit::isOfDay(const Item &item) const
{
    const QString text = essence(item.text).remove(u'…');
    return std::any_of(m_days.cbegin(), m_days.cend(), [&](const Day &day) {
        return holds(day.region, item) && !day.texts.isEmpty() && essence(day.texts.join(QString())).contains(text);
    });
}

// ---- cells

void MvPageAudit::checkCells()
{
    for (const Item &item : m_page.items) {
        if (item.kind == Item::Line && (item.line.dx() < 0.0 || item.line.dy() < 0.0))
            add(NegativeSize, u"line at "_s + describe(item.bounds));
        if (!item.fill.isValid() || (item.kind != Item::Path && item.kind != Item::Rect))
            continue;
        const QList<QPolygonF> cells = item.shape.toSubpathPolygons();
        QList<QRectF> rects;
        for (const QPolygonF &cell : cells) {
            rects.append(cell.boundingRect());
            if (cell.size() > 2 && (cell.at(1).x() < cell.at(0).x() || cell.at(2).y() < cell.at(1).y()))
                add(NegativeSize, u"ground at "_s + describe(rects.constLast()));
        }
        for (qsizetype i = 0; i < rects.size(); ++i) {
            for (qsizetype j = i + 1; j < rects.size(); ++j) {
                if (overlap(rects.at(i), rects.at(j), tolerance))
                    add(CellsOverlap, u"grounds at "_s + describe(rects.at(i)) + u" and "_s + describe(rects.at(j)));
            }
        }
    }
}

void MvPageAudit::checkDays()
{
    QSet<QDate> dates;
    for (qsizetype i = 0; i < m_page.days.size(); ++i) {
        const MvPrintedPage::Day &day = m_page.days.at(i);
        const QString what = day.date.toString(Qt::ISODate) + u" at "_s + describe(day.rect);
        if (!(day.rect.width() > 0.0) || !(day.rect.height() > 0.0))
            add(NegativeSize, what);
        else if (!isWithin(m_rect, day.rect, hair))
            add(LeavesElement, what);
        if (dates.contains(day.date))
            add(DayNotOnce, what + u" again"_s);
        dates.insert(day.date);
        for (qsizetype j = i + 1; j < m_page.days.size(); ++j) {
            if (overlap(day.rect, m_page.days.at(j).rect, hair))
                add(CellsOverlap, what + u" and "_s + describe(m_page.days.at(j).rect));
        }
    }
    if (!m_page.showsDays)
        return;
    const QDate first = m_page.choice().month;
    const auto expected = first.daysTo(first.addMonths(m_page.page().monthCount()));
    if (dates.size() != expected)
        add(DayNotOnce, u"%1 of %2 days"_s.arg(dates.size()).arg(expected));
}

// ---- what can be read, and what is reported

/// What is in the cell of each day. In lists the number stands before the cell of the texts.
void MvPageAudit::findDays()
{
    const bool isList = m_page.page().appearance().type() == CALENDAR_ONE_DAY_PER_ROW;
    for (const MvPrintedPage::Day &day : m_page.days) {
        const QRectF row(m_rect.left(), day.rect.top(), m_rect.width(), day.rect.height());
        m_days.append({day.date, day.rect, isList ? row : day.rect, m_page.dayTexts.value(day.date), {}, false});
    }
    for (const Item &item : m_page.items) {
        if (item.kind != Item::Image && item.kind != Item::Text)
            continue;
        for (Day &day : m_days) {
            if (!holds(day.region, item))
                continue;
            if (holds(day.cell, item) && !isWithin(day.cell, item.bounds, tolerance))
                add(LeavesCell, describe(item) + u", of "_s + describe(day.cell));
            if (item.kind == Item::Image)
                day.hasPhoto = true;
            else if (!isCut(item))
                day.read.append(essence(item.text));
        }
    }
}

/// Everything whole in there, in the order of painting, which is that of reading.
QString MvPageAudit::textIn(const QRectF &region) const
{
    QString all;
    for (const Item &item : m_texts) {
        if (holds(region, item) && !isCut(item))
            all += essence(item.text);
    }
    return all;
}

bool MvPageAudit::hasItem(const QRectF &region, const QString &text) const
{
    return std::any_of(m_texts.cbegin(), m_texts.cend(), [&](const Item &item) {
        return holds(region, item) && !isCut(item) && trimmedNumber(item.text) == trimmedNumber(text);
    });
}

bool MvPageAudit::isReported(const QDate &date, const QString &text) const
{
    const bool isOfDay = date.isValid() && m_page.showsDays; // its texts are reported one by one
    return std::any_of(m_page.unfitting.cbegin(), m_page.unfitting.cend(), [&](const MvUnfittingText &report) {
        if (!report.missingGlyphs.isEmpty())
            return false;
        if (isOfDay)
            return report.date == date && essence(report.text) == essence(text);
        return essence(report.text).contains(essence(text));
    });
}

void MvPageAudit::checkDayTexts()
{
    for (const Day &day : std::as_const(m_days)) {
        const QString number = QString::number(day.date.day());
        const auto isNumber = [&number](const QString &text) { return trimmedNumber(text) == number; };
        const bool isReportedNumber =
            std::any_of(m_page.unfitting.cbegin(), m_page.unfitting.cend(), [&](const MvUnfittingText &report) {
                return report.date == day.date && isNumber(report.text);
            });
        if (!day.hasPhoto && !isReportedNumber && std::none_of(day.read.cbegin(), day.read.cend(), isNumber))
            add(MissingText, u"number of "_s + day.date.toString(Qt::ISODate));
        checkTexts(day.date, day.texts, day.read.join(QString()));
    }
    if (!m_page.showsDays) { // a block of texts with their dates
        const QString all = textIn(m_rect);
        for (auto it = m_page.dayTexts.cbegin(); it != m_page.dayTexts.cend(); ++it)
            checkTexts(it.key(), it.value(), all);
    }
}

void MvPageAudit::checkTexts(const QDate &date, const QStringList &texts, const QString &read)
{
    for (const QString &text : texts) {
        const bool isWhole = read.contains(essence(text));
        const bool isMissed = isReported(date, text);
        const QString what = date.toString(Qt::ISODate) + u" \"%1\""_s.arg(text);
        if (!isWhole && !isMissed)
            add(MissingText, what);
        if (isWhole && isMissed && m_page.showsDays)
            add(FalseReport, what);
    }
}

void MvPageAudit::checkWords()
{
    const QString read = textIn(m_rect);
    for (const QString &word : m_page.words) {
        if (!read.contains(essence(word)) && !isReported({}, word))
            add(MissingText, u"\"%1\""_s.arg(word.trimmed()));
    }
}

/// One form for all of a set, and all of that there; or reported.
void MvPageAudit::checkHeads()
{
    QStringList read;
    for (const Item &item : std::as_const(m_texts)) {
        read << item.text.trimmed().toCaseFolded();
        if (!item.text.endsWith(u'…'))
            continue;
        const QString text = item.text.chopped(1);
        const QString cut = text.mid(text.lastIndexOf(u", "_s) + 1); // the last of several
        // behind a blank the ellipsis stands for whole texts that are left out
        if (text.endsWith(u' ') ? m_page.unfitting.isEmpty() : !isReported({}, cut))
            add(MissingText, u"\"%1\", of which the rest is missing"_s.arg(item.text));
    }
    for (const QList<QStringList> &forms : m_page.heads) {
        const auto isRead = [&](const QString &name) {
            return isReported({}, name) || std::any_of(read.cbegin(), read.cend(), [&](const QString &text) {
                       return text == name.toCaseFolded() || text.startsWith(name.toCaseFolded() + u' ');
                   });
        };
        if (std::none_of(forms.cbegin(), forms.cend(),
                         [&](const QStringList &names) { return std::all_of(names.cbegin(), names.cend(), isRead); }))
            add(MissingText, u"some of "_s + forms.constFirst().join(u", "_s));
    }
}

void MvPageAudit::checkReports()
{
    for (const MvUnfittingText &report : m_page.unfitting) {
        if (!report.missingGlyphs.isEmpty())
            continue; // whole, but for characters that are boxes
        const QRectF region = report.rect.isEmpty() ? m_rect : report.rect;
        const QString text = essence(report.text);
        const bool isShort = text.size() <= 4; // a number or a name of a weekday, or "contains" would find it anywhere
        if (isShort ? hasItem(region, report.text) : textIn(region).contains(text))
            add(FalseReport, u"\"%1\" in %2"_s.arg(report.text, describe(region)));
    }
}

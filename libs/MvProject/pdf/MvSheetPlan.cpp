// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvSheetPlan.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double markGap = 10.0; // beside the page, so that no mark is on it when it is cut badly
constexpr double markLength = 40.0;
constexpr double betweenPages = 40.0; // that are not cut
constexpr double leastStep = 300.0;   // of a tile beyond its overlap; less is no poster but a puzzle
constexpr double rounding = 1.0;      // of paper sizes

/// "A", …, "Z", "AA", …
QString columnName(int column)
{
    QString name;
    for (int rest = column + 1; rest > 0; rest = (rest - 1) / 26)
        name.prepend(QChar(u'A' + (rest - 1) % 26));
    return name;
}

/// How many tiles of that size cover the length.
int tileCount(double length, double tile, double overlap)
{
    constexpr double tolerance = 0.01;
    return std::max(1, int(std::ceil((length - overlap - tolerance) / (tile - overlap))));
}

QString sizeInWords(const QSizeF &size)
{
    const QLocale locale = MvApplicationLocale::instance().locale();
    const auto millimetres = [&locale](double length) { return locale.toString(length / 10.0, 'g', 6); };
    return MvSheetPlan::tr("%1 × %2 mm").arg(millimetres(size.width()), millimetres(size.height()));
}

} // namespace

MvSheetPlan::MvSheetPlan(const MvSheetSettings &settings, const QSizeF &page, int pageCount)
    : m_settings(settings)
    , m_page(page)
    , m_pageCount(pageCount)
    , m_sheet(settings.paper)
    , m_cell(page)
    , m_sheetCount(pageCount)
{
    if (isTiled())
        m_error = planTiles();
    else if (settings.kind == MvSheetSettings::Kind::Several)
        m_error = planSeveral();
    else
        m_sheet = page;
}

/// Turns the paper so that the fewest sheets are needed.
QString MvSheetPlan::planTiles()
{
    const QSizeF paper = m_settings.paper;
    const auto isWithin = [this](const QSizeF &sheet) {
        return m_page.width() <= sheet.width() + rounding && m_page.height() <= sheet.height() + rounding;
    };
    if (isWithin(paper) || isWithin(paper.transposed()))
        return tr("Kacheln: die Seite (%1) passt auf ein Blatt (%2)").arg(sizeInWords(m_page), sizeInWords(paper));
    int fewest = 0;
    for (const QSizeF &sheet : {paper, paper.transposed()}) {
        const QSizeF tile = room(sheet);
        if (std::min(tile.width(), tile.height()) - m_settings.overlap < leastStep)
            return tr("Kacheln: auf dem Blatt (%1) bleibt neben Rand und Überlappung zu wenig Platz")
                .arg(sizeInWords(paper));
        const int columns = tileCount(m_page.width(), tile.width(), m_settings.overlap);
        const int rows = tileCount(m_page.height(), tile.height(), m_settings.overlap);
        if (fewest == 0 || columns * rows < fewest) {
            fewest = columns * rows;
            m_sheet = sheet;
            m_columns = columns;
            m_rows = rows;
        }
    }
    const auto share = [this](double length, int count) { return (length + (count - 1) * m_settings.overlap) / count; };
    m_cell = {share(m_page.width(), m_columns), share(m_page.height(), m_rows)};
    m_sheetCount = m_pageCount * fewest;
    return {};
}

/// Takes the rows and columns that leave the pages largest; of equal ones the most even.
QString MvSheetPlan::planSeveral()
{
    const int count = m_settings.perSheet;
    double best = 0.0;
    for (const QSizeF &sheet : {m_settings.paper, m_settings.paper.transposed()}) {
        for (int columns = 1; columns <= count; ++columns) {
            if (count % columns != 0)
                continue;
            const int rows = count / columns;
            const QSizeF free = room(sheet) - QSizeF((columns - 1) * gap(), (rows - 1) * gap());
            const double scale =
                std::min({1.0, free.width() / (columns * m_page.width()), free.height() / (rows * m_page.height())});
            constexpr double tolerance = 1e-6;
            const bool isEven = std::abs(columns - rows) < std::abs(m_columns - m_rows);
            if (scale > best + tolerance || (scale > best - tolerance && isEven)) {
                best = scale;
                m_sheet = sheet;
                m_columns = columns;
                m_rows = rows;
            }
        }
    }
    constexpr double least = 0.05;
    if (best < least)
        return tr("%1 Seiten haben auf dem Blatt (%2) keinen Platz").arg(count).arg(sizeInWords(m_settings.paper));
    m_scale = best;
    m_cell = m_page * best;
    const int sides = m_settings.isTwoSided ? 2 : 1;
    m_sheetCount = (m_pageCount + count * sides - 1) / (count * sides) * sides;
    return {};
}

/// Marks need a margin: a printer that prints to the edge gets pages to the edge.
double MvSheetPlan::besideRoom() const
{
    const bool hasMarks = isTiled() || (isStack() && m_settings.margin > 0.0);
    return m_settings.margin + (hasMarks ? markGap + markLength : 0.0);
}

QSizeF MvSheetPlan::room(const QSizeF &sheet) const
{
    return sheet - QSizeF(2.0, 2.0) * besideRoom();
}

/// What is cut lies side by side: one cut parts two pages.
double MvSheetPlan::gap() const
{
    return isStack() || isTiled() ? 0.0 : betweenPages;
}

/// All pages of a sheet, or its tile.
QRectF MvSheetPlan::block() const
{
    QSizeF size = m_cell;
    if (!isTiled())
        size = {m_columns * (m_cell.width() + gap()) - gap(), m_rows * (m_cell.height() + gap()) - gap()};
    return {QPointF((m_sheet.width() - size.width()) / 2.0, (m_sheet.height() - size.height()) / 2.0), size};
}

QRectF MvSheetPlan::cell(int number) const
{
    const int row = number / m_columns;
    const QPointF corner(number % m_columns * (m_cell.width() + gap()), row * (m_cell.height() + gap()));
    return {block().topLeft() + corner, m_cell};
}

/// -1 where there is none. A stack is what lies at one place of all sheets: its pages follow each other.
int MvSheetPlan::pageAt(int sheet, int cell) const
{
    int page = sheet * m_settings.perSheet + cell;
    if (isStack() && m_settings.isTwoSided) {
        const int leaves = m_sheetCount / 2; // in a stack
        page = 2 * (cell * leaves + sheet / 2) + sheet % 2;
    } else if (isStack()) {
        page = cell * m_sheetCount + sheet;
    }
    return page < m_pageCount ? page : -1;
}

QList<MvSheetPlan::Part> MvSheetPlan::parts(int sheet) const
{
    const QRectF whole(QPointF(), m_page);
    if (!m_settings.areSheets())
        return {{sheet, whole, whole}};
    if (isTiled()) {
        const int tile = sheet % (m_columns * m_rows);
        const int row = tile / m_columns;
        const QPointF corner(tile % m_columns * (m_cell.width() - m_settings.overlap),
                             row * (m_cell.height() - m_settings.overlap));
        return {{sheet / (m_columns * m_rows), QRectF(corner, m_cell), block()}};
    }
    QList<Part> parts;
    for (int number = 0; number < m_settings.perSheet; ++number) {
        const int column = number % m_columns;
        const int place = isBack(sheet) ? number - column + m_columns - 1 - column : number;
        if (const int page = pageAt(sheet, number); page >= 0)
            parts.append({page, whole, cell(place)});
    }
    return parts;
}

/// Where to cut along one direction of the sheet, from there with so many places of that length.
QList<double> MvSheetPlan::cuts(double from, double length, int count, int place) const
{
    if (isTiled())
        return place == count - 1 ? QList<double>{from, from + length} : QList<double>{from};
    const int first = isToTheEdge() ? 1 : 0; // the edges of the paper are cut
    QList<double> places;
    for (int i = first; i <= count - first; ++i)
        places.append(from + i * length);
    return places;
}

/// Lines at both ends of the sheet's pages.
QList<QLineF> MvSheetPlan::marks(const QList<double> &across, const QList<double> &atHeight) const
{
    const QRectF all = block();
    const double from = isToTheEdge() ? 0.0 : markGap; // or on the cuts themselves
    const double to = isToTheEdge() ? -markLength : markGap + markLength;
    QList<QLineF> lines;
    for (const double x : across)
        lines += {QLineF(x, all.top() - from, x, all.top() - to), QLineF(x, all.bottom() + from, x, all.bottom() + to)};
    for (const double y : atHeight)
        lines += {QLineF(all.left() - from, y, all.left() - to, y), QLineF(all.right() + from, y, all.right() + to, y)};
    return lines;
}

QList<QLineF> MvSheetPlan::cutMarks(int sheet) const
{
    if (!isTiled() && !isStack())
        return {};
    const QRectF all = block();
    const int tile = sheet % (m_columns * m_rows);
    return marks(cuts(all.left(), m_cell.width(), m_columns, tile % m_columns),
                 cuts(all.top(), m_cell.height(), m_rows, tile / m_columns));
}

QList<QLineF> MvSheetPlan::joinMarks(int sheet) const
{
    if (!isTiled())
        return {};
    const QPointF end = block().bottomRight() - QPointF(m_settings.overlap, m_settings.overlap);
    const int tile = sheet % (m_columns * m_rows);
    return marks(tile % m_columns < m_columns - 1 ? QList<double>{end.x()} : QList<double>(),
                 tile / m_columns < m_rows - 1 ? QList<double>{end.y()} : QList<double>());
}

QString MvSheetPlan::name(int sheet, const MvLocale &language) const
{
    const MvCalendarWordsRegistry::Sheets words = MvCalendarWordsRegistry::instance().sheets(language);
    if (isTiled()) {
        const int tile = sheet % (m_columns * m_rows);
        return words.tile.arg(columnName(tile % m_columns) + QString::number(tile / m_columns + 1),
                              columnName(m_columns - 1) + QString::number(m_rows));
    }
    if (!isStack())
        return {};
    const int sides = m_settings.isTwoSided ? 2 : 1;
    const QString name = words.sheet.arg(sheet / sides + 1).arg(m_sheetCount / sides);
    return isBack(sheet) ? words.back.arg(name) : name;
}

QRectF MvSheetPlan::nameRoom() const
{
    constexpr double besideMark = 20.0;
    const QRectF all = block();
    const double end = isTiled() ? all.right() - m_settings.overlap : all.left() + m_cell.width(); // the next mark
    if (isToTheEdge() || end - all.left() < 2.0 * besideMark)
        return {};
    return {QPointF(all.left() + besideMark, all.bottom() + markGap),
            QPointF(end - besideMark, all.bottom() + markGap + markLength)};
}

QString MvSheetPlan::description() const
{
    if (isTiled())
        return tr("Jede Seite wird zu %1 × %2 Blättern (%3).").arg(m_columns).arg(m_rows).arg(sizeInWords(m_sheet));
    const int percent = int(std::lround(m_scale * 100.0));
    const int papers = m_settings.isTwoSided ? m_sheetCount / 2 : m_sheetCount;
    QString text =
        tr("%n Blätter (%1), ", nullptr, papers).arg(sizeInWords(m_sheet)) +
        (percent == 100 ? tr("die Seiten in Originalgröße.") : tr("die Seiten auf %1 % verkleinert.").arg(percent));
    if (m_settings.isTwoSided)
        text += u' ' + (isTurnedAboutLongEdge() ? tr("Beidseitig drucken, an der langen Kante wenden.")
                                                : tr("Beidseitig drucken, an der kurzen Kante wenden."));
    return text;
}

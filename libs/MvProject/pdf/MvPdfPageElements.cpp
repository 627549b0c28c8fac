// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfPageElements.h"

#include "MvProject/MvPdfSyntax.h"

#include <algorithm>
#include <map>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr int decoration = MvPdfPageParts::decoration;

const QByteArray columnHead = "<</O/Table/Scope/Column>>";
const QByteArray rowHead = "<</O/Table/Scope/Row>>";

bool isReadAsPainted(const MvPdfPageParts::Part &part, const QString &whole)
{
    return !part.isDrawn && part.painted == QStringList(whole);
}

} // namespace

MvPdfPageElements::MvPdfPageElements(const MvPdfPageParts &parts, double unitsPerPoint, const QString &photo)
    : m_parts(parts)
    , m_unitsPerPoint(unitsPerPoint)
    , m_photo(photo)
    , m_heading(findHeading())
{}

/// The largest. Titles of tables that are as large as each other head none but these.
int MvPdfPageElements::findHeading() const
{
    int heading = decoration;
    bool isOneOfMany = false;
    const auto isLarger = [&](const Part &part) {
        return heading == decoration || part.size > m_parts.part(heading).size;
    };
    const auto isOfTable = [&](const Part &part) {
        return part.kind == Kind::Title && m_parts.part(part.around).kind == Kind::Table;
    };
    for (int i = 0; i < int(m_parts.parts().size()); ++i) {
        const Part &part = m_parts.part(i);
        if (!isOfTable(part) || !m_parts.isSeen(i))
            continue;
        if (isLarger(part)) {
            heading = i;
            isOneOfMany = false;
        } else if (part.size == m_parts.part(heading).size) {
            isOneOfMany = true;
        }
    }
    if (isOneOfMany)
        heading = decoration;
    for (int i = 0; i < int(m_parts.parts().size()); ++i) {
        const Part &part = m_parts.part(i);
        const bool isPageText = part.kind == Kind::Paragraph && part.around == MvPdfPageParts::page;
        if ((isPageText || (part.kind == Kind::Title && !isOfTable(part))) && m_parts.isSeen(i) && isLarger(part))
            heading = i;
    }
    return heading;
}

MvPdfElement MvPdfPageElements::section(const QString &name) const
{
    MvPdfElement section{"Sect"};
    section.name = name;
    if (m_heading != decoration)
        section.parts.push_back(text(m_heading, "H1"));
    addPartsOf(MvPdfPageParts::page, section.parts);
    return section;
}

/// From top to bottom; within a group tables in the order of their numbers, as months follow each other.
void MvPdfPageElements::addPartsOf(int part, std::vector<MvPdfElement> &into) const
{
    QList<int> inner = m_parts.part(part).parts;
    inner.removeIf([this](int number) { return number == m_heading || !m_parts.isSeen(number); });
    const auto place = [this](int number) {
        const Part &placed = m_parts.part(number);
        const bool isTable = placed.kind == Kind::Table;
        const double top = isTable ? double(placed.row) : -placed.bounds.bottom(); // coordinates rise upwards
        return std::tuple(isTable, top, placed.bounds.left());
    };
    std::stable_sort(inner.begin(), inner.end(), [&place](int a, int b) { return place(a) < place(b); });
    for (const int number : std::as_const(inner)) {
        if (m_parts.part(number).kind == Kind::Group)
            addPartsOf(number, into);
        else
            into.push_back(element(number));
    }
}

MvPdfElement MvPdfPageElements::element(int part) const
{
    switch (m_parts.part(part).kind) {
    case Kind::Table:
        return table(part);
    case Kind::Figure:
        return figure(part);
    case Kind::Title:
        return text(part, "H2");
    default:
        return text(part, "P");
    }
}

MvPdfElement MvPdfPageElements::text(int part, const QByteArray &type) const
{
    const Part &shown = m_parts.part(part);
    MvPdfElement element{type};
    element.contents = shown.contents;
    const QString painted = shown.painted.value(0);
    QString whole = shown.texts.texts().value(0).simplified();
    if (whole.isEmpty())
        whole = shown.painted.join(u' ');
    if (isReadAsPainted(shown, whole))
        return element;
    const bool isShort = shown.painted.size() == 1 && whole.startsWith(painted, Qt::CaseInsensitive) &&
                         (shown.kind == Kind::ColumnHead || shown.kind == Kind::RowHead);
    (isShort ? element.longForm : element.whole) = whole;
    return element;
}

MvPdfElement MvPdfPageElements::figure(int part) const
{
    const Part &shown = m_parts.part(part);
    MvPdfElement element{"Figure"};
    element.attributes = "<</O/Layout/BBox" + box(shown.bounds) + ">>";
    element.contents = shown.contents;
    const QString description = shown.texts.texts().value(0).simplified();
    element.description = description.isEmpty() ? m_photo : description;
    return element;
}

MvPdfElement MvPdfPageElements::cell(int part) const
{
    const Part &shown = m_parts.part(part);
    if (shown.kind == Kind::Cell) {
        MvPdfElement element{"TD"};
        element.contents = shown.contents;
        addTexts(shown, element.parts);
        for (const int inner : shown.parts) {
            if (m_parts.part(inner).kind != Kind::Paragraph && m_parts.isSeen(inner))
                element.parts.push_back(this->element(inner));
        }
        return element;
    }
    MvPdfElement element = text(part, "TH");
    element.attributes = shown.kind == Kind::ColumnHead ? columnHead : rowHead;
    return element;
}

/// One text each, or all together where a line has several.
void MvPdfPageElements::addTexts(const Part &cell, std::vector<MvPdfElement> &into) const
{
    QList<int> texts = cell.parts;
    texts.removeIf([this](int part) { return m_parts.part(part).kind != Kind::Paragraph || !m_parts.isSeen(part); });
    std::sort(texts.begin(), texts.end(), [this](int a, int b) { return m_parts.part(a).text < m_parts.part(b).text; });
    MvPdfElement all{"P"};
    QStringList wholes;
    QStringList painted;
    bool isDrawn = false;
    for (const int number : std::as_const(texts)) {
        const Part &part = m_parts.part(number);
        MvPdfElement element{"P"};
        element.contents = part.contents;
        const QString whole = cell.texts.texts().value(part.text).simplified();
        if (!isReadAsPainted(part, whole))
            element.whole = whole;
        if (!cell.texts.hasJoinedLines())
            into.push_back(element);
        all.contents += part.contents;
        painted += part.painted;
        isDrawn |= part.isDrawn;
    }
    if (!cell.texts.hasJoinedLines() || texts.isEmpty())
        return;
    for (int text = 1; text < cell.texts.texts().size(); ++text) {
        if (cell.texts.isPainted(text))
            wholes.append(cell.texts.texts().at(text).simplified());
    }
    if (const QString whole = wholes.join(u", "_s); isDrawn || painted != QStringList(whole))
        all.whole = whole;
    into.push_back(all);
}

/// Every row has a cell in every column.
MvPdfElement MvPdfPageElements::table(int part) const
{
    MvPdfElement table{"Table"};
    table.attributes = "<</O/Layout/BBox" + box(m_parts.part(part).bounds) + ">>";
    std::map<int, std::map<int, int>> rows; // parts by row and column
    std::map<int, bool> columns;
    for (const int number : m_parts.part(part).parts) {
        const Part &inner = m_parts.part(number);
        if (inner.kind == Kind::Title) {
            if (number != m_heading && m_parts.isSeen(number))
                table.parts.push_back(text(number, "Caption"));
            continue;
        }
        columns[inner.column] = true;
        if (m_parts.isSeen(number) || inner.kind == Kind::Cell)
            rows[inner.row][inner.column] = number;
    }
    for (const auto &[row, cells] : rows) {
        if (std::none_of(cells.cbegin(), cells.cend(),
                         [this](const auto &cell) { return m_parts.isSeen(cell.second); }))
            continue;
        MvPdfElement line{"TR"};
        const bool isHeadAlone = cells.size() == 1 && m_parts.part(cells.cbegin()->second).kind == Kind::RowHead;
        if (isHeadAlone && columns.size() > 1) {
            line.parts.push_back(cell(cells.cbegin()->second));
            line.parts.back().attributes =
                "<</O/Table/Scope/Row/ColSpan " + QByteArray::number(qsizetype(columns.size())) + ">>";
        } else {
            for (const auto &[column, isThere] : columns) {
                const auto found = cells.find(column);
                line.parts.push_back(found != cells.cend() ? cell(found->second) : MvPdfElement{"TD"});
            }
        }
        table.parts.push_back(line);
    }
    return table;
}

QByteArray MvPdfPageElements::box(const QRectF &bounds) const
{
    QByteArray numbers;
    MvPdfSyntax::append(numbers, bounds.topLeft() / m_unitsPerPoint, 0);
    MvPdfSyntax::append(numbers, bounds.bottomRight() / m_unitsPerPoint, 0);
    numbers.chop(1);
    return '[' + numbers + ']';
}

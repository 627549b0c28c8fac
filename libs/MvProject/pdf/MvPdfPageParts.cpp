// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfPageParts.h"

#include "MvPaint/MvPaintRecordingData.h"
#include "MvPaint/MvPrintableText.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int firstOwnNumber = 1 << 20; // of texts without a mark

bool isInTable(MvPaintMark::Kind kind)
{
    using Kind = MvPaintMark::Kind;
    return kind == Kind::ColumnHead || kind == Kind::RowHead || kind == Kind::Cell || kind == Kind::Row;
}

double sizeOf(const MvTextOutline &outline, const QTransform &transform)
{
    const double em = outline.glyphs().isEmpty() ? outline.font().pixelSize() : outline.glyphs().constFirst().em;
    return em * std::sqrt(std::abs(transform.determinant()));
}

} // namespace

MvPdfPageParts::MvPdfPageParts(const MvPaintRecordingData &recording)
    : m_recording(recording)
    , m_parts(1)
    , m_lines(recording.operations.size())
{
    for (size_t i = 0; i < recording.operations.size(); ++i) {
        const MvPaintOperation &operation = recording.operations[i];
        const int marked = partOf(operation.mark.get());
        const auto *text = std::get_if<MvPaintShape::Outlines>(&operation.shape);
        if (!text)
            continue;
        for (const MvPlacedOutline &line : text->lines) {
            int part = decoration;
            if (!line.outline.isEmpty() && marked != decoration)
                part = partOfLine(marked, line.outline.text(), qsizetype(i));
            m_lines[i].append(part);
            if (part != decoration) {
                Part &read = m_parts[size_t(part)];
                read.painted.append(line.outline.text().simplified());
                read.isDrawn |= line.outline.glyphs().isEmpty() || !line.outline.pictures().isEmpty() ||
                                MvPrintableText::isTurned(line.outline.text());
                read.size = std::max(read.size, sizeOf(line.outline, recording.states[operation.state].transform));
            }
        }
    }
}

int MvPdfPageParts::partOf(size_t operation) const
{
    for (int part = m_known.value(m_recording.operations[operation].mark.get(), page); part > page;
         part = this->part(part).around) {
        if (this->part(part).kind == Kind::Figure)
            return part;
    }
    return decoration;
}

int MvPdfPageParts::partOf(const MvPaintMark *mark)
{
    if (!mark)
        return page;
    const auto known = m_known.constFind(mark);
    return known != m_known.cend() ? *known : *m_known.insert(mark, newPartOf(*mark));
}

int MvPdfPageParts::newPartOf(const MvPaintMark &mark)
{
    const int around = partOf(mark.around.get());
    if (mark.kind == Kind::Decoration || around == decoration)
        return decoration;
    const int table = tableAround(around);
    if (!isInTable(mark.kind) || table == decoration) {
        const bool isBesideTable = around == table && mark.kind != Kind::Title;
        return child(isBesideTable ? part(table).around : around, isInTable(mark.kind) ? Kind::Group : mark.kind,
                     mark.row, mark.column, mark.texts);
    }
    if (mark.kind != Kind::Row)
        return child(table, mark.kind, mark.row, mark.column, mark.texts);
    const int head = child(table, Kind::RowHead, mark.row, 0);
    const int cell = child(table, Kind::Cell, mark.row, mark.column, mark.texts);
    m_parts[size_t(cell)].head = head;
    return cell;
}

int MvPdfPageParts::tableAround(int part) const
{
    while (part != decoration && this->part(part).kind != Kind::Table)
        part = this->part(part).around;
    return part;
}

int MvPdfPageParts::child(int around, Kind kind, int row, int column, const QStringList &texts)
{
    const QList<int> &known = part(around).parts;
    const auto found = std::find_if(known.crbegin(), known.crend(), [&](int number) {
        const Part &other = part(number);
        return other.kind == kind && other.row == row && other.column == column;
    });
    if (found != known.crend())
        return *found;
    Part made;
    made.kind = kind;
    made.row = row;
    made.column = column;
    made.around = around;
    made.texts = MvPdfWholeTexts(texts);
    const int number = int(m_parts.size());
    m_parts.push_back(made);
    m_parts[size_t(around)].parts.append(number);
    return number;
}

int MvPdfPageParts::partOfLine(int marked, const QString &line, qsizetype operation)
{
    switch (part(marked).kind) {
    case Kind::Group:
        return child(marked, Kind::Paragraph, firstOwnNumber + int(operation), 0, {line});
    case Kind::Table:
        return child(part(marked).around, Kind::Paragraph, firstOwnNumber + int(operation), 0, {line});
    case Kind::Cell: {
        const int text = m_parts[size_t(marked)].texts.add(line);
        if (text <= 0)
            return part(marked).head == decoration ? marked : part(marked).head;
        const int number = child(marked, Kind::Paragraph, text, 0);
        m_parts[size_t(number)].text = text;
        return number;
    }
    default:
        m_parts[size_t(marked)].texts.add(line);
        return marked;
    }
}

int MvPdfPageParts::addPicture(const QString &description)
{
    return child(page, Kind::Figure, firstOwnNumber, 0, {description});
}

int MvPdfPageParts::addContent(int part)
{
    m_parts[size_t(part)].contents.append(m_contentCount);
    return m_contentCount++;
}

void MvPdfPageParts::addBounds(int part, const QRectF &bounds)
{
    for (; part != decoration; part = this->part(part).around)
        m_parts[size_t(part)].bounds |= bounds;
}

bool MvPdfPageParts::isSeen(int part) const
{
    const Part &shown = this->part(part);
    return !shown.contents.isEmpty() ||
           std::any_of(shown.parts.cbegin(), shown.parts.cend(), [&](int inner) { return isSeen(inner); });
}

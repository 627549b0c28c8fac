// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPreviewSheets.h"

#include "MvProject/MvPrintCheck.h"

#include <algorithm>

MvPreviewSheets::MvPreviewSheets(const MvCalendarDocument &document, const MvExportOptions &options)
    : m_document(document)
    , m_options(options)
{
    m_options.pages.removeIf([&document](int page) { return page < 0 || page >= document.pages().size(); });
}

bool MvPreviewSheets::hasSeveral() const
{
    return m_options.sheets.kind == MvSheetSettings::Kind::Several && plan().error().isEmpty();
}

int MvPreviewSheets::count() const
{
    return hasSeveral() ? plan().sheetCount() : int(m_options.pages.size());
}

MvPreviewSheets::Sheet MvPreviewSheets::at(int sheet) const
{
    if (sheet < 0 || sheet >= count())
        return {};
    if (!hasSeveral()) {
        const int page = m_options.pages.at(sheet);
        const QRectF media = m_document.format().mediaRect();
        Sheet found{media, {{page, media, media}}, {}, {}, MvPrintCheck::pageName(m_document, page)};
        if (isForPress()) {
            const MvPressSheet around = pressSheet(page);
            found.paper = around.sheet();
            found.marks = around.marks();
            found.foldMarks = around.foldMarks();
        }
        return found;
    }
    const MvSheetPlan plan = this->plan();
    Sheet found{{QPointF(), plan.sheet()}, plan.parts(sheet), {}, {}, {}};
    for (const QLineF &line : plan.cutMarks(sheet)) {
        found.marks.moveTo(line.p1());
        found.marks.lineTo(line.p2());
    }
    for (MvSheetPlan::Part &part : found.parts)
        part.page = m_options.pages.at(part.page);
    if (!plan.isTwoSided())
        found.name = tr("Blatt %1 von %2").arg(sheet + 1).arg(count());
    else
        found.name = (sheet % 2 == 0 ? tr("Blatt %1 von %2, Vorderseite") : tr("Blatt %1 von %2, Rückseite"))
                         .arg(sheet / 2 + 1)
                         .arg(count() / 2);
    return found;
}

int MvPreviewSheets::indexOf(int page) const
{
    for (int sheet = 0; sheet < count(); ++sheet) {
        const QList<MvSheetPlan::Part> parts = at(sheet).parts;
        if (std::any_of(parts.cbegin(), parts.cend(), [page](const auto &part) { return part.page == page; }))
            return sheet;
    }
    return -1;
}

QList<QRectF> MvPreviewSheets::tiles() const
{
    QList<QRectF> tiles;
    const MvSheetPlan plan(m_options.sheets, m_document.format().trimSize(), 1);
    if (m_options.sheets.kind == MvSheetSettings::Kind::Tiles && plan.error().isEmpty())
        for (int sheet = 0; sheet < plan.sheetCount(); ++sheet)
            tiles.append(plan.parts(sheet).constFirst().part);
    return tiles;
}

double MvPreviewSheets::madeUpBleed() const
{
    return isForPress() ? pressSheet(0).missingBleed() : 0.0;
}

MvPressSheet MvPreviewSheets::pressSheet(int page) const
{
    const MvPageFormat &format = m_document.format();
    return {m_options.forPress, format.trimRect(), format.mediaRect(), m_document.bindingRect(page)};
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfMirroredBleed.h"

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfPageParts.h"
#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvPressSheet.h"

#include <algorithm>

MvPdfMirroredBleed::Band MvPdfMirroredBleed::band(int side, double from, double length) const
{
    constexpr double beneath = 1.0; // the page, so that no gap shows between the two
    const double reach = std::min(m_sheet.missingBleed() + beneath, length - beneath);
    if (side == 0)
        return {from, length, 0.0};
    const double axis = side < 0 ? from + beneath : from + length - beneath;
    return {side < 0 ? axis : axis - reach, reach, axis};
}

void MvPdfMirroredBleed::paint(MvPdfContent &content, const MvPaintRecording &recording,
                               const QTransform &dotsToUnits) const
{
    const QRectF trim = m_sheet.trim();
    const QTransform toDots = m_toUnits * dotsToUnits.inverted();
    for (int place = 0; place < 9; ++place) {
        const int column = place % 3 - 1;
        const int row = place / 3 - 1;
        if (column == 0 && row == 0)
            continue; // the page itself
        const Band across = band(column, trim.left(), trim.width());
        const Band down = band(row, trim.top(), trim.height());
        const QRectF part(across.from, down.from, across.length, down.length);
        MvPdfPageParts parts(recording.data()); // none is read again
        MvPdfPagePainter painter(m_shared, dotsToUnits, toDots.mapRect(part), parts);
        painter.setDecoration();
        painter.paint(recording);
        if (painter.content().bytes().isEmpty())
            continue;
        QByteArray box;
        const QRectF units = m_toUnits.mapRect(part);
        MvPdfSyntax::append(box, units.topLeft());
        MvPdfSyntax::append(box, units.bottomRight());
        const int form = m_shared.file.addStream("/Type/XObject/Subtype/Form/BBox[" + box + "]/Resources" +
                                                     painter.content().resources(),
                                                 painter.content().bytes());
        const QTransform mirror(column == 0 ? 1.0 : -1.0, 0.0, 0.0, row == 0 ? 1.0 : -1.0,
                                column == 0 ? 0.0 : 2.0 * across.axis, row == 0 ? 0.0 : 2.0 * down.axis);
        content.save();
        content.concat(m_toUnits.inverted() * mirror * m_toUnits);
        content.paintObject(form);
        content.restore();
    }
}

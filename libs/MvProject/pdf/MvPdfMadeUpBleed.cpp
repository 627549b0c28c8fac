// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfMadeUpBleed.h"

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfPageParts.h"
#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvPressSheet.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double beneath = 1.0; // the page, so that no gap shows between the two

} // namespace

MvPdfMadeUpBleed::Band MvPdfMadeUpBleed::band(int side, double from, double length) const
{
    constexpr double lastBit = 2.5; // of the edge, when it is stretched: a few dots of a photo
    const double needed = m_sheet.bleed().right() - m_sheet.trim().right() + beneath;
    const double wanted = m_kind == MvPressSettings::Bleed::Stretched ? std::min(lastBit, needed) : needed;
    const double reach = std::min(wanted, length - beneath);
    if (side == 0)
        return {from, length, 0.0, 1.0};
    const double axis = side < 0 ? from + beneath : from + length - beneath;
    const double stretch = m_kind == MvPressSettings::Bleed::Stretched ? needed / reach : 1.0;
    return {side < 0 ? axis : axis - reach, reach, axis, stretch};
}

void MvPdfMadeUpBleed::paint(MvPdfContent &content, const MvPaintRecording &recording,
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
        const QTransform mirror(column == 0 ? 1.0 : -across.stretch, 0.0, 0.0, row == 0 ? 1.0 : -down.stretch,
                                column == 0 ? 0.0 : (1.0 + across.stretch) * across.axis,
                                row == 0 ? 0.0 : (1.0 + down.stretch) * down.axis);
        content.save();
        content.concat(m_toUnits.inverted() * mirror * m_toUnits);
        content.paintObject(form);
        content.restore();
    }
}

void MvPdfMadeUpBleed::paintBesidePictures(MvPdfContent &content, const MvPaintRecording &recording,
                                           const QTransform &dotsToUnits) const
{
    const QList<QRectF> parts = besidePictures(recording, dotsToUnits);
    if (parts.isEmpty())
        return;
    content.save();
    for (const QRectF &part : parts)
        content.addRect(m_toUnits.mapRect(part));
    content.finishPath("W n");
    paint(content, recording, dotsToUnits);
    content.restore();
}

/// The parts of the bleed that such pictures leave blank, on the page.
QList<QRectF> MvPdfMadeUpBleed::besidePictures(const MvPaintRecording &recording, const QTransform &dotsToUnits) const
{
    constexpr double tolerance = 2.0; // a frame that is so near to the trim ends there
    const QTransform dotsToPage = dotsToUnits * m_toUnits.inverted();
    const QRectF trim = m_sheet.trim();
    const QRectF bleed = m_sheet.bleed();
    const auto ends = [](double edge, double at) { return std::abs(edge - at) < tolerance; };
    QList<QRectF> parts;
    for (const MvPaintRecording::Item &item : recording.items(MvPaintRecording::Item::Image)) {
        const QRectF picture = dotsToPage.mapRect(item.clip.isNull() ? item.bounds : item.bounds & item.clip);
        QRectF grown = picture;
        if (ends(picture.left(), trim.left()))
            grown.setLeft(bleed.left());
        if (ends(picture.right(), trim.right()))
            grown.setRight(bleed.right());
        if (ends(picture.top(), trim.top()))
            grown.setTop(bleed.top());
        if (ends(picture.bottom(), trim.bottom()))
            grown.setBottom(bleed.bottom());
        const QRectF inner = trim.adjusted(beneath, beneath, -beneath, -beneath);
        const std::array beside{QRectF(QPointF(bleed.left(), grown.top()), QPointF(inner.left(), grown.bottom())),
                                QRectF(QPointF(inner.right(), grown.top()), QPointF(bleed.right(), grown.bottom())),
                                QRectF(QPointF(grown.left(), bleed.top()), QPointF(grown.right(), inner.top())),
                                QRectF(QPointF(grown.left(), inner.bottom()), QPointF(grown.right(), bleed.bottom()))};
        const std::array wanted{grown.left() < picture.left(), grown.right() > picture.right(),
                                grown.top() < picture.top(), grown.bottom() > picture.bottom()};
        for (size_t side = 0; side < beside.size(); ++side)
            if (wanted[side] && !picture.isEmpty())
                parts.append(beside[side]);
    }
    return parts;
}

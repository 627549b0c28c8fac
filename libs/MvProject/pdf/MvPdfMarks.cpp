// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfMarks.h"

#include "MvProject/MvPdfContent.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfFonts.h"
#include "MvProject/MvPdfTextPainter.h"
#include "MvProject/MvPressSheet.h"

#include <QPainterPath>
#include <QPen>

void MvPdfMarks::paint(MvPdfContent &content, const MvPressSheet &sheet, const QTransform &toUnits, MvPdfFile &file)
{
    const QPainterPath solid = sheet.marks();
    if (solid.isEmpty())
        return;
    QPainterPath dashed;
    for (const QLineF &line : sheet.foldMarks()) {
        dashed.moveTo(line.p1());
        dashed.lineTo(line.p2());
    }
    QPen pen(Qt::black, MvPressSheet::lineWidth, Qt::SolidLine, Qt::FlatCap);
    content.save();
    content.setRegistrationColor(
        file.addOnce("[/Separation/All/DeviceCMYK<</FunctionType 2/Domain[0 1]/C0[0 0 0 0]/C1[1 1 1 1]/N 1>>]"));
    const auto stroke = [&](const QPainterPath &path) {
        content.setPen(pen, toUnits.m11());
        content.addPath(toUnits.map(path), MvPdfContent::Subpaths::Closed);
        content.finishPath("S");
    };
    stroke(solid);
    if (!dashed.isEmpty()) {
        pen.setDashPattern({8.0, 6.0}); // in widths
        stroke(dashed);
    }
    content.restore();
}

void MvPdfMarks::paintSlug(MvPdfContent &content, const MvPressSheet &sheet, const MvTextOutline &slug,
                           const QTransform &toUnits, MvPdfFonts &fonts)
{
    if (slug.isEmpty() || slug.glyphs().isEmpty())
        return;
    const QPointF place = sheet.slugPlace();
    const QTransform transform = QTransform::fromScale(MvPressSheet::slugScale(), MvPressSheet::slugScale()) *
                                 QTransform::fromTranslate(place.x(), place.y()) * toUnits;
    content.save();
    content.setFillColor(qRgb(0, 0, 0));
    MvPdfTextPainter(content, fonts, transform).paint({{QPointF(), slug}});
    content.restore();
}

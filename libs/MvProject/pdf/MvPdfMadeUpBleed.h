// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPdfPagePainter.h"
#include "MvProject/MvPressSettings.h"

class MvPressSheet;

/// Makes up the bleed of a page, or of a photo on it, that ends at the trim: what lies along the edges and in the
/// corners is mirrored outwards, or its last bit stretched, without the texts. A photo goes on, a line that meets the
/// edge gets longer, and a knife that is not quite straight leaves no white.
class MvPdfMadeUpBleed
{
public:
    /// What is handed over outlives it; the transform leads from the page to the units of its sheet.
    MvPdfMadeUpBleed(const MvPdfPagePainter::Shared &shared, const MvPressSheet &sheet, MvPressSettings::Bleed kind,
                     const QTransform &toUnits)
        : m_shared(shared)
        , m_sheet(sheet)
        , m_kind(kind)
        , m_toUnits(toUnits)
    {}

    /// The recording is that of the page; it becomes units by the transform. To be painted before the page itself,
    /// which covers the seam.
    void paint(MvPdfContent &content, const MvPaintRecording &recording, const QTransform &dotsToUnits) const;
    /// The same for a page with a bleed of its own, beside pictures on it that end at the trim. To be painted after it.
    void paintBesidePictures(MvPdfContent &content, const MvPaintRecording &recording,
                             const QTransform &dotsToUnits) const;

private:
    /// Along one direction: which part of the page, and about which line it is turned; -1 and 1 are the page's ends.
    struct Band
    {
        double from;
        double length;
        double axis;
        double stretch; ///< of the part, beyond the line
    };
    QList<QRectF> besidePictures(const MvPaintRecording &recording, const QTransform &dotsToUnits) const;
    Band band(int side, double from, double length) const;

    const MvPdfPagePainter::Shared m_shared;
    const MvPressSheet &m_sheet;
    const MvPressSettings::Bleed m_kind;
    const QTransform m_toUnits;
};

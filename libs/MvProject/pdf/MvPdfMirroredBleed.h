// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPdfPagePainter.h"

class MvPressSheet;

/// Makes up the bleed of a page that ends at its trim: what lies along its edges and in its corners is mirrored
/// outwards, without the texts. A photo goes on, a line that meets the edge gets longer, and a knife that is not quite
/// straight leaves no white.
class MvPdfMirroredBleed
{
public:
    /// What is handed over outlives it; the transform leads from the page to the units of its sheet.
    MvPdfMirroredBleed(const MvPdfPagePainter::Shared &shared, const MvPressSheet &sheet, const QTransform &toUnits)
        : m_shared(shared)
        , m_sheet(sheet)
        , m_toUnits(toUnits)
    {}

    /// The recording is that of the page; it becomes units by the transform. To be painted before the page itself,
    /// which covers the seam.
    void paint(MvPdfContent &content, const MvPaintRecording &recording, const QTransform &dotsToUnits) const;

private:
    /// Along one direction: which part of the page, and about which line it is turned; -1 and 1 are the page's ends.
    struct Band
    {
        double from;
        double length;
        double axis;
    };
    Band band(int side, double from, double length) const;

    const MvPdfPagePainter::Shared m_shared;
    const MvPressSheet &m_sheet;
    const QTransform m_toUnits;
};

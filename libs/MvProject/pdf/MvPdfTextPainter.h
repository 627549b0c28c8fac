// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvTextOutline.h"

#include <QTransform>

class MvPdfContent;
class MvPdfFonts;

/// Writes lines of text with the glyphs of MvPdfFonts, each where the outline has it.
class MvPdfTextPainter
{
public:
    /// What is handed over must outlive the painter; the transform leads to the units of the content, which are
    /// upwards.
    MvPdfTextPainter(MvPdfContent &content, MvPdfFonts &fonts, const QTransform &transform);

    /// Lines whose glyphs are known, as one text, in the colour in force.
    void paint(const QList<MvPlacedOutline> &lines);

private:
    using Glyph = MvTextOutline::Glyph;

    void paintLine(const MvPlacedOutline &line);
    /// Glyphs of one font on one baseline, from `first` on; gives the one after.
    qsizetype paintRun(const MvPlacedOutline &line, qsizetype first);
    void moveTo(const QPointF &point);

    MvPdfContent &m_content;
    MvPdfFonts &m_fonts;
    const QTransform m_transform;
    const double m_scale; // of lengths along the baseline
    const bool m_isPlain; // upright, not turned, not distorted
    QPointF m_lineStart;  // the last one given, in units
};

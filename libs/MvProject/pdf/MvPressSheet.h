// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvTextOutline.h"
#include "MvProject/mvproject_export.h"

#include <QLineF>
#include <QList>
#include <QPainterPath>
#include <QRectF>

struct MvPressSettings;

/// The paper around a page that goes to a print shop: how far the bleed reaches, and what stands beyond it and is cut
/// off. All lengths are tenths of a millimetre from the trimmed page's corner, downwards.
///
/// From the bleed outwards come a gap, the marks, and a line about the page; upper and lower margin are equal, so that
/// the page stands in the middle.
class MVPROJECT_EXPORT MvPressSheet
{
public:
    /// `painted` is the page with the bleed that it has of its own, `binding` the part that the binding takes, if any.
    MvPressSheet(const MvPressSettings &settings, const QRectF &trim, const QRectF &painted,
                 const QRectF &binding = {});

    QRectF sheet() const;
    QRectF bleed() const { return m_bleed; }
    QRectF trim() const { return m_trim; }
    /// How much bleed must be made up at each edge.
    double missingBleed() const { return m_bleed.right() - m_painted.right(); }

    /// Lines on which to cut, from corner to corner of the trimmed page, and, shorter, those to which ink reaches.
    QList<QLineF> cropMarks() const;
    QList<QLineF> bleedMarks() const;
    /// Ends of the line along which the page turns or is folded; dashed. None without a binding.
    QList<QLineF> foldMarks() const;
    /// The places of the crosses that tell whether all inks meet.
    QList<QPointF> registrationMarks() const;
    static constexpr double registrationRadius = 15.0;
    /// All that is drawn in one stroke: crop marks, bleed marks, and crosses in circles. Empty without marks.
    QPainterPath marks() const;
    static constexpr double lineWidth = 0.9; // a quarter of a point

    /// The line about the page, shortened to the room there is. Empty without marks.
    MvTextOutline slug(const QString &text) const;
    /// Where its baseline starts, and by how much the outline is to be scaled.
    QPointF slugPlace() const;
    static double slugScale();

private:
    const QRectF m_trim;
    const QRectF m_painted;
    const QRectF m_binding;
    const bool m_hasMarks;
    QRectF m_bleed;
};

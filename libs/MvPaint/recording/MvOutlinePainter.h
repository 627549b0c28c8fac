// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvTextOutline.h"

class QColor;
class QPainter;

/// Fills text outlines in the way that suits the target, and draws the pictures among their glyphs.
///
/// On an MvPaintRecorder one operation is recorded that shares the outline. On a raster target an antialiased text is
/// filled in parts that share no pixel column: filling takes time that grows with the square of a path's width, and
/// parts without a common column give the same pixels. Every other target gets whole paths. The painter's transform,
/// clip, opacity and hints apply; its pen, brush and font are neither used nor changed.
class MVPAINT_EXPORT MvOutlinePainter
{
public:
    /// One line, its baseline starting at the given point.
    static void fillOutline(QPainter &painter, const QPointF &baseline, const MvTextOutline &outline,
                            const QColor &color);

    /// Several lines as one shape: where they overlap, a translucent colour is laid on once.
    static void fillOutlines(QPainter &painter, const QList<MvPlacedOutline> &lines, const QColor &color);
};

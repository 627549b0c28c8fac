// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QRectF>
#include <QSizeF>

class QPainter;

/// How finely a photo comes out on paper, and what that is good for.
///
/// The limits follow from what an eye can tell apart, about one minute of arc: at arm's length before a wall (60 cm)
/// that is 0.17 mm, 146 points per inch; at 44 cm, from where one reads the names of the days, 200. Below the first a
/// photo looks coarse to everybody, between both to who steps near.
class MVFOTO_EXPORT MvFotoResolution
{
public:
    static constexpr double poorBelow = 150.0; // pixels per inch
    static constexpr double modestBelow = 200.0;

    enum class Grade { Good, Modest, Poor };

    /// Pixels of the photo that are seen, and the size in tenths of a millimetre at which they are printed; the coarser
    /// side counts. 0 when one of them is empty.
    static double pixelsPerInch(const QSizeF &pixels, const QSizeF &printed);
    /// Good for 0, of which nothing is known.
    static Grade grade(double pixelsPerInch);

    /// Marks a poor photo in the rectangle in which it is painted, if the painter's rule shows quality warnings: a
    /// symbol at its lower right corner. GUI thread.
    static void paintWarning(QPainter &painter, const QRectF &rect, double pixelsPerInch);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QPainterPath>

class QPainter;

/// Divides a path of many rectangles, as the grounds of a page's cells are, into paths that are filled one after the
/// other with the same pixels, and sooner.
///
/// A raster target's time for a row of pixels grows with the square of the edges that cross it, and the grounds of a
/// year have dozens. Here neighbours lose the edge between them, and what shares no pixel is filled by itself.
class MvRectParts
{
public:
    /// Only the path itself for anything but rectangles, and where the parts might show: on targets without pixels,
    /// without antialiasing, turned, or painted otherwise than over what is there.
    static QList<QPainterPath> of(const QPainter &painter, const QPainterPath &path);
};

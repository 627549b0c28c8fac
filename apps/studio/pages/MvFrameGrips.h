// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <Qt>

class QColor;
class QPainter;

/// The handles of a chosen frame: at its corners and the middles of its edges to resize it, and one below the upper
/// edge to move it. Lengths in the units of the frame.
namespace MvFrameGrips {

enum class Grip { None, TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left, Move };

/// What is left of a frame at least, in tenths of a millimetre.
constexpr double smallestSide = 80.0;

/// The handle at a point; `reach` is how far from it one still takes it. Small frames have none on their edges.
Grip at(const QRectF &frame, const QPointF &point, double reach);
/// The edges that a handle pulls; none for that which moves.
Qt::Edges edges(Grip grip);
/// The frame with these edges pulled by a distance, never smaller than smallestSide.
QRectF pulled(const QRectF &frame, Qt::Edges edges, const QPointF &distance);
Qt::CursorShape cursor(Grip grip);
/// The parts of the page that the handles take up.
QList<QRectF> areas(const QRectF &frame, double reach);
void paint(QPainter &painter, const QRectF &frame, double reach, const QColor &color);

} // namespace MvFrameGrips

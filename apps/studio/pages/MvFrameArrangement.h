// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QRectF>
#include <Qt>

/// Rectangles set in line, or at equal distances. Numbers in, numbers out.
namespace MvFrameArrangement {

enum class Line { Left, Centre, Right, Top, Middle, Bottom };

/// Each moved so that its edge or middle lies on that of the bounds.
QList<QRectF> aligned(const QList<QRectF> &frames, Line line, const QRectF &bounds);
/// With equal gaps between neighbours; the two outermost stay. Fewer than three stay as they are.
QList<QRectF> distributed(const QList<QRectF> &frames, Qt::Orientation orientation);
/// The smallest rectangle around all; empty for none.
QRectF bounds(const QList<QRectF> &frames);

} // namespace MvFrameArrangement

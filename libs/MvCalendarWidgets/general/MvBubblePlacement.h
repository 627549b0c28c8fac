// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QMargins>
#include <QPainterPath>
#include <QPoint>
#include <QRect>
#include <QSize>

/// Where a bubble stands beside what it is about: numbers in pixels, without a widget.
///
/// The bubble never leaves its room: it stands on the first side that has room for it, else on the one with the most,
/// and covers a part of its target rather than being cut off.
struct MVGUIWIDGETS_EXPORT MvBubblePlacement
{
    enum class Side { Right, Left, Below, Above }; ///< of the target, in the order in which they are tried

    static constexpr int arrowLength = 10;
    static constexpr int arrowWidth = 20;
    static constexpr int radius = 8;

    Side side = Side::Right;
    QRect rect; ///< the bubble with its arrow
    QPoint tip; ///< of the arrow, on the edge of the rectangle

    /// The size is that of the body without the arrow. What of body and arrow is larger than the room is cut from it.
    static MvBubblePlacement beside(const QRect &target, const QSize &size, const QRect &room);

    /// What the arrow takes from the rectangle.
    QMargins margins() const;
    /// Body and arrow, relative to the rectangle's corner.
    QPainterPath outline() const;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QImage>
#include <QPointF>

/// Guesses which point of a photo should stay in sight when it is cropped: where faces usually are, and where detail
/// is.
///
/// There is no model and no network. On a picture of at most `side` pixels:
/// - **Faces** are clusters in the colours of skin, light and dark (a region of Cb and Cr, lit well enough), that have
///   the size, the proportions and the compactness of heads, do not lie at the very bottom and do not run along three
///   edges, as sand and wood do. The better ones count together. The point lies in the upper part of them, so that hair
///   and some air above stay when an upright portrait becomes a wide strip.
/// - **Detail** is what stands out of the picture's usual gradients; its middle counts for more, the more of it lies
///   together. It decides when there are no faces.
/// - Otherwise the middle, in upright pictures a little above, where people's heads are.
///
/// The same picture always gives the same point.
class MVPROJECT_EXPORT MvFotoFocus
{
public:
    static constexpr int side = 160; // pixels; larger pictures are made smaller

    /// From (0, 0) at the top left corner to (1, 1); the middle for a null image.
    static QPointF of(const QImage &image);
};

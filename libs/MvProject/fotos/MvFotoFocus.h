// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QImage>
#include <QPointF>

/// Guesses which point of a photo should stay in sight when it is cropped, so that faces stay whole with some air above
/// the head, and what stands out is seen from its top.
///
/// There is no model and no network. On a picture of at most `side` pixels:
/// - **Faces** are found by tones of skin and by eyes, nose and mouth that are darker and lighter than what is beside
///   them (MvFotoFaces). A face counts for most, the head with hair or hat and air above it for less.
/// - Where there are none, **what stands out** counts: colours unlike those of the whole picture, where there is
/// detail,
///   the middle more than the edges; and its top once more, since towers, trees and balloons without their tops look
///   cut off while their feet are not missed.
/// The point is the one whose crops hold the most of it, over frames from narrow upright ones to wide strips. Where all
/// points are alike it is the middle, in upright pictures a little above.
///
/// The same picture always gives the same point.
class MVPROJECT_EXPORT MvFotoFocus
{
public:
    static constexpr int side = 160; // pixels; larger pictures are made smaller

    /// From (0, 0) at the top left corner to (1, 1); the middle for a null image.
    static QPointF of(const QImage &image);
};

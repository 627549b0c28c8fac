// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoInterest.h"
#include "MvProject/mvproject_export.h"

#include <QImage>
#include <QPointF>

/// Guesses what of a photo is worth seeing, and which point should stay in sight when it is cropped, so that faces stay
/// whole with some air above the head, and what stands out is seen from its top.
///
/// There is no model and no network. On a picture of at most `side` pixels:
/// - **Faces** are found by tones of skin and by eyes, nose and mouth that are darker and lighter than what is beside
///   them (MvFotoFaces). A face counts for most, the head with hair or hat and air above it for less.
/// - Where there are none, **what stands out** counts: colours unlike those of the whole picture, where there is
/// detail,
///   the middle more than the edges; and its top once more, since towers, trees and balloons without their tops look
///   cut off while their feet are not missed. What hangs together and holds most of it, as an animal before a wall
///   does, is to be seen whole.
/// The point is the one whose crops hold the most of it, over frames from narrow upright ones to wide strips: for
/// frames of which nothing is known. Where all points are alike it is the middle, in upright pictures a little above.
///
/// The same picture always gives the same.
class MVPROJECT_EXPORT MvFotoFocus
{
public:
    static constexpr int side = 160; // pixels; larger pictures are made smaller

    struct Found
    {
        QPointF point = {0.5, 0.5}; // from (0, 0) at the top left corner to (1, 1)
        MvFotoInterest interest;
    };

    /// The middle, and nothing of interest, for a null image.
    static Found in(const QImage &image);
    static QPointF of(const QImage &image) { return in(image).point; }
};

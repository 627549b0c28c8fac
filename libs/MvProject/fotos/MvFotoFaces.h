// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QList>
#include <QRectF>

/// A face in a photo; rectangles are parts of the photo's width and height.
struct MvFotoFace
{
    QRectF face; // from the hairline to the chin
    QRectF head; // with hair or hat, as far as they stand out, and a little air above
    double score = 0.0;
};

/// Looks for faces in a small picture.
///
/// A window goes over the picture in all sizes that a face may have. It holds one the more
/// - its oval is filled with **tones of skin**: the ratios of red and green that skin has from pale to dark and from
/// full
///   light to shade, in which straw, sand and wood lie at the edge,
/// - the **surroundings** at both sides and above are not of such tones,
/// - it has the **structure** of a face: two dark places in the upper half, lighter ones between and below them, a
/// darker
///   one beneath (eyes, bridge of the nose, cheeks, mouth). What lacks it counts for a third,
/// - it is large and not at the picture's foot.
/// The best windows remain, each without those that overlap it. Above a face, what differs from the picture beside it
/// is hair or a hat.
class MvFotoFaces
{
public:
    /// The faces that are sure enough, the best one first; the picture is of Format_RGB32.
    static QList<MvFotoFace> in(const QImage &picture);
};

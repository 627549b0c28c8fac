// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoElement.h"
#include "MvProject/mvproject_export.h"

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

class MvCalendarDocument;
class MvCalendarPage;
class MvPageFormat;
struct MvFotoPoolItem;

/// Finds the focus of a photo for the frame that it stands in, so that what is worth seeing of it (MvFotoInterest)
/// stands in the part of the frame that nothing covers, whole where it has room, and in the middle of that as far as
/// the photo reaches.
///
/// Photos keep the focus that a person has given them. One that has the focus of its pool, or that found here for the
/// frame it stood in, follows its frame.
class MVPROJECT_EXPORT MvFotoAim
{
public:
    /// For a frame of the size, in whose units the rectangles are those of its parts that are seen, its corner at
    /// (0, 0). How the photo lies in the frame besides says the element. The photo's own focus while its size is not
    /// known.
    static QPointF focus(const MvFotoPoolItem &photo, const MvFotoElement &foto, const QSizeF &frame,
                         const QList<QRectF> &uncovered);
    /// The photo of a frame on the page, with the focus for it; as it is in a frame without a size.
    static MvFotoElement aimed(const MvFotoPoolItem &photo, const MvCalendarPage &page, int element,
                               const MvPageFormat &format);
    /// The changed document with all photos aimed that stood aimed, or in the focus of the pool, and whose frame has
    /// changed, or that came into a frame. Photos that are not in the pool stay as they are.
    static MvCalendarDocument followed(const MvCalendarDocument &before, const MvCalendarDocument &changed);
};

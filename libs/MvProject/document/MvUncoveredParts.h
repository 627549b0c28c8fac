// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageElement.h"
#include "MvProject/MvPageFormat.h"

#include <QList>
#include <QRectF>

/// What is seen of a photo's frame on a page where calendaria, texts and other photos stand on it.
struct MvUncoveredParts
{
    /// The largest rectangles inside the frame that nothing covers, the largest first, at most three, in page units.
    /// Each may share room with another. What is cut off does not count, nor do texts that say nothing without the
    /// photos' captions while there are none. The whole frame when hardly anything is left.
    static QList<QRectF> of(const QList<MvPageElement> &elements, int frame, const MvPageFormat &format);
};

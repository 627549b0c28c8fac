// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QSize>

class MvCalendarPage;
class MvPageFormat;
class MvDateRange;
class MvScreenFotos;
struct MvRenderingSources;

/// Paints a page small, as the strip and choosers show it.
class MvPageThumbnail
{
public:
    /// The size in logical pixels, which the trimmed page fills; the image carries the ratio. The photo is there when
    /// it has been decoded; a null pointer leaves its place grey.
    static QImage make(const MvCalendarPage &page, const MvPageFormat &format, const MvDateRange &range,
                       const QSize &size, double ratio, MvScreenFotos *fotos, const MvRenderingSources &sources);
};

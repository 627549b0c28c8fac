// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QSize>

class MvCalendarPage;
class MvPageFormat;
class MvScreenFotos;
struct MvPageContext;
struct MvRenderingSources;

/// Paints a page small, as the strip and choosers show it.
class MvPageThumbnail
{
public:
    /// What stands in frames without a photo: a grey field, or a drawn picture.
    enum class Empty { Grey, Sample };
    /// Where the picture ends: at the cut, or with the bleed.
    enum class Edge { Trim, Bleed };

    /// The size in logical pixels, which the page fills; the image carries the ratio. Photos are there when
    /// they have been decoded; without any, for a null pointer, all frames are empty.
    static QImage make(const MvCalendarPage &page, const MvPageFormat &format, const MvPageContext &context,
                       const QSize &size, double ratio, MvScreenFotos *fotos, const MvRenderingSources &sources,
                       Empty empty = Empty::Grey, Edge edge = Edge::Trim);
};

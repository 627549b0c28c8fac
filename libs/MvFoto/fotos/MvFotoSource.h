// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QFileInfo>
#include <QImage>
#include <QSize>

/// Where painting takes the pixels of photos from.
///
/// What is painted says how large it needs a photo; the source decides what that costs: an export decodes at once
/// (MvDirectFotoSource), a window gives what it has at hand and paints again when the rest has been decoded
/// (MvFotoPass). Whoever starts a painting chooses the source and hands it down; nothing below asks a global.
class MVFOTO_EXPORT MvFotoSource
{
public:
    virtual ~MvFotoSource();

    /// The photo upright and in sRGB, keeping its proportions: the largest size within the bounds (pixels of the
    /// target), photos that are smaller grow. A source that does not wait may give another size of the same
    /// proportions, so whoever draws it goes by its own rectangle. Null for empty bounds, for a file that cannot be
    /// read, and, from a source that does not wait, for one that is not there yet. Whether the file may be opened
    /// (MvFoto::mayBeOpened()) is for the caller to ask. Threads are a matter of the source.
    virtual QImage scaled(const QFileInfo &file, const QSize &bounds) = 0;

    /// The photo's own size in pixels, upright; empty when it cannot be read, or is not known yet. Unless a source
    /// knows better, from the head of the file.
    virtual QSize fullSize(const QFileInfo &file);
};

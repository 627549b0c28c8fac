// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoSource.h"

/// Decodes photos at once, in the thread that asks, through the process-wide cache of MvImageLoader. Never gives
/// another size than the one asked for. Has no state; any thread.
class MVFOTO_EXPORT MvDirectFotoSource : public MvFotoSource
{
public:
    /// One for all.
    static MvDirectFotoSource &instance();

    QImage scaled(const QFileInfo &file, const QSize &bounds) override;
};

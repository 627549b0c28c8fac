// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoSource.h"

/// Gives every photo its place and no picture: black, in the size that it would have. For who wants to know where
/// things stand and what has no room, which takes no decoding. Has no state; any thread.
class MVFOTO_EXPORT MvBlankFotoSource : public MvFotoSource
{
public:
    /// One for all.
    static MvBlankFotoSource &instance();

    QImage scaled(const QFileInfo &file, const QSize &bounds) override;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <compare>

/// The frame of a video that serves as a photo; a photo has none.
struct MvVideoFrameIndex
{
    int frame = -1; // from 0; negative: not from a video

    bool isValid() const { return frame >= 0; }
    bool operator==(const MvVideoFrameIndex &) const = default;
    auto operator<=>(const MvVideoFrameIndex &) const = default; // NOLINT(modernize-use-nullptr): a false alarm
};

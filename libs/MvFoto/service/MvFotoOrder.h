// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoStamp.h"

#include <QSize>
#include <QString>

#include <optional>

/// A photo in the form in which somebody needs it: which file in which state, how large, and how it meets that size.
/// Equal orders are decoded once. A value.
struct MVFOTO_EXPORT MvFotoOrder
{
    enum class Fit {
        Within,        // the largest size within `size`, keeping the proportions; smaller photos grow
        WithinOwnSize, // the same, but never larger than the file has it
        Covering,      // the middle of the photo, filling all of `size` without distortion
    };

    QString path; // absolute
    QSize size;   // pixels
    Fit fit = Fit::Within;
    /// The state in which an image at hand is welcome; without one, the file is looked at first. A file that turns out
    /// to be in another state is read as it is.
    std::optional<MvFotoStamp> stamp = {};

    bool operator==(const MvFotoOrder &) const = default;
};

inline size_t qHash(const MvFotoOrder &order, size_t seed = 0)
{
    return qHashMulti(seed, order.path, order.size.width(), order.size.height(), int(order.fit),
                      order.stamp.value_or(MvFotoStamp()));
}

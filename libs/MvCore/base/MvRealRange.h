// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// A closed range of real numbers; the default is (0, 0).
struct MvRealRange
{
    double minimum = 0.0;
    double maximum = 0.0;

    bool operator==(const MvRealRange &) const = default;
};

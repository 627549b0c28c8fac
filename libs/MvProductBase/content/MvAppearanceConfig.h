// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/mvproductbase_export.h"

/// What the panels of the application offer, by what is there to be offered.
class MVPRODUCTBASE_EXPORT MvAppearanceConfig
{
public:
    /// Whether the school vacations of any region are known: their data may be missing, or removed from the product.
    static bool vacationsAvailable();
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

/// How the memory of a program is kept. For a program to decide at its start; libraries never do.
class MVCORE_EXPORT MvProcessMemory
{
public:
    /// Pictures are large and come and go: such pieces are given back to the system at once, which would otherwise
    /// keep places for the next ones.
    static void giveBackAtOnce();
};

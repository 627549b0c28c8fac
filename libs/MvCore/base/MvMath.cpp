// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvMath.h"

int MvMath::printerResolution()
{
    return 300;
}

int MvMath::printerResolution2dpm()
{
    return static_cast<int>(printerResolution() / 0.0254);
}

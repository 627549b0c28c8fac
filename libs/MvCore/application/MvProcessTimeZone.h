// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

/// The time zone of a program, which does not change while it runs.
class MVCORE_EXPORT MvProcessTimeZone
{
public:
    /// Without the variable TZ the C library asks the disk for the computer's time zone again at every conversion of a
    /// local time, which is half of what reading a list of entries takes. The variable is given the place that it means
    /// anyway; one that is set stays. To be called before there are threads.
    static void askOnce();
};

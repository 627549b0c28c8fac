// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPressProfile.h"

/// What a print shop expects of a file. Without a valid profile it is not for a press.
struct MvPressSettings
{
    MvPressProfile profile;
    /// What is made up beyond the edges of pages without a bleed of their own, in tenths of a millimetre.
    double bleed = 30.0;
    enum class Bleed {
        Mirrored,  ///< what lies along the edges is turned outwards
        Stretched, ///< their last bit is drawn out
    };
    Bleed bleedKind = Bleed::Mirrored;
    /// Photos in colour keep theirs (sRGB, which the file says), for shops that turn them into inks themselves.
    bool keepsFotoColors = false;
    /// Where to cut and to fold, and what page it is, beside the page.
    bool hasMarks = true;
    /// From which amount of all inks together a page is reported, in percent of one; 0: what the profile says.
    int inkLimit = 0;

    bool isForPress() const { return profile.isValid(); }
    int usedInkLimit() const { return inkLimit > 0 ? inkLimit : profile.inkLimit(); }
};

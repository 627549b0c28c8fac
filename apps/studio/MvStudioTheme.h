#pragma once

#include "MvStudioSettings.h"

class QPalette;

/// The looks of the program: plain Fusion with a light or a dark palette.
class MvStudioTheme
{
public:
    /// For the whole application.
    static void apply(MvStudioSettings::Theme theme);

    /// The system's has no colours of its own.
    static QPalette palette(MvStudioSettings::Theme theme);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// The fonts that come with the library: those of `resources/fonts`, in the faces that layouts and
/// themes are made with.
///
/// A page is measured and divided by its letters, so it looks alike on two computers only if both have the same fonts.
/// Those that ship stand before fonts of the same name that a computer has; other families, and faces that do not ship
/// (a semi-bold Lato, say), are the computer's.
class MvShippedFonts
{
public:
    /// Makes the fonts known to the program, once; further calls do nothing. Without a QGuiApplication there is nothing
    /// to make them known to: the call does nothing and counts for nothing. GUI thread.
    static void registerAll();
};

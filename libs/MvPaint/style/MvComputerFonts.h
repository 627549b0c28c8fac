// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// The fonts that the computer has, with its rules for choosing among them. Reading them takes as long as painting
/// months, so a program that may do without puts it off. GUI thread.
class MvComputerFonts
{
public:
    /// Until read(), the computer seems to have no fonts. Before the first font is asked for.
    static void putOff();
    /// Reads what was put off; otherwise does nothing. Fonts that were added to Qt's by then are to be added again.
    static void read();
};

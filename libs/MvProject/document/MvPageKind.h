// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// What a page is for. Pages of months follow from the range of the calendar; the others are put in by somebody.
enum class MvPageKind {
    Month, ///< of the range: a month, or twelve where the layout shows years
    Cover, ///< before all months
    Free,  ///< where somebody has put it; it keeps the month it was made for
    Back,  ///< after all months
};

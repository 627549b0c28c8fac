// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvEnumWrapper.h"
#include "MvCore/mvcore_export.h"

class QFont;

/// Paper classes: one bit per DIN A size, each a factor of the square root of two in length apart.
enum MvSpaceMagnitudeEnum : qint32 {
    MAGNITUDE_NONE = 0,
    MAGNITUDE_A8 = 8,
    MAGNITUDE_A7 = 16,
    MAGNITUDE_A6 = 32,
    MAGNITUDE_A5 = 64,
    MAGNITUDE_A4 = 128,
    MAGNITUDE_A3 = 256,
    MAGNITUDE_A2 = 512,
    MAGNITUDE_A1 = 1024,
    MAGNITUDE_A0 = 2048,
};

extern template class MVCORE_EXPORT MvEnumWrapper<MvSpaceMagnitudeEnum>;

/// The order of magnitude of a piece of paper, by the DIN A class nearest to it. Names: "a8" to "a0"; default none.
class MVCORE_EXPORT MvSpaceMagnitude : public MvEnumWrapper<MvSpaceMagnitudeEnum>
{
    MV_ENUM_WRAPPER(MvSpaceMagnitude, MvSpaceMagnitudeEnum)

    /// The class whose area is nearest to that of a page of the given size in tenths of a millimetre; an empty size
    /// gives none.
    static MvSpaceMagnitude ofPage(double width, double height);

    /// Factor in length from this class to the other: the square root of two per step. 1 when either is none.
    double lengthFactor(const MvSpaceMagnitude &target) const;

    /// The font, designed for this class, scaled to the target class. A target of none leaves it alone. Works on the
    /// pixel size, which stays at 1 or more.
    QFont adaptFont(const QFont &font, const MvSpaceMagnitude &target) const;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvPaintedFoto.h"
#include "MvCalendar/MvUnfittingText.h"
#include "MvProject/MvUnfittingElement.h"

#include <QList>

/// What came of painting a page besides the picture: what a person may want to know before it is printed.
struct MvPageFindings
{
    QList<MvUnfittingText> unfitting;   ///< texts of calendaria that do not stand whole, in the order of painting
    QList<MvPaintedFoto> fotos;         ///< the photos of days, in the order of painting
    QList<MvUnfittingElement> elements; ///< texts beside the calendaria that do not stand whole

    bool operator==(const MvPageFindings &) const = default;
};

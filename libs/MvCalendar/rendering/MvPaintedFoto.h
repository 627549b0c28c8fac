// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDate>
#include <QRectF>

/// Where a pass has drawn the photo of a day.
struct MvPaintedFoto
{
    QDate date;
    QRectF rect; ///< of the whole photo, in page units

    bool operator==(const MvPaintedFoto &) const = default;
};

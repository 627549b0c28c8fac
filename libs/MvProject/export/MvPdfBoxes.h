// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QRectF>
#include <QString>

#include <functional>

class MvPageSource;

/// Finishes the PDF that the paint system wrote, which knows whole points only: exact boxes, metadata, colour space.
class MVPROJECT_EXPORT MvPdfBoxes
{
public:
    /// Points of a PDF, 1/72 inch, per tenth of a millimetre.
    static constexpr double pointsPerTenthMillimetre = 72.0 / 254.0;

    /// Reads the raw file, whose pages have the corner of their media box at the lower left, and hands the finished
    /// one over; what came of that is what is given back. A raw file that is damaged, or does not have a page per page
    /// of the source, is an error.
    static MvOutcome finish(const QString &rawFile, const MvPageSource &source,
                            const std::function<MvOutcome(const QByteArray &)> &take);
};

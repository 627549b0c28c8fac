// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/mvproject_export.h"

#include <QStringList>

/// Puts the photos of a calendar's pool into its empty frames.
///
/// Only photos that are on no page yet are taken, each once, and only empty frames get one: what a person has placed
/// stays where it is, and distributing again changes nothing. In this order:
/// 1. The largest frame of each month's page gets a photo of that month, of the shown year rather than another, and
///    of several the one whose shape and size suit the frame best, with its faces whole.
/// 2. Months of which there is no photo get one of the others, by season, then shape; photos without a time keep their
///    order in the pool.
/// 3. Covers get what suits them best of all that are left.
/// 4. The other frames of months, then free pages, then backs, as in 1 and 2.
///
/// The page with a month's photo that faces it counts as the month's. So with fewer photos than frames it is the months
/// that have one; with more, the rest stays in the pool. A cover or back with many frames (`framesOfIndex`) is an
/// index: when enough photos are left, it gets them; else it shows the photos of the months once more, one for each.
class MVPROJECT_EXPORT MvFotoDistribution
{
public:
    static constexpr int framesOfIndex = 9;

    struct Result
    {
        MvCalendarDocument document;
        int placed = 0;      // frames that got a photo
        int emptyFrames = 0; // that are left
        QStringList unused;  // photos of the pool that are on no page, in its order
    };

    /// Asks no disk: photos whose size is not known stay in the pool.
    static Result distribute(const MvCalendarDocument &document);
    /// The same for the empty frames of one page, counted from 0.
    static Result distribute(const MvCalendarDocument &document, int page);
};

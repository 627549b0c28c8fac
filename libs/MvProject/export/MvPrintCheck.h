// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvRenderingSources.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPrintFinding.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QList>

#include <optional>

/// Everything that would print badly, in one list: of a whole calendar or of a page, each with its place.
///
/// It answers for photos (missing, unreadable, too coarse), frames that are still empty, texts without room or without
/// glyphs, and what stands in the binding or so near to the edge that it may be cut. Photos that bleed may lie under
/// the binding: that is how they are hung. GUI thread, like painting.
class MVPROJECT_EXPORT MvPrintCheck
{
    Q_DECLARE_TR_FUNCTIONS(MvPrintCheck)

public:
    static constexpr double coarseBelow = 150.0;     // pixels per inch: a hint
    static constexpr double veryCoarseBelow = 100.0; // a strong one

    enum class Depth {
        Heads,  ///< of photos only what their files' heads say, and what is known from reading them before
        Photos, ///< every photo is decoded once, in a small size: one that is cut off is told
    };

    /// In the order of pages. Records every page for nothing else; who paints them anyway asks by page.
    static QList<MvPrintFinding> ofDocument(const MvCalendarDocument &document, const MvRenderingSources &sources = {},
                                            Depth depth = Depth::Heads);
    /// Of a page, counted from 0, that is recorded for that; empty for a number without a page.
    static QList<MvPrintFinding> ofPage(const MvCalendarDocument &document, int page,
                                        const MvRenderingSources &sources = {});
    /// Of a page that has been painted or recorded, by what was found then.
    static QList<MvPrintFinding> ofPaintedPage(const MvCalendarDocument &document, int page,
                                               const MvPageFindings &findings, const MvRenderingSources &sources = {});
    /// None for 0, of which nothing is known, and from `coarseBelow` on.
    static std::optional<MvPrintFinding::Severity> severity(double pixelsPerInch);
    /// What a page is called in such a list: "Titelblatt", "Mai 2027".
    static QString pageName(const MvCalendarDocument &document, int page);
};

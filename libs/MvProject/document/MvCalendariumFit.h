// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvCore/MvSpaceMagnitude.h"
#include "MvProductBase/MvCalendariumContentConfig.h"

#include <QSizeF>

#include <memory>

class MvCalendariumRenderer;

/// Fits a calendarium, and the line with its month where it has one above it, into the room that a page leaves them:
/// type and paddings are scaled to the paper, and then made smaller together until a month's name and the numbers of
/// its days find their place, or until type has reached its floor.
///
/// It is the same for all months, so that pages of one layout look alike. The names of weekdays and the texts of days
/// do not count; renderers make them fit by themselves, and so do those of whole years.
class MvCalendariumFit
{
public:
    MvCalendariumFit(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content,
                     const MvSpaceMagnitude &paper, const QSizeF &room, bool withLine = true,
                     const MvRenderingSources &sources = {});

    /// The fit of these, found once: pages of a layout ask one after the other, and a page is painted again and again.
    /// The last few that were asked for are kept. GUI thread.
    static MvCalendariumFit shared(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content,
                                   const MvSpaceMagnitude &paper, const QSizeF &room, bool withLine = true,
                                   const MvRenderingSources &sources = {});

    /// The appearance of the line with the month; an invalid one for a calendarium that shows its month itself, or is
    /// to have none above it.
    const MvCalendariumAppearance &lineAppearance() const { return m_lineAppearance; }
    /// The height of that line; 0 without one.
    double lineHeight() const { return lineHeight(m_scale); }
    /// Gives a renderer of the calendarium or of the line its type and paddings.
    void apply(MvCalendariumRenderer &renderer) const { apply(renderer, m_scale); }

private:
    using Renderer = std::unique_ptr<MvCalendariumRenderer>;

    double largestScale() const;
    bool hasRoom(double scale) const;
    bool findsNothingUnfitting(double scale) const;
    QSizeF roomBelowLine(double scale) const;
    double lineHeight(double scale) const;
    void apply(MvCalendariumRenderer &renderer, double scale) const;
    Renderer makeRenderer(const MvCalendariumAppearance &appearance, double scale) const;

    MvCalendariumAppearance m_appearance;
    MvCalendariumAppearance m_lineAppearance;
    MvCalendariumContentConfig m_content; // without texts, in the longest month
    MvSpaceMagnitude m_paper;
    QSizeF m_room;
    bool m_mayHaveLine;
    MvRenderingSources m_sources; // while the fit is found
    double m_scale = 1.0;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCore/MvSingleton.h"

#include <QList>

class MvCalendariumAppearance;
class MvCalendariumRenderer;
class MvCalendariumRendererFactory;
extern template class MVCALENDAR_EXPORT MvSingleton<MvCalendariumRendererFactory>;

/// Makes the renderer for an appearance's kind of calendarium.
class MVCALENDAR_EXPORT MvCalendariumRendererFactory : public MvSingleton<MvCalendariumRendererFactory>
{
public:
    /// A new renderer that the caller owns; never null: an unknown kind gives the month-only renderer.
    MvCalendariumRenderer *createRenderer(const MvCalendariumAppearance &appearance) const;

    /// The cell types that a page of this appearance shows: what editors offer for colours and fonts.
    QList<MvCalendarCellType> usedCellTypes(const MvCalendariumAppearance &appearance) const;
    bool hasOneHeaderPerDay(const MvCalendariumAppearance &appearance) const;
};

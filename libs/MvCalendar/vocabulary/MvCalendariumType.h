// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvCalendariumTraits.h"
#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

class QDomElement;

/// The kinds of calendarium, one per renderer.
enum MvCalendariumTypeEnum : qint32 {
    CALENDAR_ONE_WEEK_PER_ROW = 1,
    CALENDAR_TWO_WEEKS = 2,
    CALENDAR_MONTH_ONLY = 4,
    CALENDAR_ONE_DAY_PER_ROW = 8,
    CALENDAR_ONE_COLUMN_PER_WEEK = 16,
    CALENDAR_YEAR = 32,
    CALENDAR_YEAR_ONLY = 64,
    CALENDAR_ONE_ROW = 128,
    CALENDAR_HOLIDAYS = 256,
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendariumTypeEnum>;

/// One kind of calendarium; unknown names read as 0.
class MVCALENDAR_EXPORT MvCalendariumType : public MvEnumWrapper<MvCalendariumTypeEnum>
{
    MV_ENUM_WRAPPER(MvCalendariumType, MvCalendariumTypeEnum)

    /// Reads the attribute "type"; missing: 0.
    void fromXML(const QDomElement &element);
    /// Writes the attribute "type".
    void toXML(QDomElement &element) const;

    /// What the kind is like; for a value that is none, what is the least.
    const MvCalendariumTraits &traits() const;
    /// The cell type whose colours and font stand for the whole calendarium, for example in previews.
    MvCalendarCellType mostImportantCalendarCell() const;
    /// True for the kinds whose cells may have border lines: the grids, the day list, the one row and the year.
    bool canPaintBorders() const;
};

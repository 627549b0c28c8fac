// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

#include <QHash>
#include <QList>

class QDomElement;

/// What a cell of a calendarium shows. Bit flags: a value may hold several types.
enum MvCalendarCellTypeEnum : qint32 {
    CALENDAR_CELL_TYPE_TITLE = 1,
    CALENDAR_CELL_TYPE_WEEKDAY = 2,
    CALENDAR_CELL_TYPE_SATURDAY = 4,
    CALENDAR_CELL_TYPE_SUNDAY = 8,
    CALENDAR_CELL_TYPE_SPECIAL_DAY = 16,
    CALENDAR_CELL_TYPE_COMMENT = 32,
    CALENDAR_CELL_TYPE_EMPTY = 64,
    CALENDAR_CELL_TYPE_EXTRA_INFORMATION = 128,
    CALENDAR_CELL_TYPE_HEAD_WEEKDAY = 256,
    CALENDAR_CELL_TYPE_HEAD_SATURDAY = 512,
    CALENDAR_CELL_TYPE_HEAD_SUNDAY = 1024,
    CALENDAR_CELL_TYPE_TOPLINE = 2048,
    CALENDAR_CELL_TYPE_HEAD_EMPTY = 2048, // a second name of TOPLINE in files
    CALENDAR_CELL_TYPE_DAY_OF_WEEK = 4096,
    CALENDAR_CELL_TYPE_WEEK_OF_YEAR = 8192,
    CALENDAR_CELL_TYPE_MONTH = 16384,
    CALENDAR_CELL_TYPE_YEAR = 32768,
    CALENDAR_CELL_TYPE_HOLIDAY = 0x10000,
    CALENDAR_CELL_TYPE_HEAD_HOLIDAY = 0x20000,
    CALENDAR_CELL_TYPE_SCHOOL_VACATION = 0x40000,
    CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION = 0x80000,
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendarCellTypeEnum>;

/// One cell type or a set of them. Unknown names read as 0.
class MVCALENDAR_EXPORT MvCalendarCellType : public MvEnumWrapper<MvCalendarCellTypeEnum>
{
    MV_ENUM_WRAPPER(MvCalendarCellType, MvCalendarCellTypeEnum)

    /// The union of the types; an empty list gives 0.
    explicit MvCalendarCellType(const QList<MvCalendarCellType> &types);

    /// The union of all twenty types.
    static MvCalendarCellType allTypes();
    /// The types of which this value is made, lowest bit first.
    QList<MvCalendarCellType> singleTypes() const;

    /// Reads the attribute "type": one or several names; missing or unknown: 0.
    void fromXML(const QDomElement &element);
    /// Writes the attribute "type". A set of several types has no name and writes an empty text.
    void toXML(QDomElement &element) const;

    /// The type whose colours a holiday or school vacation type takes when it has none of its own: Sunday for holidays,
    /// Saturday for vacations, head types alike. 0 for every other value.
    MvCalendarCellType synthetizingSource() const;

    /// Adds the types that belong with those of the set and are not visible: a weekday brings its head, Saturdays,
    /// Sundays and what hangs on them.
    void expandToInvisibleCells(const MvCalendarCellType &visible);
    /// If the set shares a type with the trigger, adds each listed type that is not in `visible`.
    void possiblyExpand(const MvCalendarCellType &trigger, const QList<MvCalendarCellType> &list,
                        const MvCalendarCellType &visible);

    /// The name shown to users; empty for a value that is not a single type.
    QString description() const;
    static const QHash<MvCalendarCellType, QString> &descriptionHash();
};

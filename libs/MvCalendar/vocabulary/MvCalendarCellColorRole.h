// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

#include <QColor>
#include <QList>

/// What a colour of a cell is for.
enum class MvCalendarCellColorRoleEnum : qint32 {
    none = 0,
    bgcolor = 1,
    textcolor = 2,
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendarCellColorRoleEnum>;

/// Unknown names read as none.
class MVCALENDAR_EXPORT MvCalendarCellColorRole : public MvEnumWrapper<MvCalendarCellColorRoleEnum>
{
    MV_ENUM_WRAPPER(MvCalendarCellColorRole, MvCalendarCellColorRoleEnum)

    /// Black for texts, transparent for everything else.
    QColor defaultColor() const;
    /// The attributes that hold the role's colours of even and of odd weeks: "bgcoloreven", "textcolorodd".
    QString evenKey() const;
    QString oddKey() const;
    /// The single roles: background, text.
    static QList<MvCalendarCellColorRole> allRoles();
};

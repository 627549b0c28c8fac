// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarCellDefaultColors.h"

#include <QDomElement>

MvCalendarCellDefaultColors MvCalendarCellDefaultColors::superDefault()
{
    MvCalendarCellDefaultColors defaults;
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles())
        defaults.setPair(role, {role.defaultColor(), role.defaultColor()});
    return defaults;
}

void MvCalendarCellDefaultColors::setPair(const MvCalendarCellColorRole &role, const MvCalendariumCellColorPair &pair)
{
    m_pairs.insert(role, pair);
}

MvCalendarCellDefaultColors MvCalendarCellDefaultColors::fromXML(const QDomElement &element)
{
    MvCalendarCellDefaultColors defaults = superDefault();
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles())
        defaults.setPair(role, MvCalendariumCellColorPair::fromXML(element, role, defaults.pair(role)));
    return defaults;
}

void MvCalendarCellDefaultColors::toXML(QDomElement &element) const
{
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles())
        pair(role).toXML(element, role);
}

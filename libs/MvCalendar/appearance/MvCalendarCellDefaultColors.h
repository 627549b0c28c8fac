// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumCellColorPair.h"

#include <QHash>

/// One colour pair per role: what the cells of a schema have unless they say otherwise.
class MVCALENDAR_EXPORT MvCalendarCellDefaultColors
{
public:
    /// Every role's own default colour: transparent backgrounds, black texts.
    static MvCalendarCellDefaultColors superDefault();

    MvCalendariumCellColorPair pair(const MvCalendarCellColorRole &role) const { return m_pairs.value(role); }
    void setPair(const MvCalendarCellColorRole &role, const MvCalendariumCellColorPair &pair);

    /// The pairs among the element's attributes, with the super default as fallback.
    static MvCalendarCellDefaultColors fromXML(const QDomElement &element);
    void toXML(QDomElement &element) const;

    bool operator==(const MvCalendarCellDefaultColors &) const = default;

private:
    QHash<MvCalendarCellColorRole, MvCalendariumCellColorPair> m_pairs;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellColorRole.h"

#include <QColor>

class QDomElement;

/// The colours of something in even and in odd weeks.
class MVCALENDAR_EXPORT MvCalendariumCellColorPair
{
public:
    MvCalendariumCellColorPair() = default;
    MvCalendariumCellColorPair(const QColor &even, const QColor &odd);

    QColor color(bool even) const { return even ? m_even : m_odd; }
    void setColor(const QColor &color, bool even);

    /// The role's colours among the attributes of the element: an attribute named like the role gives both, "...even"
    /// and "...odd" one each; what is missing or no colour comes from the fallback.
    static MvCalendariumCellColorPair fromXML(const QDomElement &element, const MvCalendarCellColorRole &role,
                                              const MvCalendariumCellColorPair &fallback);
    /// One attribute when both colours are equal, otherwise two.
    void toXML(QDomElement &element, const MvCalendarCellColorRole &role) const;

    bool operator==(const MvCalendariumCellColorPair &) const = default;

private:
    QColor m_even;
    QColor m_odd;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumCellColorPair.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

MvCalendariumCellColorPair::MvCalendariumCellColorPair(const QColor &even, const QColor &odd)
    : m_even(even)
    , m_odd(odd)
{}

void MvCalendariumCellColorPair::setColor(const QColor &color, bool even)
{
    (even ? m_even : m_odd) = color;
}

MvCalendariumCellColorPair MvCalendariumCellColorPair::fromXML(const QDomElement &element,
                                                               const MvCalendarCellColorRole &role,
                                                               const MvCalendariumCellColorPair &fallback)
{
    const QString name = role.encode();
    const QColor even = MvXMLParser::colorAttribute(element, name, fallback.color(true));
    const QColor odd = MvXMLParser::colorAttribute(element, name, fallback.color(false));
    return {MvXMLParser::colorAttribute(element, role.evenKey(), even),
            MvXMLParser::colorAttribute(element, role.oddKey(), odd)};
}

void MvCalendariumCellColorPair::toXML(QDomElement &element, const MvCalendarCellColorRole &role) const
{
    if (m_even == m_odd) {
        MvXMLBuilder::addAttribute(element, role.encode(), m_even);
        return;
    }
    MvXMLBuilder::addAttribute(element, role.evenKey(), m_even);
    MvXMLBuilder::addAttribute(element, role.oddKey(), m_odd);
}

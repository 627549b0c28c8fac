// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchemaID.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

using namespace Qt::StringLiterals;

bool MvCalendariumLayoutSchemaID::isUserID() const
{
    return m_id.startsWith("USER_"_L1);
}

void MvCalendariumLayoutSchemaID::read(const QDomElement &element)
{
    m_id = MvXMLParser::textAttribute(element, u"layoutschema"_s);
    if (m_id.isEmpty())
        m_id = MvXMLParser::textAttribute(element, u"schema"_s);
}

void MvCalendariumLayoutSchemaID::write(QDomElement &element) const
{
    MvXMLBuilder::addAttribute(element, u"layoutschema"_s, m_id);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaID.h"

#include "MvCalendar/MvCalendariumColorSchemaIDSynonyma.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <QDataStream>
#include <QDebug>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {
constexpr QLatin1StringView userPrefix("USER_");
}

MvCalendariumColorSchemaID MvCalendariumColorSchemaID::create()
{
    const quint64 random = QRandomGenerator::system()->generate();
    return MvCalendariumColorSchemaID(userPrefix + QString::number((random * 100000) >> 32));
}

bool MvCalendariumColorSchemaID::isUserSchema() const
{
    return m_id.startsWith(userPrefix);
}

void MvCalendariumColorSchemaID::read(const QDomElement &element)
{
    m_id = MvXMLParser::textAttribute(element, u"colorschema"_s);
    if (m_id.isEmpty())
        m_id = MvXMLParser::textAttribute(element, u"schema"_s);
    m_id = MvCalendariumColorSchemaIDSynonyma::instance().renamed(m_id);
}

void MvCalendariumColorSchemaID::write(QDomElement &element) const
{
    MvXMLBuilder::addAttribute(element, u"colorschema"_s, m_id);
}

QDataStream &operator<<(QDataStream &stream, const MvCalendariumColorSchemaID &id)
{
    return stream << id.toString();
}

QDebug operator<<(QDebug debug, const MvCalendariumColorSchemaID &id)
{
    return debug << id.toString();
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaIDSynonyma.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

template class MvSingleton<MvCalendariumColorSchemaIDSynonyma>;

using namespace Qt::StringLiterals;

void MvCalendariumColorSchemaIDSynonyma::setupInstance()
{
    initCalendarSchemaTranslations();
}

void MvCalendariumColorSchemaIDSynonyma::initCalendarSchemaTranslations()
{
    read(MvXMLLoader::loadDocumentElement(MvDirectoryConfig::instance().resource(u"schemas/calendar_synonym.xml"_s)));
}

void MvCalendariumColorSchemaIDSynonyma::read(const QDomElement &element)
{
    const QString tag = u"synonym"_s;
    for (QDomElement pair = element.firstChildElement(tag); !pair.isNull(); pair = pair.nextSiblingElement(tag)) {
        const QString oldId = MvXMLParser::textAttribute(pair, u"old"_s);
        const QString newId = MvXMLParser::textAttribute(pair, u"new"_s);
        if (!oldId.isEmpty() && !newId.isEmpty())
            m_currentIds.insert(oldId, newId);
    }
}

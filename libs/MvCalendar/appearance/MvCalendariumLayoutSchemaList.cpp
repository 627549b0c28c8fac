// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchemaList.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
const QString areaTag = u"calendararea"_s;
}

void MvCalendariumLayoutSchemaList::read(const QFileInfo &file)
{
    read(MvXMLLoader::loadDocumentElement(file));
}

void MvCalendariumLayoutSchemaList::read(const QDomElement &element)
{
    for (QDomElement area = element.firstChildElement(areaTag); !area.isNull();
         area = area.nextSiblingElement(areaTag)) {
        const MvCalendariumLayoutSchema schema(area);
        if (schema.isValid())
            append(schema);
    }
}

void MvCalendariumLayoutSchemaList::write(QDomElement &element) const
{
    for (const MvCalendariumLayoutSchema &schema : *this) {
        QDomElement area = MvXMLBuilder::buildDomElement(element, areaTag);
        schema.write(area);
    }
}

MvCalendariumLayoutSchemaList MvCalendariumLayoutSchemaList::userSchemaList() const
{
    MvCalendariumLayoutSchemaList users;
    std::copy_if(cbegin(), cend(), std::back_inserter(users),
                 [](const MvCalendariumLayoutSchema &schema) { return schema.isUserSchema(); });
    return users;
}

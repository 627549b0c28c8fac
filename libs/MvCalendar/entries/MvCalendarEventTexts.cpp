// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventTexts.h"

#include <QDomElement>
#include <QXmlStreamReader>

MvCalendarEventTexts::MvCalendarEventTexts(const QDomElement &element)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (!m_texts.contains(child.tagName()))
            m_texts.insert(child.tagName(), child.text());
    }
}

MvCalendarEventTexts::MvCalendarEventTexts(QXmlStreamReader &reader)
{
    while (reader.readNextStartElement()) {
        const QString name = reader.qualifiedName().toString();
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        if (!m_texts.contains(name))
            m_texts.insert(name, text);
    }
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvSchemaFileCheck.h"

#include "MvCalendar/MvCalendarBorderType.h"
#include "MvCalendar/MvCalendarCellColorRole.h"
#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvCalendarRenderingInformation.h"
#include "MvCalendar/MvCalendariumType.h"
#include "MvCalendar/MvSchemaPlace.h"
#include "MvCore/MvSpaceMagnitude.h"
#include "MvXML/MvXMLParser.h"

#include <QDomElement>

using namespace Qt::StringLiterals;

namespace {

const QString typeKey = u"type"_s;
const QString cellTag = u"cell"_s;

/// The words of a list that the enumeration does not have.
template <class Wrapper>
QStringList unknownWords(const QString &text)
{
    const auto *table = Wrapper().enumToStringTable();
    const QString neutral = table->encode(table->defaultValue());
    QStringList unknown;
    for (const QString &part : text.split(u',', Qt::SkipEmptyParts)) {
        const QString word = part.trimmed();
        if (!word.isEmpty() && table->decodeCSV(word) == table->defaultValue() &&
            word.compare(neutral, Qt::CaseInsensitive) != 0)
            unknown.append(word);
    }
    return unknown;
}

QString idOf(const QDomElement &area, const QString &key)
{
    const QString id = MvXMLParser::textAttribute(area, key);
    return id.isEmpty() ? MvXMLParser::textAttribute(area, u"schema"_s) : id;
}

QStringList unknownColors(const QDomElement &element)
{
    QStringList unknown;
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles()) {
        for (const QString &key : {role.encode(), role.evenKey(), role.oddKey()}) {
            const QString text = element.attribute(key).trimmed();
            if (!text.isEmpty() && !MvXMLParser::color(text).isValid())
                unknown.append(text);
        }
    }
    return unknown;
}

} // namespace

void MvSchemaFileCheck::checkColors(const QDomElement &area) const
{
    const QString id = idOf(area, u"colorschema"_s);
    for (QDomElement child = area.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.tagName() == cellTag)
            warnOfWords(child, id, typeKey, unknownWords<MvCalendarCellType>(child.attribute(typeKey)));
        warnOfWords(child, id, tr("Farbe"), unknownColors(child));
    }
}

bool MvSchemaFileCheck::checkLayout(const QDomElement &area) const
{
    const QString id = idOf(area, u"layoutschema"_s);
    const bool isKnown = isKnownKind(area);
    if (!isKnown)
        MvSchemaPlace(m_file, area)
            .warn(
                tr("Das Layout %1 bleibt weg: seine Art (type) „%2“ gibt es nicht.").arg(id, area.attribute(typeKey)));
    warnOfWords(area, id, u"renderinfo"_s,
                unknownWords<MvCalendarRenderingInformation>(area.attribute(u"renderinfo"_s)));
    warnOfWords(area, id, u"optimizedSize"_s, unknownWords<MvSpaceMagnitude>(area.attribute(u"optimizedSize"_s)));
    for (QDomElement cell = area.firstChildElement(cellTag); !cell.isNull(); cell = cell.nextSiblingElement(cellTag)) {
        warnOfWords(cell, id, typeKey, unknownWords<MvCalendarCellType>(cell.attribute(typeKey)));
        warnOfWords(cell, id, u"bordertype"_s, unknownWords<MvCalendarBorderType>(cell.attribute(u"bordertype"_s)));
    }
    return isKnown;
}

bool MvSchemaFileCheck::isKnownKind(const QDomElement &layout)
{
    const QString type = layout.attribute(typeKey);
    return MvCalendariumType(type).isValid() && unknownWords<MvCalendariumType>(type).isEmpty();
}

void MvSchemaFileCheck::warnOfWords(const QDomElement &place, const QString &schema, const QString &attribute,
                                    const QStringList &unknown) const
{
    if (!unknown.isEmpty())
        MvSchemaPlace(m_file, place)
            .warn(tr("%1: „%2“ gibt es nicht (%3); es zählt nicht.").arg(schema, unknown.join(u", "_s), attribute));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchemaImpl.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
const QString cellTag = u"cell"_s;
const QString columnHeadersKey = u"columnheaders"_s;
const QString holidayFontKey = u"holidayfontpercentage"_s;
const QString monthLayoutKey = u"monthlayout"_s;
const QString optimizedSizeKey = u"optimizedSize"_s;
} // namespace

void MvCalendariumLayoutSchemaImpl::read(const QDomElement &element)
{
    type.fromXML(element);
    renderingInformation.fromXML(element);
    id.read(element);
    name.read(element, u"name"_s);
    description.read(element, u"description"_s);
    readSuggestions(element);
    optimizedSize = MvSpaceMagnitude(MvXMLParser::textAttribute(element, optimizedSizeKey));
    readCells(element);
    copyCellInfoIfMissing(CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SCHOOL_VACATION);
    copyCellInfoIfMissing(CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY);
    copyCellInfoIfMissing(CALENDAR_CELL_TYPE_HEAD_SATURDAY, CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION);
    copyCellInfoIfMissing(CALENDAR_CELL_TYPE_HEAD_SUNDAY, CALENDAR_CELL_TYPE_HEAD_HOLIDAY);
    noCellHasABorder =
        std::none_of(cells.cbegin(), cells.cend(), [](const auto &cell) { return cell.borderType().isValid(); });
}

void MvCalendariumLayoutSchemaImpl::write(QDomElement &element) const
{
    type.toXML(element);
    renderingInformation.toXML(element);
    id.write(element);
    name.write(element, u"name"_s);
    description.write(element, u"description"_s);
    writeSuggestions(element);
    if (optimizedSize.isValid())
        MvXMLBuilder::addAttribute(element, optimizedSizeKey, optimizedSize.encodeCSV());
    QList<MvCalendarCellType> types = cells.keys();
    std::sort(types.begin(), types.end());
    for (const MvCalendarCellType &cellType : std::as_const(types)) {
        QDomElement cell = MvXMLBuilder::buildDomElement(element, cellTag);
        cellType.toXML(cell);
        cells.value(cellType).toXML(cell);
    }
}

void MvCalendariumLayoutSchemaImpl::readSuggestions(const QDomElement &element)
{
    columnHeaders = MvXMLParser::textAttribute(element, columnHeadersKey);
    holidayFontPercentage = MvXMLParser::intAttribute(element, holidayFontKey, defaultHolidayFontPercentage);
    monthLayout = MvCalendariumLayoutSchemaID(MvXMLParser::textAttribute(element, monthLayoutKey));
}

void MvCalendariumLayoutSchemaImpl::writeSuggestions(QDomElement &element) const
{
    if (!columnHeaders.isEmpty())
        MvXMLBuilder::addAttribute(element, columnHeadersKey, columnHeaders);
    if (holidayFontPercentage != defaultHolidayFontPercentage)
        MvXMLBuilder::addAttribute(element, holidayFontKey, holidayFontPercentage);
    if (monthLayout.isValid())
        MvXMLBuilder::addAttribute(element, monthLayoutKey, monthLayout.toString());
}

void MvCalendariumLayoutSchemaImpl::readCells(const QDomElement &element)
{
    cells.clear();
    for (QDomElement cell = element.firstChildElement(cellTag); !cell.isNull();
         cell = cell.nextSiblingElement(cellTag)) {
        MvCalendarCellType types;
        types.fromXML(cell);
        const MvCalendariumLayoutCellInfo info(cell);
        const QList<MvCalendarCellType> singles = types.singleTypes();
        for (const MvCalendarCellType &single : singles)
            cells.insert(single, info);
    }
}

void MvCalendariumLayoutSchemaImpl::copyCellInfoIfMissing(const MvCalendarCellType &from, const MvCalendarCellType &to)
{
    const auto source = cells.constFind(from);
    if (source == cells.cend() || cells.contains(to))
        return;
    cells.insert(to, MvCalendariumLayoutCellInfo(*source)); // a copy: insert() may move the hash
}

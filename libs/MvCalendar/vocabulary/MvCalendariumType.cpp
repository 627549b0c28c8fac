// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumType.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

template class MvEnumWrapper<MvCalendariumTypeEnum>;

void MvCalendariumType::fillTable(Table *table) const
{
    table->insert(QStringLiteral("CALENDAR_ONE_WEEK_PER_ROW"), CALENDAR_ONE_WEEK_PER_ROW);
    table->insert(QStringLiteral("CALENDAR_TWO_WEEKS"), CALENDAR_TWO_WEEKS);
    table->insert(QStringLiteral("CALENDAR_MONTH_ONLY"), CALENDAR_MONTH_ONLY);
    table->insert(QStringLiteral("CALENDAR_ONE_DAY_PER_ROW"), CALENDAR_ONE_DAY_PER_ROW);
    table->insert(QStringLiteral("CALENDAR_ONE_COLUMN_PER_WEEK"), CALENDAR_ONE_COLUMN_PER_WEEK);
    table->insert(QStringLiteral("CALENDAR_YEAR"), CALENDAR_YEAR);
    table->insert(QStringLiteral("CALENDAR_YEAR_ONLY"), CALENDAR_YEAR_ONLY);
    table->insert(QStringLiteral("CALENDAR_ONE_ROW"), CALENDAR_ONE_ROW);
    table->insert(QStringLiteral("CALENDAR_HOLIDAYS"), CALENDAR_HOLIDAYS);
}

void MvCalendariumType::fromXML(const QDomElement &element)
{
    decode(MvXMLParser::textAttribute(element, QStringLiteral("type")));
}

void MvCalendariumType::toXML(QDomElement &element) const
{
    MvXMLBuilder::addAttribute(element, QStringLiteral("type"), encodeCSV());
}

MvCalendarCellType MvCalendariumType::mostImportantCalendarCell() const
{
    switch (value()) {
    case CALENDAR_MONTH_ONLY:
        return CALENDAR_CELL_TYPE_MONTH;
    case CALENDAR_YEAR_ONLY:
        return CALENDAR_CELL_TYPE_YEAR;
    default:
        return CALENDAR_CELL_TYPE_WEEKDAY;
    }
}

bool MvCalendariumType::canPaintBorders() const
{
    return hasAnyOf(MvCalendariumType(CALENDAR_ONE_WEEK_PER_ROW | CALENDAR_TWO_WEEKS | CALENDAR_ONE_DAY_PER_ROW |
                                      CALENDAR_YEAR | CALENDAR_ONE_ROW));
}

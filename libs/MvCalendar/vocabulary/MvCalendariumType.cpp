// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumType.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

template class MvEnumWrapper<MvCalendariumTypeEnum>;

namespace {

struct Kind
{
    MvCalendariumTypeEnum type{};
    QLatin1StringView name; // in files
    MvCalendariumTraits traits;
};

/// All that there are. A new one needs a row here and a line in MvCalendariumRendererFactory.
constexpr std::array kinds{
    Kind{CALENDAR_ONE_WEEK_PER_ROW,
         "CALENDAR_ONE_WEEK_PER_ROW"_L1,
         {.canPaintBorders = true, .offersHolidays = true, .offersHolidayColors = true, .hasDayCells = true}},
    Kind{CALENDAR_TWO_WEEKS, "CALENDAR_TWO_WEEKS"_L1, {.canPaintBorders = true, .hasDayCells = true}},
    Kind{CALENDAR_MONTH_ONLY, "CALENDAR_MONTH_ONLY"_L1, {.mostImportantCell = CALENDAR_CELL_TYPE_MONTH}},
    Kind{CALENDAR_ONE_DAY_PER_ROW,
         "CALENDAR_ONE_DAY_PER_ROW"_L1,
         {.canPaintBorders = true,
          .offersHolidays = true,
          .offersHolidayColors = true,
          .hasDayCells = true,
          .hasColumns = true}},
    Kind{CALENDAR_ONE_COLUMN_PER_WEEK, "CALENDAR_ONE_COLUMN_PER_WEEK"_L1, {.hasDayCells = true}},
    Kind{CALENDAR_YEAR,
         "CALENDAR_YEAR"_L1,
         {.canPaintBorders = true,
          .range = MvCalendariumTraits::Range::Year,
          .hasDayCells = true,
          .namesRunningVacations = false}},
    Kind{CALENDAR_YEAR_ONLY,
         "CALENDAR_YEAR_ONLY"_L1,
         {.mostImportantCell = CALENDAR_CELL_TYPE_YEAR, .range = MvCalendariumTraits::Range::YearWithinCalendar}},
    Kind{CALENDAR_ONE_ROW, "CALENDAR_ONE_ROW"_L1, {.canPaintBorders = true, .hasDayCells = true, .isStrip = true}},
    Kind{CALENDAR_HOLIDAYS, "CALENDAR_HOLIDAYS"_L1, {.offersHolidays = true}},
};

} // namespace

void MvCalendariumType::fillTable(Table *table) const
{
    for (const Kind &kind : kinds)
        table->insert(kind.name, kind.type);
}

const MvCalendariumTraits &MvCalendariumType::traits() const
{
    static const MvCalendariumTraits none;
    const auto row = std::find_if(kinds.begin(), kinds.end(), [this](const Kind &kind) { return *this == kind.type; });
    return row == kinds.end() ? none : row->traits;
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
    return traits().mostImportantCell;
}

bool MvCalendariumType::canPaintBorders() const
{
    return std::any_of(kinds.begin(), kinds.end(), [this](const Kind &kind) {
        return kind.traits.canPaintBorders && hasAnyOf(MvCalendariumType(kind.type));
    });
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumAppearanceImpl.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString optimizedSizeKey = u"optimizedSize"_s;
const QString columnHeadersKey = u"extrainformation"_s;
const QString offsetMonthKey = u"offsetmonth"_s;
const QString showHolidayKey = u"show_holiday"_s;
const QString colorSchemaTag = u"colorschema"_s;

} // namespace

void MvCalendariumAppearanceImpl::read(const QDomElement &element, bool adaptGrid,
                                       MvCalendariumColorSchemaRegistry *registry)
{
    fontSettings = MvCalendariumFontSettings(element);
    readColorSchema(element, registry);
    MvCalendariumLayoutSchemaID layoutId;
    layoutId.read(element);
    setLayoutSchemaById(layoutId);
    const QString size = MvXMLParser::textAttribute(element, optimizedSizeKey);
    if (!size.isEmpty()) // overrides the layout's
        optimizedSize = MvSpaceMagnitude(size);
    columnHeaders = MvColumnHeaders(MvXMLParser::textAttribute(element, columnHeadersKey));
    offsetMonth = std::clamp(MvXMLParser::intAttribute(element, offsetMonthKey, 0), -mostMonthsAhead, mostMonthsAhead);
    layoutSchema.setShowHolidays(MvXMLParser::boolAttribute(element, showHolidayKey, true));
    if (adaptGrid)
        adaptGridToLayout();
}

void MvCalendariumAppearanceImpl::write(QDomElement &element, bool embedUserSchema) const
{
    MvXMLBuilder::addAttribute(element, optimizedSizeKey, optimizedSize.encodeCSV());
    encodeColorSchema(element, embedUserSchema);
    layoutSchema.ID().write(element);
    if (!columnHeaders.text().isEmpty())
        MvXMLBuilder::addAttribute(element, columnHeadersKey, columnHeaders.text());
    if (offsetMonth != 0)
        MvXMLBuilder::addAttribute(element, offsetMonthKey, offsetMonth);
    MvXMLBuilder::addAttribute(element, showHolidayKey, layoutSchema.showHolidays());
    fontSettings.write(element);
}

void MvCalendariumAppearanceImpl::setColorSchemaById(const MvCalendariumColorSchemaID &id,
                                                     MvCalendariumColorSchemaRegistry *registry)
{
    const bool isInGivenRegistry = registry && registry->contains(id);
    colorSchema =
        isInGivenRegistry ? registry->findSchema(id) : MvCalendariumColorSchemaRegistry::instance().findSchema(id);
}

void MvCalendariumAppearanceImpl::setLayoutSchema(const MvCalendariumLayoutSchema &schema)
{
    if (schema.optimizedSize().isValid())
        optimizedSize = schema.optimizedSize();
    else if (layoutSchema.optimizedSize().isValid()) // came with the layout that is being replaced
        optimizedSize = MAGNITUDE_A4;
    layoutSchema = schema;
}

void MvCalendariumAppearanceImpl::setLayoutSchemaById(const MvCalendariumLayoutSchemaID &id)
{
    setLayoutSchema(MvCalendariumLayoutSchemaRegistry::instance().findSchema(id));
}

void MvCalendariumAppearanceImpl::adaptGridToLayout()
{
    MvBorderConfig grid = colorSchema.gridConfig();
    grid.setIsEnabled(!layoutSchema.allCellsHaveNoBorder());
    colorSchema.setGridConfig(grid);
}

void MvCalendariumAppearanceImpl::readColorSchema(const QDomElement &element,
                                                  MvCalendariumColorSchemaRegistry *registry)
{
    MvCalendariumColorSchemaID id;
    id.read(element);
    const QDomElement embedded = element.firstChildElement(colorSchemaTag);
    if (id.isValid())
        setColorSchemaById(id, registry);
    else if (!embedded.isNull())
        colorSchema = MvCalendariumColorSchema(embedded);
}

void MvCalendariumAppearanceImpl::encodeColorSchema(QDomElement &element, bool embedUserSchema) const
{
    const MvCalendariumColorSchemaID id = MvCalendariumColorSchemaRegistry::instance().id(colorSchema);
    if (embedUserSchema && (id.isUserSchema() || !id.isValid())) {
        QDomElement embedded = MvXMLBuilder::buildDomElement(element, colorSchemaTag);
        colorSchema.write(embedded, id);
    } else {
        id.write(element);
    }
}

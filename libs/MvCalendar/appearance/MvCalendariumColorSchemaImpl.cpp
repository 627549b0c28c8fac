// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaImpl.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

using namespace Qt::StringLiterals;

bool MvCalendariumColorSchemaImpl::read(const QDomElement &element)
{
    deprecated = MvXMLParser::boolAttribute(element, u"deprecated"_s, false);
    cells.read(element);
    grid = decodeGridInformation(element);
    return true;
}

void MvCalendariumColorSchemaImpl::write(QDomElement &element, const MvCalendariumColorSchemaID &id) const
{
    id.write(element);
    grid.buildXML(element);
    cells.write(element);
    MvXMLBuilder::addAttribute(element, u"deprecated"_s, deprecated);
}

MvBorderConfig MvCalendariumColorSchemaImpl::decodeGridInformation(const QDomElement &element) const
{
    const QDomElement border = element.firstChildElement(u"border"_s);
    if (!border.isNull()) {
        const MvBorderConfig config = MvBorderConfig::createFromXML(border);
        return config.isEnabled() ? config : MvBorderConfig();
    }
    return cells.hasChromaticBackground() ? MvBorderConfig() : decodeLegacyGrid(element);
}

// files from before the "border" element: the colour is "gridcolor", else that of most cell borders, else black; what
// the user chose then comes over it
MvBorderConfig MvCalendariumColorSchemaImpl::decodeLegacyGrid(const QDomElement &element) const
{
    QColor color = MvXMLParser::colorAttribute(element, u"gridcolor"_s);
    if (!color.isValid())
        color = guessBorderColor(element);
    const bool isVisible = color.isValid() && color.alpha() != 0;
    if (!color.isValid())
        color = Qt::black;
    MvBorderConfig config;
    config.setIsEnabled(MvXMLParser::boolAttribute(element, u"userGridVisible"_s, isVisible));
    config.setColor(MvXMLParser::colorAttribute(element, u"userGridColor"_s, color));
    return config;
}

QColor MvCalendariumColorSchemaImpl::guessBorderColor(const QDomElement &element)
{
    MvColorList colors;
    const QString tag = u"cell"_s;
    for (QDomElement cell = element.firstChildElement(tag); !cell.isNull(); cell = cell.nextSiblingElement(tag))
        colors.append(MvXMLParser::colorAttribute(cell, u"bordercolor"_s));
    return colors.findClusterPoint();
}

QString MvCalendariumColorSchemaImpl::describeDifference(const MvCalendariumColorSchemaImpl &other) const
{
    if (*this == other)
        return u"MvCalendariumColorSchema: no difference."_s;
    QStringList sections;
    if (!(cells == other.cells))
        sections.append(u"Cells: "_s + cells.describeDifference(other.cells));
    if (!(grid == other.grid)) {
        const auto describe = [](const MvBorderConfig &border) {
            return u"%1 %2 %3"_s.arg(border.isEnabled() ? u"on"_s : u"off"_s, MvXMLBuilder::colorText(border.color()))
                .arg(border.width().tenthMillimetres());
        };
        sections.append(u"Border: %1 vs %2"_s.arg(describe(grid), describe(other.grid)));
    }
    if (deprecated != other.deprecated)
        sections.append(u"Deprecation: %1 vs %2"_s.arg(deprecated).arg(other.deprecated));
    return sections.join(u'\n');
}

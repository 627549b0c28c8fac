// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvBorderConfig.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <QPen>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

MvBorderConfig::MvBorderConfig(const QColor &color, MvDistance width, MvBorderPosition position, bool enabled)
    : m_position(std::move(position))
    , m_enabled(enabled)
{
    setColor(color);
    setWidth(width);
}

void MvBorderConfig::setColor(const QColor &color)
{
    m_color = QColor::fromRgba(color.rgba());
}

void MvBorderConfig::setWidth(MvDistance width)
{
    m_width = MvDistance(width.tenthMillimetres() > 0.0 ? std::min(width.tenthMillimetres(), mostWidth) : 0.0);
}

MvBorderConfig MvBorderConfig::createFromXML(const QDomElement &element)
{
    MvBorderConfig border;
    border.m_enabled = MvXMLParser::boolAttribute(element, u"enabled"_s, true);
    border.m_color = MvXMLParser::colorAttribute(element, u"color"_s, border.m_color);
    border.setWidth(MvDistance(MvXMLParser::doubleAttribute(element, u"width"_s, border.m_width.tenthMillimetres())));
    const MvBorderPosition position(MvXMLParser::textAttribute(element, u"position"_s));
    if (position.isValid())
        border.m_position = position;
    return border;
}

void MvBorderConfig::buildXML(QDomElement &parent) const
{
    QDomElement element = MvXMLBuilder::buildDomElement(parent, u"border"_s);
    MvXMLBuilder::addAttribute(element, u"enabled"_s, m_enabled);
    MvXMLBuilder::addAttribute(element, u"color"_s, m_color);
    MvXMLBuilder::addAttribute(element, u"width"_s, m_width.tenthMillimetres());
    MvXMLBuilder::addAttribute(element, u"position"_s, m_position.encode());
}

QPen MvBorderConfig::createPen() const
{
    return QPen(QBrush(m_color), m_width.tenthMillimetres(), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

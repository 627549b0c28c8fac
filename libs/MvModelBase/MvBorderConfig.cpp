#include "MvModelBase/MvBorderConfig.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <QPen>

#include <algorithm>

using namespace Qt::StringLiterals;

MvBorderConfig::MvBorderConfig(const QColor &color, MvDistance width, MvBorderPosition position, bool enabled)
    : m_color(color)
    , m_width(width)
    , m_position(position)
    , m_enabled(enabled)
{}

MvBorderConfig MvBorderConfig::createFromXML(const QDomElement &element)
{
    MvBorderConfig border;
    border.m_enabled = MvXMLParser::boolAttribute(element, u"enabled"_s, true);
    border.m_color = MvXMLParser::colorAttribute(element, u"color"_s, border.m_color);
    const double width = MvXMLParser::doubleAttribute(element, u"width"_s, border.m_width.tenthMillimetres());
    border.m_width = MvDistance(std::clamp(width, 0.0, 200.0));
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

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLParser.h"

#include "MvCore/MvStringHelper.h"
#include "MvXML/MvXMLKeywords.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

QString MvXMLParser::textAttribute(const QDomElement &element, const QString &name, const QString &defaultValue)
{
    return element.attribute(name, defaultValue);
}

int MvXMLParser::intAttribute(const QDomElement &element, const QString &name, int defaultValue)
{
    bool ok = false;
    const int value = element.attribute(name).trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}

double MvXMLParser::doubleAttribute(const QDomElement &element, const QString &name, double defaultValue)
{
    bool ok = false;
    const double value = element.attribute(name).trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? value : defaultValue;
}

bool MvXMLParser::boolAttribute(const QDomElement &element, const QString &name, bool defaultValue)
{
    return MvStringHelper::stringToBool(element.attribute(name), defaultValue);
}

QColor MvXMLParser::colorAttribute(const QDomElement &element, const QString &name, const QColor &defaultValue)
{
    return color(element.attribute(name), defaultValue);
}

QColor MvXMLParser::color(const QString &text, const QColor &defaultValue)
{
    const QString word = text.trimmed();
    if (word.isEmpty() || !QColor::isValidColor(word))
        return defaultValue;
    return QColor::fromRgba(QColor(word).rgba()); // "#RRRRGGGGBBBB" is finer than what is written
}

QString MvXMLParser::text(const QDomElement &element, const QString &name, const QString &defaultValue)
{
    const QDomElement child = element.firstChildElement(name);
    return child.isNull() ? defaultValue : child.text();
}

bool MvXMLParser::boolText(const QDomElement &element, const QString &name, bool defaultValue)
{
    return MvStringHelper::stringToBool(text(element, name), defaultValue);
}

QDateTime MvXMLParser::dateTimeText(const QDomElement &element, const QString &name, Qt::DateFormat format,
                                    const QDateTime &defaultValue)
{
    const QDateTime value = QDateTime::fromString(text(element, name).trimmed(), format);
    return value.isValid() ? value : defaultValue;
}

QFont MvXMLParser::readFont(const QDomElement &element, const QFont &defaultFont)
{
    QFont font = defaultFont;
    const QString family = textAttribute(element, u"family"_s);
    if (!family.isEmpty())
        font.setFamily(family);
    const double points = doubleAttribute(element, u"pointsize"_s);
    if (points > 0.0)
        font.setPointSizeF(points);
    if (element.hasAttribute(u"weight"_s))
        font.setWeight(QFont::Weight(std::clamp(intAttribute(element, u"weight"_s, font.weight()), 1, 1000)));
    font.setItalic(boolAttribute(element, u"italic"_s, font.italic()));
    if (element.hasAttribute(u"capitalization"_s))
        font.setCapitalization(MvXMLKeywords::capitalization(textAttribute(element, u"capitalization"_s)));
    const double spacing = doubleAttribute(element, u"letterspacing"_s);
    if (spacing != 0.0)
        font.setLetterSpacing(QFont::PercentageSpacing, 100.0 + spacing);
    return font;
}

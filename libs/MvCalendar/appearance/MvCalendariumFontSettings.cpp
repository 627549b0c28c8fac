// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumFontSettings.h"

#include "MvCore/MvMath.h"
#include "MvModelBase/MvFontCreator.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLKeywords.h"
#include "MvXML/MvXMLParser.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString familyKey = u"font"_s;
const QString sizeKey = u"fontsize_percentage"_s;
const QString holidaySizeKey = u"fontsize_percentage_holiddays"_s; // misspelt in the file format
const QString legacySizeKey = u"fontsize"_s;
const QString capitalizationKey = u"font-capitalization"_s;
const QString weightKey = u"font-weight"_s;
const QString letterSpacingKey = u"font-letter-spacing"_s;

constexpr int defaultHolidayPercentage = -50;
constexpr double minimumSizeDpi = 254.0; // one pixel of the page is a tenth of a millimetre
constexpr double mostPoints = 10000.0;   // values from files may be out of range

constexpr int leastPercentage = -100;
constexpr int mostPercentage = 900;
constexpr double mostLetterSpacing = 100.0;

int bounded(int percentage)
{
    return std::clamp(percentage, leastPercentage, mostPercentage);
}

double boundedSpacing(double spacing)
{
    return std::isfinite(spacing) ? std::clamp(spacing, -mostLetterSpacing, mostLetterSpacing) : 0.0;
}

int atLeastOnePixel(double pixels)
{
    return std::max(1, static_cast<int>(std::lround(pixels)));
}

} // namespace

MvCalendariumFontSettings::MvCalendariumFontSettings(const QString &fontName, int fontSizePercentage,
                                                     int fontSizePercentageHolidays, QFont::Weight weight,
                                                     QFont::Capitalization capitalization, double letterSpacing)
    : m_fontName(fontName)
    , m_fontSizePercentage(bounded(fontSizePercentage))
    , m_fontSizePercentageHolidays(bounded(fontSizePercentageHolidays))
    , m_capitalization(capitalization)
    , m_letterSpacing(boundedSpacing(letterSpacing))
    , m_weight(weight)
{}

MvCalendariumFontSettings::MvCalendariumFontSettings(const QDomElement &element)
    : m_fontName(MvXMLParser::textAttribute(element, familyKey, MvFontCreator::instance().defaultFontFamily()))
    , m_fontSizePercentageHolidays(
          bounded(MvXMLParser::intAttribute(element, holidaySizeKey, defaultHolidayPercentage)))
    , m_capitalization(MvXMLKeywords::capitalization(MvXMLParser::textAttribute(element, capitalizationKey)))
    , m_letterSpacing(boundedSpacing(MvXMLParser::doubleAttribute(element, letterSpacingKey, 0.0)))
    , m_weight(MvXMLKeywords::weight(MvXMLParser::textAttribute(element, weightKey)))
{
    if (element.hasAttribute(sizeKey))
        setFontSizePercentage(MvXMLParser::intAttribute(element, sizeKey, 0));
    else
        setFontSize(MvXMLParser::intAttribute(element, legacySizeKey, 0));
}

void MvCalendariumFontSettings::setFontSizePercentage(int percentage)
{
    m_fontSizePercentage = bounded(percentage);
}

void MvCalendariumFontSettings::setFontSizePercentageHolidays(int percentage)
{
    m_fontSizePercentageHolidays = bounded(percentage);
}

void MvCalendariumFontSettings::setFontSize(int size)
{
    constexpr int step = 10;
    setFontSizePercentage(std::clamp(size, leastPercentage / step, mostPercentage / step) * step);
}

void MvCalendariumFontSettings::write(QDomElement &element) const
{
    MvXMLBuilder::addAttribute(element, familyKey, m_fontName);
    MvXMLBuilder::addAttribute(element, sizeKey, m_fontSizePercentage);
    MvXMLBuilder::addAttribute(element, holidaySizeKey, m_fontSizePercentageHolidays);
    if (m_capitalization != QFont::MixedCase)
        MvXMLBuilder::addAttribute(element, capitalizationKey, MvXMLKeywords::capitalizationText(m_capitalization));
    if (m_weight != QFont::Normal)
        MvXMLBuilder::addAttribute(element, weightKey, MvXMLKeywords::weightText(m_weight));
    if (m_letterSpacing != 0.0)
        MvXMLBuilder::addAttribute(element, letterSpacingKey, m_letterSpacing);
}

QFont MvCalendariumFontSettings::font(const QFont &baseFont, const MvSpaceMagnitude &optimisedSize,
                                      const MvSpaceMagnitude &magnitude, int minimum) const
{
    return scaledFont(baseFont, m_fontSizePercentage, optimisedSize, magnitude, minimum);
}

QFont MvCalendariumFontSettings::fontHolidays(const QFont &baseFont, const MvSpaceMagnitude &optimisedSize,
                                              const MvSpaceMagnitude &magnitude, int minimum) const
{
    return scaledFont(baseFont, m_fontSizePercentageHolidays, optimisedSize, magnitude, minimum);
}

QFont MvCalendariumFontSettings::scaledFont(const QFont &baseFont, int percentage,
                                            const MvSpaceMagnitude &optimisedSize, const MvSpaceMagnitude &magnitude,
                                            int minimum) const
{
    QFont font = baseFont;
    if (!m_fontName.isEmpty())
        font.setFamily(m_fontName);
    const double factor = percentage + 100.0;
    const int points = static_cast<int>(std::clamp(baseFont.pointSizeF() * factor / 100.0, -mostPoints, mostPoints));
    font.setPixelSize(atLeastOnePixel(MvMath::point2pixel(points, MvMath::referenceDpi)));
    font = optimisedSize.adaptFont(font, magnitude);
    font.setPixelSize(std::max(font.pixelSize(), atLeastOnePixel(MvMath::point2pixel(minimum, minimumSizeDpi))));
    if (m_letterSpacing != 0.0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, m_letterSpacing * factor / 100.0);
    if (m_capitalization != QFont::MixedCase)
        font.setCapitalization(m_capitalization);
    if (m_weight != QFont::Normal)
        font.setWeight(m_weight);
    font.setHintingPreference(QFont::PreferNoHinting); // paper has no pixel grid: widths are those of the outlines
    MvFontSupply::provide(font);
    return font;
}

bool MvCalendariumFontSettings::operator==(const MvCalendariumFontSettings &other) const
{
    return m_fontName == other.m_fontName && m_fontSizePercentage == other.m_fontSizePercentage &&
           m_fontSizePercentageHolidays == other.m_fontSizePercentageHolidays &&
           m_capitalization == other.m_capitalization && m_letterSpacing == other.m_letterSpacing &&
           m_weight == other.m_weight;
}

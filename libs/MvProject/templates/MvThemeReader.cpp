// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvThemeReader.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvSchemaPlace.h"
#include "MvProject/MvPageTemplateRegistry.h"
#include "MvXML/MvXMLKeywords.h"
#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

#include <QDomNamedNodeMap>

using namespace Qt::StringLiterals;

namespace {

using Shows = MvTemplateStyle::Shows;

constexpr int monthsPerYear = 12;

const QList<MvPageKind> &kinds()
{
    static const QList<MvPageKind> all{MvPageKind::Month, MvPageKind::Cover, MvPageKind::Free, MvPageKind::Back};
    return all;
}

std::optional<bool> yes(const QDomElement &element, const QString &key)
{
    return element.hasAttribute(key) ? std::optional(MvXMLParser::boolAttribute(element, key)) : std::nullopt;
}

} // namespace

QList<MvCalendarTheme> MvThemeReader::read()
{
    QList<MvCalendarTheme> themes;
    const QDomElement root = MvXMLLoader::loadDocumentElement(m_file);
    for (QDomElement element = root.firstChildElement(); !element.isNull(); element = element.nextSiblingElement()) {
        if (const std::optional<MvCalendarTheme> theme = readTheme(element))
            themes.append(*theme);
    }
    return themes;
}

std::optional<MvCalendarTheme> MvThemeReader::readTheme(const QDomElement &element)
{
    m_isWhole = true;
    m_id = element.attribute(u"id"_s);
    MvCalendarTheme theme;
    theme.m_id = m_id;
    theme.m_name.read(element, u"name"_s);
    theme.m_description.read(element, u"description"_s);
    if (element.tagName() != "theme"_L1)
        tell(element, tr("„%1“ ist kein Thema (theme)").arg(element.tagName()));
    if (m_id.isEmpty() || theme.m_name.isEmpty())
        tell(element, tr("Kennung oder Name (id, name) fehlen"));
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        if (tag == "layouts"_L1)
            readLayouts(child, theme);
        else if (tag == "colors"_L1)
            readColors(child, theme);
        else if (tag == "font"_L1)
            readFont(child, theme);
        else if (tag == "photo"_L1)
            theme.m_style.border = {MvXMLParser::doubleAttribute(child, u"border"_s),
                                    MvXMLParser::colorAttribute(child, u"bordercolor"_s, Qt::white)};
        else if (tag == "background"_L1)
            theme.m_background = MvXMLParser::colorAttribute(child, u"color"_s);
        else if (tag == "text"_L1)
            readText(child, theme);
        else if (tag == "pages"_L1)
            readPages(child, theme);
        else
            tell(child, tr("„%1“ gibt es nicht").arg(tag));
    }
    if (m_isWhole && (theme.m_layout.isEmpty() || theme.m_colors.isEmpty()))
        tell(element, tr("ein Layout (layouts grid) oder Farben (colors schema) fehlen"));
    if (m_isWhole && theme.templateIds(MvPageKind::Month).isEmpty())
        tell(element, tr("die Vorlagen der Monate (pages month) fehlen"));
    return m_isWhole ? std::optional(theme) : std::nullopt;
}

void MvThemeReader::readLayouts(const QDomElement &element, MvCalendarTheme &theme)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QString key = attributes.item(i).nodeName();
        const std::optional<Shows> shows = MvTemplateStyle::showsFromName(key);
        if (!shows)
            tell(element,
                 tr("„%1“ gibt es nicht; möglich sind %2").arg(key, MvTemplateStyle::showsNames().join(u", "_s)));
        else if (*shows == Shows::Grid)
            theme.m_layout = layoutId(element, key);
        else
            theme.m_style.layouts.insert(*shows, layoutId(element, key));
    }
}

void MvThemeReader::readColors(const QDomElement &element, MvCalendarTheme &theme)
{
    const QStringList months = element.attribute(u"months"_s).split(u' ', Qt::SkipEmptyParts);
    if (months.isEmpty())
        theme.m_colors = colorsId(element, u"schema"_s);
    for (const QString &text : months) {
        const int month = text.toInt();
        if (month < 1 || month > monthsPerYear)
            tell(element, tr("„%1“ (months) ist kein Monat von 1 bis 12").arg(text));
        theme.m_colorsOfMonths.insert(month, colorsId(element, u"schema"_s));
    }
    for (const MvPageKind kind : kinds()) {
        const QString key = MvPageTemplateRegistry::kindName(kind);
        if (element.hasAttribute(key))
            theme.m_colorsOfKinds.insert(kind, colorsId(element, key));
    }
}

void MvThemeReader::readFont(const QDomElement &element, MvCalendarTheme &theme)
{
    theme.m_fonts = MvCalendariumFontSettings(
        element.attribute(u"family"_s), MvXMLParser::intAttribute(element, u"size"_s),
        MvXMLParser::intAttribute(element, u"daytexts"_s, theme.m_fonts.fontSizePercentageHolidays()),
        MvXMLKeywords::weight(element.attribute(u"weight"_s)),
        MvXMLKeywords::capitalization(element.attribute(u"capitalization"_s)),
        MvXMLParser::doubleAttribute(element, u"letterspacing"_s));
    theme.m_hasDayTextSize = element.hasAttribute(u"daytexts"_s);
}

void MvThemeReader::readText(const QDomElement &element, MvCalendarTheme &theme)
{
    const std::optional<MvTemplateStyle::Role> role = MvTemplateStyle::roleFromName(element.attribute(u"role"_s));
    if (!role)
        return tell(element, tr("die Rolle (role) „%1“ gibt es nicht; möglich sind %2")
                                 .arg(element.attribute(u"role"_s), MvTemplateStyle::roleNames().join(u", "_s)));
    MvTemplateStyle::TextStyle text;
    text.family = element.attribute(u"family"_s);
    if (element.hasAttribute(u"weight"_s))
        text.weight = QFont::Weight(qBound(1, MvXMLParser::intAttribute(element, u"weight"_s, QFont::Normal), 1000));
    text.isItalic = yes(element, u"italic"_s);
    text.hasCapitals = yes(element, u"capitals"_s);
    text.isAccent = yes(element, u"accent"_s);
    if (element.hasAttribute(u"letterspacing"_s))
        text.letterSpacing = MvXMLParser::doubleAttribute(element, u"letterspacing"_s);
    text.scale = qBound(0.25, MvXMLParser::doubleAttribute(element, u"scale"_s, 1.0), 4.0);
    theme.m_style.texts.insert(*role, text);
}

void MvThemeReader::readPages(const QDomElement &element, MvCalendarTheme &theme)
{
    const auto check = [&](const QString &id, const QString &key, MvPageKind kind) {
        const MvPageTemplate found = MvPageTemplateRegistry::instance().findTemplate(id);
        if (!found.isValid() || found.kind() != kind)
            tell(element, tr("die Vorlage „%1“ (%2) gibt es nicht").arg(id, key));
    };
    for (const MvPageKind kind : kinds()) {
        const QString key = MvPageTemplateRegistry::kindName(kind);
        const QStringList ids = element.attribute(key).split(u' ', Qt::SkipEmptyParts);
        for (const QString &id : ids)
            check(id, key, kind);
        theme.m_templates.insert(kind, ids);
    }
    const QString facing = element.attribute(u"facing"_s);
    if (facing.isEmpty())
        return;
    check(facing, u"facing"_s, MvPageKind::Month);
    theme.m_facing = facing;
}

QString MvThemeReader::layoutId(const QDomElement &element, const QString &key)
{
    const QString id = element.attribute(key);
    const MvCalendariumLayoutSchemaID layout(id);
    if (!MvCalendariumLayoutSchemaRegistry::instance().findSchema(layout).isValid())
        tell(element, tr("das Layout „%1“ (%2) gibt es nicht").arg(id, key));
    return id;
}

QString MvThemeReader::colorsId(const QDomElement &element, const QString &key)
{
    const QString id = element.attribute(key);
    MvCalendariumAppearance appearance;
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(id));
    if (!appearance.colorSchema().isValid())
        tell(element, tr("die Farben „%1“ (%2) gibt es nicht").arg(id, key));
    return id;
}

void MvThemeReader::tell(const QDomElement &element, const QString &mistake)
{
    m_isWhole = false;
    MvSchemaPlace(m_file, element).warn(tr("Das Thema „%1“ bleibt weg: %2.").arg(m_id, mistake));
}

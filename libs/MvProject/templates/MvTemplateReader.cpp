// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvTemplateReader.h"

#include "MvCalendar/MvSchemaPlace.h"
#include "MvXML/MvXMLKeywords.h"
#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

#include <QDomNamedNodeMap>
#include <QRegularExpression>
#include <QSet>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array edgeWords{
    std::pair{"left"_L1, Qt::LeftEdge},
    std::pair{"top"_L1, Qt::TopEdge},
    std::pair{"right"_L1, Qt::RightEdge},
    std::pair{"bottom"_L1, Qt::BottomEdge},
};

const QStringList placeKeys{u"slot"_s, u"columns"_s, u"rows"_s, u"bleed"_s, u"joins"_s};
constexpr double captionPoints = 7.5;

QStringList words(const QDomElement &element, const QString &key)
{
    return element.attribute(key).split(u' ', Qt::SkipEmptyParts);
}

QSet<QString> slotNames(const QList<MvTemplateRule> &rules)
{
    QSet<QString> names;
    for (const MvTemplateRule &rule : rules)
        names.insert(rule.slot);
    return names;
}

} // namespace

QList<MvTemplateDesign> MvTemplateReader::read()
{
    QList<MvTemplateDesign> designs;
    const QDomElement root = MvXMLLoader::loadDocumentElement(m_file);
    for (QDomElement element = root.firstChildElement(); !element.isNull(); element = element.nextSiblingElement()) {
        if (const std::optional<MvTemplateDesign> design = readDesign(element))
            designs.append(*design);
    }
    return designs;
}

std::optional<MvTemplateDesign> MvTemplateReader::readDesign(const QDomElement &element)
{
    m_isWhole = true;
    m_id = element.attribute(u"id"_s);
    if (element.tagName() != "template"_L1)
        tell(element, tr("„%1“ ist keine Vorlage (template)").arg(element.tagName()));
    if (m_id.isEmpty())
        tell(element, tr("die Kennung (id) fehlt"));
    MvTemplateDesign design;
    design.id = m_id;
    design.name.read(element, u"name"_s);
    if (design.name.isEmpty())
        tell(element, tr("der Name (name) fehlt"));
    const QString kind = element.attribute(u"kind"_s);
    if (const std::optional<MvPageKind> known = MvTemplateDesign::kindFromName(kind))
        design.kind = *known;
    else
        tell(element, tr("die Art (kind) „%1“ gibt es nicht; möglich sind month, cover, free und back").arg(kind));
    const QString bound = element.attribute(u"bound"_s);
    design.isBoundAtFoot = bound == "foot"_L1;
    if (!bound.isEmpty() && !design.isBoundAtFoot)
        tell(element, tr("die Bindung (bound) „%1“ gibt es nicht; möglich ist foot").arg(bound));
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        readDivision(child, design);
    if (m_isWhole)
        checkDivisions(element, design);
    return m_isWhole ? std::optional(design) : std::nullopt;
}

void MvTemplateReader::readDivision(const QDomElement &element, MvTemplateDesign &design)
{
    if (element.tagName() != "division"_L1)
        return tell(element, tr("„%1“ ist keine Aufteilung (division)").arg(element.tagName()));
    checkKeys(element, {u"shapes"_s});
    QList<MvTemplateRule> rules;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        rules.append(readRule(child));
    if (slotNames(rules).size() != rules.size())
        tell(element, tr("zwei Plätze einer Aufteilung heißen gleich (slot)"));
    const bool isForTheRest = !element.hasAttribute(u"shapes"_s);
    QStringList unknown = words(element, u"shapes"_s);
    for (const MvPageFormat::Shape shape : MvPageFormat::shapes()) {
        const bool isMeant = unknown.removeOne(MvPageFormat::shapeName(shape));
        if (isMeant || (isForTheRest && !design.divisions.contains(shape)))
            design.divisions.insert(shape, rules);
    }
    if (!unknown.isEmpty())
        tell(element, tr("die Form (shapes) „%1“ gibt es nicht").arg(unknown.join(u' ')));
}

MvTemplateRule MvTemplateReader::readRule(const QDomElement &element)
{
    MvTemplateRule rule;
    rule.slot = element.attribute(u"slot"_s);
    if (rule.slot.isEmpty())
        tell(element, tr("der Name des Platzes (slot) fehlt"));
    readSpan(element, u"columns"_s, MvPageFormat::fieldColumns, rule.firstColumn, rule.lastColumn);
    readSpan(element, u"rows"_s, MvPageFormat::fieldRows, rule.firstRow, rule.lastRow);
    rule.bleed = readEdges(element, u"bleed"_s);
    rule.joins = readEdges(element, u"joins"_s);
    const QString tag = element.tagName();
    if (tag == "photo"_L1) {
        checkKeys(element, placeKeys + QStringList{u"aspect"_s, u"rotation"_s, u"border"_s});
        MvTemplateRule::Foto foto;
        foto.aspect = readNumber(element, u"aspect"_s, 0.1, 10.0, 0.0);
        foto.rotation = readNumber(element, u"rotation"_s, -5.0, 5.0, 0.0);
        foto.border = readNumber(element, u"border"_s, 0.0, 200.0, 0.0);
        rule.content = foto;
    } else if (tag == "text"_L1) {
        rule.content = readText(element);
    } else if (tag == "calendarium"_L1) {
        rule.content = readCalendarium(element);
    } else {
        tell(element, tr("„%1“ ist kein Platz; möglich sind photo, text und calendarium").arg(tag));
    }
    return rule;
}

MvTemplateRule::Text MvTemplateReader::readText(const QDomElement &element)
{
    checkKeys(element, placeKeys + QStringList{u"role"_s, u"text"_s, u"of"_s, u"points"_s, u"align"_s, u"onphoto"_s});
    MvTemplateRule::Text text;
    const QString role = element.attribute(u"role"_s, u"text"_s);
    if (const auto known = MvTemplateStyle::roleFromName(role))
        text.role = *known;
    else
        tell(element, tr("die Rolle (role) „%1“ gibt es nicht; möglich sind %2")
                          .arg(role, MvTemplateStyle::roleNames().join(u", "_s)));
    const bool isCaption = text.role == MvTemplateStyle::Role::Caption;
    text.element = MvTextElement(element.attribute(u"text"_s, isCaption ? u"{caption}"_s : QString()));
    text.element.setFotoSlot(element.attribute(u"of"_s));
    text.element.setPoints(readNumber(element, u"points"_s, MvTextElement::smallestPoints, MvTextElement::largestPoints,
                                      isCaption ? captionPoints : 10.0));
    text.element.setAlignment(MvXMLKeywords::alignment(element.attribute(u"align"_s, u"AlignLeft|AlignTop"_s)));
    text.element.setOnFoto(readYes(element, u"onphoto"_s, false));
    return text;
}

MvTemplateRule::Calendarium MvTemplateReader::readCalendarium(const QDomElement &element)
{
    checkKeys(element, placeKeys + QStringList{u"shows"_s, u"offset"_s, u"onphoto"_s, u"line"_s});
    MvTemplateRule::Calendarium calendarium;
    const QString shows = element.attribute(u"shows"_s, u"grid"_s);
    if (const auto known = MvTemplateStyle::showsFromName(shows))
        calendarium.shows = *known;
    else
        tell(element,
             tr("„%1“ (shows) gibt es nicht; möglich sind %2").arg(shows, MvTemplateStyle::showsNames().join(u", "_s)));
    calendarium.monthOffset = int(readNumber(element, u"offset"_s, -1200.0, 1200.0, 0.0));
    calendarium.isOnFoto = readYes(element, u"onphoto"_s, false);
    calendarium.hasMonthLine = readYes(element, u"line"_s, true);
    return calendarium;
}

/// "3-7", or "5" for one alone.
void MvTemplateReader::readSpan(const QDomElement &element, const QString &key, int last, int &from, int &to)
{
    if (!element.hasAttribute(key))
        return;
    static const QRegularExpression pattern(u"^([0-9]{1,2})(?:-([0-9]{1,2}))?$"_s);
    const QString text = element.attribute(key);
    const QRegularExpressionMatch match = pattern.match(text);
    from = match.captured(1).toInt();
    to = match.hasCaptured(2) ? match.captured(2).toInt() : from;
    if (match.hasMatch() && from >= 1 && from <= to && to <= last)
        return;
    tell(element, tr("„%1“ (%2) ist keine Spanne von 1 bis %3").arg(text, key).arg(last));
    from = 1;
    to = last;
}

Qt::Edges MvTemplateReader::readEdges(const QDomElement &element, const QString &key)
{
    Qt::Edges edges;
    const QStringList sides = words(element, key);
    for (const QString &side : sides) {
        const auto found =
            std::find_if(edgeWords.begin(), edgeWords.end(), [&](const auto &word) { return word.first == side; });
        if (found == edgeWords.end())
            tell(element,
                 tr("die Seite (%1) „%2“ gibt es nicht; möglich sind left, top, right und bottom").arg(key, side));
        else
            edges |= found->second;
    }
    return edges;
}

double MvTemplateReader::readNumber(const QDomElement &element, const QString &key, double least, double most,
                                    double usual)
{
    if (!element.hasAttribute(key))
        return usual;
    const double number = MvXMLParser::doubleAttribute(element, key, std::nan(""));
    if (number >= least && number <= most)
        return number;
    tell(element, tr("„%1“ (%2) ist keine Zahl von %3 bis %4").arg(element.attribute(key), key).arg(least).arg(most));
    return usual;
}

bool MvTemplateReader::readYes(const QDomElement &element, const QString &key, bool usual)
{
    const QString text = element.attribute(key);
    if (!text.isEmpty() && text != "true"_L1 && text != "false"_L1)
        tell(element, tr("„%1“ (%2): möglich sind true und false").arg(text, key));
    return text.isEmpty() ? usual : text == "true"_L1;
}

void MvTemplateReader::checkDivisions(const QDomElement &element, const MvTemplateDesign &design)
{
    const QSet<QString> names = slotNames(design.divisions.value(MvPageFormat::Shape::Landscape));
    for (const MvPageFormat::Shape shape : MvPageFormat::shapes()) {
        const QString word = MvPageFormat::shapeName(shape);
        if (!design.divisions.contains(shape))
            tell(element, tr("für Seiten der Form %1 fehlt eine Aufteilung (division)").arg(word));
        else if (slotNames(design.divisions.value(shape)) != names)
            tell(element, tr("auf Seiten der Form %1 heißen die Plätze (slot) anders als im Querformat").arg(word));
    }
}

void MvTemplateReader::checkKeys(const QDomElement &element, const QStringList &known)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QString key = attributes.item(i).nodeName();
        if (!known.contains(key))
            tell(element, tr("„%1“ gibt es bei „%2“ nicht").arg(key, element.tagName()));
    }
}

void MvTemplateReader::tell(const QDomElement &element, const QString &mistake)
{
    m_isWhole = false;
    MvSchemaPlace(m_file, element).warn(tr("Die Vorlage „%1“ bleibt weg: %2.").arg(m_id, mistake));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectWriter.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvProject/MvProjectVocabulary.h"
#include "MvXML/MvXMLBuilder.h"

#include <QDomDocument>
#include <QXmlStreamWriter>

#include <algorithm>

using namespace MvProjectVocabulary;

namespace {

QString monthText(const QDate &month)
{
    return month.toString(monthFormat);
}

void addIfAny(QDomElement &element, const QString &name, const QString &value)
{
    if (!value.isEmpty())
        MvXMLBuilder::addAttribute(element, name, value);
}

/// The colour schema in the form that a file keeps wholly. Its own form loses the lines of a grid that is off, and the
/// id of a schema whose grid is on where that of the page is not: then the grid is written switched, and the switch
/// beside it.
MvCalendariumColorSchema writable(const MvCalendariumColorSchema &schema)
{
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    MvBorderConfig grid = schema.gridConfig();
    grid.setIsEnabled(!grid.isEnabled());
    MvCalendariumColorSchema switched = schema;
    switched.setGridConfig(grid);
    if (!registry.isRegistered(schema) && registry.isRegistered(switched))
        return switched;
    const bool wouldLoseLines = grid.isEnabled() && !(schema.gridConfig() == MvBorderConfig());
    return wouldLoseLines ? switched : schema;
}

/// As a document writes itself, but with the attributes in order: two versions of a file can be compared.
void writeInOrder(QXmlStreamWriter &writer, const QDomElement &element)
{
    writer.writeStartElement(element.tagName());
    const QDomNamedNodeMap attributes = element.attributes();
    QList<QDomAttr> sorted;
    for (int i = 0; i < attributes.count(); ++i)
        sorted.append(attributes.item(i).toAttr());
    std::sort(sorted.begin(), sorted.end(), [](const QDomAttr &a, const QDomAttr &b) { return a.name() < b.name(); });
    for (const QDomAttr &attribute : std::as_const(sorted))
        writer.writeAttribute(attribute.name(), attribute.value());
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement())
            writeInOrder(writer, child.toElement());
        else if (child.isText())
            writer.writeCharacters(child.nodeValue());
    }
    writer.writeEndElement();
}

} // namespace

QByteArray MvProjectWriter::write(const MvCalendarDocument &document, const QString &originalPath,
                                  const QByteArray &originalStamp) const
{
    QDomDocument dom;
    QDomElement rootElement = MvXMLBuilder::buildRootElement(dom, root);
    MvXMLBuilder::addAttribute(rootElement, versionKey, version);
    addIfAny(rootElement, titleKey, document.title());
    addIfAny(rootElement, authorKey, document.author());
    addIfAny(rootElement, originalKey, originalPath);
    addIfAny(rootElement, originalStampKey, QString::fromLatin1(originalStamp));
    writePaper(rootElement, document.format());
    QDomElement rangeElement = MvXMLBuilder::buildDomElement(rootElement, range);
    MvXMLBuilder::addAttribute(rangeElement, firstKey, monthText(document.range().start()));
    MvXMLBuilder::addAttribute(rangeElement, lastKey, monthText(document.range().end()));
    for (const MvCalendarPage &page : document.pages())
        writePage(rootElement, page);
    for (const auto &[month, foto] : document.spareFotos().asKeyValueRange()) {
        QDomElement element = MvXMLBuilder::buildDomElement(rootElement, spareFoto);
        MvXMLBuilder::addAttribute(element, monthKey, monthText(month));
        writeFoto(element, foto);
    }

    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    writer.writeStartDocument();
    writeInOrder(writer, rootElement);
    writer.writeEndDocument();
    return bytes;
}

void MvProjectWriter::writePaper(QDomElement &root, const MvPageFormat &format) const
{
    QDomElement element = MvXMLBuilder::buildDomElement(root, paper);
    MvXMLBuilder::addAttribute(element, widthKey, format.trimSize().width());
    MvXMLBuilder::addAttribute(element, heightKey, format.trimSize().height());
    MvXMLBuilder::addAttribute(element, bleedKey, format.bleed());
}

void MvProjectWriter::writePage(QDomElement &root, const MvCalendarPage &page) const
{
    QDomElement element = MvXMLBuilder::buildDomElement(root, MvProjectVocabulary::page);
    MvXMLBuilder::addAttribute(element, monthKey, monthText(page.contentConfig().date()));
    QDomElement calendariumElement = MvXMLBuilder::buildDomElement(element, calendarium);
    writeCalendarium(calendariumElement, page);
    QDomElement contentElement = MvXMLBuilder::buildDomElement(element, content);
    writeContent(contentElement, page.contentConfig());
    if (page.fotoFrame().isValid()) {
        QDomElement fotoElement = MvXMLBuilder::buildDomElement(element, foto);
        writeFoto(fotoElement, page.fotoFrame());
    }
}

void MvProjectWriter::writeCalendarium(QDomElement &element, const MvCalendarPage &page) const
{
    const MvCalendariumAppearance &appearance = page.appearance();
    const MvCalendariumColorSchema colors = writable(appearance.colorSchema());
    appearance.createVariant(colors).write(element, true);
    const bool hasGrid = appearance.gridConfig().isEnabled();
    if (colors.gridConfig().isEnabled() != hasGrid)
        MvXMLBuilder::addAttribute(element, gridKey, hasGrid);
    if (page.unknownLayout().isValid())
        page.unknownLayout().write(element);
    if (page.unknownColors().isValid()) {
        element.removeChild(element.firstChildElement(colorsKey));
        page.unknownColors().write(element);
    }
    // what belongs to the schema, but was changed on this page
    if (appearance.overriddenShowCalendarWeek())
        MvXMLBuilder::addAttribute(element, weeksKey, true);
    const MvCalendariumLayoutSchema registered =
        MvCalendariumLayoutSchemaRegistry::instance().findSchema(appearance.layoutSchema().ID());
    if (registered.renderingInformation() != appearance.renderingInformation())
        MvXMLBuilder::addAttribute(element, renderingKey, appearance.renderingInformation().encodeCSV());
}

void MvProjectWriter::writeContent(QDomElement &element, const MvCalendariumContentConfig &content) const
{
    const MvCalendariumHolidayConfig config = content.holidayConfig();
    MvXMLBuilder::addAttribute(element, languageKey, config.language().name());
    addIfAny(element, regionKey, config.province());
    MvXMLBuilder::addAttribute(element, featuresKey, config.features().encodeCSV());
    addIfAny(element, weekHeadKey, content.calendarWeekHeadlineOption().pattern());
    addIfAny(element, weekTextKey, content.calendarWeekTextOption().pattern());
}

void MvProjectWriter::writeFoto(QDomElement &element, const MvFotoFrame &foto) const
{
    const QString relative = m_folder.relativeFilePath(foto.path());
    const bool isBelow = QDir::isRelativePath(relative) && !relative.startsWith(QStringLiteral("../"));
    MvXMLBuilder::addAttribute(element, pathKey, isBelow ? relative : foto.path());
    MvXMLBuilder::addAttribute(element, placementKey, placements.value(int(foto.placement())));
    MvXMLBuilder::addAttribute(element, shareKey, foto.share());
    MvXMLBuilder::addAttribute(element, focusXKey, foto.focus().x());
    MvXMLBuilder::addAttribute(element, focusYKey, foto.focus().y());
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectWriter.h"

#include "MvCalendar/MvCalendarEventFile.h"
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
                                  const QByteArray &originalStamp, const MvProjectFile::Entries &entries)
{
    QDomDocument dom;
    QDomElement rootElement = MvXMLBuilder::buildRootElement(dom, root);
    addIfAny(rootElement, titleKey, document.title());
    addIfAny(rootElement, authorKey, document.author());
    m_elements.addIfNew(rootElement, themeKey, document.themeId(), {});
    m_elements.addIfNew(rootElement, entriesKey, m_elements.pathText(document.entriesFile()), {});
    addIfAny(rootElement, originalKey, originalPath);
    addIfAny(rootElement, originalStampKey, QString::fromLatin1(originalStamp));
    writePaper(rootElement, document.format());
    QDomElement rangeElement = MvXMLBuilder::buildDomElement(rootElement, range);
    MvXMLBuilder::addAttribute(rangeElement, firstKey, monthText(document.range().start()));
    MvXMLBuilder::addAttribute(rangeElement, lastKey, monthText(document.range().end()));
    writePool(rootElement, document.fotoPool());
    for (const MvCalendarPage &page : document.pages())
        writePage(rootElement, page);
    for (const auto &[month, page] : document.sparePages().asKeyValueRange())
        writeSparePage(rootElement, month, page);
    const bool hasSecondVersion =
        m_elements.needsSecondVersion() || entries || document.entryDisplay() != MvEntryDisplay();
    MvXMLBuilder::addAttribute(rootElement, versionKey, hasSecondVersion ? version : firstVersion);

    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    writer.writeStartDocument();
    writeInOrder(writer, rootElement);
    writer.writeEndDocument();
    if (entries) // in the form of any other list of entries, last of all
        bytes.insert(bytes.lastIndexOf("</"), MvCalendarEventFile::toBytesWithin(*entries, m_folder));
    return bytes;
}

void MvProjectWriter::writePaper(QDomElement &root, const MvPageFormat &format)
{
    QDomElement element = MvXMLBuilder::buildDomElement(root, paper);
    MvXMLBuilder::addAttribute(element, widthKey, format.trimSize().width());
    MvXMLBuilder::addAttribute(element, heightKey, format.trimSize().height());
    MvXMLBuilder::addAttribute(element, bleedKey, format.bleed());
    m_elements.addIfNew(element, bindingKey, MvPageFormat::bindingName(format.binding()),
                        MvPageFormat::bindingName(MvPageFormat::Binding::None));
    m_elements.addIfNew(element, bindingZoneKey, format.bindingZone(), MvPageFormat::defaultBindingZone);
    m_elements.addIfNew(element, safeMarginKey, format.safeMargin(), MvPageFormat::defaultSafeMargin);
}

void MvProjectWriter::writePage(QDomElement &root, const MvCalendarPage &page)
{
    QDomElement element = MvXMLBuilder::buildDomElement(root, MvProjectVocabulary::page);
    MvXMLBuilder::addAttribute(element, monthKey, monthText(page.contentConfig().date()));
    m_elements.addIfNew(element, kindKey, pageKinds.value(int(page.kind())), pageKinds.constFirst());
    QDomElement calendariumElement = MvXMLBuilder::buildDomElement(element, calendarium);
    writeCalendarium(calendariumElement, page);
    QDomElement contentElement = MvXMLBuilder::buildDomElement(element, content);
    writeContent(contentElement, page.contentConfig());
    writeArrangement(element, page);
}

/// One with nothing but the photo of a simple page is what the first version knows.
void MvProjectWriter::writeSparePage(QDomElement &root, const QDate &month, const MvCalendarPage &page)
{
    MvCalendarPage simple;
    simple.setFotoFrame(page.fotoFrame());
    if (page == simple) {
        QDomElement element = MvXMLBuilder::buildDomElement(root, spareFoto);
        MvXMLBuilder::addAttribute(element, monthKey, monthText(month));
        writeFrame(element, page.fotoFrame());
        return;
    }
    QDomElement element = m_elements.addNewElement(root, sparePage);
    MvXMLBuilder::addAttribute(element, monthKey, monthText(month));
    writeArrangement(element, page);
}

void MvProjectWriter::writePool(QDomElement &root, const MvFotoPool &pool)
{
    if (pool.isEmpty())
        return;
    QDomElement poolElement = m_elements.addNewElement(root, MvProjectVocabulary::pool);
    for (const MvFotoPoolItem &item : pool.items()) {
        QDomElement element = MvXMLBuilder::buildDomElement(poolElement, foto);
        MvXMLBuilder::addAttribute(element, pathKey, m_elements.pathText(item.path));
        if (!item.size.isEmpty()) {
            MvXMLBuilder::addAttribute(element, widthKey, item.size.width());
            MvXMLBuilder::addAttribute(element, heightKey, item.size.height());
        }
        addIfAny(element, capturedKey, item.captured.toString(Qt::ISODateWithMs));
        MvXMLBuilder::addAttribute(element, focusXKey, item.focus.x());
        MvXMLBuilder::addAttribute(element, focusYKey, item.focus.y());
        addIfAny(element, interestKey, item.interest.toText());
    }
}

void MvProjectWriter::writeArrangement(QDomElement &element, const MvCalendarPage &page)
{
    m_elements.addIfNew(element, templateKey, page.templateId(), {});
    if (!page.isSimple())
        m_elements.addIfNew(element, arrangementKey, freeArrangement, {});
    else if (!(page.fotoFrame() == MvFotoFrame())) {
        QDomElement fotoElement = MvXMLBuilder::buildDomElement(element, foto);
        writeFrame(fotoElement, page.fotoFrame());
    }
    if (!(page.background() == MvPageBackground()))
        m_elements.writeBackground(element, page.background());
    for (const MvPageElement &child : page.elements())
        m_elements.writeElement(element, MvProjectVocabulary::element, child);
    for (const MvPageElement &child : page.spareElements())
        m_elements.writeElement(element, spareElement, child);
}

void MvProjectWriter::writeFrame(QDomElement &element, const MvFotoFrame &foto)
{
    MvXMLBuilder::addAttribute(element, placementKey, placements.value(int(foto.placement())));
    MvXMLBuilder::addAttribute(element, shareKey, foto.share());
    m_elements.writeFoto(element, foto.foto());
}

void MvProjectWriter::writeCalendarium(QDomElement &element, const MvCalendarPage &page)
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

void MvProjectWriter::writeContent(QDomElement &element, const MvCalendariumContentConfig &content)
{
    const MvCalendariumHolidayConfig config = content.holidayConfig();
    MvXMLBuilder::addAttribute(element, languageKey, config.language().name());
    addIfAny(element, regionKey, config.province());
    MvXMLBuilder::addAttribute(element, featuresKey, config.features().encodeCSV());
    addIfAny(element, weekHeadKey, content.calendarWeekHeadlineOption().pattern());
    addIfAny(element, weekTextKey, content.calendarWeekTextOption().pattern());
    const MvEntryDisplay &entries = content.entryDisplay();
    addIfAny(element, hiddenGroupsKey, entries.hiddenGroups.join(u','));
    addIfAny(element, entryTextKey, entries.text);
    if (entries.showTimes)
        MvXMLBuilder::addAttribute(element, entryTimesKey, true);
}

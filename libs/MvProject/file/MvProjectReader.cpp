// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectReader.h"

#include "MvCalendar/MvCalendarEventFotoFinder.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvProjectParts.h"
#include "MvProject/MvProjectVocabulary.h"
#include "MvProject/MvThemeApplication.h"
#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

#include <QDir>
#include <QDomDocument>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace MvProjectVocabulary;

namespace {

/// The months among the pages by their dates; what stands between them keeps its place.
void putInOrder(QList<MvCalendarPage> &pages, QList<MvCalendarPage> &months)
{
    std::stable_sort(months.begin(), months.end(), [](const MvCalendarPage &a, const MvCalendarPage &b) {
        return a.contentConfig().date() < b.contentConfig().date();
    });
    auto next = months.cbegin();
    for (MvCalendarPage &page : pages) {
        if (page.kind() == MvPageKind::Month)
            page = *next++;
    }
}

} // namespace

MvProjectFile::Content MvProjectReader::read()
{
    MvXMLLoader::Error error;
    const QByteArray bytes = MvXMLLoader::loadBytes(m_file, &error, MvXMLLoader::Limits::ofReaders());
    const MvProjectParts parts(bytes);
    const QDomDocument dom = error.isError() ? QDomDocument() : MvXMLLoader::parse(parts.document(), &error);
    if (parts.hasList() && error.line >= parts.listLine())
        error.line += int(parts.list().count('\n'));
    if (!error.isError())
        readRoot(dom.documentElement());
    if (!error.isError() && m_content.isOk() && parts.hasList())
        error = readList(parts);
    if (error.isError())
        m_content.error = error.describe(m_file) + advice();
    else if (m_content.isOk() && !dom.documentElement().firstChildElement(MvCalendarEventFile::elementName()).isNull())
        readEntries(bytes);
    m_content.notes = m_notes.all();
    return m_content;
}

void MvProjectReader::readRoot(const QDomElement &root)
{
    if (root.tagName() != MvProjectVocabulary::root)
        return fail(root, tr("Das ist kein Kalenderprojekt; die Datei beginnt mit „%1“.").arg(root.tagName()));
    if (MvXMLParser::intAttribute(root, versionKey, firstVersion) > version) {
        return fail(root, tr("Das Projekt stammt aus einer neueren Fassung des Programms. Bitte das Programm "
                             "aktualisieren."));
    }
    m_content.originalPath = MvXMLParser::textAttribute(root, originalKey);
    m_content.originalStamp = MvXMLParser::textAttribute(root, originalStampKey).toLatin1();
    MvCalendarDocument &document = m_content.document;
    document.setTitle(MvXMLParser::textAttribute(root, titleKey));
    document.setAuthor(MvXMLParser::textAttribute(root, authorKey));
    if (const QString path = MvXMLParser::textAttribute(root, entriesKey); !path.isEmpty())
        document.setEntriesFile(QDir::cleanPath(m_file.absoluteDir().absoluteFilePath(path)));
    document.setThemeId(MvXMLParser::textAttribute(root, themeKey));
    document.setFormat(readPaper(root));
    document.setFotoPool(elementReader().readPool(root.firstChildElement(pool)));
    readPages(root);
}

void MvProjectReader::readPages(const QDomElement &root)
{
    MvCalendarDocument &document = m_content.document;
    const MvDateRange range = readRange(root);
    QList<MvCalendarPage> pages;
    QList<MvCalendarPage> monthPages;
    QSet<QDate> months;
    for (QDomElement element = root.firstChildElement(page); m_content.isOk() && !element.isNull();
         element = element.nextSiblingElement(page)) {
        const MvCalendarPage read = readPage(element);
        const QDate month = read.contentConfig().date();
        const bool isMonth = read.kind() == MvPageKind::Month;
        if (isMonth && months.contains(month)) {
            m_notes.add(
                element,
                tr("Den Monat %1 gibt es zweimal; die zweite Seite bleibt weg.").arg(month.toString(monthFormat)));
        } else if (isMonth && month.isValid() && range.isValid() && !range.contains(month)) {
            m_notes.add(element, tr("Der Monat %1 liegt außerhalb des Kalenders; die Seite bleibt weg.")
                                     .arg(month.toString(monthFormat)));
        } else if (month.isValid()) {
            pages.append(read);
            if (isMonth)
                monthPages.append(read);
        }
        if (isMonth && month.isValid())
            months.insert(month);
    }
    if (!m_content.isOk())
        return;
    if (pages.isEmpty() || (monthPages.isEmpty() && !range.isValid()))
        return fail(root, tr("Das Projekt enthält keine Seiten."));
    putInOrder(pages, monthPages);
    const QDate first = monthPages.isEmpty() ? range.start() : monthPages.constFirst().contentConfig().date();
    const QDate last = monthPages.isEmpty() ? range.end() : monthPages.constLast().contentConfig().date();
    if (MvDateRange(first, last).monthCount() > mostMonths)
        return fail(root, tr("Der Kalender reicht über mehr als %1 Monate.").arg(mostMonths));
    document.setSparePages(readSparePages(root));
    if (monthPages.isEmpty()) { // nothing says how the months of the range look
        MvCalendariumAppearance appearance;
        appearance.setLayoutSchema(MvCalendariumLayoutSchemaRegistry::instance().defaultSchema());
        appearance.setColorSchema(MvCalendariumColorSchemaRegistry::instance().defaultSchema());
        document.setAppearance(appearance);
    }
    document.setPages(range, pages);
}

MvXMLLoader::Error MvProjectReader::readList(const MvProjectParts &parts)
{
    m_content.entries = MvCalendarEventFile::readPart(parts.list(), parts.listLine(),
                                                      MvCalendarEventFotoFinder::besideDocument(documentFolder()));
    MvXMLLoader::Error error;
    if (!m_content.entries->refusal().isEmpty()) {
        error = MvXMLLoader::check(parts.list(), MvXMLLoader::Limits::ofStreams());
        error.line += parts.listLine() - 1;
    }
    return error;
}

/// As a stream, as every list of entries is read: it keeps texts that a document in memory does not.
void MvProjectReader::readEntries(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        if (reader.qualifiedName() != MvCalendarEventFile::elementName()) {
            reader.skipCurrentElement();
            continue;
        }
        m_content.entries =
            MvCalendarEventFile::readWithin(reader, MvCalendarEventFotoFinder::besideDocument(documentFolder()));
        return;
    }
}

/// Where the document lies: what was rescued of one is elsewhere, but only our own folder may say so.
QDir MvProjectReader::documentFolder() const
{
    const QDir folder = m_file.absoluteDir();
    const bool isRescued = !m_content.originalPath.isEmpty() &&
                           folder == QDir(MvDirectoryConfig::instance().programDataDir().filePath(recoveryFolder));
    return isRescued ? QFileInfo(m_content.originalPath).absoluteDir() : folder;
}

MvPageFormat MvProjectReader::readPaper(const QDomElement &root)
{
    const QDomElement element = root.firstChildElement(paper);
    MvPageFormat format(
        {MvXMLParser::doubleAttribute(element, widthKey), MvXMLParser::doubleAttribute(element, heightKey)});
    if (!format.isValid()) {
        format = m_content.document.format();
        m_notes.add(element.isNull() ? root : element, tr("Die Papiergröße fehlt oder geht nicht; es wird A4 quer."));
    }
    format.setBleed(MvXMLParser::doubleAttribute(element, bleedKey));
    m_notes.addIfChanged(element, bleedKey, format.bleed());
    format.setBinding(MvPageFormat::bindingFromName(MvXMLParser::textAttribute(element, bindingKey)));
    format.setBindingZone(MvXMLParser::doubleAttribute(element, bindingZoneKey, format.bindingZone()));
    m_notes.addIfChanged(element, bindingZoneKey, format.bindingZone());
    format.setSafeMargin(MvXMLParser::doubleAttribute(element, safeMarginKey, format.safeMargin()));
    m_notes.addIfChanged(element, safeMarginKey, format.safeMargin());
    return format;
}

MvDateRange MvProjectReader::readRange(const QDomElement &root)
{
    const QDomElement element = root.firstChildElement(MvProjectVocabulary::range);
    if (element.isNull())
        return {}; // that of the pages
    const QDate first = month(element, firstKey);
    const QDate last = month(element, lastKey);
    const MvDateRange range(first, last.isValid() ? last.addMonths(1).addDays(-1) : last);
    if (range.monthCount() > mostMonths)
        fail(element, tr("Der Kalender reicht über mehr als %1 Monate.").arg(mostMonths));
    else if (!range.isValid())
        m_notes.add(element, tr("Der Zeitraum ist nicht lesbar; es gilt der der Seiten."));
    return range;
}

MvCalendarPage MvProjectReader::readPage(const QDomElement &element)
{
    MvCalendarPage page;
    readContent(element, page);
    readAppearance(element.firstChildElement(calendarium), page);
    page.setKind(MvPageKind(m_notes.addIfUnknown(element, kindKey, pageKinds)));
    readArrangement(element, page);
    return page;
}

void MvProjectReader::readArrangement(const QDomElement &element, MvCalendarPage &page)
{
    MvProjectElementReader reader = elementReader();
    const QList<MvPageElement> elements = reader.readElements(element, MvProjectVocabulary::element);
    if (MvXMLParser::textAttribute(element, arrangementKey) == freeArrangement)
        page.setElements(elements);
    else
        for (const MvPageElement &added : elements)
            page.addElement(added);
    page.setSpareElements(reader.readElements(element, spareElement));
    if (const QString id = MvXMLParser::textAttribute(element, templateKey); !id.isEmpty())
        page.nameTemplate(templateOf(element, id));
    if (const QDomElement child = element.firstChildElement(foto); !child.isNull())
        page.setFotoFrame(readFrame(child));
    if (const QDomElement child = element.firstChildElement(background); !child.isNull())
        page.setBackground(reader.readBackground(child));
}

/// Elements stand where the file has them; the template decides where they go from there.
MvPageTemplate MvProjectReader::templateOf(const QDomElement &place, const QString &id)
{
    const MvPageTemplate known = MvThemeApplication::pageTemplate(m_content.document.themeId(), id);
    if (known.isValid())
        return known;
    m_notes.add(place, tr("Die Seitenvorlage „%1“ gibt es hier nicht; alles bleibt, wo es steht.").arg(id));
    return MvPageTemplate::unknown(id);
}

void MvProjectReader::readAppearance(const QDomElement &element, MvCalendarPage &page)
{
    MvCalendariumAppearance appearance(element, false, nullptr);
    MvCalendariumLayoutSchemaID unknownLayout;
    if (!appearance.layoutSchema().isValid()) {
        unknownLayout.read(element);
        appearance.setLayoutSchema(MvCalendariumLayoutSchemaRegistry::instance().defaultSchema());
        m_notes.add(element,
                    tr("Das Layout „%1“ gibt es hier nicht; bis es wieder da ist, steht „%2“ an seiner Stelle.")
                        .arg(unknownLayout.toString(), appearance.layoutSchema().name()));
    }
    MvCalendariumColorSchemaID unknownColors;
    if (!appearance.colorSchema().isValid()) {
        unknownColors.read(element);
        appearance.setColorSchema(MvCalendariumColorSchemaRegistry::instance().defaultSchema());
        m_notes.add(element,
                    tr("Das Farbschema „%1“ gibt es hier nicht; bis es wieder da ist, tritt ein anderes an seine "
                       "Stelle.")
                        .arg(unknownColors.toString()));
    }
    MvBorderConfig grid = appearance.gridConfig();
    grid.setIsEnabled(MvXMLParser::boolAttribute(element, gridKey, grid.isEnabled()));
    appearance.setGridConfig(grid);
    m_notes.addIfChanged(element, offsetMonthKey, appearance.offsetMonth());
    m_notes.addIfChanged(element, fontSizeKey, appearance.fontSettings().fontSizePercentage());
    m_notes.addIfChanged(element, holidayFontSizeKey, appearance.fontSettings().fontSizePercentageHolidays());
    m_notes.addIfChanged(element, letterSpacingKey, appearance.fontSettings().letterSpacing());
    appearance.setOverrideShowCalendarWeek(MvXMLParser::boolAttribute(element, weeksKey));
    if (element.hasAttribute(renderingKey))
        appearance.setRenderingInformation(MvCalendarRenderingInformation(element.attribute(renderingKey)));
    page.setAppearance(appearance);
    page.setUnknownLayout(unknownLayout);
    page.setUnknownColors(unknownColors);
}

void MvProjectReader::readContent(const QDomElement &element, MvCalendarPage &page)
{
    MvCalendariumContentConfig config = page.contentConfig();
    config.setDate(month(element, monthKey));
    const QDomElement child = element.firstChildElement(content);
    MvCalendariumHolidayConfig holidays = config.holidayConfig();
    const MvLocale language(MvXMLParser::textAttribute(child, languageKey));
    if (language.isValid())
        holidays.setLanguage(language);
    else
        m_notes.add(child.isNull() ? element : child, tr("Die Sprache fehlt oder ist unbekannt; es wird Deutsch."));
    holidays.setProvince(MvXMLParser::textAttribute(child, regionKey));
    holidays.setFeatures(MvCalendariumFeatures(MvXMLParser::textAttribute(child, featuresKey)));
    config.setHolidayConfig(holidays);
    config.setCalendarWeekHeadlineOption(MvCalendarWeekHeadlineOption(MvXMLParser::textAttribute(child, weekHeadKey)));
    config.setCalendarWeekTextOption(MvCalendarWeekTextOption(MvXMLParser::textAttribute(child, weekTextKey)));
    MvEntryDisplay entries;
    entries.hiddenGroups = MvXMLParser::textAttribute(child, hiddenGroupsKey).split(u',', Qt::SkipEmptyParts);
    entries.text = MvXMLParser::textAttribute(child, entryTextKey);
    entries.showTimes = MvXMLParser::boolAttribute(child, entryTimesKey);
    config.setEntryDisplay(entries);
    page.setContentConfig(config);
}

MvFotoFrame MvProjectReader::readFrame(const QDomElement &element)
{
    MvFotoFrame frame;
    frame.setFoto(elementReader().readFoto(element));
    const qsizetype placement = placements.indexOf(MvXMLParser::textAttribute(element, placementKey));
    if (placement >= 0)
        frame.setPlacement(MvFotoFrame::Placement(placement));
    else
        m_notes.add(element, tr("Wo das Foto steht, ist nicht lesbar; es kommt nach oben."));
    frame.setShare(MvXMLParser::doubleAttribute(element, shareKey, MvFotoFrame::defaultShare));
    m_notes.addIfChanged(element, shareKey, frame.share());
    return frame;
}

QMap<QDate, MvCalendarPage> MvProjectReader::readSparePages(const QDomElement &root)
{
    QMap<QDate, MvCalendarPage> pages;
    for (QDomElement element = root.firstChildElement(); !element.isNull(); element = element.nextSiblingElement()) {
        if (element.tagName() != spareFoto && element.tagName() != sparePage)
            continue;
        const QDate month = this->month(element, monthKey);
        MvCalendarPage page;
        if (element.tagName() == spareFoto)
            page.setFotoFrame(readFrame(element));
        else
            readArrangement(element, page);
        if (month.isValid() && page.hasOwnContent(m_content.document.format()))
            pages.insert(month, page);
    }
    return pages;
}

MvProjectElementReader MvProjectReader::elementReader()
{
    return {m_file.absoluteDir(), m_content.document.format(), m_notes};
}

QDate MvProjectReader::month(const QDomElement &element, const QString &name)
{
    const QString text = MvXMLParser::textAttribute(element, name);
    const QDate month = QDate::fromString(text, monthFormat);
    if (!month.isValid())
        m_notes.add(element, tr("„%1“ ist kein Monat wie 2027-01.").arg(text));
    return month;
}

void MvProjectReader::fail(const QDomElement &place, const QString &message)
{
    if (m_content.isOk())
        m_content.error = m_notes.placed(place, message) + advice();
}

QString MvProjectReader::advice() const
{
    const QList<QFileInfo> backups = MvSafeFileWriter::backups(m_file);
    if (backups.isEmpty())
        return {};
    return u' ' + tr("Eine frühere Fassung liegt daneben: %1").arg(backups.constFirst().fileName());
}

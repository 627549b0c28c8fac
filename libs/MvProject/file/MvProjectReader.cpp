// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectReader.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvProjectVocabulary.h"
#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

#include <QDir>
#include <QDomDocument>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace MvProjectVocabulary;

MvProjectFile::Content MvProjectReader::read()
{
    MvXMLLoader::Error error;
    const QDomDocument dom = MvXMLLoader::loadDocument(m_file, &error);
    if (error.isError())
        m_content.error = error.describe(m_file) + advice();
    else
        readRoot(dom.documentElement());
    return m_content;
}

void MvProjectReader::readRoot(const QDomElement &root)
{
    if (root.tagName() != MvProjectVocabulary::root)
        return fail(root, tr("Das ist kein Kalenderprojekt; die Datei beginnt mit „%1“.").arg(root.tagName()));
    if (MvXMLParser::intAttribute(root, versionKey, version) > version) {
        return fail(root, tr("Das Projekt stammt aus einer neueren Fassung des Programms. Bitte das Programm "
                             "aktualisieren."));
    }
    m_content.originalPath = MvXMLParser::textAttribute(root, originalKey);
    m_content.originalStamp = MvXMLParser::textAttribute(root, originalStampKey).toLatin1();
    MvCalendarDocument &document = m_content.document;
    document.setTitle(MvXMLParser::textAttribute(root, titleKey));
    document.setAuthor(MvXMLParser::textAttribute(root, authorKey));
    document.setFormat(readPaper(root));
    readPages(root);
}

void MvProjectReader::readPages(const QDomElement &root)
{
    MvCalendarDocument &document = m_content.document;
    const MvDateRange range = readRange(root);
    QList<MvCalendarPage> pages;
    QList<QDate> months;
    for (QDomElement element = root.firstChildElement(page); m_content.isOk() && !element.isNull();
         element = element.nextSiblingElement(page)) {
        const MvCalendarPage read = readPage(element);
        const QDate month = read.contentConfig().date();
        if (month.isValid() && months.contains(month))
            note(element,
                 tr("Den Monat %1 gibt es zweimal; die zweite Seite bleibt weg.").arg(month.toString(monthFormat)));
        else if (month.isValid() && range.isValid() && !range.contains(month))
            note(element, tr("Der Monat %1 liegt außerhalb des Kalenders; die Seite bleibt weg.")
                              .arg(month.toString(monthFormat)));
        else if (month.isValid())
            pages.append(read);
        months.append(month);
    }
    if (!m_content.isOk())
        return;
    if (pages.isEmpty())
        return fail(root, tr("Das Projekt enthält keine Seiten."));
    std::sort(pages.begin(), pages.end(), [](const MvCalendarPage &a, const MvCalendarPage &b) {
        return a.contentConfig().date() < b.contentConfig().date();
    });
    const QDate first = pages.constFirst().contentConfig().date();
    if (MvDateRange(first, pages.constLast().contentConfig().date()).monthCount() > mostMonths)
        return fail(root, tr("Der Kalender reicht über mehr als %1 Monate.").arg(mostMonths));
    document.setSpareFotos(readSpareFotos(root));
    document.setPages(range, pages);
}

MvPageFormat MvProjectReader::readPaper(const QDomElement &root)
{
    const QDomElement element = root.firstChildElement(paper);
    MvPageFormat format(
        {MvXMLParser::doubleAttribute(element, widthKey), MvXMLParser::doubleAttribute(element, heightKey)});
    if (!format.isValid()) {
        format = m_content.document.format();
        note(element.isNull() ? root : element, tr("Die Papiergröße fehlt oder geht nicht; es wird A4 quer."));
    }
    format.setBleed(MvXMLParser::doubleAttribute(element, bleedKey));
    noteChanged(element, bleedKey, format.bleed());
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
        note(element, tr("Der Zeitraum ist nicht lesbar; es gilt der der Seiten."));
    return range;
}

MvCalendarPage MvProjectReader::readPage(const QDomElement &element)
{
    MvCalendarPage page;
    readContent(element, page);
    readAppearance(element.firstChildElement(calendarium), page);
    const QDomElement fotoElement = element.firstChildElement(foto);
    if (!fotoElement.isNull())
        page.setFotoFrame(readFoto(fotoElement));
    return page;
}

void MvProjectReader::readAppearance(const QDomElement &element, MvCalendarPage &page)
{
    MvCalendariumAppearance appearance(element, false, nullptr);
    MvCalendariumLayoutSchemaID unknownLayout;
    if (!appearance.layoutSchema().isValid()) {
        unknownLayout.read(element);
        appearance.setLayoutSchema(MvCalendariumLayoutSchemaRegistry::instance().defaultSchema());
        note(element, tr("Das Layout „%1“ gibt es hier nicht; bis es wieder da ist, steht „%2“ an seiner Stelle.")
                          .arg(unknownLayout.toString(), appearance.layoutSchema().name()));
    }
    MvCalendariumColorSchemaID unknownColors;
    if (!appearance.colorSchema().isValid()) {
        unknownColors.read(element);
        appearance.setColorSchema(MvCalendariumColorSchemaRegistry::instance().defaultSchema());
        note(element, tr("Das Farbschema „%1“ gibt es hier nicht; bis es wieder da ist, tritt ein anderes an seine "
                         "Stelle.")
                          .arg(unknownColors.toString()));
    }
    MvBorderConfig grid = appearance.gridConfig();
    grid.setIsEnabled(MvXMLParser::boolAttribute(element, gridKey, grid.isEnabled()));
    appearance.setGridConfig(grid);
    noteChanged(element, offsetMonthKey, appearance.offsetMonth());
    noteChanged(element, fontSizeKey, appearance.fontSettings().fontSizePercentage());
    noteChanged(element, holidayFontSizeKey, appearance.fontSettings().fontSizePercentageHolidays());
    noteChanged(element, letterSpacingKey, appearance.fontSettings().letterSpacing());
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
        note(child.isNull() ? element : child, tr("Die Sprache fehlt oder ist unbekannt; es wird Deutsch."));
    holidays.setProvince(MvXMLParser::textAttribute(child, regionKey));
    holidays.setFeatures(MvCalendariumFeatures(MvXMLParser::textAttribute(child, featuresKey)));
    config.setHolidayConfig(holidays);
    config.setCalendarWeekHeadlineOption(MvCalendarWeekHeadlineOption(MvXMLParser::textAttribute(child, weekHeadKey)));
    config.setCalendarWeekTextOption(MvCalendarWeekTextOption(MvXMLParser::textAttribute(child, weekTextKey)));
    page.setContentConfig(config);
}

MvFotoFrame MvProjectReader::readFoto(const QDomElement &element)
{
    MvFotoFrame frame;
    const QString path = MvXMLParser::textAttribute(element, pathKey);
    if (!path.isEmpty())
        frame.setPath(m_file.absoluteDir().absoluteFilePath(path));
    const qsizetype placement = placements.indexOf(MvXMLParser::textAttribute(element, placementKey));
    if (placement >= 0)
        frame.setPlacement(MvFotoFrame::Placement(placement));
    else
        note(element, tr("Wo das Foto steht, ist nicht lesbar; es kommt nach oben."));
    frame.setShare(MvXMLParser::doubleAttribute(element, shareKey, MvFotoFrame::defaultShare));
    noteChanged(element, shareKey, frame.share());
    frame.setFocus(
        {MvXMLParser::doubleAttribute(element, focusXKey, 0.5), MvXMLParser::doubleAttribute(element, focusYKey, 0.5)});
    return frame;
}

QMap<QDate, MvFotoFrame> MvProjectReader::readSpareFotos(const QDomElement &root)
{
    QMap<QDate, MvFotoFrame> fotos;
    for (QDomElement element = root.firstChildElement(spareFoto); !element.isNull();
         element = element.nextSiblingElement(spareFoto)) {
        const QDate month = this->month(element, monthKey);
        const MvFotoFrame frame = readFoto(element);
        if (month.isValid() && frame.isValid())
            fotos.insert(month, frame);
    }
    return fotos;
}

QDate MvProjectReader::month(const QDomElement &element, const QString &name)
{
    const QString text = MvXMLParser::textAttribute(element, name);
    const QDate month = QDate::fromString(text, monthFormat);
    if (!month.isValid())
        note(element, tr("„%1“ ist kein Monat wie 2027-01.").arg(text));
    return month;
}

void MvProjectReader::noteChanged(const QDomElement &place, const QString &attribute, double taken)
{
    const QString text = MvXMLParser::textAttribute(place, attribute);
    bool isNumber = false;
    const double written = text.trimmed().toDouble(&isNumber);
    if (!text.isEmpty() && !(isNumber && written == taken))
        note(place, tr("%1 „%2“ geht nicht; es gilt %3.").arg(attribute, text).arg(taken));
}

void MvProjectReader::fail(const QDomElement &place, const QString &message)
{
    if (m_content.isOk())
        m_content.error = placed(place, message) + advice();
}

void MvProjectReader::note(const QDomElement &place, const QString &message)
{
    m_content.notes.append(placed(place, message));
}

QString MvProjectReader::placed(const QDomElement &place, const QString &message) const
{
    MvXMLLoader::Error error;
    error.message = message;
    error.line = place.lineNumber();
    error.column = place.columnNumber();
    return error.describe(m_file);
}

QString MvProjectReader::advice() const
{
    const QList<QFileInfo> backups = MvSafeFileWriter::backups(m_file);
    if (backups.isEmpty())
        return {};
    return u' ' + tr("Eine frühere Fassung liegt daneben: %1").arg(backups.constFirst().fileName());
}

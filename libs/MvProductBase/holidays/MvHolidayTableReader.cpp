// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayTableReader.h"

#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

#include <QDebug>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestVacation = 400; // days; more than any, and a limit to what a wrong year costs

template <class Function>
void forEachChild(const QDomElement &parent, const QString &name, Function function)
{
    for (QDomElement child = parent.firstChildElement(name); !child.isNull(); child = child.nextSiblingElement(name))
        function(child);
}

QStringList words(const QDomElement &element, const QString &attribute)
{
    return MvXMLParser::textAttribute(element, attribute).split(u' ', Qt::SkipEmptyParts);
}

QString attribute(const QXmlStreamReader &reader, const QString &name)
{
    return reader.attributes().value(name).toString();
}

/// "2027-05-01"; an invalid one for all else.
QDate dateOf(const QString &text)
{
    return QDate::fromString(text, Qt::ISODate);
}

} // namespace

MvHolidayTableReader::MvHolidayTableReader(const QFileInfo &file)
    : m_file(file)
{}

void MvHolidayTableReader::complain(const QDomElement &element, const QString &message)
{
    complain(element.lineNumber(), message);
}

void MvHolidayTableReader::complain(qint64 line, const QString &message)
{
    m_problems.append(u"%1:%2: %3"_s.arg(m_file.filePath()).arg(line).arg(message));
}

void MvHolidayTableReader::report() const
{
    if (m_problems.isEmpty())
        return;
    QString message = m_problems.first();
    if (m_problems.size() > 1)
        message += tr(" (und %n weitere Fehler in dieser Datei)", nullptr, static_cast<int>(m_problems.size()) - 1);
    qWarning().noquote() << message;
}

QDomElement MvHolidayTableReader::open(const QString &rootName)
{
    MvXMLLoader::Error error;
    const QDomElement root = MvXMLLoader::loadDocument(m_file, &error).documentElement();
    if (error.isError())
        m_problems.append(error.describe(m_file));
    else if (root.tagName() != rootName)
        complain(root, tr("\"%1\" statt \"%2\"").arg(root.tagName(), rootName));
    else
        return root;
    return {};
}

QList<MvHolidayTableReader::Country> MvHolidayTableReader::readCountries()
{
    QList<Country> countries;
    forEachChild(open(u"HolidayCountries"_s), u"country"_s, [&](const QDomElement &element) {
        const Country country = {MvXMLParser::textAttribute(element, u"code"_s),
                                 MvXMLParser::textAttribute(element, u"name"_s), words(element, u"languages"_s)};
        if (country.code.size() != 2 || country.languages.isEmpty())
            complain(element, tr("Land ohne Kennung oder Sprache"));
        else
            countries.append(country);
    });
    report();
    return countries;
}

MvHolidayTable MvHolidayTableReader::readTable()
{
    MvHolidayTable table;
    const QDomElement root = open(u"HolidayTable"_s);
    table.setLanguage(MvXMLParser::textAttribute(root, u"language"_s));
    forEachChild(root, u"region"_s, [&](const QDomElement &element) {
        const MvHolidayTable::Region region = readRegion(element);
        if (region.code.isEmpty() || table.hasRegion(region.code))
            complain(element, tr("Region ohne eigene Kennung"));
        else
            table.addRegion(region);
    });
    forEachChild(root, u"holiday"_s, [&](const QDomElement &element) {
        if (const auto entry = readEntry(element, table))
            table.addEntry(*entry);
    });
    report();
    return table;
}

MvHolidayTable::Region MvHolidayTableReader::readRegion(const QDomElement &element)
{
    MvHolidayTable::Region region;
    region.code = MvXMLParser::textAttribute(element, u"code"_s);
    region.name = MvXMLParser::textAttribute(element, u"name"_s, region.code);
    region.parent = MvXMLParser::textAttribute(element, u"parent"_s);
    region.language = MvXMLParser::textAttribute(element, u"language"_s);
    region.localName = MvXMLParser::textAttribute(element, u"localName"_s);
    return region;
}

std::optional<MvHolidayTable::Entry> MvHolidayTableReader::readEntry(const QDomElement &element,
                                                                     const MvHolidayTable &table)
{
    MvHolidayTable::Entry entry;
    entry.name = MvXMLParser::textAttribute(element, u"name"_s).simplified();
    entry.type = MvCalendariumHolidayType(MvXMLParser::textAttribute(element, u"type"_s, u"public"_s));
    entry.isPartial = MvXMLParser::boolAttribute(element, u"partial"_s);
    const MvHolidayRule::Parsed rule = MvHolidayRule::parse(MvXMLParser::textAttribute(element, u"rule"_s));
    if (entry.name.isEmpty())
        complain(element, tr("Feiertag ohne Namen"));
    else if (MvHolidayTable::rank(entry.type) > MvHolidayTable::rank(HOLIDAY_TYPE_OBSERVANCE))
        complain(element, tr("Feiertag \"%1\" hat eine unbekannte Art").arg(entry.name));
    else if (!rule.isOk())
        complain(element, tr("Feiertag \"%1\": %2").arg(entry.name, rule.error));
    else if (readYear(element, u"from"_s, entry.from) && readYear(element, u"until"_s, entry.until) &&
             readExceptions(element, entry) && readRegions(element, table, entry.regions)) {
        entry.rule = rule.rule;
        entry.names = readNames(element);
        return entry;
    }
    return {};
}

QHash<QString, QString> MvHolidayTableReader::readNames(const QDomElement &element)
{
    QHash<QString, QString> names;
    forEachChild(element, u"name"_s, [&names](const QDomElement &name) {
        const QString text = MvXMLParser::textAttribute(name, u"text"_s).simplified();
        if (!text.isEmpty())
            names.insert(MvXMLParser::textAttribute(name, u"language"_s), text);
    });
    return names;
}

bool MvHolidayTableReader::readYear(const QDomElement &element, const QString &attribute, std::optional<int> &year)
{
    if (!element.hasAttribute(attribute))
        return true;
    bool ok = false;
    year = element.attribute(attribute).toInt(&ok);
    if (!ok)
        complain(element, tr("\"%1\" ist kein Jahr").arg(element.attribute(attribute)));
    return ok;
}

bool MvHolidayTableReader::readExceptions(const QDomElement &element, MvHolidayTable::Entry &entry)
{
    const QStringList years = words(element, u"except"_s);
    for (const QString &text : years) {
        bool ok = false;
        entry.exceptYears.insert(text.toInt(&ok));
        if (!ok) {
            complain(element, tr("\"%1\" ist kein Jahr").arg(text));
            return false;
        }
    }
    return true;
}

bool MvHolidayTableReader::readRegions(const QDomElement &element, const MvHolidayTable &table, QStringList &regions)
{
    regions = words(element, u"regions"_s);
    for (const QString &code : std::as_const(regions)) {
        if (!table.hasRegion(code)) {
            complain(element, tr("unbekannte Region \"%1\"").arg(code));
            return false;
        }
    }
    return true;
}

QString MvHolidayTableReader::problemOf(const MvSchoolVacationTable::Vacation &vacation)
{
    if (vacation.name.isEmpty() || !vacation.start.isValid() || !vacation.end.isValid())
        return tr("Ferien ohne Namen, Anfang oder Ende");
    const qint64 length = vacation.start.daysTo(vacation.end);
    if (length < 0 || length > longestVacation)
        return tr("\"%1\" endet vor dem Anfang oder dauert zu lange").arg(vacation.name);
    return {};
}

std::optional<MvSchoolVacationTable::Vacation> MvHolidayTableReader::readVacation(const QDomElement &element)
{
    const MvSchoolVacationTable::Vacation vacation = {
        MvXMLParser::textAttribute(element, u"name"_s).simplified(), readNames(element),
        dateOf(MvXMLParser::textAttribute(element, u"start"_s)), dateOf(MvXMLParser::textAttribute(element, u"end"_s))};
    const QString problem = problemOf(vacation);
    if (problem.isEmpty())
        return vacation;
    complain(element, problem);
    return {};
}

/// As a stream: a country has thousands of them, and most calls need one year.
void MvHolidayTableReader::readVacations(MvSchoolVacationTable &vacations)
{
    if (!m_file.exists())
        return;
    MvXMLLoader::Error error;
    QXmlStreamReader reader(MvXMLLoader::loadBytes(m_file, &error));
    QHash<QString, QHash<QString, QString>> common; // by name: most vacations share their names with others
    QList<RegionVacation> read;
    if (error.isError())
        m_problems.append(error.describe(m_file));
    else if (reader.readNextStartElement() && reader.name() != u"SchoolVacations"_s)
        complain(reader.lineNumber(), tr("\"%1\" statt \"%2\"").arg(reader.name(), u"SchoolVacations"_s));
    const bool isReadable = m_problems.isEmpty();
    while (isReadable && reader.readNextStartElement()) {
        if (reader.name() == u"names"_s) {
            const QString name = attribute(reader, u"of"_s).simplified();
            common.insert(name, readNames(reader));
        } else if (reader.name() == u"region"_s) {
            readRegionVacations(reader, read);
        } else {
            reader.skipCurrentElement();
        }
    }
    for (auto &[region, vacation] : read) {
        QHash<QString, QString> names = common.value(vacation.name);
        names.insert(vacation.names);
        vacation.names = names;
        vacations.add(region, vacation);
    }
    report();
}

void MvHolidayTableReader::readRegionVacations(QXmlStreamReader &reader, QList<RegionVacation> &vacations)
{
    const QString code = attribute(reader, u"code"_s);
    while (reader.readNextStartElement()) {
        if (reader.name() != u"vacation"_s) {
            reader.skipCurrentElement();
            continue;
        }
        const qint64 line = reader.lineNumber();
        MvSchoolVacationTable::Vacation vacation{attribute(reader, u"name"_s).simplified(),
                                                 {},
                                                 dateOf(attribute(reader, u"start"_s)),
                                                 dateOf(attribute(reader, u"end"_s))};
        vacation.names = readNames(reader);
        const QString problem = problemOf(vacation);
        if (problem.isEmpty())
            vacations.append({code, vacation});
        else
            complain(line, problem);
    }
}

QHash<QString, QString> MvHolidayTableReader::readNames(QXmlStreamReader &reader)
{
    QHash<QString, QString> names;
    while (reader.readNextStartElement()) {
        const QString text = attribute(reader, u"text"_s).simplified();
        if (reader.name() == u"name"_s && !text.isEmpty())
            names.insert(attribute(reader, u"language"_s), text);
        reader.skipCurrentElement();
    }
    return names;
}

QDomElement MvHolidayTableReader::ownCountry(const QString &country)
{
    QDomElement found;
    forEachChild(open(u"MyHolidays"_s), u"country"_s, [&](const QDomElement &element) {
        if (found.isNull() && MvXMLParser::textAttribute(element, u"code"_s).toUpper() == country)
            found = element;
    });
    return found;
}

void MvHolidayTableReader::readOwn(const QString &country, MvHolidayTable &table, MvSchoolVacationTable &vacations)
{
    if (!m_file.exists())
        return;
    const QDomElement root = ownCountry(country);
    forEachChild(root, u"remove"_s, [&](const QDomElement &element) {
        QStringList regions;
        if (readRegions(element, table, regions))
            table.removeEntries(MvXMLParser::textAttribute(element, u"name"_s).simplified(), regions);
    });
    QList<MvHolidayTable::Entry> entries;
    forEachChild(root, u"holiday"_s, [&](const QDomElement &element) {
        if (const auto entry = readEntry(element, table))
            entries.append(*entry);
    });
    for (const MvHolidayTable::Entry &entry : std::as_const(entries))
        table.removeEntries(entry.name, entry.regions); // before any is added: several own ones may share a name
    for (const MvHolidayTable::Entry &entry : std::as_const(entries))
        table.addEntry(entry);
    readOwnVacations(root, table, vacations);
    report();
}

void MvHolidayTableReader::readOwnVacations(const QDomElement &country, const MvHolidayTable &table,
                                            MvSchoolVacationTable &vacations)
{
    forEachChild(country, u"vacation"_s, [&](const QDomElement &element) {
        QStringList regions;
        const auto vacation = readVacation(element);
        if (!vacation || !readRegions(element, table, regions))
            return;
        if (regions.isEmpty())
            regions.append(QString()); // the whole country
        for (const QString &region : std::as_const(regions))
            vacations.add(region, *vacation);
    });
}

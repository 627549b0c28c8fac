// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayTableReader.h"

#include "MvCore/MvStringHelper.h"

#include <QDebug>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestVacation = 400; // days; more than any, and a limit to what a wrong year costs

template <class Function>
void forEachChild(const MvXMLElement &parent, const QString &name, Function function)
{
    for (const MvXMLElement &child : parent.children) {
        if (child.name == name)
            function(child);
    }
}

QStringList words(const MvXMLElement &element, const QString &attribute)
{
    return element.attribute(attribute).split(u' ', Qt::SkipEmptyParts);
}

QString attribute(const QXmlStreamReader &reader, const QString &name)
{
    return reader.attributes().value(name).toString();
}

/// The parts of a text, of which all but the first begin with a word.
QList<QByteArrayView> partsAt(QByteArrayView text, QByteArrayView word)
{
    QList<QByteArrayView> parts;
    qsizetype from = 0;
    for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, from + 1)) {
        parts.append(text.sliced(from, at - from));
        from = at;
    }
    parts.append(text.sliced(from));
    return parts;
}

/// Between a word and the next quotation mark; empty when there is no such word.
QByteArrayView valueAfter(QByteArrayView word, QByteArrayView text)
{
    const qsizetype at = text.indexOf(word);
    const QByteArrayView rest = at < 0 ? QByteArrayView() : text.sliced(at + word.size());
    return rest.first(std::max<qsizetype>(0, rest.indexOf('"')));
}

/// A shipped file of vacations without the regions that nobody asks for, and without what ended before the year.
QByteArray excerptOf(const QByteArray &shipped, const QStringList &regions, int sinceYear)
{
    const QByteArrayView end = "</region>";
    QByteArray kept;
    for (const QByteArrayView part : partsAt(shipped, "<region ")) {
        const qsizetype size = part.startsWith("<region ") ? part.indexOf(end) + end.size() : 0;
        const QByteArrayView region = part.first(size);
        if (size > 0 && regions.contains(QString::fromUtf8(valueAfter("code=\"", region)))) {
            for (const QByteArrayView vacation : partsAt(region.chopped(end.size()), "<vacation ")) {
                const QByteArrayView last = valueAfter(" end=\"", vacation);
                if (last.isEmpty() || last.first(4).toInt() >= sinceYear)
                    kept.append(vacation);
            }
            kept.append(end);
        }
        kept.append(part.sliced(size));
    }
    return kept;
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

void MvHolidayTableReader::complain(const MvXMLElement &element, const QString &message)
{
    complain(element.line, message);
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

MvXMLElement MvHolidayTableReader::open(const QString &rootName)
{
    MvXMLFile::Error error;
    const MvXMLElement root = MvXMLElement::load(m_file, &error);
    if (error.isError())
        m_problems.append(error.describe(m_file));
    else if (root.name != rootName)
        complain(root, tr("\"%1\" statt \"%2\"").arg(root.name, rootName));
    else
        return root;
    return {};
}

QList<MvHolidayTableReader::Country> MvHolidayTableReader::readCountries()
{
    QList<Country> countries;
    forEachChild(open(u"HolidayCountries"_s), u"country"_s, [&](const MvXMLElement &element) {
        const Country country = {element.attribute(u"code"_s),
                                 element.attribute(u"name"_s), words(element, u"languages"_s)};
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
    const MvXMLElement root = open(u"HolidayTable"_s);
    table.setLanguage(root.attribute(u"language"_s));
    forEachChild(root, u"region"_s, [&](const MvXMLElement &element) {
        const MvHolidayTable::Region region = readRegion(element);
        if (region.code.isEmpty() || table.hasRegion(region.code))
            complain(element, tr("Region ohne eigene Kennung"));
        else
            table.addRegion(region);
    });
    forEachChild(root, u"holiday"_s, [&](const MvXMLElement &element) {
        if (const auto entry = readEntry(element, table))
            table.addEntry(*entry);
    });
    report();
    return table;
}

MvHolidayTable::Region MvHolidayTableReader::readRegion(const MvXMLElement &element)
{
    MvHolidayTable::Region region;
    region.code = element.attribute(u"code"_s);
    region.name = element.attribute(u"name"_s, region.code);
    region.parent = element.attribute(u"parent"_s);
    region.language = element.attribute(u"language"_s);
    region.localName = element.attribute(u"localName"_s);
    return region;
}

std::optional<MvHolidayTable::Entry> MvHolidayTableReader::readEntry(const MvXMLElement &element,
                                                                     const MvHolidayTable &table)
{
    MvHolidayTable::Entry entry;
    entry.name = element.attribute(u"name"_s).simplified();
    entry.type = MvCalendariumHolidayType(element.attribute(u"type"_s, u"public"_s));
    entry.isPartial = MvStringHelper::stringToBool(element.attribute(u"partial"_s), false);
    const MvHolidayRule::Parsed rule = MvHolidayRule::parse(element.attribute(u"rule"_s));
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

QHash<QString, QString> MvHolidayTableReader::readNames(const MvXMLElement &element)
{
    QHash<QString, QString> names;
    forEachChild(element, u"name"_s, [&names](const MvXMLElement &name) {
        const QString text = name.attribute(u"text"_s).simplified();
        if (!text.isEmpty())
            names.insert(name.attribute(u"language"_s), text);
    });
    return names;
}

bool MvHolidayTableReader::readYear(const MvXMLElement &element, const QString &attribute, std::optional<int> &year)
{
    if (!element.hasAttribute(attribute))
        return true;
    bool ok = false;
    year = element.attribute(attribute).toInt(&ok);
    if (!ok)
        complain(element, tr("\"%1\" ist kein Jahr").arg(element.attribute(attribute)));
    return ok;
}

bool MvHolidayTableReader::readExceptions(const MvXMLElement &element, MvHolidayTable::Entry &entry)
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

bool MvHolidayTableReader::readRegions(const MvXMLElement &element, const MvHolidayTable &table, QStringList &regions)
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

std::optional<MvSchoolVacationTable::Vacation> MvHolidayTableReader::readVacation(const MvXMLElement &element)
{
    const MvSchoolVacationTable::Vacation vacation = {
        element.attribute(u"name"_s).simplified(), readNames(element),
        dateOf(element.attribute(u"start"_s)), dateOf(element.attribute(u"end"_s))};
    const QString problem = problemOf(vacation);
    if (problem.isEmpty())
        return vacation;
    complain(element, problem);
    return {};
}

void MvHolidayTableReader::readVacations(MvSchoolVacationTable &vacations)
{
    if (!m_file.exists())
        return;
    MvXMLFile::Error error;
    const QByteArray bytes = MvXMLFile::loadBytes(m_file, &error);
    if (error.isError())
        m_problems.append(error.describe(m_file));
    else
        readVacations(bytes, vacations);
    report();
}

void MvHolidayTableReader::readShippedVacations(MvSchoolVacationTable &vacations, const QStringList &regions,
                                                int sinceYear)
{
    if (m_file.exists())
        readVacations(excerptOf(MvXMLFile::loadBytes(m_file), regions, sinceYear), vacations);
}

/// As a stream: a country has thousands of them.
void MvHolidayTableReader::readVacations(const QByteArray &bytes, MvSchoolVacationTable &vacations)
{
    QXmlStreamReader reader(bytes);
    QHash<QString, QHash<QString, QString>> common; // by name: most vacations share their names with others
    QList<RegionVacation> read;
    if (reader.readNextStartElement() && reader.name() != u"SchoolVacations"_s)
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

MvXMLElement MvHolidayTableReader::ownCountry(const QString &country)
{
    MvXMLElement found;
    forEachChild(open(u"MyHolidays"_s), u"country"_s, [&](const MvXMLElement &element) {
        if (found.isNull() && element.attribute(u"code"_s).toUpper() == country)
            found = element;
    });
    return found;
}

void MvHolidayTableReader::readOwn(const QString &country, MvHolidayTable &table, MvSchoolVacationTable &vacations)
{
    if (!m_file.exists())
        return;
    const MvXMLElement root = ownCountry(country);
    forEachChild(root, u"remove"_s, [&](const MvXMLElement &element) {
        QStringList regions;
        if (readRegions(element, table, regions))
            table.removeEntries(element.attribute(u"name"_s).simplified(), regions);
    });
    QList<MvHolidayTable::Entry> entries;
    forEachChild(root, u"holiday"_s, [&](const MvXMLElement &element) {
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

void MvHolidayTableReader::readOwnVacations(const MvXMLElement &country, const MvHolidayTable &table,
                                            MvSchoolVacationTable &vacations)
{
    forEachChild(country, u"vacation"_s, [&](const MvXMLElement &element) {
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

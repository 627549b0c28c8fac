// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayTableReader.h"

#include "MvCore/MvStringHelper.h"
#include "MvXML/MvShippedXML.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

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
    const QString text = element.attribute(attribute);
    return text.isEmpty() ? QStringList() : text.split(u' ', Qt::SkipEmptyParts);
}

/// Between a word and the next quotation mark; empty when there is no such word.
std::string_view valueAfter(std::string_view word, std::string_view text)
{
    const size_t at = text.find(word);
    const std::string_view rest = at == text.npos ? std::string_view() : text.substr(at + word.size());
    return rest.substr(0, rest.find('"'));
}

/// Of the vacations of a region those that end in the year or later.
void keepSince(int year, std::string_view region, QByteArray &kept)
{
    constexpr std::string_view begin = "<vacation ";
    while (!region.empty()) { // the region's own tag, then one vacation after the other
        const std::string_view vacation = region.substr(0, region.find(begin, 1));
        const std::string_view last = valueAfter(" end=\"", vacation);
        if (last.empty() || QByteArrayView(last.substr(0, 4)).toInt() >= year)
            kept.append(vacation);
        region.remove_prefix(vacation.size());
    }
}

/// A shipped file of vacations without the regions that nobody asks for, and without what ended before the year. The
/// whole country stands before its regions, so what comes after the last that is asked for need not be looked at.
QByteArray excerptOf(const QByteArray &shipped, const QStringList &regions, int sinceYear)
{
    constexpr std::string_view begin = "<region code=\"";
    constexpr std::string_view end = "</region>";
    std::string_view rest(shipped.constData(), size_t(shipped.size()));
    qsizetype missing = regions.size() - regions.count(QString());
    QByteArray kept(rest.data(), qsizetype(std::min(rest.find(begin), rest.size())));
    rest.remove_prefix(size_t(kept.size()));
    bool mayBeCountry = true; // the first one
    while (!rest.empty() && (missing > 0 || std::exchange(mayBeCountry, false))) {
        const std::string_view region = rest.substr(0, rest.find(end));
        const QString code = QString::fromUtf8(valueAfter(begin, region));
        if (regions.contains(code)) {
            keepSince(sinceYear, region, kept);
            kept.append(end);
            missing -= code.isEmpty() ? 0 : 1;
        }
        rest.remove_prefix(region.size());
        rest.remove_prefix(std::min(rest.find(begin), rest.size()));
    }
    return kept.append("</SchoolVacations>");
}

/// "2027-05-01"; an invalid one for all else.
QDate dateOf(const QString &text)
{
    if (text.size() != 10 || text.at(4) != u'-' || text.at(7) != u'-')
        return QDate::fromString(text, Qt::ISODate);
    std::array<int, 3> parts{}; // by hand, since there are thousands
    size_t part = 0;
    for (const QChar c : text) {
        if (c == u'-' && part < 2)
            ++part;
        else if (c < u'0' || c > u'9')
            return {};
        else
            parts[part] = 10 * parts[part] + c.unicode() - u'0';
    }
    return {parts[0], parts[1], parts[2]};
}

} // namespace

MvHolidayTableReader::MvHolidayTableReader(const QFileInfo &file)
    : m_file(file)
{}

void MvHolidayTableReader::complain(const MvXMLElement &element, const QString &message)
{
    m_problems.append(u"%1:%2: %3"_s.arg(m_file.filePath()).arg(element.line).arg(message));
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
        const Country country = {element.attribute(u"code"_s), element.attribute(u"name"_s),
                                 words(element, u"languages"_s)};
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
    const MvSchoolVacationTable::Vacation vacation = {element.attribute(u"name"_s).simplified(), readNames(element),
                                                      dateOf(element.attribute(u"start"_s)),
                                                      dateOf(element.attribute(u"end"_s))};
    const QString problem = problemOf(vacation);
    if (problem.isEmpty())
        return vacation;
    complain(element, problem);
    return {};
}

void MvHolidayTableReader::readVacations(MvSchoolVacationTable &vacations)
{
    if (m_file.exists())
        readVacations(open(u"SchoolVacations"_s), vacations);
    report();
}

void MvHolidayTableReader::readShippedVacations(MvSchoolVacationTable &vacations, const QStringList &regions,
                                                int sinceYear)
{
    if (!m_file.exists())
        return;
    const QByteArray asked = excerptOf(MvXMLFile::loadBytes(m_file), regions, sinceYear);
    readVacations(MvShippedXML(asked).next(), vacations);
}

void MvHolidayTableReader::readVacations(const MvXMLElement &root, MvSchoolVacationTable &vacations)
{
    QHash<QString, QHash<QString, QString>> common; // by name: most vacations share their names with others
    forEachChild(root, u"names"_s, [&](const MvXMLElement &element) {
        common.insert(element.attribute(u"of"_s).simplified(), readNames(element));
    });
    forEachChild(root, u"region"_s, [&](const MvXMLElement &region) {
        const QString code = region.attribute(u"code"_s);
        forEachChild(region, u"vacation"_s, [&](const MvXMLElement &element) {
            std::optional<MvSchoolVacationTable::Vacation> vacation = readVacation(element);
            if (!vacation)
                return;
            QHash<QString, QString> names = common.value(vacation->name);
            names.insert(vacation->names);
            vacation->names = names;
            vacations.add(code, *vacation);
        });
    });
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

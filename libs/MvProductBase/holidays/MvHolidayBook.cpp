// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayBook.h"

#include "MvProductBase/MvHolidayTableReader.h"

#include <QMutexLocker>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// by the plain letters of the name that choosers show: "Österreich" stands between "Niederlande" and "Polen"
QString sortKey(const MvHolidayTableReader::Country &country)
{
    const QString shown = MvLocale(country.languages.value(0), country.code).visibleName();
    const QString name = shown == country.code ? country.name : shown;
    QString key = name.normalized(QString::NormalizationForm_D).toLower();
    key.removeIf([](QChar c) { return c.isMark(); });
    return key;
}

qsizetype neighbourhood(const QString &code)
{
    static const QStringList first = {u"DE"_s, u"AT"_s, u"CH"_s};
    const qsizetype index = first.indexOf(code);
    return index < 0 ? first.size() : index;
}

/// What ended before is seldom asked for.
int recentYear()
{
    return QDate::currentDate().year() - 1;
}

} // namespace

MvHolidayBook::MvHolidayBook(FileFinder finder, const QFileInfo &ownFile)
    : m_finder(std::move(finder))
    , m_ownFile(ownFile)
{
    readCountries();
}

void MvHolidayBook::readCountries()
{
    struct Listed
    {
        MvHolidayTableReader::Country country;
        std::pair<qsizetype, QString> place;
    };
    QList<Listed> countries;
    for (const auto &country : MvHolidayTableReader(m_finder(u"holidays/countries.xml"_s)).readCountries())
        countries.append({country, {neighbourhood(country.code), sortKey(country)}});
    std::stable_sort(countries.begin(), countries.end(),
                     [](const Listed &a, const Listed &b) { return a.place < b.place; });
    for (const auto &[country, place] : std::as_const(countries)) {
        m_codes.insert(country.code);
        for (const QString &language : country.languages)
            m_locales.append(MvLocale(language, country.code));
    }
}

MvHolidayBook::Country MvHolidayBook::read(const QString &code) const
{
    MvHolidayTable holidays = MvHolidayTableReader(m_finder(u"holidays/%1.xml"_s.arg(code))).readTable();
    Country made;
    MvHolidayTableReader(m_ownFile).readOwn(code, holidays, made.ownVacations);
    made.holidays = std::make_shared<const MvHolidayTable>(std::move(holidays));
    return made;
}

// the caller holds the lock, also while files are read, so that each is read, and complained about, once
MvHolidayBook::Country &MvHolidayBook::country(const QString &code) const
{
    const auto known = m_countries.find(code);
    if (known != m_countries.end())
        return *known;
    const Country unknown = {std::make_shared<const MvHolidayTable>(), {}, {}, {}};
    return *m_countries.insert(code, m_codes.contains(code) ? read(code) : unknown);
}

std::shared_ptr<const MvHolidayTable> MvHolidayBook::table(const MvLocale &locale) const
{
    const QMutexLocker lock(&m_mutex);
    return country(locale.country()).holidays;
}

std::shared_ptr<const MvSchoolVacationTable> MvHolidayBook::vacations(const MvLocale &locale,
                                                                      const QStringList &regions, int sinceYear) const
{
    const QString code = locale.country();
    const QMutexLocker lock(&m_mutex);
    Country &where = country(code);
    QStringList missing;
    for (const QString &region : regions + QStringList{QString()}) { // what holds everywhere comes along
        if (!where.regions.contains(region))
            missing.append(region);
    }
    if (sinceYear < recentYear() && !where.hasPast) { // all anew
        where.hasPast = true;
        where.vacations.reset();
        missing += std::exchange(where.regions, {});
    }
    if (!where.vacations || !missing.isEmpty())
        readVacations(code, where, missing);
    return where.vacations;
}

/// Files from outside are read as a whole, and once, so that each is complained about once.
void MvHolidayBook::readVacations(const QString &code, Country &country, const QStringList &regions) const
{
    QList<QFileInfo> files;
    for (const QString &name : {u"holidays/vacations-%1.xml"_s, u"holidays/vacations-%1-odbl.xml"_s})
        files.append(m_finder(name.arg(code)));
    const bool areShipped = std::all_of(files.cbegin(), files.cend(), MvXMLFile::isEmbedded);
    const bool isFirst = !country.vacations;
    country.regions += regions;
    if (!areShipped && !isFirst)
        return; // they had all of it
    MvSchoolVacationTable all = isFirst ? country.ownVacations : *country.vacations;
    for (const QFileInfo &file : std::as_const(files)) {
        if (areShipped)
            MvHolidayTableReader(file).readShippedVacations(all, regions, country.hasPast ? 0 : recentYear());
        else if (m_codes.contains(code))
            MvHolidayTableReader(file).readVacations(all);
    }
    country.hasPast = country.hasPast || !areShipped;
    country.vacations = std::make_shared<const MvSchoolVacationTable>(std::move(all));
}

QDate MvHolidayBook::vacationsKnownUntil(const MvLocale &locale, const QString &region) const
{
    const QStringList regions = table(locale)->regionWithParents(region);
    const QDate until = vacations(locale, regions, recentYear())->knownUntil(regions);
    return until.isValid() ? until : vacations(locale, regions, 0)->knownUntil(regions);
}

MvCalendariumHolidayList MvHolidayBook::holidaysOfYear(const MvCalendariumHolidayCacheKey &key) const
{
    const MvCalendariumHolidayConfig config = key.config();
    const MvLocale locale = config.language();
    const std::shared_ptr<const MvHolidayTable> holidays = table(locale);
    MvCalendariumHolidayList found = holidays->holidays(key.year(), config.province(), locale.language());
    if (config.hasFeatures(FEATURE_PUBLIC_HOLIDAYS_ONLY))
        found.removeIf([](const MvCalendariumHoliday &holiday) { return holiday.type() != HOLIDAY_TYPE_PUBLIC; });
    if (!config.hasFeatures(FEATURE_SCHOOL_VACATIONS))
        return found;
    const QStringList regions = holidays->regionWithParents(config.province());
    found.append(vacations(locale, regions, key.year() - 1) // of which may reach into it
                     ->days(key.year(), regions, locale.language(), config.hasFeatures(FEATURE_VACATION_NAMES_DAILY)));
    std::stable_sort(found.begin(), found.end(), [](const MvCalendariumHoliday &a, const MvCalendariumHoliday &b) {
        return a.date() < b.date(); // vacations come last on their days: they were appended
    });
    return found;
}

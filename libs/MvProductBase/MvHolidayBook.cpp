#include "MvProductBase/MvHolidayBook.h"

#include "MvProductBase/MvHolidayTableReader.h"

#include <QMutexLocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

// by the plain letters of the name: "Österreich" stands between "Niederlande" and "Polen"
QString sortKey(const QString &name)
{
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

} // namespace

MvHolidayBook::MvHolidayBook(FileFinder finder, const QFileInfo &ownFile)
    : m_finder(std::move(finder))
    , m_ownFile(ownFile)
{
    readCountries();
}

void MvHolidayBook::readCountries()
{
    using Listed = MvHolidayTableReader::Country;
    QList<Listed> countries = MvHolidayTableReader(m_finder(u"holidays/countries.xml"_s)).readCountries();
    std::stable_sort(countries.begin(), countries.end(), [](const Listed &a, const Listed &b) {
        const qsizetype rankA = neighbourhood(a.code);
        const qsizetype rankB = neighbourhood(b.code);
        return rankA != rankB ? rankA < rankB : sortKey(a.name) < sortKey(b.name);
    });
    for (const Listed &country : std::as_const(countries)) {
        m_codes.insert(country.code);
        for (const QString &language : country.languages)
            m_locales.append(MvLocale(language, country.code));
    }
}

MvHolidayBook::Country MvHolidayBook::read(const QString &code) const
{
    const auto file = [this](const QString &name) { return m_finder(u"holidays/%1.xml"_s.arg(name)); };
    MvHolidayTable holidays = MvHolidayTableReader(file(code)).readTable();
    MvSchoolVacationTable vacations;
    MvHolidayTableReader(file(u"vacations-"_s + code)).readVacations(vacations);
    MvHolidayTableReader(file(u"vacations-%1-odbl"_s.arg(code))).readVacations(vacations);
    MvHolidayTableReader(m_ownFile).readOwn(code, holidays, vacations);
    return {std::make_shared<const MvHolidayTable>(std::move(holidays)),
            std::make_shared<const MvSchoolVacationTable>(std::move(vacations))};
}

MvHolidayBook::Country MvHolidayBook::country(const MvLocale &locale) const
{
    const QString code = locale.country();
    QMutexLocker lock(&m_mutex); // also while reading, so that a file is read, and complained about, once
    const auto known = m_countries.constFind(code);
    if (known != m_countries.constEnd())
        return *known;
    const Country made = m_codes.contains(code) ? read(code)
                                                : Country{std::make_shared<const MvHolidayTable>(),
                                                          std::make_shared<const MvSchoolVacationTable>()};
    m_countries.insert(code, made);
    return made;
}

std::shared_ptr<const MvHolidayTable> MvHolidayBook::table(const MvLocale &locale) const
{
    return country(locale).holidays;
}

QDate MvHolidayBook::vacationsKnownUntil(const MvLocale &locale, const QString &region) const
{
    const Country where = country(locale);
    return where.vacations->knownUntil(where.holidays->regionWithParents(region));
}

MvCalendariumHolidayList MvHolidayBook::holidaysOfYear(const MvCalendariumHolidayCacheKey &key) const
{
    const MvCalendariumHolidayConfig config = key.config();
    const Country where = country(config.language());
    MvCalendariumHolidayList found =
        where.holidays->holidays(key.year(), config.province(), config.language().language());
    if (config.hasFeatures(FEATURE_PUBLIC_HOLIDAYS_ONLY))
        found.removeIf([](const MvCalendariumHoliday &holiday) { return holiday.type() != HOLIDAY_TYPE_PUBLIC; });
    if (!config.hasFeatures(FEATURE_SCHOOL_VACATIONS))
        return found;
    found.append(where.vacations->days(key.year(), where.holidays->regionWithParents(config.province()),
                                       config.hasFeatures(FEATURE_VACATION_NAMES_DAILY)));
    std::stable_sort(found.begin(), found.end(), [](const MvCalendariumHoliday &a, const MvCalendariumHoliday &b) {
        return a.date() < b.date(); // vacations come last on their days: they were appended
    });
    return found;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayCalculator.h"
#include "MvProductBase/MvHolidayBook.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const MvCalendariumHolidayCalculator &calculator()
{
    return MvCalendariumHolidayCalculator::instance();
}

MvCalendariumHolidayList holidays(int year, const QString &locale, const QString &region, int features = 0)
{
    return calculator().holidaysOfYear(MvCalendariumHolidayCacheKey(
        year, MvCalendariumHolidayConfig(MvLocale(locale), region, MvCalendariumFeatures(features))));
}

QStringList textsOn(const MvCalendariumHolidayList &list, const QDate &day)
{
    QStringList texts;
    const MvCalendariumHolidayList found = list.filter(day);
    for (const MvCalendariumHoliday &holiday : found)
        texts.append(holiday.description());
    return texts;
}

} // namespace

/// The calculator with the data that is shipped.
class tst_MvCalendariumHolidayCalculator : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyCountryIsSound_data();
    void everyCountryIsSound();
    void countriesAndRegions();
    void findsProvinces();
    void days_data() { MvRows<QString, QString, QDate, QStringList>().read(u"holidays-of-days"_s); }
    void days();
    void schoolVacations_data() { MvRows<QString, QString, QDate, QDate, QString>().read(u"school-vacations"_s); }
    void schoolVacations();
    void vacationsSpeakTheLanguageOfThePage();
    void worksWithoutShareAlikeData();
    void regionsAreReadAlone();
    void ownFileCountsAfterReload();
    void answersManyThreads();
};

void tst_MvCalendariumHolidayCalculator::everyCountryIsSound_data()
{
    const MvRows<QString> row; // locale
    const QList<MvLocale> locales = calculator().availableLanguages();
    for (const MvLocale &locale : locales)
        row(locale.name(), locale.name());
}

// a data file with an error warns, and a warning fails the test
void tst_MvCalendariumHolidayCalculator::everyCountryIsSound()
{
    const auto [locale] = MvRows<QString>::current();
    const QStringList regions = calculator().availableProvinces(MvLocale(locale)) + QStringList{QString()};
    for (const QString &region : regions) {
        for (const int year : {1800, 1945, 1995, 2026, 2027, 2605}) {
            const MvCalendariumHolidayList list = holidays(year, locale, region, FEATURE_SCHOOL_VACATIONS);
            QVERIFY(!list.isEmpty());
            QSet<std::pair<QDate, QString>> seen;
            QDate last(year, 1, 1);
            for (const MvCalendariumHoliday &holiday : list) {
                QVERIFY(holiday.isValid());
                QCOMPARE(holiday.date().year(), year);
                QVERIFY(holiday.date() >= last);
                const bool isVacation = holiday.type() == HOLIDAY_TYPE_SCHOOL_VACATION;
                QVERIFY(isVacation || !holiday.description().isEmpty());
                const auto before = seen.size();
                seen.insert({holiday.date(), holiday.description()});
                QVERIFY2(seen.size() > before || isVacation, qPrintable(holiday.description()));
                last = holiday.date();
            }
            const MvCalendariumHolidayList publicOnly = holidays(year, locale, region, FEATURE_PUBLIC_HOLIDAYS_ONLY);
            QVERIFY(std::all_of(publicOnly.cbegin(), publicOnly.cend(), [](const MvCalendariumHoliday &holiday) {
                return holiday.type() == HOLIDAY_TYPE_PUBLIC;
            }));
            const bool isWhole = !region.isEmpty() || regions.size() == 1; // some countries have few days in common
            QVERIFY2(year < 1990 || publicOnly.size() >= (isWhole ? 5 : 1), qPrintable(region));
        }
    }
}

void tst_MvCalendariumHolidayCalculator::countriesAndRegions()
{
    QStringList names;
    const QList<MvLocale> locales = calculator().availableLanguages();
    for (const MvLocale &locale : locales)
        names.append(locale.name());
    QCOMPARE(names, u"de_DE de_AT de_CH fr_CH it_CH nl_BE fr_BE de_BE bg_BG da_DK fi_FI fr_FR el_GR en_IE it_IT de_IT "
                    "en_CA fr_CA hr_HR de_LI fr_LU de_LU lb_LU nl_NL no_NO pl_PL pt_PT ro_RO sv_SE sk_SK sl_SI es_ES "
                    "ca_ES cs_CZ hu_HU en_US en_GB"_s.split(u' '));

    QCOMPARE(calculator().availableProvinces(MvLocale(u"de_DE"_s)).size(), 19);
    QCOMPARE(calculator().availableProvinces(MvLocale(u"fr_CH"_s)).size(), 26);
    QCOMPARE(calculator().availableProvinces(MvLocale(u"de_LI"_s)), QStringList());
    QCOMPARE(calculator().availableProvinces(MvLocale(u"ja_JP"_s)), QStringList());
    QCOMPARE(calculator().provinceName(MvLocale(u"de_DE"_s), u"BY-A"_s), u"Bayern (Stadt Augsburg)"_s);
    QCOMPARE(calculator().provinceName(MvLocale(u"de_CH"_s), u"GE"_s), u"Genf"_s);
    QCOMPARE(calculator().provinceName(MvLocale(u"fr_CH"_s), u"GE"_s), u"Genève"_s);
    QCOMPARE(calculator().provinceName(MvLocale(u"de_DE"_s), u"ZH"_s), QString());
    QVERIFY(holidays(2026, u"ja_JP"_s, QString()).isEmpty());
}

void tst_MvCalendariumHolidayCalculator::findsProvinces()
{
    for (const auto &[locale, text, code] : {std::tuple(u"de_DE"_s, u"by-a"_s, u"BY-A"_s),
                                             {u"de_DE"_s, u"baden-württemberg"_s, u"BW"_s},
                                             {u"de_AT"_s, u"9"_s, u"9"_s},
                                             {u"de_AT"_s, u"Wien"_s, u"9"_s},
                                             {u"de_CH"_s, u"genève"_s, u"GE"_s}, // as it is called there
                                             {u"de_DE"_s, u"Württemberg"_s, QString()},
                                             {u"de_DE"_s, QString(), QString()}})
        QCOMPARE(calculator().findProvince(MvLocale(locale), text), code);
}

void tst_MvCalendariumHolidayCalculator::days()
{
    const auto [locale, region, day, texts] = MvRows<QString, QString, QDate, QStringList>::current();
    QCOMPARE(textsOn(holidays(day.year(), locale, region), day), texts);
}

void tst_MvCalendariumHolidayCalculator::schoolVacations()
{
    const auto [locale, region, first, last, name] = MvRows<QString, QString, QDate, QDate, QString>::current();
    const auto named = [locale = locale, region = region, first = first, name = name](int features) {
        const MvCalendariumHolidayList list = holidays(first.year(), locale, region, features);
        QList<QDate> days;
        for (const MvCalendariumHoliday &holiday : list) {
            if (holiday.type() == HOLIDAY_TYPE_SCHOOL_VACATION && holiday.description() == name)
                days.append(holiday.date());
        }
        return days;
    };
    QCOMPARE(named(FEATURE_SCHOOL_VACATIONS), QList<QDate>{first});
    const QList<QDate> daily = named(FEATURE_SCHOOL_VACATIONS | FEATURE_VACATION_NAMES_DAILY);
    QCOMPARE(daily.size(), first.daysTo(last) + 1);
    QCOMPARE(daily.first(), first);
    QCOMPARE(daily.last(), last);
    QVERIFY(named(FEATURE_VACATION_NAMES_DAILY).isEmpty());
}

// no name of one language on a page of another
void tst_MvCalendariumHolidayCalculator::vacationsSpeakTheLanguageOfThePage()
{
    constexpr int features = FEATURE_SCHOOL_VACATIONS | FEATURE_VACATION_NAMES_DAILY;
    QHash<QString, QHash<QString, QString>> languageOf; // by country and name
    const QList<MvLocale> locales = calculator().availableLanguages();
    for (const MvLocale &locale : locales) {
        QHash<QString, QString> &known = languageOf[locale.country()];
        for (const QString &region : calculator().availableProvinces(locale) + QStringList{QString()}) {
            for (int year = 2019; year <= 2035; ++year) {
                for (const MvCalendariumHoliday &day : holidays(year, locale.name(), region, features)) {
                    if (day.type() != HOLIDAY_TYPE_SCHOOL_VACATION)
                        continue;
                    const QString language = known.value(day.description(), locale.language());
                    QVERIFY2(language == locale.language(), qPrintable(locale.name() + u' ' + day.description()));
                    known.insert(day.description(), language);
                }
            }
        }
    }
    QVERIFY(languageOf[u"CH"_s].size() > 20);
}

void tst_MvCalendariumHolidayCalculator::worksWithoutShareAlikeData()
{
    const auto finder = [](const QString &name) {
        return name.contains("-odbl"_L1) ? QFileInfo(u":/nowhere"_s) : MvDirectoryConfig::instance().resource(name);
    };
    const MvHolidayBook book(finder, QFileInfo());
    const MvLocale germany(u"de_DE"_s);
    QCOMPARE(book.vacationsKnownUntil(germany, u"NW"_s), QDate(2029, 8, 14));
    QVERIFY(calculator().vacationsKnownUntil(germany, u"NW"_s) > QDate(2030, 6, 1));
    QVERIFY(!book.vacationsKnownUntil(MvLocale(u"de_CH"_s), u"ZH"_s).isValid());
    const MvCalendariumHolidayConfig zurich(MvLocale(u"de_CH"_s), u"ZH"_s, FEATURE_SCHOOL_VACATIONS);
    QVERIFY(!book.holidaysOfYear(MvCalendariumHolidayCacheKey(2027, zurich)).isEmpty());
}

/// Of shipped files only the regions that are asked for are read, of others all.
void tst_MvCalendariumHolidayCalculator::regionsAreReadAlone()
{
    const QTemporaryDir folder;
    const QDir shippedFiles(u":/mvcalendar/holidays"_s);
    for (const QString &name : shippedFiles.entryList())
        QVERIFY(QFile::copy(shippedFiles.filePath(name), folder.filePath(name)));
    const MvHolidayBook shipped([&](const QString &name) { return QFileInfo(u":/mvcalendar/"_s + name); }, {});
    const MvHolidayBook whole([&](const QString &name) { return QFileInfo(folder.filePath(name.mid(9))); }, {});
    int vacations = 0;
    for (const MvLocale &locale : whole.locales()) {
        for (const QString &region : whole.table(locale)->regionCodes() + QStringList{QString()}) {
            const QDate until = whole.vacationsKnownUntil(locale, region);
            const MvCalendariumHolidayCacheKey key(2027, {locale, region, FEATURE_SCHOOL_VACATIONS});
            vacations += until.isValid() ? 1 : 0;
            QCOMPARE(shipped.vacationsKnownUntil(locale, region), until);
            QCOMPARE(shipped.holidaysOfYear(key), whole.holidaysOfYear(key));
        }
    }
    QVERIFY(vacations > 50);
}

void tst_MvCalendariumHolidayCalculator::ownFileCountsAfterReload()
{
    const QString own = MvDirectoryConfig::instance().programDataFile(u"my-holidays.xml"_s).filePath();
    QVERIFY(MvTestFiles::write(
        own, "<MyHolidays><country code=\"DE\"><holiday name=\"Firmenjubil\xc3\xa4um\" rule=\"03-17\"/>"
             "<remove name=\"Valentinstag\"/></country></MyHolidays>"));

    const QDate jubilee(2026, 3, 17);
    const QDate valentine(2026, 2, 14);
    QVERIFY(textsOn(holidays(2026, u"de_DE"_s, u"NW"_s), jubilee).isEmpty());
    MvCalendariumHolidayCalculator::instance().reloadData();
    const MvCalendariumHolidayList changed = holidays(2026, u"de_DE"_s, u"NW"_s);
    QVERIFY(QFile::remove(own));
    MvCalendariumHolidayCalculator::instance().reloadData();
    QCOMPARE(textsOn(changed, jubilee), QStringList{u"Firmenjubiläum"_s});
    QVERIFY(!textsOn(changed, valentine).contains(u"Valentinstag"_s));
    QVERIFY(textsOn(holidays(2026, u"de_DE"_s, u"NW"_s), valentine).contains(u"Valentinstag"_s));
}

// for the thread sanitizer; without it, for crashes
void tst_MvCalendariumHolidayCalculator::answersManyThreads()
{
    const QStringList locales = {u"de_DE"_s, u"de_AT"_s, u"fr_CH"_s, u"en_GB"_s};
    const MvCalendariumHolidayList expected = holidays(2027, u"de_DE"_s, u"BY"_s);
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads; // not QThread: the sanitizer does not see through its waiting
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 20; ++round) {
                for (const QString &locale : locales)
                    holidays(2027, locale, QString(), FEATURE_SCHOOL_VACATIONS);
                if (!(holidays(2027, u"de_DE"_s, u"BY"_s) == expected))
                    ++wrong;
            }
        });
    }
    for (int i = 0; i < 3; ++i)
        MvCalendariumHolidayCalculator::instance().reloadData();
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

MV_TEST_MAIN(tst_MvCalendariumHolidayCalculator)
#include "tst_MvCalendariumHolidayCalculator.moc"

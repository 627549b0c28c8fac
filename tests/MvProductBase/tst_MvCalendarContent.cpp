// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendarWordsRegistry.h"
#include "MvProductBase/MvCalendariumContentKey.h"
#include "MvProductBase/MvCalendariumHolidayCacheKey.h"
#include "MvProductBase/MvCalendariumHolidayCalculator.h"
#include "MvProductBase/MvCalendariumHolidayConfigDefault.h"
#include "MvProductBase/MvCalendariumHolidayType.h"

#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

/// The values that say what a page shows, and its words.
class tst_MvCalendarContent : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void featuresAreWrittenByName();
    void hasFeaturesMeansAll();
    void equalityAndHashes();
    void defaultCalendar();
    void ranges_data();
    void ranges();
    void contentMoves();
    void words_data();
    void words();
    void wordsBesidePages();
    void weekOptions();
};

void tst_MvCalendarContent::featuresAreWrittenByName()
{
    const QString names = u"holidays, holidayColors, entries, schoolVacations, vacationNamesDaily, "
                          "publicHolidaysOnly, calendarWeeks"_s;
    QCOMPARE(MvCalendariumFeatures(127).encodeCSV(), names);
    QCOMPARE(MvCalendariumFeatures(names).toInt(), 127);
    QCOMPARE(MvCalendariumFeatures(u"Entries,unknown, calendarweeks"_s).toInt(), 68);
    QCOMPARE(MvCalendariumHolidayType(240).encodeCSV(), u"schoolVacation, public, optional, observance"_s);
}

void tst_MvCalendarContent::hasFeaturesMeansAll()
{
    for (const auto &[on, asked, answer] :
         {std::tuple(1, 1, true), {7, 2, true}, {3, 3, true}, {5, 3, false}, {0, 0, true}}) {
        MvCalendariumHolidayConfig config({}, {}, MvCalendariumFeatures(on));
        QCOMPARE(config.hasFeatures(MvCalendariumFeatures(asked)), answer);
        config.setFeature(MvCalendariumFeatures(asked), true);
        QCOMPARE(config.features().toInt(), on | asked);
        config.setFeature(MvCalendariumFeatures(asked), false);
        QCOMPARE(config.features().toInt(), on & ~asked);
    }
}

void tst_MvCalendarContent::equalityAndHashes()
{
    const MvCalendariumHolidayConfig base(MvLocale(u"de_DE"_s), u"BY"_s, FEATURE_HOLIDAYS);
    MvCalendariumHolidayConfig language = base;
    language.setLanguage(MvLocale(u"de_AT"_s));
    MvCalendariumHolidayConfig province = base;
    province.setProvince(u"BW"_s);
    MvCalendariumHolidayConfig features = base;
    features.setFeature(FEATURE_ENTRIES, true);
    QSet<MvCalendariumHolidayCacheKey> keys;
    for (const MvCalendariumHolidayConfig &config : {base, language, province, features}) {
        keys.insert(MvCalendariumHolidayCacheKey(2026, config));
        keys.insert(MvCalendariumHolidayCacheKey(2027, config));
        keys.insert(MvCalendariumHolidayCacheKey(2027, config));
    }
    QCOMPARE(keys.size(), 8);
    QVERIFY(keys.contains(MvCalendariumHolidayCacheKey(2026, base)));
    const MvCalendariumHolidayConfig initial = MvCalendariumHolidayConfigDefault::instance().defaultConfig();
    QCOMPARE(initial.language().name(), u"de_DE"_s);
    QVERIFY(!initial.province().isEmpty());
    QVERIFY(initial.hasFeatures(MvCalendariumFeatures(1 | 2 | 4 | 8 | 64)));
}

void tst_MvCalendarContent::defaultCalendar()
{
    for (const auto &[today, year] : {std::pair(QDate(2027, 1, 1), 2027),
                                      {QDate(2027, 1, 31), 2027},
                                      {QDate(2027, 2, 1), 2028},
                                      {QDate(2027, 12, 31), 2028}})
        QCOMPARE(MvDateRange::createDefaultCalendarDateRange(today),
                 MvDateRange(QDate(year, 1, 1), QDate(year, 12, 31)));
}

void tst_MvCalendarContent::ranges_data()
{
    const MvRows<MvDateRange, int, int> row; // range, days, months
    row("February of a leap year", MvDateRange::monthOf(QDate(2028, 2, 29)), 29, 1);
    row("one day", MvDateRange(QDate(2027, 3, 31), QDate(2027, 3, 31)), 1, 1);
    row("two days of two years", MvDateRange(QDate(2026, 12, 31), QDate(2027, 1, 1)), 2, 2);
    row("from the end of a month on", MvDateRange(QDate(2027, 1, 31), QDate(2027, 3, 1)), 30, 3);
    row("end before start", MvDateRange(QDate(2027, 1, 2), QDate(2027, 1, 1)), 0, 0);
    row("no start", MvDateRange(QDate(), QDate(2027, 1, 1)), 0, 0);
    row("month of no day", MvDateRange::monthOf(QDate()), 0, 0);
}

void tst_MvCalendarContent::ranges()
{
    const auto [range, days, months] = MvRows<MvDateRange, int, int>::current();
    QCOMPARE(range.isValid(), days > 0);
    QCOMPARE(range.dayCount(), days);
    QCOMPARE(range.lastIndexEvenIfUnvalid(), range.firstIndex() + days - 1);
    QCOMPARE(range.dayAt(range.firstIndex()), days > 0 ? range.start() : QDate());
    QCOMPARE(range.dayAt(range.lastIndexEvenIfUnvalid()), days > 0 ? range.end() : QDate());
    QVERIFY(!range.dayAt(range.lastIndexEvenIfUnvalid() + 1).isValid());
    QVERIFY(!range.dayAt(range.firstIndex() - 1).isValid());
    QCOMPARE(range.contains(range.end()), days > 0);
    QVERIFY(!range.contains(range.end().addDays(1)) && !range.contains(QDate()));
    QCOMPARE(range.monthCount(), months);
    QVERIFY(!range.monthAt(months).isValid());
    if (months > 0)
        QCOMPARE(range.monthAt(months - 1), QDate(range.end().year(), range.end().month(), 1));
}

void tst_MvCalendarContent::contentMoves()
{
    MvCalendariumContentConfig config(QDate(2027, 2, 17), MvCalendariumHolidayConfig(MvLocale(u"fr_CH"_s), u"GE"_s));
    config.setCalendarWeekTextOption(MvCalendarWeekTextOption(u"S%1"_s));
    const MvCalendariumContentConfig first = config.moveToDayInMonth(1);
    QCOMPARE(first.date(), QDate(2027, 2, 1));
    QCOMPARE(config.date(), QDate(2027, 2, 17));
    QCOMPARE(first.holidayConfig(), config.holidayConfig());
    QCOMPARE(first.calendarWeekTextOption().textInProduct(first.language()), u"S%1"_s);
    QVERIFY(!config.moveToDayInMonth(29).isValid());
    QCOMPARE(config.dayRange(), MvDateRange(QDate(2027, 2, 1), QDate(2027, 2, 28)));

    const MvCalendariumContentConfig nothing;
    QVERIFY(!nothing.isValid() && !nothing.moveToDayInMonth(1).isValid() && !nothing.dayRange().isValid());
    QCOMPARE(nothing.language().name(), u"de_DE"_s);
}

void tst_MvCalendarContent::words_data()
{
    // first: Monday, January, week, school year
    const MvRows<MvLocale, QString, QString, QString> add;
    const QString days = u"Mo Di Mi Do Fr Sa So"_s;
    const QString months = u" Feb Mär Apr Mai Jun Jul Aug Sep Okt Nov Dez"_s;
    const auto row = [&](const char *name, const QString &locale, const QString &shortDays, const QString &shortMonths,
                         const QString &first) { add(name, MvLocale(locale), shortDays, shortMonths, first); };
    row("German", u"de_DE"_s, days, u"Jan"_s + months, u"Montag Januar KW Schuljahr 26/27"_s);
    row("German in Austria", u"de_AT"_s, days, u"Jän"_s + months, u"Montag Jänner KW Schuljahr 26/27"_s);
    row("French", u"fr_CH"_s, u"lun mar mer jeu ven sam dim"_s,
        u"janv févr mars avr mai juin juil août sept oct nov déc"_s, u"lundi janvier Sem Année scolaire 26/27"_s);
    row("Polish: months in the nominative", u"pl_PL"_s, u"pon wt śr czw pt sob niedz"_s,
        u"sty lut mar kwi maj cze lip sie wrz paź lis gru"_s, u"poniedziałek styczeń Tydz Rok szkolny 26/27"_s);
    row("none: German", QString(), days, u"Jan"_s + months, u"Montag Januar KW Schuljahr 26/27"_s);
}

void tst_MvCalendarContent::words()
{
    const auto [language, shortDays, shortMonths, firstWords] = MvRows<MvLocale, QString, QString, QString>::current();
    const MvCalendarWordsRegistry &registry = MvCalendarWordsRegistry::instance();
    QStringList days;
    for (int day = 1; day <= 7; ++day)
        days.append(registry.dayName(language, day, true));
    QStringList months;
    for (int month = 1; month <= 12; ++month)
        months.append(registry.monthNameShort(language, month));
    const QStringList first = {registry.dayName(language, 1, false), registry.monthNameLong(language, 1),
                               registry.weekShort(language), registry.schoolYear(language, u"26/27"_s)};
    QCOMPARE(days.join(u' '), shortDays);
    QCOMPARE(months.join(u' '), shortMonths);
    QCOMPARE(first.join(u' '), firstWords);
    for (const int number : {-1, 0, 13}) {
        QVERIFY(registry.dayName(language, number, true).isEmpty() &&
                registry.monthNameShort(language, number).isEmpty());
        QVERIFY(registry.dayName(language, number, false).isEmpty() &&
                registry.monthNameLong(language, number).isEmpty());
    }
    QCOMPARE(registry.weekShort(MvLocale(u"ja_JP"_s)), u"W"_s);
    QCOMPARE(registry.schoolYear(MvLocale(u"ja_JP"_s), u"2026"_s), u"2026"_s);
}

/// English is what a language says that has no words.
void tst_MvCalendarContent::wordsBesidePages()
{
    const MvCalendarWordsRegistry &registry = MvCalendarWordsRegistry::instance();
    const MvCalendarWordsRegistry::Sheets english;
    QCOMPARE(registry.sheets(MvLocale(u"ja_JP"_s)).sheet, english.sheet);
    for (const MvLocale &language : MvCalendariumHolidayCalculator::instance().availableLanguages()) {
        const MvCalendarWordsRegistry::Sheets words = registry.sheets(language);
        const QString all = words.sheet + words.tile + words.back + registry.anniversary(language, u"Anna"_s);
        QCOMPARE(all.count(u"%1"_s) + all.count(u"%2"_s) + all.count(u"Anna"_s), 6);
        QVERIFY2((words.sheet == english.sheet) == (language.language() == u"en"_s), qPrintable(language.name()));
        QVERIFY2(all.contains(u"anniversary"_s) == (language.language() == u"en"_s), qPrintable(language.name()));
    }
}

void tst_MvCalendarContent::weekOptions()
{
    const MvLocale german(u"de_AT"_s);
    QCOMPARE(MvCalendarWeekHeadlineOption().textInProduct(german), u"KW"_s);
    QCOMPARE(MvCalendarWeekHeadlineOption(u"Woche"_s).textInProduct(german), u"Woche"_s);
    QCOMPARE(MvCalendarWeekTextOption().textInProduct(german).arg(9), u"9"_s);
    QCOMPARE(MvCalendarWeekTextOption(u"KW %1"_s).textInProduct(german).arg(53), u"KW 53"_s);
}

MV_TEST_MAIN(tst_MvCalendarContent)
#include "tst_MvCalendarContent.moc"

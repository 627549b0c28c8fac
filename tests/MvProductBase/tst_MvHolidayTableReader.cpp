// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayBook.h"
#include "MvProductBase/MvHolidayTableReader.h"

#include "MvFreshFolderTest.h"
#include "MvRows.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray regions = R"xml(
  <region code="N" name="Norden" localName="Nord" language="xx"/>
  <region code="S" name="Süden"/>
  <region code="S-K" name="Süden (Kurort)" parent="S"/>)xml";

QByteArray tableFile(const QByteArray &holidays)
{
    return R"(<HolidayTable country="ZZ" name="Land" language="de">)" + regions + holidays + "</HolidayTable>";
}

QByteArray vacationFile(const QByteArray &vacations)
{
    return R"(<SchoolVacations country="ZZ">)" + vacations + "</SchoolVacations>";
}

QByteArray ownFile(const QByteArray &elements)
{
    return R"(<MyHolidays><country code="zz">)" + elements + "</country></MyHolidays>";
}

} // namespace

class tst_MvHolidayTableReader : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void entries_data();
    void entries();
    void sameDay();
    void names_data();
    void names();
    void vacations_data();
    void vacations();
    void vacationsKnownUntil();
    void brokenFiles_data();
    void brokenFiles();
    void ownFile_data();
    void ownFile();
    void ownFileWithErrors();
    void regionsThatBelongToEachOther();

private:
    MvHolidayBook book() const;
    /// "0101 Neujahr" for each day of 2026 in the region.
    QStringList days(const QString &region, const MvCalendariumFeatures &features = {}, int year = 2026,
                     const QString &language = u"de"_s) const;
};

void tst_MvHolidayTableReader::init()
{
    MvFreshFolderTest::init();
    put(u"countries.xml"_s,
        R"(<HolidayCountries><country code="ZZ" name="Land" languages="de xx"/></HolidayCountries>)");
}

MvHolidayBook tst_MvHolidayTableReader::book() const
{
    return MvHolidayBook([this](const QString &name) { return file(name.section(u'/', -1)); },
                         file(u"my-holidays.xml"_s));
}

QStringList tst_MvHolidayTableReader::days(const QString &region, const MvCalendariumFeatures &features, int year,
                                           const QString &language) const
{
    const MvCalendariumHolidayConfig config(MvLocale(language, u"ZZ"_s), region, features);
    QStringList texts;
    const MvCalendariumHolidayList found = book().holidaysOfYear(MvCalendariumHolidayCacheKey(year, config));
    for (const MvCalendariumHoliday &holiday : found)
        texts.append(holiday.date().toString(u"MMdd "_s) + holiday.description());
    return texts;
}

void tst_MvHolidayTableReader::entries_data()
{
    const MvRows<QByteArray, QString, int, QStringList> add; // holiday, region, year, expected

    const QByteArray national = R"(<holiday name="Tag" type="public" rule="06-01"/>)";
    const QByteArray southern = R"(<holiday name="Tag" type="public" rule="06-01" regions="S"/>)";
    const QByteArray limited = R"(<holiday name="Tag" rule="06-01" from="2000" until="2010" except="2005 2006"/>)";
    const QByteArray crossing = R"(<holiday name="Tag" rule="01-01 -1" from="2027" until="2027"/>)";
    const QStringList day = {u"0601 Tag"_s};
    const auto row = [&](const char *name, const QByteArray &holiday, const QString &region, int year,
                         const QStringList &expected = {}) { add(name, holiday, region, year, expected); };
    row("the whole country, in a region", national, u"N"_s, 2026, day);
    row("the whole country, without a region", national, {}, 2026, day);
    row("the whole country, in an unknown region", national, u"Mond"_s, 2026, day);
    row("a region", southern, u"S"_s, 2026, day);
    row("another region", southern, u"N"_s, 2026);
    row("a region, asked without one", southern, {}, 2026);
    row("a part inherits from its region", southern, u"S-K"_s, 2026, day);
    row("a region inherits nothing from its part", R"(<holiday name="Tag" rule="06-01" regions="S-K"/>)", u"S"_s, 2026);
    row("before its first year", limited, {}, 1999);
    row("in its first year", limited, {}, 2000, day);
    row("in an excepted year", limited, {}, 2006);
    row("in its last year", limited, {}, 2010, day);
    row("after its last year", limited, {}, 2011);
    row("the year of the rule counts, not that of the day", crossing, {}, 2026, {u"1231 Tag"_s});
    row("the day is not in the year of its rule", crossing, {}, 2027);
    row("moved into the next year", R"(<holiday name="Tag" rule="12-26 next mon +7"/>)", {}, 2027, {u"0104 Tag"_s});
}

void tst_MvHolidayTableReader::entries()
{
    const auto [holiday, region, year, expected] = MvRows<QByteArray, QString, int, QStringList>::current();
    put(u"ZZ.xml"_s, tableFile(holiday));
    QCOMPARE(days(region, {}, year), expected);
}

void tst_MvHolidayTableReader::sameDay()
{
    put(u"ZZ.xml"_s, tableFile(R"(
        <holiday name="Gedenktag" type="observance" rule="06-01"/>
        <holiday name="Doppelt" type="observance" rule="06-01"/>
        <holiday name="Doppelt" type="public" rule="06-01" regions="S"/>
        <holiday name="Schulfrei" type="optional" rule="06-01"/>
        <holiday name="Feiertag" type="public" rule="06-01"/>
        <holiday name="Zuvor" type="observance" rule="05-31"/>)"));
    put(u"vacations-ZZ.xml"_s, vacationFile(R"(
        <region code="S"><vacation name="Ferien" start="2026-06-01" end="2026-06-02"/></region>)"));
    const QStringList expected = {u"0531 Zuvor"_s,     u"0601 Doppelt"_s, u"0601 Feiertag"_s, u"0601 Schulfrei"_s,
                                  u"0601 Gedenktag"_s, u"0601 Ferien"_s,  u"0602 "_s};
    QCOMPARE(days(u"S"_s, FEATURE_SCHOOL_VACATIONS), expected);
    QCOMPARE(days(u"S"_s, FEATURE_PUBLIC_HOLIDAYS_ONLY), (QStringList{u"0601 Doppelt"_s, u"0601 Feiertag"_s}));
}

void tst_MvHolidayTableReader::names_data()
{
    const MvRows<QString, QString, QString> add; // language, region, expected
    const auto row = [&](const char *name, const QString &language, const QString &region, const QString &expected) {
        add(name, language, region,
            u"0101 %1, 0102 Nur so, 0104 %2, 0106 %3, 0108 %4"_s.arg(
                expected.section(u',', 0, 0), expected.section(u',', 1, 1), expected.section(u',', 2, 2),
                expected.section(u',', 3, 3)));
    };
    row("the country's language", u"de"_s, u"N"_s, u"Neujahr,Woche,Woche,Brücke"_s);
    row("another one", u"fr"_s, u"S"_s, u"Nouvel An,Semaine,Semaine blanche,Pont"_s);
    row("not known: that of the region", u"en"_s, u"N"_s, u"Xx,Woche,Week,Brücke"_s);
    row("neither is known", u"en"_s, u"S"_s, u"Neujahr,Woche,Week,Brücke"_s);
}

void tst_MvHolidayTableReader::names()
{
    put(u"ZZ.xml"_s, tableFile(R"(<holiday name="Nur so" rule="01-02"/><holiday name="Neujahr" rule="01-01">
        <name language="fr" text="Nouvel An"/><name language="xx" text="Xx"/></holiday>)"));
    put(u"vacations-ZZ.xml"_s, vacationFile(R"(<region code="">
        <vacation name="Woche" start="2026-01-04" end="2026-01-04"/>
        <vacation name="Woche" start="2026-01-06" end="2026-01-06"><name language="fr" text="Semaine blanche"/>
            <name language="en" text="Week"/></vacation></region>
        <names of="Woche"><name language="fr" text="Semaine"/><name language="en" text=""/></names>)"));
    put(u"my-holidays.xml"_s, ::ownFile(R"(<vacation name="Brücke" start="2026-01-08" end="2026-01-08">
        <name language="fr" text="Pont"/></vacation>)"));
    auto [language, region, expected] = MvRows<QString, QString, QString>::current();
    QCOMPARE(days(region, FEATURE_SCHOOL_VACATIONS, 2026, language).join(u", "_s), expected);
}

void tst_MvHolidayTableReader::vacations_data()
{
    const MvRows<QString, int, int, QStringList> add; // region, year, features, expected
    const int shown = FEATURE_SCHOOL_VACATIONS;
    const auto row = [&](const char *name, const QString &region, int year, int features,
                         const QStringList &expected = {}) { add(name, region, year, features, expected); };
    row("not asked for", u"S"_s, 2026, FEATURE_HOLIDAYS);
    row("another region", u"N"_s, 2026, shown);
    row("without a region", {}, 2026, shown);
    row("old year: its first day is named", u"S"_s, 2026, shown, {u"1230 Winter"_s, u"1231 "_s});
    row("new year: it goes on without a name", u"S"_s, 2027, shown, {u"0101 "_s, u"0102 "_s});
    row("named on every day", u"S"_s, 2027, shown | FEATURE_VACATION_NAMES_DAILY, {u"0101 Winter"_s, u"0102 Winter"_s});
    row("a part of the region", u"S-K"_s, 2027, shown, {u"0101 "_s, u"0102 "_s});
    row("two spans that meet or overlap are one, another name starts anew", u"S"_s, 2028, shown,
        {u"0701 Sommer"_s, u"0702 "_s, u"0703 "_s, u"0704 "_s, u"0705 Hitzefrei"_s});
    row("starting on New Year's Day", u"S"_s, 2030, shown, {u"0101 Winter"_s});
}

void tst_MvHolidayTableReader::vacations()
{
    put(u"ZZ.xml"_s, tableFile({}));
    put(u"vacations-ZZ.xml"_s, vacationFile(R"(<region code="S">
        <vacation name="Winter" start="2026-12-30" end="2027-01-02"/>
        <vacation name="Sommer" start="2028-07-01" end="2028-07-02"/>
        <vacation name="Hitzefrei" start="2028-07-05" end="2028-07-05"/>
        <vacation name="Winter" start="2030-01-01" end="2030-01-01"/></region>)"));
    put(u"vacations-ZZ-odbl.xml"_s, vacationFile(R"(<region code="S">
        <vacation name="Sommer" start="2028-07-02" end="2028-07-03"/>
        <vacation name="Sommer" start="2028-07-04" end="2028-07-04"/></region>)"));
    const auto [region, year, features, expected] = MvRows<QString, int, int, QStringList>::current();
    QCOMPARE(days(region, MvCalendariumFeatures(features), year), expected);
}

void tst_MvHolidayTableReader::vacationsKnownUntil()
{
    put(u"ZZ.xml"_s, tableFile({}));
    put(u"vacations-ZZ.xml"_s, vacationFile(R"xml(<region code="S">
        <vacation name="Sommer" start="2028-07-01" end="2028-08-02"/>
        <vacation name="Winter" start="2027-12-24" end="2028-01-02"/>
        <vacation name="Buß- und Bettag (schulfrei)" start="2030-11-20" end="2030-11-20"/></region>)xml"));
    const MvLocale land(u"de_ZZ"_s);
    QCOMPARE(book().vacationsKnownUntil(land, u"S"_s), QDate(2028, 8, 2));
    QCOMPARE(book().vacationsKnownUntil(land, u"S-K"_s), QDate(2028, 8, 2));
    QVERIFY(!book().vacationsKnownUntil(land, u"N"_s).isValid());
}

void tst_MvHolidayTableReader::brokenFiles_data()
{
    const MvRows<QString, QByteArray, QString, QStringList> row; // file; content; warning: a pattern; rest

    const QByteArray good = "\n<holiday name=\"Gut\" rule=\"06-01\"/>";
    const QStringList rest = {u"0601 Gut"_s};
    const auto table = [&](const char *name, const QByteArray &bad, const QString &warning) {
        row(name, u"ZZ.xml"_s, tableFile("\n" + bad + good), u"ZZ\\.xml:5: .*"_s + warning, rest);
    };
    table("bad rule", R"(<holiday name="Schlecht" rule="06-31"/>)", u"Schlecht.*06-31"_s);
    table("no name", R"(<holiday rule="06-02"/>)", u"Namen"_s);
    table("unknown type", R"(<holiday name="Schlecht" type="holy" rule="06-02"/>)", u"Schlecht"_s);
    table("vacation as a type", R"(<holiday name="Schlecht" type="schoolVacation" rule="06-02"/>)", u"Schlecht"_s);
    table("no year", R"(<holiday name="Schlecht" rule="06-02" from="früher"/>)", u"früher"_s);
    table("no year excepted", R"(<holiday name="Schlecht" rule="06-02" except="2026 bald"/>)", u"bald"_s);
    table("unknown region", R"(<holiday name="Schlecht" rule="06-02" regions="S O"/>)", u"O"_s);
    table("region twice", R"(<region code="S" name="Noch einmal"/>)", u"Kennung"_s);
    table("several errors, one warning", R"(<holiday/><holiday/><holiday/>)", u"2 weitere"_s);

    row("cut file", u"ZZ.xml"_s, tableFile(good).chopped(9), u"ZZ\\.xml:\\d+:\\d+: "_s, QStringList());
    row("empty file", u"ZZ.xml"_s, QByteArray(), u"ZZ\\.xml:"_s, QStringList());
    row("something else", u"ZZ.xml"_s, QByteArray("<svg/>"), u"ZZ\\.xml:1: .*svg"_s, QStringList());
    row("cut vacations leave the holidays alone", u"vacations-ZZ.xml"_s, QByteArray("<SchoolVacations><region>"),
        u"vacations-ZZ\\.xml:"_s, rest);
    for (const char *bad : {R"(start="2026-02-30" end="2026-03-01")", R"(start="2026-03-02" end="2026-03-01")",
                            R"(start="2026-01-01" end="2206-01-01")", R"(start="2026-03-01")"}) {
        row(QString::asprintf("vacation: %s", bad), u"vacations-ZZ.xml"_s,
            vacationFile("<region code=\"S\"><vacation name=\"F\" " + QByteArray(bad) + "/></region>"),
            u"vacations-ZZ\\.xml:1: "_s, rest);
    }
    row("cut own file", u"my-holidays.xml"_s, QByteArray("<MyHolidays>"), u"my-holidays\\.xml:"_s, rest);
}

void tst_MvHolidayTableReader::brokenFiles()
{
    const auto [file, content, warning, rest] = MvRows<QString, QByteArray, QString, QStringList>::current();
    put(u"ZZ.xml"_s, tableFile("<holiday name=\"Gut\" rule=\"06-01\"/>"));
    put(file, content);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning)); // once: a second warning fails the test
    QCOMPARE(days(u"S"_s, FEATURE_SCHOOL_VACATIONS), rest);
}

void tst_MvHolidayTableReader::ownFile_data()
{
    const MvRows<QByteArray, QStringList, QStringList> add; // own, north, south
    const QStringList shipped = {u"0601 Erster"_s, u"0602 Zweiter"_s};
    const auto row = [&](const char *name, const QByteArray &elements, const QStringList &north,
                         const QStringList &south) { add(name, ::ownFile(elements), north, south); };
    const QString &first = shipped.first();
    const QString &second = shipped.last();
    row("nothing", {}, shipped, shipped);
    row("another country", R"(</country><country code="AA"><remove name="Erster"/>)", shipped, shipped);
    row("added", R"(<holiday name="Dritter" rule="06-03" regions="S"/>)", shipped, {first, second, u"0603 Dritter"_s});
    row("moved everywhere", R"(<holiday name="erster" rule="06-05"/>)", {second, u"0605 erster"_s},
        {second, u"0605 erster"_s});
    row("moved in a region", R"(<holiday name="Erster" rule="06-05" regions="S"/>)", shipped,
        {second, u"0605 Erster"_s});
    row("two own ones of one name", R"(<holiday name="Erster" rule="06-05"/><holiday name="Erster" rule="06-07"/>)",
        {second, u"0605 Erster"_s, u"0607 Erster"_s}, {second, u"0605 Erster"_s, u"0607 Erster"_s});
    row("removed everywhere", R"(<remove name="Zweiter"/>)", {first}, {first});
    row("removed in a region", R"(<remove name="Zweiter" regions="N"/>)", {first}, shipped);
    row("own vacation", R"(<vacation name="Brücke" start="2026-06-03" end="2026-06-04" regions="S"/>)", shipped,
        {first, second, u"0603 Brücke"_s, u"0604 "_s});
}

void tst_MvHolidayTableReader::ownFile()
{
    const auto [own, north, south] = MvRows<QByteArray, QStringList, QStringList>::current();
    put(u"ZZ.xml"_s, tableFile(R"(<holiday name="Erster" rule="06-01"/><holiday name="Zweiter" rule="06-02"/>)"));
    put(u"my-holidays.xml"_s, own);
    QCOMPARE(days(u"N"_s, FEATURE_SCHOOL_VACATIONS), north);
    QCOMPARE(days(u"S"_s, FEATURE_SCHOOL_VACATIONS), south);
}

void tst_MvHolidayTableReader::ownFileWithErrors()
{
    put(u"ZZ.xml"_s, tableFile(R"(<holiday name="Erster" rule="06-01"/>)"));
    put(u"my-holidays.xml"_s, ::ownFile("\n"
                                        R"(<holiday name="Erster" rule="Juni"/>
        <remove name="Erster" regions="Mond"/><holiday name="Neu" rule="06-02"/>)"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"my-holidays\\.xml:3: .*Mond.*1 weitere"_s));
    QCOMPARE(days(u"S"_s), (QStringList{u"0601 Erster"_s, u"0602 Neu"_s})); // what is wrong takes nothing away
}

void tst_MvHolidayTableReader::regionsThatBelongToEachOther()
{
    put(u"ZZ.xml"_s, R"(<HolidayTable country="ZZ" language="de"><region code="A" parent="B"/>
        <region code="B" parent="A"/><region code="C" parent="Mond"/>
        <holiday name="Tag" rule="06-01" regions="B"/></HolidayTable>)");
    QCOMPARE(days(u"A"_s), QStringList{u"0601 Tag"_s});
    QCOMPARE(days(u"C"_s), QStringList());
}

MV_TEST_MAIN(tst_MvHolidayTableReader)
#include "tst_MvHolidayTableReader.moc"

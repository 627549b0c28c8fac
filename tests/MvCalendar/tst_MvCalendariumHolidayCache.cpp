// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvEntries.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

using namespace Qt::StringLiterals;
using MvEntries::entry;

namespace {

MvCalendariumHolidayConfig bavaria(int features = FEATURE_HOLIDAYS | FEATURE_ENTRIES)
{
    return {MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(features)};
}

MvCalendariumContentKey keyOf(const QDate &day, const MvCalendariumHolidayConfig &config = bavaria())
{
    return {MvCalendariumContentConfig(day, config), MvProjectIdentifier()};
}

} // namespace

class tst_MvCalendariumHolidayCache : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void yearsAreComputedOnce();
    void days_data();
    void days();
    void longestHolidayName();
    void longestHolidayNameBelongsToTheFirstCall();
    void eventsOfAMonth();
    void longestEventName();
    void repairsConfigurations_data();
    void repairsConfigurations();
    void reloadReadsDataAnew();

private:
    void writeOwnHolidays(const QByteArray &elements) const;
    static QFileInfo ownFile() { return MvDirectoryConfig::instance().programDataFile(u"my-holidays.xml"_s); }

    MvCalendariumHolidayCache &m_cache = MvCalendariumHolidayCache::instance();
};

void tst_MvCalendariumHolidayCache::cleanup()
{
    QFile::remove(ownFile().filePath());
    MvCalendarEventRegistry::instance().setEvents({});
    m_cache.reloadData();
}

void tst_MvCalendariumHolidayCache::writeOwnHolidays(const QByteArray &elements) const
{
    const QByteArray file = "<MyHolidays><country code=\"DE\">" + elements + "</country></MyHolidays>";
    QVERIFY(MvTestFiles::write(ownFile().filePath(), file));
}

void tst_MvCalendariumHolidayCache::yearsAreComputedOnce()
{
    const MvCalendariumHolidayCacheKey key(2027, bavaria());
    const MvCalendariumHolidayCacheKey withVacations(2027, bavaria(FEATURE_HOLIDAYS | FEATURE_SCHOOL_VACATIONS));
    QVERIFY(!m_cache.isPrepared(key));
    QVERIFY(m_cache.fetch(key).isEmpty());
    const MvCalendariumHolidayList list = m_cache.readHolidays(key);
    QVERIFY(!list.isEmpty());
    QVERIFY(m_cache.isPrepared(key));
    QCOMPARE(m_cache.fetch(key).constData(), list.constData()); // the same list, not one computed again
    QCOMPARE(m_cache.readHolidays(key).constData(), list.constData());
    QVERIFY(!m_cache.isPrepared(withVacations));
    QVERIFY(!m_cache.isPrepared(MvCalendariumHolidayCacheKey(2028, bavaria())));
    m_cache.prepareYear(key);
    QVERIFY(m_cache.fetch(key).constData() != list.constData());
}

void tst_MvCalendariumHolidayCache::days_data()
{
    const MvRows<QDate, int, QStringList, int> row; // day; features; texts; types: of all holidays of the day
    const int all = FEATURE_SCHOOL_VACATIONS;
    const int vacation = HOLIDAY_TYPE_SCHOOL_VACATION;
    row("public holiday", QDate(2026, 10, 3), all, QStringList{u"Tag der Deutschen Einheit"_s},
        int(HOLIDAY_TYPE_PUBLIC));
    row("nothing", QDate(2026, 10, 5), all, QStringList(), 0);
    row("observed day", QDate(2026, 5, 10), all, QStringList{u"Muttertag"_s}, int(HOLIDAY_TYPE_OBSERVANCE));
    row("inside a vacation: its type, no text", QDate(2026, 8, 20), all, QStringList(), vacation);
    row("vacation switched off", QDate(2026, 8, 20), 0, QStringList(), 0);
    row("a holiday and a nameless vacation day give one text", QDate(2026, 8, 15), all,
        QStringList{u"Mariä Himmelfahrt"_s}, (HOLIDAY_TYPE_PUBLIC | vacation));
    row("first day of a vacation", QDate(2026, 8, 3), all, QStringList{u"Sommerferien"_s}, vacation);
}

void tst_MvCalendariumHolidayCache::days()
{
    const auto [day, features, texts, types] = MvRows<QDate, int, QStringList, int>::current();
    const MvCalendariumContentKey key = keyOf(day, bavaria(features));
    QCOMPARE(m_cache.descriptions(key), texts);
    int tagged = 0;
    const QSet<MvCalendariumHolidayType> tags = m_cache.tags(key);
    for (const MvCalendariumHolidayType &tag : tags)
        tagged |= tag.toInt();
    QCOMPARE(tagged, types);
    for (const int type : {16, 32, 64, 128, 16 | 32, 64 | 128})
        QCOMPARE(m_cache.hasHolidayOfType(key, MvCalendariumHolidayType(type)), (types & type) != 0);
    QVERIFY(m_cache.imageFile(key).isEmpty());
}

void tst_MvCalendariumHolidayCache::longestHolidayName()
{
    writeOwnHolidays(R"(<holiday name="Gleich lang, aber früher" rule="03-03"/>
        <holiday name="Gleich lang, aber später" rule="03-04"/>)");
    m_cache.reloadData();
    const auto longest = [this](int month) {
        return m_cache.longestHolidayName(MvCalendariumContentConfig(QDate(2027, month, 1), bavaria(0)));
    };
    QCOMPARE(longest(3).description(), u"Gleich lang, aber früher"_s);
    QCOMPARE(longest(3).date(), QDate(2027, 3, 3));
    QCOMPARE(longest(10).description(), u"Tag der Deutschen Einheit"_s);
    QCOMPARE(longest(7), MvCalendariumHoliday()); // July has none
}

// one table serves every year and configuration until it is dropped
void tst_MvCalendariumHolidayCache::longestHolidayNameBelongsToTheFirstCall()
{
    const MvCalendariumContentConfig march2027(QDate(2027, 3, 1), bavaria());
    const MvCalendariumContentConfig march2028(QDate(2028, 3, 1), bavaria());
    const MvCalendariumHoliday first = m_cache.longestHolidayName(march2027);
    QCOMPARE(first.date().year(), 2027);
    QCOMPARE(m_cache.longestHolidayName(march2028), first);
    const MvCalendariumContentConfig vienna(QDate(2028, 3, 1), {MvLocale(u"de_AT"_s), u"9"_s});
    QCOMPARE(m_cache.longestHolidayName(vienna), first);
    m_cache.reloadData();
    QCOMPARE(m_cache.longestHolidayName(march2028).date().year(), 2028);
}

void tst_MvCalendariumHolidayCache::eventsOfAMonth()
{
    MvCalendarEventRegistry::instance().setEvents(
        {entry(u"Letzter"_s, QDate(1990, 2, 28)), entry(u"März"_s, QDate(1990, 3, 1)),
         entry(u"Erster"_s, QDate(1990, 2, 1)), entry(u"Auch"_s, QDate(1991, 2, 28))});
    const MvCalendarEventList events = m_cache.eventDays(MvCalendariumContentConfig(QDate(2027, 2, 14), bavaria()));
    QCOMPARE(MvEntries::names(events),
             (QStringList{u"Erster"_s, u"Letzter"_s, u"Auch"_s})); // by day, then in the user's order
    QVERIFY(m_cache.eventDays(MvCalendariumContentConfig(QDate(2027, 2, 14), bavaria(FEATURE_HOLIDAYS))).isEmpty());
}

void tst_MvCalendariumHolidayCache::longestEventName()
{
    const MvCalendariumContentConfig february(QDate(2027, 2, 14), bavaria());
    QCOMPARE(m_cache.longestEventName(february), MvCalendarEvent());
    MvCalendarEventRegistry::instance().setEvents(
        {entry(u"Kurz"_s, QDate(1990, 2, 2)), entry(u"Lang A"_s, QDate(1990, 2, 3)),
         entry(u"Lang B"_s, QDate(1990, 2, 4)), entry(u"Sehr lang"_s, QDate(1990, 3, 4))});
    QCOMPARE(m_cache.longestEventName(february).description(), u"Lang A"_s);
}

void tst_MvCalendariumHolidayCache::repairsConfigurations_data()
{
    const MvRows<QString, QString, QString, QString> row; // locale, province, repairedLocale, repairedProvince
    row("fine", u"de_AT"_s, u"9"_s, u"de_AT"_s, u"9"_s);
    row("unknown province", u"de_AT"_s, u"BY"_s, u"de_AT"_s, u"1"_s);
    row("province in another case", u"de_DE"_s, u"by"_s, u"de_DE"_s, u"BW"_s);
    row("unknown language", u"ja_JP"_s, u"BY"_s, u"de_DE"_s, u"BY"_s);
    row("neither is known", u"en_DE"_s, u"9"_s, u"de_DE"_s, u"BW"_s);
    row("a country without provinces keeps what is there", u"de_LI"_s, u"BY"_s, u"de_LI"_s, u"BY"_s);
}

void tst_MvCalendariumHolidayCache::repairsConfigurations()
{
    const auto [locale, province, repairedLocale, repairedProvince] =
        MvRows<QString, QString, QString, QString>::current();
    const MvCalendariumFeatures features(7);
    const MvCalendariumHolidayConfig valid =
        m_cache.makeValid(MvCalendariumHolidayConfig(MvLocale(locale), province, features));
    QCOMPARE(valid.language().name(), repairedLocale);
    QCOMPARE(valid.province(), repairedProvince);
    QCOMPARE(valid.features(), features);
}

void tst_MvCalendariumHolidayCache::reloadReadsDataAnew()
{
    const MvCalendariumContentKey key = keyOf(QDate(2027, 7, 13));
    QVERIFY(m_cache.descriptions(key).isEmpty());
    writeOwnHolidays(R"(<holiday name="Richtfest" rule="07-13"/>)");
    QVERIFY(m_cache.descriptions(key).isEmpty());
    m_cache.reloadData();
    QCOMPARE(m_cache.descriptions(key), QStringList{u"Richtfest"_s});
}

MV_TEST_MAIN(tst_MvCalendariumHolidayCache)
#include "tst_MvCalendariumHolidayCache.moc"

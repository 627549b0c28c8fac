// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvSVGCompilerInstructionsCache.h"
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"
#include "MvProductBase/MvSVGImageRendererCache.h"

#include "MvRows.h"
#include "MvTest.h"

#include <QSvgRenderer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Tells of one day only.
class OneDay : public MvAbstractHolidayCache
{
public:
    OneDay(const QDate &day, bool isHoliday, const QStringList &texts)
        : m_day(day)
        , m_isHoliday(isHoliday)
        , m_texts(texts)
    {}

    bool hasHolidayOfType(const MvCalendariumContentKey &key, const MvCalendariumHolidayType &type) override
    {
        return m_isHoliday && key.date() == m_day && type.hasAnyOf(HOLIDAY_TYPE_OBSERVANCE);
    }
    QStringList descriptions(const MvCalendariumContentKey &key) override
    {
        return key.date() == m_day ? m_texts : QStringList();
    }
    MvImageReference imageFile(const MvCalendariumContentKey &) const override { return {}; }

    void setTexts(const QStringList &texts) { m_texts = texts; }

private:
    QDate m_day;
    bool m_isHoliday;
    QStringList m_texts;
};

MvCalendariumContentKey keyOf(const QDate &day, const QString &locale = u"de_DE"_s)
{
    return {MvCalendariumContentConfig(day, MvCalendariumHolidayConfig(MvLocale(locale), {})), MvProjectIdentifier()};
}

const QDate newYear(2027, 1, 1);

} // namespace

class tst_MvSVGCompiler : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_entries.reset(), m_holidays.reset(); }

    void fills_data();
    void fills();
    void sourcesComeAndGo();
    void artworkIsEscaped();
    void renderersAreKeptUntilCleared();
    void instructionsAreBounded();

private:
    std::unique_ptr<OneDay> m_entries;
    std::unique_ptr<OneDay> m_holidays;
};

void tst_MvSVGCompiler::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_entries = std::make_unique<OneDay>(newYear, false, QStringList{u"Oma & Opa"_s, u"Tim <3"_s});
    m_holidays = std::make_unique<OneDay>(newYear, true, QStringList{u"Neujahr"_s});
    MvSVGCompilerInstructionsFactory::instance().addHolidayCache(m_entries.get());
    MvSVGCompilerInstructionsFactory::instance().addHolidayCache(m_holidays.get());
    MvSVGCompilerInstructionsFactory::instance().addHolidayCache(m_entries.get()); // counts once
    MvSVGImageRendererCache::instance().clear();
    MvSVGCompilerInstructionsCache::instance().clear();
}

void tst_MvSVGCompiler::fills_data()
{
    const MvRows<QString, MvCalendariumContentKey, QString> row; // pattern, key, text
    row("nothing to fill", u"Guten Tag"_s, keyOf(newYear), u"Guten Tag"_s);
    row("empty", QString(), keyOf(newYear), QString());
    row("date", u"{date}"_s, keyOf(newYear), u"1. Januar 2027"_s);
    row("date in British English", u"{date}"_s, keyOf(newYear, u"en_GB"_s), u"1 January 2027"_s);
    row("date in Hungarian, weekday at its end", u"{date}"_s, keyOf(newYear, u"hu_HU"_s), u"2027. január 1."_s);
    row("month and year", u"{month} {year}!"_s, keyOf(newYear, u"fr_FR"_s), u"janvier 2027!"_s);
    row("1 January in week 53", u"KW {week}"_s, keyOf(newYear), u"KW 53"_s);
    row("holidays", u"{holidays}"_s, keyOf(newYear), u"Neujahr"_s);
    row("entries", u"{entries}"_s, keyOf(newYear), u"Oma & Opa, Tim <3"_s);
    row("a day without any", u"[{holidays}{entries}]"_s, keyOf(newYear.addDays(1)), u"[]"_s);
    row("the same twice", u"{year}{year}"_s, keyOf(newYear), u"20272027"_s);
    row("unknown words stay", u"{name} {Year}"_s, keyOf(newYear), u"{name} {Year}"_s);
    row("braces of a style sheet", u".a{fill:{year}} {"_s, keyOf(newYear), u".a{fill:2027} {"_s);
    row("open to its end", u"{year"_s, keyOf(newYear), u"{year"_s);
    row("no day", u"a{year}{holidays}b"_s, keyOf(QDate()), u"ab"_s);
}

void tst_MvSVGCompiler::fills()
{
    const auto [pattern, key, text] = MvRows<QString, MvCalendariumContentKey, QString>::current();
    QCOMPARE(MvSVGCompilerInstructionsFactory::instance().text(pattern, key), text);
}

void tst_MvSVGCompiler::sourcesComeAndGo()
{
    auto &factory = MvSVGCompilerInstructionsFactory::instance();
    QCOMPARE(factory.holidayCaches(), (QList<MvAbstractHolidayCache *>{m_entries.get(), m_holidays.get()}));
    factory.addHolidayCache(nullptr);
    m_entries.reset();
    QCOMPARE(factory.holidayCaches(), QList<MvAbstractHolidayCache *>{m_holidays.get()});
    QCOMPARE(factory.text(u"{entries}{holidays}"_s, keyOf(newYear)), u"Neujahr"_s);
}

void tst_MvSVGCompiler::artworkIsEscaped()
{
    const QByteArray svg = "<svg><text>{entries}</text></svg>";
    QCOMPARE(MvSVGCompilerInstructionsFactory::instance().artwork(svg, keyOf(newYear)),
             "<svg><text>Oma &amp; Opa, Tim &lt;3</text></svg>");
    const QByteArray notUtf8 = "<svg>\xe4</svg>"; // nothing to fill: not a byte is touched
    QCOMPARE(MvSVGCompilerInstructionsFactory::instance().artwork(notUtf8, keyOf(newYear)), notUtf8);
}

void tst_MvSVGCompiler::renderersAreKeptUntilCleared()
{
    auto &cache = MvSVGImageRendererCache::instance();
    const QByteArray svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><g id="{entries}"/></svg>)";
    m_entries->setTexts({u"before"_s});
    const std::shared_ptr<QSvgRenderer> before = cache.renderer(svg, keyOf(newYear));
    QVERIFY(before->isValid() && before->elementExists(u"before"_s));
    m_entries->setTexts({u"after"_s});
    QCOMPARE(cache.renderer(svg, keyOf(newYear)), before);
    QVERIFY(cache.renderer(svg, keyOf(newYear.addDays(1))) != before);
    QCOMPARE(cache.count(), 2);
    cache.clear();
    QVERIFY(cache.renderer(svg, keyOf(newYear))->elementExists(u"after"_s));
    QVERIFY(before->elementExists(u"before"_s)); // who holds one may go on painting
}

void tst_MvSVGCompiler::instructionsAreBounded()
{
    auto &cache = MvSVGCompilerInstructionsCache::instance();
    const QString large(1'000'000, u'x');
    for (int i = 0; i < 10; ++i)
        cache.instructions(large + QString::number(i));
    QVERIFY(cache.count() > 0 && cache.count() < 5);
    QVERIFY(cache.instructions(u"fest"_s).isConstant());
    QVERIFY(!cache.instructions(u"{year}"_s).isConstant());
}

MV_TEST_MAIN(tst_MvSVGCompiler)
#include "tst_MvSVGCompiler.moc"

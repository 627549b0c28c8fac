// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvEntries.h"
#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvTextPainter.h"

#include <QPainter>

using namespace Qt::StringLiterals;
using MvEntries::entry;

using Item = MvPaintRecording::Item;

namespace {

const QString noEmptyWeeks = u"calendar_render_no_empty_weeks"_s;

} // namespace

/// What all layouts share: dates, cell types, measures, words, and how one cell is painted.
class tst_MvCalendariumRenderer : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MvCalendarEventRegistry::instance().setEvents({}); }

    void weeksOfMonth_data();
    void weeksOfMonth();
    void weekParity_data();
    void weekParity();
    void cellTypes_data();
    void cellTypes();
    void factoryFiltersCellTypes();

    void monthsAndWeeks();
    void scales_data();
    void scales();
    void placesTextsAsFontMetricsDo_data();
    void placesTextsAsFontMetricsDo();

    void textsOfADay();
    void runningVacations_data();
    void runningVacations();

    void passKeepsTheClip();
    void translucentBackgrounds();
    void smallCellsShowNumbersOnly_data();
    void smallCellsShowNumbersOnly();
    void warnsOfTooWideWords();
    void invisibleTextsAreNotDrawn();
};

void tst_MvCalendariumRenderer::weeksOfMonth_data()
{
    QTest::addColumn<QDate>("month");
    QTest::addColumn<int>("weeks");
    QTest::newRow("28 days from Monday") << QDate(2027, 2, 1) << 4;
    QTest::newRow("28 days from Thursday") << QDate(2029, 2, 1) << 5;
    QTest::newRow("30 days from Sunday") << QDate(2031, 6, 1) << 6;
    QTest::newRow("31 days from Friday") << QDate(2027, 10, 1) << 5;
    QTest::newRow("31 days from Sunday") << QDate(2027, 8, 1) << 6;
    QTest::newRow("any day of the month counts") << QDate(2027, 2, 28) << 4;
    QTest::newRow("no month") << QDate() << 6;
}

void tst_MvCalendariumRenderer::weeksOfMonth()
{
    QFETCH(QDate, month);
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), QDate(2027, 1, 1));
    QTEST(page.renderer().numberOfWeeks(month), "weeks");
    MvPageFixture withEmptyWeeks(MvPageFixture::appearance(u"calendar_render_title"_s), QDate(2027, 1, 1));
    QCOMPARE(withEmptyWeeks.renderer().numberOfWeeks(month), 6);
}

void tst_MvCalendariumRenderer::weekParity_data()
{
    QTest::addColumn<QDate>("page");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("even");
    QTest::newRow("first week is odd") << QDate(2027, 10, 1) << QDate(2027, 10, 3) << false;
    QTest::newRow("second week is even") << QDate(2027, 10, 1) << QDate(2027, 10, 4) << true;
    QTest::newRow("third week is odd") << QDate(2027, 10, 1) << QDate(2027, 10, 17) << false;
    QTest::newRow("days before the month") << QDate(2027, 10, 1) << QDate(2027, 9, 28) << false;
    QTest::newRow("days after the month follow its last day") << QDate(2027, 9, 1) << QDate(2027, 10, 3) << false;
    QTest::newRow("December before January") << QDate(2027, 1, 1) << QDate(2026, 12, 30) << false;
    // 1 January 2027 lies in week 53, 4 January in week 1: both odd, so that the rows do not alternate here
    QTest::newRow("after week 53") << QDate(2027, 1, 1) << QDate(2027, 1, 4) << false;
    QTest::newRow("January after December") << QDate(2026, 12, 1) << QDate(2027, 1, 2) << false;
}

void tst_MvCalendariumRenderer::weekParity()
{
    QFETCH(QDate, page);
    QFETCH(QDate, date);
    MvPageFixture fixture(MvPageFixture::appearance(noEmptyWeeks), page);
    QTEST(fixture.renderer().isEvenWeek(date), "even");
}

void tst_MvCalendariumRenderer::cellTypes_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("features");
    QTest::addColumn<int>("inscription");
    QTest::addColumn<int>("color");
    const int holiday = CALENDAR_CELL_TYPE_HOLIDAY;
    const int weekday = CALENDAR_CELL_TYPE_WEEKDAY;
    QTest::newRow("Epiphany") << QDate(2027, 1, 6) << 3 << holiday << holiday;
    QTest::newRow("its text alone") << QDate(2027, 1, 6) << 1 << holiday << weekday;
    QTest::newRow("its colour alone") << QDate(2027, 1, 6) << 2 << weekday << holiday;
    QTest::newRow("switched off") << QDate(2027, 1, 6) << 0 << weekday << weekday;
    QTest::newRow("Labour Day on a Saturday") << QDate(2027, 5, 1) << 3 << holiday << holiday;
    QTest::newRow("the same switched off")
        << QDate(2027, 5, 1) << 0 << int(CALENDAR_CELL_TYPE_SATURDAY) << int(CALENDAR_CELL_TYPE_SATURDAY);
    QTest::newRow("vacation") << QDate(2027, 8, 10) << 8 << int(CALENDAR_CELL_TYPE_SCHOOL_VACATION)
                              << int(CALENDAR_CELL_TYPE_SCHOOL_VACATION);
    QTest::newRow("Saturday in the vacation")
        << QDate(2027, 8, 14) << 11 << int(CALENDAR_CELL_TYPE_SATURDAY) << int(CALENDAR_CELL_TYPE_SATURDAY);
    QTest::newRow("a named day is no holiday") << QDate(2027, 12, 24) << 3 << weekday << weekday;
}

void tst_MvCalendariumRenderer::cellTypes()
{
    QFETCH(QDate, date);
    QFETCH(int, features);
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), date, features);
    const MvCalendarCellTypeConfig content = page.renderer().contentCellTypeConfig(date);
    QTEST(content.inscriptionConfig().toInt(), "inscription");
    QTEST(content.colorConfig().toInt(), "color");
    // heads decide alike
    const bool headIsHoliday =
        page.renderer().headCellTypeConfig(date).colorConfig() == CALENDAR_CELL_TYPE_HEAD_HOLIDAY;
    QCOMPARE(headIsHoliday, content.colorConfig() == CALENDAR_CELL_TYPE_HOLIDAY);
}

void tst_MvCalendariumRenderer::factoryFiltersCellTypes()
{
    const auto &factory = MvCalendariumRendererFactory::instance();
    const MvCalendarCellType title = CALENDAR_CELL_TYPE_TITLE;
    const MvCalendarCellType week = CALENDAR_CELL_TYPE_WEEK_OF_YEAR;
    QVERIFY(!factory.usedCellTypes(MvPageFixture::appearance(noEmptyWeeks)).contains(title));
    const auto withTitle = factory.usedCellTypes(MvPageFixture::appearance(u"calendar_render_title"_s));
    QVERIFY(withTitle.contains(title));
    QVERIFY(!withTitle.contains(week));
    MvCalendariumAppearance overridden = MvPageFixture::appearance(noEmptyWeeks);
    overridden.setOverrideShowCalendarWeek(true);
    QVERIFY(factory.usedCellTypes(overridden).contains(week));
}

void tst_MvCalendariumRenderer::monthsAndWeeks()
{
    MvPageFixture page(MvPageFixture::appearance(u"calendar_render_month_number, calendar_render_year_long"_s),
                       QDate(2027, 3, 1));
    const MvCalendariumRenderer &renderer = page.renderer();
    QCOMPARE(renderer.calendarMonth(QDate(2027, 5, 9)), u"5 2027"_s);
    QCOMPARE(renderer.calendarMonth(QDate()), u"3 2027"_s); // the page's month
    QCOMPARE(renderer.calendarMonth(3, MvCalendarRenderingInformation(calendar_render_month_short)), u"Mär"_s);
    QCOMPARE(renderer.calendarMonth(3, MvCalendarRenderingInformation(0)), u"März"_s);
    QCOMPARE(renderer.dayName(1, true), u"Mo"_s);
    QCOMPARE(renderer.stringFromDate(QDate(2027, 10, 3), u"dddd"_s), u"Sonntag"_s);
    QCOMPARE(renderer.stringFromDate(QDate(2027, 10, 3), u"d. MMMM yyyy"_s), u"3. Oktober 2027"_s);
    QCOMPARE(renderer.calendarWeekText(QDate(2027, 1, 1)), u"53"_s);
    QCOMPARE(renderer.calendarWeekHeadlineText(), u"KW"_s);
}

void tst_MvCalendariumRenderer::scales_data()
{
    QTest::addColumn<int>("percentage");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("text");
    QTest::newRow("as it is") << 0 << 1.0 << 50 << 25;
    QTest::newRow("smaller") << 0 << 0.96 << 48 << 24;
    QTest::newRow("down to 6.5 points") << 0 << 0.1 << 23 << 23;
    QTest::newRow("larger, and back again") << 100 << 0.5 << 50 << 25;
    QTest::newRow("larger, and some way back") << 100 << 0.75 << 75 << 25;
}

void tst_MvCalendariumRenderer::scales()
{
    QFETCH(int, percentage);
    QFETCH(double, scale);
    MvCalendariumAppearance appearance = MvPageFixture::appearance(noEmptyWeeks);
    MvCalendariumFontSettings fonts = appearance.fontSettings();
    fonts.setFontSizePercentage(percentage);
    appearance.setFontSettings(fonts);
    MvPageFixture page(appearance, QDate(2027, 1, 1));
    page.renderer().setScale(scale, scale);
    QTEST(page.renderer().font(CALENDAR_CELL_TYPE_WEEKDAY).pixelSize(), "number");
    QTEST(page.renderer().fontHolidays(CALENDAR_CELL_TYPE_WEEKDAY).pixelSize(), "text");
    QCOMPARE(page.renderer().padding(CALENDAR_CELL_TYPE_WEEKDAY).left(), 10.0 * scale);
}

void tst_MvCalendariumRenderer::placesTextsAsFontMetricsDo_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<int>("flags");
    for (const int flags : {int(Qt::AlignLeft | Qt::AlignTop), int(Qt::AlignCenter),
                            int(Qt::AlignRight | Qt::AlignBottom), int(Qt::AlignHCenter | Qt::AlignBottom), 0}) {
        QTest::addRow("boxes %x", flags) << MvBoxFont::font(37) << flags;
        QFont lato(u"Lato"_s);
        lato.setPixelSize(31);
        lato.setHintingPreference(QFont::PreferNoHinting);
        QTest::addRow("Lato %x", flags) << lato << flags;
    }
}

void tst_MvCalendariumRenderer::placesTextsAsFontMetricsDo()
{
    QFETCH(QFont, font);
    QFETCH(int, flags);
    const QRectF rect(12.5, 33.25, 611.7, 77.1);
    const QString text = u"Heilige Drei Könige"_s;
    const QRectF expected = QFontMetricsF(font).boundingRect(rect, flags | Qt::TextDontClip, text);
    const QRectF found = MvTextPainter::boundingRect(font, rect, flags | Qt::TextDontClip, text);
    for (const double difference : {found.x() - expected.x(), found.y() - expected.y(),
                                    found.width() - expected.width(), found.height() - expected.height()})
        QVERIFY2(qAbs(difference) < 0.1, qPrintable(QString::number(difference)));
}

void tst_MvCalendariumRenderer::textsOfADay()
{
    MvCalendarEventRegistry::instance().setEvents({entry(u"Oma"_s, QDate(1950, 1, 6))});
    const QDate day(2027, 1, 6);
    const QStringList official{u"Heilige Drei Könige"_s};
    const QStringList personal{u"Oma"_s};
    const auto describe = [&day](int features, bool showHolidays) {
        MvCalendariumAppearance appearance = MvPageFixture::appearance(noEmptyWeeks);
        appearance.setShowHolidays(showHolidays);
        MvPageFixture page(appearance, day, features);
        page.renderer().setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
        return page.renderer().describeHolidays(day);
    };
    QCOMPARE(describe(1 | 4, true), official + personal);
    QCOMPARE(describe(1, true), official);
    QCOMPARE(describe(4, true), personal);
    QCOMPARE(describe(0, true), QStringList());
    QCOMPARE(describe(1 | 4, false), personal); // the page's switch silences holidays alone
}

void tst_MvCalendariumRenderer::runningVacations_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("features");
    QTest::addColumn<QStringList>("expected");
    const int all = FEATURE_HOLIDAYS | FEATURE_SCHOOL_VACATIONS;
    const QString grid = u"CALENDAR_ONE_WEEK_PER_ROW"_s;
    const QStringList summer{u"Sommerferien"_s}; // of Bayern: 3 August to 14 September 2026
    QTest::newRow("its own first day") << grid << QDate(2026, 8, 3) << all << summer;
    QTest::newRow("first day of the next page") << grid << QDate(2026, 9, 1) << all << summer;
    QTest::newRow("of a list, too") << u"CALENDAR_ONE_DAY_PER_ROW"_s << QDate(2026, 9, 1) << all << summer;
    QTest::newRow("with a holiday") << grid << QDate(2027, 1, 1) << all
                                    << QStringList{u"Neujahr"_s, u"Weihnachtsferien"_s};
    QTest::newRow("no other day") << grid << QDate(2026, 9, 2) << all << QStringList();
    QTest::newRow("not over a year's page") << u"CALENDAR_YEAR"_s << QDate(2026, 9, 1) << all << QStringList();
    QTest::newRow("no vacations") << grid << QDate(2026, 9, 1) << int(FEATURE_HOLIDAYS) << QStringList();
}

void tst_MvCalendariumRenderer::runningVacations()
{
    QFETCH(const QString, type);
    QFETCH(const QDate, day);
    QFETCH(const int, features);
    MvPageFixture page(MvPageFixture::appearance({}, MvPageFixture::defaultCells(), type),
                       QDate(day.year(), day.month(), 1), features);
    QTEST(page.renderer().describeHolidays(day), "expected");
}

void tst_MvCalendariumRenderer::passKeepsTheClip()
{
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), QDate(2027, 2, 1), 0);
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.setClipRect(QRectF(100, 100, 300, 300));
    page.renderer().render(painter, {0, 0, 2800, 1600});
    painter.end();
    const QList<Item> items = recorder.recording().items();
    QVERIFY(!items.isEmpty());
    for (const Item &item : items)
        QVERIFY(QRectF(99, 99, 302, 302).contains(item.clip));
}

void tst_MvCalendariumRenderer::translucentBackgrounds()
{
    MvCalendariumAppearance appearance =
        MvPageFixture::appearance({}, MvPageFixture::defaultCells(), u"CALENDAR_MONTH_ONLY"_s);
    appearance.setCellColor(QColor(10, 20, 30, 128),
                            {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_MONTH, MvParityLogicEnum::both});
    MvPageFixture page(appearance, QDate(2027, 2, 1));
    page.renderer().setBackgroundAlpha(0.5);
    const QList<Item> items = page.render({0, 0, 280, 160}).items();
    QCOMPARE(items.constFirst().fill.alpha(), 64);
    QCOMPARE(items.constFirst().bounds, QRectF(0, 0, 280, 160));
}

void tst_MvCalendariumRenderer::smallCellsShowNumbersOnly_data()
{
    QTest::addColumn<QSizeF>("cell");
    QTest::addColumn<bool>("hasText");
    QTest::newRow("too narrow") << QSizeF(155.0, 100.0) << false;
    QTest::newRow("too low") << QSizeF(400.0, 60.0) << false;
    QTest::newRow("just large enough") << QSizeF(155.1, 60.1) << true;
}

void tst_MvCalendariumRenderer::smallCellsShowNumbersOnly()
{
    QFETCH(QSizeF, cell);
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), QDate(2027, 5, 1));
    const QStringList texts = MvPageFixture::texts(page.render({0, 0, cell.width() * 7, cell.height() * 6}));
    QVERIFY(texts.contains(u"1"_s));
    QTEST(texts.contains(u"Muttertag"_s), "hasText");
}

void tst_MvCalendariumRenderer::warnsOfTooWideWords()
{
    MvCalendarEventRegistry::instance().setEvents({entry(u"Xxxxxxxxxxxxxxxxxxxxxxxx"_s, QDate(1990, 2, 10))});
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), QDate(2027, 2, 1), FEATURE_ENTRIES);
    page.renderer().setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    const QRectF rect(0, 0, 1400, 1600);
    QVERIFY(page.render(rect).items(Item::Image).isEmpty());
    const QList<Item> symbols = page.render(rect, MvRenderingRule::ShowQualityWarnings).items(Item::Image);
    QCOMPARE(symbols.size(), 1);
    QCOMPARE(symbols.constFirst().bounds, QRectF(400, 500, 200, 200)); // centred in the cell of 200 x 400
}

void tst_MvCalendariumRenderer::invisibleTextsAreNotDrawn()
{
    MvCalendariumAppearance appearance = MvPageFixture::appearance(noEmptyWeeks);
    appearance.setCellColor(Qt::transparent, {MvCalendarCellColorRoleEnum::textcolor, MvCalendarCellType::allTypes(),
                                              MvParityLogicEnum::both});
    MvPageFixture page(appearance, QDate(2027, 5, 1));
    QVERIFY(page.render({0, 0, 2100, 1600}).items(Item::Text).isEmpty());
    QCOMPARE(page.days.size(), 31);
}

MV_TEST_MAIN(tst_MvCalendariumRenderer)
#include "tst_MvCalendariumRenderer.moc"

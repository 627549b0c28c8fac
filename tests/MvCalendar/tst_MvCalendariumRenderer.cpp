// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvEntries.h"
#include "MvPageFixture.h"
#include "MvRows.h"
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

    void weeksOfMonth_data() { MvRows<QDate, int>().read(u"weeks-of-months"_s); }
    void weeksOfMonth();
    void weekParity_data() { MvRows<QDate, QDate, bool>().read(u"week-parity"_s); }
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

void tst_MvCalendariumRenderer::weeksOfMonth()
{
    const auto [month, weeks] = MvRows<QDate, int>::current();
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), QDate(2027, 1, 1));
    QCOMPARE(page.renderer().numberOfWeeks(month), weeks);
    MvPageFixture withEmptyWeeks(MvPageFixture::appearance(u"calendar_render_title"_s), QDate(2027, 1, 1));
    QCOMPARE(withEmptyWeeks.renderer().numberOfWeeks(month), 6);
}

void tst_MvCalendariumRenderer::weekParity()
{
    const auto [page, date, even] = MvRows<QDate, QDate, bool>::current();
    MvPageFixture fixture(MvPageFixture::appearance(noEmptyWeeks), page);
    QCOMPARE(fixture.renderer().isEvenWeek(date), even);
}

void tst_MvCalendariumRenderer::cellTypes_data()
{
    const MvRows<QDate, int, int, int> row; // date, features, inscription, color
    const int holiday = CALENDAR_CELL_TYPE_HOLIDAY;
    const int weekday = CALENDAR_CELL_TYPE_WEEKDAY;
    row("Epiphany", QDate(2027, 1, 6), 3, holiday, holiday);
    row("its text alone", QDate(2027, 1, 6), 1, holiday, weekday);
    row("its colour alone", QDate(2027, 1, 6), 2, weekday, holiday);
    row("switched off", QDate(2027, 1, 6), 0, weekday, weekday);
    row("Labour Day on a Saturday", QDate(2027, 5, 1), 3, holiday, holiday);
    row("the same switched off", QDate(2027, 5, 1), 0, int(CALENDAR_CELL_TYPE_SATURDAY),
        int(CALENDAR_CELL_TYPE_SATURDAY));
    row("vacation", QDate(2027, 8, 10), 8, int(CALENDAR_CELL_TYPE_SCHOOL_VACATION),
        int(CALENDAR_CELL_TYPE_SCHOOL_VACATION));
    row("Saturday in the vacation", QDate(2027, 8, 14), 11, int(CALENDAR_CELL_TYPE_SATURDAY),
        int(CALENDAR_CELL_TYPE_SATURDAY));
    row("a named day is no holiday", QDate(2027, 12, 24), 3, weekday, weekday);
}

void tst_MvCalendariumRenderer::cellTypes()
{
    const auto [date, features, inscription, color] = MvRows<QDate, int, int, int>::current();
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), date, features);
    const MvCalendarCellTypeConfig content = page.renderer().contentCellTypeConfig(date);
    QCOMPARE(content.inscriptionConfig().toInt(), inscription);
    QCOMPARE(content.colorConfig().toInt(), color);
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
    const MvRows<int, double, int, int> row; // percentage, scale, number, text
    row("as it is", 0, 1.0, 50, 25);
    row("smaller", 0, 0.96, 48, 24);
    row("down to 6.5 points", 0, 0.1, 23, 23);
    row("larger, and back again", 100, 0.5, 50, 25);
    row("larger, and some way back", 100, 0.75, 75, 25);
}

void tst_MvCalendariumRenderer::scales()
{
    const auto [percentage, scale, number, text] = MvRows<int, double, int, int>::current();
    MvCalendariumAppearance appearance = MvPageFixture::appearance(noEmptyWeeks);
    MvCalendariumFontSettings fonts = appearance.fontSettings();
    fonts.setFontSizePercentage(percentage);
    appearance.setFontSettings(fonts);
    MvPageFixture page(appearance, QDate(2027, 1, 1));
    page.renderer().setScale(scale, scale);
    QCOMPARE(page.renderer().font(CALENDAR_CELL_TYPE_WEEKDAY).pixelSize(), number);
    QCOMPARE(page.renderer().fontHolidays(CALENDAR_CELL_TYPE_WEEKDAY).pixelSize(), text);
    QCOMPARE(page.renderer().padding(CALENDAR_CELL_TYPE_WEEKDAY).left(), 10.0 * scale);
}

void tst_MvCalendariumRenderer::placesTextsAsFontMetricsDo_data()
{
    const MvRows<QFont, int> row; // font, flags
    for (const int flags : {int(Qt::AlignLeft | Qt::AlignTop), int(Qt::AlignCenter),
                            int(Qt::AlignRight | Qt::AlignBottom), int(Qt::AlignHCenter | Qt::AlignBottom), 0}) {
        row(QString::asprintf("boxes %x", flags), MvBoxFont::font(37), flags);
        QFont lato(u"Lato"_s);
        lato.setPixelSize(31);
        lato.setHintingPreference(QFont::PreferNoHinting);
        row(QString::asprintf("Lato %x", flags), lato, flags);
    }
}

void tst_MvCalendariumRenderer::placesTextsAsFontMetricsDo()
{
    const auto [font, flags] = MvRows<QFont, int>::current();
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
    const MvRows<QString, QDate, int, QStringList> row; // type, day, features, expected
    const int all = FEATURE_HOLIDAYS | FEATURE_SCHOOL_VACATIONS;
    const QString grid = u"CALENDAR_ONE_WEEK_PER_ROW"_s;
    const QStringList summer{u"Sommerferien"_s}; // of Bayern: 3 August to 14 September 2026
    row("its own first day", grid, QDate(2026, 8, 3), all, summer);
    row("first day of the next page", grid, QDate(2026, 9, 1), all, summer);
    row("of a list, too", u"CALENDAR_ONE_DAY_PER_ROW"_s, QDate(2026, 9, 1), all, summer);
    row("with a holiday", grid, QDate(2027, 1, 1), all, QStringList{u"Neujahr"_s, u"Weihnachtsferien"_s});
    row("no other day", grid, QDate(2026, 9, 2), all, QStringList());
    row("not over a year's page", u"CALENDAR_YEAR"_s, QDate(2026, 9, 1), all, QStringList());
    row("no vacations", grid, QDate(2026, 9, 1), int(FEATURE_HOLIDAYS), QStringList());
}

void tst_MvCalendariumRenderer::runningVacations()
{
    const auto [type, day, features, expected] = MvRows<QString, QDate, int, QStringList>::current();
    MvPageFixture page(MvPageFixture::appearance({}, MvPageFixture::defaultCells(), type),
                       QDate(day.year(), day.month(), 1), features);
    QCOMPARE(page.renderer().describeHolidays(day), expected);
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
    const MvRows<QSizeF, bool> row; // cell, hasText
    row("too narrow", QSizeF(155.0, 100.0), false);
    row("too low", QSizeF(400.0, 60.0), false);
    row("just large enough", QSizeF(155.1, 60.1), true);
}

void tst_MvCalendariumRenderer::smallCellsShowNumbersOnly()
{
    const auto [cell, hasText] = MvRows<QSizeF, bool>::current();
    MvPageFixture page(MvPageFixture::appearance(noEmptyWeeks), QDate(2027, 5, 1));
    const QStringList texts = MvPageFixture::texts(page.render({0, 0, cell.width() * 7, cell.height() * 6}));
    QVERIFY(texts.contains(u"1"_s));
    QCOMPARE(texts.contains(u"Muttertag"_s), hasText);
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

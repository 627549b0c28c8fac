// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumRendererOneWeekPerRow.h"

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

const QString everything = u"calendar_render_title, calendar_render_days_of_week, calendar_render_week_of_year, "
                           "calendar_render_no_empty_weeks, calendar_render_month_long, calendar_render_year_long"_s;
const QString rowsAlone = u"calendar_render_no_empty_weeks"_s;
const QRectF target(100, 50, 2770, 1900);

MvCalendariumRendererOneWeekPerRow &grid(MvPageFixture &page)
{
    return static_cast<MvCalendariumRendererOneWeekPerRow &>(page.renderer());
}

} // namespace

class tst_MvCalendariumRendererOneWeekPerRow : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void sharesTheHeight_data();
    void sharesTheHeight();
    void fourRowsAreHalfAsTallAgain();
    void daysShareTheWidth();
    void neighbouringMonthsAreEmpty();
    void printsTitleHeadsAndWeeks();
    void contentSwitchesWeeksOn();
    void minimumSize();
    void rowsAlternate();
};

void tst_MvCalendariumRendererOneWeekPerRow::sharesTheHeight_data()
{
    QTest::addColumn<QString>("info");
    QTest::addColumn<double>("title");
    QTest::addColumn<double>("head");
    QTest::addColumn<double>("row");
    // planned: heads 25 * 1.27 + 1 = 32.75, rows 84.5; May 2027 has six of them
    QTest::newRow("rows alone") << rowsAlone << 0.0 << 0.0 << 100.0;
    QTest::newRow("title") << rowsAlone + u", calendar_render_title"_s << 36.0 << 0.0 << 94.0;
    const double scale = 600.0 / (32.75 * 2 + 84.5 * 6);
    QTest::newRow("title and heads") << rowsAlone + u", calendar_render_title, calendar_render_days_of_week"_s << 34.0
                                     << 600.0 - 34.0 - 6 * 84.5 * scale << 84.5 * scale;
}

void tst_MvCalendariumRendererOneWeekPerRow::sharesTheHeight()
{
    QFETCH(QString, info);
    MvPageFixture page(MvPageFixture::appearance(info), QDate(2027, 5, 1));
    const QRectF rect(0, 0, 1000, 600);
    const QDate month(2027, 5, 1);
    const double title = grid(page).heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE, month);
    const double head = grid(page).heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, month);
    const double row = grid(page).heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY, month);
    QTEST(title, "title");
    QTEST(head, "head");
    QTEST(row, "row");
    QCOMPARE(title + head + 6 * row, 600.0);
    QCOMPARE(grid(page).heightOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, month), row);
    QCOMPARE(grid(page).heightOfCell(rect, CALENDAR_CELL_TYPE_SUNDAY, month), 0.0); // not asked for
}

void tst_MvCalendariumRendererOneWeekPerRow::fourRowsAreHalfAsTallAgain()
{
    MvPageFixture page(MvPageFixture::appearance(rowsAlone), QDate(2027, 2, 1));
    const QRectF rect(0, 0, 1000, 600);
    QCOMPARE(grid(page).heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY, QDate(2027, 2, 1)), 150.0);
    QCOMPARE(grid(page).heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY, QDate(2027, 5, 1)), 100.0);
}

void tst_MvCalendariumRendererOneWeekPerRow::daysShareTheWidth()
{
    MvPageFixture page(MvPageFixture::appearance(everything), QDate(2027, 5, 1));
    const double planned = grid(page).planedWeekOfYearWidth();
    QCOMPARE(planned, 25 * 1.27 + 1.0); // "52" and "KW" alike
    for (const double width : {300.0, 3000.0}) {
        const QRectF rect(0, 0, width, 600);
        QCOMPARE(grid(page).widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR), planned);
        QCOMPARE(grid(page).widthOfCell(rect, CALENDAR_CELL_TYPE_SUNDAY), (width - planned) / 7);
    }
}

void tst_MvCalendariumRendererOneWeekPerRow::neighbouringMonthsAreEmpty()
{
    // All Saints' Day follows October 2027 in its last row, which it must not colour
    MvPageFixture page(MvPageFixture::appearance(u"calendar_render_no_empty_weeks"_s), QDate(2028, 10, 1), 1 | 2 | 8);
    const MvPaintRecording recording = page.render({0, 0, 2100, 1800});
    const QRectF wednesday(600, 1500, 300, 300); // 1 November 2028
    for (const Item &text : recording.items(Item::Text))
        QVERIFY2(!wednesday.contains(text.bounds.center()), qPrintable(text.text));
    for (const Item &item : recording.items()) {
        if (item.kind != Item::Text && item.fill == QColor(Qt::red))
            QVERIFY(!item.shape.contains(wednesday.center()));
    }
}

void tst_MvCalendariumRendererOneWeekPerRow::printsTitleHeadsAndWeeks()
{
    MvPageFixture page(MvPageFixture::appearance(everything), QDate(2027, 1, 1), 0);
    QStringList texts;
    for (const Item &text : page.render(target).items(Item::Text))
        texts.append(text.text);
    QCOMPARE(texts.mid(0, 9), (QStringList{u" Januar 2027"_s, u"KW"_s, u"Montag"_s, u"Dienstag"_s, u"Mittwoch"_s,
                                           u"Donnerstag"_s, u"Freitag"_s, u"Samstag"_s, u"Sonntag"_s}));
    QCOMPARE(texts.mid(9, 5), (QStringList{u"53"_s, u"1"_s, u"2"_s, u"3"_s, u"1"_s})); // week 53, three days, week 1
    QVERIFY(page.renderer().rendersMonthInformation());
}

void tst_MvCalendariumRendererOneWeekPerRow::contentSwitchesWeeksOn()
{
    const MvCalendariumAppearance appearance = MvPageFixture::appearance(u"calendar_render_no_empty_weeks"_s);
    MvPageFixture without(appearance, QDate(2027, 1, 1));
    QVERIFY(!without.renderer().isConfigured(calendar_render_week_of_year));
    MvPageFixture with(appearance, QDate(2027, 1, 1), FEATURE_CALENDAR_WEEKS);
    QVERIFY(with.renderer().isConfigured(calendar_render_week_of_year));
    QVERIFY(!with.renderer().isConfigured(calendar_render_title));
    QVERIFY(with.renderer().usedCellTypes().contains(MvCalendarCellType(CALENDAR_CELL_TYPE_TOPLINE)));
    QCOMPARE(with.renderer().abilities().toInt(), 30);
}

void tst_MvCalendariumRendererOneWeekPerRow::minimumSize()
{
    MvPageFixture bare(MvPageFixture::appearance(rowsAlone), QDate(2027, 2, 1));
    QCOMPARE(bare.renderer().minimumSizeHint(), QSize(84 * 7, 507)); // six rows, although February has four
    MvPageFixture full(MvPageFixture::appearance(everything), QDate(2027, 2, 1));
    // "Donnerstag" is the widest; 507, then 32.75 twice, truncated each time; the week column adds 32.75
    QCOMPARE(full.renderer().minimumSizeHint(), QSize(int(159 * 7 + 32.75), 571));
}

void tst_MvCalendariumRendererOneWeekPerRow::rowsAlternate()
{
    MvPageFixture page(MvPageFixture::appearance(u"calendar_render_no_empty_weeks"_s), QDate(2027, 2, 1), 0);
    const QList<Item> items = page.render({0, 0, 2100, 1600}).items();
    const auto fillAt = [&items](double x, double y) {
        for (const Item &item : items) {
            if (item.kind != Item::Text && item.fill.isValid() && item.shape.contains(QPointF(x, y)))
                return item.fill.name();
        }
        return QString();
    };
    QCOMPARE(fillAt(150, 200), u"#dddddd"_s); // first week: odd
    QCOMPARE(fillAt(150, 600), u"#eeeeee"_s);
    QCOMPARE(fillAt(150, 1000), u"#dddddd"_s);
}

MV_TEST_MAIN(tst_MvCalendariumRendererOneWeekPerRow)
#include "tst_MvCalendariumRendererOneWeekPerRow.moc"

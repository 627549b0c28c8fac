// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumRendererTwoWeeksPerRow.h"

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

const QString title = u"calendar_render_title, calendar_render_month_long, calendar_render_year_long"_s;
const QString heads = u"calendar_render_days_of_week"_s;
const QString everything = title + u", "_s + heads;

MvCalendariumAppearance twoWeeks(const QString &info)
{
    return MvPageFixture::appearance(info, MvPageFixture::defaultCells(), u"CALENDAR_TWO_WEEKS"_s);
}

MvCalendariumRendererTwoWeeksPerRow &rows(MvPageFixture &page)
{
    return static_cast<MvCalendariumRendererTwoWeeksPerRow &>(page.renderer());
}

QString fillAt(const QList<Item> &items, const QPointF &point)
{
    for (const Item &item : items) {
        if (item.kind != Item::Text && item.fill.isValid() && item.shape.contains(point))
            return item.fill.name();
    }
    return {};
}

} // namespace

class tst_MvCalendariumRendererTwoWeeksPerRow : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void sharesTheHeight_data();
    void sharesTheHeight();
    void heightsByType();
    void printsTitleAndShortHeads();
    void neighbouringMonthsAreEmpty();
    void weeksAlternate();
    void describesItself();
};

void tst_MvCalendariumRendererTwoWeeksPerRow::sharesTheHeight_data()
{
    QTest::addColumn<QString>("info");
    QTest::addColumn<double>("titleHeight");
    QTest::addColumn<double>("headHeight");
    QTest::addColumn<double>("dayHeight");
    // planned: title and heads 32.75 each, three rows of 84.5
    QTest::newRow("rows alone") << QString() << 0.0 << 0.0 << 1000.0 / 3;
    QTest::newRow("title: rows are not truncated") << title << 114.0 << 0.0 << 886.0 / 3;
    QTest::newRow("heads take the remainder") << heads << 0.0 << 1000.0 - 3 * 295.0 << 295.0;
    QTest::newRow("title and heads") << everything << 102.0 << 1000.0 - 102.0 - 3 * 264.0 << 264.0;
}

void tst_MvCalendariumRendererTwoWeeksPerRow::sharesTheHeight()
{
    QFETCH(QString, info);
    QFETCH(double, titleHeight);
    QFETCH(double, headHeight);
    MvPageFixture page(twoWeeks(info), QDate(2027, 5, 1));
    const QRectF rect(30, 40, 2800, 1000);
    QCOMPARE(rows(page).heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE), titleHeight);
    QCOMPARE(rows(page).heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY), headHeight);
    QTEST(rows(page).heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY), "dayHeight");
    page.render(rect);
    QCOMPARE(page.days.constFirst().rect.top(), 40 + titleHeight + headHeight);
    QVERIFY(qAbs(page.days.constLast().rect.bottom() - rect.bottom()) < 1e-6);
}

void tst_MvCalendariumRendererTwoWeeksPerRow::heightsByType()
{
    MvPageFixture page(twoWeeks(everything), QDate(2027, 5, 1));
    const QRectF rect(0, 0, 2800, 1000);
    for (const MvCalendarCellTypeEnum type :
         {CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY,
          CALENDAR_CELL_TYPE_SCHOOL_VACATION, CALENDAR_CELL_TYPE_HEAD_HOLIDAY, CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION})
        QCOMPARE(rows(page).heightOfCell(rect, type), 264.0);
    for (const MvCalendarCellTypeEnum type :
         {CALENDAR_CELL_TYPE_HEAD_SATURDAY, CALENDAR_CELL_TYPE_HEAD_SUNDAY, CALENDAR_CELL_TYPE_WEEK_OF_YEAR})
        QCOMPARE(rows(page).heightOfCell(rect, type), 0.0);
    QCOMPARE(rows(page).widthOfCell(rect, CALENDAR_CELL_TYPE_TITLE), 200.0);
}

void tst_MvCalendariumRendererTwoWeeksPerRow::printsTitleAndShortHeads()
{
    MvPageFixture page(twoWeeks(everything), QDate(2027, 1, 1), 0);
    QStringList texts;
    for (const Item &text : page.render({0, 0, 2800, 1000}).items(Item::Text))
        texts.append(text.text);
    const QStringList week{u"Mo"_s, u"Di"_s, u"Mi"_s, u"Do"_s, u"Fr"_s, u"Sa"_s, u"So"_s};
    QCOMPARE(texts.mid(0, 15), QStringList{u" Januar 2027"_s} + week + week);
    QCOMPARE(texts.mid(15, 2), (QStringList{u"1"_s, u"2"_s}));
    QCOMPARE(texts.size(), 15 + 31);
}

void tst_MvCalendariumRendererTwoWeeksPerRow::neighbouringMonthsAreEmpty()
{
    MvCalendariumAppearance appearance = twoWeeks(QString());
    appearance.setCellColor(Qt::magenta,
                            {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_EMPTY, MvParityLogicEnum::both});
    MvPageFixture page(appearance, QDate(2027, 4, 1), 1 | 2 | 4 | 8); // followed by Labour Day
    const MvPaintRecording recording = page.render({0, 0, 2800, 900});
    const QPointF before(100, 150);     // 29 March, Easter Monday
    const QPointF labourDay(1100, 750); // 1 May
    const QPointF afterNext(2700, 750);
    for (const QPointF &point : {before, labourDay, afterNext}) {
        QCOMPARE(fillAt(recording.items(), point), QColor(Qt::magenta).name());
        const QRectF cell(point - QPointF(100, 150), QSizeF(200, 300));
        for (const Item &text : recording.items(Item::Text))
            QVERIFY2(!cell.contains(text.bounds.center()), qPrintable(text.text));
    }
}

void tst_MvCalendariumRendererTwoWeeksPerRow::weeksAlternate()
{
    MvPageFixture page(twoWeeks(QString()), QDate(2027, 2, 1), 0);
    const QList<Item> items = page.render({0, 0, 2800, 900}).items();
    QCOMPARE(fillAt(items, {100, 150}), u"#dddddd"_s); // first week: odd
    QCOMPARE(fillAt(items, {1500, 150}), u"#eeeeee"_s);
    QCOMPARE(fillAt(items, {100, 450}), u"#dddddd"_s);
    QCOMPARE(fillAt(items, {1500, 450}), u"#eeeeee"_s);
}

void tst_MvCalendariumRendererTwoWeeksPerRow::describesItself()
{
    MvPageFixture bare(twoWeeks(QString()), QDate(2027, 2, 1));
    // numbers 84.5 wide and high; heads 32.75 high, although there are none, and as wide as "Donnerstag"
    QCOMPARE(bare.renderer().minimumSizeHint(), QSize(14 * 84 + 7, 286));
    QVERIFY(!bare.renderer().rendersMonthInformation());
    MvPageFixture full(twoWeeks(everything), QDate(2027, 2, 1));
    QCOMPARE(full.renderer().minimumSizeHint(), QSize(int(14 * 159.75), 318)); // 286, and 32.75 cut
    QVERIFY(full.renderer().rendersMonthInformation());
    QVERIFY(!full.renderer().hasOneHeaderPerDay());
    QCOMPARE(full.renderer().abilities().toInt(), 14);
    const QList<MvCalendarCellType> types = full.renderer().usedCellTypes();
    QVERIFY(types.contains(MvCalendarCellType(CALENDAR_CELL_TYPE_EMPTY)));
    QVERIFY(types.contains(MvCalendarCellType(CALENDAR_CELL_TYPE_TITLE)));
    QVERIFY(!types.contains(MvCalendarCellType(CALENDAR_CELL_TYPE_HEAD_HOLIDAY)));
    QVERIFY(!types.contains(MvCalendarCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR)));
}

MV_TEST_MAIN(tst_MvCalendariumRendererTwoWeeksPerRow)
#include "tst_MvCalendariumRendererTwoWeeksPerRow.moc"

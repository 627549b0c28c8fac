// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumRendererYearOnly.h"

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

MvCalendariumAppearance yearCell(int renderInfo)
{
    const QString cell = u"<cell type='CALENDAR_CELL_TYPE_YEAR' paddingleft='10' paddingtop='5' paddingright='20' "
                         "paddingbottom='5'><font family='%1' pointsize='18'/></cell>"_s.arg(MvBoxFont::family());
    return MvPageFixture::appearance(MvCalendarRenderingInformation(renderInfo).encodeCSV(), cell,
                                     u"CALENDAR_YEAR_ONLY"_s);
}

} // namespace

class tst_MvCalendariumRendererYearOnly : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void paintsOneCell();
    void whatItIs();
};

void tst_MvCalendariumRendererYearOnly::texts_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QDate>("page");
    QTest::addColumn<MvDateRange>("range");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("text");
    const int all = calendar_render_year_long | calendar_render_all_years;
    const int school = calendar_render_year_school;
    const MvDateRange schoolYear(QDate(2024, 8, 1), QDate(2025, 7, 31));
    const MvDateRange three(QDate(2026, 12, 1), QDate(2028, 1, 31));
    const QDate august(2024, 8, 1);
    const QDate none;
    QTest::newRow("page's year") << int(calendar_render_year_long) << QDate(2025, 3, 1) << schoolYear << none << u""_s
                                 << u"2025"_s;
    QTest::newRow("short") << int(calendar_render_year_short) << august << schoolYear << none << u""_s << u"'24"_s;
    QTest::newRow("never before the calendar")
        << int(calendar_render_year_long) << QDate(2023, 3, 1) << schoolYear << none << u""_s << u"2024"_s;
    QTest::newRow("school year") << (all | school) << august << schoolYear << none << u""_s << u"Schuljahr 2024/2025"_s;
    QTest::newRow("school, one year") << int(calendar_render_year_long | school) << august << schoolYear << none
                                      << u""_s << u"Schuljahr 2024"_s;
    QTest::newRow("three years") << all << august << three << none << u""_s << u"2026/2027/2028"_s;
    QTest::newRow("own separator") << all << august << schoolYear << none << u" bis "_s << u"2024 bis 2025"_s;
    QTest::newRow("of a date") << all << august << schoolYear << QDate(2031, 4, 5) << u""_s << u"2031"_s;
    QTest::newRow("with the page's month") << (all | calendar_render_month_long) << QDate(2025, 3, 1) << schoolYear
                                           << none << u""_s << u"März 2024 / März 2025"_s;
    QTest::newRow("with the date's month")
        << (all | calendar_render_month_number) << august << schoolYear << QDate(2031, 4, 5) << u""_s << u"4 2031"_s;
    QTest::newRow("months need all years") << int(calendar_render_year_long | calendar_render_month_long) << august
                                           << schoolYear << none << u""_s << u"2024"_s;
}

void tst_MvCalendariumRendererYearOnly::texts()
{
    QFETCH(int, flags);
    QFETCH(QDate, page);
    QFETCH(MvDateRange, range);
    QFETCH(QDate, date);
    QFETCH(QString, separator);
    MvCalendariumAppearance appearance = yearCell(flags);
    appearance.setColumnHeaders(separator);
    MvCalendariumRendererYearOnly renderer(appearance);
    renderer.setCalendarInformation(MvPageFixture::content(page), range);
    QTEST(renderer.calendarYear(date), "text");
}

void tst_MvCalendariumRendererYearOnly::paintsOneCell()
{
    MvPageFixture page(yearCell(calendar_render_year_long), QDate(2027, 5, 1));
    const QRectF rect(50, 60, 400, 120);
    const MvPaintRecording recording = page.render(rect);
    QCOMPARE(recording.items().constFirst().bounds, rect);
    const QList<Item> texts = recording.items(Item::Text);
    QCOMPARE(texts.size(), 1);
    QCOMPARE(texts.constFirst().text, u"2027"_s);
    QCOMPARE(texts.constFirst().baseline, QPointF(60 + (370 - 100) / 2.0, 65 + (110 - 50) / 2.0 + 40)); // centred
    QVERIFY(page.days.isEmpty());
    QVERIFY(page.renderer().unfittingTexts().isEmpty());

    const QRectF narrow(0, 0, 110, 60); // inner width 80, the year is 100
    const Item smaller = page.render(narrow).items(Item::Text).constFirst();
    QCOMPARE(smaller.text, u"2027"_s);
    QCOMPARE_LE(smaller.font.pixelSize(), 40);
    QVERIFY(narrow.contains(smaller.bounds));
    QVERIFY(page.renderer().unfittingTexts().isEmpty());
    page.render({0, 0, 40, 60}); // in the smallest type it is 46
    QCOMPARE(page.renderer().unfittingTexts().size(), 1);
    QVERIFY(page.render({0, 0, 0, 60}).items().isEmpty());
}

void tst_MvCalendariumRendererYearOnly::whatItIs()
{
    MvPageFixture page(yearCell(calendar_render_year_long), QDate(2027, 5, 1));
    QCOMPARE(page.renderer().abilities().toInt(), 0);
    QVERIFY(!page.renderer().rendersMonthInformation());
    QCOMPARE(page.renderer().usedCellTypes(), QList<MvCalendarCellType>{CALENDAR_CELL_TYPE_YEAR});
    QCOMPARE(page.renderer().minimumSizeHint(), QSize(127 + 30, 74)); // 100 and 50 pixels; 63.5 and 10
}

MV_TEST_MAIN(tst_MvCalendariumRendererYearOnly)
#include "tst_MvCalendariumRendererYearOnly.moc"

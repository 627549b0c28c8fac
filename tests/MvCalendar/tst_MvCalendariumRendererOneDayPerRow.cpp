// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRendererOneDayPerRow.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

const QString dayListType = u"CALENDAR_ONE_DAY_PER_ROW"_s;
const QString days = u"calendar_render_days"_s;
const QString weekdays = u"calendar_render_days_of_week, calendar_render_days_of_week_short"_s;
const QString weeks = u"calendar_render_week_of_year"_s;

// numbers of 50 pixels: "22" measures 50 pixels, 63.5 units, and 20 of padding and 1 for the border come on top
constexpr double numberWidth = 84.5;
// heads of 25 pixels: "Do" measures 25 pixels, 31.75 units
constexpr double weekdayWidth = 32.75;

MvCalendariumAppearance dayList(const QString &renderInfo, const QString &headers = {}, const QString &headBorder = {})
{
    QString cells = MvPageFixture::defaultCells();
    if (!headBorder.isEmpty())
        cells +=
            u"<cell type='CALENDAR_CELL_TYPE_HEAD_WEEKDAY' bordertype='%1'><font family='%2' pointsize='9'/></cell>"_s
                .arg(headBorder, MvBoxFont::family());
    MvCalendariumAppearance appearance = MvPageFixture::appearance(renderInfo, cells, dayListType);
    appearance.setColumnHeaders(headers);
    return appearance;
}

const MvCalendariumRendererOneDayPerRow &dayListOf(MvPageFixture &page)
{
    return dynamic_cast<MvCalendariumRendererOneDayPerRow &>(page.renderer());
}

QString headings(int count)
{
    QStringList names;
    for (int number = 1; number <= count; ++number)
        names.append(u"N%1"_s.arg(number));
    return names.join(u"$$"_s);
}

QList<Item> textsOfRow(const MvPaintRecording &recording, const QRectF &dayRect)
{
    QList<Item> texts;
    for (const Item &item : recording.items(Item::Text)) {
        const double y = item.bounds.center().y();
        if (y > dayRect.top() && y < dayRect.bottom())
            texts.append(item);
    }
    return texts;
}

bool isFilled(const MvPaintRecording &recording, const QColor &color, const QPointF &point)
{
    for (const Item &item : recording.items()) {
        if (item.fill == color && item.kind != Item::Text && item.shape.contains(point))
            return true;
    }
    return false;
}

} // namespace

class tst_MvCalendariumRendererOneDayPerRow : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MvCalendarEventRegistry::instance().setEvents({}); }

    void bands_data();
    void bands();
    void rowsBeginAtWholeUnits();
    void columns_data();
    void columns();
    void rowFromLeftToRight();
    void groundOfARow();
    void parity();
    void dividingLines_data();
    void dividingLines();
    void calendarWeeks_data();
    void calendarWeeks();
    void lowRowsShowTheWeekNumberAlone();
    void minimumSize();
    void usedCellTypes_data();
    void usedCellTypes();
    void measures();
};

void tst_MvCalendariumRendererOneDayPerRow::bands_data()
{
    QTest::addColumn<QDate>("month");
    QTest::addColumn<QString>("headers");
    QTest::addColumn<int>("count");
    QTest::newRow("31 days, two headings") << QDate(2027, 5, 1) << u"A$$B"_s << 32;
    QTest::newRow("31 days, none") << QDate(2027, 5, 1) << QString() << 31;
    QTest::newRow("31 days, nothing but separators") << QDate(2027, 5, 1) << u"$$$$"_s << 31;
    QTest::newRow("31 days, the heading 1 is none") << QDate(2027, 5, 1) << u"1"_s << 31;
    QTest::newRow("31 days, one heading") << QDate(2027, 5, 1) << u"Mama"_s << 32;
    QTest::newRow("30 days") << QDate(2027, 6, 1) << QString() << 30;
    QTest::newRow("29 days") << QDate(2028, 2, 1) << QString() << 29;
    QTest::newRow("28 days, headings") << QDate(2027, 2, 1) << u"A$$B"_s << 29;
}

void tst_MvCalendariumRendererOneDayPerRow::bands()
{
    QFETCH(QDate, month);
    QFETCH(QString, headers);
    QFETCH(int, count);
    MvPageFixture page(dayList(days, headers), month);
    QSignalSpy titleLine(&page.renderer(), &MvCalendariumRenderer::hasTitleLineMayHaveChanged);
    page.render({50, 30, 1500, count * 70.0});

    const bool hasTopLine = count > month.daysInMonth();
    QCOMPARE(titleLine.size(), 1);
    QCOMPARE(titleLine.constFirst().constFirst().toBool(), hasTopLine);
    QCOMPARE(page.days.size(), month.daysInMonth());
    double y = hasTopLine ? 100.0 : 30.0;
    for (int day = 0; day < page.days.size(); ++day) {
        QCOMPARE(page.days.at(day).date, month.addDays(day));
        QCOMPARE(page.days.at(day).rect.top(), y);
        QCOMPARE(page.days.at(day).rect.height(), 70.0);
        y += 70.0;
    }
    QCOMPARE(y, 30.0 + count * 70.0);
}

void tst_MvCalendariumRendererOneDayPerRow::rowsBeginAtWholeUnits()
{
    MvPageFixture page(dayList(days, u"A$$B"_s), QDate(2027, 5, 1));
    page.render({0, 0, 1500, 2500}); // bands of 78.125
    QCOMPARE(page.days.constFirst().rect.top(), 78.0);
    QCOMPARE(page.days.constFirst().rect.height(), 78.125);
    QVERIFY(qAbs(page.days.constLast().rect.bottom() - 2500.0) < 1.0);
}

void tst_MvCalendariumRendererOneDayPerRow::columns_data()
{
    QTest::addColumn<int>("headings");
    QTest::addColumn<int>("columns");
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("four") << 4 << 4;
    QTest::newRow("ten") << 10 << 10;
    QTest::newRow("more than ten") << 12 << 10;
}

void tst_MvCalendariumRendererOneDayPerRow::columns()
{
    QFETCH(int, headings);
    QFETCH(int, columns);
    MvPageFixture page(dayList(days, ::headings(headings)), QDate(2027, 5, 1), 0);
    const QRectF rect(100, 0, 2000 + numberWidth, 3200);
    const MvPaintRecording recording = page.render(rect);
    const QRectF first = page.days.constFirst().rect;
    QCOMPARE(first.left(), 100 + numberWidth);
    QVERIFY(qAbs(first.width() - 2000.0 / columns) < 1e-6);

    // each heading in the middle of its column, those too many beyond the last
    QStringList found;
    for (const Item &text : recording.items(Item::Text)) {
        if (!text.text.startsWith(u'N'))
            continue;
        const double middle = first.left() + first.width() * (double(found.size()) + 0.5);
        QVERIFY(qAbs(text.bounds.center().x() - middle) < 2.0);
        found.append(text.text);
    }
    QCOMPARE(found.size(), headings);
    QCOMPARE(page.renderer().unfittingTexts().size(), headings - qMin(headings, 10));
}

void tst_MvCalendariumRendererOneDayPerRow::rowFromLeftToRight()
{
    MvPageFixture page(dayList(weekdays, u"A$$B"_s), QDate(2027, 1, 1), FEATURE_HOLIDAYS);
    const MvPaintRecording recording = page.render({0, 0, 2000, 3200});
    const QRectF epiphany = page.days.at(5).rect;
    QCOMPARE(epiphany.left(), numberWidth + weekdayWidth);
    const QList<Item> texts = textsOfRow(recording, epiphany);
    QStringList words;
    for (const Item &text : texts)
        words.append(text.text);
    QCOMPARE(words, (QStringList{u" 6 "_s, u"Mi"_s, u"Heilige Drei Könige"_s}));
    QVERIFY(texts.at(0).bounds.right() < numberWidth);
    QCOMPARE(texts.at(1).baseline.x(), numberWidth);
    QCOMPARE(texts.at(1).baseline.y(), texts.at(0).baseline.y()); // though it is smaller
    QVERIFY(epiphany.contains(texts.at(2).bounds));
    // padding 10 and margins: 10 in a wide cell, 2 in a low one, descent 5
    QCOMPARE(texts.at(2).baseline, QPointF(epiphany.left() + 20.0, epiphany.bottom() - 12.0 - 5.0));

    MvPageFixture withoutWeekdays(dayList(days), QDate(2027, 1, 1), 0);
    QCOMPARE(withoutWeekdays.render({0, 0, 2000, 3100}).items(Item::Text).size(), 31);
}

void tst_MvCalendariumRendererOneDayPerRow::groundOfARow()
{
    MvCalendariumAppearance appearance = dayList(weekdays, u"A$$B"_s);
    appearance.setCellColor(Qt::transparent, {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_HEAD_HOLIDAY,
                                              MvParityLogicEnum::both});
    MvPageFixture page(appearance, QDate(2027, 1, 1));
    const MvPaintRecording recording = page.render({0, 0, 2000, 3200});
    const QColor holiday(u"#ff0000"_s);
    const QRectF epiphany = page.days.at(5).rect;
    const double y = epiphany.center().y();
    QVERIFY(isFilled(recording, holiday, {10.0, y}));
    QVERIFY(isFilled(recording, holiday, epiphany.center()));
    QVERIFY(isFilled(recording, holiday, {1990.0, y}));
    QVERIFY(!isFilled(recording, holiday, {1990.0, y + 100.0}));
    // beneath a weekday's name without a ground of its own the row's goes on, beneath one with its own it does not
    QVERIFY(isFilled(recording, holiday, {numberWidth + 20.0, y}));
    const QColor saturday(u"#00ff00"_s);
    const double saturdayY = page.days.at(1).rect.center().y();
    QVERIFY(isFilled(recording, saturday, {1990.0, saturdayY}));
    QVERIFY(!isFilled(recording, saturday, {numberWidth + 20.0, saturdayY}));
}

void tst_MvCalendariumRendererOneDayPerRow::parity()
{
    MvPageFixture page(dayList(days), QDate(2027, 9, 1), 0);
    const MvPaintRecording recording = page.render({0, 0, 2000, 3000});
    QVERIFY(isFilled(recording, QColor(u"#dddddd"_s), page.days.at(0).rect.center())); // Wednesday, first week
    QVERIFY(isFilled(recording, QColor(u"#eeeeee"_s), page.days.at(5).rect.center())); // Monday, second week
    QVERIFY(isFilled(recording, QColor(u"#dddddd"_s), page.days.at(12).rect.center()));
}

void tst_MvCalendariumRendererOneDayPerRow::dividingLines_data()
{
    QTest::addColumn<QString>("headers");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QList<double>>("lines");
    const double x = numberWidth;
    QTest::newRow("right") << u"A$$B"_s << u"CALENDAR_BORDER_RIGHT"_s << QList<double>{x - 1, x + 499, x + 999};
    QTest::newRow("left: double") << u"A$$B"_s << u"CALENDAR_BORDER_LEFT"_s
                                  << QList<double>{x + 1, x, x + 501, x + 500};
    QTest::newRow("both") << u"A"_s << u"CALENDAR_BORDER_LEFT, CALENDAR_BORDER_RIGHT"_s
                          << QList<double>{x - 1, x + 1, x, x + 999};
    QTest::newRow("neither") << u"A$$B"_s << u"CALENDAR_BORDER_BOTTOM"_s << QList<double>{};
    QTest::newRow("without a top line") << QString() << u"CALENDAR_BORDER_RIGHT"_s << QList<double>{};
}

void tst_MvCalendariumRendererOneDayPerRow::dividingLines()
{
    QFETCH(QString, headers);
    QFETCH(QString, border);
    MvPageFixture page(dayList(days, headers, border), QDate(2027, 5, 1), 0);
    const MvPaintRecording recording = page.render({0, 40, 1000 + numberWidth, 3200});
    QList<double> lines;
    for (const Item &item : recording.items(Item::Line)) {
        if (item.line.length() < 3000.0)
            continue; // the cells' own
        QCOMPARE(item.line.p1().y(), 40.0);
        QCOMPARE(item.line.p2().y(), 40.0 + 3200.0 - 1.0);
        lines.append(item.line.x1());
    }
    QTEST(lines, "lines");
}

void tst_MvCalendariumRendererOneDayPerRow::calendarWeeks_data()
{
    QTest::addColumn<QDate>("month");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QList<QPair<int, int>>>("rows"); // first and last day of each strip with a text
    using Rows = QList<QPair<int, int>>;
    QTest::newRow("from Monday to Wednesday")
        << QDate(2027, 3, 1) << QStringList{u"KW 9"_s, u"KW 10"_s, u"KW 11"_s, u"KW 12"_s, u"KW 13"_s}
        << Rows{{1, 7}, {8, 14}, {15, 21}, {22, 28}, {29, 31}};
    QTest::newRow("begins on a Sunday: no text for one day")
        << QDate(2027, 8, 1) << QStringList{u"KW 31"_s, u"KW 32"_s, u"KW 33"_s, u"KW 34"_s, u"KW 35"_s}
        << Rows{{2, 8}, {9, 15}, {16, 22}, {23, 29}, {30, 31}};
    QTest::newRow("ends on a Monday: no text for one day")
        << QDate(2027, 5, 1) << QStringList{u"KW 17"_s, u"KW 18"_s, u"KW 19"_s, u"KW 20"_s, u"KW 21"_s}
        << Rows{{1, 2}, {3, 9}, {10, 16}, {17, 23}, {24, 30}};
    QTest::newRow("week 53 of the year before")
        << QDate(2027, 1, 1) << QStringList{u"KW 53"_s, u"KW 1"_s, u"KW 2"_s, u"KW 3"_s, u"KW 4"_s}
        << Rows{{1, 3}, {4, 10}, {11, 17}, {18, 24}, {25, 31}};
}

void tst_MvCalendariumRendererOneDayPerRow::calendarWeeks()
{
    QFETCH(QDate, month);
    QFETCH(QStringList, texts);
    using Rows = QList<QPair<int, int>>;
    QFETCH(Rows, rows);
    MvPageFixture page(dayList(weeks), month, 0);
    const MvPaintRecording recording = page.render({0, 0, 2000, month.daysInMonth() * 100.0});
    const double width = dayListOf(page).planedWeekOfYearWidth();
    QCOMPARE(page.days.constFirst().rect.left(), width + numberWidth);
    QStringList found;
    for (const Item &item : recording.items(Item::Text)) {
        if (item.bounds.center().x() > width)
            continue;
        const auto [first, last] = rows.value(found.size());
        const QRectF strip(0, (first - 1) * 100.0, width, (last - first + 1) * 100.0);
        QVERIFY2(strip.contains(item.bounds), qPrintable(item.text));
        QVERIFY(item.bounds.height() > item.bounds.width()); // runs upwards
        found.append(item.text);
    }
    QCOMPARE(found, texts);
}

void tst_MvCalendariumRendererOneDayPerRow::lowRowsShowTheWeekNumberAlone()
{
    MvPageFixture page(dayList(weeks), QDate(2027, 5, 1), 0);
    QStringList texts;
    for (const Item &item : page.render({0, 0, 2000, 31 * 28.0}).items(Item::Text)) // the first strip is 56 high
        texts.append(item.text);
    QVERIFY(texts.contains(u"17"_s)); // "KW 17" is 62.5 long
    QVERIFY(texts.contains(u"KW 18"_s));
}

void tst_MvCalendariumRendererOneDayPerRow::minimumSize()
{
    // top line: 25 pixels, 31.75, and 1; rows: 63.5 and 21 with numbers alone, 31.75 and 1 with weekdays
    MvPageFixture numbers(dayList(days), QDate(2027, 5, 1));
    QCOMPARE(numbers.renderer().minimumSizeHint(), QSize(84 + 20, int(32.75 + 31 * 84.5)));
    MvPageFixture february(dayList(days), QDate(2027, 2, 1));
    QCOMPARE(february.renderer().minimumSizeHint(), numbers.renderer().minimumSizeHint());
    MvPageFixture names(dayList(weekdays, headings(4)), QDate(2027, 5, 1));
    QCOMPARE(names.renderer().minimumSizeHint(), QSize(84 + 159 + 4 * 20, int(32.75 + 31 * 32.75)));
    MvPageFixture withWeeks(dayList(weeks), QDate(2027, 5, 1));
    const int weekWidth = int(withWeeks.renderer().widthOfCellType(CALENDAR_CELL_TYPE_WEEK_OF_YEAR, false));
    QCOMPARE(withWeeks.renderer().minimumSizeHint().width(), 84 + weekWidth + 20);
}

void tst_MvCalendariumRendererOneDayPerRow::usedCellTypes_data()
{
    QTest::addColumn<QString>("renderInfo");
    QTest::addColumn<QString>("headers");
    QTest::addColumn<int>("special"); // beyond those of the days
    const int heads = CALENDAR_CELL_TYPE_HEAD_WEEKDAY | CALENDAR_CELL_TYPE_HEAD_SATURDAY |
                      CALENDAR_CELL_TYPE_HEAD_SUNDAY | CALENDAR_CELL_TYPE_HEAD_HOLIDAY |
                      CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION;
    QTest::newRow("numbers alone") << days << QString() << 0;
    QTest::newRow("weekdays") << weekdays << QString() << heads;
    QTest::newRow("headings") << days << u"A$$B"_s << int(CALENDAR_CELL_TYPE_TOPLINE);
    QTest::newRow("weeks") << weeks << QString() << int(CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
}

void tst_MvCalendariumRendererOneDayPerRow::usedCellTypes()
{
    QFETCH(QString, renderInfo);
    QFETCH(QString, headers);
    QFETCH(int, special);
    MvPageFixture page(dayList(renderInfo, headers), QDate(2027, 5, 1));
    const MvCalendarCellType used(page.renderer().usedCellTypes());
    QCOMPARE(used.toInt(), MvCalendarCellType(page.renderer().dayCellTypes()).toInt() | special);
    QVERIFY(page.renderer().hasOneHeaderPerDay());
    QVERIFY(!page.renderer().rendersMonthInformation());
    QVERIFY(!page.renderer().abilities().hasAnyOf(ABILITY_DISPLAY_CALENDAR_WEEKS)); // though it can draw them
}

void tst_MvCalendariumRendererOneDayPerRow::measures()
{
    MvPageFixture page(dayList(weekdays, u"A$$B"_s), QDate(2027, 5, 1));
    const MvCalendariumRendererOneDayPerRow &list = dayListOf(page);
    const QRectF rect(0, 0, 1000, 3200);
    const auto height = [&](int type) { return list.heightOfCell(rect, MvCalendarCellType(type), QDate(2027, 5, 1)); };
    const QPair<double, double> row(100.0, 100.0);
    const QPair<double, double> none(0.0, 100.0);
    QCOMPARE(height(CALENDAR_CELL_TYPE_TOPLINE), row);
    QCOMPARE(height(CALENDAR_CELL_TYPE_HOLIDAY), row);
    QCOMPARE(height(CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION), row);
    QCOMPARE(height(CALENDAR_CELL_TYPE_TITLE), none);
    QCOMPARE(list.widthOfCell(rect, CALENDAR_CELL_TYPE_SCHOOL_VACATION), numberWidth);
    QCOMPARE(list.widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_HOLIDAY), weekdayWidth);
    QCOMPARE(list.widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR), 0.0); // not configured
    QCOMPARE(list.widthOfCell(rect, CALENDAR_CELL_TYPE_TITLE), 0.0);
    QCOMPARE(list.offsetOfLeftHeader(rect), numberWidth + weekdayWidth);
}

MV_TEST_MAIN(tst_MvCalendariumRendererOneDayPerRow)
#include "tst_MvCalendariumRendererOneDayPerRow.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"
#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

const QString row = u"CALENDAR_ONE_ROW"_s;
const QString grid = u"CALENDAR_ONE_WEEK_PER_ROW"_s;
const QString twoWeeks = u"CALENDAR_TWO_WEEKS"_s;
const QString columns = u"CALENDAR_ONE_COLUMN_PER_WEEK"_s;
const QString dayList = u"CALENDAR_ONE_DAY_PER_ROW"_s;

const QString plain = u"calendar_render_no_empty_weeks"_s;
const QString title = plain + u", calendar_render_title, calendar_render_month_long, calendar_render_year_long"_s;
const QString heads = plain + u", calendar_render_days_of_week"_s;
const QString both = title + u", calendar_render_days_of_week"_s;
const QString shortHeads = heads + u", calendar_render_days_of_week_short"_s;
const QString inFront = heads + u", calendar_render_days_of_week_only_in_front"_s;
const QString weeks = u", calendar_render_week_of_year"_s;

// Numbers of 50 pixels, "22": 63.5 wide and high, with 20 of padding and 1 for the border. Heads of 25: 31.75 and 1.
constexpr double number = 84.5;
constexpr double head = 32.75;
constexpr double nameOfWeekday = 159.75; // "Donnerstag", the widest

const QDate may(2027, 5, 1);      // six weeks, from Saturday to Monday
const QDate february(2027, 2, 1); // four whole weeks
const QDate january(2027, 1, 1);  // begins with week 53

MvCalendariumAppearance appearanceOf(const QString &type, const QString &info, const QString &headers = {},
                                     const QString &furtherCells = {})
{
    MvCalendariumAppearance appearance =
        MvPageFixture::appearance(info, MvPageFixture::defaultCells() + furtherCells, type);
    appearance.setColumnHeaders(headers);
    return appearance;
}

QString headings(int count)
{
    QStringList names;
    while (names.size() < count)
        names.append(u"N%1"_s.arg(names.size() + 1));
    return names.join(u"$$"_s);
}

bool areClose(const QRectF &a, const QRectF &b)
{
    return qAbs(a.left() - b.left()) + qAbs(a.top() - b.top()) + qAbs(a.right() - b.right()) +
               qAbs(a.bottom() - b.bottom()) <
           1e-6;
}

} // namespace

/// What the kinds of calendarium have in common, each with its own figures: how they divide a rectangle, what they
/// write first. The pages of the shipped layouts are those of tst_ReferencePages.
class tst_CalendariumKinds : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void write_data();
    void write();

    void columnsOfTheDayList_data();
    void columnsOfTheDayList();
    void narrowRowKeepsItsNumbers();
    void furtherRowsWhereNarrow();
    void headsOfColumnsGiveWay();
};

void tst_CalendariumKinds::write_data()
{
    // beginning: of all texts
    const MvRows<QString, QString, QDate, int, QString, int> newRow;
    const int holidays = FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS | FEATURE_SCHOOL_VACATIONS;
    newRow("row: no names of holidays", row, both, may, holidays, u" Mai 2027,Sa,1,So,2,Mo,3"_s, 1 + 2 * 31);
    newRow("row: numbers alone", row, plain, may, holidays, u"1,2,3"_s, 31);
    newRow("grid: week 53, three days, week 1", grid, both + weeks, january, int(FEATURE_CALENDAR_WEEKS),
           u" Januar 2027,KW,Montag,Dienstag,Mittwoch,Donnerstag,Freitag,Samstag,Sonntag,53,1,2,3,1,4"_s,
           1 + 8 + 5 + 31);
    newRow("grid: numbers alone, six weeks in February", grid, u"calendar_render_no_texts"_s, february,
           (holidays | FEATURE_ENTRIES), u"1,2,3"_s, 28);
    newRow("two weeks: short heads", twoWeeks, both, january, 0,
           u" Januar 2027,Mo,Di,Mi,Do,Fr,Sa,So,Mo,Di,Mi,Do,Fr,Sa,So,1,2"_s, 1 + 14 + 31);
    newRow("columns: week, heads beside days", columns, heads, january, int(FEATURE_CALENDAR_WEEKS),
           u"53,Mo,Di,Mi,Do,Fr,1,Sa,2,So,3,1,Mo,4"_s, 5 + 5 * 7 + 31);
    newRow("columns: heads in front", columns, inFront, february, int(FEATURE_CALENDAR_WEEKS),
           u"Mo,Di,Mi,Do,Fr,Sa,So,5,01,02"_s, 7 + 4 + 28);
    newRow("columns: numbers alone, where there is room for names", columns, inFront, may, holidays, u"Mo,Di"_s,
           7 + 31);
    newRow("columns: only who is asked shows weeks", columns, plain + weeks, february, 0, u"1,2"_s, 28);
    for (const QString &other : {QString(), u"CALENDAR_MONTH_ONLY, CALENDAR_YEAR"_s})
        newRow(QString::asprintf("no kind: \"%s\"", qPrintable(other)), other, title, may, 0, u"Mai 2027"_s, 1);
    newRow("day list: numbers alone", dayList, plain, may, 0, u" 1 , 2 "_s, 31);
}

void tst_CalendariumKinds::write()
{
    const auto [type, info, month, features, beginning, count] =
        MvRows<QString, QString, QDate, int, QString, int>::current();
    MvPageFixture page(appearanceOf(type, info), month, features);
    const QStringList texts = MvPageFixture::texts(page.render({0, 0, 3100, 1750}));
    QCOMPARE(texts.mid(0, beginning.count(u',') + 1).join(u','), beginning);
    QCOMPARE(int(texts.size()), count);
    QVERIFY(page.renderer().unfittingTexts().isEmpty());
}

void tst_CalendariumKinds::columnsOfTheDayList_data()
{
    const MvRows<QString, int, bool> row; // headers, columns, hasTopLine
    row("none", QString(), 1, false);
    row("nothing but separators", u"$$$$"_s, 1, false);
    row("the heading 1 is none", u"1"_s, 1, false);
    row("one", u"Mama"_s, 1, true);
    row("ten", headings(10), 10, true);
    row("more than ten: the last ones are beyond", headings(12), 10, true);
}

void tst_CalendariumKinds::columnsOfTheDayList()
{
    const auto [headers, columns, hasTopLine] = MvRows<QString, int, bool>::current();
    MvPageFixture page(appearanceOf(dayList, plain, headers), may, 0);
    QSignalSpy titleLine(&page.renderer(), &MvCalendariumRenderer::hasTitleLineMayHaveChanged);
    const MvPaintRecording recording = page.render({100, 30, 2000 + number, (31 + hasTopLine) * 70.0});
    QCOMPARE(titleLine.size(), 1);
    QCOMPARE(titleLine.constFirst().constFirst().toBool(), hasTopLine);
    const QRectF first = page.days.constFirst().rect;
    QVERIFY(areClose(first, {100 + number, hasTopLine ? 100.0 : 30.0, 2000.0 / columns, 70}));
    int found = 0;
    for (const Item &text : recording.items(Item::Text)) {
        if (!text.text.startsWith(u'N'))
            continue;
        const double middle = first.left() + first.width() * (found + 0.5);
        QVERIFY(qAbs(text.bounds.center().x() - middle) < 2.0);
        ++found;
    }
    QCOMPARE(found, headers.count(u'N'));
    QCOMPARE(page.renderer().unfittingTexts().size(), qMax(0, found - 10));
}

void tst_CalendariumKinds::narrowRowKeepsItsNumbers()
{
    MvPageFixture page(appearanceOf(row, both), february, 0);
    // numbers of two digits are 50 wide, smaller where they are tight
    QVERIFY(MvPageFixture::texts(page.render({0, 0, 28 * 49, 300})).contains(u"10"_s));
    QVERIFY(page.renderer().unfittingTexts().isEmpty());
    const QStringList texts = MvPageFixture::texts(page.render({0, 0, 100, 300}));
    QCOMPARE(texts.constFirst(), u" Februa…"_s); // 8 characters of 11.5
    QVERIFY(
        page.renderer().unfittingTexts().contains(MvUnfittingText{february, u"Februar 2027"_s, QRectF(0, 0, 100, 65)}));
}

void tst_CalendariumKinds::furtherRowsWhereNarrow()
{
    // numbers need 30 in the smallest type: 22 columns, which makes two rows of 16
    const QRectF rect(50, 20, 670, 600);
    for (const QDate month : {february, may}) {
        MvPageFixture page(appearanceOf(row, both), month, 0);
        page.render(rect);
        QCOMPARE(page.days.size(), month.daysInMonth());
        const QRectF first = page.days.constFirst().rect;
        QVERIFY(qAbs(first.width() - rect.width() / 16) < 1e-6);
        QVERIFY(qAbs(page.days.at(15).rect.right() - rect.right()) < 1e-6);
        const QRectF below = page.days.at(16).rect;
        QCOMPARE(below.left(), first.left());
        QVERIFY(below.top() > first.bottom()); // weekdays come between
        QVERIFY(qAbs(page.days.constLast().rect.bottom() - rect.bottom()) < 1e-6);
    }
    MvPageFixture low(appearanceOf(row, heads), may, 0);
    low.render({0, 0, 670, 40});
    QCOMPARE(low.days.constFirst().rect.top(), low.days.constLast().rect.top());
}

/// Whatever the paddings are: columns lie side by side within the page, and weekdays are named or give their room away.
void tst_CalendariumKinds::headsOfColumnsGiveWay()
{
    const QString negative = u"<cell type='CALENDAR_CELL_TYPE_HEAD_WEEKDAY, CALENDAR_CELL_TYPE_HEAD_SATURDAY, "
                             "CALENDAR_CELL_TYPE_HEAD_SUNDAY, CALENDAR_CELL_TYPE_HEAD_HOLIDAY, "
                             "CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION' paddingleft='14' paddingright='-300'>"
                             "<font family='MvBox' pointsize='9'/></cell>"_s;
    for (const QString &info : {heads, inFront, shortHeads}) {
        MvPageFixture page(appearanceOf(columns, info, {}, negative), may, 0);
        for (const double width : {2000.0, 500.0, 300.0, 190.0, 60.0}) {
            const QStringList texts = MvPageFixture::texts(page.render({100, 0, width, 1400}));
            QVERIFY(width < 300.0 || texts.contains(u"Mo"_s) || texts.contains(u"M"_s));
            QVERIFY(page.days.constFirst().rect.left() >= 100.0 - 1e-6);
            QVERIFY(page.days.constLast().rect.right() <= 100.0 + width + 1e-6);
            for (qsizetype day = 7; day < page.days.size(); ++day)
                QVERIFY(page.days.at(day).rect.left() > page.days.at(day - 7).rect.right() - 1e-6);
        }
    }
}

MV_TEST_MAIN(tst_CalendariumKinds)
#include "tst_CalendariumKinds.moc"

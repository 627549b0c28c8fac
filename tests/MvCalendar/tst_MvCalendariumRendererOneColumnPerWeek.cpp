// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumRendererOneColumnPerWeek.h"

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

const QString plain = u"calendar_render_no_empty_weeks"_s;
const QString heads = plain + u", calendar_render_days_of_week"_s;
const QString inFront = heads + u", calendar_render_days_of_week_only_in_front"_s;
const QList<MvCalendarCellTypeEnum> dayTypes{CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_SATURDAY,
                                             CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY,
                                             CALENDAR_CELL_TYPE_SCHOOL_VACATION};
const QList<MvCalendarCellTypeEnum> weekdayHeads{CALENDAR_CELL_TYPE_HEAD_WEEKDAY, CALENDAR_CELL_TYPE_HEAD_SATURDAY,
                                                 CALENDAR_CELL_TYPE_HEAD_SUNDAY};
const QList<MvCalendarCellTypeEnum> specialHeads{CALENDAR_CELL_TYPE_HEAD_HOLIDAY,
                                                 CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION};

// "Donnerstag" is 158.75 wide, "22" 63.5 and its paddings 20; each has 1 for its border
constexpr double headMaximum = 159.75;
constexpr double dayMaximum = 84.5;
// a week's text 32.75 high, days 84.5
constexpr double plannedHeight = 32.75 + 7 * 84.5;

MvCalendariumAppearance columns(const QString &info)
{
    return MvPageFixture::appearance(info, MvPageFixture::defaultCells(), u"CALENDAR_ONE_COLUMN_PER_WEEK"_s);
}

MvCalendariumRendererOneColumnPerWeek &weeks(MvPageFixture &page)
{
    return static_cast<MvCalendariumRendererOneColumnPerWeek &>(page.renderer());
}

QStringList textsOf(const MvPaintRecording &recording)
{
    QStringList texts;
    for (const Item &text : recording.items(Item::Text))
        texts.append(text.text);
    return texts;
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

class tst_MvCalendariumRendererOneColumnPerWeek : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void widths_data();
    void widths();
    void heights();
    void headsGiveWay();
    void printsWeeksHeadsAndDays();
    void weeksWithoutNumbersKeepTheirCell();
    void neighbouringMonthsAreEmpty();
    void weekdaysInFront();
    void plainDaysKnowTheirHolidays();
    void calendarWeeksFollowContentAndAppearance();
    void minimumSizes();
    void describesItself();
};

void tst_MvCalendariumRendererOneColumnPerWeek::widths_data()
{
    QTest::addColumn<QString>("info");
    QTest::addColumn<double>("week");
    QTest::addColumn<double>("day");
    QTest::addColumn<double>("head");
    QTest::addColumn<double>("specialHead");
    // May 2027: six columns in 3000
    QTest::newRow("days alone") << plain << 500.0 << 500.0 << 0.0 << 0.0;
    QTest::newRow("heads take whole units") << heads << 500.0 << 173.0 << 327.0 << 327.0; // 327.02
    const double column = 3000 / (headMaximum + 6 * dayMaximum) * dayMaximum;
    QTest::newRow("weekdays in front") << inFront << column << column << 3000 - 6 * column << column;
}

void tst_MvCalendariumRendererOneColumnPerWeek::widths()
{
    QFETCH(QString, info);
    const QDate month(2027, 5, 1);
    const QRectF rect(10, 10, 3000, 1400);
    MvPageFixture page(columns(info), month);
    QTEST(weeks(page).widthOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, month), "week");
    for (const MvCalendarCellTypeEnum type : dayTypes)
        QTEST(weeks(page).widthOfCell(rect, type, month), "day");
    for (const MvCalendarCellTypeEnum type : weekdayHeads)
        QTEST(weeks(page).widthOfCell(rect, type, month), "head");
    for (const MvCalendarCellTypeEnum type : specialHeads)
        QTEST(weeks(page).widthOfCell(rect, type, month), "specialHead");
    QCOMPARE(weeks(page).widthOfCell(rect, CALENDAR_CELL_TYPE_TITLE, month), 0.0);
}

void tst_MvCalendariumRendererOneColumnPerWeek::heights()
{
    MvPageFixture page(columns(heads), QDate(2027, 5, 1));
    const QRectF rect(0, 0, 3000, 1400);
    const double row = int(1400 / plannedHeight * 84.5); // 189.5
    QCOMPARE(row, 189.0);
    QCOMPARE(weeks(page).heightOfCell(rect, CALENDAR_CELL_TYPE_WEEK_OF_YEAR), 1400 - 7 * row);
    for (const MvCalendarCellTypeEnum type : dayTypes + weekdayHeads + specialHeads)
        QCOMPARE(weeks(page).heightOfCell(rect, type), row);
    QCOMPARE(weeks(page).heightOfCell(rect, CALENDAR_CELL_TYPE_TOPLINE), 0.0);
}

/// Whatever the paddings are: columns lie side by side within the page, and weekdays are named or give their room away.
void tst_MvCalendariumRendererOneColumnPerWeek::headsGiveWay()
{
    const QString types = u"CALENDAR_CELL_TYPE_HEAD_WEEKDAY, CALENDAR_CELL_TYPE_HEAD_SATURDAY, "
                          "CALENDAR_CELL_TYPE_HEAD_SUNDAY, CALENDAR_CELL_TYPE_HEAD_HOLIDAY, "
                          "CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION"_s;
    const QString negative =
        MvPageFixture::defaultCells() + u"<cell type='%1' paddingleft='14' paddingright='-300'><font family='%2' "
                                        "pointsize='9'/></cell>"_s.arg(types, MvBoxFont::family());
    for (const QString &info : {heads, inFront, heads + u", calendar_render_days_of_week_short"_s}) {
        MvPageFixture page(MvPageFixture::appearance(info, negative, u"CALENDAR_ONE_COLUMN_PER_WEEK"_s),
                           QDate(2027, 5, 1), 0);
        for (const double width : {2000.0, 500.0, 300.0, 190.0, 60.0}) {
            const QStringList texts = textsOf(page.render({100, 0, width, 1400}));
            const bool isNamed = texts.contains(u"Mo"_s) || texts.contains(u"M"_s);
            const double head =
                weeks(page).widthOfCell({100, 0, width, 1400}, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, QDate(2027, 5, 1));
            QVERIFY(isNamed ? head > 0.0 : head == 0.0);
            QVERIFY(isNamed || width < 300.0);
            QVERIFY(page.days.constFirst().rect.left() >= 100.0 + head - 1e-6);
            QVERIFY(page.days.constLast().rect.right() <= 100.0 + width + 1e-6);
            for (qsizetype day = 7; day < page.days.size(); ++day)
                QVERIFY(page.days.at(day).rect.left() > page.days.at(day - 7).rect.right() - 1e-6);
        }
    }
}

void tst_MvCalendariumRendererOneColumnPerWeek::printsWeeksHeadsAndDays()
{
    MvPageFixture page(columns(heads), QDate(2027, 1, 1), FEATURE_CALENDAR_WEEKS);
    const QStringList texts = textsOf(page.render({0, 0, 2800, 1700}));
    // the first column holds week 53 and three days of January beside seven weekdays
    QCOMPARE(texts.mid(0, 11), (QStringList{u"53"_s, u"Mo"_s, u"Di"_s, u"Mi"_s, u"Do"_s, u"Fr"_s, u"1"_s, u"Sa"_s,
                                            u"2"_s, u"So"_s, u"3"_s}));
    QCOMPARE(texts.mid(11, 3), (QStringList{u"1"_s, u"Mo"_s, u"4"_s})); // then comes week 1
    QCOMPARE(texts.size(), 5 + 5 * 7 + 31);
}

void tst_MvCalendariumRendererOneColumnPerWeek::weeksWithoutNumbersKeepTheirCell()
{
    MvCalendariumAppearance appearance = columns(plain + u", calendar_render_week_of_year"_s);
    appearance.setCellColor(
        Qt::magenta, {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, MvParityLogicEnum::both});
    MvPageFixture page(appearance, QDate(2027, 2, 1), 0); // the layout's own wish does not count
    const MvPaintRecording recording = page.render({0, 0, 2800, 1400});
    QCOMPARE(textsOf(recording).size(), 28);
    for (const double x : {10.0, 710.0, 2790.0})
        QCOMPARE(fillAt(recording.items(), {x, 40}), QColor(Qt::magenta).name());
}

void tst_MvCalendariumRendererOneColumnPerWeek::neighbouringMonthsAreEmpty()
{
    for (const QString &info : {plain, inFront}) {
        MvPageFixture page(columns(info), QDate(2027, 4, 1), 1 | 2 | 8); // Labour Day follows on a Saturday
        const QRectF rect(0, 0, 2500, 1400);
        const MvPaintRecording recording = page.render(rect);
        const QRectF friday = page.days.constLast().rect;
        const QRectF labourDay = friday.translated(0, friday.height());
        QCOMPARE(fillAt(recording.items(), labourDay.center()), u"#00ff00"_s); // any Saturday
        for (const Item &text : recording.items(Item::Text))
            QVERIFY2(!labourDay.contains(text.bounds.center()), qPrintable(text.text));
    }
}

void tst_MvCalendariumRendererOneColumnPerWeek::weekdaysInFront()
{
    MvPageFixture page(columns(inFront), QDate(2027, 2, 1), FEATURE_CALENDAR_WEEKS);
    const QRectF rect(100, 50, 2800, 1400);
    const MvPaintRecording recording = page.render(rect);
    QCOMPARE(textsOf(recording).mid(0, 10),
             (QStringList{u"Mo"_s, u"Di"_s, u"Mi"_s, u"Do"_s, u"Fr"_s, u"Sa"_s, u"So"_s, u"5"_s, u"01"_s, u"02"_s}));
    const QList<Item> texts = recording.items(Item::Text);
    const double front = weeks(page).widthOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, QDate(2027, 2, 1));
    QCOMPARE(texts.at(0).baseline.x(), 100.0);
    QVERIFY(qAbs(texts.at(7).baseline.x() - (100 + front)) < 1e-6);
    QCOMPARE(texts.at(0).baseline.y(), page.days.at(0).rect.top() + 20); // ascent of 25 pixels
    QVERIFY(qAbs(page.days.at(0).rect.left() - (100 + front)) < 1e-6);
    QCOMPARE(fillAt(recording.items(), page.days.at(0).rect.center()), u"#dddddd"_s);
    QCOMPARE(fillAt(recording.items(), page.days.at(7).rect.center()), u"#eeeeee"_s);
}

void tst_MvCalendariumRendererOneColumnPerWeek::plainDaysKnowTheirHolidays()
{
    MvPageFixture page(columns(inFront), QDate(2027, 5, 1), 1 | 2 | 8);
    const MvPaintRecording recording = page.render({0, 0, 2800, 1750});
    QCOMPARE(textsOf(recording).size(), 7 + 31); // numbers alone, although there is room for names
    QCOMPARE(fillAt(recording.items(), page.days.at(5).rect.center()), u"#ff0000"_s);  // Ascension Day
    QCOMPARE(fillAt(recording.items(), page.days.at(17).rect.center()), u"#0000ff"_s); // Whitsun holidays

    MvPageFixture withNames(columns(plain), QDate(2027, 5, 1), 1 | 2 | 8);
    QVERIFY(textsOf(withNames.render({0, 0, 2800, 1750})).contains(u"Fronleichnam"_s));
}

void tst_MvCalendariumRendererOneColumnPerWeek::calendarWeeksFollowContentAndAppearance()
{
    const MvCalendarCellType week = CALENDAR_CELL_TYPE_WEEK_OF_YEAR;
    const auto isShown = [&week](MvCalendariumAppearance appearance, int features, bool override) {
        appearance.setOverrideShowCalendarWeek(override);
        MvPageFixture page(appearance, QDate(2027, 1, 1), features);
        const bool isConfigured = page.renderer().isConfigured(calendar_render_week_of_year);
        return isConfigured == page.renderer().usedCellTypes().contains(week) ? int(isConfigured) : -1;
    };
    const MvCalendariumAppearance asking = columns(plain + u", calendar_render_week_of_year"_s);
    QCOMPARE(isShown(asking, 0, false), 0);
    QCOMPARE(isShown(asking, FEATURE_CALENDAR_WEEKS, false), 1);
    QCOMPARE(isShown(columns(plain), FEATURE_CALENDAR_WEEKS, false), 1);
    QCOMPARE(isShown(columns(plain), 0, true), 1);
}

void tst_MvCalendariumRendererOneColumnPerWeek::minimumSizes()
{
    // always six weeks, although February has four
    const QDate february(2027, 2, 1);
    MvPageFixture days(columns(plain), february);
    QCOMPARE(days.renderer().minimumSizeHint(), QSize(int(6 * dayMaximum), int(plannedHeight)));
    MvPageFixture beside(columns(heads), february);
    QCOMPARE(beside.renderer().minimumSizeHint(),
             QSize(int(6 * (dayMaximum + headMaximum)), 8 * 32 + 6)); // heads' rows
    MvPageFixture front(columns(inFront), february);
    QCOMPARE(front.renderer().minimumSizeHint(), QSize(int(headMaximum + 6 * 32.75), 8 * 32 + 6));

    const QString wideWeeks = MvPageFixture::defaultCells() +
                              u"<cell type='CALENDAR_CELL_TYPE_WEEK_OF_YEAR' paddingleft='30' paddingright='40'>"
                              "<font family='MvBox' pointsize='9'/></cell>"_s;
    MvPageFixture padded(MvPageFixture::appearance(plain, wideWeeks, u"CALENDAR_ONE_COLUMN_PER_WEEK"_s), february);
    QCOMPARE(weeks(padded).minimumWidth(), 6 * (32.75 + 70) + 6 * 70.0); // paddings count once more
}

void tst_MvCalendariumRendererOneColumnPerWeek::describesItself()
{
    MvPageFixture page(columns(plain), QDate(2027, 2, 1), 0);
    QCOMPARE(page.renderer().abilities().toInt(), 30);
    QVERIFY(!page.renderer().rendersMonthInformation());
    QVERIFY(!page.renderer().hasOneHeaderPerDay());
    const QList<MvCalendarCellType> types = page.renderer().usedCellTypes();
    QCOMPARE(types.size(), 8); // heads are listed although none are shown
    QVERIFY(types.contains(MvCalendarCellType(CALENDAR_CELL_TYPE_HEAD_SUNDAY)));
    QVERIFY(!types.contains(MvCalendarCellType(CALENDAR_CELL_TYPE_TITLE)));
}

MV_TEST_MAIN(tst_MvCalendariumRendererOneColumnPerWeek)
#include "tst_MvCalendariumRendererOneColumnPerWeek.moc"

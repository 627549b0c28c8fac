// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvPageFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRendererYear.h"

using namespace Qt::StringLiterals;
using MvEntries::entry;

using Item = MvPaintRecording::Item;

namespace {

const QString gridInfo = u"calendar_render_title, calendar_render_year_long, calendar_render_month_long, "
                         "calendar_render_week_of_year, calendar_render_days_of_week, "
                         "calendar_render_days_of_week_short"_s;
const QString plannerInfo = gridInfo + u", calendar_render_days_of_week_only_in_front"_s;
const QRectF a4(100, 100, 2770, 1900);
const QRectF a2(100, 100, 5740, 4000);

MvPageFixture pageOf(const QString &info, const QDate &from, int months = 12, const QDate &shown = {})
{
    MvPageFixture page(MvPageFixture::appearance(info, MvPageFixture::defaultCells(), u"CALENDAR_YEAR"_s), from);
    page.renderer().setCalendarInformation(MvPageFixture::content(shown.isValid() ? shown : from),
                                           MvDateRange(from, from.addMonths(months).addDays(-1)));
    page.renderer().setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    return page;
}

const MvCalendariumRendererYear &yearOf(MvPageFixture &page)
{
    return dynamic_cast<const MvCalendariumRendererYear &>(page.renderer());
}

QMap<QDate, QRectF> cellsByDate(const MvPageFixture &page)
{
    QMap<QDate, QRectF> cells;
    for (const MvPageFixture::Day &day : page.days)
        cells.insert(day.date, day.rect);
    return cells;
}

QStringList textsIn(const MvPaintRecording &recording, const QRectF &cell)
{
    QStringList texts;
    for (const Item &item : recording.items(Item::Text)) {
        if (cell.contains(item.bounds.center()))
            texts.append(item.text);
    }
    return texts;
}

} // namespace

/// Twelve months on a page, as small grids and as a planner.
class tst_MvCalendariumRendererYear : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MvCalendarEventRegistry::instance().setEvents({}); }

    void arrangement_data();
    void arrangement();
    void titles_data() { MvRows<QDate, QString, QString, QString>().read(u"year-titles"_s); }
    void titles();
    void monthsOfTheCalendar_data() { MvRows<int, QDate, int, QDate>().read(u"months-of-years"_s); }
    void monthsOfTheCalendar();
    void shortMonthsWhereNarrow();
    void weekGivesWayToTexts();
    void weekIsReadableOnEveryGround();
};

void tst_MvCalendariumRendererYear::arrangement_data()
{
    const MvRows<QSizeF, int> row; // size, columns
    row("A4 landscape", QSizeF(2770, 1900), 4);
    row("A4 upright", QSizeF(1900, 2770), 3);
    row("strip", QSizeF(6000, 500), 12);
    row("low strip below a photo", QSizeF(3000, 800), 6);
    row("narrow column", QSizeF(900, 2770), 2);
    row("bookmark", QSizeF(500, 6000), 1);
}

void tst_MvCalendariumRendererYear::arrangement()
{
    const auto [size, columns] = MvRows<QSizeF, int>::current();
    MvPageFixture page = pageOf(gridInfo, QDate(2027, 1, 1));
    page.render({QPointF(0, 0), size});
    // as painted: the lefts of the months' first Mondays
    QSet<int> lefts;
    for (const MvPageFixture::Day &day : std::as_const(page.days)) {
        if (day.date.dayOfWeek() == Qt::Monday)
            lefts.insert(qRound(day.rect.left()));
    }
    QCOMPARE(lefts.size(), columns);
}

void tst_MvCalendariumRendererYear::titles()
{
    const auto [from, info, headers, title] = MvRows<QDate, QString, QString, QString>::current();
    for (const bool hasTitle : {true, false}) {
        const QString flags = hasTitle ? info + u", calendar_render_title"_s : info;
        MvCalendariumAppearance appearance =
            MvPageFixture::appearance(flags, MvPageFixture::defaultCells(), u"CALENDAR_YEAR"_s);
        appearance.setColumnHeaders(headers);
        MvPageFixture page(appearance, from);
        page.renderer().setCalendarInformation(MvPageFixture::content(from),
                                               MvDateRange(from, from.addMonths(12).addDays(-1)));
        QCOMPARE(MvPageFixture::texts(page.render(a4)).contains(title), hasTitle);
        QCOMPARE(yearOf(page).titleRect(a4).height() > 0.0, hasTitle);
    }
}

void tst_MvCalendariumRendererYear::monthsOfTheCalendar()
{
    const auto [months, shown, offset, first] = MvRows<int, QDate, int, QDate>::current();
    MvCalendariumAppearance appearance =
        MvPageFixture::appearance(gridInfo, MvPageFixture::defaultCells(), u"CALENDAR_YEAR"_s);
    appearance.setOffsetMonth(offset);
    MvPageFixture page(appearance, shown);
    const QDate from(2026, 8, 1);
    page.renderer().setCalendarInformation(MvPageFixture::content(shown),
                                           MvDateRange(from, from.addMonths(months).addDays(-1)));
    page.render(a4);
    QCOMPARE(cellsByDate(page).firstKey(), first);
    QCOMPARE(cellsByDate(page).lastKey(), yearOf(page).firstMonth().addMonths(12).addDays(-1));
}

void tst_MvCalendariumRendererYear::shortMonthsWhereNarrow()
{
    MvPageFixture page = pageOf(plannerInfo, QDate(2027, 1, 1));
    QVERIFY(MvPageFixture::texts(page.render(a2)).contains(u"September"_s));
    const QStringList narrow = MvPageFixture::texts(page.render({0, 0, 1200, 3000})); // September needs 112.5
    QVERIFY(narrow.contains(u"Sep"_s));
    QVERIFY(narrow.contains(u"Jan"_s)); // all alike
    QVERIFY(!narrow.contains(u"Januar"_s));
    MvPageFixture untitled = pageOf(u"calendar_render_year_long, calendar_render_month_long"_s, QDate(2026, 8, 1));
    const QStringList named = MvPageFixture::texts(untitled.render(a2));
    QVERIFY(named.contains(u"August 2026"_s)); // nothing else tells the year
    QVERIFY(named.contains(u"Juli 2027"_s));
}

void tst_MvCalendariumRendererYear::weekGivesWayToTexts()
{
    const QDate monday(2027, 6, 14); // week 24
    const QRectF rect(0, 0, 12 * 275, 3400);
    const auto paintedOn = [&](const QString &name) {
        MvCalendarEventRegistry::instance().setEvents({entry(name, monday.addYears(-20))});
        MvPageFixture page = pageOf(plannerInfo, QDate(2027, 1, 1));
        const MvPaintRecording recording = page.render(rect);
        return textsIn(recording, cellsByDate(page).value(monday));
    };
    QVERIFY(paintedOn(u"Eva"_s).contains(u"24"_s));
    // 150 of the 275 for a word; 70 go to the number, 25 each to weekday and week, 10 are padding
    const QStringList painted = paintedOn(u"Kindergarten"_s);
    QVERIFY2(painted.contains(u"Kindergarten"_s), qPrintable(painted.join(u',')));
    QVERIFY(!painted.contains(u"24"_s));
    // what is cut all the same leaves it out as well, and is listed
    QVERIFY(!paintedOn(u"Donaudampfschifffahrtsgesellschaft"_s).contains(u"24"_s));
}

void tst_MvCalendariumRendererYear::weekIsReadableOnEveryGround()
{
    MvCalendariumAppearance appearance =
        MvPageFixture::appearance(plannerInfo, MvPageFixture::defaultCells(), u"CALENDAR_YEAR"_s);
    const auto weekColor = [&](const QColor &color) {
        appearance.setCellColor(
            color, {MvCalendarCellColorRoleEnum::textcolor, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, MvParityLogicEnum::both});
        MvPageFixture page(appearance, QDate(2027, 1, 1));
        const MvPaintRecording recording = page.render(a2);
        const QRectF cell = cellsByDate(page).value(QDate(2027, 6, 14));
        for (const Item &text : recording.items(Item::Text)) {
            if (text.text == u"24"_s && cell.contains(text.bounds.center()))
                return text.fill;
        }
        return QColor();
    };
    QCOMPARE(weekColor(QColor(u"#444444"_s)), QColor(u"#444444"_s));
    QCOMPARE(weekColor(QColor(u"#f0f0f0"_s)), QColor(u"#000000"_s)); // that of the day instead
}

MV_TEST_MAIN(tst_MvCalendariumRendererYear)
#include "tst_MvCalendariumRendererYear.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumRendererOneRow.h"

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

const QString title = u"calendar_render_title, calendar_render_month_long, calendar_render_year_long"_s;
const QString heads = u"calendar_render_days_of_week"_s;

MvCalendariumAppearance strip(const QString &info)
{
    return MvPageFixture::appearance(info, MvPageFixture::defaultCells(), u"CALENDAR_ONE_ROW"_s);
}

MvCalendariumRendererOneRow &row(MvPageFixture &page)
{
    return static_cast<MvCalendariumRendererOneRow &>(page.renderer());
}

QStringList textsOf(const MvPaintRecording &recording)
{
    QStringList texts;
    for (const Item &text : recording.items(Item::Text))
        texts.append(text.text);
    return texts;
}

} // namespace

class tst_MvCalendariumRendererOneRow : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void sharesTheHeight_data();
    void sharesTheHeight();
    void printsTitleHeadsAndNumbers();
    void headsFollowTheirDays();
    void narrowColumnsKeepTheirNumbers();
    void furtherRowsWhereNarrow();
    void titleHasNoBorder();
    void describesItself();
};

void tst_MvCalendariumRendererOneRow::sharesTheHeight_data()
{
    QTest::addColumn<QString>("info");
    QTest::addColumn<double>("titleHeight");
    QTest::addColumn<double>("headHeight");
    // planned: title and heads 25 * 1.27 + 1 = 32.75 each, numbers 84.5
    QTest::newRow("numbers alone") << QString() << 0.0 << 0.0;
    QTest::newRow("heads") << heads << 0.0 << 83.0; // 300 / 117.25 * 32.75 = 83.79
    QTest::newRow("title") << title << 83.0 << 0.0;
    QTest::newRow("title and heads") << title + u", "_s + heads << 65.0 << 65.0; // 300 / 150 * 32.75 = 65.5
}

void tst_MvCalendariumRendererOneRow::sharesTheHeight()
{
    QFETCH(QString, info);
    QFETCH(double, titleHeight);
    QFETCH(double, headHeight);
    MvPageFixture page(strip(info), QDate(2027, 5, 1));
    const QRectF rect(10, 20, 3100, 300);
    QCOMPARE(row(page).heightOfCell(rect, CALENDAR_CELL_TYPE_TITLE), titleHeight);
    QCOMPARE(row(page).heightOfCell(rect, CALENDAR_CELL_TYPE_HEAD_WEEKDAY), headHeight);
    QCOMPARE(row(page).heightOfCell(rect, CALENDAR_CELL_TYPE_WEEKDAY), 300.0 - titleHeight - headHeight);
    for (const MvCalendarCellTypeEnum other : {CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HEAD_SUNDAY,
                                               CALENDAR_CELL_TYPE_HOLIDAY, CALENDAR_CELL_TYPE_WEEK_OF_YEAR})
        QCOMPARE(row(page).heightOfCell(rect, other), 0.0);
    page.render(rect);
    QCOMPARE(page.days.constFirst().rect.top(), 20.0 + titleHeight + headHeight);
    QCOMPARE(page.days.constFirst().rect.bottom(), rect.bottom());
}

void tst_MvCalendariumRendererOneRow::printsTitleHeadsAndNumbers()
{
    MvPageFixture page(strip(title + u", "_s + heads), QDate(2027, 5, 1), 1 | 2 | 8);
    const MvPaintRecording recording = page.render({0, 0, 3100, 300});
    const QStringList texts = textsOf(recording);
    QCOMPARE(texts.mid(0, 7), (QStringList{u" Mai 2027"_s, u"Sa"_s, u"1"_s, u"So"_s, u"2"_s, u"Mo"_s, u"3"_s}));
    QCOMPARE(texts.size(), 1 + 2 * 31);
    const QList<Item> items = recording.items(Item::Text);
    QCOMPARE(items.at(5).baseline.x(), 200.0); // the head of the third day, without padding
    QCOMPARE(items.at(6).baseline.x(), 210.0);
    QVERIFY(items.at(5).bounds.bottom() < items.at(6).bounds.top());
    QVERIFY(page.renderer().unfittingTexts().isEmpty()); // names of holidays are none of a strip's matters

    MvPageFixture bare(strip(QString()), QDate(2027, 5, 1));
    QCOMPARE(textsOf(bare.render({0, 0, 3100, 300})).size(), 31);
}

void tst_MvCalendariumRendererOneRow::headsFollowTheirDays()
{
    MvCalendariumAppearance appearance = strip(heads);
    appearance.setCellColor(
        Qt::magenta, {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_HEAD_HOLIDAY, MvParityLogicEnum::both});
    appearance.setCellColor(
        Qt::cyan, {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, MvParityLogicEnum::even});
    const QRectF rect(0, 0, 3100, 300);
    const auto areaOf = [&](int features, const QColor &color) {
        MvPageFixture page(appearance, QDate(2027, 5, 1), features);
        for (const Item &item : page.render(rect).items()) {
            if (item.kind != Item::Text && item.fill == color)
                return item.shape;
        }
        return QPainterPath();
    };
    const QPointF ascensionHead(550, 10); // Thursday, 6 May
    const QPointF ascension(550, 200);
    QVERIFY(areaOf(1 | 2, Qt::magenta).contains(ascensionHead));
    QVERIFY(areaOf(1 | 2, Qt::red).contains(ascension));
    QVERIFY(areaOf(1, Qt::magenta).isEmpty());
    // rows of weeks alternate from the month's first one, which is odd; Monday the 3rd begins an even one
    QVERIFY(areaOf(0, QColor(u"#eeeeee"_s)).contains(QPointF(250, 200)));
    QVERIFY(areaOf(0, QColor(u"#dddddd"_s)).contains(QPointF(1050, 200))); // 11 May
    QVERIFY(areaOf(0, Qt::cyan).contains(QPointF(250, 10)));
    QVERIFY(!areaOf(0, Qt::cyan).contains(QPointF(1050, 10)));
}

void tst_MvCalendariumRendererOneRow::narrowColumnsKeepTheirNumbers()
{
    // numbers of two digits are 50 wide, heads and the title 25 a pair
    MvPageFixture page(strip(title + u", "_s + heads), QDate(2027, 2, 1), 0);
    page.render({0, 0, 28 * 50, 300});
    QVERIFY(page.renderer().unfittingTexts().isEmpty());

    const QStringList tight = textsOf(page.render({0, 0, 28 * 49, 300}));
    QVERIFY(tight.contains(u"10"_s)); // in smaller type
    QVERIFY(page.renderer().unfittingTexts().isEmpty());

    const QStringList lowTitle = textsOf(page.render({0, 0, 100, 300}));
    QCOMPARE(lowTitle.constFirst(), u" Februa…"_s); // 8 characters of 11.5
    QVERIFY(page.renderer().unfittingTexts().contains(
        MvUnfittingText{QDate(2027, 2, 1), u"Februar 2027"_s, QRectF(0, 0, 100, 65)}));
}

void tst_MvCalendariumRendererOneRow::furtherRowsWhereNarrow()
{
    // numbers need 30 in the smallest type: 22 columns, which makes two rows of 16
    const QRectF rect(50, 20, 670, 600);
    for (const QDate month : {QDate(2027, 2, 1), QDate(2027, 5, 1)}) {
        MvPageFixture page(strip(title + u", "_s + heads), month, 0);
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
    MvPageFixture low(strip(heads), QDate(2027, 5, 1), 0);
    low.render({0, 0, 670, 40});
    QCOMPARE(low.days.constFirst().rect.top(), low.days.constLast().rect.top());
}

void tst_MvCalendariumRendererOneRow::titleHasNoBorder()
{
    const QString framed = u"<cell type='CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_HEAD_WEEKDAY' "
                           "bordertype='CALENDAR_BORDER_ALL'/>"_s;
    MvPageFixture page(MvPageFixture::appearance(title, framed, u"CALENDAR_ONE_ROW"_s), QDate(2027, 5, 1));
    const MvCalendarCellType titleType = CALENDAR_CELL_TYPE_TITLE;
    const MvCalendarCellType headType = CALENDAR_CELL_TYPE_HEAD_WEEKDAY;
    QVERIFY(!page.renderer().shouldIPaintTheBorder({headType, titleType})); // the colour's type decides
    QVERIFY(page.renderer().shouldIPaintTheBorder({titleType, headType}));
    QVERIFY(page.render({0, 0, 3100, 300}).items(Item::Line).isEmpty());
}

void tst_MvCalendariumRendererOneRow::describesItself()
{
    MvPageFixture bare(strip(QString()), QDate(2027, 2, 1));
    // "Donnerstag" in boxes of 12.5 is 158.75 wide, "Samstag" 87.5 pixels rounded to 88, "Sonntag" alike; each + 1
    const double weekend = 88 * 1.27 + 1;
    QCOMPARE(bare.renderer().minimumSizeHint(), QSize(int(22 * 159.75 + 9 * weekend), 150)); // counts title and heads
    QVERIFY(bare.renderer().rendersMonthInformation());
    QVERIFY(bare.renderer().hasOneHeaderPerDay());
    QCOMPARE(bare.renderer().abilities().toInt(), 10);
    const QList<MvCalendarCellType> types = bare.renderer().usedCellTypes();
    QCOMPARE(types.size(), 11);
    for (const MvCalendarCellTypeEnum type : {CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_HEAD_HOLIDAY,
                                              CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION, CALENDAR_CELL_TYPE_HOLIDAY})
        QVERIFY(types.contains(MvCalendarCellType(type)));
}

MV_TEST_MAIN(tst_MvCalendariumRendererOneRow)
#include "tst_MvCalendariumRendererOneRow.moc"

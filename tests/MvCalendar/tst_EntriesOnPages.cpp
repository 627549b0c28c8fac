// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvPageFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventListSource.h"
#include "MvCalendar/MvCalendariumColorCellInfo.h"

using namespace Qt::StringLiterals;
using Item = MvPaintRecording::Item;

/// Entries of groups, with ages and of several days, as pages paint them.
class tst_EntriesOnPages : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void writesInTheColorOfTheGroup();
    void columnsTakeTheirGroups();
    void listsWriteEachEntryInItsColor();
    void barsRunThroughTheDays_data();
    void barsRunThroughTheDays();
    void barsWithoutRoomAreTold_data();
    void barsWithoutRoomAreTold();

private:
    struct Painted
    {
        MvPaintRecording recording;
        QList<MvPageFixture::Day> days;
        QList<MvUnfittingText> unfitting;
        QRectF cell(const QDate &date) const
        {
            for (const MvPageFixture::Day &day : days) {
                if (day.date == date)
                    return day.rect;
            }
            return {};
        }
        QList<Item> texts(const QString &text) const
        {
            QList<Item> found = recording.items(Item::Text);
            found.removeIf([&text](const Item &item) { return item.text != text; });
            return found;
        }
    };

    static Painted paint(const MvCalendarEventList &list, const QString &type, const MvEntryDisplay &display = {},
                         const QString &headers = {}, const QSizeF &size = {2800, 2000})
    {
        MvCalendariumAppearance appearance = MvPageFixture::appearance({}, MvPageFixture::defaultCells(), type);
        if (!headers.isEmpty())
            appearance.setColumnHeaders(headers.split(u','));
        const QDate month(2027, 3, 1);
        MvPageFixture page(appearance, month, FEATURE_HOLIDAYS | FEATURE_ENTRIES);
        MvCalendariumContentConfig content = MvPageFixture::content(month, FEATURE_HOLIDAYS | FEATURE_ENTRIES);
        content.setEntryDisplay(display);
        page.renderer().setCalendarInformation(content, MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
        const MvCalendarEventListSource source(list);
        MvRenderingSources sources;
        sources.entries = &source;
        page.renderer().setSources(sources);
        Painted painted{page.render(QRectF(QPointF(), size)), page.days, {}};
        painted.unfitting = page.renderer().unfittingTexts();
        return painted;
    }
};

void tst_EntriesOnPages::writesInTheColorOfTheGroup()
{
    MvCalendarEventList list{MvEntries::entry(u"Jörg"_s, {1967, 3, 24}), MvEntries::entry(u"Chor"_s, {2027, 3, 24})};
    const QString family = list.groups().idOfName(u"Familie"_s);
    list.groups()[0].color = QColor(0x2255aa);
    list.groups()[0].entryText = u"%name (%age)"_s;
    list[0].setGroups({family});
    const auto colorOf = [&](const QString &text) {
        const QList<Item> items = paint(list, u"CALENDAR_ONE_WEEK_PER_ROW"_s).texts(text);
        return items.size() == 1 ? items.first().fill : QColor();
    };
    QCOMPARE(colorOf(u"Chor"_s), QColor(Qt::black));
    const QColor own = colorOf(u"Jörg (60)"_s);
    QVERIFY(own.isValid() && own != QColor(Qt::black));
    list.groups()[0].color = Qt::yellow; // which nobody can read on grey
    const QColor readable = colorOf(u"Jörg (60)"_s);
    QVERIFY(readable.isValid() && readable != QColor(Qt::yellow));
    const Painted hidden = paint(list, u"CALENDAR_ONE_WEEK_PER_ROW"_s, {{family}, {}, false});
    QVERIFY(hidden.texts(u"Jörg (60)"_s).isEmpty() && hidden.texts(u"Chor"_s).size() == 1);
}

void tst_EntriesOnPages::columnsTakeTheirGroups()
{
    MvCalendarEventList list;
    const QString papa = list.groups().idOfName(u"Papa"_s);
    const QString mama = list.groups().idOfName(u"Mama"_s);
    const QString other = list.groups().idOfName(u"Verein"_s);
    list.groups()[0].color = QColor(0x0033aa);
    list.groups()[1].color = QColor(0xaa1100);
    list.groups()[1].symbol = u"*"_s;
    const QDate day(2027, 3, 26); // Good Friday
    for (const auto &[name, groups] : QList<std::pair<QString, QStringList>>{
             {u"Lauf"_s, {papa}}, {u"Kino"_s, {mama, papa}}, {u"Chor"_s, {other}}, {u"Arzt"_s, {}}}) {
        list.append(MvEntries::entry(name, day));
        list.last().setGroups(groups);
    }
    const Painted painted = paint(list, u"CALENDAR_ONE_DAY_PER_ROW"_s, {}, u"Alle,papa,Mama"_s);
    const QRectF first = painted.cell(day);
    const auto column = [&first](const Item &item) {
        return int((item.bounds.center().x() - first.left()) / first.width());
    };
    QMap<int, QString> columns;
    QMap<int, QSet<QRgb>> colors;
    for (const Item &item : painted.recording.items(Item::Text)) {
        if (item.bounds.center().y() > first.top() && item.bounds.center().y() < first.bottom() &&
            item.bounds.left() >= first.left()) {
            columns[column(item)] += item.text;
            colors[column(item)].insert(item.fill.rgb());
        }
    }
    QCOMPARE(columns.value(0), u"Karfreitag, Chor, Arzt"_s);
    QCOMPARE(columns.value(1), u"Lauf, Kino"_s);
    QCOMPARE(columns.value(2), u"* Kino"_s); // as its own group writes it
    QCOMPARE(colors.value(1).size(), 1);
    QCOMPARE(colors.value(2).size(), 1);
    QVERIFY(!colors.value(0).intersects(colors.value(1)) && colors.value(1) != colors.value(2));
}

/// On one line, each where it would stand in one colour.
void tst_EntriesOnPages::listsWriteEachEntryInItsColor()
{
    MvCalendarEventList list;
    const QDate day(2027, 3, 24);
    for (const QString &name : {u"Papa"_s, u"Mama"_s}) {
        const QString id = list.groups().idOfName(name);
        list.append(MvEntries::entry(u"Termin "_s + name, day));
        list.last().setGroups({id});
    }
    list.append(MvEntries::entry(u"Müll, gelb"_s, day));
    const auto inRow = [&] {
        const Painted painted = paint(list, u"CALENDAR_ONE_DAY_PER_ROW"_s);
        QList<Item> texts = painted.recording.items(Item::Text);
        texts.removeIf([cell = painted.cell(day)](const Item &item) { return !cell.contains(item.bounds.center()); });
        return texts;
    };
    const QList<Item> plain = inRow();
    QCOMPARE(plain.size(), 1);
    QCOMPARE(plain.first().text, u"Termin Papa, Termin Mama, Müll, gelb"_s);
    list.groups()[0].color = QColor(0x0033aa);
    list.groups()[1].color = QColor(0xaa1100);
    const QList<Item> colored = inRow();
    QCOMPARE(colored.size(), 3);
    QString joined;
    for (qsizetype i = 0; i < colored.size(); ++i) {
        joined += colored.at(i).text;
        QVERIFY(i == 0 || (colored.at(i).fill != colored.at(i - 1).fill &&
                           colored.at(i).bounds.left() > colored.at(i - 1).bounds.right()));
    }
    QCOMPARE(joined, plain.first().text);
    QVERIFY(qAbs(colored.last().bounds.right() - plain.first().bounds.right()) < 1.0);
}

void tst_EntriesOnPages::barsRunThroughTheDays_data()
{
    const MvRows<QString, bool, int, QSizeF> row; // type, isUpright, names, size
    const QSizeF usual(2800, 2000);
    row("grid", u"CALENDAR_ONE_WEEK_PER_ROW"_s, false, 3, usual);
    row("list", u"CALENDAR_ONE_DAY_PER_ROW"_s, true, 2, usual);
    row("columns of weeks", u"CALENDAR_ONE_COLUMN_PER_WEEK"_s, true, 3, usual);
    row("a strip as long as a poster", u"CALENDAR_ONE_ROW"_s, false, 2, QSizeF(5600, 900));
}

void tst_EntriesOnPages::barsRunThroughTheDays()
{
    const auto [type, isUpright, names, size] = MvRows<QString, bool, int, QSizeF>::current();
    // one goes on from February, one begins before it ends
    MvCalendarEventList list{MvEntries::entry(u"Reise"_s, {2027, 2, 26}, {}, false),
                             MvEntries::entry(u"Messe"_s, {2027, 3, 3}, {}, false)};
    list[0].setEndDate({2027, 3, 4});
    list[1].setEndDate({2027, 3, 9});
    const Painted painted = paint(list, type, {}, {}, size);
    QCOMPARE(int(painted.texts(u"Reise"_s).size() + painted.texts(u"Messe"_s).size()), names);

    QList<QRectF> bars; // of the first lane, then of the second
    for (const Item &item : painted.recording.items()) {
        const double thickness = std::min(item.bounds.width(), item.bounds.height());
        if (item.fill.isValid() && item.kind != Item::Text && thickness > 2.0 && thickness < 10.0)
            bars.append(item.bounds);
    }
    QCOMPARE(bars.size(), 4 + 7);
    for (const QRectF &bar : std::as_const(bars)) {
        const auto inCell = [&bar](const MvPageFixture::Day &day) {
            return day.rect.adjusted(-1, -1, 1, 1).contains(bar);
        };
        QCOMPARE(std::count_if(painted.days.cbegin(), painted.days.cend(), inCell), 1);
        for (const Item &text : painted.recording.items(Item::Text))
            QVERIFY(!text.bounds.intersects(bar));
    }
    // from day to day without a gap, in one lane
    const QRectF from = painted.cell({2027, 3, 2});
    const QRectF to = painted.cell({2027, 3, 3});
    const auto barIn = [&bars](const QRectF &cell) {
        const auto found = std::find_if(bars.cbegin(), bars.cend(),
                                        [&cell](const QRectF &bar) { return cell.contains(bar.center()); });
        return found == bars.cend() ? QRectF() : *found;
    };
    if (isUpright)
        QVERIFY(barIn(from).bottom() >= barIn(to).top() && barIn(from).left() == barIn(to).left());
    else
        QVERIFY(barIn(from).right() >= barIn(to).left() && qAbs(barIn(from).top() - barIn(to).top()) < 0.01);
}

void tst_EntriesOnPages::barsWithoutRoomAreTold_data()
{
    const MvRows<QSizeF, int> row; // size; drawn: bars in the cell of the middle day
    row("two lanes too many", QSizeF(2800, 2000), 4);
    row("low cells", QSizeF(2800, 560), 3);
}

/// As many lanes as there is room for; the entries of the others are named once on the page, whatever they last.
void tst_EntriesOnPages::barsWithoutRoomAreTold()
{
    const auto [size, drawn] = MvRows<QSizeF, int>::current();
    MvCalendarEventList list;
    for (int number = 1; number <= 6; ++number) {
        list.append(MvEntries::entry(QString(u'A'), {2027, 3, 1 + number}, {}, false));
        list.last().setEventName(QString::number(number) + u" unterwegs"_s);
        list.last().setEndDate({2027, 3, 20 + number});
    }
    const Painted painted = paint(list, u"CALENDAR_ONE_WEEK_PER_ROW"_s, {}, {}, size);
    const QRectF cell = painted.cell({2027, 3, 18});
    int bars = 0;
    for (const Item &item : painted.recording.items()) {
        const bool isBar = item.fill.isValid() && item.kind != Item::Text && item.bounds.height() < 10.0;
        bars += isBar && cell.contains(item.bounds.center()) ? 1 : 0;
    }
    QCOMPARE(bars, drawn);
    for (int number = 1; number <= 6; ++number) {
        const QString name = QString::number(number) + u" unterwegs"_s;
        const auto told = std::count_if(painted.unfitting.cbegin(), painted.unfitting.cend(),
                                        [&name](const MvUnfittingText &text) { return text.text == name; });
        QVERIFY2(number <= drawn || told >= 1, qPrintable(name));
        if (size.height() > 1000.0) // where every name has room
            QCOMPARE(told, number <= drawn ? 0 : 1);
    }
}

MV_TEST_MAIN(tst_EntriesOnPages)
#include "tst_EntriesOnPages.moc"

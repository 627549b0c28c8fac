// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvStudioFixture.h"

#include "pages/MvPageItem.h"

#include "MvGUIWidgets/MvColorPalettePopup.h"
#include "MvProject/MvProject.h"

using namespace Qt::StringLiterals;

namespace {

const QDate sunday(2027, 1, 10);
const QDate tuesday(2027, 1, 12); // of an even week
const QDate weekLater(2027, 1, 19);
const QDate newYear(2027, 1, 1); // a Friday

int rowOf(const QTableView *table, const QString &begin)
{
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        if (table->model()->index(row, 0).data().toString().startsWith(begin))
            return row;
    }
    return -1;
}

} // namespace

/// What the pages show and how they look: changed in the panels, seen on the page, taken back.
class tst_StudioDesignJourneys : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void holidaysOfACountry_data();
    void holidaysOfACountry();
    void coloursByKeyboard();
    void columnHeaders();
    void fonts();
    void layouts_data();
    void layouts();
    void paper();
    void onlyThisPage();

private:
    static bool showColors(const MvStudioFixture &studio);
};

bool tst_StudioDesignJourneys::showColors(const MvStudioFixture &studio)
{
    return studio.openSection("colorPanel") && studio.find("tableView") != nullptr;
}

void tst_StudioDesignJourneys::holidaysOfACountry_data()
{
    const MvRows<QString, QString, QDate, QString, bool> row; // country, region, date, holiday, isHoliday
    const QDate epiphany(2027, 1, 6);
    const QString kings = u"Heilige Drei Könige"_s;
    row("Bavaria has Epiphany", u"Deutschland"_s, u"Bayern"_s, epiphany, kings, true);
    row("Rhineland has not", u"Deutschland"_s, u"Nordrhein"_s, epiphany, kings, false);
    row("its national day", u"Österreich"_s, u"Tirol"_s, QDate(2027, 10, 26), u"Nationalfeiertag"_s, true);
}

void tst_StudioDesignJourneys::holidaysOfACountry()
{
    const auto [country, region, date, holiday, isHoliday] = MvRows<QString, QString, QDate, QString, bool>::current();
    MvStudioFixture studio;
    studio.window()->setCurrentPage(date.month() - 1);
    QVERIFY(studio.openSection("contentPanel"));
    if (!studio.find<QCheckBox>("publicHolidaysOnly")->isChecked())
        QVERIFY(studio.press("publicHolidaysOnly", Qt::Key_Space));
    const MvCalendarDocument before = studio.document(); // NOLINT(performance-unnecessary-copy-initialization)
    const QString regionBefore = studio.find<QComboBox>("provinceBox")->currentText();
    const int steps = studio.steps();
    QVERIFY(studio.choose("languageBox", country));
    QVERIFY(studio.choose("provinceBox", region));
    QCOMPARE(studio.datesWith(holiday), isHoliday ? QList<QDate>{date} : QList<QDate>());
    while (studio.steps() > steps)
        studio.undo();
    QVERIFY(studio.document() == before);
    QCOMPARE(studio.find<QComboBox>("provinceBox")->currentText(), regionBefore);
}

void tst_StudioDesignJourneys::coloursByKeyboard()
{
    MvStudioFixture studio;
    QVERIFY(showColors(studio));
    auto *table = studio.find<QTableView>("tableView");
    const QColor before = studio.cellColor(sunday);
    const QColor holidayBefore = studio.cellColor(newYear);
    QVERIFY(studio.press("tableView", Qt::Key_Home, Qt::ControlModifier));
    for (int row = 0; row < rowOf(table, u"Sonntag"_s); ++row)
        QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Right);
    QTest::keyClick(table, Qt::Key_Space);
    auto *palette = qobject_cast<MvColorPalettePopup *>(QApplication::activePopupWidget());
    QVERIFY(palette);
    for (int step = 0; step < 4; ++step)
        QTest::keyClick(palette->focusWidget(), Qt::Key_Down);
    QTest::keyClick(palette->focusWidget(), Qt::Key_Right);
    QTest::keyClick(palette->focusWidget(), Qt::Key_Return);
    const QColor after = studio.cellColor(sunday);
    QVERIFY(after.isValid());
    QVERIFY(after != before);
    QCOMPARE(studio.cellColor(tuesday) == after, false);

    auto *coupled = studio.find<QCheckBox>("holidaysLikeSundaysBox");
    const bool wasCoupled = coupled->isChecked();
    QCOMPARE(studio.cellColor(newYear), wasCoupled ? after : holidayBefore);
    QVERIFY(studio.press("holidaysLikeSundaysBox", Qt::Key_Space));
    QCOMPARE(coupled->isChecked(), !wasCoupled);
    QCOMPARE(studio.cellColor(newYear) == after, !wasCoupled);

    studio.undo();
    QCOMPARE(coupled->isChecked(), wasCoupled);
    studio.undo();
    QCOMPARE(studio.cellColor(sunday), before);
    QCOMPARE(studio.cellColor(newYear), holidayBefore);
    QCOMPARE(table->model()->index(rowOf(table, u"Sonntag"_s), 1).data(Qt::EditRole).value<QColor>() == after, false);
    studio.redo();
    QCOMPARE(studio.cellColor(sunday), after);
}

void tst_StudioDesignJourneys::columnHeaders()
{
    MvStudioFixture studio;
    QVERIFY(studio.openSection("columnHeadersPanel"));
    QVERIFY(studio.click(studio.window(), "chooseColumnsLayout")); // the layout of the start has none
    QVERIFY(studio.texts().contains(u"Mama"_s));
    const int columns = studio.find<QSpinBox>("countColumnsBox")->value();
    QVERIFY(studio.press("countColumnsBox", Qt::Key_Up));
    QCOMPARE(studio.find<QSpinBox>("countColumnsBox")->value(), columns + 1);
    QCOMPARE(studio.document().appearance().countColumns(), columns + 1); // without a name as yet

    auto *list = studio.find<QListView>("columnHeadersList");
    list->setFocus(Qt::TabFocusReason);
    list->setCurrentIndex(list->model()->index(columns, 0));
    QTest::keyClick(list, Qt::Key_F2);
    auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor);
    QTest::keyClicks(editor, u"Dackel"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QVERIFY(studio.texts().contains(u"Dackel"_s));
    studio.undo(); // with the column that was added a moment before
    QVERIFY(!studio.texts().contains(u"Dackel"_s));
    QCOMPARE(studio.find<QSpinBox>("countColumnsBox")->value(), columns);
    QVERIFY(studio.press("countColumnsBox", Qt::Key_Down));
    QVERIFY(!studio.texts().contains(u"Kind2"_s));
    QVERIFY(studio.texts().contains(u"Kind1"_s));
    studio.undo();
    QVERIFY(studio.texts().contains(u"Kind2"_s));
    QCOMPARE(list->model()->rowCount(), columns);
}

void tst_StudioDesignJourneys::fonts()
{
    MvStudioFixture studio;
    QVERIFY(studio.openSection("fontPanel"));
    const auto fontOf = [&studio](const QDate &date, const QString &text) {
        const QRectF rect = studio.page()->dateRect(date);
        for (const MvPaintRecording::Item &item : studio.items(MvPaintRecording::Item::Text)) {
            if (rect.contains(item.bounds.center()) && item.text.startsWith(text))
                return item.font;
        }
        return QFont();
    };
    const QFont number = fontOf(newYear, u"1"_s);
    QVERIFY(studio.press("holidayFontSizeBox", Qt::Key_Down));
    QCOMPARE(fontOf(newYear, u"1"_s), number);
    studio.undo();

    QVERIFY(studio.choose("fontFamilyBox", u"EB Garamond"_s));
    QCOMPARE(fontOf(newYear, u"1"_s).family(), u"EB Garamond"_s);
    QVERIFY(studio.click(studio.window(), "resetFont"));
    QCOMPARE(fontOf(newYear, u"1"_s).family(), number.family());
    studio.undo();
    QCOMPARE(fontOf(newYear, u"1"_s).family(), u"EB Garamond"_s);
    QVERIFY(studio.find<QComboBox>("fontFamilyBox")->currentText().startsWith(u"EB Garamond"_s));
}

void tst_StudioDesignJourneys::layouts_data()
{
    const MvRows<QString, int, int> row; // name, pages, days
    row("strip", u"Streifenkalender"_s, 12, 31);
    row("two weeks", u"Zwei Wochen je Zeile"_s, 12, 31);
    row("list", u"Tagesliste"_s, 12, 31);
    row("year overview", u"Jahresübersicht"_s, 1, 365);
    row("year planner", u"Jahresplaner"_s, 1, 365);
}

/// The day's text stays where the day goes.
void tst_StudioDesignJourneys::layouts()
{
    const auto [name, pages, days] = MvRows<QString, int, int>::current();
    MvStudioFixture studio;
    studio.window()->setCurrentPage(pages == 1 ? 5 : 0);
    QVERIFY(studio.openSection("layoutPanel"));
    auto *list = studio.find<QListWidget>("layoutList");
    QListWidgetItem *item = list->findItems(name, Qt::MatchExactly).value(0);
    QVERIFY(item);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    QCOMPARE(studio.document().pages().size(), pages);
    QCOMPARE(studio.window()->currentPage(), 0);
    const auto isOfThePage = [](const QDate &date) { return date.year() == 2027; };
    const QList<QDate> dates = studio.page()->dates();
    QVERIFY(std::count_if(dates.begin(), dates.end(), isOfThePage) >= days);
    studio.undo();
    QCOMPARE(studio.document().pages().size(), 12);
    QCOMPARE(list->currentItem()->text(), u"Monatsraster klassisch"_s);
    studio.redo();
    QCOMPARE(studio.document().pages().size(), pages);
    QCOMPARE(list->currentItem()->text(), name);
}

void tst_StudioDesignJourneys::paper()
{
    MvStudioFixture studio;
    QVERIFY(studio.openSection("contentPanel"));
    QCOMPARE(studio.page()->pageRect().size(), QSizeF(2970, 2100));
    QVERIFY(studio.choose("orientation", u"Hochformat"_s));
    QCOMPARE(studio.page()->pageRect().size(), QSizeF(2100, 2970));
    QVERIFY(studio.choose("paper", u"A3"_s));
    QCOMPARE(studio.page()->pageRect().size(), QSizeF(2970, 4200));
    QVERIFY(studio.press("monthCount", Qt::Key_Up));
    QCOMPARE(studio.document().pages().size(), 13);
    QVERIFY(studio.trigger("lastPage"));
    QCOMPARE(studio.page()->dates().contains(QDate(2028, 1, 1)), true);
    studio.undo();
    QCOMPARE(studio.document().pages().size(), 12);
    QCOMPARE(studio.window()->currentPage(), 11);
    while (studio.steps() > 0)
        studio.undo();
    QCOMPARE(studio.page()->pageRect().size(), QSizeF(2970, 2100));
    QCOMPARE(studio.find<QComboBox>("orientation")->currentText(), u"Querformat"_s);
}

void tst_StudioDesignJourneys::onlyThisPage()
{
    MvStudioFixture studio;
    QVERIFY(studio.openSection("contentPanel"));
    const auto config = [&studio](int page) {
        return studio.document().pages().at(page).contentConfig().holidayConfig();
    };
    const auto publicOnly = [&config](int page) { return config(page).hasFeatures(FEATURE_PUBLIC_HOLIDAYS_ONLY); };
    const auto fontSize = [&studio](int page) {
        return studio.document().pages().at(page).appearance().fontSettings().fontSizePercentage();
    };
    const bool before = publicOnly(0);
    QVERIFY(studio.click(studio.window(), "scopeCurrentPage"));
    QVERIFY(studio.trigger("nextPage"));
    QVERIFY(studio.press("publicHolidaysOnly", Qt::Key_Space));
    QVERIFY(studio.openSection("fontPanel"));
    QVERIFY(studio.press("fontSizeBox", Qt::Key_Up));
    MvCalendariumHolidayConfig expected = config(0); // what the panel does not show is as it was
    expected.setFeature(FEATURE_PUBLIC_HOLIDAYS_ONLY, !before);
    for (int page = 0; page < 12; ++page) {
        QVERIFY(config(page) == (page == 1 ? expected : config(0)));
        QCOMPARE(fontSize(page) > 0, page == 1);
    }
    QVERIFY(studio.openSection("contentPanel"));
    QVERIFY(studio.trigger("nextPage"));
    QCOMPARE(studio.find<QCheckBox>("publicHolidaysOnly")->isChecked(), before);
    QVERIFY(studio.click(studio.window(), "scopeAllPages"));
    QVERIFY(studio.press("publicHolidaysOnly", Qt::Key_Space));
    for (int page = 0; page < 12; ++page)
        QCOMPARE(publicOnly(page), !before);
    while (studio.steps() > 0)
        studio.undo();
    for (int page = 0; page < 12; ++page) {
        QCOMPARE(publicOnly(page), before);
        QCOMPARE(fontSize(page), 0);
    }
}

MV_WIDGET_TEST_MAIN(tst_StudioDesignJourneys)
#include "tst_StudioDesignJourneys.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvWidgetTest.h"

#include "MvGUIWidgets/MvColorDelegate.h"
#include "MvGUIWidgets/MvColorPalettePopup.h"
#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "MvGUIWidgets/MvColorSwatch.h"

using namespace Qt::StringLiterals;

namespace {

MvColorPalettePopup *openPalette()
{
    return qobject_cast<MvColorPalettePopup *>(QApplication::activePopupWidget());
}

/// Sends the key to what has the focus in the palette.
void press(MvColorPalettePopup *palette, Qt::Key key)
{
    QTest::keyClick(palette->focusWidget(), key);
}

/// Two rows of a name and a colour: white and another one.
struct ColorTable
{
    ColorTable()
    {
        model.setData(white(), QColor(Qt::white), Qt::EditRole);
        model.setData(model.index(1, 1), QColor(9, 8, 7), Qt::EditRole);
        view.setModel(&model);
        view.setItemDelegateForColumn(1, new MvColorDelegate(&view, true));
        view.show();
    }
    QModelIndex white() const { return model.index(0, 1); }

    QStandardItemModel model{2, 2};
    QTableView view;
};

} // namespace

/// The palette and the two widgets that open it.
class tst_MvColorChoosers : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { delete openPalette(); }

    void names_data();
    void names();
    void buttonChoosesByKeyboard();
    void buttonIsSilentWhenNothingChanges();
    void doubleClicksOpenOnce();
    void dialogDoesNotBlock();
    void cellOpensPalette_data();
    void cellOpensPalette();
    void cellsThatOpenNothing();
    void choiceOutlivesItsCell();
};

void tst_MvColorChoosers::names_data()
{
    const MvRows<QColor, QString> row; // color, name
    row("white", QColor(Qt::white), u"Weiß"_s);
    row("opaque", QColor(0xf6, 0xf2, 0xef), u"#F6F2EF"_s);
    row("translucent", QColor(0, 0, 0, 102), u"Schwarz, 40 % deckend"_s);
    row("transparent", QColor(255, 0, 0, 0), u"Durchsichtig"_s);
    row("invalid", QColor(), u"Durchsichtig"_s);
}

void tst_MvColorChoosers::names()
{
    const auto [color, name] = MvRows<QColor, QString>::current();
    QCOMPARE(MvColorSwatch::name(color), name);
}

void tst_MvColorChoosers::buttonChoosesByKeyboard()
{
    MvColorSelectionButton button(false);
    button.setColor(Qt::white);
    button.setUsedColors({});
    button.show();
    QSignalSpy changed(&button, &MvColorSelectionButton::colorChanged);
    QTest::keyClick(&button, Qt::Key_Return);
    QPointer<MvColorPalettePopup> palette = openPalette();
    QVERIFY(palette);
    QVERIFY(!palette->findChild<QWidget *>(u"transparentButton"_s)); // no alpha
    press(palette, Qt::Key_Right);                                   // from white, where it starts
    press(palette, Qt::Key_Down);
    press(palette, Qt::Key_Return);
    const QColor expected = MvColorPalettePopup::tints().at(MvColorPalettePopup::columns + 1);
    QCOMPARE(button.color(), expected);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(button.accessibleDescription(), MvColorSwatch::name(expected));
    QTRY_VERIFY(!palette); // deletes itself
}

void tst_MvColorChoosers::buttonIsSilentWhenNothingChanges()
{
    MvColorSelectionButton button(true);
    button.show();
    QSignalSpy changed(&button, &MvColorSelectionButton::colorChanged);
    button.setColor(Qt::white);
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(openPalette());
    press(openPalette(), Qt::Key_Escape);
    QVERIFY(!openPalette());
    QTest::mouseClick(&button, Qt::LeftButton);
    press(openPalette(), Qt::Key_Space); // the colour it has
    QVERIFY(!openPalette());
    QVERIFY(changed.isEmpty());
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseClick(openPalette()->findChild<QPushButton *>(u"transparentButton"_s), Qt::LeftButton);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(button.color().alpha(), 0);
}

void tst_MvColorChoosers::doubleClicksOpenOnce()
{
    const int usual = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(200);
    MvColorSelectionButton button(true);
    button.show();
    QTest::mouseClick(&button, Qt::LeftButton);
    const QPointer<MvColorPalettePopup> palette = openPalette();
    QVERIFY(palette);
    QTest::mouseClick(palette, Qt::LeftButton, {}, QPoint(-5, -5)); // still on the button, as popups get it
    QVERIFY(palette && palette->isVisible());
    QTest::qWait(220);
    QTest::mouseClick(palette, Qt::LeftButton, {}, QPoint(-5, -5));
    QVERIFY(!palette || !palette->isVisible());
    QApplication::setDoubleClickInterval(usual);
}

void tst_MvColorChoosers::dialogDoesNotBlock()
{
    MvColorSelectionButton button(true);
    button.setColor(Qt::white);
    button.show();
    QSignalSpy changed(&button, &MvColorSelectionButton::colorChanged);
    for (const bool accept : {false, true}) {
        QTest::keyClick(&button, Qt::Key_F2);
        QTest::mouseClick(openPalette()->findChild<QPushButton *>(u"otherColorButton"_s), Qt::LeftButton);
        QPointer<QColorDialog> dialog = button.findChild<QColorDialog *>(); // reached only if nothing blocks
        QVERIFY(dialog);
        QVERIFY(dialog->testOption(QColorDialog::ShowAlphaChannel));
        dialog->setCurrentColor(QColor(1, 2, 3, 4));
        accept ? dialog->accept() : dialog->reject();
        QCOMPARE(button.color(), accept ? QColor(1, 2, 3, 4) : QColor(Qt::white));
        QCOMPARE(changed.size(), accept ? 1 : 0);
        QTRY_VERIFY(!dialog);
        QTRY_VERIFY(!button.findChild<MvColorPalettePopup *>());
    }
}

void tst_MvColorChoosers::cellOpensPalette_data()
{
    const MvRows<int> row; // key
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2})
        row(QKeySequence(key).toString(), key);
    row("click", 0);
}

void tst_MvColorChoosers::cellOpensPalette()
{
    const auto [key] = MvRows<int>::current();
    ColorTable table;
    QTableView &view = table.view;
    view.setEditTriggers(QAbstractItemView::AllEditTriggers);
    const QModelIndex cell = table.white();
    view.setCurrentIndex(cell);
    QVERIFY(!openPalette()); // moving through the cells opens nothing
    if (key)
        QTest::keyClick(&view, static_cast<Qt::Key>(key));
    else
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(cell).center());
    QVERIFY(openPalette());
    press(openPalette(), Qt::Key_Right); // the used colours come first: white, then the other one
    press(openPalette(), Qt::Key_Return);
    QCOMPARE(cell.data(Qt::EditRole).value<QColor>(), QColor(9, 8, 7));
}

void tst_MvColorChoosers::cellsThatOpenNothing()
{
    ColorTable table;
    table.model.item(0, 1)->setEditable(false);
    for (const int column : {0, 1}) { // another column, a fixed colour
        table.view.setCurrentIndex(table.model.index(0, column));
        QTest::keyClick(&table.view, Qt::Key_Return);
        QVERIFY(!openPalette());
    }
}

void tst_MvColorChoosers::choiceOutlivesItsCell()
{
    ColorTable table;
    table.view.setCurrentIndex(table.white());
    QTest::keyClick(&table.view, Qt::Key_F2);
    table.model.clear();
    table.model.setRowCount(1);
    table.model.setColumnCount(2);
    press(openPalette(), Qt::Key_Down);
    press(openPalette(), Qt::Key_Return);
    QVERIFY(!table.white().data(Qt::EditRole).isValid());
}

MV_WIDGET_TEST_MAIN(tst_MvColorChoosers)
#include "tst_MvColorChoosers.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendariumFontEditor.h"
#include "MvGUIWidgets/MvFontFamilyBox.h"
#include "MvModelBase/MvFontTester.h"

using namespace Qt::StringLiterals;

class tst_MvCalendariumFontEditor : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void typing_data();
    void typing();
    void foreignFamilyStays();
    void everyEditIsReportedOnce();
    void symbolsAreNoGoodFonts();
};

void tst_MvCalendariumFontEditor::typing_data()
{
    const MvRows<QString, QString, int> row; // typed, family, changes
    row("another family", u"lato"_s, u"Lato"_s, 1);
    row("the same", u"Caslon"_s, u"Caslon"_s, 0);
    row("no family", u"Laxo"_s, u"Caslon"_s, 0);
    row("nothing: the layout's", QString(), QString(), 1);
}

void tst_MvCalendariumFontEditor::typing()
{
    const auto [typed, family, changes] = MvRows<QString, QString, int>::current();
    MvFontFamilyBox box({u"Caslon"_s, u"Garamond"_s, u"Lato"_s});
    QCOMPARE(box.currentText(), QString());
    box.setFontFamily(u"Caslon"_s);
    QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
    box.lineEdit()->selectAll();
    QTest::keyClick(box.lineEdit(), Qt::Key_Delete);
    QTest::keyClicks(box.lineEdit(), typed);
    QTest::keyClick(box.lineEdit(), Qt::Key_Return);
    QCOMPARE(box.currentText(), family);
    QCOMPARE(static_cast<int>(changed.size()), changes);
}

void tst_MvCalendariumFontEditor::foreignFamilyStays()
{
    MvFontFamilyBox empty({});
    empty.setFontFamily(u"Nirgendwo"_s);
    QCOMPARE(empty.currentText(), u"Nirgendwo"_s);

    MvFontFamilyBox box({u"Caslon"_s, u"Lato"_s});
    box.setFontFamily(u"Lato"_s);
    QVERIFY(!box.isForeign());
    QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
    box.setFontFamily(u"Nirgendwo"_s);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(box.currentText(), u"Nirgendwo"_s);
    QVERIFY(box.isForeign());
    QVERIFY(box.accessibleDescription().contains(u"„Nirgendwo“"_s));
    box.setFontFamily(u"nirgendwo"_s); // the same once more
    QCOMPARE(box.count(), 3);
    box.setFontFamily(QString());
    QCOMPARE(box.currentIndex(), -1);
    QVERIFY(!box.isForeign());
}

void tst_MvCalendariumFontEditor::everyEditIsReportedOnce()
{
    MvCalendariumFontEditor editor;
    editor.setFontSettings({u"Nirgendwo"_s, 0, -50, QFont::Bold, QFont::AllUppercase, 2.0});
    QList<MvCalendariumFontSettings> reported;
    connect(&editor, &MvCalendariumFontEditor::fontSettingsChanged, this,
            [&reported](const MvCalendariumFontSettings &settings) { reported.append(settings); });
    const auto expect = [&](const QString &family, int size, int holidaySize) {
        const MvCalendariumFontSettings expected(family, size, holidaySize, QFont::Bold, QFont::AllUppercase, 2.0);
        return reported.size() == 1 && reported.takeFirst() == expected;
    };
    QTest::keyClick(editor.findChild<QSpinBox *>(u"fontSizeBox"_s), Qt::Key_Up);
    QVERIFY(expect(u"Nirgendwo"_s, 10, -50));
    QTest::keyClick(editor.findChild<QSpinBox *>(u"holidayFontSizeBox"_s), Qt::Key_Down);
    QVERIFY(expect(u"Nirgendwo"_s, 10, -60));
    auto *box = editor.findChild<MvFontFamilyBox *>();
    box->lineEdit()->selectAll();
    QTest::keyClick(box->lineEdit(), Qt::Key_Delete);
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QVERIFY(expect(QString(), 10, -60));
}

void tst_MvCalendariumFontEditor::symbolsAreNoGoodFonts()
{
    MvFontTester tester;
    QVERIFY(!tester.updateWasRun());
    tester.updateFonts();
    QVERIFY(tester.updateWasRun());
    const QStringList installed = QFontDatabase::families();
    const QStringList good = tester.goodFonts();
    int asked = 0;
    for (const QString &family : installed) {
        const bool isText = family == u"Lato"_s || family.startsWith(u"EB Garamond"_s);
        const bool isPictures = family.startsWith(u"D050000L"_s) || family.startsWith(u"Standard Symbols"_s);
        if (!isText && !isPictures)
            continue;
        QVERIFY2(good.contains(family) == isText, qPrintable(family));
        ++asked;
    }
    if (asked == 0)
        QSKIP("none of the fonts that are known is installed");
}

MV_WIDGET_TEST_MAIN(tst_MvCalendariumFontEditor)
#include "tst_MvCalendariumFontEditor.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvWidgetTest.h"

#include "MvGUIWidgets/MvFontFamilyBox.h"

using namespace Qt::StringLiterals;

class tst_MvFontFamilyBox : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void typing_data();
    void typing();
    void foreignFamilyStays();
    void foreignFamilyInAnEmptyList();
};

void tst_MvFontFamilyBox::typing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("changes");
    QTest::newRow("another family") << u"lato"_s << u"Lato"_s << 1;
    QTest::newRow("the same") << u"Caslon"_s << u"Caslon"_s << 0;
    QTest::newRow("no family") << u"Laxo"_s << u"Caslon"_s << 0;
    QTest::newRow("nothing: the layout's") << QString() << QString() << 1;
}

void tst_MvFontFamilyBox::typing()
{
    QFETCH(QString, typed);
    MvFontFamilyBox box({u"Caslon"_s, u"Garamond"_s, u"Lato"_s});
    QCOMPARE(box.currentText(), QString());
    box.setFontFamily(u"Caslon"_s);
    QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
    box.lineEdit()->selectAll();
    QTest::keyClick(box.lineEdit(), Qt::Key_Delete);
    QTest::keyClicks(box.lineEdit(), typed);
    QTest::keyClick(box.lineEdit(), Qt::Key_Return);
    QTEST(box.currentText(), "family");
    QTEST(static_cast<int>(changed.size()), "changes");
}

void tst_MvFontFamilyBox::foreignFamilyStays()
{
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

void tst_MvFontFamilyBox::foreignFamilyInAnEmptyList()
{
    MvFontFamilyBox box({});
    QSignalSpy changed(&box, &QComboBox::currentIndexChanged);
    box.setFontFamily(u"Nirgendwo"_s);
    QCOMPARE(box.currentText(), u"Nirgendwo"_s);
    QCOMPARE(changed.size(), 1);
}

MV_WIDGET_TEST_MAIN(tst_MvFontFamilyBox)
#include "tst_MvFontFamilyBox.moc"

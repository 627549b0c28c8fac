// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTest.h"

#include "MvCore/MvSpaceMagnitude.h"

#include <QFont>

using namespace Qt::StringLiterals;

class tst_MvSpaceMagnitude : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void classOfPage_data();
    void classOfPage();
    void adaptsFonts_data();
    void adaptsFonts();
    void names();
};

void tst_MvSpaceMagnitude::classOfPage_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QString>("name");
    QTest::newRow("A4 upright") << 2100.0 << 2970.0 << u"a4"_s;
    QTest::newRow("A4 landscape") << 2970.0 << 2100.0 << u"a4"_s;
    QTest::newRow("A1") << 5940.0 << 8410.0 << u"a1"_s;
    QTest::newRow("square of 30 cm is nearer A4 than A3") << 2950.0 << 2950.0 << u"a4"_s;
    QTest::newRow("larger than A0 stays A0") << 20000.0 << 20000.0 << u"a0"_s;
    QTest::newRow("a stamp stays A8") << 200.0 << 200.0 << u"a8"_s;
    QTest::newRow("no area") << 0.0 << 2970.0 << QString();
}

void tst_MvSpaceMagnitude::classOfPage()
{
    QFETCH(double, width);
    QFETCH(double, height);
    QTEST(MvSpaceMagnitude::ofPage(width, height).encode(), "name");
}

void tst_MvSpaceMagnitude::adaptsFonts_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("pixels");
    QTest::newRow("same class") << 128 << 128 << 100;
    QTest::newRow("one step up") << 128 << 256 << 141;
    QTest::newRow("two steps up double") << 128 << 512 << 200;
    QTest::newRow("two steps down halve") << 128 << 32 << 50;
    QTest::newRow("no target") << 128 << 0 << 100;
}

void tst_MvSpaceMagnitude::adaptsFonts()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFont font;
    font.setPixelSize(100);
    QTEST(MvSpaceMagnitude(from).adaptFont(font, MvSpaceMagnitude(to)).pixelSize(), "pixels");
}

void tst_MvSpaceMagnitude::names()
{
    QCOMPARE(MvSpaceMagnitude(u" A3 "_s), MvSpaceMagnitude(MAGNITUDE_A3));
    QVERIFY(!MvSpaceMagnitude(u"letter"_s).isValid());
}

MV_TEST_MAIN(tst_MvSpaceMagnitude)
#include "tst_MvSpaceMagnitude.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTest.h"

#include "MvCore/MvAngle.h"

class tst_MvAngle : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void rotateRect_data();
    void rotateRect();
};

void tst_MvAngle::rotateRect_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QRectF>("turned");
    QTest::newRow("quarter turn") << 90.0 << QRectF(55, -15, 10, 90);
    QTest::newRow("the other way round") << 270.0 << QRectF(55, -15, 10, 90);
    QTest::newRow("negative") << -90.0 << QRectF(55, -15, 10, 90);
    QTest::newRow("upside down") << 180.0 << QRectF(15, 25, 90, 10);
    QTest::newRow("not at all") << 0.0 << QRectF(15, 25, 90, 10);
}

void tst_MvAngle::rotateRect()
{
    QFETCH(double, degrees);
    QTEST(MvAngle(degrees).rotateRect({15, 25, 90, 10}), "turned");
}

MV_TEST_MAIN(tst_MvAngle)
#include "tst_MvAngle.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTest.h"

#include "MvGUIWidgets/MvBubblePlacement.h"

using Side = MvBubblePlacement::Side;

/// Bubbles beside days, in windows of all sizes.
class tst_MvBubblePlacement : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void stands_data();
    void stands();
};

void tst_MvBubblePlacement::stands_data()
{
    QTest::addColumn<QRect>("target");
    QTest::addColumn<QRect>("room");
    QTest::addColumn<int>("side");
    QTest::addColumn<bool>("isCovering");
    const QRect window(0, 0, 1024, 600);
    QTest::newRow("at the left edge") << QRect(0, 250, 80, 60) << window << int(Side::Right) << false;
    QTest::newRow("at the right edge") << QRect(944, 250, 80, 60) << window << int(Side::Left) << false;
    QTest::newRow("in the upper left corner") << QRect(0, 0, 80, 60) << window << int(Side::Right) << false;
    QTest::newRow("in the lower right corner") << QRect(944, 540, 80, 60) << window << int(Side::Left) << false;
    QTest::newRow("as wide as the window, above") << QRect(0, 20, 1024, 60) << window << int(Side::Below) << false;
    QTest::newRow("as wide as the window, below") << QRect(0, 520, 1024, 60) << window << int(Side::Above) << false;
    QTest::newRow("a small window") << QRect(150, 90, 60, 40) << QRect(0, 0, 341, 200) << int(Side::Above) << true;
    QTest::newRow("half scrolled away") << QRect(-60, 580, 80, 60) << window << int(Side::Right) << false;
    QTest::newRow("scrolled away") << QRect(1100, 700, 80, 60) << window << int(Side::Left) << false;
    QTest::newRow("as large as the window") << window << window << int(Side::Below) << true;
}

void tst_MvBubblePlacement::stands()
{
    QFETCH(QRect, target);
    QFETCH(QRect, room);
    const QSize size(380, 300);
    const MvBubblePlacement placed = MvBubblePlacement::beside(target, size, room);
    QVERIFY(room.contains(placed.rect));
    QTEST(int(placed.side), "side");
    QTEST(placed.rect.intersects(target & room), "isCovering");
    QVERIFY(placed.rect.contains(placed.tip));
    const QRect bounds = placed.outline().boundingRect().toAlignedRect();
    QVERIFY(QRect(QPoint(), placed.rect.size()).contains(bounds));
    QVERIFY(placed.outline().contains(
        QRectF(QPointF(), QSizeF(placed.rect.size())).marginsRemoved(placed.margins()).center()));
    const bool isBeside = placed.side == Side::Right || placed.side == Side::Left;
    const QRect seen = target & room;
    if (seen.height() > 2 * MvBubblePlacement::arrowWidth && isBeside) // the arrow points at the day
        QVERIFY(placed.tip.y() >= seen.top() && placed.tip.y() <= seen.bottom());
}

MV_TEST_MAIN(tst_MvBubblePlacement)
#include "tst_MvBubblePlacement.moc"

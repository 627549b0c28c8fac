// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
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
    const MvRows<QRect, QRect, int, bool> row; // target, room, side, isCovering
    const QRect window(0, 0, 1024, 600);
    row("at the left edge", QRect(0, 250, 80, 60), window, int(Side::Right), false);
    row("at the right edge", QRect(944, 250, 80, 60), window, int(Side::Left), false);
    row("in the upper left corner", QRect(0, 0, 80, 60), window, int(Side::Right), false);
    row("in the lower right corner", QRect(944, 540, 80, 60), window, int(Side::Left), false);
    row("as wide as the window, above", QRect(0, 20, 1024, 60), window, int(Side::Below), false);
    row("as wide as the window, below", QRect(0, 520, 1024, 60), window, int(Side::Above), false);
    row("a small window", QRect(150, 90, 60, 40), QRect(0, 0, 341, 200), int(Side::Above), true);
    row("half scrolled away", QRect(-60, 580, 80, 60), window, int(Side::Right), false);
    row("scrolled away", QRect(1100, 700, 80, 60), window, int(Side::Left), false);
    row("as large as the window", window, window, int(Side::Below), true);
}

void tst_MvBubblePlacement::stands()
{
    const auto [target, room, side, isCovering] = MvRows<QRect, QRect, int, bool>::current();
    const QSize size(380, 300);
    const MvBubblePlacement placed = MvBubblePlacement::beside(target, size, room);
    QVERIFY(room.contains(placed.rect));
    QCOMPARE(int(placed.side), side);
    QCOMPARE(placed.rect.intersects(target & room), isCovering);
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

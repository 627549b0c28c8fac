// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvDayTextPlacement.h"

#include "MvBoxFont.h"
#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

/// In a font of 20 pixels every letter is 10 wide and every line 20 high; the number is seen 40 x 40 at one corner.
class tst_MvDayTextPlacement : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void places_data();
    void places();
    void leavesTheFotoItsRoom();
};

namespace {

MvDayCell cellOf(const QSizeF &size, Qt::Alignment number)
{
    const QRectF rect({100.0, 200.0}, size);
    const QRectF inner = rect.adjusted(10.0, 10.0, -10.0, -10.0);
    QRectF ink({inner.left(), inner.top() + 5.0}, QSizeF(40.0, 40.0));
    if (number & Qt::AlignBottom)
        ink.moveBottom(inner.bottom());
    return {rect, inner, number, 50.0, ink};
}

MvPlacedTexts placed(const MvDayCell &cell, const QStringList &texts)
{
    const MvTextFitter fitter(MvBoxFont::font(20), 14.0, MvHyphenator(MvLocale(u"de_DE"_s)));
    return MvDayTextPlacement(cell, fitter).place(texts);
}

} // namespace

void tst_MvDayTextPlacement::places_data()
{
    const MvRows<QSizeF, int, QStringList, QStringList, QStringList, bool, QStringList> row;
    const int top = Qt::AlignTop | Qt::AlignLeft;
    const int bottom = Qt::AlignBottom | Qt::AlignLeft;
    const int middle = Qt::AlignVCenter | Qt::AlignLeft;
    const QString oma = u"Oma Erika"_s;
    const QString max = u"Max"_s;
    const QStringList both{oma, max};
    const QStringList none;
    row("under the number", QSizeF(380, 300), top, both, none, both, false, none);
    row("over it", QSizeF(380, 300), bottom, QStringList{max}, QStringList{max}, none, false, none);
    row("around it", QSizeF(380, 300), middle, both, QStringList{oma}, QStringList{max}, false, none);
    row("low, one line", QSizeF(380, 96), top, QStringList{oma}, none, QStringList{oma}, false, none);
    row("low, two beside", QSizeF(380, 96), top, both, none, both, true, none);
    row("low, beside over the foot", QSizeF(380, 96), bottom, both, both, none, true, none);
    row("low, the line meets the number", QSizeF(200, 70), top, QStringList{u"Pfingstmontag"_s}, none,
        QStringList{u"Pfingstmontag"_s}, true, none);
    const QStringList aunt{u"Großtante Wilhelmine aus Berlin"_s};
    row("low, the line comes near the number", QSizeF(380, 89), top, aunt, none, aunt, true, none);
    row("narrow: divided under the number", QSizeF(120, 300), top, QStringList{u"Pfingstmontag"_s}, none,
        QStringList{u"Pfingstmon-"_s, u"tag"_s}, false, none);
    row("paddings give before", QSizeF(140, 300), top, QStringList{u"Pfingstmonta"_s}, none,
        QStringList{u"Pfingstmonta"_s}, false, none);
    const QStringList meeting{u"Mitgliederversammlung des Vereins"_s};
    row("no slivers beside the number", QSizeF(114, 70), top, meeting, none, none, false, meeting);
    const QStringList visit{u"Geburtstagsbesuch"_s};
    row("small rather than in pieces", QSizeF(140, 90), top, visit, none, visit, false, none);
    row("no room: each text is named", QSizeF(60, 62), top, both, none, none, false, both);
}

void tst_MvDayTextPlacement::places()
{
    const auto [size, number, texts, top, bottom, isBeside, cut] =
        MvRows<QSizeF, int, QStringList, QStringList, QStringList, bool, QStringList>::current();
    const MvDayCell cell = cellOf(size, Qt::Alignment(number));
    const MvPlacedTexts found = placed(cell, texts);
    QCOMPARE(found.top, top);
    QCOMPARE(found.bottom, bottom);
    QCOMPARE(found.text.cutTexts, cut);
    if (!found.text.lines.isEmpty())
        QCOMPARE(found.isBeside, isBeside);
    const QList<QRectF> inks = found.ink();
    for (const QRectF &ink : inks)
        QVERIFY(ink.isNull() || (cell.rect.contains(ink) && !ink.intersects(cell.numberInk)));
}

void tst_MvDayTextPlacement::leavesTheFotoItsRoom()
{
    MvDayCell cell = cellOf({380, 300}, Qt::AlignTop | Qt::AlignLeft);
    const MvPlacedTexts two = placed(cell, {u"Oma"_s, u"Max"_s});
    const QRectF rest = two.rest(cell.inner);
    QVERIFY(rest.bottom() < two.ink().at(1).top());
    QCOMPARE(rest.bottom(), cell.inner.bottom() - 2 * 20.0 - 5.0); // lines by their height, and a gap
}

MV_TEST_MAIN(tst_MvDayTextPlacement)
#include "tst_MvDayTextPlacement.moc"

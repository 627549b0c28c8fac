// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvTest.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainterPath>

using namespace Qt::StringLiterals;

class tst_MvBoxFont : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void measures_data();
    void measures();
    void boxes();
};

void tst_MvBoxFont::measures_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("bold");
    for (const int pixels : {10, 20, 33, 50, 127, 400}) {
        for (const bool bold : {false, true})
            QTest::addRow("%d %s", pixels, bold ? "bold" : "regular") << pixels << bold;
    }
}

void tst_MvBoxFont::measures()
{
    QFETCH(int, pixels);
    QFETCH(bool, bold);
    const QFont font = MvBoxFont::font(pixels, bold);
    QVERIFY(QFontInfo(font).exactMatch());
    const QFontMetricsF metrics(font);
    constexpr double sixtyFourth = 1.0 / 64.0; // what font metrics are rounded to
    const auto close = [](double measured, double expected) { return std::abs(measured - expected) <= sixtyFourth; };

    QVERIFY2(close(metrics.ascent(), 0.8 * pixels), QByteArray::number(metrics.ascent()));
    QVERIFY2(close(metrics.descent(), 0.2 * pixels), QByteArray::number(metrics.descent()));
    QVERIFY2(close(metrics.height(), pixels), QByteArray::number(metrics.height()));
    QVERIFY2(close(metrics.lineSpacing(), pixels), QByteArray::number(metrics.lineSpacing()));
    for (const QString &text :
         {u"A"_s, u" "_s, u"i"_s, u"ß"_s, u"Ž"_s, u"ſ"_s, u"–"_s, u"—"_s, u"…"_s, u"’"_s, u"„"_s, u"“"_s, u"”"_s})
        QVERIFY2(close(metrics.horizontalAdvance(text), 0.5 * pixels), qPrintable(text));
    QVERIFY(std::abs(metrics.horizontalAdvance(u"Donnerstag AVA"_s) - 7.0 * pixels) <= 14 * sixtyFourth);
}

void tst_MvBoxFont::boxes()
{
    QPainterPath path;
    path.addText(0, 0, MvBoxFont::font(100), u" x"_s);
    QCOMPARE(path.boundingRect(), QRectF(57.5, -70, 35, 70));
    path.clear();
    path.addText(0, 0, MvBoxFont::font(100, true), u" x"_s);
    QCOMPARE(path.boundingRect(), QRectF(52.5, -70, 45, 70));
}

MV_TEST_MAIN(tst_MvBoxFont)
#include "tst_MvBoxFont.moc"

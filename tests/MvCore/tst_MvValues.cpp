// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvCore/MvAngle.h"
#include "MvCore/MvSpaceMagnitude.h"
#include "MvCore/MvStringHelper.h"

#include <QFont>

using namespace Qt::StringLiterals;

/// The small values: angles, classes of pages, names.
class tst_MvValues : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void rotateRect();
    void classOfPage();
    void adaptsFonts();
    void names_data();
    void names();
};

void tst_MvValues::rotateRect()
{
    for (const double degrees : {90.0, 270.0, -90.0})
        QCOMPARE(MvAngle(degrees).rotateRect({15, 25, 90, 10}), QRectF(55, -15, 10, 90));
    for (const double degrees : {180.0, 0.0})
        QCOMPARE(MvAngle(degrees).rotateRect({15, 25, 90, 10}), QRectF(15, 25, 90, 10));
}

void tst_MvValues::classOfPage()
{
    const std::pair<QSizeF, QString> pages[] = {
        {{2970, 2100}, u"a4"_s},   {{2950, 2950}, u"a4"_s}, // nearer A4 than A3
        {{20000, 20000}, u"a0"_s}, {{200, 200}, u"a8"_s},   {{0, 2970}, QString()},
    };
    for (const auto &[size, name] : pages)
        QCOMPARE(MvSpaceMagnitude::ofPage(size.width(), size.height()).encode(), name);
    QCOMPARE(MvSpaceMagnitude(u" A3 "_s), MvSpaceMagnitude(MAGNITUDE_A3));
    QVERIFY(!MvSpaceMagnitude(u"letter"_s).isValid());
}

void tst_MvValues::adaptsFonts()
{
    QFont font;
    font.setPixelSize(100);
    for (const auto &[to, pixels] : {std::pair(128, 100), {256, 141}, {512, 200}, {32, 50}, {0, 100}})
        QCOMPARE(MvSpaceMagnitude(128).adaptFont(font, MvSpaceMagnitude(to)).pixelSize(), pixels);
}

void tst_MvValues::names_data()
{
    const MvRows<QString, QString> row; // text, name
    const QString pair = u"\U0001F388"_s;
    const QString family = u"\U0001F468\u200d\U0001F469"_s; // one character of five units
    const QString letters(MvStringHelper::longestName, u'x');
    row("as it is", u"Oma Erika & Co."_s, u"Oma Erika & Co."_s);
    row("lines and runs of blanks", u" \tOma\r\n\u2028Erika \u00a0 M. \u0085"_s, u"Oma Erika M."_s);
    row("control characters", u"\u0000Oma\u0007Erika\u009f"_s, u"Oma Erika"_s);
    row("halves of a pair", pair.right(1) + u"Oma"_s + pair.left(1) + pair + pair.left(1), u"Oma"_s + pair);
    row("no characters", u"Oma\uffff\ufdd0\U0001fffe"_s, u"Oma"_s);
    row("nothing to be seen", u"\u0001\u200b \ufeff\u3164\u2060\ufe0f\u2800"_s, QString());
    row("joined", family, family);
    row("the longest", letters, letters);
    row("too long", letters + u"y"_s, letters);
    row("ends before what does not fit whole", letters.chopped(1) + family, letters.chopped(1));
    row("ends without a blank", letters.chopped(1) + u" y"_s, letters.chopped(1));
    row("nothing but marks", u"a"_s + QString(1000, QChar(0x0301)),
        u"a"_s + QString(letters.size() - 1, QChar(0x0301)));
}

void tst_MvValues::names()
{
    const auto [text, name] = MvRows<QString, QString>::current();
    QCOMPARE(MvStringHelper::simplifiedName(text), name);
    QCOMPARE(MvStringHelper::simplifiedName(MvStringHelper::simplifiedName(text)),
             MvStringHelper::simplifiedName(text));
}

MV_TEST_MAIN(tst_MvValues)
#include "tst_MvValues.moc"

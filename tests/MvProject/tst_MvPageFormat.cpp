// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFileNamePattern.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPageSource.h"
#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

class tst_MvPageFormat : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsNames_data();
    void readsNames();
    void rectangles();
    void shapes_data();
    void shapes();
    void binding();
    void namesFiles_data();
    void namesFiles();
};

void tst_MvPageFormat::readsNames_data()
{
    const MvRows<QString, QSizeF, QString> row; // name; size: invalid: the name is not understood; magnitude
    row("A4", u"A4"_s, QSizeF(2100, 2970), u"a4"_s);
    row("case and blanks do not matter", u" a0 "_s, QSizeF(8410, 11890), u"a0"_s);
    row("smallest", u"A6"_s, QSizeF(1050, 1480), u"a6"_s);
    row("millimetres stay as they are turned", u"300x200"_s, QSizeF(3000, 2000), u"a4"_s);
    row("decimal comma and point", u"148,5X210.5"_s, QSizeF(1485, 2105), u"a5"_s);
    row("multiplication sign", u"300 × 300"_s, QSizeF(3000, 3000), u"a3"_s);
    row("centimetres", u"13x18cm"_s, QSizeF(1300, 1800), u"a5"_s);
    row("own centimetres", u"15,5 x 15 CM"_s, QSizeF(1550, 1500), u"a5"_s);
    row("letter", u"LETTER"_s, QSizeF(2159, 2794), u"a4"_s);
    row("legal", u"Legal"_s, QSizeF(2159, 3556), u"a4"_s);
    row("panorama", u"Panorama"_s, QSizeF(1485, 4200), u"a4"_s);
    row("unknown class", u"A7"_s, QSizeF(), QString());
    row("a class of another row", u"B4"_s, QSizeF(), QString());
    row("no height", u"300x"_s, QSizeF(), QString());
    row("three sides", u"300x200x100"_s, QSizeF(), QString());
    row("nothing", QString(), QSizeF(), QString());
    row("too small", u"10x200"_s, QSizeF(), QString());
    row("too large", u"300x3001"_s, QSizeF(), QString());
}

void tst_MvPageFormat::readsNames()
{
    const auto [name, size, magnitude] = MvRows<QString, QSizeF, QString>::current();
    const MvPageFormat format = MvPageFormat::fromName(name);
    QCOMPARE(format.isValid(), size.isValid());
    QCOMPARE(format.trimRect().isEmpty(), !size.isValid());
    if (size.isValid())
        QCOMPARE(format.trimSize(), size);
    QCOMPARE(format.magnitude().encodeCSV(), magnitude);
}

void tst_MvPageFormat::rectangles()
{
    MvPageFormat page = MvPageFormat::fromName(u"A4"_s);
    QCOMPARE(page.orientation(), MvPageFormat::Orientation::Portrait);
    page.setOrientation(MvPageFormat::Orientation::Landscape);
    page.setOrientation(MvPageFormat::Orientation::Landscape); // turning what is turned changes nothing
    QCOMPARE(page.trimRect(), QRectF(0, 0, 2970, 2100));
    QCOMPARE(page.mediaRect(), page.trimRect());
    QCOMPARE(page.contentRect(), QRectF(QPointF(110, 120), QPointF(2860, 1990)));

    page.setBleed(30);
    QCOMPARE(page.mediaRect(), QRectF(-30, -30, 3030, 2160));
    QCOMPARE(page.contentRect(), QRectF(QPointF(110, 120), QPointF(2860, 1990))); // the bleed moves nothing
    page.setBleed(-1);
    QCOMPARE(page.bleed(), 0.0);

    const QStringList names = MvPageFormat::names() << u"20x20"_s << u"20x3000"_s;
    for (const QString &name : names) {
        const MvPageFormat format = MvPageFormat::fromName(name);
        QVERIFY2(format.trimRect().adjusted(50, 50, -50, -50).contains(format.contentRect()), qPrintable(name));
        QVERIFY2(!format.contentRect().isEmpty(), qPrintable(name));
    }
}

void tst_MvPageFormat::shapes_data()
{
    const MvRows<QString, QString, QString> row; // name, upright, turned
    row("DIN", u"A4"_s, u"portrait"_s, u"landscape"_s);
    row("square", u"square-300"_s, u"square"_s, u"square"_s);
    row("nearly square", u"200x230"_s, u"square"_s, u"square"_s);
    row("letter", u"letter"_s, u"portrait"_s, u"landscape"_s);
    row("panorama", u"panorama"_s, u"narrow"_s, u"panorama"_s);
    row("two to one", u"100x200"_s, u"narrow"_s, u"panorama"_s);
}

void tst_MvPageFormat::shapes()
{
    const auto [name, upright, turned] = MvRows<QString, QString, QString>::current();
    MvPageFormat format = MvPageFormat::fromName(name);
    QCOMPARE(MvPageFormat::shapeName(format.shape()), upright);
    format.setOrientation(MvPageFormat::Orientation::Landscape);
    QCOMPARE(MvPageFormat::shapeName(format.shape()), turned);
}

/// Field, safe part and content rectangle leave out what the binding takes, on papers of every size.
void tst_MvPageFormat::binding()
{
    using Binding = MvPageFormat::Binding;
    MvPageFormat a4 = MvPageFormat::fromName(u"A4"_s);
    QCOMPARE(a4.fieldRect(), QRectF(87.5, 87.5, 1925, 2795));
    QCOMPARE(a4.fieldArea(1, 12, 1, 24), a4.fieldRect());
    QCOMPARE(a4.fieldArea(7, 7, 1, 1).left() - a4.fieldArea(6, 6, 1, 1).right(), a4.gutter());
    a4.setBinding(Binding::Top);
    QCOMPARE(a4.fieldRect().topLeft(), QPointF(87.5, 197.5));
    QCOMPARE(a4.safeRect(), QRectF(QPointF(30, 110), QPointF(2070, 2940)));

    const QStringList names = MvPageFormat::names() << u"20x20"_s << u"20x3000"_s;
    for (const QString &name : names) {
        for (const Binding binding : {Binding::None, Binding::Top, Binding::Left, Binding::Right}) {
            QCOMPARE(MvPageFormat::bindingFromName(MvPageFormat::bindingName(binding)), binding);
            MvPageFormat format = MvPageFormat::fromName(name);
            format.setBinding(binding);
            QVERIFY2(!format.fieldRect().isEmpty() && format.safeRect().contains(format.fieldRect()), qPrintable(name));
            QVERIFY2(!format.fieldArea(3, 3, 5, 5).isEmpty(), qPrintable(name));
            QVERIFY2(!format.contentRect().isEmpty(), qPrintable(name));
            QVERIFY2(!format.bindingRect().intersects(format.safeRect()), qPrintable(name));
            QVERIFY2(!format.bindingRect().intersects(format.contentRect()), qPrintable(name));
        }
    }
}

void tst_MvPageFormat::namesFiles_data()
{
    const MvRows<QString, int, QString> row; // pattern; months; last: empty: refused
    row("month", u"out/seite-%m.png"_s, 12, u"out/seite-07.png"_s);
    row("year and month", u"%y-%m.png"_s, 13, u"2027-08.png"_s);
    row("page number", u"%n.png"_s, 120, u"120.png"_s);
    row("one page needs none", u"blatt.png"_s, 1, u"blatt.png"_s);
    row("percent sign", u"100%%-%n.png"_s, 2, u"100%-02.png"_s);
    row("the folder's name is left alone", u"50%m/%n.png"_s, 2, u"50%m/02.png"_s);
    row("none for several pages", u"seite.png"_s, 12, QString());
    row("months come back", u"seite-%m.png"_s, 13, QString());
    row("unknown placeholder", u"%n-%d.png"_s, 2, QString());
    row("lone percent sign", u"%n.%"_s, 2, QString());
}

void tst_MvPageFormat::namesFiles()
{
    const auto [pattern, months, last] = MvRows<QString, int, QString>::current();
    MvPageSource source;
    for (int month = 0; month < months; ++month)
        source.pages.append(QDate(2026, 8, 1).addMonths(month));
    const MvFileNamePattern::Paths names = MvFileNamePattern(pattern).paths(source);
    QCOMPARE(names.paths.value(months - 1), last);
    QCOMPARE(names.error.contains(pattern), last.isEmpty()); // says which name it is about
    const MvFileNamePattern::Paths ofPart = MvFileNamePattern(pattern).paths(source.part({-1, months - 1, months}));
    QVERIFY(last.isEmpty() ||
            ofPart.paths == QStringList{last}); // the page's number stays, whatever is left of the pages
}

MV_TEST_MAIN(tst_MvPageFormat)
#include "tst_MvPageFormat.moc"

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
    void readsNames_data() { MvRows<QString, QSizeF, QString>().read(u"page-formats"_s); }
    void readsNames();
    void rectangles();
    void shapes_data();
    void shapes();
    void binding();
    void namesFiles_data() { MvRows<QString, int, QString>().read(u"page-file-names"_s); }
    void namesFiles();
};

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

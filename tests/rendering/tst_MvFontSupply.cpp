// SPDX-License-Identifier: LGPL-2.1-or-later
// Fonts that become known when they are asked for, beside those that are known from the start.
#include "MvBoxFont.h"
#include "MvPrintedPage.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvPaint/MvTextOutline.h"

#include <QFontDatabase>
#include <QRawFont>

using namespace Qt::StringLiterals;

namespace {

/// All faces that ship.
QList<QFont> faces()
{
    using Weights = QList<QFont::Weight>;
    const QList<std::tuple<QString, Weights, bool>> families{
        {u"EB Garamond"_s, {QFont::Normal, QFont::Bold}, true},
        {u"GFS Didot"_s, {QFont::Normal}, true},
        {u"Inter"_s, {QFont::Light, QFont::Normal, QFont::Bold}, false},
        {u"Lato"_s, {QFont::Light, QFont::Normal, QFont::Bold}, true},
        {u"League Spartan"_s, {QFont::Normal, QFont::Bold}, false},
        {u"Quicksand"_s, {QFont::Normal, QFont::Bold}, false},
        {u"TeX Gyre Pagella"_s, {QFont::Normal}, true},
        {u"Vollkorn"_s, {QFont::Normal, QFont::Bold}, false}};
    QList<QFont> faces;
    for (const auto &[family, weights, hasItalic] : families) {
        for (const QFont::Weight weight : weights)
            faces.append(QFont(family, 20, weight));
        if (hasItalic)
            faces.append(QFont(family, 20, QFont::Normal, true));
    }
    for (QFont &face : faces)
        face.setHintingPreference(QFont::PreferNoHinting); // as all that is printed
    return faces;
}

struct Seen
{
    QList<QPainterPath> outlines; // of the faces
    QStringList pages;            // of the layouts, with the ink of their texts
};

Seen look(const QList<QFont> &all)
{
    Seen seen;
    for (const QFont &face : all)
        seen.outlines.append(MvTextOutline(face, u"Hamburg 1234"_s).path());
    for (const MvCalendariumLayoutSchema &layout : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        MvPageChoice choice;
        choice.layout = layout.ID().toString();
        choice.paper = u"A4"_s;
        choice.month = QDate(2027, 5, 1);
        choice.region = u"BY"_s;
        const MvPrintedPage page(choice, {});
        QString text = page.describe();
        for (const MvPaintRecording::Item &item : page.items) {
            const QRectF ink = item.shape.controlPointRect();
            text += u"%1 %2 %3\n"_s.arg(ink.left()).arg(ink.width()).arg(ink.top());
        }
        seen.pages.append(text);
    }
    return seen;
}

bool isMadeKnownAlone(const QFont &font)
{
    return !MvFontSupply::fileOf(QRawFont::fromFont(font)).isEmpty();
}

} // namespace

class tst_MvFontSupply : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void asFromTheStart();
    void letters();
};

void tst_MvFontSupply::asFromTheStart()
{
    const QList<QFont> all = faces();
    const Seen before = look(all);
    for (const QFont &face : all)
        QVERIFY2(isMadeKnownAlone(face), qPrintable(face.toString()));
    const QFont quicksand(u"Quicksand"_s, 20);
    MvFontSupply::provide(quicksand, u"Ä–ő"_s); // it has them
    QVERIFY(isMadeKnownAlone(quicksand));

    MvFontSupply::provide(quicksand, u"Ж"_s);
    QVERIFY(!isMadeKnownAlone(quicksand));
    MvBoxFont::family(); // a font that comes: nothing is kept of what was measured
    const Seen after = look(all);
    for (qsizetype i = 0; i < all.size(); ++i)
        QVERIFY2(before.outlines.at(i) == after.outlines.at(i), qPrintable(all.at(i).toString()));
    QVERIFY(before.pages.size() > 20);
    QCOMPARE(before.pages, after.pages);
}

/// Of every language that is written in Latin letters and has a country whose holidays are known.
void tst_MvFontSupply::letters()
{
    const QString all = u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÑÒÓÔÕÖØÙÚÛÜÝàáâãäåæçèéêëìíîïñòóôõöøùúûüýÿßĀāĂăĄąĆćČčĎďĐđĒēĖėĘęĚěĞğĢģĪīĮįİıĶķĹ"
                        "ĺĻļĽľŁłŃńŅņŇňŐőŒœŔŕŘřŚśŞşŠšŢţŤťŪūŮůŰűŲųŹźŻżŽžȘșȚț„“”‚‘’«»–—…·€§°†*"_s;
    for (const QFont &face : faces()) {
        const QRawFont font = QRawFont::fromFont(face);
        QString missing;
        for (const QChar letter : all) {
            const bool isRomanian = letter == u'Ț' || letter == u'ț'; // the Didot leaves them to another font
            if (!font.supportsCharacter(letter) && !(isRomanian && face.family() == u"GFS Didot"))
                missing += letter;
        }
        QVERIFY2(missing.isEmpty(), qPrintable(face.family() + u' ' + face.styleName() + u": "_s + missing));
    }
}

int main(int argc, char **argv)
{
    MvFontSupply::makeOnDemand();
    return mvRunTest(argc, argv, []() -> QObject * { return new tst_MvFontSupply; });
}

#include "tst_MvFontSupply.moc"

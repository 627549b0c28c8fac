// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvTextFitter.h"

#include "MvBoxFont.h"
#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

/// In a font of 20 pixels every letter is 10 wide and every line 20 high.
class tst_MvTextFitter : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data();
    void fits();
    void running_data();
    void running();
    void oneLine_data();
    void oneLine();
};

namespace {
MvTextFitter fitter(double floor)
{
    return {MvBoxFont::font(20), floor, MvHyphenator(MvLocale(u"de_DE"_s))};
}
} // namespace

void tst_MvTextFitter::fits_data()
{
    const MvRows<QSizeF, double, QStringList, int, QStringList, bool> add;
    const QSizeF twoLines(130, 40);
    const auto row = [&](const char *name, const QSizeF &room, const QStringList &texts, int pixelSize,
                         const QStringList &lines, bool isCut = false,
                         double widestWord = 0.0) { add(name, room, widestWord, texts, pixelSize, lines, isCut); };
    row("stays as it is", twoLines, {u"Pfingstmontag"_s, u"Oma"_s}, 20, {u"Pfingstmontag"_s, u"Oma"_s});
    row("wraps", twoLines, {u"am Pfingstmontag"_s}, 20, {u"am"_s, u"Pfingstmontag"_s});
    const QString twelve = u"Oma "_s.repeated(12).trimmed();
    row("a line of many words", {500, 40}, {twelve + u" Oma"_s}, 20, {twelve, u"Oma"_s});
    row("divides the word that no line holds", {100, 60}, {u"am Pfingstmontag"_s}, 20,
        {u"am"_s, u"Pfingst-"_s, u"montag"_s});
    row("divides others where lines are scarce", {110, 40}, {u"am Pfingstmontag"_s}, 20,
        {u"am Pfingst-"_s, u"montag"_s});
    row("paddings give first", {100, 60}, {u"am Pfingstmontag"_s}, 20, {u"am"_s, u"Pfingstmontag"_s}, false, 130.0);
    row("then type", {100, 20}, {u"Pfingstmontag"_s}, 15, {u"Pfingstmontag"_s});
    row("smaller type has more lines", {100, 50}, {u"eins"_s, u"zwei"_s, u"drei"_s}, 16,
        {u"eins"_s, u"zwei"_s, u"drei"_s});
    row("an ellipsis at last", {60, 20}, {u"Pfingstmontag"_s}, 12, {u"Pfingstmo…"_s}, true);
    row("others left out", {60, 20}, {u"Pfingsten"_s, u"Oma"_s}, 12, {u"Pfingste…"_s}, true);
    row("nothing stands behind an ellipsis but other texts", {60, 40}, {u"xxxxxxxxxxxxxxxx am Tag"_s, u"Oma"_s}, 12,
        {u"xxxxxxxxx…"_s, u"Oma"_s}, true);
    row("no room for a line", {100, 10}, {u"Tag"_s}, 12, {}, true);
    row("blank", twoLines, {u"  "_s}, 20, {});
    row("soft hyphens are not seen", twoLines, {u"Ta\u00adge"_s}, 20, {u"Tage"_s});
    row("but divide", {80, 40}, {u"Pfing\u00adstmontag"_s}, 20, {u"Pfing-"_s, u"stmontag"_s});
    row("a word without end", {100, 24}, {u"Mai-"_s.repeated(2000)}, 12, {u"Mai-Mai-Mai-Mai-"_s, u"Mai-Mai-Mai-Mai…"_s},
        true);
    row("characters stay whole", {60, 20}, {u"xxxxxxxxe\u0301\u0301xxxxxxxx"_s}, 12, {u"xxxxxxxxe\u0301\u0301…"_s},
        true);
}

void tst_MvTextFitter::fits()
{
    const auto [room, widestWord, texts, pixelSize, lines, isCut] =
        MvRows<QSizeF, double, QStringList, int, QStringList, bool>::current();
    const MvFittedText fitted = fitter(12.0).fit(room, texts, widestWord);
    QCOMPARE(fitted.lines, lines);
    QCOMPARE(fitted.isCut, isCut);
    QCOMPARE(fitted.font.pixelSize(), pixelSize);
}

void tst_MvTextFitter::running_data()
{
    const MvRows<QSizeF, QStringList, QStringList> row; // room, lines, cutTexts
    const QString oma = u"Oma"_s;
    const QString eva = u"Eva Maria"_s;
    const QString max = u"Max"_s;
    // "Oma, Eva Maria, Max" has 19 letters of 6 in the smallest type
    row("one line", QSizeF(190, 20), QStringList{u"Oma, Eva Maria, Max"_s}, QStringList{});
    row("parted anywhere", QSizeF(100, 40), QStringList{u"Oma, Eva"_s, u"Maria, Max"_s}, QStringList{});
    row("the last one cut", QSizeF(110, 12), QStringList{u"Oma, Eva Maria, M…"_s}, QStringList{max});
    row("two whole, one gone", QSizeF(96, 12), QStringList{u"Oma, Eva Maria …"_s}, QStringList{max});
    row("one whole", QSizeF(80, 12), QStringList{u"Oma, Eva Mar…"_s}, QStringList{eva, max});
    row("none", QSizeF(80, 11), QStringList{}, QStringList{oma, eva, max});
    row("not even an ellipsis", QSizeF(5, 12), QStringList{}, QStringList{oma, eva, max});
}

void tst_MvTextFitter::running()
{
    const auto [room, lines, cutTexts] = MvRows<QSizeF, QStringList, QStringList>::current();
    const MvFittedText fitted = fitter(12.0).fitRunning(room, {u"Oma"_s, {}, u"Eva Maria"_s, u"Max"_s, {}}, u", "_s);
    QCOMPARE(fitted.lines, lines);
    QCOMPARE(fitted.cutTexts, cutTexts);
    QCOMPARE(fitted.isCut, !cutTexts.isEmpty());
}

void tst_MvTextFitter::oneLine_data()
{
    const MvRows<double, double, int, QString> row; // width, floor, pixelSize, line
    row("as it is", 130.0, 12.0, 20, u"Pfingstmontag"_s);
    row("smaller", 110.0, 12.0, 16, u"Pfingstmontag"_s);
    row("floor between two sizes", 80.0, 12.4, 13, u"Pfingstmont…"_s);
    row("floor above the font", 100.0, 30.0, 20, u"Pfingstmo…"_s);
}

void tst_MvTextFitter::oneLine()
{
    const auto [width, floor, pixelSize, line] = MvRows<double, double, int, QString>::current();
    const MvFittedText fitted = fitter(floor).fitLine(width, u"Pfingstmontag"_s);
    QCOMPARE(fitted.lines, QStringList{line});
    QCOMPARE(fitted.font.pixelSize(), pixelSize);
    QCOMPARE(fitted.isCut, line.endsWith(u'…'));
}

MV_TEST_MAIN(tst_MvTextFitter)
#include "tst_MvTextFitter.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFreshFolderTest.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvSheetPlan.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include <QPainter>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <algorithm>
#include <numeric>
#include <set>
#include <tuple>

using namespace Qt::StringLiterals;
using MvTestFiles::outputOf;

namespace {

constexpr int dpi = 254; // a dot for each tenth of a millimetre
const QSizeF a4(2100.0, 2970.0);

MvSheetSettings tiles(const QSizeF &paper)
{
    return {MvSheetSettings::Kind::Tiles, paper};
}

MvSheetSettings several(int perSheet, bool isForCutting, bool isTwoSided = false, double margin = 50.0)
{
    return {MvSheetSettings::Kind::Several, a4, margin, 0.0, perSheet, isForCutting, isTwoSided};
}

} // namespace

class tst_MvSheets : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void plans_data();
    void plans();
    void refused();
    void tilesCover();
    void stacks();
    void tilesLaidTogether();
    void severalInAFile();

private:
    /// Pages with a bleed of 3 mm.
    QString pdf(const QSizeF &page, int count, const MvSheetSettings &sheets);
    QImage picture(const QString &file, int page) const;
};

QString tst_MvSheets::pdf(const QSizeF &page, int count, const MvSheetSettings &sheets)
{
    MvPageSource source;
    source.format = MvPageFormat(page);
    source.format.setBleed(30.0);
    for (int number = 0; number < count; ++number) {
        source.pages.append(QDate(2027, 1 + number, 1));
        source.names.append(u"Seite %1"_s.arg(number + 1));
    }
    source.title = u"Poster"_s;
    source.paint = [](QPainter &painter, int number) { // fields of colours that differ everywhere
        for (int y = 0; y < 65; ++y)
            for (int x = 0; x < 65; ++x)
                painter.fillRect(QRect(x * 100 - 30, (y - number) * 100 - 30, 100, 100),
                                 QColor(x * 37 % 256, y * 53 % 256, (x + y) * 29 % 256, number == 0 ? 255 : 230));
    };
    const QString file = path(sheets.areSheets() ? u"sheets.pdf"_s : u"pages.pdf"_s);
    const MvExportResult result = MvPdfExporter::write(source, QFileInfo(file), nullptr, 1, {}, sheets);
    return result.isOk() && MvTestFiles::isSoundPdf(file) ? file : QString();
}

QImage tst_MvSheets::picture(const QString &file, int page) const
{
    const QString number = QString::number(page + 1);
    outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dpi), u"-png"_s, u"-singlefile"_s, u"-cropbox"_s, u"-f"_s, number,
                             u"-l"_s, number, file, path(u"seen"_s)});
    return QImage(path(u"seen.png"_s)).convertToFormat(QImage::Format_RGB32);
}

void tst_MvSheets::plans_data()
{
    const MvRows<MvSheetSettings, QSizeF, int, QSize, bool, int, double> row;
    const QSizeF a5(1480.0, 2100.0);
    row("A3 on A4", tiles(a4), {4200, 2970}, 12, {2, 2}, false, 48, 1.0);
    row("two landscapes above each other", several(2, false), {2970, 2100}, 13, {1, 2}, true, 7, 2000.0 / 2970.0);
    row("four", several(4, false), a4, 12, {2, 2}, true, 3, (2000.0 - 40.0) / 2.0 / 2100.0);
    row("to be cut, beside their marks", several(2, true), a5, 12, {2, 1}, false, 6, 1900.0 / 2100.0);
    row("to the edge", several(2, true, false, 0.0), a5, 12, {2, 1}, false, 6, 1.0);
}

void tst_MvSheets::plans()
{
    const auto [settings, page, pages, grid, isUpright, sheets, scale] =
        MvRows<MvSheetSettings, QSizeF, int, QSize, bool, int, double>::current();
    const MvSheetPlan plan(settings, page, pages);
    QCOMPARE(plan.error(), QString());
    QCOMPARE(QSize(plan.columns(), plan.rows()), grid);
    QCOMPARE(plan.sheet(), isUpright ? a4 : a4.transposed());
    QCOMPARE(plan.sheetCount(), sheets);
    QCOMPARE(plan.scale(), scale);
    const double margin = settings.margin;
    const QRectF printable = QRectF(QPointF(), plan.sheet()).adjusted(margin, margin, -margin, -margin);
    for (int sheet = 0; sheet < sheets; ++sheet) {
        QRectF all;
        for (const MvSheetPlan::Part &part : plan.parts(sheet)) {
            QVERIFY(printable.adjusted(-0.001, -0.001, 0.001, 0.001).contains(part.place));
            all |= part.place;
        }
        for (const QLineF &mark : plan.cutMarks(sheet) + plan.joinMarks(sheet)) {
            QVERIFY(printable.contains(mark.p1()) && printable.contains(mark.p2()));
            QVERIFY(margin == 0.0 || !all.contains(mark.p1()));
        }
    }
}

void tst_MvSheets::refused()
{
    const QSizeF page(2970.0, 2100.0); // no larger than the paper; with hardly any; with margins that leave none
    for (const MvSheetSettings &settings : {tiles(a4), tiles({500, 700}), several(2, false, false, 1100.0)}) {
        QVERIFY(MvSheetPlan(settings, page, 1).error().contains(u"Blatt"_s));
        QVERIFY(pdf(page, 1, settings).isEmpty() && !QFile::exists(path(u"sheets.pdf"_s)));
    }
}

/// Neighbours overlap as they are to, the poster is covered, and every tile is as large as the others.
void tst_MvSheets::tilesCover()
{
    constexpr double overlap = 100.0;
    for (const auto &[page, paper, last] : {std::tuple{QSizeF(5940, 8410), a4, u"C5 von C5"_s},
                                            {QSizeF(2000, 2990), a4, u"A2 von A2"_s},
                                            {QSizeF(30000, 1000), QSizeF(1050, 1480), u"AN1 von AN1"_s}}) {
        const MvLocale german(u"de_DE"_s);
        const MvSheetPlan plan(tiles(paper), page, 2);
        const int count = plan.columns() * plan.rows();
        QCOMPARE(plan.name(count - 1, german), last);
        QCOMPARE(plan.name(count, german), plan.name(0, german));
        const auto part = [&plan](int tile) { return plan.parts(tile).constFirst().part; };
        for (int tile = 0; tile < count; ++tile) {
            QCOMPARE(part(tile).size(), plan.parts(0).constFirst().place.size());
            if ((tile + 1) % plan.columns() != 0)
                QCOMPARE(part(tile).right() - part(tile + 1).left(), overlap);
            if (tile + plan.columns() < count)
                QCOMPARE(part(tile).bottom() - part(tile + plan.columns()).top(), overlap);
            const QList<QLineF> marks = plan.cutMarks(tile) + plan.joinMarks(tile);
            // the left edge, and the right one or the neighbour's, at both ends
            QCOMPARE(std::count_if(marks.begin(), marks.end(), [](const QLineF &mark) { return mark.dx() == 0.0; }), 4);
        }
        QCOMPARE(part(0).topLeft(), QPointF());
        QCOMPARE((part(count - 1).bottomRight() - QPointF(page.width(), page.height())).manhattanLength() + 1.0, 1.0);
    }
}

/// Prints, turns, cuts, and lays the stacks on each other: then the pages are in their order.
void tst_MvSheets::stacks()
{
    for (const auto &[perSheet, isTwoSided, pages] :
         {std::tuple{2, false, 13}, {4, false, 13}, {4, false, 1}, {2, true, 12}, {2, true, 13}, {4, true, 14}}) {
        const MvSheetPlan plan(several(perSheet, true, isTwoSided), {2970, 2100}, pages);
        const QSizeF cell(plan.sheet().width() / plan.columns(), plan.sheet().height() / plan.rows());
        QList<int> read;
        for (int stack = 0; stack < perSheet; ++stack) {
            const int row = stack / plan.columns();
            const QPointF place((stack % plan.columns() + 0.5) * cell.width(), (row + 0.5) * cell.height());
            const QPointF fromBehind(plan.sheet().width() - place.x(), place.y());
            for (int sheet = 0; sheet < plan.sheetCount(); ++sheet)
                for (const MvSheetPlan::Part &part : plan.parts(sheet))
                    if (part.place.contains(isTwoSided && sheet % 2 == 1 ? fromBehind : place))
                        read.append(part.page);
        }
        QList<int> all(pages);
        std::iota(all.begin(), all.end(), 0);
        QCOMPARE(read, all);
        QVERIFY(plan.sheetCount() * perSheet < pages + perSheet * (isTwoSided ? 2 : 1)); // none for nothing
    }
}

void tst_MvSheets::tilesLaidTogether()
{
    const QSizeF page(4200, 2970);
    const MvSheetPlan plan(tiles(a4), page, 1);
    const QImage whole = picture(pdf(page, 1, {}), 0).copy(30, 30, 4200, 2970); // without the bleed
    const QString file = pdf(page, 1, tiles(a4));
    QImage laid(whole.size(), QImage::Format_RGB32);
    laid.fill(Qt::white);
    QPainter painter(&laid);
    for (int sheet = plan.sheetCount() - 1; sheet >= 0; --sheet) {
        const MvSheetPlan::Part part = plan.parts(sheet).constFirst();
        const QImage tile = picture(file, sheet);
        painter.drawImage(part.part.topLeft().toPoint(), tile,
                          QRect(part.place.topLeft().toPoint(), part.place.size().toSize() - QSize(1, 1)));
        const QRect name(plan.nameRoom().topLeft().toPoint(), QSize(200, 26)); // something is written there
        QVERIFY(tile.copy(name) != tile.copy(name.translated(0, 40)));
    }
    painter.end();
    QPDF pdf;
    pdf.processFile(file.toLocal8Bit().constData());
    std::set<QPDFObjGen> contents; // of the page, between what places it and what stands beside it
    for (QPDFPageObjectHelper &tile : QPDFPageDocumentHelper(pdf).getAllPages())
        contents.insert(tile.getPageContents().at(1).getObjGen());
    QCOMPARE(int(contents.size()), 1);
    int different = 0; // in the middle of the fields: their edges lie between dots
    for (int y = 20; y < laid.height(); y += 50)
        for (int x = 20; x < laid.width(); x += 50)
            different += laid.pixel(x, y) != whole.pixel(x, y) ? 1 : 0;
    QCOMPARE(different, 0);
}

void tst_MvSheets::severalInAFile()
{
    const MvSheetSettings settings = several(2, true, true);
    const QSizeF page(2970, 2100);
    const QString file = pdf(page, 7, settings);
    const MvSheetPlan plan(settings, page, 7);
    const QImage sheet = picture(file, 0);
    const QString pages = pdf(page, 7, {});
    for (const MvSheetPlan::Part &part : plan.parts(0)) { // where each page's fields are, the bleed taken off
        const QImage shown = picture(pages, part.page);
        for (const QPoint place : {QPoint(120, 120), QPoint(1520, 1020), QPoint(2820, 1920)})
            QCOMPARE(sheet.pixel((part.place.topLeft() + QPointF(place) * plan.scale()).toPoint()),
                     shown.pixel(place + QPoint(30, 30)));
    }

    QPDF pdf;
    pdf.processFile(file.toLocal8Bit().constData());
    const auto sheets = QPDFPageDocumentHelper(pdf).getAllPages();
    QCOMPARE(int(sheets.size()), 4);
    QCOMPARE(pdf.getRoot().getKey("/ViewerPreferences").getKey("/Duplex").getName(),
             std::string("/DuplexFlipLongEdge"));
    QList<int> led; // where the bookmarks of the pages lead to
    for (QPDFObjectHandle item = pdf.getRoot().getKey("/Outlines").getKey("/First"); item.isDictionary();
         item = item.getKey("/Next")) {
        const auto target = item.getKey("/Dest").getArrayItem(0).getObjGen();
        for (int number = 0; number < int(sheets.size()); ++number)
            if (sheets[size_t(number)].getObjectHandle().getObjGen() == target)
                led.append(number);
    }
    QCOMPARE(led, (QList<int>{0, 1, 2, 3, 0, 1, 2}));
}

MV_TEST_MAIN(tst_MvSheets)
#include "tst_MvSheets.moc"

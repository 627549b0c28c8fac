// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvSheetPlan.h"
#include "MvTest.h"

#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int dpi = 254; // a dot for each tenth of a millimetre
const QSizeF a4(2100.0, 2970.0);

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

MvSheetSettings tiles(const QSizeF &paper)
{
    MvSheetSettings settings;
    settings.kind = MvSheetSettings::Kind::Tiles;
    settings.paper = paper;
    return settings;
}

MvSheetSettings several(int perSheet, bool isForCutting, bool isTwoSided = false, double margin = 50.0)
{
    MvSheetSettings settings;
    settings.kind = MvSheetSettings::Kind::Several;
    settings.perSheet = perSheet;
    settings.isForCutting = isForCutting;
    settings.isTwoSided = isTwoSided;
    settings.margin = margin;
    return settings;
}

/// Fields of colours that differ everywhere.
void paintFields(QPainter &painter, const QRectF &page)
{
    for (int y = 0; y * 100 < page.height(); ++y)
        for (int x = 0; x * 100 < page.width(); ++x)
            painter.fillRect(QRectF(page.left() + x * 100, page.top() + y * 100, 100, 100),
                             QColor(x * 37 % 256, y * 53 % 256, (x + y) * 29 % 256));
}

} // namespace

class tst_MvSheets : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void plans_data();
    void plans();
    void refused_data();
    void refused();
    void tilesCover_data();
    void tilesCover();
    void stacks_data();
    void stacks();
    void tilesLaidTogether();
    void severalInAFile();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    /// Pages with a bleed of 3 mm.
    QString pdf(const QSizeF &page, int count, const MvSheetSettings &sheets);
    QImage picture(const QString &file, int page) const;

    std::unique_ptr<QTemporaryDir> m_folder;
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
    source.paint = [area = source.format.mediaRect()](QPainter &painter, int number) {
        painter.setOpacity(number == 0 ? 1.0 : 0.9);
        paintFields(painter, area.translated(0, number * -100));
    };
    const QString file = path(sheets.areSheets() ? u"sheets.pdf"_s : u"pages.pdf"_s);
    const MvExportResult result = MvPdfExporter::write(source, QFileInfo(file), nullptr, 1, {}, sheets);
    return result.isOk() && outputOf(u"qpdf"_s, {u"--check"_s, file}).contains("No syntax") ? file : QString();
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
    QTest::addColumn<MvSheetSettings>("settings");
    QTest::addColumn<QSizeF>("page");
    QTest::addColumn<int>("pages");
    QTest::addColumn<QSize>("grid");
    QTest::addColumn<bool>("isUpright");
    QTest::addColumn<int>("sheets");
    QTest::addColumn<double>("scale");
    const QSizeF a5(1480.0, 2100.0);
    const auto row = [](const char *name, const MvSheetSettings &settings, const QSizeF &page, int pages,
                        const QSize &grid, bool isUpright, int sheets, double scale) {
        QTest::newRow(name) << settings << page << pages << grid << isUpright << sheets << scale;
    };
    row("A3 on A4", tiles(a4), {4200, 2970}, 12, {2, 2}, false, 48, 1.0);
    row("A2 on A4, turned", tiles(a4), {4200, 5940}, 1, {2, 4}, false, 8, 1.0);
    row("a banner", tiles(a4), {9000, 1500}, 1, {4, 1}, false, 4, 1.0);
    row("two landscapes above each other", several(2, false), {2970, 2100}, 13, {1, 2}, true, 7, 2000.0 / 2970.0);
    row("two uprights side by side", several(2, false), a4, 12, {2, 1}, false, 6, 2000.0 / 2970.0);
    row("four", several(4, false), a4, 12, {2, 2}, true, 3, (2000.0 - 40.0) / 2.0 / 2100.0);
    row("small ones stay as they are", several(4, false), {800, 800}, 4, {2, 2}, true, 1, 1.0);
    row("to be cut, beside their marks", several(2, true), a5, 12, {2, 1}, false, 6, 1900.0 / 2100.0);
    row("to the edge", several(2, true, false, 0.0), a5, 12, {2, 1}, false, 6, 1.0);
    row("leaves", several(2, true, true), a5, 13, {2, 1}, false, 8, 1900.0 / 2100.0);
}

void tst_MvSheets::plans()
{
    QFETCH(const MvSheetSettings, settings);
    QFETCH(const QSizeF, page);
    QFETCH(const int, pages);
    QFETCH(const QSize, grid);
    QFETCH(const bool, isUpright);
    QFETCH(const int, sheets);
    QFETCH(const double, scale);
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

void tst_MvSheets::refused_data()
{
    QTest::addColumn<MvSheetSettings>("settings");
    QTest::addColumn<QSizeF>("page");
    QTest::newRow("no larger than the paper") << tiles(a4) << QSizeF(2970, 2100);
    QTest::newRow("hardly any paper") << tiles({500, 700}) << QSizeF(2970, 2100);
    QTest::newRow("no paper beside the margins") << several(2, false, false, 1100.0) << QSizeF(2970, 2100);
}

void tst_MvSheets::refused()
{
    QFETCH(const MvSheetSettings, settings);
    QFETCH(const QSizeF, page);
    QVERIFY(MvSheetPlan(settings, page, 1).error().contains(u"Blatt"_s));
    QVERIFY(pdf(page, 1, settings).isEmpty() && !QFile::exists(path(u"sheets.pdf"_s)));
}

void tst_MvSheets::tilesCover_data()
{
    QTest::addColumn<QSizeF>("paper");
    QTest::addColumn<QSizeF>("page");
    QTest::addColumn<double>("overlap");
    QTest::addColumn<QString>("last"); // its name
    QTest::newRow("A1") << a4 << QSizeF(5940, 8410) << 100.0 << u"C5 von C5"_s;
    QTest::newRow("A0, glued edge to edge") << a4 << QSizeF(8410, 11890) << 0.0 << u"E5 von E5"_s;
    QTest::newRow("just more than a sheet") << a4 << QSizeF(2000, 2990) << 100.0 << u"A2 von A2"_s;
    QTest::newRow("a long banner") << a4 << QSizeF(30000, 1000) << 150.0 << u"L1 von L1"_s;
    QTest::newRow("more columns than letters")
        << QSizeF(1050, 1480) << QSizeF(30000, 1000) << 150.0 << u"AQ1 von AQ1"_s;
}

/// Neighbours overlap as they are to, the poster is covered, and every tile is as large as the others.
void tst_MvSheets::tilesCover()
{
    QFETCH(const QSizeF, paper);
    QFETCH(const QSizeF, page);
    QFETCH(const double, overlap);
    QFETCH(const QString, last);
    MvSheetSettings settings = tiles(paper);
    settings.overlap = overlap;
    const MvSheetPlan plan(settings, page, 2);
    const int count = plan.columns() * plan.rows();
    QCOMPARE(plan.sheetCount(), 2 * count);
    QCOMPARE(plan.name(count - 1), last);
    QCOMPARE(plan.name(count), plan.name(0));
    QRectF covered;
    for (int tile = 0; tile < count; ++tile) {
        const QRectF part = plan.parts(tile).constFirst().part;
        covered |= part;
        const bool hasRight = (tile + 1) % plan.columns() != 0;
        if (hasRight)
            QVERIFY(std::abs(part.right() - plan.parts(tile + 1).constFirst().part.left() - overlap) < 0.001);
        if (tile + plan.columns() < count)
            QVERIFY(std::abs(part.bottom() - plan.parts(tile + plan.columns()).constFirst().part.top() - overlap) <
                    0.001);
        QCOMPARE(part.size(), plan.parts(0).constFirst().place.size());
        constexpr int marksAcross = 4; // left edge, and the right one or the neighbour's, at both ends
        const QList<QLineF> all = plan.cutMarks(tile) + plan.joinMarks(tile);
        QCOMPARE(std::count_if(all.begin(), all.end(), [](const QLineF &line) { return line.dx() == 0.0; }),
                 marksAcross);
    }
    QVERIFY(std::abs(covered.width() - page.width()) < 0.001 && std::abs(covered.height() - page.height()) < 0.001);
}

void tst_MvSheets::stacks_data()
{
    QTest::addColumn<int>("perSheet");
    QTest::addColumn<bool>("isTwoSided");
    QTest::addColumn<int>("pages");
    for (const int pages : {1, 12, 13, 14}) {
        QTest::addRow("2, %d pages", pages) << 2 << false << pages;
        QTest::addRow("4, %d pages", pages) << 4 << false << pages;
        QTest::addRow("leaves of 2, %d pages", pages) << 2 << true << pages;
        QTest::addRow("leaves of 4, %d pages", pages) << 4 << true << pages;
    }
}

/// Prints, turns, cuts, and lays the stacks on each other: then the pages are in their order.
void tst_MvSheets::stacks()
{
    QFETCH(const int, perSheet);
    QFETCH(const bool, isTwoSided);
    QFETCH(const int, pages);
    const MvSheetPlan plan(several(perSheet, true, isTwoSided), {2970, 2100}, pages);
    const auto pageAt = [&](int sheet, const QPointF &place) {
        for (const MvSheetPlan::Part &part : plan.parts(sheet))
            if (part.place.contains(place))
                return part.page;
        return -1;
    };
    QList<int> read;
    for (int row = 0; row < plan.rows(); ++row) {
        for (int column = 0; column < plan.columns(); ++column) {
            const QPointF place((column + 0.5) * plan.sheet().width() / plan.columns(),
                                (row + 0.5) * plan.sheet().height() / plan.rows());
            const QPointF seenFromBehind(plan.sheet().width() - place.x(), place.y());
            for (int sheet = 0; sheet < plan.sheetCount(); ++sheet)
                read.append(pageAt(sheet, isTwoSided && sheet % 2 == 1 ? seenFromBehind : place));
        }
    }
    read.removeAll(-1);
    QCOMPARE(read.size(), pages);
    QVERIFY(std::is_sorted(read.begin(), read.end()) && read.constFirst() == 0 && read.constLast() == pages - 1);
    QVERIFY(plan.sheetCount() * perSheet < pages + perSheet * (isTwoSided ? 2 : 1)); // none for nothing
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
        const QRectF name = plan.nameRoom();
        int dark = 0;
        for (int x = int(name.left()); x < int(name.right()); ++x)
            dark += qGray(tile.pixel(x, int(name.top() + 18))) < 128 ? 1 : 0;
        QVERIFY2(dark > 20, qPrintable(QString::number(dark))); // something is written there
    }
    painter.end();
    int different = 0; // in the middle of the fields: their edges lie between dots
    for (int y = 20; y < laid.height(); y += 50)
        for (int x = 20; x < laid.width(); x += 50)
            different += laid.pixel(x, y) != whole.pixel(x, y) ? 1 : 0;
    QCOMPARE(different, 0);
}

void tst_MvSheets::severalInAFile()
{
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    const MvSheetSettings settings = several(2, true, true);
    const QSizeF page(2970, 2100);
    QFile once(pdf(page, 7, settings));
    QVERIFY(once.open(QIODevice::ReadOnly));
    const QByteArray bytes = once.readAll();
    QFile again(pdf(page, 7, settings));
    QVERIFY(again.open(QIODevice::ReadOnly) && again.readAll() == bytes);
    qunsetenv("SOURCE_DATE_EPOCH");

    const MvSheetPlan plan(settings, page, 7);
    const QImage sheet = picture(again.fileName(), 0);
    const QImage pages = picture(pdf(page, 7, {}), 0);
    for (const MvSheetPlan::Part &part : plan.parts(0)) { // where each page's fields are, the bleed taken off
        const QImage shown = part.page == 0 ? pages : picture(path(u"pages.pdf"_s), part.page);
        for (const QPoint place : {QPoint(120, 120), QPoint(1520, 1020), QPoint(2820, 1920)})
            QCOMPARE(sheet.pixel((part.place.topLeft() + QPointF(place) * plan.scale()).toPoint()),
                     shown.pixel(place + QPoint(30, 30)));
    }

    QPDF pdf;
    pdf.processFile(again.fileName().toLocal8Bit().constData());
    const auto sheets = QPDFPageDocumentHelper(pdf).getAllPages();
    QCOMPARE(int(sheets.size()), 4);
    QCOMPARE(pdf.getRoot().getKey("/ViewerPreferences").getKey("/Duplex").getName(),
             std::string("/DuplexFlipLongEdge"));
    QVERIFY(!pdf.getRoot().hasKey("/StructTreeRoot"));
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

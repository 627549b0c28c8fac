// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFreshFolderTest.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvPictureExporter.h"
#include "MvProject/MvSvgExporter.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include <QColorSpace>
#include <QDomDocument>
#include <QPainter>
#include <QSvgRenderer>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

using namespace Qt::StringLiterals;
using MvTestFiles::outputOf;

namespace {

/// Where pixels are dark, in tenths of a millimetre when the picture has 254 dots per inch.
QRect darkRect(const QImage &image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128)
                rect |= QRect(x, y, 1, 1);
    return rect;
}

} // namespace

class tst_MvExporters : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void pdfBoxes_data();
    void pdfBoxes();
    void pdfMetadata();
    void png();
    void svg();
    void svgIsClipped_data();
    void svgIsClipped();
    void paintsForPrint();
    void refuses();
    void failingTargets();

private:
    MvPageSource source(const QString &format, double bleed, int pages) const;
};

/// Pages with one black rectangle that lies 10 mm from the left and 20 mm from the top and measures 30 by 40 mm.
MvPageSource tst_MvExporters::source(const QString &format, double bleed, int pages) const
{
    MvPageSource source;
    source.format = MvPageFormat::fromName(format);
    source.format.setBleed(bleed);
    for (int page = 0; page < pages; ++page)
        source.pages.append(QDate(2027, 1, 1).addMonths(page));
    source.paint = [](QPainter &painter, int) { painter.fillRect(QRectF(100, 200, 300, 400), Qt::black); };
    source.title = u"Kalender <2027>\u0001& „Mühe“\n"_s; // a control would make its XML one that nobody reads
    source.author = u"Jürgen & <Söhne>"_s;
    return source;
}

void tst_MvExporters::pdfBoxes_data()
{
    // media: points, x and y of the lower left corner
    const MvRows<QString, double, QRectF, QRectF> add;
    // 1 mm is 72 / 25.4 = 2.834645669 points
    const auto row = [&](const QString &format, double bleed, const QRectF &media, const QRectF &trim) {
        add(format, format, bleed, media, trim);
    };
    row(u"A0"_s, 0.0, {0, 0, 2383.9370, 3370.3937}, {0, 0, 2383.9370, 3370.3937});
    row(u"A5"_s, 30.0, {0, 0, 436.5354, 612.2835}, {8.5039, 8.5039, 419.5276, 595.2756});
    row(u"300,5x200"_s, 0.0, {0, 0, 851.8110, 566.9291}, {0, 0, 851.8110, 566.9291});
}

void tst_MvExporters::pdfBoxes()
{
    const auto [format, bleed, media, trim] = MvRows<QString, double, QRectF, QRectF>::current();
    const MvExportResult result = MvPdfExporter::write(source(format, bleed, 12), QFileInfo(path(u"k.pdf"_s)));
    QCOMPARE(result.error, QString());
    QCOMPARE(files(), QStringList{u"k.pdf"_s});

    QPDF pdf;
    pdf.processFile(path(u"k.pdf"_s).toLocal8Bit().constData());
    const auto pages = QPDFPageDocumentHelper(pdf).getAllPages();
    QCOMPARE(pages.size(), size_t(12));
    const std::pair<const char *, QRectF> boxes[] = {{"/MediaBox", media}, {"/BleedBox", media}, {"/TrimBox", trim}};
    for (const QPDFPageObjectHelper &page : pages) {
        QPDFObjectHandle object = page.getObjectHandle();
        for (const auto &[name, expected] : boxes) {
            const QPDFObjectHandle::Rectangle box = object.getKey(name).getArrayAsRectangle();
            const QRectF actual(QPointF(box.llx, box.lly), QPointF(box.urx, box.ury));
            QVERIFY2(qAbs(actual.left() - expected.left()) < 0.01 && qAbs(actual.top() - expected.top()) < 0.01 &&
                         qAbs(actual.width() - expected.width()) < 0.01 &&
                         qAbs(actual.height() - expected.height()) < 0.01,
                     qPrintable(u"%1 %2 x %3"_s.arg(QLatin1StringView(name)).arg(actual.width()).arg(actual.height())));
        }
    }
    QVERIFY(MvTestFiles::isSoundPdf(path(u"k.pdf"_s)));
}

void tst_MvExporters::pdfMetadata()
{
    MvPageSource pages = source(u"A6"_s, 0, 2);
    pages.language = u"fr-CH"_s;
    qputenv("SOURCE_DATE_EPOCH", "1800000000");
    for (const QString &name : {u"k.pdf"_s, u"gleich.pdf"_s}) {
        QVERIFY(MvPdfExporter::write(pages, QFileInfo(path(name))).isOk());
        QTest::qWait(1100); // dates have seconds
    }
    qunsetenv("SOURCE_DATE_EPOCH");
    QVERIFY(contentOf(u"k.pdf"_s) == contentOf(u"gleich.pdf"_s));
    const QString info = QString::fromUtf8(outputOf(u"pdfinfo"_s, {u"-enc"_s, u"UTF-8"_s, path(u"k.pdf"_s)}));
    QVERIFY2(QRegularExpression(u"Title: +Kalender <2027> & „Mühe“\n"_s).match(info).hasMatch(), qPrintable(info));
    QVERIFY2(QRegularExpression(u"Author: +Jürgen & <Söhne>\n"_s).match(info).hasMatch(), qPrintable(info));
    QVERIFY2(QRegularExpression(u"Pages: +2\n"_s).match(info).hasMatch(), qPrintable(info));

    const QByteArray xmp = outputOf(u"pdfinfo"_s, {u"-meta"_s, path(u"k.pdf"_s)});
    QDomDocument document;
    QVERIFY2(document.setContent(xmp, true), xmp.constData());
    const auto textOf = [&document](const QString &name) {
        return document.elementsByTagNameNS(u"http://purl.org/dc/elements/1.1/"_s, name).at(0).toElement().text();
    };
    QCOMPARE(textOf(u"title"_s), u"Kalender <2027> & „Mühe“"_s);
    QCOMPARE(textOf(u"creator"_s), pages.author);

    QPDF pdf;
    pdf.processFile(path(u"k.pdf"_s).toLocal8Bit().constData());
    QCOMPARE(QString::fromStdString(pdf.getRoot().getKey("/Lang").getStringValue()), u"fr-CH"_s);
    QPDFObjectHandle intent = pdf.getRoot().getKey("/OutputIntents").getArrayItem(0);
    const std::shared_ptr<Buffer> profile = intent.getKey("/DestOutputProfile").getStreamData();
    const QByteArray bytes(reinterpret_cast<const char *>(profile->getBuffer()), qsizetype(profile->getSize()));
    QCOMPARE(QColorSpace::fromIccProfile(bytes).primaries(), QColorSpace::Primaries::SRgb);
}

void tst_MvExporters::png()
{
    QImage grain(500, 300, QImage::Format_RGB32);
    for (int y = 0; y < grain.height(); ++y)
        QRandomGenerator(quint32(y)).fillRange(reinterpret_cast<quint32 *>(grain.scanLine(y)), grain.width());
    MvPageSource pages = source(u"A4"_s, 0, 2);
    pages.paint = [black = pages.paint, grain](QPainter &painter, int page) {
        painter.fillRect(QRectF(2000, 2000, 100, 970), Qt::blue);
        painter.drawImage(QPointF(1000, 1200), grain);
        black(painter, page);
    };
    using Picture = std::tuple<int, QSize, QString>;
    for (const auto &[dpi, size, title] : {Picture(300, {2480, 3508}, u"Kalender Müller"_s),
                                           Picture(254, {2100, 2970}, u"Календарь"_s), // a pixel per unit of the page
                                           Picture(10, {83, 117}, QString())}) {
        pages.title = title;
        const MvExportResult result = MvPictureExporter::write(pages, path(u"s-%m.png"_s), dpi);
        QCOMPARE(result.error, QString());
        QCOMPARE(result.files, (QList<QFileInfo>{QFileInfo(path(u"s-01.png"_s)), QFileInfo(path(u"s-02.png"_s))}));
        QCOMPARE(files(), (QStringList{u"s-01.png"_s, u"s-02.png"_s}));

        const QImage image(path(u"s-02.png"_s));
        QCOMPARE(image.size(), size);
        QCOMPARE(qRound(image.dotsPerMeterX() * 0.0254), dpi);
        QCOMPARE(qRound(image.dotsPerMeterY() * 0.0254), dpi);
        QCOMPARE(image.colorSpace().primaries(), QColorSpace::Primaries::SRgb);
        QVERIFY(!image.hasAlphaChannel());
        QCOMPARE(image.text(u"Title"_s), title);
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        const QColor corner = image.pixelColor(size.width() - 1, size.height() - 1);
        QVERIFY(corner.red() <= 4 &&
                corner.blue() == 255); // not half a pixel: 1/64 is the rounding of the paint system
        if (dpi == 254) {
            QCOMPARE(darkRect(image.copy(0, 0, 1000, 1000)), QRect(100, 200, 300, 400));
            QImage copy = image.copy({{1000, 1200}, grain.size()});
            copy.setColorSpace({});
            QVERIFY(copy == grain);
        }
    }
}

void tst_MvExporters::svg()
{
    QVERIFY(MvSvgExporter::write(source(u"A4"_s, 0, 2), path(u"s-%n.svg"_s)).isOk());
    QDomDocument document;
    QVERIFY(document.setContent(contentOf(u"s-02.svg"_s)));
    const QDomElement root = document.documentElement();
    for (const auto &[name, expected] : {std::pair(u"width"_s, 210.0), std::pair(u"height"_s, 297.0)}) {
        QString value = root.attribute(name);
        QVERIFY2(value.endsWith("mm"_L1), qPrintable(value));
        value.chop(2);
        QVERIFY2(qAbs(value.toDouble() - expected) < 0.1, qPrintable(value));
    }
    QCOMPARE(root.firstChildElement(u"title"_s).text(), u"Kalender <2027> & „Mühe“"_s);
}

void tst_MvExporters::svgIsClipped_data()
{
    const MvRows<std::function<void(QPainter &)>> row; // painting
    row("area", [](QPainter &painter) { painter.fillRect(-500, -500, 5000, 5000, Qt::black); });
    row("line", [](QPainter &painter) {
        painter.setPen(QPen(Qt::black, 700));
        painter.drawLine(QPointF(0, 400), QPointF(3000, 400));
    });
    row("photo", [](QPainter &painter) {
        QImage foto(50, 80, QImage::Format_RGB32);
        foto.fill(Qt::black);
        painter.drawImage(QRectF(50, 50, 1000, 1000), foto);
    });
    row("text", [](QPainter &painter) {
        QFont font(u"Lato"_s, -1, QFont::Black);
        font.setPixelSize(3000);
        MvOutlinePainter::fillOutline(painter, {-300, 1400}, MvTextOutline(font, u"I"_s), Qt::black);
    });
}

void tst_MvExporters::svgIsClipped()
{
    const auto [painting] = MvRows<std::function<void(QPainter &)>>::current();
    MvPageSource pages = source(u"A4"_s, 30, 1);
    pages.paint = [painting = painting](QPainter &painter, int) {
        painter.setClipRect(QRectF(100, 200, 300, 400));
        painting(painter);
        painter.setClipping(false);
        painter.fillRect(QRectF(-30, 50, 230, 10), Qt::black); // bleeds
    };
    QVERIFY(MvSvgExporter::write(pages, path(u"s.svg"_s)).isOk());
    QSvgRenderer renderer(path(u"s.svg"_s));
    QImage seen(2400, 3270, QImage::Format_RGB32); // with 15 mm around the page
    seen.fill(Qt::white);
    QPainter painter(&seen);
    painter.translate(150, 150);
    renderer.render(&painter, QRectF(0, 0, 2100, 2970));
    painter.end();
    QCOMPARE(darkRect(seen.copy(0, 0, 2400, 300)), QRect(150, 200, 200, 10));
    QCOMPARE(darkRect(seen.copy(0, 300, 2400, 2970)), QRect(250, 50, 300, 400));
}

void tst_MvExporters::paintsForPrint()
{
    MvPageSource pages = source(u"A6"_s, 20, 1);
    QRectF clip;
    bool isPrint = false;
    pages.paint = [&](QPainter &painter, int) {
        clip = painter.clipBoundingRect();
        isPrint = MvRenderingRule::decodeFrom(painter).hasFlag(MvRenderingRule::Print);
        painter.setPen(Qt::red); // what one page sets is not the next one's
    };
    QImage image(300, 300, QImage::Format_RGB32);
    QPainter painter(&image);
    pages.paintPage(painter, 0, QPointF(10, 10), 0.1);
    QCOMPARE(clip, QRectF(-20, -20, 1090, 1520));
    QVERIFY(isPrint);
    QVERIFY(painter.transform().isIdentity());
    QCOMPARE(painter.pen().color(), QColor(Qt::black));
    QVERIFY(!MvRenderingRule::decodeFrom(painter).hasFlag(MvRenderingRule::Print));
}

void tst_MvExporters::refuses()
{
    const QString pattern = path(u"s-%m.png"_s);
    const MvExportResult results[] = {
        MvPictureExporter::write(source(u"A9"_s, 0, 1), pattern, 100), // no size
        MvPictureExporter::write(source(u"A6"_s, 0, 0), pattern, 100), // no pages
        MvPictureExporter::write(source(u"A6"_s, 0, 1), pattern, 9),
        MvPictureExporter::write(source(u"A6"_s, 0, 1), pattern, 1201),
        MvPictureExporter::write(source(u"A0"_s, 0, 1), pattern, 1200), // too many pixels
        MvPictureExporter::write(source(u"A6"_s, 0, 2), path(u"s.png"_s), 100),
    };
    for (const MvExportResult &result : results)
        QVERIFY(!result.isOk() && result.files.isEmpty());
    QCOMPARE(files(), QStringList());
}

void tst_MvExporters::failingTargets()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    put(u"file"_s, {});
    const MvPageSource pages = source(u"A6"_s, 0, 1);
    for (const QString &target : {u"nowhere/k-%m"_s, u"file/k-%m"_s, u"folder"_s}) {
        for (const MvExportResult &result :
             {MvPdfExporter::write(pages, QFileInfo(path(target))), MvPictureExporter::write(pages, path(target), 50),
              MvSvgExporter::write(pages, path(target))}) {
            QVERIFY(!result.isOk() && result.files.isEmpty());
            QVERIFY2(result.error.startsWith(path(target.section(u'%', 0, 0))), qPrintable(result.error));
        }
    }
    QCOMPARE(files(), (QStringList{u"file"_s, u"folder"_s}));
    QVERIFY(QDir(path(u"folder"_s)).isEmpty());
}

MV_TEST_MAIN(tst_MvExporters)
#include "tst_MvExporters.moc"

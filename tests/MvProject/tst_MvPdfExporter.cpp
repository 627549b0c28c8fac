// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFreshFolderTest.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvPictureExporter.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvFoto/MvImageLoader.h"

#include <QPainter>
#include <QPainterPath>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;
using MvTestFiles::outputOf;

namespace {

using Painting = std::function<void(QPainter &)>;

constexpr int dpi = 1200;  // of what is painted: programs move thin lines onto whole pixels
constexpr int coarser = 8; // what is compared

bool areAlike(QRgb a, QRgb b, int tolerance)
{
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

/// Whether every part of the pixel's colour is between the least and the most of those around the place.
bool isBetweenNeighbours(QRgb pixel, const QImage &other, int x, int y, int tolerance)
{
    for (QRgb (*const part)(QRgb) :
         {+[](QRgb color) { return QRgb(qRed(color)); }, +[](QRgb color) { return QRgb(qGreen(color)); },
          +[](QRgb color) { return QRgb(qBlue(color)); }}) {
        int least = 255;
        int most = 0;
        for (int i = 0; i < 9; ++i) {
            const int near = int(part(other.pixel(x + i % 3 - 1, y + i / 3 - 1)));
            least = std::min(least, near);
            most = std::max(most, near);
        }
        if (int(part(pixel)) < least - tolerance || int(part(pixel)) > most + tolerance)
            return false;
    }
    return true;
}

/// The number of pixels that fit in nowhere near their place in the other picture: lines are smoothed in other ways
/// there, but nothing is elsewhere, missing, or of another colour.
int strangePixels(const QImage &picture, const QImage &other, int tolerance)
{
    int count = 0;
    for (int y = 1; y + 1 < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        const auto *otherLine = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        for (int x = 1; x + 1 < picture.width(); ++x) {
            if (!areAlike(line[x], otherLine[x], tolerance) && !isBetweenNeighbours(line[x], other, x, y, tolerance))
                ++count;
        }
    }
    return count;
}

/// A photo: no two pixels alike.
QImage photo(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), (x * 7 + y * 13) % 32 + 100));
    return image;
}

QFont lato(double points)
{
    QFont font(u"Lato"_s);
    font.setPixelSize(int(points));
    return font;
}

std::string streamOf(QPDFObjectHandle stream)
{
    const auto buffer = stream.getStreamData();
    return {reinterpret_cast<const char *>(buffer->getBuffer()), buffer->getSize()};
}

} // namespace

class tst_MvPdfExporter : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void paintsWhatIsPainted_data();
    void paintsWhatIsPainted();
    void textIsFound();
    void glyphsAreDrawnOnce();
    void picturesAreKeptOnce();
    void photosPassThrough();
    void namesPages();

private:
    QString write(const MvPageSource &pages) const;
    MvPageSource pages(const Painting &paint, int count = 1) const;
    QString difference(const MvPageSource &pages, int tolerance) const;
};

/// On paper of 10 by 8 cm.
MvPageSource tst_MvPdfExporter::pages(const Painting &paint, int count) const
{
    MvPageSource source;
    source.format = MvPageFormat(QSizeF(1000, 800));
    for (int page = 0; page < count; ++page)
        source.pages.append(QDate(2027, 1 + page, 1));
    source.paint = [paint](QPainter &painter, int) { paint(painter); };
    return source;
}

QString tst_MvPdfExporter::write(const MvPageSource &pages) const
{
    const QString file = path(u"k.pdf"_s);
    const MvExportResult result = MvPdfExporter::write(pages, QFileInfo(file));
    return result.isOk() && MvTestFiles::isSoundPdf(file) ? file : QString();
}

/// Between the PDF and the same page as a picture, in parts of 255; empty when there is none.
QString tst_MvPdfExporter::difference(const MvPageSource &pages, int tolerance) const
{
    const QString file = write(pages);
    if (file.isEmpty() || !MvPictureExporter::write(pages, path(u"%m.png"_s), dpi).isOk())
        return u"not written"_s;
    outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dpi), u"-png"_s, u"-singlefile"_s, file, path(u"pdf"_s)});
    const QImage fine(path(u"pdf.png"_s));
    const QImage expected(path(u"%1.png"_s.arg(pages.pages.first().toString(u"MM"_s))));
    if (std::abs(fine.width() - expected.width()) > 1 || std::abs(fine.height() - expected.height()) > 1)
        return u"another size"_s;
    const auto compared = [size = expected.size() / coarser](const QImage &image) {
        return image.convertToFormat(QImage::Format_RGB32)
            .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage seen = compared(fine);
    const QImage wanted = compared(expected);
    const int strange = strangePixels(seen, wanted, tolerance) + strangePixels(wanted, seen, tolerance);
    // the last of a stroke's end, and points where many edges meet
    return strange <= seen.width() * seen.height() / 50'000 ? QString() : u"%1 pixels"_s.arg(strange);
}

void tst_MvPdfExporter::paintsWhatIsPainted_data()
{
    const MvRows<Painting> row; // painting
    row("pens", [](QPainter &painter) {
        int y = 80;
        for (const Qt::PenCapStyle cap : {Qt::FlatCap, Qt::SquareCap, Qt::RoundCap}) {
            for (const Qt::PenJoinStyle join : {Qt::MiterJoin, Qt::BevelJoin, Qt::RoundJoin}) {
                painter.setPen(QPen(QColor(20, 90, 160), 24, Qt::SolidLine, cap, join));
                painter.drawPolyline(QPolygonF({{80, y + 0.0}, {300, y + 60.0}, {480, y + 0.0}}));
                y += 70;
            }
        }
        painter.setPen(QPen(Qt::red, 12, Qt::DashDotLine, Qt::FlatCap));
        painter.drawLine(QPointF(560, 80), QPointF(900, 500));
        painter.setPen(QPen(Qt::black, 30, Qt::SolidLine, Qt::RoundCap));
        painter.drawPoint(QPointF(700, 80));
        painter.setPen(QPen(Qt::darkGreen, 6));
        painter.drawRect(QRectF(600, 550, 200, 100));
        painter.scale(4.0, 1.0); // wider one way
        painter.setPen(QPen(Qt::blue, 10));
        painter.drawEllipse(QRectF(150, 600, 70, 120));
    });
    row("areas", [](QPainter &painter) {
        const QPolygonF star({{200, 50}, {290, 330}, {50, 160}, {350, 160}, {110, 330}});
        painter.setPen(QPen(Qt::black, 4));
        painter.setBrush(QColor(250, 200, 40));
        painter.drawPolygon(star, Qt::OddEvenFill);
        painter.translate(400, 0);
        painter.drawPolygon(star, Qt::WindingFill);
        QPainterPath ring;
        ring.setFillRule(Qt::WindingFill);
        ring.addRect(0, 450, 300, 250);
        QPainterPath hole;
        hole.addRect(80, 500, 100, 100);
        ring.addPath(hole.toReversed()); // the other way round: not filled
        painter.fillPath(ring, Qt::darkRed);
    });
    row("clips", [](QPainter &painter) {
        painter.setClipRect(QRectF(100, 100, 500, 500));
        painter.fillRect(QRectF(0, 0, 1000, 300), Qt::darkCyan);
        painter.save();
        QPainterPath circle;
        circle.addEllipse(QRectF(200, 200, 600, 300));
        painter.setClipPath(circle, Qt::IntersectClip);
        painter.rotate(10);
        painter.fillRect(QRectF(0, 0, 1000, 800), Qt::yellow);
        painter.restore();
        painter.fillRect(QRectF(550, 500, 300, 300), Qt::red);
        painter.setClipping(false);
        painter.fillRect(QRectF(800, 700, 300, 300), Qt::blue);
    });
    row("opacity", [](QPainter &painter) {
        painter.fillRect(QRectF(0, 0, 500, 800), Qt::darkBlue);
        painter.setOpacity(0.5);
        painter.fillRect(QRectF(100, 100, 800, 150), QColor(255, 0, 0, 128));
        painter.setPen(QPen(QColor(0, 255, 0, 200), 60));
        painter.drawLines({QLineF(100, 400, 900, 400), QLineF(300, 300, 300, 700)});
        MvOutlinePainter::fillOutline(painter, {120, 700}, MvTextOutline(lato(200), u"Mai"_s), Qt::white);
        painter.setOpacity(1.0);
        painter.fillRect(QRectF(800, 0, 100, 100), Qt::black);
    });
    row("gradients", [](QPainter &painter) {
        painter.fillRect(QRectF(0, 0, 1000, 300), Qt::darkGreen);
        QLinearGradient veil(0, 100, 0, 700);
        veil.setStops({{0.0, QColor(255, 255, 255, 0)}, {0.5, QColor(255, 255, 255, 230)}, {1.0, Qt::white}});
        painter.fillRect(QRectF(50, 50, 300, 700), veil);
        QLinearGradient edge(400, 0, 600, 100);
        edge.setStops({{0.0, Qt::red}, {0.5, Qt::yellow}, {0.5, Qt::blue}, {1.0, Qt::cyan}});
        painter.fillRect(QRectF(400, 50, 200, 700), edge);
        QRadialGradient sun(0.5, 0.5, 0.5);
        sun.setCoordinateMode(QGradient::ObjectMode);
        sun.setStops({{0.0, Qt::yellow}, {1.0, QColor(0, 0, 120, 40)}});
        painter.setPen(Qt::NoPen);
        painter.setBrush(sun);
        painter.drawEllipse(QRectF(650, 150, 300, 500));
    });
    row("what needs a picture", [](QPainter &painter) {
        painter.setClipRect(QRectF(0, 0, 850, 800));
        painter.setOpacity(0.7);
        QImage tile(60, 60, QImage::Format_RGB32);
        tile.fill(Qt::yellow);
        QPainter(&tile).fillRect(0, 0, 30, 30, Qt::darkBlue);
        painter.fillRect(QRectF(100, 100, 300, 300), tile);
        QConicalGradient cone(650, 250, 0);
        cone.setStops({{0.0, Qt::red}, {0.5, Qt::blue}, {1.0, Qt::red}});
        painter.fillRect(QRectF(500, 100, 400, 300), cone);
        painter.fillRect(QRectF(100, 500, 800, 200), QColor(0, 120, 0));
    });
    row("blending", [](QPainter &painter) {
        painter.fillRect(QRectF(0, 0, 600, 800), QColor(240, 200, 40));
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.fillRect(QRectF(300, 100, 600, 200), QColor(40, 200, 240));
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.fillRect(QRectF(300, 400, 600, 200), QColor(40, 200, 240));
    });
    row("other combinations", [](QPainter &painter) {
        painter.fillRect(QRectF(0, 0, 600, 800), QColor(240, 200, 40));
        painter.setCompositionMode(QPainter::CompositionMode_Xor);
        painter.fillRect(QRectF(300, 100, 400, 500), Qt::blue);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.fillRect(QRectF(0, 0, 1000, 800), Qt::darkGreen);
    });
    row("texts", [](QPainter &painter) {
        const auto text = [&painter](const QPointF &at, const QFont &font, const QString &words) {
            MvOutlinePainter::fillOutline(painter, at, MvTextOutline(font, words), QColor(60, 20, 90));
        };
        text({60, 150}, lato(120), u"Pfingsten Äß"_s);
        QFont spaced = lato(60);
        spaced.setCapitalization(QFont::AllUppercase);
        spaced.setLetterSpacing(QFont::AbsoluteSpacing, 20);
        text({60, 260}, spaced, u"Oktober"_s);
        QFont underlined = lato(60);
        underlined.setUnderline(true);
        text({560, 260}, underlined, u"Termin"_s);
        text({60, 360}, lato(50), u"שלום עולם, Привет 日"_s);
        painter.save();
        painter.translate(150, 750);
        painter.rotate(-30);
        text({}, lato(90), u"Sommerferien"_s);
        painter.restore();
        painter.translate(700, 700);
        painter.scale(0.5, 1.5); // narrow
        text({}, lato(90), u"Winter"_s);
    });
    row("pictures", [](QPainter &painter) {
        painter.fillRect(QRectF(0, 300, 1000, 200), Qt::darkRed);
        painter.drawImage(QRectF(50, 50, 400, 300), photo({500, 375}));
        QImage veiled = photo({200, 200}).convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 200; ++x)
                veiled.setPixelColor(x, y, QColor(0, x, y, 255 - y));
        painter.drawImage(QRectF(500, 100, 400, 600), veiled);
        painter.drawImage(QRectF(50, 400, 300, 150), photo({600, 600}), QRectF(150, 300, 300, 150));
        painter.setOpacity(0.5);
        painter.translate(250, 680);
        painter.rotate(45);
        painter.drawImage(QRectF(-70, -70, 140, 140), photo({100, 100}));
    });
}

void tst_MvPdfExporter::paintsWhatIsPainted()
{
    const auto [painting] = MvRows<Painting>::current();
    QCOMPARE(difference(pages(painting), 24), QString());
}

/// Word by word, as programs search, in the order of the page and in that of the file.
void tst_MvPdfExporter::textIsFound()
{
    const QStringList lines = {u"1. Weihnachtstag"_s,
                               u"Größe & Straße (fünf\\sechs)"_s,
                               u"Pfingsten trifft Öffner"_s,
                               u"Привет мир"_s,
                               u"יום הולדת של דוד"_s,
                               u"Święto Trzech Króli"_s,
                               u"عيد سارة"_s,
                               u"日本"_s};
    const QString file = write(pages([&lines](QPainter &painter) {
        double y = -20;
        for (const QString &line : lines)
            MvOutlinePainter::fillOutline(painter, {50, y += 90}, MvTextOutline(lato(50), line), Qt::black);
        QFont capitals = lato(50);
        capitals.setCapitalization(QFont::AllUppercase);
        capitals.setLetterSpacing(QFont::PercentageSpacing, 118);
        MvOutlinePainter::fillOutline(painter, {50, 780}, MvTextOutline(capitals, u"Oktober"_s), Qt::black);
    }));
    for (const QString &order : {u"-layout"_s, u"-raw"_s}) {
        QString text = QString::fromUtf8(outputOf(u"pdftotext"_s, {order, u"-enc"_s, u"UTF-8"_s, file, u"-"_s}));
        text.remove(QRegularExpression(u"[\\x{202a}-\\x{202e}]"_s)); // directions
        for (const QString &word : (lines + QStringList(u"Oktober"_s)).join(u' ').split(u' '))
            QVERIFY2(text.contains(word, Qt::CaseInsensitive), qPrintable(word + u" is not in "_s + text));
    }
}

void tst_MvPdfExporter::glyphsAreDrawnOnce()
{
    const auto paint = [](QPainter &painter) { // the same letters in three sizes and colours
        double y = 0;
        for (const int size : {40, 60, 90})
            MvOutlinePainter::fillOutline(painter, {50, y += 200}, MvTextOutline(lato(size), u"Otto Anna"_s),
                                          QColor::fromHsv(size, 200, 200));
    };
    QPDF pdf;
    pdf.processFile(write(pages(paint, 4)).toLocal8Bit().constData());
    std::set<QPDFObjGen> shapes;
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(pdf).getAllPages()) {
        QPDFObjectHandle object = page.getObjectHandle();
        const std::string content = streamOf(object.getKey("/Contents"));
        QVERIFY(content.find(" m\n") == std::string::npos && content.find(" c\n") == std::string::npos);
        for (auto &[name, font] : object.getKey("/Resources").getKey("/Font").getDictAsMap())
            for (auto &[glyph, shape] : font.getKey("/CharProcs").getDictAsMap())
                shapes.insert(shape.getObjGen());
    }
    QCOMPARE(shapes.size(), size_t(7)); // the blank, A, O, a, n, o and t, or both t as one
}

void tst_MvPdfExporter::picturesAreKeptOnce()
{
    const QImage picture = photo({400, 300});
    QImage veiled = photo({40, 40}).convertToFormat(QImage::Format_ARGB32);
    veiled.setPixel(3, 3, qRgba(1, 2, 3, 100));
    QImage flat(300, 200, QImage::Format_RGB32);
    flat.fill(Qt::red);
    const QString file = write(pages(
        [&](QPainter &painter) {
            painter.drawImage(QRectF(0, 0, 300, 225), picture);
            painter.drawImage(QRectF(300, 0, 600, 450), picture.copy()); // equal, though not the same
            painter.drawImage(QRectF(0, 400, 150, 300), picture, QRectF(100, 0, 150, 300));
            painter.drawImage(QRectF(300, 500, 100, 100), veiled);
            painter.drawImage(QRectF(500, 500, 300, 200), flat);
        },
        3));
    QPDF pdf;
    pdf.processFile(file.toLocal8Bit().constData());
    QStringList found;
    for (QPDFObjectHandle object : pdf.getAllObjects()) {
        if (object.isImage())
            found.append(u"%1 x %2 %3%4"_s.arg(object.getDict().getKey("/Width").getIntValue())
                             .arg(object.getDict().getKey("/Height").getIntValue())
                             .arg(QString::fromStdString(object.getDict().getKey("/Filter").getName()),
                                  object.getDict().hasKey("/SMask") ? u" masked"_s : QString()));
    }
    found.sort();
    QCOMPARE(found, (QStringList{u"150 x 300 /DCTDecode"_s, u"300 x 200 /FlateDecode"_s, u"40 x 40 /FlateDecode"_s,
                                 u"40 x 40 /FlateDecode masked"_s, u"400 x 300 /DCTDecode"_s}));
}

/// A photo that is neither cut nor turned nor too fine is taken in as it was stored, without what its camera noted.
void tst_MvPdfExporter::photosPassThrough()
{
    QImage picture = photo({300, 200});
    QVERIFY(picture.save(path(u"plain.jpg"_s), "jpg", 80));
    const QByteArray stored = contentOf(u"plain.jpg"_s);
    const QByteArray notes("\xff\xe1\x00\x16"
                           "Exif\0\0"
                           "home 48.1 11.5",
                           24);
    put(u"foto.jpg"_s, stored.first(2) + notes + stored.sliced(2) + "another picture");

    const QString file = write(pages([this](QPainter &painter) {
        const QImage foto = MvImageLoader::instance().load(MvFolderTest::file(u"foto.jpg"_s));
        painter.drawImage(QRectF(0, 0, 600, 400), foto);
        painter.drawImage(QRectF(0, 400, 600, 300), foto, QRectF(0, 20, 300, 150));
        painter.drawImage(QRectF(700, 0, 30, 20), foto); // many pixels for its place
    }));
    QPDF pdf;
    pdf.processFile(file.toLocal8Bit().constData());
    QList<QByteArray> images;
    for (QPDFObjectHandle object : pdf.getAllObjects()) {
        if (object.isImage()) {
            const auto bytes = object.getRawStreamData();
            images.append(QByteArray(reinterpret_cast<const char *>(bytes->getBuffer()), qsizetype(bytes->getSize())));
        }
    }
    QCOMPARE(images.size(), 3);
    QVERIFY(images.contains(stored));
    images.removeOne(stored);
    const QImage others[] = {QImage::fromData(images.first()), QImage::fromData(images.last())};
    QVERIFY(others[0].size() == QSize(300, 150) || others[1].size() == QSize(300, 150));
    QVERIFY(std::min(others[0].width(), others[1].width()) < 50);
}

void tst_MvPdfExporter::namesPages()
{
    MvCalendarDocument calendar = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 2);
    QPDF pdf;
    pdf.processFile(write(calendar.pageSource()).toLocal8Bit().constData());
    QStringList names;
    for (QPDFObjectHandle item = pdf.getRoot().getKey("/Outlines").getKey("/First"); item.isDictionary();
         item = item.getKey("/Next")) {
        const size_t page = size_t(names.size());
        QCOMPARE(item.getKey("/Dest").getArrayItem(0).getObjGen(),
                 QPDFPageDocumentHelper(pdf).getAllPages().at(page).getObjectHandle().getObjGen());
        names.append(QString::fromStdString(item.getKey("/Title").getUTF8Value()));
    }
    QCOMPARE(names, (QStringList{u"Januar 2027"_s, u"Februar 2027"_s}));
}

MV_TEST_MAIN(tst_MvPdfExporter)
#include "tst_MvPdfExporter.moc"

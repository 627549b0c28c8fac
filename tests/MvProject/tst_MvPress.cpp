// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFreshFolderTest.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include <QColorSpace>
#include <QPainter>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using MvTestFiles::outputOf;

namespace {

using Painting = std::function<void(QPainter &)>;

constexpr int dpi = 254; // a dot for each tenth of a millimetre
const QRect page(0, 0, 1000, 800);

void write(QPainter &painter, const QPointF &place, const QString &text, const QColor &color)
{
    QFont font(u"Lato"_s);
    font.setPixelSize(90);
    MvOutlinePainter::fillOutline(painter, place, MvTextOutline(font, text), color);
}

/// Dark to light from left to right, in several hues.
QImage photo()
{
    QImage image(400, 320, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x / 2 + 20, (x + y) / 4 + (x * 7 + y * 13) % 16, x / 2));
    return image;
}

QImage veiled(QImage image)
{
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int x = 0; x < image.width(); ++x)
        image.setPixel(x, 0, image.pixel(x, 0) & 0x7fffffff);
    return image;
}

/// Pixels of the part with more than a trace of ink.
int inked(const QImage &plate, const QRect &part)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += qGray(plate.pixel(x, y)) < 250 ? 1 : 0;
    return count;
}

MvPressSettings settings(bool hasMarks)
{
    MvPressSettings press;
    press.profile = MvPressProfile::load(u"fogra39"_s).profile;
    press.hasMarks = hasMarks;
    return press;
}

} // namespace

class tst_MvPress : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void profiles_data() { MvRows<QString, QString>().read(u"press-profiles"_s); }
    void profiles();
    void knownInks_data() { MvRows<QString, QStringList>().read(u"known-inks"_s); }
    void knownInks();
    void plates();
    void marks();
    void boxes_data();
    void boxes();
    void bleedGoesOn_data();
    void bleedGoesOn();
    void fotosKeepTheirColors();
    void translucentFotosAreFotos();
    void mostInk();
    void sameBytes();

private:
    /// On a page of 10 by 8 cm; its own bleed in tenths of a millimetre.
    QString pdf(const Painting &paint, bool hasMarks, double bleed = 0.0);
    QString pdf(const Painting &paint, const MvPressSettings &press, double bleed);
    /// Cyan, magenta, yellow, black as Ghostscript separates them: dark where ink is.
    QList<QImage> separated(const QString &file) const;

    QList<MvInkUse> m_inks; // of the last file
};

QString tst_MvPress::pdf(const Painting &paint, bool hasMarks, double bleed)
{
    return pdf(paint, settings(hasMarks), bleed);
}

QString tst_MvPress::pdf(const Painting &paint, const MvPressSettings &press, double bleed)
{
    MvPageSource source;
    source.format = MvPageFormat(QSizeF(page.size()));
    source.format.setBleed(bleed);
    source.format.setBinding(MvPageFormat::Binding::Top);
    source.pages = {QDate(2027, 5, 1)};
    source.numbers = {4};
    source.documentPages = 12;
    source.names = {u"Mai 2027"_s};
    source.bindings = {source.format.bindingRect()};
    source.title = u"Familie Grün"_s;
    source.paint = [paint](QPainter &painter, int) { paint(painter); };
    const QString file = path(u"k.pdf"_s);
    const MvExportResult result = MvPdfExporter::write(source, QFileInfo(file), nullptr, 0, press);
    m_inks = result.inks;
    return result.isOk() && MvTestFiles::isSoundPdf(file) ? file : QString();
}

QList<QImage> tst_MvPress::separated(const QString &file) const
{
    outputOf(u"gs"_s, {u"-q"_s, u"-dNOPAUSE"_s, u"-dBATCH"_s, u"-dSAFER"_s, u"-sDEVICE=tiffsep"_s, u"-r%1"_s.arg(dpi),
                       u"-o"_s, path(u"plate.tif"_s), file});
    QList<QImage> plates;
    for (const QString &name : {u"Cyan"_s, u"Magenta"_s, u"Yellow"_s, u"Black"_s})
        plates.append(QImage(path(u"plate(%1).tif"_s.arg(name))));
    return plates;
}

void tst_MvPress::profiles()
{
    const auto [file, said] = MvRows<QString, QString>::current();
    const QByteArray press = settings(false).profile.content();
    const std::array contents{std::pair{u"screen.icc"_s, QColorSpace(QColorSpace::SRgb).iccProfile()},
                              std::pair{u"cut.icc"_s, press.first(press.size() / 2)},
                              std::pair{u"text.icc"_s, QByteArray(4000, 'x')}};
    QString name = file;
    for (const auto &[known, content] : contents) {
        put(known, content);
        if (known == file)
            name = path(known);
    }
    const MvPressProfile::Loaded loaded = MvPressProfile::load(name);
    QVERIFY2(loaded.isOk() ? loaded.profile.condition() == said : loaded.error.contains(said),
             qPrintable(loaded.error));
    QCOMPARE(loaded.profile.isValid(), loaded.isOk());
    QCOMPARE(loaded.isOk(), !file.contains(u'.') && file != u"fogra93"_s);
}

void tst_MvPress::knownInks()
{
    const auto [color, inks] = MvRows<QString, QStringList>::current();
    constexpr int tolerance = 8; // percent
    const QList<QImage> plates =
        separated(pdf([&, color = color](QPainter &painter) { painter.fillRect(page, QColor(color)); }, false));
    for (int ink = 0; ink < 4; ++ink) {
        QVERIFY(!plates[ink].isNull());
        const double found = 100.0 - qGray(plates[ink].pixel(500, 400)) / 2.55;
        QVERIFY2(std::abs(found - inks[ink].toInt()) <= tolerance, qPrintable(u"%1: %2 %"_s.arg(ink).arg(found)));
    }
}

void tst_MvPress::plates()
{
    const auto ground = [](QPainter &painter) {
        painter.fillRect(QRectF(0, 400, 1000, 400), QColor(255, 240, 120));
        painter.drawImage(QRectF(500, 400, 400, 300), photo());
    };
    const QList<QImage> plain = separated(pdf(ground, false, 30.0));
    const QList<QImage> typed = separated(pdf(
        [&](QPainter &painter) {
            ground(painter);
            write(painter, {60, 200}, u"Pfingsten"_s, Qt::black);
            write(painter, {60, 340}, u"Ferien"_s, QColor(104, 113, 124));  // grey with a tint
            write(painter, {300, 600}, u"Öffner 24"_s, QColor(37, 41, 46)); // over both grounds
            painter.setPen(QPen(QColor(198, 203, 209), 2.0));
            painter.drawLine(60, 370, 900, 370);
        },
        false, 30.0));
    for (int ink = 0; ink < 3; ++ink)
        QCOMPARE(typed[ink], plain[ink]); // none of the type, and nothing left out beneath it
    QVERIFY(inked(typed[3], {90, 150, 600, 90}) > 2000);
    QVERIFY(inked(typed[3], {90, 290, 600, 90}) > 2000);
    QVERIFY(typed[3] != plain[3]);
    const QRect onYellow(330, 550, 190, 100);
    QVERIFY(inked(plain[3], onYellow) == 0 && inked(typed[3], onYellow) > 1000);
}

/// Marks are on every plate and beside the page and its bleed; the line about the page is on one.
void tst_MvPress::marks()
{
    const QString file = pdf([](QPainter &) {}, true, 30.0);
    const QList<QImage> plates = separated(file);
    const QPoint corner((plates[0].width() - page.width()) / 2, (plates[0].height() - page.height()) / 2);
    const QRect bleed = page.translated(corner).adjusted(-30, -30, 30, 30);
    const QRect slug(bleed.left(), bleed.bottom() + 72, bleed.width(), 35);
    for (int ink = 0; ink < 4; ++ink) {
        QCOMPARE(inked(plates[ink], bleed), 0);
        const auto isMarked = [&](int x, int y) {
            return inked(plates[ink], QRect(corner.x() + x - 2, corner.y() + y - 2, 5, 5)) > 0;
        };
        for (const int x : {0, page.width()})
            QVERIFY(isMarked(x, -80) && isMarked(x, page.height() + 80));
        for (const int y : {0, page.height()})
            QVERIFY(isMarked(-80, y) && isMarked(page.width() + 80, y));
        QVERIFY(isMarked(-30, -55) && isMarked(page.width() + 55, page.height() + 30)); // where the bleed ends
        QVERIFY(isMarked(-65, page.height() / 2) && isMarked(page.width() / 2, -65));
        const QRect fold(corner.x() - 90, corner.y() + 108, 50, 5); // the binding takes 11 mm
        QVERIFY(inked(plates[ink], fold) > 20 && inked(plates[ink], fold.translated(0, 30)) == 0);
        QCOMPARE(inked(plates[ink], slug) > 500, ink == 3);
    }
    const QString text = QString::fromUtf8(outputOf(u"pdftotext"_s, {u"-enc"_s, u"UTF-8"_s, file, u"-"_s}));
    for (const QString &part :
         {u"Familie Grün"_s, u"Mai 2027"_s, u"5 / 12"_s, u"100 × 80 mm (+ 3 mm)"_s, u"FOGRA39L"_s})
        QVERIFY2(text.contains(part), qPrintable(text));
}

void tst_MvPress::boxes_data()
{
    // ownBleed: tenths of a millimetre; bleed: mm from the sheet's corner
    const MvRows<double, bool, double, double> row;
    row("no bleed of its own", 0.0, false, 0.0, 3.0);
    row("a wide bleed", 50.0, false, 0.0, 5.0);
    row("marks", 30.0, true, 7.0, 10.0);
}

void tst_MvPress::boxes()
{
    const auto [ownBleed, hasMarks, bleed, trim] = MvRows<double, bool, double, double>::current();
    const QString file = pdf(
        [](QPainter &painter) {
            painter.setOpacity(0.5);
            painter.fillRect(page, Qt::yellow);
            QLinearGradient sky(0, 0, 0, 800);
            sky.setColorAt(1.0, QColor(0, 0, 200, 0));
            painter.fillRect(page, sky);
            painter.drawImage(QRectF(100, 100, 300, 200), photo());
            painter.drawImage(QRectF(500, 100, 300, 200), photo().convertToFormat(QImage::Format_Grayscale8));
            write(painter, {60, 700}, u"Mai"_s, Qt::darkGreen);
        },
        hasMarks, ownBleed);
    const QString info = QString::fromUtf8(outputOf(u"pdfinfo"_s, {u"-box"_s, file}));
    QVERIFY2(info.contains(QRegularExpression(u"PDF version:\\s+1\\.[67]"_s)) && info.contains(u"PDF/X-4"_s),
             qPrintable(info));

    QPDF pdf;
    pdf.processFile(file.toLocal8Bit().constData());
    QPDFObjectHandle object = QPDFPageDocumentHelper(pdf).getAllPages().at(0).getObjectHandle();
    const auto left = [&object](const char *key) {
        return object.getKey(key).getArrayItem(0).getNumericValue() * 25.4 / 72.0;
    };
    const auto right = [&object](const char *key) {
        return object.getKey(key).getArrayItem(2).getNumericValue() * 25.4 / 72.0;
    };
    QVERIFY(std::abs(left("/BleedBox") - bleed) < 0.001 && std::abs(left("/TrimBox") - trim) < 0.001);
    QVERIFY(std::abs(right("/TrimBox") - trim - 100.0) < 0.001 &&
            std::abs(right("/MediaBox") - 2 * trim - 100.0) < 0.001);

    QPDFObjectHandle intent = pdf.getRoot().getKey("/OutputIntents").getArrayItem(0);
    QCOMPARE(intent.getKey("/S").getName(), std::string("/GTS_PDFX"));
    QCOMPARE(intent.getKey("/OutputConditionIdentifier").getUTF8Value(), std::string("FOGRA39"));
    QCOMPARE(intent.getKey("/DestOutputProfile").getDict().getKey("/N").getIntValue(), 4);
    QCOMPARE(pdf.getTrailer().getKey("/Info").getKey("/Trapped").getName(), std::string("/False"));
    const auto metadata = pdf.getRoot().getKey("/Metadata").getStreamData();
    QVERIFY(QByteArray(reinterpret_cast<const char *>(metadata->getBuffer()), qsizetype(metadata->getSize()))
                .contains("GTS_PDFXVersion>PDF/X-4<"));
    for (QPDFObjectHandle any : pdf.getAllObjects()) // nothing is left of the screen
        QVERIFY2(any.unparseResolved().find("DeviceRGB") == std::string::npos &&
                     (!any.isStream() || any.getDict().unparse().find("DeviceRGB") == std::string::npos),
                 any.unparse().c_str());
}

void tst_MvPress::bleedGoesOn_data()
{
    const MvRows<MvPressSettings::Bleed, double> row; // kind; ownBleed: of a page whose photo ends at the trim
    row("mirrored", MvPressSettings::Bleed::Mirrored, 0.0);
    row("stretched", MvPressSettings::Bleed::Stretched, 0.0);
    row("mirrored beside a photo", MvPressSettings::Bleed::Mirrored, 30.0);
}

/// Beyond the edge comes what lies before it, turned round or drawn out; but nothing that is read.
void tst_MvPress::bleedGoesOn()
{
    const auto [kind, ownBleed] = MvRows<MvPressSettings::Bleed, double>::current();
    MvPressSettings press = settings(false);
    press.bleedKind = kind;
    const QString file = pdf(
        [](QPainter &painter) {
            painter.fillRect(page.adjusted(-30, -30, 30, 30), Qt::white); // as grounds are painted
            painter.drawImage(QRectF(0, 0, 1000, 800), photo());
            write(painter, {950, 300}, u"ill"_s, Qt::white); // over the edge
        },
        press, ownBleed);
    outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dpi), u"-png"_s, u"-singlefile"_s, file, path(u"seen"_s)});
    const QImage seen(path(u"seen.png"_s));
    QCOMPARE(seen.size(), QSize(1060, 860));
    const QRect trim = page.translated(30, 30);
    const auto areAlike = [&seen](const QPoint &a, const QPoint &b) {
        constexpr int tolerance = 40; // of a part; the picture's pixels are large
        const QColor one = seen.pixelColor(a);
        const QColor other = seen.pixelColor(b);
        return std::abs(one.red() - other.red()) < tolerance && std::abs(one.green() - other.green()) < tolerance &&
               one.lightness() < 245;
    };
    for (const int away : {3, 15, 27}) {
        const QRect outside = trim.adjusted(-away, -away, away - 1, away - 1);
        const int within = kind == MvPressSettings::Bleed::Mirrored ? away : 1;
        const QRect inside = trim.adjusted(within, within, -within - 1, -within - 1);
        QVERIFY(areAlike(outside.topLeft(), inside.topLeft()) && areAlike(outside.bottomRight(), inside.bottomRight()));
        QVERIFY(areAlike(outside.topRight(), inside.topRight()) && areAlike(outside.bottomLeft(), inside.bottomLeft()));
        QVERIFY(areAlike({500, outside.top()}, {500, inside.top()}));
        QVERIFY(areAlike({outside.left(), 600}, {inside.left(), 600}));
    }
    QCOMPARE(outputOf(u"pdftotext"_s, {file, u"-"_s}).count("ill"), 1);
}

void tst_MvPress::fotosKeepTheirColors()
{
    MvPressSettings press = settings(false);
    press.keepsFotoColors = true;
    const QString file = pdf(
        [](QPainter &painter) {
            painter.fillRect(page, Qt::yellow);
            painter.drawImage(QRectF(100, 100, 300, 200), photo());
            painter.drawImage(QRectF(500, 100, 300, 200), photo().convertToFormat(QImage::Format_Grayscale8));
            painter.drawImage(QRectF(100, 400, 300, 200), veiled(photo()));
        },
        press, 30.0);
    QVERIFY(m_inks.constFirst().percent > 200.0); // of the photo, once it is printed
    const QByteArray pictures = outputOf(u"pdfimages"_s, {u"-list"_s, file});
    QVERIFY2(pictures.count(" icc ") == 2 && pictures.count(" gray ") == 2, pictures); // one is the veil
}

/// All pixels in the inks of the profile: greys of black alone among them would be spots in shadows.
void tst_MvPress::translucentFotosAreFotos()
{
    QImage dusk(400, 320, QImage::Format_RGB32); // hardly any colour, but not grey
    for (int y = 0; y < dusk.height(); ++y)
        for (int x = 0; x < dusk.width(); ++x) {
            const int light = 20 + int(qHash(1000 * y + x) % 40);
            dusk.setPixel(x, y, qRgb(light, light + x % 3, light));
        }
    const QList<QImage> plates =
        separated(pdf([&](QPainter &painter) { painter.drawImage(page, veiled(dusk)); }, false, 30.0));
    QVERIFY(inked(plates[0], QRect(400, 300, 100, 100)) > 9900);
}

void tst_MvPress::mostInk()
{
    QImage picture = photo();
    picture.fill(Qt::white);
    QImage dark = photo();
    QPainter(&picture).drawImage(QRect(0, 160, 100, 160), dark, QRect(0, 0, 100, 160)); // below at the left
    const QString file = pdf([&](QPainter &painter) { painter.drawImage(QRectF(200, 100, 400, 320), picture); }, true);
    const QList<QImage> plates = separated(file);
    QCOMPARE(m_inks.size(), 1);
    QCOMPARE(m_inks[0].page, 4);
    QVERIFY2(QRectF(200, 260, 100, 160).contains(m_inks[0].place), qPrintable(QDebug::toString(m_inks[0].place)));
    const QPoint corner((plates[0].width() - page.width()) / 2, (plates[0].height() - page.height()) / 2);
    double total = 0.0;
    for (const QImage &plate : plates)
        total += 100.0 - qGray(plate.pixel(corner + m_inks[0].place.toPoint())) / 2.55;
    QVERIFY2(m_inks[0].percent > 200.0 && std::abs(m_inks[0].percent - total) < 25.0,
             qPrintable(QString::number(total)));
}

void tst_MvPress::sameBytes()
{
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    QList<QByteArray> files;
    for (int time = 0; time < 2; ++time)
        files.append(contentOf(pdf([](QPainter &painter) { painter.drawImage(page, photo()); }, true)));
    qunsetenv("SOURCE_DATE_EPOCH");
    QVERIFY(!files[0].isEmpty() && files[0] == files[1]);
}

MV_TEST_MAIN(tst_MvPress)
#include "tst_MvPress.moc"

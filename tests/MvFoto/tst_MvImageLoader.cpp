// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvExifFixture.h"
#include "MvFreshFolderTest.h"
#include "MvRows.h"

#include "MvFoto/MvGuardedImageReader.h"
#include "MvFoto/MvImageFormat.h"
#include "MvFoto/MvImageLoader.h"

#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <sys/stat.h>

class tst_MvImageLoader : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void formats_data();
    void formats();
    void otherPrograms_data();
    void otherPrograms();
    void refuses_data();
    void refuses();
    void keepsToTheLimitOfTheProcess();
    void givesUp();
    void leavesOutTexts();
    void turnsAsTheCameraSays();
    void convertsToScreenColours_data();
    void convertsToScreenColours();
    void scales_data();
    void scales();
    void decodesOnce();
    void decodesOnceInManyThreads();
    void cacheIsBounded();
};

/// Four fields: red, green, blue and white from the top left, in reading order.
static QImage fields(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const QRect quarter(0, 0, size.width() / 2, size.height() / 2);
    image.fill(Qt::white);
    painter.fillRect(quarter, Qt::red);
    painter.fillRect(quarter.translated(quarter.width(), 0), Qt::green);
    painter.fillRect(quarter.translated(0, quarter.height()), Qt::blue);
    return image;
}

/// The colours of the four fields by their first letters.
static QString fieldNames(const QImage &image)
{
    QString names;
    for (const QPointF &place : {QPointF(0.25, 0.25), QPointF(0.75, 0.25), QPointF(0.25, 0.75), QPointF(0.75, 0.75)}) {
        const QColor color = image.pixelColor(int(place.x() * image.width()), int(place.y() * image.height()));
        const bool red = color.red() > 128;
        const bool green = color.green() > 128;
        const bool blue = color.blue() > 128;
        names += red && green && blue ? u'w' : red ? u'r' : green ? u'g' : blue ? u'b' : u'?';
    }
    return names;
}

static QByteArray written(const QImage &image, const char *format, bool isProgressive = false)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(isProgressive);
    return writer.write(image) ? buffer.data() : QByteArray();
}

/// A JPEG that says it is 20,000 pixels square, with a number of bytes after its end.
static QByteArray claiming20000(int surplus)
{
    QByteArray jpeg = written(fields({64, 64}), "jpeg");
    jpeg.replace(jpeg.indexOf("\xff\xc0") + 5, 4, QByteArray::fromHex("4e204e20"));
    return jpeg + QByteArray(surplus, 0);
}

/// A progressive JPEG with its last pass again and again.
static QByteArray manyScans(int count)
{
    const QByteArray jpeg = written(fields({64, 64}), "jpeg", true);
    const qsizetype lastScan = jpeg.lastIndexOf("\xff\xda");
    return jpeg.chopped(2) + jpeg.mid(lastScan).chopped(2).repeated(count) + jpeg.last(2);
}

void tst_MvImageLoader::init()
{
    MvFreshFolderTest::init();
    MvImageLoader::instance().clear();
}

void tst_MvImageLoader::formats_data()
{
    const MvRows<QByteArray> row; // format
    for (const char *format : {"jpeg", "png", "bmp", "tiff", "webp"})
        row(format, QByteArray(format));
}

void tst_MvImageLoader::formats()
{
    const auto [format] = MvRows<QByteArray>::current();
    if (!QImageWriter::supportedImageFormats().contains(format))
        QSKIP("no writer for this format here");
    const QString file = path(u"foto.xyz"_qs); // the name says nothing
    QVERIFY(fields({80, 60}).save(file, format.constData()));
    QCOMPARE(MvImageLoader::format(QFileInfo(file)), format);
    QCOMPARE(MvImageLoader::instance().size(QFileInfo(file)), QSize(80, 60));
    QCOMPARE(fieldNames(MvImageLoader::instance().load(QFileInfo(file))), u"rgbw"_qs);
}

/// Files of tests/data that nothing here could write.
void tst_MvImageLoader::otherPrograms_data()
{
    const MvRows<QString, QByteArray, QSize, QString> row; // name, format, size, fields
    row("turned by the file; the camera's note says so, too", u"turned.heic"_qs, QByteArray("heic"), QSize(96, 128),
        u"brwg"_qs);
    row("inks of a print shop", u"cmyk.jpg"_qs, QByteArray("jpeg"), QSize(32, 24), u"rgbw"_qs);
}

void tst_MvImageLoader::otherPrograms()
{
    const auto [name, format, size, fields] = MvRows<QString, QByteArray, QSize, QString>::current();
    const QFileInfo file(QStringLiteral(MV_TEST_DATA "/fotos/") + name);
    QCOMPARE(MvImageLoader::format(file), format);
    QCOMPARE(MvImageLoader::instance().size(file), size);
    QCOMPARE(fieldNames(MvImageLoader::instance().load(file)), fields);
    const QSize half = size / 2;
    QCOMPARE(MvImageLoader::instance().loadScaled(file, half).size(), half);
}

/// A file of tests/data with the bytes replaced wherever they are.
static QByteArray changed(const QString &name, const QByteArray &from, const QByteArray &to)
{
    QFile file(QStringLiteral(MV_TEST_DATA "/fotos/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll().replace(from, to) : QByteArray();
}

void tst_MvImageLoader::refuses_data()
{
    const MvRows<QByteArray, QString> row; // content; reason: in it
    const QString notRead = u"Gelesen werden JPEG"_qs;
    const QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/></svg>";
    row("drawing under a photo's name", svg, notRead);
    row("drawing with an XML declaration", "<?xml version='1.0'?>" + svg, notRead);
    row("empty", QByteArray(), notRead);
    row("pixel list as source code", QByteArray("/* XPM */\nstatic char *x[]={\"1 1 1 1\",\"a c red\",\"a\"};"),
        notRead);
    row("document", QByteArray("%PDF-1.7\n"), notRead);
    // 60,000 pixels square would take 14 GB
    row("larger than memory allows",
        QByteArray::fromHex("424d36000000000000003600000028000000"
                            "60ea0000"
                            "60ea0000"
                            "0100180000000000"
                            "0000000000000000000000000000000000000000"),
        u"beschädigt"_qs);
    row("34 bytes for 16,383 pixels square",
        QByteArray::fromHex("524946461a00000057454250"
                            "5650384c0d000000"
                            "2ffebfff0f1111111111111111"
                            "00"),
        u"viel zu klein für die 16383 × 16383"_qs);
    row("one pixel on a canvas of 16,000 pixels square",
        QByteArray::fromHex("474946383961803e803e800000000000ffffff2c00000000010001000002024401003b"),
        u"viel zu klein für die 16000 × 16000"_qs);
    row("small file for 20,000 pixels square", claiming20000(0), u"zu klein für die 20000 × 20000"_qs);
    row("the same, stuffed", claiming20000(1 << 20), u"zu groß: 20000 × 20000"_qs);
    row("photo in 2,000 passes", manyScans(2000), u"64 Durchgängen"_qs);
    row("photo cut off after 300 bytes", written(fields({400, 300}), "jpeg").first(300), u"nicht vollständig"_qs);
    const QByteArray heic = changed(u"turned.heic"_qs, {}, {});
    QVERIFY(heic.size() > 1000);
    row("photo of a telephone without its picture", heic.first(420), u"nicht vollständig"_qs);
    row("the same, cut off later", heic.first(700), u"nicht vollständig"_qs);
    row("the same, cut off in its head", heic.first(100), u"nicht vollständig"_qs);
    const QByteArray ispe("ispe\0\0\0\0", 8);
    const QByteArray side = QByteArray::fromHex("00004e20"); // 20,000
    row("the same, saying it is 20,000 pixels square",
        changed(u"turned.heic"_qs, ispe + QByteArray::fromHex("0000008000000060"), ispe + side + side),
        u"zu klein für die 20000 × 20000"_qs);
    row("progressive photo cut off", written(fields({2000, 1500}), "jpeg", true).first(400), u"nicht vollständig"_qs);
}

void tst_MvImageLoader::refuses()
{
    const auto [content, reason] = MvRows<QByteArray, QString>::current();
    put(u"foto.png"_qs, content);
    const QFileInfo file(path(u"foto.png"_qs));
    const bool isHeadCut = qstrcmp(QTest::currentDataTag(), "photo cut off after 300 bytes") == 0;
    for (int i = 0; i < 6 && isHeadCut; ++i) // read three times below
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"JPEG"_qs));
    QVERIFY(MvImageLoader::instance().load(file).isNull());
    QVERIFY2(MvImageLoader::instance().error(file).contains(reason), qPrintable(MvImageLoader::instance().error(file)));
    MvGuardedImageReader inMemory(content);
    QVERIFY(inMemory.read({9000, 9000}).isNull());
    QCOMPARE(inMemory.error(), MvImageLoader::instance().error(file));
    QVERIFY(MvImageLoader::instance().loadScaled(file, {9000, 9000}).isNull());

    QCOMPARE(::mkfifo(QFile::encodeName(path(u"pipe"_qs)).constData(), 0600), 0);
    for (const QString &other : {path(u"pipe"_qs), path(u"missing.png"_qs), m_folder->path(), u"/dev/zero"_qs})
        QVERIFY2(MvImageLoader::instance().load(QFileInfo(other)).isNull(), qPrintable(other));
}

void tst_MvImageLoader::keepsToTheLimitOfTheProcess()
{
    const QByteArray png = written(fields({1024, 512}), "png"); // 2 MB
    const int limit = QImageReader::allocationLimit();
    QVERIFY(!MvGuardedImageReader(png).read({}).isNull());
    QCOMPARE(QImageReader::allocationLimit(), limit); // is left to the program
    QImageReader::setAllocationLimit(1);
    MvGuardedImageReader refused(png);
    QVERIFY(refused.read({}).isNull() && refused.error().contains(u"zu groß: 1024 × 512"_qs));
    MvImageLoader::raiseProcessLimit();
    QVERIFY(!MvGuardedImageReader(png).read({}).isNull());
}

void tst_MvImageLoader::givesUp()
{
    const QByteArray jpeg = written(fields({2000, 1500}), "jpeg", true); // an ordinary progressive one
    MvGuardedImageReader inTime(jpeg);
    QVERIFY(inTime.isQuick());
    QCOMPARE(fieldNames(inTime.read({})), u"rgbw"_qs);
    QCOMPARE(inTime.error(), QString());
    QVERIFY(!MvGuardedImageReader(manyScans(40)).isQuick());

    MvGuardedImageReader late(jpeg);
    QCOMPARE(late.size(), QSize(2000, 1500));
    late.setTimeLimit(0);
    QTest::ignoreMessage(QtWarningMsg, "Corrupt JPEG data: premature end of data segment");
    QVERIFY(late.read({}).isNull());
    QVERIFY2(late.error().contains(u"zu lange"_qs), qPrintable(late.error()));
}

/// Which a decoder would unpack: 2 MB from 2 KB here.
void tst_MvImageLoader::leavesOutTexts()
{
    QImage image = fields({80, 60});
    image.setText(u"Description"_qs, u"A"_qs.repeated(2 << 20));
    const QByteArray png = written(image, "png");
    QVERIFY(png.contains("zTXt"));
    MvGuardedImageReader reader(png);
    const QImage read = reader.read({});
    QCOMPARE(fieldNames(read), u"rgbw"_qs);
    QCOMPARE(read.textKeys(), QStringList());
}

void tst_MvImageLoader::turnsAsTheCameraSays()
{
    const QSize size(800, 600);
    const QStringList fieldsOf{u"rgbw"_qs, u"grwb"_qs, u"wbgr"_qs, u"bwrg"_qs,
                               u"rbgw"_qs, u"brwg"_qs, u"wgbr"_qs, u"gwrb"_qs};
    const QByteArray jpeg = written(fields(size), "jpeg");
    const QByteArray png = written(fields(size), "png");
    const QByteArray webP = written(fields(size), "webp");
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const QByteArray block = MvExifFixture::block(orientation);
        for (const QByteArray &content : {MvExifFixture::inJpeg(jpeg, block), MvExifFixture::inPng(png, block),
                                          MvExifFixture::inWebP(webP, size, block)}) {
            const QSize turned = orientation > 4 ? size.transposed() : size;
            MvGuardedImageReader full(content);
            QCOMPARE(full.size(), turned);
            QCOMPARE(fieldNames(full.read({})), fieldsOf.at(orientation - 1));
            const QImage small = MvGuardedImageReader(content).read({60, 60}); // decoded small, then turned
            QCOMPARE(small.size(), turned.scaled(60, 60, Qt::KeepAspectRatio));
            QCOMPARE(fieldNames(small), fieldsOf.at(orientation - 1));
        }
    }
}

/// The colour 160, 120, 80 in other colour spaces, as bytes of a file; the colours were computed from the primaries.
void tst_MvImageLoader::convertsToScreenColours_data()
{
    const MvRows<QByteArray, QColor> row; // content, color
    const auto inSpace = [](QColorSpace::NamedColorSpace space, QImage::Format pixels) {
        QImage image(16, 16, pixels);
        image.fill(QColor(160, 120, 80));
        image.setColorSpace(space);
        return image;
    };
    const QColor adobe(174, 121, 77);
    row("PNG", written(inSpace(QColorSpace::AdobeRgb, QImage::Format_RGB32), "png"), adobe);
    row("PNG with 16 bits", written(inSpace(QColorSpace::AdobeRgb, QImage::Format_RGBX64), "png"), adobe);
    row("JPEG", written(inSpace(QColorSpace::AdobeRgb, QImage::Format_RGB32), "jpeg"), adobe);
    row("TIFF", written(inSpace(QColorSpace::AdobeRgb, QImage::Format_RGB32), "tiff"), adobe);
    row("WebP", written(inSpace(QColorSpace::AdobeRgb, QImage::Format_RGB32), "webp"), adobe);
    row("HEIC", changed(u"p3.heic"_qs, {}, {}), QColor(167, 118, 73));
    QImage gray(16, 16, QImage::Format_Grayscale16);
    gray.fill(QColor(120, 120, 120));
    row("gray with 16 bits", written(gray, "png"), QColor(120, 120, 120));
}

void tst_MvImageLoader::convertsToScreenColours()
{
    const auto [content, color] = MvRows<QByteArray, QColor>::current();
    MvGuardedImageReader reader(content);
    const QImage image = reader.read({});
    QCOMPARE(reader.error(), QString());
    const QColor seen = image.pixelColor(8, 8);
    const int away = std::max({std::abs(seen.red() - color.red()), std::abs(seen.green() - color.green()),
                               std::abs(seen.blue() - color.blue())});
    QVERIFY2(away <= 2, qPrintable(seen.name()));
}

void tst_MvImageLoader::scales_data()
{
    const MvRows<QSize, QSize> row; // bounds, size
    row("much smaller: decoded small", QSize(100, 100), QSize(100, 75));
    row("halved once", QSize(500, 500), QSize(500, 375));
    row("halved twice", QSize(260, 260), QSize(260, 195));
    row("a little smaller: decoded in full", QSize(1000, 1000), QSize(1000, 750));
    row("height decides", QSize(1000, 60), QSize(80, 60));
    row("larger", QSize(3200, 2400), QSize(3200, 2400));
    row("same size", QSize(1600, 1200), QSize(1600, 1200));
    row("no width", QSize(0, 100), QSize());
}

void tst_MvImageLoader::scales()
{
    const auto [bounds, size] = MvRows<QSize, QSize>::current();
    const QFileInfo narrow(path(u"narrow.png"_qs)); // never less than a pixel
    QVERIFY(fields({30000, 2}).save(narrow.filePath()));
    if (size.isValid())
        QCOMPARE(MvImageLoader::instance().loadScaled(narrow, bounds).size(), QSize(bounds.width(), 1));
    const QFileInfo file(path(u"foto.jpg"_qs));
    QImage image(1600, 1200, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 255 / 1600, y * 255 / 1200, 128));
    }
    QVERIFY(image.save(file.filePath(), "jpeg", 95));
    const QImage scaled = MvImageLoader::instance().loadScaled(file, bounds);
    if (!size.isValid()) {
        QVERIFY(scaled.isNull());
        return;
    }
    QCOMPARE(scaled.size(), size);
    for (const QPointF &place : {QPointF(0.1, 0.9), QPointF(0.5, 0.5), QPointF(0.8, 0.2)}) {
        const QColor color = scaled.pixelColor(int(place.x() * size.width()), int(place.y() * size.height()));
        QVERIFY2(std::abs(color.red() - place.x() * 255) <= 6, qPrintable(color.name()));
        QVERIFY2(std::abs(color.green() - place.y() * 255) <= 6, qPrintable(color.name()));
    }
}

void tst_MvImageLoader::decodesOnce()
{
    const QFileInfo file(path(u"foto.png"_qs));
    QVERIFY(fields({200, 100}).save(file.filePath()));
    MvImageLoader &loader = MvImageLoader::instance();
    const QImage first = loader.loadScaled(file, {50, 50});
    QCOMPARE(loader.loadScaled(file, {50, 50}).cacheKey(), first.cacheKey()); // the same pixels
    QVERIFY(loader.loadScaled(file, {40, 40}).cacheKey() != first.cacheKey());

    QVERIFY(fields({100, 200}).save(file.filePath()));
    QFile touched(file.filePath());
    QVERIFY(touched.open(QIODevice::ReadWrite));
    QVERIFY(touched.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    touched.close();
    QCOMPARE(loader.loadScaled(file, {50, 50}).size(), QSize(25, 50)); // a changed file is read again
}

void tst_MvImageLoader::decodesOnceInManyThreads()
{
    const QFileInfo file(path(u"foto.jpg"_qs));
    QVERIFY(fields({1200, 900}).save(file.filePath()));
    QList<qint64> keys(8);
    std::vector<std::unique_ptr<QThread>> threads;
    for (qint64 &key : keys) {
        threads.emplace_back(QThread::create([&key, &file] {
            key = MvImageLoader::instance().loadScaled(file, {300, 300}).cacheKey();
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        QVERIFY(thread->wait());
    QCOMPARE(QSet<qint64>(keys.cbegin(), keys.cend()).size(), 1);
}

void tst_MvImageLoader::cacheIsBounded()
{
    const qint64 limit = 100LL * 1024;
    MvImageCache cache(limit);
    int made = 0;
    const auto ask = [&](int number, int side) {
        cache.image({QString::number(number), 0, 0, {}}, [&] {
            ++made;
            return QImage(side, side, QImage::Format_RGB32);
        });
    };
    for (int number = 0; number < 10; ++number) { // 16 KiB each: six fit
        ask(number, 64);
        ask(0, 64); // stays in use
        QVERIFY(cache.byteCount() <= limit);
    }
    QCOMPARE(made, 10);
    ask(0, 64);
    ask(9, 64);
    QCOMPARE(made, 10);
    ask(1, 64); // went long ago
    QCOMPARE(made, 11);
    ask(100, 1000); // larger than everything: not kept, pushes nothing out
    ask(9, 64);
    QCOMPARE(made, 12);
}

MV_TEST_MAIN(tst_MvImageLoader)
#include "tst_MvImageLoader.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFolderTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvProject/MvExportJob.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectPack.h"
#include "MvProjectFixture.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(MvExportResult)

/// Files under a photo's name that are none, or odd ones: from the pool over the frame to paper, nobody waits for them,
/// nothing else suffers, and what stays empty is named.
class tst_HostileFotos : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(MvProjectFixture::writeFoto(path(u"gut.png"_s), {60, 40})); }
    void init() {} // decoders have to say something of these
    void wayToPaper_data();
    void wayToPaper();
    void changesOnTheWay_data();
    void changesOnTheWay();

private:
    MvCalendarDocument calendar(int page) const;
};

/// The file in a frame and as the ground of one of two pages, a good photo on the other.
MvCalendarDocument tst_HostileFotos::calendar(int number) const
{
    MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 2);
    MvProjectFixture::setFoto(document, number, MvFotoFrame(path(u"foto.jpg"_s)));
    MvProjectFixture::setFoto(document, 1 - number, MvFotoFrame(path(u"gut.png"_s)));
    MvCalendarPage page = document.pages()[number];
    MvPageBackground ground;
    ground.setFoto(MvFotoElement(path(u"foto.jpg"_s)));
    page.setBackground(ground);
    document.setPage(number, page);
    return document;
}

void tst_HostileFotos::wayToPaper_data()
{
    // content: of a file; where there is none:; place: what the name is a link to, or "folder", "pipe", "nothing";
    // size: invalid: cannot be read
    const MvRows<QByteArray, QString, QSize> row;
    const auto file = [&](const char *name, const QByteArray &content, const QSize &size = {}) {
        row(name, content, QString(), size);
    };
    const auto special = [&](const char *name, const QString &place) { row(name, QByteArray(), place, QSize()); };
    file("one pixel", MvTestFiles::fotoBytes({1, 1}, "png"), {1, 1});
    file("16 bits", MvTestFiles::fotoBytes({50, 40}, "png", QImage::Format_RGBA64), {50, 40});
    file("panorama", MvTestFiles::fotoBytes({30000, 4}, "png"), {30000, 4});
    file("chimney", MvTestFiles::fotoBytes({3, 20000}, "jpeg"), {3, 20000});
    QFile inks(QStringLiteral(MV_TEST_DATA "/fotos/cmyk.jpg"));
    QVERIFY(inks.open(QIODevice::ReadOnly));
    file("inks of a print shop", inks.readAll(), {32, 24});
    const QByteArray jpeg = MvTestFiles::fotoBytes({640, 480}, "jpeg");
    file("cut off after half", jpeg.first(jpeg.size() / 2));
    file("cut off after its head", jpeg.first(700));
    file("PNG cut off", MvTestFiles::fotoBytes({300, 200}, "png").first(9000));
    file("bomb", QByteArray::fromHex("524946461a000000574542505650384c0d0000002ffebfff0f111111111111111100"));
    QByteArray claiming = jpeg;
    claiming.replace(claiming.indexOf("\xff\xc0") + 5, 4, QByteArray::fromHex("ea60ea60"));
    file("JPEG of 60,000 pixels square", claiming + QByteArray(20 << 20, 0));
    file("drawing", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' height='9'/></svg>");
    file("empty", "");
    special("nothing", u"nothing"_s);
    special("folder", u"folder"_s);
    special("pipe", u"pipe"_s);
    special("endless device", u"/dev/zero"_s);
    special("file that fails when it is read", u"/proc/self/mem"_s);
    special("link to itself", u"foto.jpg"_s);
}

void tst_HostileFotos::wayToPaper()
{
    const auto [content, place, size] = MvRows<QByteArray, QString, QSize>::current();
    const QString foto = path(u"foto.jpg"_s);
    QFile::remove(foto);
    if (place == u"folder"_s)
        QVERIFY(QDir().mkdir(foto));
    else if (place == u"pipe"_s)
        QCOMPARE(::mkfifo(QFile::encodeName(foto).constData(), 0600), 0);
    else if (place.isEmpty())
        put(u"foto.jpg"_s, content);
    else if (place != u"nothing"_s)
        QVERIFY(QFile::link(place, foto));
    const bool isReadable = size.isValid();

    if (place != u"folder"_s) { // whose content is gathered
        const MvFotoPoolIntake::Result gathered = MvFotoPoolIntake::gather({foto});
        QCOMPARE(gathered.items.size() + gathered.skipped.size(), 1);
        QCOMPARE(gathered.items.value(0).size, size);
        QVERIFY(isReadable || !gathered.skipped[0].why.isEmpty());
    }

    const MvCalendarDocument document = calendar(0);
    for (const QString &name : {u"k-%n.png"_s, u"k-%n.svg"_s, u"k.pdf"_s}) {
        MvExportJob job(document, MvExportTarget(path(name)), 40);
        QSignalSpy finished(&job, &MvExportJob::finished);
        job.start();
        QVERIFY(finished.wait(30000));
        const auto result = finished[0][0].value<MvExportResult>();
        QVERIFY2(result.isOk(), qPrintable(result.error));
        QCOMPARE(result.missingFotos, isReadable ? QStringList() : QStringList{foto});
        QCOMPARE(result.files.size(), name.endsWith(u"pdf"_s) ? 1 : 2);
    }
    QCOMPARE(QImage(path(u"k-02.png"_s)).pixelColor(10, 10), QColor(Qt::red));
    QCOMPARE(MvTestFiles::contentOf(path(u"k-01.svg"_s)).contains("<image"), isReadable);

    QStringList named;
    for (const MvPrintFinding &found : MvPrintCheck::ofDocument(document, {}, MvPrintCheck::Depth::Photos)) {
        if (found.kind == MvPrintFinding::Kind::MissingFoto || found.kind == MvPrintFinding::Kind::UnreadableFoto)
            named.append(found.path);
    }
    QCOMPARE(named, isReadable ? QStringList() : (QStringList{foto, foto})); // ground and frame
    const MvProjectPack::Result packed = MvProjectPack(document, u"k"_s).writeZip(path(u"k.zip"_s));
    QVERIFY2(packed.isOk(), qPrintable(packed.error));
    if (place.startsWith(u'/') || place == u"pipe"_s)
        QCOMPARE(packed.missing, QStringList{foto});

    QVERIFY(MvProjectFile::write(document, QFileInfo(path(u"k.mvcalendar"_s))).isOk());
    QCOMPARE(MvProjectFile::read(QFileInfo(path(u"k.mvcalendar"_s))).document, document);
    QDir().rmdir(foto);
}

void tst_HostileFotos::changesOnTheWay_data()
{
    const MvRows<QByteArray, bool> row; // content: null: the file vanishes; isReadable
    row("vanishes", QByteArray(), false);
    row("is being written", MvTestFiles::fotoBytes({640, 480}, "jpeg").first(2000), false);
    row("another photo, upright and of another format", MvTestFiles::fotoBytes({40, 90}, "png"), true);
}

/// Between pool and export, and while the page before is exported.
void tst_HostileFotos::changesOnTheWay()
{
    const auto [content, isReadable] = MvRows<QByteArray, bool>::current();
    const QString foto = path(u"foto.jpg"_s);
    for (const bool isWhileExporting : {false, true}) {
        QFile::remove(foto);
        put(u"foto.jpg"_s, MvTestFiles::fotoBytes({90, 60}, "jpeg"));
        MvCalendarDocument document = calendar(1);
        MvFotoPool pool;
        pool.add(MvFotoPoolIntake::gather({foto}).items);
        document.setFotoPool(pool);
        const auto change = [&, content = content] {
            QVERIFY(QFile::remove(foto));
            if (!content.isNull())
                put(u"foto.jpg"_s, content);
        };
        if (!isWhileExporting)
            change();
        const auto found = [&](int page, const MvPageFindings &) {
            if (isWhileExporting && page == 0)
                change();
        };
        const MvExportResult result = MvExportTarget(path(u"k.pdf"_s)).write(document.pageSource({}, found), 40);
        QVERIFY2(result.isOk(), qPrintable(result.error));
        QCOMPARE(result.missingFotos, isReadable ? QStringList() : QStringList{foto});
    }
}

MV_TEST_MAIN(tst_HostileFotos)
#include "tst_HostileFotos.moc"

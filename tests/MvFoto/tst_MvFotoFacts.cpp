// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFolderTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvExifFixture.h"
#include "MvFoto/MvFotoFacts.h"
#include "MvFoto/MvGuardedImageReader.h"

#include <sys/stat.h>

class tst_MvFotoFacts : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void captured_data();
    void captured();
    void description_data();
    void description();
    void capturedByName_data();
    void capturedByName();
    void fromTelephones();
    void damagedNotes();
    void unreadable();

private:
    MvFotoFacts factsOf(const QString &name, const QByteArray &content) const
    {
        put(name, content);
        return MvFotoFacts::of(file(name));
    }
};

static QByteArray written(const char *format)
{
    return MvTestFiles::fotoBytes({40, 30}, format);
}

void tst_MvFotoFacts::captured_data()
{
    const MvRows<QByteArray, QString> row; // text; time: empty: invalid
    row("usual", QByteArray("2026:07:14 15:30:12"), u"2026-07-14T15:30:12.000Z"_qs);
    row("in the hour that summer time skips", QByteArray("2026:03:29 02:30:00"), u"2026-03-29T02:30:00.000Z"_qs);
    row("dashes", QByteArray("2026-07-14T15:30:12"), u"2026-07-14T15:30:12.000Z"_qs);
    row("no time", QByteArray("2026:07:14   :  :  "), u"2026-07-14T00:00:00.000Z"_qs);
    row("time cannot be", QByteArray("2026:07:14 25:61:00"), u"2026-07-14T00:00:00.000Z"_qs);
    for (const char *text : {"0000:00:00 00:00:00", "2026:02:30 10:00:00", "    :  :     :  :  ", "gestern", ""})
        row(text, QByteArray(text), QString());
}

void tst_MvFotoFacts::captured()
{
    const auto [text, time] = MvRows<QByteArray, QString>::current();
    const QByteArray block = MvExifFixture::block(6, text);
    const QByteArray webP = written("webp");
    for (const QByteArray &file :
         {MvExifFixture::inJpeg(written("jpeg"), block), MvExifFixture::inPng(written("png"), block),
          MvExifFixture::inWebP(webP, {40, 30}, block)}) {
        const MvFotoFacts facts = factsOf(u"foto"_qs, file);
        QCOMPARE(facts.captured.toString(Qt::ISODateWithMs), time);
        QCOMPARE(facts.size, QSize(30, 40));
        QCOMPARE(facts.error, QString());
    }
}

void tst_MvFotoFacts::description_data()
{
    const MvRows<QString> row; // expected
    row("Oma im Garten", u"Oma im Garten"_qs);
    row("  B\xc3\xa4rlauch,\n gepfl\xc3\xbc"
        "ckt ",
        u"Bärlauch, gepflückt"_qs);
    row("B\xe4rlauch", u"Bärlauch"_qs); // in the older way
    for (const char *byCamera : {"OLYMPUS DIGITAL CAMERA", "SONY DSC", "Exif_JPEG_PICTURE", "          "})
        row(byCamera, QString());
}

void tst_MvFotoFacts::description()
{
    const auto [expected] = MvRows<QString>::current();
    const QByteArray block = MvExifFixture::described(QTest::currentDataTag());
    QCOMPARE(factsOf(u"foto.jpg"_qs, MvExifFixture::inJpeg(written("jpeg"), block)).description, expected);
}

void tst_MvFotoFacts::capturedByName_data()
{
    const MvRows<QString> row; // time
    row("IMG_20260714_153012.jpg", u"2026-07-14T15:30:12Z"_qs);
    row("PXL_20260714_153012345.MP.jpg", u"2026-07-14T15:30:12Z"_qs);
    row("2026-07-14 15.30.12.jpg", u"2026-07-14T15:30:12Z"_qs);
    row("Screenshot_2026-07-14-15-30-12.png", u"2026-07-14T15:30:12Z"_qs);
    row("WhatsApp Image 2026-07-14 at 15.30.12 (1).jpeg", u"2026-07-14T15:30:12Z"_qs);
    row("20260714153012.jpg", u"2026-07-14T15:30:12Z"_qs);
    row("IMG-20260714-WA0003.jpg", u"2026-07-14T00:00:00Z"_qs);
    row("2026.07.14.jpg", u"2026-07-14T00:00:00Z"_qs);
    for (const char *name : {"IMG_4711.JPG", "DSC_20263012.jpg", "120260714.jpg", "202607140000000000.jpg",
                             "2026-0714.jpg", "Urlaub 2026.jpg", ""})
        row(name, QString());
}

void tst_MvFotoFacts::capturedByName()
{
    const auto [time] = MvRows<QString>::current();
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(MvFotoFacts::capturedByName(name).toString(Qt::ISODate), time);
    if (!name.isEmpty()) // the file's own note counts for more
        QCOMPARE(factsOf(name, MvExifFixture::inJpeg(written("jpeg"), MvExifFixture::block(1, "2025:12:24 18:00:00")))
                     .captured.date(),
                 QDate(2025, 12, 24));
}

void tst_MvFotoFacts::fromTelephones()
{
    const MvFotoFacts facts = MvFotoFacts::of(QFileInfo(QStringLiteral(MV_TEST_DATA "/fotos/turned.heic")));
    const QDateTime captured(QDate(2026, 7, 14), QTime(15, 30, 12, 250), Qt::UTC);
    QVERIFY((facts == MvFotoFacts{"heic", {96, 128}, captured, {}}));
}

/// Cut off anywhere, and every byte at its extremes: the picture is read all the same.
void tst_MvFotoFacts::damagedNotes()
{
    const QByteArray block = MvExifFixture::block(1, "2026:07:14 15:30:12");
    const QByteArray jpeg = written("jpeg");
    const auto check = [&jpeg](const QByteArray &damaged) {
        MvGuardedImageReader reader(MvExifFixture::inJpeg(jpeg, damaged));
        const QSize size = reader.size();
        return (size == QSize(40, 30) || size == QSize(30, 40)) && !reader.read({}).isNull();
    };
    for (qsizetype place = 0; place < block.size(); ++place) {
        QVERIFY(check(block.first(place)));
        for (const char byte : {'\0', '\x7f', '\xff'})
            QVERIFY2(check(QByteArray(block).replace(place, 1, QByteArray(1, byte))),
                     qPrintable(QString::number(place)));
    }
}

void tst_MvFotoFacts::unreadable()
{
    QCOMPARE(::mkfifo(QFile::encodeName(path(u"pipe.jpg"_qs)).constData(), 0600), 0);
    const auto check = [](const MvFotoFacts &facts, const QByteArray &format) {
        QVERIFY(!facts.isValid() && !facts.error.isEmpty());
        QCOMPARE(facts.format, format);
    };
    check(MvFotoFacts::of(file(u"pipe.jpg"_qs)), {});
    check(MvFotoFacts::of(file(u"gone.jpg"_qs)), {});
    check(factsOf(u"a.jpg"_qs, "no photo at all"), {});
    check(factsOf(u"b.jpg"_qs, written("png").first(12)), "png");
    check(factsOf(u"c.heic"_qs, QByteArray("\0\0\0\x18"
                                           "ftypheic\0\0\0\0heicmif1",
                                           24)),
          "heic");
}

MV_TEST_MAIN(tst_MvFotoFacts)
#include "tst_MvFotoFacts.moc"

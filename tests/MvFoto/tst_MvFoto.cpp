// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvFoto/MvFoto.h"
#include "MvFoto/MvFotoAccess.h"

class tst_MvFoto : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesOfCopies_data();
    void namesOfCopies();
    void comparesByPath();
    void mediumResolution();
    void forbiddenFotosStayClosed();
};

void tst_MvFoto::namesOfCopies_data()
{
    const MvRows<int, QString, QString, QString> add; // format, hint, extension, name
    const auto row = [&](const char *what, MvMediaFormat::Format format, const QString &hint, const QString &extension,
                         const QString &name) { add(what, int(format), hint, extension, name); };
    row("photo", MvMediaFormat::Jpeg, u"Oma Erika"_qs, u"JPG"_qs, u"Oma Erika.jpg"_qs);
    row("long extension stays", MvMediaFormat::Jpeg, u"oma"_qs, u"jpeg"_qs, u"oma.jpeg"_qs);
    row("content decides", MvMediaFormat::Jpeg, u"oma"_qs, u"png"_qs, u"oma.jpg"_qs);
    row("with transparent parts", MvMediaFormat::WebP, u"oma"_qs, u"webp"_qs, u"oma.png"_qs);
    row("unreadable", MvMediaFormat::Unknown, u"oma"_qs, u"svg"_qs, u"oma.jpg"_qs);
    row("no name", MvMediaFormat::Jpeg, QString(), QString(), u"foto.jpg"_qs);
    row("way out of the folder", MvMediaFormat::Png, u"../../etc/passwd"_qs, QString(), u"-..-etc-passwd.png"_qs);
    row("refused characters", MvMediaFormat::Png, u" a:b*c\n"_qs, QString(), u"a-b-c.png"_qs);
    row("umlauts and emoji stay", MvMediaFormat::Png, u"Ömi \U0001F382"_qs, QString(), u"Ömi \U0001F382.png"_qs);
    row("very long", MvMediaFormat::Png, QString(79, u'x') + u"\U0001F382"_qs, QString(),
        QString(79, u'x') + u".png"_qs);
}

void tst_MvFoto::namesOfCopies()
{
    const auto [format, hint, extension, name] = MvRows<int, QString, QString, QString>::current();
    QCOMPARE(MvMediaFormat::createFilename(MvMediaFormat::Format(format), hint, extension), name);
}

void tst_MvFoto::comparesByPath()
{
    const MvFoto a(QFileInfo(u"/fotos/x/../a.jpg"_qs));
    const MvFoto sameA(MvFotoKeyFileInfo(u"a.jpg"_qs, {}, QDir(u"/fotos"_qs)));
    const MvFoto b(QFileInfo(u"/fotos/b.jpg"_qs));
    const MvFoto none;
    QVERIFY(a == sameA);
    QCOMPARE(qHash(a), qHash(sameA));
    QVERIFY(a < b && !(b < a) && none < a && !(a < none) && !(none < none));
    QVERIFY(!(a == none) && none == MvFoto(QFileInfo(QString())));
    QVERIFY(!none.isValid());
    QCOMPARE(a.filenameHint() + u'|' + a.fileExtensionHint(), u"a|jpg"_qs);
    QVERIFY(
        !(MvFoto(MvFotoKeyFileInfo(u"a.mp4"_qs, {7}, QDir())) == MvFoto(MvFotoKeyFileInfo(u"a.mp4"_qs, {8}, QDir()))));
}

void tst_MvFoto::mediumResolution()
{
    for (const auto &[full, medium] : {std::pair(QSize(3000, 1500), QSize(2048, 1024)),
                                       {QSize(1000, 4096), QSize(500, 2048)},
                                       {QSize(300, 200), QSize(300, 200)}}) { // small stays
        const QTemporaryDir dir;
        const QString path = dir.filePath(u"a.jpg"_qs);
        QImage image(full, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        QVERIFY(image.save(path));
        const MvFoto foto{QFileInfo(path)};
        QCOMPARE(MvFotoAccess::preferredSize(foto), full);
        for (int caching : {0, 13})
            QCOMPARE(MvFotoAccess::midRes(foto, 4, caching).size(), medium);
        QCOMPARE(MvFotoAccess::fullRes(foto).size(), full);
    }
}

void tst_MvFoto::forbiddenFotosStayClosed()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(u"a.png"_qs);
    QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(path));
    MvFotoKeyFileInfo key(path, {}, QDir());
    key.forbidOpening();
    const MvFoto foto(key);
    QVERIFY(foto.isValid());
    QVERIFY(foto == MvFoto(QFileInfo(path)));
    QCOMPARE(foto.localFilePath(), path);
    QVERIFY(!MvFotoAccess::preferredSize(foto).isValid());
    QVERIFY(MvFotoAccess::fullRes(foto).isNull());
    QVERIFY(MvFotoAccess::midRes(foto, 4, 13).isNull());
    QVERIFY(MvFotoAccess::scaled(foto, {4, 4}).isNull());
    QVERIFY(!foto.mediaFormat().isValid());
}

MV_TEST_MAIN(tst_MvFoto)
#include "tst_MvFoto.moc"

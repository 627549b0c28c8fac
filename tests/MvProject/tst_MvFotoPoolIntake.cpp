// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFolderTest.h"

#include "MvExifFixture.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvFotoRelocation.h"
#include "MvProjectFixture.h"
#include "MvTestFiles.h"

#include <sys/stat.h>

using Reason = MvFotoPoolIntake::Reason;

class tst_MvFotoPoolIntake : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void gathers();
    void besideAWindow();
    void findsAgain();
};

static QByteArray taken(const QByteArray &time, const QSize &size = {60, 40})
{
    return MvExifFixture::inJpeg(MvTestFiles::fotoBytes(size, "jpeg"), MvExifFixture::block(1, time));
}

static QStringList namesOf(const QList<MvFotoPoolItem> &items)
{
    QStringList names;
    for (const MvFotoPoolItem &item : items)
        names.append(QFileInfo(item.path).fileName());
    return names;
}

void tst_MvFotoPoolIntake::initTestCase()
{
    put(u"fotos/b.jpg"_qs, taken("2026:07:14 15:30:12"));
    put(u"fotos/a.jpg"_qs, taken("2026:08:01 10:00:00"));
    put(u"fotos/Bild 10.png"_qs, MvTestFiles::fotoBytes({60, 40}, "png"));
    put(u"fotos/Bild 9.png"_qs, MvTestFiles::fotoBytes({60, 40}, "png"));
    put(u"fotos/.versteckt/c.jpg"_qs, taken("2026:07:14 15:30:12"));
    put(u"fotos/mehr/noch/d.jpg"_qs, taken("2026:07:14 15:30:11"));
    put(u"fotos/Thumbs.db"_qs, "no photo");
    put(u"fremd/e.jpg"_qs, taken("2026:01:01 00:00:00"));
    QVERIFY(QFile::copy(QStringLiteral(MV_TEST_DATA "/fotos/turned.heic"), path(u"fotos/IMG_1.HEIC"_qs)));
    QVERIFY(QFile::link(path(u"fotos/a.jpg"_qs), path(u"fotos/noch einmal.jpg"_qs)));
    QVERIFY(QFile::link(path(u"fremd/e.jpg"_qs), path(u"fotos/hinaus.jpg"_qs)));
    QVERIFY(QFile::link(path(u"fotos"_qs), path(u"fotos/mehr/im Kreis"_qs)));
    QCOMPARE(::mkfifo(QFile::encodeName(path(u"fotos/pipe.jpg"_qs)).constData(), 0600), 0);
}

void tst_MvFotoPoolIntake::gathers()
{
    int last = 0;
    const MvFotoPoolIntake::Result result =
        MvFotoPoolIntake::gather({path(u"fotos"_qs), path(u"fotos/b.jpg"_qs), path(u"weg.jpg"_qs)},
                                 {path(u"fotos/b.jpg"_qs)}, [&last](int done, int) { return last = done, true; });
    QCOMPARE(namesOf(result.items),
             (QStringList{u"d.jpg"_qs, u"IMG_1.HEIC"_qs, u"a.jpg"_qs, u"Bild 9.png"_qs, u"Bild 10.png"_qs}));
    QCOMPARE(result.items[1].size, QSize(96, 128));
    QCOMPARE(result.items[2].captured, QDateTime(QDate(2026, 8, 1), QTime(10, 0), Qt::UTC));
    QVERIFY(!result.items[3].captured.isValid());
    QCOMPARE(result.known, 3); // b.jpg by two ways, a.jpg by its link
    QCOMPARE(last, 8);
    QList<Reason> reasons;
    for (const MvFotoPoolIntake::Skipped &skipped : result.skipped) {
        QVERIFY(!skipped.why.isEmpty());
        reasons.append(skipped.reason);
    }
    QCOMPARE(reasons,
             (QList<Reason>{Reason::NoFoto, Reason::Outside, Reason::Outside, Reason::Closed, Reason::Closed}));
    QCOMPARE(result.toStrings().size(), 4 + 2);
    QVERIFY(MvFotoPoolIntake::gather({path(u"fotos"_qs)}, {}, [](int done, int) { return done < 2; }).isCancelled);
}

void tst_MvFotoPoolIntake::besideAWindow()
{
    QList<int> counts;
    MvFotoPoolIntake intake;
    connect(&intake, &MvFotoPoolIntake::finished, this, [&counts](const MvFotoPoolIntake::Result &result) {
        counts.append(result.isCancelled ? -1 : int(result.items.size()));
    });
    QSignalSpy progress(&intake, &MvFotoPoolIntake::progressed);
    intake.start({path(u"fotos"_qs)}, {});
    QVERIFY(intake.isRunning() && counts.isEmpty());
    QTRY_COMPARE(counts, QList<int>{6});
    QVERIFY(!intake.isRunning() && progress.count() > 0);
    intake.start({path(u"fotos"_qs)}, {});
    intake.cancel();
    intake.start({path(u"fremd"_qs)}, {});
    QTRY_COMPARE(counts, (QList<int>{6, -1, 1}));
    MvFotoPoolIntake leaving;
    leaving.start({path(u"fotos"_qs)}, {}); // whose window is closed meanwhile
}

void tst_MvFotoPoolIntake::findsAgain()
{
    put(u"alt/IMG_1.jpg"_qs, taken("2026:05:01 10:00:00"));
    put(u"alt/IMG_2.jpg"_qs, taken("2026:05:02 10:00:00"));
    put(u"alt/IMG_3.jpg"_qs, taken("2026:05:03 10:00:00"));
    MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_qs, 2);
    MvFotoPool pool;
    pool.add(MvFotoPoolIntake::gather({path(u"alt"_qs)}).items);
    document.setFotoPool(pool);
    MvProjectFixture::setFoto(document, 0, MvFotoFrame(path(u"alt/IMG_2.jpg"_qs)));
    QVERIFY(MvFotoRelocation::missing(document).isEmpty());

    put(u"neu/anders/IMG_1.jpg"_qs, taken("2020:05:01 10:00:00")); // of the same name only
    put(u"neu/2026/img_1.JPG"_qs, taken("2026:05:01 10:00:00"));
    put(u"neu/Mai 2.jpg"_qs, taken("2026:05:02 10:00:00")); // by another name
    put(u"neu/Mai 3.jpg"_qs, taken("2026:05:03 10:00:00"));
    put(u"neu/Mai 3 (Kopie).jpg"_qs, taken("2026:05:03 10:00:00")); // either could be meant
    QVERIFY(QDir(path(u"alt"_qs)).removeRecursively());
    const QStringList missing = MvFotoRelocation::missing(document);
    QCOMPARE(missing.size(), 3);
    const QHash<QString, QString> found = MvFotoRelocation::find(missing, document.fotoPool(), path(u"neu"_qs));
    QCOMPARE(found, (QHash<QString, QString>{{path(u"alt/IMG_1.jpg"_qs), path(u"neu/2026/img_1.JPG"_qs)},
                                             {path(u"alt/IMG_2.jpg"_qs), path(u"neu/Mai 2.jpg"_qs)}}));
    const MvCalendarDocument again = MvFotoRelocation::relocated(document, found);
    QCOMPARE(again.pages()[0].fotoFrame().path(), path(u"neu/Mai 2.jpg"_qs));
    QCOMPARE(MvFotoRelocation::missing(again), QStringList{path(u"alt/IMG_3.jpg"_qs)});
}

MV_TEST_MAIN(tst_MvFotoPoolIntake)
#include "tst_MvFotoPoolIntake.moc"

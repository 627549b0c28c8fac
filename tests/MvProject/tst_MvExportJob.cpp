// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFreshFolderTest.h"
#include "MvProject/MvExportJob.h"
#include "MvProject/MvPageSource.h"
#include "MvProjectFixture.h"
#include "MvRows.h"

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;

Q_DECLARE_METATYPE(MvExportResult)

namespace {

MvExportResult resultOf(MvExportJob &job)
{
    QSignalSpy finished(&job, &MvExportJob::finished);
    job.start();
    job.start(); // changes nothing
    return finished.wait(30000) ? finished.first().first().value<MvExportResult>() : MvExportResult();
}

QStringList namesOf(const QList<QFileInfo> &files)
{
    QStringList names;
    for (const QFileInfo &file : files)
        names.append(file.fileName());
    return names;
}

} // namespace

class tst_MvExportJob : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesWhatTheExporterWrites_data();
    void writesWhatTheExporterWrites();
    void cancels_data();
    void cancels();
    void diesWhileRunning();
    void tellsOfErrors();

private:
    MvCalendarDocument calendar(int pages) const;

    const QTemporaryDir m_album;
    const QString m_foto = m_album.filePath(u"foto.png"_s);
};

void tst_MvExportJob::init()
{
    MvFreshFolderTest::init();
    QVERIFY(writeFoto(m_foto, {600, 400}));
}

MvCalendarDocument tst_MvExportJob::calendar(int pages) const
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, pages);
    for (int page = 0; page < pages; ++page)
        setFoto(calendar, page, MvFotoFrame(m_foto, MvFotoFrame::Placement(page % 3)));
    return calendar;
}

void tst_MvExportJob::writesWhatTheExporterWrites_data()
{
    const MvRows<QString> row; // name
    row("PNG", u"k-%n.png"_s);
    row("SVG", u"k-%n.svg"_s);
    row("PDF", u"k.pdf"_s);
    row("PDF of each page", u"k-%n.pdf"_s);
    row("HTML", u"k-%n.html"_s);
}

void tst_MvExportJob::writesWhatTheExporterWrites()
{
    const auto [name] = MvRows<QString>::current();
    const MvCalendarDocument document = calendar(4);
    MvExportJob job(document, MvExportTarget(path(name), MvExportTarget::Pdf::OneOfEachPage), 72);
    QSignalSpy progress(&job, &MvExportJob::progress);
    const MvExportResult result = resultOf(job);
    QCOMPARE(result.error, QString());
    QVERIFY(result.isOk() && !job.isRunning());
    QCOMPARE(namesOf(result.files), files());
    QCOMPARE(progress.size(), 5);
    for (int done = 0; done <= 4; ++done)
        QCOMPARE(progress[done], (QVariantList{done, 4}));

    // a page straight from the document is the same
    if (name.endsWith(u".png"_s) || name.endsWith(u".html"_s)) {
        QVERIFY(QDir(m_folder->path()).mkdir(u"direkt"_s));
        const MvExportTarget direct(path(u"direkt/"_s + name), MvExportTarget::Pdf::OneOfEachPage);
        QVERIFY(direct.write(document.pageSource(), 72).isOk());
        for (const QFileInfo &file : result.files)
            QCOMPARE(contentOf(file.filePath()), contentOf(u"direkt/"_s + file.fileName()));
    }
}

void tst_MvExportJob::cancels_data()
{
    const MvRows<QString, int> row; // name; after: so many pages
    row("pictures, at once", u"k-%n.png"_s, 0);
    row("pictures, later", u"k-%n.png"_s, 3);
    row("one file", u"k.pdf"_s, 3);
}

void tst_MvExportJob::cancels()
{
    const auto [name, after] = MvRows<QString, int>::current();
    MvExportJob job(calendar(40), MvExportTarget(path(name)), 150);
    connect(&job, &MvExportJob::progress, &job, [&, after = after](int done) {
        if (done == after)
            job.cancel();
    });
    const MvExportResult result = resultOf(job);
    QCOMPARE(result.error, QString());
    QVERIFY(result.isCancelled && !result.isOk());
    QCOMPARE(namesOf(result.files), files());
    QVERIFY(result.files.size() >= (name.endsWith(u".png"_s) ? after : 0) && result.files.size() < 40);
    for (const QFileInfo &file : result.files)
        QVERIFY(!QImage(file.filePath()).isNull());
}

void tst_MvExportJob::diesWhileRunning()
{
    auto job = std::make_unique<MvExportJob>(calendar(20), MvExportTarget(path(u"k.pdf"_s)));
    QSignalSpy progress(job.get(), &MvExportJob::progress);
    job->start();
    QVERIFY(progress.wait());
    job.reset();
    QCOMPARE(files(), QStringList());
}

void tst_MvExportJob::tellsOfErrors()
{
    for (const QString &name : {u"k.doc"_s, u"k.png"_s, u"nirgends/k.pdf"_s}) {
        MvExportJob job(calendar(2), MvExportTarget(path(name)));
        const MvExportResult result = resultOf(job);
        QVERIFY2(result.error.contains(name), qPrintable(result.error));
    }
}

MV_TEST_MAIN(tst_MvExportJob)
#include "tst_MvExportJob.moc"

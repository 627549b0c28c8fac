// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvBackground.h"
#include "MvFolderTest.h"
#include "MvProject/MvExportJob.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProjectFixture.h"
#include "MvRows.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvEntries.h"

#include <atomic>
#include <cerrno>
#include <dlfcn.h>
#include <pthread.h>

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;

Q_DECLARE_METATYPE(MvExportResult)

namespace {

std::atomic_bool hasThreads = true;

} // namespace

/// In place of the system's, for the libraries, too.
extern "C" int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*start)(void *),
                              void *argument) noexcept
{
    static const auto real = reinterpret_cast<decltype(&pthread_create)>(::dlsym(RTLD_NEXT, "pthread_create"));
    return hasThreads ? real(thread, attributes, start, argument) : EAGAIN;
}

/// On a computer that has no thread left to give, what is done beside the window is done all the same; pages are
/// painted with the threads that were kept.
class tst_NoThreads : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { hasThreads = false; }
    void cleanup();
    void hadNoneEver();
    void exports_data();
    void exports();
    void endsCancelled();
    void takesFotosAndSaves();

private:
    MvCalendarDocument calendar() const;
};

/// With a photo on the page, and one of a day, which other threads decode elsewhere.
MvCalendarDocument tst_NoThreads::calendar() const
{
    writeFoto(path(u"foto.png"_s), {2400, 1600});
    MvCalendarEvent entry = MvEntries::entry(u"Oma"_s, {1960, 1, 17});
    entry.takeFoto(MvFoto(QFileInfo(path(u"foto.png"_s))));
    MvCalendarEventRegistry::instance().setEvents({entry});
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 3);
    setFoto(calendar, 1, MvFotoFrame(path(u"foto.png"_s)));
    return calendar;
}

void tst_NoThreads::cleanup()
{
    hasThreads = true;
    QVERIFY(MvBackground::keepThreads());
}

/// The first function: afterwards there are some.
void tst_NoThreads::hadNoneEver()
{
    const MvCalendarDocument plain = document(u"MONTH_GRID_CLASSIC"_s, 1);
    const MvExportResult result = MvExportTarget(path(u"k.png"_s)).write(plain.pageSource(), 100);
    QCOMPARE(result.error, path(u"k.png: "_s) + MvBackground::noThreads());
}

void tst_NoThreads::exports_data()
{
    const MvRows<QString> row; // name
    for (const QString &name : {u"k.pdf"_s, u"k-%n.png"_s, u"k-%n.svg"_s, u"k.html"_s})
        row(name, name);
}

void tst_NoThreads::exports()
{
    const auto [name] = MvRows<QString>::current();
    MvExportJob job(calendar(), MvExportTarget(path(name)), 100);
    QSignalSpy finished(&job, &MvExportJob::finished);
    QSignalSpy progress(&job, &MvExportJob::progress);
    job.start();
    QVERIFY(job.isRunning() && finished.wait());
    const auto result = finished.first().first().value<MvExportResult>();
    QCOMPARE(result.error, QString());
    QCOMPARE(result.missingFotos, QStringList());
    QCOMPARE(result.files.size(), name.contains(u'%') ? 3 : 1);
    QCOMPARE(progress.size(), 4);
    QCOMPARE(progress.last(), (QVariantList{3, 3}));
    QVERIFY(!job.isRunning());
}

void tst_NoThreads::endsCancelled()
{
    MvExportJob job(calendar(), MvExportTarget(path(u"cancelled.pdf"_s)));
    QSignalSpy finished(&job, &MvExportJob::finished);
    connect(&job, &MvExportJob::progress, &job, &MvExportJob::cancel);
    job.start();
    QVERIFY(finished.wait());
    QVERIFY(finished.first().first().value<MvExportResult>().isCancelled);
    QVERIFY(!QFile::exists(path(u"cancelled.pdf"_s)));
}

void tst_NoThreads::takesFotosAndSaves()
{
    writeFoto(path(u"foto.png"_s), {240, 160});
    MvFotoPoolIntake intake;
    QSignalSpy taken(&intake, &MvFotoPoolIntake::finished);
    intake.start({path(u"foto.png"_s)}, {});
    QVERIFY(!taken.isEmpty() || taken.wait());
    QCOMPARE(taken.first().first().value<MvFotoPoolIntake::Result>().items.size(), 1);

    MvProject project;
    MvProjectAutosave autosave(&project);
    autosave.setDelay(0);
    QSignalSpy written(&autosave, &MvProjectAutosave::written);
    project.change(calendar(), u"Fotos verteilen"_s);
    QVERIFY(written.wait());
}

MV_TEST_MAIN(tst_NoThreads)
#include "tst_NoThreads.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvDirectoryConfig.h"
#include "MvFolderTest.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectRecovery.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTestFiles.h"

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;

namespace {

MvCalendarDocument titled(const QString &title)
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 2);
    calendar.setTitle(title);
    return calendar;
}

QStringList recoveryFiles()
{
    return QDir(MvProjectAutosave::folder()).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

class tst_MvProjectAutosave : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { cleanup(); }
    void cleanup() { MvDirectoryConfig::instance().setProgramDataDir(path(u"daten"_s)); }
    void knowsWhetherTheFileIsAnother_data() { MvRows<bool, QString, bool>().read(u"recovered-originals"_s); }
    void knowsWhetherTheFileIsAnother();
    void goesWhenNothingIsLost();
    void tellsOfFailures();
};

void tst_MvProjectAutosave::knowsWhetherTheFileIsAnother()
{
    const auto [hasStamp, meanwhile, isAnother] = MvRows<bool, QString, bool>::current();
    const QFileInfo original = file(u"original.mvcalendar"_s);
    MvProject before;
    before.newProject(titled(u"vorher"_s));
    QVERIFY(before.saveAs(original));
    QByteArray stamp = before.fileStamp();
    if (meanwhile == u"device"_s)
        stamp = "4711" + stamp.mid(stamp.indexOf(':'));
    const QFileInfo lost(MvProjectAutosave::folder() + u"/lost.mvcalendar"_s);
    QVERIFY(MvTestFiles::write(lost.filePath(),
                               MvProjectFile::toBytes(titled(u"verloren"_s), lost.absoluteDir(), original.filePath(),
                                                      hasStamp ? stamp : QByteArray())));

    if (meanwhile.startsWith(u"saved"_s)) {
        QCOMPARE(MvProjectFile::write(titled(u"gerettet"_s), original).error, QString());
        QFile saved(original.filePath());
        const QDateTime time = QFileInfo(lost.filePath()).lastModified().addSecs(meanwhile == u"saved"_s ? 60 : -60);
        QVERIFY(saved.open(QIODevice::ReadWrite) && saved.setFileTime(time, QFileDevice::FileModificationTime));
    } else if (meanwhile == u"removed"_s) {
        QVERIFY(QFile::remove(original.filePath()));
    }
    MvProject project;
    QVERIFY(MvProjectRecovery::open({lost, original.filePath(), {}, {}}, project));
    QCOMPARE(project.isFileChangedByOthers(), isAnother);
    MvProjectRecovery::discard({lost, {}, {}, {}});
}

void tst_MvProjectAutosave::goesWhenNothingIsLost()
{
    MvProject project;
    project.newProject(titled(u"alt"_s));
    auto autosave = std::make_unique<MvProjectAutosave>(&project);
    autosave->setDelay(0);
    QSignalSpy written(autosave.get(), &MvProjectAutosave::written);
    const auto change = [&](const QString &title) {
        project.change(titled(title), u"Titel"_s);
        return written.wait();
    };
    QVERIFY(change(u"neu"_s));
    QVERIFY(MvProjectFile::read(autosave->file()).document == project.document());
    QCOMPARE(recoveryFiles().size(), 2); // with its lock
    QVERIFY(project.saveAs(QFileInfo(path(u"a.mvcalendar"_s))));
    QTRY_COMPARE(recoveryFiles(), QStringList());

    QVERIFY(change(u"noch neuer"_s));
    project.change(titled(u"neu"_s), u"zurück"_s); // as saved
    QTRY_COMPARE(recoveryFiles(), QStringList());

    QVERIFY(change(u"aufgegeben"_s));
    project.newProject(titled(u"anderes"_s));
    QTRY_COMPARE(recoveryFiles(), QStringList());

    QVERIFY(change(u"beim Schließen"_s));
    autosave.reset();
    QCOMPARE(recoveryFiles(), QStringList());
}

void tst_MvProjectAutosave::tellsOfFailures()
{
    put(u"keinordner"_s, {});
    MvDirectoryConfig::instance().setProgramDataDir(path(u"keinordner"_s));
    MvProject project;
    project.newProject(titled(u"alt"_s));
    MvProjectAutosave autosave(&project);
    autosave.setDelay(0);
    QSignalSpy failed(&autosave, &MvProjectAutosave::failed);
    project.change(titled(u"neu"_s), u"Titel"_s);
    QVERIFY(failed.wait());
    QVERIFY2(failed.first().first().toString().contains(u"keinordner"_s), "names the place");
    QVERIFY(!failed.wait(50)); // once
}

MV_TEST_MAIN(tst_MvProjectAutosave)
#include "tst_MvProjectAutosave.moc"

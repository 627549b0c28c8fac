// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvExportJob.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectRecovery.h"
#include "MvProjectFixture.h"
#include "MvStudioApplication.h"
#include "MvWidgetTest.h"
#include "flows/MvProjectFlow.h"
#include "window/MvStudioWindow.h"

#include <functional>

#include <unistd.h>

using namespace Qt::StringLiterals;

// The studio is killed at a random moment, again and again. A second process runs it; what that has done, it tells line
// by line, and what it has told must be there.

// what a change may wait for, and then the writing
static_assert(MvProjectAutosave::defaultDelay <= 10000);

namespace {

void tell(const QByteArray &line)
{
    if (::write(STDOUT_FILENO, (line + '\n').constData(), size_t(line.size()) + 1) < 0)
        ::_exit(1);
}

QString titleOf(int step)
{
    return u"Stand %1"_s.arg(step);
}

int stepOf(const QString &title)
{
    return title.startsWith(u"Stand "_s) ? title.mid(6).toInt() : 0;
}

/// The studio in the process that will be killed.
class Victim
{
public:
    Victim(const QString &work, const QDir &folder)
        : m_studio(MvStudioOptions::parse({u"mvcalendar-studio"_s}))
        , m_folder(folder)
    {
        m_studio.start();
        m_studio.autosave()->setDelay(20);
        m_studio.project()->newProject(MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 12));
        const QHash<QString, std::function<void()>> works{{u"edit"_s, [this] { edit(); }},
                                                          {u"hurry"_s, [this] { hurry(); }},
                                                          {u"save"_s, [this] { save(); }},
                                                          {u"pdf"_s, [this] { exportTo(u"Kalender.pdf"_s); }},
                                                          {u"png"_s, [this] { exportTo(u"Kalender-%m.png"_s); }}};
        QTimer::singleShot(0, &m_studio, works.value(work));
    }

private:
    MvProject *project() const { return m_studio.project(); }

    void change()
    {
        MvCalendarDocument document = project()->document();
        document.setTitle(titleOf(++m_step));
        project()->change(document, u"Titel ändern"_s);
    }

    void addEntry() const
    {
        const MvCalendarEvent entry(titleOf(m_step), QDate(2000, 2, 29).startOfDay(), true, MvFoto(),
                                    QUuid::createUuid(), QDateTime());
        MvUndoController::instance().push(new MvUndoCommandCalendarEvent(MvCalendarEvent(), entry, nullptr));
        tell("entry " + QByteArray::number(m_step));
    }

    void goOn(void (Victim::*work)())
    {
        tell("step " + QByteArray::number(m_step));
        QTimer::singleShot(0, &m_studio, [this, work] { (this->*work)(); });
    }

    /// One change after the other, each safe before the next one comes.
    void edit()
    {
        change();
        addEntry();
        QObject::connect(
            m_studio.autosave(), &MvProjectAutosave::written, &m_studio, [this] { goOn(&Victim::edit); },
            Qt::SingleShotConnection);
    }

    /// Changes that do not wait for anything.
    void hurry()
    {
        change();
        if (m_step == 1)
            QObject::connect(m_studio.autosave(), &MvProjectAutosave::written, &m_studio, [] { tell("step 1"); });
        QTimer::singleShot(1, &m_studio, [this] { hurry(); });
    }

    void save()
    {
        change();
        if (project()->fileInfo().filePath().isEmpty())
            project()->saveAs(QFileInfo(m_folder.filePath(u"Kalender.mvcalendar"_s)));
        else
            m_studio.window()->projectFlow()->save();
        goOn(&Victim::save);
    }

    void exportTo(const QString &name)
    {
        ++m_step;
        auto *job = new MvExportJob(project()->document(), MvExportTarget(m_folder.filePath(name)), 40, &m_studio);
        QObject::connect(job, &MvExportJob::progress, &m_studio,
                         [](int done, int) { tell("page " + QByteArray::number(done)); });
        QObject::connect(job, &MvExportJob::finished, &m_studio, [this, job, name](const MvExportResult &result) {
            if (!result.error.isEmpty())
                qFatal("%s", qPrintable(result.error));
            job->deleteLater();
            tell("step " + QByteArray::number(m_step));
            QTimer::singleShot(0, &m_studio, [this, name] { exportTo(name); });
        });
        job->start();
    }

    MvStudioApplication m_studio;
    QDir m_folder;
    int m_step = 0;
};

} // namespace

class tst_StudioKill : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whileEditing_data();
    void whileEditing();
    void whileChangesDoNotEnd();
    void whileSaving_data();
    void whileSaving();
    void whileExporting_data();
    void whileExporting();

private:
    /// Lets a studio work until it has told so many lines and a random moment more. Gives the last number told after
    /// each word.
    QHash<QByteArray, int> kill(const QString &work, int lines);
    QString path(const QString &name) const { return m_folder->filePath(name); }
    static void addRows(int rounds);

    std::unique_ptr<QTemporaryDir> m_folder;
    QRandomGenerator m_random{20270101};
};

void tst_StudioKill::init()
{
    failOnWarnings();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    MvDirectoryConfig::instance().setProgramDataDir(path(u"data"_s));
}

QHash<QByteArray, int> tst_StudioKill::kill(const QString &work, int lines)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"MVCALENDAR_DATA"_s, path(u"data"_s));
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {u"--victim"_s, work, m_folder->path()});
    QByteArray told;
    while (told.count('\n') < lines && child.waitForReadyRead(30000))
        told += child.readAllStandardOutput();
    QThread::usleep(m_random.bounded(30000u));
    child.kill();
    child.waitForFinished(30000);
    told += child.readAllStandardOutput();
    QHash<QByteArray, int> numbers;
    const QList<QByteArray> allLines = told.split('\n');
    for (const QByteArray &line : allLines)
        if (const qsizetype space = line.indexOf(' '); space > 0)
            numbers[line.left(space)] = line.mid(space + 1).toInt();
    return numbers;
}

void tst_StudioKill::addRows(int rounds)
{
    QTest::addColumn<int>("lines");
    for (int round = 1; round <= rounds; ++round)
        QTest::addRow("round %d", round) << 2 + 3 * round;
}

void tst_StudioKill::whileEditing_data()
{
    addRows(8);
}

void tst_StudioKill::whileEditing()
{
    QFETCH(int, lines);
    const QHash<QByteArray, int> told = kill(u"edit"_s, lines);
    QVERIFY(told.value("step") > 0);

    const MvCalendarEventFile::Content entries =
        MvCalendarEventFile::read(QFileInfo(path(u"data/calendarEvents.xml"_s)));
    QCOMPARE(entries.error, QString());
    QVERIFY(entries.isComplete);
    QStringList names;
    for (const MvCalendarEvent &entry : entries.events)
        names.append(entry.description());
    for (int step = 1; step <= told.value("entry"); ++step)
        QVERIFY2(names.contains(titleOf(step)), qPrintable(titleOf(step)));

    MvStudioApplication next(MvStudioOptions::parse({u"mvcalendar-studio"_s}));
    next.start();
    QPushButton *open = nullptr;
    QTRY_VERIFY(open = next.window()->findChild<QPushButton *>(u"recoveryOpen"_s));
    QTest::mouseClick(open, Qt::LeftButton);
    const int found = stepOf(next.project()->document().title());
    QVERIFY2(found == told.value("step") || found == told.value("step") + 1,
             qPrintable(u"%1 after step %2"_s.arg(found).arg(told.value("step"))));
    QCOMPARE(next.project()->document().pages().size(), 12);
    QVERIFY(next.project()->isModified());
}

/// Somebody who never pauses is not without a net for that.
void tst_StudioKill::whileChangesDoNotEnd()
{
    const QHash<QByteArray, int> told = kill(u"hurry"_s, 3);
    QCOMPARE(told.value("step"), 1);
    const QList<MvProjectRecovery::Entry> found = MvProjectRecovery::found();
    QCOMPARE(found.size(), 1);
    QVERIFY(stepOf(found.first().title) > 1);
}

void tst_StudioKill::whileSaving_data()
{
    addRows(6);
}

void tst_StudioKill::whileSaving()
{
    QFETCH(int, lines);
    const QHash<QByteArray, int> told = kill(u"save"_s, lines);
    QVERIFY(told.value("step") > 0);
    const MvProjectFile::Content content = MvProjectFile::read(QFileInfo(path(u"Kalender.mvcalendar"_s)));
    QCOMPARE(content.error, QString());
    QCOMPARE(content.notes, QStringList());
    QCOMPARE(content.document.pages().size(), 12);
    const int found = stepOf(content.document.title());
    QVERIFY2(found == told.value("step") || found == told.value("step") + 1,
             qPrintable(u"%1 after step %2"_s.arg(found).arg(told.value("step"))));
}

void tst_StudioKill::whileExporting_data()
{
    QTest::addColumn<QString>("work");
    QTest::addColumn<int>("lines");
    for (const int lines : {1, 5, 9, 16, 23}) {
        QTest::addRow("PDF, %d lines", lines) << u"pdf"_s << lines;
        QTest::addRow("PNG, %d lines", lines) << u"png"_s << lines;
    }
}

/// What lies under the name that was asked for is complete.
void tst_StudioKill::whileExporting()
{
    QFETCH(QString, work);
    QFETCH(int, lines);
    const QHash<QByteArray, int> told = kill(work, lines);
    QVERIFY(told.contains("page"));
    const QFileInfoList files = QDir(m_folder->path()).entryInfoList({u"*.pdf"_s, u"*.png"_s}, QDir::Files);
    for (const QFileInfo &info : files) {
        if (work == u"png"_s) {
            QVERIFY2(!QImage(info.filePath()).isNull(), qPrintable(info.fileName()));
            continue;
        }
        QFile file(info.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        QVERIFY2(content.startsWith("%PDF-") && content.trimmed().endsWith("%%EOF"), qPrintable(info.fileName()));
    }
    if (told.contains("step"))
        QCOMPARE(files.size(), work == u"png"_s ? 12 : 1);
}

int main(int argc, char **argv)
{
    if (argc == 4 && QByteArray(argv[1]) == "--victim") {
        const QApplication application(argc, argv);
        const Victim victim(QString::fromLocal8Bit(argv[2]), QDir(QString::fromLocal8Bit(argv[3])));
        return QApplication::exec();
    }
    return mvRunWidgetTest(argc, argv, []() -> QObject * { return new tst_StudioKill; });
}
#include "tst_StudioKill.moc"

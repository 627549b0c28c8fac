// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvUndoController.h"
#include "MvEntries.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectRecovery.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvStudioApplication.h"
#include "MvWidgetTest.h"
#include "window/MvStudioWindow.h"

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

QStringList titlesTo(int step)
{
    QStringList titles;
    for (int each = 1; each <= step; ++each)
        titles.append(titleOf(each));
    return titles;
}

int stepOf(const QString &title)
{
    return title.startsWith(u"Stand "_s) ? title.mid(6).toInt() : 0;
}

/// The studio in the process that will be killed.
class Victim
{
public:
    explicit Victim(const QString &work)
        : m_studio(MvStudioOptions::parse({u"mvcalendar-studio"_s}))
    {
        m_studio.start();
        m_studio.autosave()->setDelay(20);
        m_studio.project()->newProject(MvProjectFixture::album(0));
        QTimer::singleShot(0, &m_studio, [this, work] { work == u"edit"_s ? edit() : hurry(); });
    }

private:
    MvProject *project() const { return m_studio.project(); }

    void change() { project()->change(MvProjectFixture::album(++m_step), u"Fotos verteilen"_s); }

    void addEntry() const
    {
        const MvCalendarEvent entry = MvEntries::entry(titleOf(m_step), {2000, 2, 29});
        MvUndoController::instance().push(new MvUndoCommandCalendarEvent(MvCalendarEvent(), entry, nullptr));
        tell("entry " + QByteArray::number(m_step));
    }

    /// One change after the other, each safe before the next one comes.
    void edit()
    {
        change();
        addEntry();
        const auto goOn = [this] {
            tell("step " + QByteArray::number(m_step));
            QTimer::singleShot(0, &m_studio, [this] { edit(); });
        };
        QObject::connect(m_studio.autosave(), &MvProjectAutosave::written, &m_studio, goOn, Qt::SingleShotConnection);
    }

    /// Changes that do not wait for anything.
    void hurry()
    {
        change();
        if (m_step == 1)
            QObject::connect(m_studio.autosave(), &MvProjectAutosave::written, &m_studio, [] { tell("step 1"); });
        QTimer::singleShot(1, &m_studio, [this] { hurry(); });
    }

    MvStudioApplication m_studio;
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

private:
    /// Lets a studio work until it has told so many lines and a random moment more. Gives the last number told after
    /// each word.
    QHash<QByteArray, int> kill(const QString &work, int lines);
    QString path(const QString &name) const { return m_folder->filePath(name); }

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
    child.start(QCoreApplication::applicationFilePath(), {u"--victim"_s, work});
    QByteArray told;
    while (told.count('\n') < lines && child.waitForReadyRead(30000))
        told += child.readAllStandardOutput();
    QThread::usleep(m_random.bounded(30000u));
    if (!MvProjectRecovery::found().isEmpty())
        qFatal("what a living program works on is no loss");
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

void tst_StudioKill::whileEditing_data()
{
    const MvRows<int> row; // lines
    const int rounds = qEnvironmentVariableIsSet("MV_NIGHTLY") ? 100 : 5;
    for (int round = 1; round <= rounds; ++round)
        row(QString::asprintf("round %d", round), 2 + 5 * (round % 8));
}

void tst_StudioKill::whileEditing()
{
    const auto [lines] = MvRows<int>::current();
    const QHash<QByteArray, int> told = kill(u"edit"_s, lines);
    QVERIFY(told.value("step") > 0);

    const MvCalendarEventFile::Content entries =
        MvCalendarEventFile::read(QFileInfo(path(u"data/calendarEvents.xml"_s)));
    QCOMPARE(entries.error, QString());
    QVERIFY(entries.isComplete);
    const QStringList names = MvEntries::names(entries.events);
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
    QCOMPARE(next.project()->document(), MvProjectFixture::album(found)); // photos, frames and templates with it
    QVERIFY(next.project()->isModified());
    QVERIFY(next.project()->entries());
    QCOMPARE(MvEntries::names(*next.project()->entries()), titlesTo(found)); // the calendar's own, of the same moment
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

int main(int argc, char **argv)
{
    if (argc == 3 && QByteArray(argv[1]) == "--victim") {
        const QApplication application(argc, argv);
        const Victim victim(QString::fromLocal8Bit(argv[2]));
        return QApplication::exec();
    }
    return mvRunWidgetTest(argc, argv, []() -> QObject * { return new tst_StudioKill; });
}
#include "tst_StudioKill.moc"

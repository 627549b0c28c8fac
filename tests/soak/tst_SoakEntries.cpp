// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvEntryHistory.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCore/MvDirectoryConfig.h"

#include <QDomDocument>
#include <QGuiApplication>

#include <csignal>
#include <sys/types.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// Several programs edit one file of entries at the same time; some are stopped for a while, some killed. The list that
// remains must be one that their edits give in some order.

class tst_SoakEntries : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void programsShareAFile_data();
    void programsShareAFile();
};

namespace {

/// A program that edits, and tells each step by a line: "C 1x17" before it changes that entry, "saved" when everything
/// up to here is on disk.
class Program
{
public:
    Program(int number, quint32 seed, int edits)
        : m_editor(seed, u"%1x"_s.arg(number))
        , m_number(number)
        , m_edits(edits)
    {
        m_timer.callOnTimeout([this] { step(); });
        m_timer.setSingleShot(true);
        m_timer.start(0);
    }

private:
    static void tell(const QByteArray &line)
    {
        if (::write(STDOUT_FILENO, (line + '\n').constData(), size_t(line.size() + 1)) < 0)
            ::_exit(1);
    }

    void step()
    {
        auto &registry = MvCalendarEventRegistry::instance();
        if (m_edits-- > 0) {
            const MvEntryEdit edit = m_editor.next(registry.activeEventList());
            tell("ACRU"[edit.what] + (' ' + edit.id().toUtf8()));
            registry.changeEvent(edit.before, edit.after.isValid() ? withSkewedClock(edit.after) : edit.after);
        }
        const bool isSaved = registry.userFile().saveNow();
        if (isSaved)
            tell("saved");
        if (isSaved && m_edits <= 0)
            QCoreApplication::quit();
        m_timer.start(m_edits > 0 ? m_editor.bounded(8) : 20);
    }

    /// Every second program's clock is wrong by days.
    MvCalendarEvent withSkewedClock(const MvCalendarEvent &event) const
    {
        if (m_number % 2 == 0)
            return event;
        QDomDocument document;
        QDomElement root = document.createElement(u"CalendarEvents"_s);
        document.appendChild(root);
        event.createXML(root);
        const QDomElement element = root.firstChildElement();
        const QDomElement time = element.firstChildElement(u"LastChanged"_s);
        const QDateTime skewed = event.lastChanged().addDays(m_number % 4 == 1 ? 3 : -3);
        time.firstChild().setNodeValue(skewed.toString(Qt::ISODate));
        return MvCalendarEvent(element);
    }

    MvEntryEditor m_editor;
    QTimer m_timer;
    int m_number;
    int m_edits;
};

/// Old lists have no uuids: each program that reads them makes its own.
QByteArray listWithoutUuids(MvEntryHistory &history)
{
    QByteArray list = MvCalendarEventFile::toBytes(MvEntryEditor::beginning());
    for (int i = 0; i < 20; ++i) {
        const QByteArray name = "old" + QByteArray::number(i);
        list.replace("</CalendarEvents>", "<CalendarEvent><Name>" + name +
                                              "</Name><DateTime>1990-05-17T00:00:00</DateTime></CalendarEvent>"
                                              "</CalendarEvents>");
        history.note(0, MvEntryEdit::Add, QString::fromLatin1(name));
    }
    return list;
}

void noteJournal(MvEntryHistory &history, int who, const QByteArray &journal)
{
    const QList<QByteArray> lines = journal.split('\n');
    const qsizetype lastSaved = lines.lastIndexOf("saved");
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString id = QString::fromUtf8(lines.at(i).mid(2));
        if (lines.at(i).contains(' '))
            history.note(who, MvEntryEdit::What(QByteArray("ACRU").indexOf(lines.at(i).front())), id, i < lastSaved);
    }
}

} // namespace

void tst_SoakEntries::programsShareAFile_data()
{
    const MvRows<int, bool> row; // programs, areKilled
    const bool isNightly = qEnvironmentVariableIsSet("MV_NIGHTLY");
    for (int programs = isNightly ? 2 : 3; programs <= (isNightly ? 4 : 3); ++programs) {
        for (const bool areKilled : {false, true})
            row(QString::asprintf("%d programs%s", programs, areKilled ? ", some killed" : ""), programs, areKilled);
    }
}

void tst_SoakEntries::programsShareAFile()
{
    const auto [programs, areKilled] = MvRows<int, bool>::current();
    const int edits = qEnvironmentVariableIsSet("MV_NIGHTLY") ? 400 : 50;
    const QTemporaryDir dir;
    MvEntryHistory history;
    const QString file = dir.filePath(u"calendarEvents.xml"_s);
    QVERIFY(MvTestFiles::write(file, listWithoutUuids(history)));

    QRandomGenerator random(quint32(programs * 10 + areKilled));
    std::vector<std::unique_ptr<QProcess>> running;
    for (int number = 1; number <= programs; ++number) {
        auto program = std::make_unique<QProcess>();
        program->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program->start(QCoreApplication::applicationFilePath(),
                       {u"--program"_s, dir.path(), QString::number(number), QString::number(random.generate()),
                        QString::number(edits)});
        QVERIFY(program->waitForStarted());
        running.push_back(std::move(program));
    }
    const auto isAnyRunning = [&running] {
        return std::any_of(running.begin(), running.end(),
                           [](const auto &program) { return program->state() == QProcess::Running; });
    };
    int kills = areKilled ? programs - 1 : 0;
    while (isAnyRunning()) {
        QProcess &program = *running[size_t(random.bounded(programs))];
        if (program.state() != QProcess::Running) {
            QTest::qWait(5);
            continue;
        }
        ::kill(pid_t(program.processId()), SIGSTOP); // in the middle of saving, at times
        QTest::qWait(random.bounded(120));
        if (kills > 0 && random.bounded(10) == 0) {
            --kills;
            program.kill();
        }
        ::kill(pid_t(program.processId()), SIGCONT);
        QTest::qWait(random.bounded(60));
    }
    for (int number = 1; number <= programs; ++number)
        noteJournal(history, number, running[size_t(number - 1)]->readAllStandardOutput());
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(QFileInfo(file));
    QCOMPARE(content.error, QString());
    QVERIFY(content.isComplete);
    QCOMPARE(history.mistakeIn(content.events), QString());
}

int main(int argc, char **argv)
{
    if (argc == 6 && QByteArray(argv[1]) == "--program") {
        const QGuiApplication application(argc, argv);
        MvDirectoryConfig::instance().setProgramDataDir(QString::fromLocal8Bit(argv[2]));
        const Program program(QByteArray(argv[3]).toInt(), QByteArray(argv[4]).toUInt(), QByteArray(argv[5]).toInt());
        return QGuiApplication::exec();
    }
    return mvRunTest(argc, argv, []() -> QObject * { return new tst_SoakEntries; });
}
#include "tst_SoakEntries.moc"

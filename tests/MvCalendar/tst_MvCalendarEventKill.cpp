#include "MvTest.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvDirectoryConfig.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <unistd.h>

// A program that saves entries is killed at a random moment, again and again. Whatever it confirmed must be there.

class tst_MvCalendarEventKill : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void confirmedChangesSurvive();
};

/// The change number `step` of a round: mostly a new entry, at times one removed or renamed.
static QStringList changed(QStringList names, const QString &round, int step)
{
    if (step % 4 == 2 && names.size() > 20)
        names.removeFirst();
    else if (step % 4 == 3)
        names.last() += u" umbenannt"_qs;
    else
        names.append(u"Ärger %1/%2"_qs.arg(round).arg(step));
    return names;
}

static QStringList namesOf(const MvCalendarEventList &events)
{
    QStringList names;
    for (const MvCalendarEvent &event : events)
        names.append(event.description());
    return names;
}

/// Changes entries until it is killed; after each change that came back, a line goes out.
[[noreturn]] static void saveForever(const QString &folder, const QString &round)
{
    MvDirectoryConfig::instance().setProgramDataDir(folder);
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    for (int step = 0;; ++step) {
        const MvCalendarEventList before = registry.activeEventList();
        const QStringList names = changed(namesOf(before), round, step);
        MvCalendarEventList after = before;
        if (names.size() < before.size())
            after.removeFirst();
        else if (names.size() == before.size())
            after.last().setEventName(names.last());
        else
            after.append(MvCalendarEvent(names.last(), QDate(2000, 2, 29).startOfDay(), true, MvFoto(),
                                         QUuid::createUuid(), QDateTime()));
        registry.setEvents(after);
        if (::write(STDOUT_FILENO, "x", 1) != 1)
            ::_exit(1);
    }
}

void tst_MvCalendarEventKill::confirmedChangesSurvive()
{
    const QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QFileInfo file(dir.filePath(u"calendarEvents.xml"_qs));
    QRandomGenerator random(20260301);
    int interrupted = 0;
    for (int round = 0; round < 200; ++round) {
        QStringList state = namesOf(MvCalendarEventFile::read(file).events);
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--save-forever"_qs, dir.path(), QString::number(round)});
        const int wanted = random.bounded(1, 8);
        while (child.bytesAvailable() < wanted)
            QVERIFY(child.waitForReadyRead(10000));
        QThread::usleep(random.bounded(4000u));
        child.kill();
        QVERIFY(child.waitForFinished(10000));

        const auto confirmed = int(child.readAllStandardOutput().size());
        for (int step = 0; step < confirmed; ++step)
            state = changed(state, QString::number(round), step);
        const MvCalendarEventFile::Content content = MvCalendarEventFile::read(file);
        QCOMPARE(content.error, QString());
        QVERIFY(content.isComplete);
        // the change that was under way is there as a whole or not at all
        const QStringList found = namesOf(content.events);
        const QStringList next = changed(state, QString::number(round), confirmed);
        QVERIFY2(found == state || found == next,
                 qPrintable(u"round %1 after %2 changes: %3"_qs.arg(round).arg(confirmed).arg(found.join(u", "_qs))));
        interrupted += found == next ? 1 : 0;
    }
    QVERIFY(interrupted > 0); // some kills did fall between saving and confirming

    MvDirectoryConfig::instance().setProgramDataDir(dir.path());
    MvCalendarEventRegistry registry; // a program that is not killed tidies up
    registry.save();
    QCOMPARE(QDir(dir.path()).entryList({u".mvtmp-*"_qs, u"*.lock"_qs}, QDir::Files | QDir::Hidden), QStringList());
}

int main(int argc, char **argv)
{
    if (argc == 4 && QByteArray(argv[1]) == "--save-forever") {
        const QCoreApplication application(argc, argv);
        saveForever(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    return mvRunTest(argc, argv, []() -> QObject * { return new tst_MvCalendarEventKill; });
}
#include "tst_MvCalendarEventKill.moc"

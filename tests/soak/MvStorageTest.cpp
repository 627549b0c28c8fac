// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvStorageTest.h"

#include "MvFaultInjector.h"
#include "MvTestHome.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvProject/MvProjectFile.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const bool isNightly = qEnvironmentVariableIsSet("MV_NIGHTLY");
constexpr int states = 40;
constexpr int failed = 99; // exit codes beyond the states

int after(int state)
{
    return state % states + 1;
}

void discardMessage(QtMsgType, const QMessageLogContext &, const QString &)
{}

/// Runs the function in a process of its own, with the folder as its disk. Its result, or `failed` when it crashed.
/// What it tells comes back in `told`.
int inProcess(const MvStorageOperation &operation, const QDir &disk, const std::function<int(QString *)> &function,
              QString *told = nullptr)
{
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0)
        return failed;
    const pid_t child = ::fork();
    if (child == 0) {
        qInstallMessageHandler(discardMessage);
        // of its own: what killed ones leave has the names that it would choose, since all begin with one random state
        const QString temporary = u"tmp/%1"_s.arg(::getpid());
        qputenv("TMPDIR", QFile::encodeName(disk.filePath(temporary)));
        disk.mkpath(temporary);
        MvDirectoryConfig::instance().setProgramDataDir(disk.filePath(u"data"_s));
        static int argc = 1;
        static char name[] = "store";
        static char *argv[] = {name, nullptr};
        using Application = MvStorageOperation::Application;
        if (operation.application == Application::Widgets)
            new QApplication(argc, argv);
        else if (operation.application == Application::Gui)
            new QGuiApplication(argc, argv);
        else
            new QCoreApplication(argc, argv);
        ::alarm(120);
        QString text;
        const int result = function(&text);
        const QByteArray bytes = text.toUtf8();
        ::_exit(::write(ends[1], bytes.constData(), size_t(bytes.size())) < 0 ? failed : result);
    }
    ::close(ends[1]);
    QFile pipe;
    if (!pipe.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return failed;
    const QByteArray bytes = pipe.readAll();
    int status = 0;
    if (::waitpid(child, &status, 0) != child)
        return failed;
    if (told)
        *told = QString::fromUtf8(bytes);
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
        return 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : failed;
}

struct Attempt
{
    int before = 0; // state of the disk
    int found = 0;  // afterwards
    int calls = 0;  // that could fail
    bool isOk = false;
    bool wasKilled = false;
    QByteArray hit; // the call
    QString told;
    QString fault; // what is wrong with all that; empty when nothing is

    QString describe(const MvStorageOperation &operation) const
    {
        return u"%1, at %2: %3 (before %4, found %5, told: %6)"_s
            .arg(QLatin1StringView(operation.name), QString::fromUtf8(hit), fault)
            .arg(before)
            .arg(found)
            .arg(told.isEmpty() ? u"nothing"_s : told);
    }
};

/// Stores a state without trouble, then the next one with the plan's.
Attempt attempt(const MvStorageOperation &operation, const QDir &disk, int state, const MvFaultInjector::Plan &plan,
                const std::function<void()> &troubleBegins = {}, const std::function<void()> &troubleEnds = {})
{
    Attempt result;
    QString told;
    const QByteArray folder = QFile::encodeName(disk.canonicalPath());
    const int code = inProcess(
        operation, disk,
        [&](QString *text) {
            const auto prepare = [&](int next) {
                if (operation.prepare)
                    operation.prepare(disk, next);
            };
            prepare(state);
            if (*text = operation.store(disk, state); !text->isEmpty())
                return failed - 1;
            prepare(after(state));
            const int before = operation.stored(disk);
            if (troubleBegins)
                troubleBegins();
            MvFaultInjector::arm(plan, folder);
            const QString error = operation.store(disk, after(state));
            MvFaultInjector::disarm();
            if (troubleEnds)
                troubleEnds();
            *text = u"%1\n%2\n%3\n%4"_s.arg(before)
                        .arg(MvFaultInjector::calls())
                        .arg(QString::fromUtf8(MvFaultInjector::hit()), error);
            return error.isEmpty() ? 0 : 1;
        },
        &told);
    const QStringList parts = told.split(u'\n');
    result.wasKilled = code == 0 && told.isEmpty();
    result.before = result.wasKilled ? state : parts.value(0).toInt();
    result.calls = parts.value(1).toInt();
    result.hit = result.wasKilled ? "kill " + QByteArray::number(plan.call) : parts.value(2).toUtf8();
    result.told = code >= failed - 1 ? told : parts.mid(3).join(u' ');
    result.isOk = code == 0 && !result.wasKilled;
    result.found = inProcess(operation, disk, [&](QString *) {
        const int found = operation.stored(disk);
        return found < 0 ? failed : found;
    });
    const bool isOld = result.found == result.before || (result.wasKilled && operation.prepare && result.found == 0);
    if (code > 1)
        result.fault = code == failed - 1 ? u"storing failed without any trouble"_s : u"crash"_s;
    else if (result.found != after(state) && !isOld)
        result.fault = u"neither the old state nor the new one"_s;
    else if (result.isOk && result.found != after(state))
        result.fault = u"nobody was told"_s;
    return result;
}

} // namespace

MvStorageTest::MvStorageTest(const QList<MvStorageOperation> &operations, const Extent &extent)
    : m_operations(operations)
    , m_extent(extent)
{}

QString MvStorageTest::nameOf(int state)
{
    return u"Stand %1"_s.arg(state);
}

int MvStorageTest::stateOf(const QString &name)
{
    return name.startsWith(u"Stand "_s) ? name.mid(6).toInt() : -1;
}

int MvStorageTest::stateOfProject(const QFileInfo &file)
{
    if (!file.exists())
        return 0;
    const MvProjectFile::Content content = MvProjectFile::read(file);
    return content.isOk() && content.notes.isEmpty() ? stateOf(content.document.title()) : -1;
}

int MvStorageTest::stateByTitle(const QString &path, const QByteArray &end)
{
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (content.isEmpty())
        return 0;
    const qsizetype title = content.indexOf("Stand ");
    if (title < 0 || !content.trimmed().endsWith(end))
        return -1;
    return content.mid(title + 6, content.indexOf('<', title) - title - 6).toInt();
}

int MvStorageTest::run(int argc, char **argv, const QList<MvStorageOperation> &operations, const Extent &extent)
{
    const MvTestHome home;
    MvStorageTest test(operations, extent);
    return QTest::qExec(&test, argc, argv);
}

void MvStorageTest::addOperations()
{
    QTest::addColumn<qsizetype>("index");
    for (qsizetype i = 0; i < m_operations.size(); ++i)
        QTest::newRow(m_operations[i].name) << i;
}

void MvStorageTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QDir MvStorageTest::freshDisk()
{
    QDir folder(m_folder->path());
    QDir(folder.filePath(QString::number(m_disks))).removeRecursively();
    const QString name = QString::number(++m_disks);
    folder.mkdir(name);
    return QDir(folder.filePath(name));
}

/// The n-th call fails, for each n there is; with every error, once and from there on. In short: one of these for
/// each n.
void MvStorageTest::failingCalls()
{
    QFETCH(qsizetype, index);
    const MvStorageOperation &operation = m_operations[index];
    using Kind = MvFaultInjector::Kind;
    const QList<MvFaultInjector::Plan> plans{{Kind::Fail, 0, ENOSPC, false}, {Kind::Fail, 0, ENOSPC, true},
                                             {Kind::Fail, 0, EIO, false},    {Kind::Fail, 0, EIO, true},
                                             {Kind::Fail, 0, EACCES, false}, {Kind::Fail, 0, EACCES, true},
                                             {Kind::ShortWrite, 0, 0, true}, {Kind::ShortWrite, 0, 0, false}};
    int attempts = 0;
    int toldOf = 0;
    QStringList faults;
    for (qsizetype first = 0; first < (isNightly ? plans.size() : 1); ++first) {
        bool isEnd = false;
        for (int call = 1; !isEnd; call += isNightly ? 1 : m_extent.stride) {
            MvFaultInjector::Plan plan = plans[isNightly ? first : (call / m_extent.stride + index) % plans.size()];
            plan.call = call;
            const Attempt result = attempt(operation, freshDisk(), 1, plan);
            isEnd = result.hit.isEmpty() || call > 1000;
            ++attempts;
            toldOf += result.told.isEmpty() ? 0 : 1;
            if (!result.fault.isEmpty())
                faults.append(result.describe(operation) +
                              u" errno %1%2"_s.arg(plan.error).arg(plan.goesOn ? u"+"_s : QString()));
        }
    }
    if (isNightly)
        qInfo("%d attempts, %d told, %d faults", attempts, toldOf, int(faults.size()));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    if (isNightly || m_extent.stride == 1)
        QVERIFY(toldOf > 0);
}

/// Killed at a random call, again and again, on the same disk; every eighth time at one of the last calls, from the end
/// on, where the new state takes its place: among thousands of calls chance would seldom find them.
void MvStorageTest::kills()
{
    QFETCH(qsizetype, index);
    const MvStorageOperation &operation = m_operations[index];
    const int rounds = (isNightly ? m_extent.nightlyKills : m_extent.kills) / int(m_operations.size()) + 1;
    const QDir disk = freshDisk();
    int calls = attempt(operation, disk, 1, {}).calls;
    QVERIFY(calls > 0);
    QRandomGenerator random(20270101 + quint32(index));
    int killed = 0; // there are fewer calls at times
    int finished = 0;
    for (int round = 0, state = 3; round < rounds; ++round, state = after(after(state))) {
        const bool isAtEnd = round % 8 == 7;
        if (isAtEnd) // on a used disk there is more to do
            calls = attempt(operation, disk, state, {}).calls;
        const int call = isAtEnd ? qMax(1, calls - round / 8 % 8) : random.bounded(1, calls + 1);
        const Attempt result = attempt(operation, disk, state, {MvFaultInjector::Kind::Kill, call, 0, false});
        QVERIFY2(result.fault.isEmpty(), qPrintable(result.describe(operation)));
        killed += result.wasKilled ? 1 : 0;
        finished += result.wasKilled && result.found == after(state) ? 1 : 0;
    }
    if (isNightly)
        qInfo("%d kills, %d of them when the new state was there", killed, finished);
    QVERIFY(2 * killed > rounds);
    if (rounds > 15) // else chance may have it otherwise
        QVERIFY((finished > 0) != operation.endsWithNewState && (operation.prepare || finished < killed));
    // what dead programs leave behind is swept
    const Attempt last = attempt(operation, disk, 1, {});
    QVERIFY2(last.fault.isEmpty() && last.isOk, qPrintable(last.describe(operation)));
    QStringList left;
    const QStringList names{u".mvtmp-*"_s, u"previous*"_s, u"Kalender.zip?*"_s, u".Kalender*"_s,
                            u"mvcalendar-??????"_s};
    QDirIterator files(disk.path(), names, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        left.append(files.next());
    QCOMPARE(left, QStringList());
}

/// A small disk with so much room left: nothing, a block, two...
void MvStorageTest::fullDisk()
{
    QFETCH(qsizetype, index);
    const MvStorageOperation &operation = m_operations[index];
    const int sizes = isNightly ? 20 : m_extent.diskSizes;
    int toldOf = 0;
    for (int size = 0; size < sizes; ++size) {
        const QDir disk = freshDisk();
        const QByteArray mountPoint = QFile::encodeName(disk.path());
        if (::mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=4m") != 0)
            QSKIP("mounting a small file system needs the administrator");
        const QString filler = disk.filePath(u"filler"_s);
        const int room = size * (isNightly ? 1 : 5) * 4096;
        const auto fill = [&] {
            QFile file(filler);
            if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
                while (file.write(QByteArray(4096, 'x')) == 4096) {}
            file.resize(std::max<qint64>(file.size() - room, 0));
        };
        const Attempt result = attempt(operation, disk, 1, {}, fill, [&filler] { QFile::remove(filler); });
        ::umount2(mountPoint.constData(), MNT_DETACH);
        QVERIFY2(result.fault.isEmpty(), qPrintable(result.describe(operation) + u" room %1"_s.arg(room)));
        toldOf += result.told.isEmpty() ? 0 : 1;
    }
    QVERIFY(toldOf > 0);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFreshFolderTest.h"
#include "MvRows.h"

#include "MvCore/MvFileBackup.h"
#include "MvCore/MvFileDescriptor.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvCore/MvUniqueFilenameMaker.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class tst_MvSafeFileWriter : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void replacesAndKeepsMode();
    void writesThroughLinks();
    void refuses_data();
    void refuses();
    void sizeLimitLeavesTheOldFile();
    void closedFolderIsWrittenInPlace();
    void rightsOfSharedFiles_data();
    void rightsOfSharedFiles();
    void furtherNamesAndAttributes();
    void longNames_data();
    void longNames();
    void previousVersionStays();
    void backupsOfSevenDays();
    void backupsWithAWrongClock();
    void sweepsTemporaries();
    void setsAside();
    void stampTellsOfOtherWriters();
    void locksOutOthers_data();
    void locksOutOthers();
    void freeNames();

private:
    /// Of a file; of the folder when the name is empty.
    QByteArray native(const QString &name = {}) const
    {
        return QFile::encodeName(name.isEmpty() ? m_folder->path() : path(name));
    }
    bool setMode(const QString &name, int mode) const { return ::chmod(native(name).constData(), mode_t(mode)) == 0; }
    MvOutcome write(const QString &name, const QByteArray &content) const
    {
        return MvSafeFileWriter::write(QFileInfo(path(name)), content);
    }
};

void tst_MvSafeFileWriter::replacesAndKeepsMode()
{
    put(u"a.xml"_s, "old");
    QVERIFY(setMode(u"a.xml"_s, 0640));
    QVERIFY(MvSafeFileWriter::write(QFileInfo(path(u"a.xml"_s)), "new", MvSafeFileWriter::Backups::None).isOk());
    QCOMPARE(contentOf(u"a.xml"_s), "new");
    QCOMPARE(files(), QStringList{u"a.xml"_s});
    struct stat status = {};
    QVERIFY(::stat(native(u"a.xml"_s).constData(), &status) == 0 && (status.st_mode & 07777) == 0640u);
}

void tst_MvSafeFileWriter::writesThroughLinks()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"elsewhere"_s));
    put(u"elsewhere/real.xml"_s, "old");
    QVERIFY(QFile::link(u"elsewhere/real.xml"_s, path(u"one.xml"_s)));
    QVERIFY(QFile::link(u"one.xml"_s, path(u"two.xml"_s)));
    QVERIFY(write(u"two.xml"_s, "new").isOk());
    QVERIFY(QFileInfo(path(u"two.xml"_s)).isSymLink());
    QVERIFY(QFileInfo(path(u"one.xml"_s)).isSymLink());
    QCOMPARE(contentOf(u"elsewhere/real.xml"_s), "new");
    QCOMPARE(contentOf(u"elsewhere/real.xml~"_s), "old"); // backups lie where the content lies

    QVERIFY(QFile::link(u"elsewhere/later.xml"_s, path(u"dangling.xml"_s)));
    QVERIFY(write(u"dangling.xml"_s, "first").isOk());
    QCOMPARE(contentOf(u"elsewhere/later.xml"_s), "first");
}

void tst_MvSafeFileWriter::refuses_data()
{
    const MvRows<QString, QString> row; // name, message
    row("folder", u"folder"_s, u"keine gewöhnliche Datei"_s);
    row("pipe", u"pipe"_s, u"keine gewöhnliche Datei"_s);
    row("device", u"/dev/full"_s, u"keine gewöhnliche Datei"_s);
    row("missing folder", u"nowhere/a.xml"_s, u"Den Ordner gibt es nicht"_s);
    row("file in place of a folder", u"file/a.xml"_s, u"Den Ordner gibt es nicht"_s);
    row("circle of links", u"circle"_s, u"im Kreis"_s);
    row("name too long", QString(300, u'x'), u"zu lang"_s);
}

void tst_MvSafeFileWriter::refuses()
{
    const auto [name, message] = MvRows<QString, QString>::current();
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    put(u"file"_s, "kept");
    QCOMPARE(::mkfifo(native(u"pipe"_s).constData(), 0600), 0);
    QVERIFY(QFile::link(u"circle"_s, path(u"circle"_s)));
    const QStringList before = files();
    const auto result = write(name, "new");
    QVERIFY2(result.error.contains(message), qPrintable(result.error));
    QVERIFY(result.error.contains(name.right(20)));
    QCOMPARE(files(), before);
    QCOMPARE(contentOf(u"file"_s), "kept");
}

void tst_MvSafeFileWriter::sizeLimitLeavesTheOldFile()
{
    put(u"a.xml"_s, "old");
    struct rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limit = before;
    limit.rlim_cur = 65536;
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    const auto result = write(u"a.xml"_s, QByteArray(100'000, 'x'));
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    QVERIFY2(result.error.contains(u"größer als erlaubt"_s), qPrintable(result.error));
    QCOMPARE(contentOf(u"a.xml"_s), "old");
    QCOMPARE(files(), QStringList{u"a.xml"_s});
}

void tst_MvSafeFileWriter::closedFolderIsWrittenInPlace()
{
    put(u"a.xml"_s, "a long old content");
    QVERIFY(setMode(u"a.xml"_s, 0666) && setMode({}, 0555));
    const bool isAdministrator = ::geteuid() == 0; // for whom no folder is closed
    if (isAdministrator)
        QCOMPARE(::seteuid(65534), 0);
    const auto result = write(u"a.xml"_s, "new");
    const auto refused = write(u"b.xml"_s, "new");
    if (isAdministrator)
        QCOMPARE(::seteuid(0), 0);
    QVERIFY(setMode({}, 0755));
    QCOMPARE(result.error, QString());
    QCOMPARE(contentOf(u"a.xml"_s), "new");
    QVERIFY2(refused.error.contains(u"darf nicht geschrieben werden"_s), qPrintable(refused.error));
}

struct Person
{
    uid_t user;
    bool isInGroup;
};

namespace {

constexpr gid_t sharedGroup = 3001;
constexpr Person anna{2001, false}, bernd{2002, true}, clara{2003, false}, dieter{2004, true};

template <class Function>
auto as(const Person &person, Function function)
{
    const auto become = [](uid_t user, gid_t group, bool isInGroup) {
        return ::seteuid(0) == 0 && ::setgroups(isInGroup ? 1 : 0, &sharedGroup) == 0 && ::setegid(group) == 0 &&
               ::seteuid(user) == 0;
    };
    if (!become(person.user, person.user, person.isInGroup))
        qFatal("cannot take on another user");
    const auto result = function();
    if (!become(0, 0, false))
        qFatal("cannot become the administrator again");
    return result;
}

/// "rw" for each person as far as it goes.
QStringList rights(const QByteArray &file)
{
    QStringList all;
    for (const Person &person : {anna, bernd, clara, dieter})
        all.append(as(person, [&file] {
            const auto may = [&file](int what) {
                return ::faccessat(AT_FDCWD, file.constData(), what, AT_EACCESS) == 0;
            };
            return QString::fromLatin1(may(R_OK) ? "r" : "-") + QLatin1StringView(may(W_OK) ? "w" : "-");
        }));
    return all;
}

/// An access list as the file system keeps it: the owner everything, his group and the others nothing, one more person
/// the given.
QByteArray accessList(const Person &person, quint16 given)
{
    struct Entry
    {
        quint16 tag;
        quint16 rights;
        quint32 id;
    };
    const quint32 version = 2;
    const std::array<Entry, 5> entries{Entry{1, 6, ~0u}, Entry{2, given, person.user}, Entry{4, 0, ~0u},
                                       Entry{16, 6, ~0u}, Entry{32, 0, ~0u}};
    return QByteArray(reinterpret_cast<const char *>(&version), sizeof version) +
           QByteArray(reinterpret_cast<const char *>(entries.data()), sizeof entries);
}

} // namespace

void tst_MvSafeFileWriter::rightsOfSharedFiles_data()
{
    // listOfFolder: which new files in it get
    const MvRows<Person, int, QByteArray, QByteArray> row;
    row("the group's, written by one of it", bernd, 0660, QByteArray(), QByteArray());
    row("the group's, written by its owner", anna, 0660, QByteArray(), QByteArray());
    row("the group's, written by the administrator", Person{0, false}, 0660, QByteArray(), QByteArray());
    row("with a list, written by its owner", anna, 0600, accessList(clara, 6), QByteArray());
    row("with a list, written by one on it", bernd, 0600, accessList(bernd, 6), QByteArray());
    row("private, in a folder with a list", anna, 0600, QByteArray(), accessList(clara, 6));
}

/// Whoever might read or write the file may do so after it was saved, and nobody else.
void tst_MvSafeFileWriter::rightsOfSharedFiles()
{
    const auto [writer, mode, list, listOfFolder] = MvRows<Person, int, QByteArray, QByteArray>::current();
    if (::geteuid() != 0)
        QSKIP("taking on another user needs the administrator");
    put(u"a.xml"_s, "old");
    const QByteArray file = native(u"a.xml"_s);
    const QByteArray folder = native();
    for (const QByteArray &owned : {folder, file})
        QCOMPARE(::chown(owned.constData(), anna.user, sharedGroup), 0);
    QVERIFY(setMode({}, 0777) && setMode(u"a.xml"_s, mode));
    const auto set = [](const QByteArray &target, const char *name, const QByteArray &value) {
        return value.isEmpty() || ::setxattr(target.constData(), name, value.constData(), size_t(value.size()), 0) == 0;
    };
    if (!set(file, "system.posix_acl_access", list) || !set(folder, "system.posix_acl_default", listOfFolder))
        QSKIP("this file system has no access lists");
    const QStringList before = rights(file);
    const auto result = as(writer, [this] { return write(u"a.xml"_s, "new"); });
    QDir(u"%1/mvcalendar-%2-unfinished"_s.arg(QDir::tempPath()).arg(writer.user)).removeRecursively();
    QCOMPARE(result.error, QString());
    QCOMPARE(contentOf(u"a.xml"_s), "new");
    QCOMPARE(rights(file), before);
    QCOMPARE(QFileInfo(path(u"a.xml"_s)).groupId(), sharedGroup);
    QCOMPARE(contentOf(u"a.xml~"_s), "old");
    const QStringList ofBackup = rights(file + '~');
    for (qsizetype i = 0; i < before.size(); ++i)
        QVERIFY(before[i].contains(u'r') || !ofBackup[i].contains(u'r'));
}

void tst_MvSafeFileWriter::furtherNamesAndAttributes()
{
    put(u"a.xml"_s, "1");
    const QByteArray file = native(u"a.xml"_s);
    if (::setxattr(file.constData(), "user.note", "mine", 4, 0) != 0)
        QSKIP("this file system has no attributes");
    const auto note = [&file] {
        std::array<char, 8> value = {};
        return QByteArray(value.data(), ::getxattr(file.constData(), "user.note", value.data(), value.size()));
    };
    QVERIFY(write(u"a.xml"_s, "2").isOk());
    QCOMPARE(note(), "mine");

    // a program killed between keeping the backup and replacing the file: these further names are the backups
    QVERIFY(MvFileBackup::keep(path(u"a.xml"_s), "3", QDate(2026, 3, 1)));
    QCOMPARE(::link(file.constData(), native(u"other.xml"_s).constData()), 0);
    QVERIFY(MvSafeFileWriter::write(QFileInfo(path(u"other.xml"_s)), "3", MvSafeFileWriter::Backups::None).isOk());
    QCOMPARE(contentOf(u"a.xml"_s), "3"); // one file under two names
    QVERIFY(MvFileBackup::keep(path(u"a.xml"_s), "4", QDate(2026, 3, 2)));
    QVERIFY(write(u"a.xml"_s, "4").isOk());
    QCOMPARE(contentOf(u"other.xml"_s), "4");
    QCOMPARE(contentOf(u"a.xml~"_s), "3");
    QCOMPARE(contentOf(u"a.xml.2026-03-02~"_s), "3");
    QCOMPARE(note(), "mine");
}

void tst_MvSafeFileWriter::longNames_data()
{
    const MvRows<QString> row; // name
    row("room for nothing", QString(251, u'x') + u".xml"_s);
    row("room for the lock alone", QString(246, u'x') + u".xml"_s);
    row("two bytes a letter", QString(124, u'ä') + u".xml"_s);
    row("four bytes a letter", QString::fromUcs4(U"\U0001F382").repeated(62) + u".xml"_s);
    row("no text", u"a\nb\u0001.xml"_s);
}

void tst_MvSafeFileWriter::longNames()
{
    const auto [name] = MvRows<QString>::current();
    const QFileInfo file(path(name));
    QVERIFY(MvFileGuard(file, 0).isLocked());
    for (const char *version : {"1", "2", "3"})
        QCOMPARE(MvSafeFileWriter::write(file, version).notes, QStringList());
    const QList<QFileInfo> backups = MvSafeFileWriter::backups(file);
    QCOMPARE(backups.size(), 2);
    QCOMPARE(contentOf(backups.first().fileName()), "2");
    QCOMPARE(contentOf(QFileInfo(MvSafeFileWriter::setAside(file)).fileName()), "3");
    QCOMPARE(MvSafeFileWriter::backups(QFileInfo(path(name.chopped(5) + u"y.xml"_s))).size(), 0); // another file's
}

void tst_MvSafeFileWriter::previousVersionStays()
{
    const QFileInfo file(path(u"a.xml"_s));
    const QString today = u"a.xml.%1~"_s.arg(QDate::currentDate().toString(Qt::ISODate));
    for (const char *version : {"1", "2", "3", "3"})
        QVERIFY(MvSafeFileWriter::write(file, version).isOk());
    QCOMPARE(contentOf(u"a.xml~"_s), "2"); // writing the same again must not push the other version out
    QCOMPARE(contentOf(today), "1");
    QCOMPARE(MvSafeFileWriter::backups(file).size(), 2);

    put(u"a.xml"_s, "edited in place"); // backups must not share the file's storage
    QCOMPARE(contentOf(u"a.xml~"_s), "2");
    put(u"a.xml"_s, "");
    QVERIFY(MvSafeFileWriter::write(file, "4").isOk());
    QCOMPARE(contentOf(u"a.xml~"_s), "2"); // an emptied file is not worth keeping
}

void tst_MvSafeFileWriter::backupsOfSevenDays()
{
    const QDate start(2026, 2, 26);
    for (int day = 0; day < 9; ++day) {
        put(u"a.xml"_s, "state of day " + QByteArray::number(day));
        QVERIFY(MvFileBackup::keep(path(u"a.xml"_s), "changed", start.addDays(day)));
        QFile::remove(path(u"a.xml"_s)); // as replacing does
    }
    const QList<QFileInfo> backups = MvSafeFileWriter::backups(QFileInfo(path(u"a.xml"_s)));
    QCOMPARE(backups.size(), 8);
    QCOMPARE(backups.at(1).fileName(), u"a.xml.2026-03-06~"_s);
    QCOMPARE(backups.last().fileName(), u"a.xml.2026-02-28~"_s);
    QCOMPARE(contentOf(u"a.xml.2026-03-01~"_s), "state of day 3");
}

/// The days kept are the latest ones with changes, whatever the clock said in between.
void tst_MvSafeFileWriter::backupsWithAWrongClock()
{
    int number = 0;
    const auto changeOn = [this, &number](const QDate &first, int days) {
        for (int day = 0; day < days; ++day) {
            put(u"a.xml"_s, QByteArray::number(++number));
            QVERIFY(MvFileBackup::keep(path(u"a.xml"_s), "changed", first.addDays(day)));
            QFile::remove(path(u"a.xml"_s));
        }
    };
    const auto days = [this](const QDate &today) {
        QStringList names;
        const QList<QFileInfo> files = MvFileBackup::existing(path(u"a.xml"_s), today).mid(1);
        for (const QFileInfo &file : files)
            names.append(file.fileName().mid(6).chopped(1));
        return names;
    };
    const auto run = [](const QDate &last) {
        QStringList names;
        for (int day = 0; day < MvFileBackup::daysKept; ++day)
            names.append(last.addDays(-day).toString(Qt::ISODate));
        return names;
    };
    changeOn(QDate(2026, 3, 1), 8);
    changeOn(QDate(2040, 1, 1), 8); // ahead
    QCOMPARE(days(QDate(2040, 1, 8)), run(QDate(2040, 1, 8)) + run(QDate(2026, 3, 8)));
    changeOn(QDate(2026, 3, 9), 1);
    QCOMPARE(days(QDate(2026, 3, 9)), run(QDate(2026, 3, 9)) + run(QDate(2040, 1, 8)));
    changeOn(QDate(1970, 1, 1), 2); // behind
    changeOn(QDate(2026, 3, 10), 7);
    QCOMPARE(days(QDate(2026, 3, 16)).mid(0, MvFileBackup::daysKept), run(QDate(2026, 3, 16)));
}

void tst_MvSafeFileWriter::sweepsTemporaries()
{
    const QString mine = QFileInfo(QFile::decodeName(MvFileBackup::temporaryPath(m_folder->path()))).fileName();
    const QStringList parts = mine.split(u'-');
    const pid_t child = ::fork(); // a process number that is certainly gone
    if (child == 0)
        ::_exit(0);
    QCOMPARE(::waitpid(child, nullptr, 0), child);
    const QString orphan = parts.at(0) + u'-' + parts.at(1) + u'-' + QString::number(child) + u"-0-1"_s;
    const QString ofOtherHost = parts.at(0) + u"-0-"_s + QString::number(child) + u"-0-1"_s;
    const QString old = ofOtherHost + u"0"_s;
    for (const QString &name : {mine, orphan, ofOtherHost, old})
        put(name, "half");
    QFile oldFile(path(old));
    QVERIFY(oldFile.open(QIODevice::ReadWrite));
    QVERIFY(oldFile.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime));

    QVERIFY(write(u"a.xml"_s, "new").isOk());
    QStringList expected = {mine, ofOtherHost, u"a.xml"_s};
    expected.sort();
    QStringList present = files();
    present.sort();
    QCOMPARE(present, expected);
}

void tst_MvSafeFileWriter::setsAside()
{
    const QString date = QDate::currentDate().toString(Qt::ISODate);
    put(u"liste.xml"_s, "broken");
    const QFileInfo file(path(u"liste.xml"_s));
    QCOMPARE(QFileInfo(MvSafeFileWriter::setAside(file)).fileName(), u"liste.unlesbar-%1.xml"_s.arg(date));
    put(u"liste.xml"_s, "broken again");
    QCOMPARE(QFileInfo(MvSafeFileWriter::setAside(file)).fileName(), u"liste.unlesbar-%1-2.xml"_s.arg(date));
    QCOMPARE(contentOf(u"liste.unlesbar-%1.xml"_s.arg(date)), "broken");
    QCOMPARE(MvSafeFileWriter::setAside(QFileInfo(path(u"missing.xml"_s))), QString());
}

void tst_MvSafeFileWriter::stampTellsOfOtherWriters()
{
    const QFileInfo file(path(u"a.xml"_s));
    QCOMPARE(MvFileGuard::stamp(file), QByteArray());
    put(u"a.xml"_s, "one");
    const QByteArray stamp = MvFileGuard::stamp(file);
    QCOMPARE(MvFileGuard::stamp(file), stamp);
    QVERIFY(MvSafeFileWriter::write(file, "two").isOk()); // same size, same second
    QVERIFY(MvFileGuard::stamp(file) != stamp);
}

void tst_MvSafeFileWriter::locksOutOthers_data()
{
    const MvRows<int, int, bool, bool> row; // folderMode; fileMode: 0: no file; isAdministratorFirst; isPossible
    row("open folder", 0777, 0666, false, true);
    row("no file yet", 0777, 0, false, true);
    row("closed folder", 0555, 0666, false, true);
    row("closed folder, read-only file", 0555, 0444, false, true);
    row("closed to the second alone", 0555, 0666, true, true);
    row("closed folder without a file", 0555, 0, false, false);
}

void tst_MvSafeFileWriter::locksOutOthers()
{
    const auto [folderMode, fileMode, isAdministratorFirst, isPossible] = MvRows<int, int, bool, bool>::current();
    if (::geteuid() != 0)
        QSKIP("taking on another user needs the administrator");
    const QFileInfo file(path(u"a.xml"_s));
    if (fileMode != 0) {
        put(u"a.xml"_s, "one");
        put(u"a.xml.lock"_s, ""); // left behind by a killed program, and nothing in it
        QVERIFY(setMode(u"a.xml"_s, fileMode) && setMode(u"a.xml.lock"_s, 0600));
    }
    QVERIFY(setMode({}, folderMode));
    std::array<MvFileGuard::State, 3> states = {};
    if (!isAdministratorFirst)
        QCOMPARE(::seteuid(65534), 0);
    {
        const MvFileGuard guard(file, 0);
        states[0] = guard.state();
        QCOMPARE(::seteuid(0), 0);
        QCOMPARE(::seteuid(65534), 0);
        const MvFileGuard other(file, 0);
        states[1] = other.state();
        QCOMPARE(other.reason().isEmpty(), other.isLocked());
        if (!isPossible)
            QCOMPARE(other.reason(), MvFileDescriptor::errorText(EACCES));
        QCOMPARE(::seteuid(isAdministratorFirst ? 0 : 65534), 0);
    }
    states[2] = MvFileGuard(file, 0).state();
    QCOMPARE(::seteuid(0), 0);
    using State = MvFileGuard::State;
    QCOMPARE(states[0], isPossible ? State::Locked : State::NotPossible);
    QCOMPARE(states[1], isPossible ? State::HeldByOthers : State::NotPossible);
    QCOMPARE(states[2], states[0]); // the first one has let go
}

void tst_MvSafeFileWriter::freeNames()
{
    MvUniqueFilenameMaker &maker = MvUniqueFilenameMaker::instance();
    put(u"foto.jpg"_s, "x");
    const QFileInfo file(path(u"foto.jpg"_s));
    QCOMPARE(maker.makeUniqueFileName(file, false).fileName(), u"foto_2.jpg"_s);
    QCOMPARE(maker.makeUniqueFileName(file, true).fileName(), u"foto_2.jpg"_s);
    QCOMPARE(maker.makeUniqueFileName(file, true).fileName(), u"foto_3.jpg"_s); // given out, not yet written
    QCOMPARE(maker.makeUniqueFileName(QFileInfo(path(u"frei"_s)), true).fileName(), u"frei"_s);
}

MV_TEST_MAIN(tst_MvSafeFileWriter)
#include "tst_MvSafeFileWriter.moc"

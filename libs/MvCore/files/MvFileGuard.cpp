// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvFileGuard.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 255; // bytes, on all file systems of today

enum class Outcome {
    Taken,
    Held,
    Failed, // errno says why
};

QByteArray lockPathOf(const QFileInfo &file)
{
    QByteArray name = QFile::encodeName(file.fileName() + u".lock"_s);
    if (name.size() > longestName)
        name = ".mvlock-" + QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
    return QFile::encodeName(file.absolutePath() + u'/') + name;
}

QByteArray standInPathOf(const QByteArray &path)
{
    return QFile::encodeName(QDir::tempPath()) + "/mvcalendar-" + QByteArray::number(::geteuid()) + '-' +
           QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex() + ".lock";
}

/// Without the right to write the file it is locked all the same; network file systems want that right.
MvFileDescriptor openForLock(const QByteArray &path, int flags)
{
    constexpr int always = O_CLOEXEC | O_NONBLOCK; // a pipe would keep us waiting
    MvFileDescriptor file(::open(path.constData(), O_RDWR | flags | always, 0666));
    if (const int refusal = errno; !file.isOpen() && (refusal == EACCES || refusal == EPERM || refusal == EROFS)) {
        file = MvFileDescriptor(::open(path.constData(), O_RDONLY | (flags & ~O_CREAT) | always));
        if (!file.isOpen())
            errno = refusal; // report why it could not be opened, not that it does not exist
    }
    struct stat status = {};
    if (file.isOpen() && (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))) {
        file.close();
        errno = EINVAL;
    }
    return file;
}

/// The one before may have removed or replaced the file between our opening and locking it.
bool isStillInPlace(const MvFileDescriptor &lock, const QByteArray &path)
{
    struct stat mine = {};
    struct stat present = {};
    return ::fstat(lock.get(), &mine) == 0 && ::stat(path.constData(), &present) == 0 &&
           mine.st_ino == present.st_ino && mine.st_dev == present.st_dev;
}

Outcome take(MvFileDescriptor *lock, const QByteArray &path, int flags)
{
    while (true) {
        MvFileDescriptor file = openForLock(path, flags);
        if (!file.isOpen())
            return Outcome::Failed;
        if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
            if (errno == EINTR)
                continue;
            return errno == EWOULDBLOCK ? Outcome::Held : Outcome::Failed;
        }
        if (isStillInPlace(file, path)) {
            *lock = std::move(file);
            return Outcome::Taken;
        }
    }
}

/// There a lock keeps even its owner from reading the file through another descriptor, and from replacing it.
bool isWindowsShare(const MvFileDescriptor &file)
{
    struct statfs status = {};
    if (::fstatfs(file.get(), &status) != 0)
        return false;
    const auto type = static_cast<quint32>(status.f_type);
    return type == SMB_SUPER_MAGIC || type == CIFS_SUPER_MAGIC || type == SMB2_SUPER_MAGIC;
}

bool meansNoLocks(int systemError)
{
    return systemError == ENOLCK || systemError == ENOTSUP || systemError == ENOSYS || systemError == EBADF;
}

} // namespace

MvFileGuard::MvFileGuard(const QFileInfo &file, int timeout)
    : m_path(QFile::encodeName(file.absoluteFilePath()))
    , m_lockPath(lockPathOf(file))
{
    const QDeadlineTimer deadline(timeout);
    while ((m_state = tryOnce()) == State::HeldByOthers && !deadline.hasExpired())
        QThread::msleep(10);
}

MvFileGuard::~MvFileGuard()
{
    if (m_lock.isOpen())
        ::unlink(m_lockPath.constData()); // while it is still locked: who waits for it looks whether it is in place
}

MvFileGuard::State MvFileGuard::tryOnce()
{
    const Outcome beside = take(&m_lock, m_lockPath, O_CREAT | O_NOFOLLOW);
    m_error = errno;
    if (beside == Outcome::Held)
        return State::HeldByOthers;
    if (beside == Outcome::Taken && isWindowsShare(m_lock))
        return State::Locked;

    const Outcome itself = take(&m_fileLock, m_path, 0);
    if (itself == Outcome::Held) {
        if (m_lock.isOpen())
            ::unlink(m_lockPath.constData());
        m_lock.close();
        return State::HeldByOthers;
    }
    if (beside == Outcome::Taken || itself == Outcome::Taken)
        return State::Locked;
    if (!meansNoLocks(m_error) && !meansNoLocks(errno))
        return State::NotPossible;

    m_lockPath = standInPathOf(m_path);
    const Outcome elsewhere = take(&m_lock, m_lockPath, O_CREAT | O_NOFOLLOW);
    if (elsewhere == Outcome::Failed)
        return State::NotPossible;
    return elsewhere == Outcome::Taken ? State::Locked : State::HeldByOthers;
}

QString MvFileGuard::reason() const
{
    switch (m_state) {
    case State::Locked:
        return {};
    case State::HeldByOthers:
        return tr("Ein anderes Programm schreibt gerade in diese Datei.");
    case State::NotPossible:
        return meansNoLocks(m_error) ? tr("Dateien lassen sich hier nicht sperren.")
                                     : MvFileDescriptor::errorText(m_error);
    }
    return {};
}

QByteArray MvFileGuard::stamp(const QFileInfo &file)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(file.absoluteFilePath()).constData(), &status) != 0)
        return {};
    // a replaced file is another inode, one written in place has another time
    return QByteArray::number(qulonglong(status.st_dev)) + ':' + QByteArray::number(qulonglong(status.st_ino)) + ':' +
           QByteArray::number(qlonglong(status.st_size)) + ':' + QByteArray::number(qlonglong(status.st_mtim.tv_sec)) +
           '.' + QByteArray::number(qlonglong(status.st_mtim.tv_nsec));
}

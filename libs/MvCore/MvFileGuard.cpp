#include "MvCore/MvFileGuard.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

MvFileGuard::MvFileGuard(const QFileInfo &file, int timeout)
    : m_path(QFile::encodeName(file.absoluteFilePath() + u".lock"_s))
{
    QDeadlineTimer deadline(timeout);
    while (true) {
        MvFileDescriptor lock(::open(m_path.constData(), O_CREAT | O_RDWR | O_CLOEXEC | O_NOFOLLOW, 0666));
        if (!lock.isOpen())
            return;
        const bool isMine = ::flock(lock.get(), LOCK_EX | LOCK_NB) == 0;
        if (isMine && isStillInPlace(lock)) {
            m_lock = std::move(lock);
            return;
        }
        if (!isMine && ((errno != EWOULDBLOCK && errno != EINTR) || deadline.hasExpired()))
            return;
        if (!isMine)
            QThread::msleep(10);
    }
}

MvFileGuard::~MvFileGuard()
{
    if (isLocked())
        ::unlink(m_path.constData()); // while it is still locked: who waits for it looks whether it is in place
}

/// The one before may have removed the lock file between our opening and locking it.
bool MvFileGuard::isStillInPlace(const MvFileDescriptor &lock) const
{
    struct stat mine = {};
    struct stat present = {};
    return ::fstat(lock.get(), &mine) == 0 && ::stat(m_path.constData(), &present) == 0 &&
           mine.st_ino == present.st_ino && mine.st_dev == present.st_dev;
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

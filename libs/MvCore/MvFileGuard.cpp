#include "MvCore/MvFileGuard.h"

#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

MvFileGuard::MvFileGuard(const QFileInfo &file, int timeout)
    : m_lock(file.absoluteFilePath() + u".lock"_s)
{
    m_lock.tryLock(timeout);
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

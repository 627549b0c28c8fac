// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvFileDescriptor.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

MvFileDescriptor::MvFileDescriptor(MvFileDescriptor &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{}

MvFileDescriptor &MvFileDescriptor::operator=(MvFileDescriptor &&other) noexcept
{
    if (this != &other) {
        const int failure = errno; // closing must not hide why the other one is as it is
        close();
        m_descriptor = std::exchange(other.m_descriptor, -1);
        errno = failure;
    }
    return *this;
}

bool MvFileDescriptor::writeAll(const QByteArray &content)
{
    qsizetype done = 0;
    while (done < content.size()) {
        const ssize_t written =
            ::write(m_descriptor, content.constData() + done, static_cast<size_t>(content.size() - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        if (written == 0) {
            errno = ENOSPC;
            return false;
        }
        done += written;
    }
    return true;
}

bool MvFileDescriptor::close()
{
    if (m_descriptor < 0)
        return true;
    return ::close(std::exchange(m_descriptor, -1)) == 0;
}

bool MvFileDescriptor::syncFolder(const QString &folder)
{
    const MvFileDescriptor descriptor(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.isOpen())
        return errno == EACCES; // a folder may be closed to reading and still take files
    return ::fsync(descriptor.get()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

QString MvFileDescriptor::errorText(int systemError)
{
    switch (systemError) {
    case ENOSPC:
        return tr("Der Datenträger ist voll.");
    case EDQUOT:
        return tr("Der zugeteilte Speicherplatz ist verbraucht.");
    case EFBIG:
        return tr("Die Datei wäre größer als erlaubt.");
    case EACCES:
    case EPERM:
        return tr("Im Ordner darf nicht geschrieben werden.");
    case EROFS:
        return tr("Der Datenträger ist schreibgeschützt.");
    case ENOENT:
    case ENOTDIR:
        return tr("Den Ordner gibt es nicht.");
    case ENAMETOOLONG:
        return tr("Der Dateiname ist zu lang.");
    case EISDIR:
        return tr("Unter diesem Namen gibt es einen Ordner.");
    case EIO:
        return tr("Der Datenträger meldet einen Fehler.");
    default:
        return QString::fromLocal8Bit(std::strerror(systemError));
    }
}

QString MvFileDescriptor::writeErrorText(const QFileDevice &file)
{
    // no error at all: a part had room on the disk
    const bool isFull = file.error() == QFileDevice::NoError || file.error() == QFileDevice::ResourceError;
    return isFull ? errorText(ENOSPC) : file.errorString();
}

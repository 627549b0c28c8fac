// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvFolderUse.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

MvFolderUse::MvFolderUse(const QDir &folder)
    : m_path(QFile::encodeName(folder.absoluteFilePath(u".benutzt"_s)))
{
    begin();
}

bool MvFolderUse::begin()
{
    if (isUsing() && isInPlace())
        return true;
    m_lock = MvFileDescriptor(::open(m_path.constData(), O_CREAT | O_RDWR | O_CLOEXEC | O_NOFOLLOW, 0666));
    if (!m_lock.isOpen()) // reading is enough for the lock that marks the folder as used
        m_lock = MvFileDescriptor(::open(m_path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (m_lock.isOpen() && !lock(F_RDLCK))
        m_lock = MvFileDescriptor();
    return isUsing();
}

bool MvFolderUse::beginAlone()
{
    return begin() && lock(F_WRLCK);
}

void MvFolderUse::endAlone()
{
    lock(F_RDLCK);
}

/// These locks belong to the open file, and one that cannot be made stronger stays as it was.
bool MvFolderUse::lock(short type) const
{
    struct flock whole = {};
    whole.l_type = type;
    whole.l_whence = SEEK_SET;
    return ::fcntl(m_lock.get(), F_OFD_SETLK, &whole) == 0;
}

/// Somebody may have emptied the folder.
bool MvFolderUse::isInPlace() const
{
    struct stat mine = {};
    struct stat present = {};
    return ::fstat(m_lock.get(), &mine) == 0 && ::stat(m_path.constData(), &present) == 0 &&
           mine.st_ino == present.st_ino && mine.st_dev == present.st_dev;
}

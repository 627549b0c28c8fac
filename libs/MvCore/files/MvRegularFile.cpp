// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvRegularFile.h"

#include "MvCore/MvFileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString openingError(int systemError)
{
    switch (systemError) {
    case ENOENT:
    case ENOTDIR:
        return MvRegularFile::tr("Die Datei gibt es nicht.");
    case EACCES:
    case EPERM:
        return MvRegularFile::tr("Die Datei darf nicht gelesen werden.");
    default:
        return MvFileDescriptor::errorText(systemError);
    }
}

MvRegularFile::Opened openShipped(const QFileInfo &info)
{
    auto file = std::make_unique<QFile>(info.filePath());
    if (info.isDir() || !file->open(QIODevice::ReadOnly))
        return {{openingError(ENOENT), {}}, nullptr};
    return {{}, std::move(file)};
}

} // namespace

MvRegularFile::Opened MvRegularFile::open(const QFileInfo &info)
{
    if (info.filePath().startsWith(u':'))
        return openShipped(info);
    const QByteArray path = QFile::encodeName(info.absoluteFilePath());
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return {{openingError(errno), {}}, nullptr};
    MvFileDescriptor owner(descriptor);
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return {{openingError(errno), {}}, nullptr};
    if (!S_ISREG(status.st_mode))
        return {{S_ISDIR(status.st_mode) ? tr("Das ist ein Ordner.") : tr("Das ist keine gewöhnliche Datei."), {}},
                nullptr};
    auto file = std::make_unique<QFile>(info.filePath());
    if (!file->open(::dup(descriptor), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {{file->errorString(), {}}, nullptr};
    return {{}, std::move(file)};
}

#include "MvCore/MvSafeFileWriter.h"

#include "MvCore/MvFileBackup.h"
#include "MvCore/MvFileDescriptor.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The file that is really written: the end of the chain of symbolic links, which need not exist.
QString resolvedPath(const QFileInfo &file)
{
    QFileInfo info(QDir::cleanPath(file.absoluteFilePath()));
    for (int links = 0; info.isSymLink() && links < 40; ++links)
        info = QFileInfo(QDir::cleanPath(info.symLinkTarget()));
    return info.isSymLink() ? QString() : info.absoluteFilePath();
}

bool readAll(const QString &path, QByteArray *content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return file.error() == QFileDevice::NoError;
}

/// One writing of one file; the steps report through errno and say whether to go on.
class SafeWrite
{
public:
    SafeWrite(const QString &path, const QByteArray &content)
        : m_path(path)
        , m_folder(QFileInfo(path).absolutePath())
        , m_content(content)
        , m_encodedPath(QFile::encodeName(path))
    {
        m_exists = ::stat(m_encodedPath.constData(), &m_old) == 0;
    }

    bool exists() const { return m_exists; }
    bool isOrdinary() const { return !m_exists || S_ISREG(m_old.st_mode); }
    bool mayBeWritten() const { return !m_exists || ::access(m_encodedPath.constData(), W_OK) == 0; }

    /// Writes the new content beside the old one, complete and on disk.
    bool prepare()
    {
        const QByteArray folder = QFile::encodeName(m_folder);
        m_new = MvFileDescriptor(::open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666));
        const bool isUnnamed = m_new.isOpen();
        m_temporary = MvFileBackup::temporaryPath(m_folder);
        if (!isUnnamed) // not every file system has unnamed files
            m_new = MvFileDescriptor(
                ::open(m_temporary.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, 0666));
        if (!m_new.isOpen())
            return false;
        m_hasTemporary = !isUnnamed;
        if (!m_new.writeAll(m_content) || !keepOwnerAndMode() || ::fsync(m_new.get()) != 0)
            return false;
        if (isUnnamed && !giveName())
            return false;
        return m_new.close();
    }

    bool replace()
    {
        if (::rename(m_temporary.constData(), m_encodedPath.constData()) != 0)
            return false;
        m_hasTemporary = false;
        return true;
    }

    /// Takes a half-made file away again.
    void cancel()
    {
        if (m_hasTemporary)
            ::unlink(m_temporary.constData());
        m_hasTemporary = false;
    }

    /// Overwrites the file where it lies. First the space is reserved, so that a full disk changes nothing.
    bool overwrite(const QByteArray &content)
    {
        MvFileDescriptor file(::open(m_encodedPath.constData(), O_WRONLY | O_CLOEXEC));
        if (!file.isOpen())
            return false;
        if (content.size() > m_old.st_size) {
            if (const int failure = ::posix_fallocate(file.get(), 0, content.size()); failure != 0) {
                [[maybe_unused]] const int ignored = ::ftruncate(file.get(), m_old.st_size);
                errno = failure;
                return false;
            }
        }
        return file.writeAll(content) && ::ftruncate(file.get(), content.size()) == 0 && ::fsync(file.get()) == 0 &&
               file.close();
    }

private:
    bool keepOwnerAndMode()
    {
        if (!m_exists)
            return true;
        // another owner can only be kept by the administrator; the mode is set afterwards, since a change of owner
        // clears parts of it
        [[maybe_unused]] const int ignored = ::fchown(m_new.get(), m_old.st_uid, m_old.st_gid);
        return ::fchmod(m_new.get(), m_old.st_mode & 07777) == 0;
    }

    bool giveName()
    {
        const QByteArray unnamed = "/proc/self/fd/" + QByteArray::number(m_new.get());
        m_hasTemporary =
            ::linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, m_temporary.constData(), AT_SYMLINK_FOLLOW) == 0;
        return m_hasTemporary;
    }

    QString m_path;
    QString m_folder;
    QByteArray m_content;
    QByteArray m_encodedPath;
    QByteArray m_temporary; // encoded path beside the file
    MvFileDescriptor m_new;
    struct stat m_old = {};
    bool m_exists = false;
    bool m_hasTemporary = false; // there is a file under m_temporary
};

MvSafeFileWriter::Result failure(const QString &path, const QString &reason)
{
    return {MvSafeFileWriter::tr("%1 konnte nicht gespeichert werden: %2").arg(QDir::toNativeSeparators(path), reason),
            {}};
}

/// For folders that take no new file: the old content is copied elsewhere, then the file is written where it lies.
MvSafeFileWriter::Result writeInPlace(SafeWrite &write, const QString &path, const QByteArray &content)
{
    QByteArray old;
    if (!readAll(path, &old))
        return failure(path, MvSafeFileWriter::tr("Die bisherige Fassung ist nicht lesbar."));
    QTemporaryFile copy(QDir::tempPath() + u"/mvcalendar-sicherung-XXXXXX"_s);
    copy.setAutoRemove(false);
    if (!copy.open() || copy.write(old) != old.size() || !copy.flush() || ::fsync(copy.handle()) != 0) {
        copy.remove();
        return failure(path, MvSafeFileWriter::tr("Von der bisherigen Fassung lässt sich keine Sicherung anlegen."));
    }
    if (write.overwrite(content)) {
        copy.remove();
        return {};
    }
    const QString reason = MvFileDescriptor::errorText(errno);
    QByteArray present;
    if ((readAll(path, &present) && present == old) || write.overwrite(old)) {
        copy.remove();
        return failure(path, reason);
    }
    return failure(path,
                   reason + u' ' + MvSafeFileWriter::tr("Die bisherige Fassung liegt in %1.").arg(copy.fileName()));
}

} // namespace

MvSafeFileWriter::Result MvSafeFileWriter::write(const QFileInfo &file, const QByteArray &content, Backups backups)
{
    const QString path = resolvedPath(file);
    if (path.isEmpty())
        return failure(file.filePath(), tr("Die Verknüpfung führt im Kreis."));
    SafeWrite write(path, content);
    if (!write.isOrdinary())
        return failure(path, tr("Das ist keine gewöhnliche Datei."));
    if (!write.mayBeWritten())
        return failure(path, tr("Die Datei ist schreibgeschützt."));

    const QString folder = QFileInfo(path).absolutePath();
    MvFileBackup::sweepTemporaries(folder);
    if (!write.prepare()) {
        const int reason = errno;
        write.cancel();
        const bool folderIsClosed = reason == EACCES || reason == EPERM || reason == EROFS;
        if (folderIsClosed && write.exists())
            return writeInPlace(write, path, content);
        return failure(path, MvFileDescriptor::errorText(reason));
    }
    Result result;
    if (backups == Backups::Keep && write.exists() && !MvFileBackup::keep(path, content, QDate::currentDate()))
        result.note = tr("Von %1 ließ sich keine Sicherung anlegen.").arg(path);
    if (!write.replace()) {
        const int reason = errno;
        write.cancel();
        return failure(path, MvFileDescriptor::errorText(reason));
    }
    if (!MvFileDescriptor::syncFolder(folder))
        result.note = tr("Der Ordner %1 ließ sich nicht auf den Datenträger schreiben.").arg(folder);
    return result;
}

QString MvSafeFileWriter::setAside(const QFileInfo &file)
{
    const QString path = resolvedPath(file);
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isFile())
        return {};
    const QString pattern = u"%1/%2.unlesbar-%3%4%5"_s;
    const QString date = QDate::currentDate().toString(Qt::ISODate);
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    for (int number = 1; number < 1000; ++number) {
        const QString counter = number == 1 ? QString() : u"-%1"_s.arg(number);
        const QString aside = pattern.arg(info.absolutePath(), info.completeBaseName(), date, counter, suffix);
        if (MvFileBackup::copy(path, aside))
            return aside;
        if (errno != EEXIST)
            return {};
    }
    return {};
}

QList<QFileInfo> MvSafeFileWriter::backups(const QFileInfo &file)
{
    return MvFileBackup::existing(resolvedPath(file));
}

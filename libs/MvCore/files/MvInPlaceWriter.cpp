// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvInPlaceWriter.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvFileDescriptor.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(content) : std::nullopt;
}

bool putNew(const QString &path, const QByteArray &content)
{
    MvFileDescriptor file(
        ::open(QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, 0600));
    return file.isOpen() && file.writeAll(content) && ::fsync(file.get()) == 0 && file.close();
}

/// First the space is reserved, so that a full disk changes nothing. The size stays until the bytes are there.
bool reserve(const MvFileDescriptor &file, qint64 oldSize, qint64 newSize)
{
    if (newSize <= oldSize)
        return true;
    int result = 0;
    do
        result = ::fallocate(file.get(), FALLOC_FL_KEEP_SIZE, 0, newSize);
    while (result != 0 && errno == EINTR);
    if (result == 0 || errno == EOPNOTSUPP || errno == ENOSYS)
        return true;
    const int failure = errno;
    [[maybe_unused]] const int ignored = ::ftruncate(file.get(), oldSize); // releases the reserved space
    errno = failure;
    return false;
}

bool overwrite(const QString &path, const QByteArray &content)
{
    MvFileDescriptor file(::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW));
    struct stat status = {};
    return file.isOpen() && ::fstat(file.get(), &status) == 0 && reserve(file, status.st_size, content.size()) &&
           file.writeAll(content) && ::ftruncate(file.get(), content.size()) == 0 && ::fsync(file.get()) == 0 &&
           file.close();
}

/// What is left when the writing of `after` over `before` stops somewhere: at every place the one or the other, in any
/// order, and zeros where nothing had arrived yet.
bool isHalfDone(const QByteArray &present, const QByteArray &before, const QByteArray &after)
{
    if (present.size() > std::max(before.size(), after.size()))
        return false;
    for (qsizetype i = 0; i < present.size(); ++i) {
        const bool isOld = i < before.size() && present[i] == before[i];
        const bool isNew = i < after.size() && present[i] == after[i];
        if (!isOld && !isNew && (i < before.size() || present[i] != '\0'))
            return false;
    }
    return true;
}

/// The folder with the copies for one file.
class Net
{
public:
    explicit Net(const QString &folder)
        : m_folder(folder)
    {}

    QString previousFile() const { return file(u"previous"_s); }

    /// Writes everything to disk. The file's name is written last and marks the rest as complete. The folder must
    /// not exist.
    bool spread(const QString &path, const QByteArray &before, const QByteArray &after)
    {
        m_path = path;
        if (::mkdir(QFile::encodeName(m_folder).constData(), 0700) != 0)
            return false;
        if (lock(O_CREAT) && putNew(previousFile(), before) && putNew(newFile(), after) &&
            m_lock.writeAll(QFile::encodeName(m_path)) && ::fsync(m_lock.get()) == 0 &&
            MvFileDescriptor::syncFolder(m_folder) && MvFileDescriptor::syncFolder(QFileInfo(m_folder).absolutePath()))
            return true;
        remove();
        return false;
    }

    void remove()
    {
        // under whatever suffix: of a file whose name had not been put in yet it is not known
        const QStringList copies = QDir(m_folder).entryList({u"previous*"_s, u"new*"_s}, QDir::Files | QDir::Hidden);
        for (const QString &copy : copies)
            QFile::remove(m_folder + u'/' + copy);
        ::unlink(
            QFile::encodeName(targetFile()).constData()); // removed last: while it exists, the folder belongs to us
        ::rmdir(QFile::encodeName(m_folder).constData());
        m_lock.close();
    }

    /// Goes on where a program stopped. The path, if its file was half written and is whole now; else an empty one.
    QString finish()
    {
        if (!lock(0)) { // its program still runs, or stopped before it had written anything
            ::rmdir(QFile::encodeName(m_folder).constData());
            return {};
        }
        m_path = QFile::decodeName(contentOf(targetFile()).value_or(QByteArray()));
        const std::optional<QByteArray> before = contentOf(previousFile());
        const std::optional<QByteArray> after = contentOf(newFile());
        const bool isComplete = !m_path.isEmpty() && before && after;
        const std::optional<QByteArray> present = isComplete ? contentOf(m_path) : std::nullopt;
        if (!isComplete || present == before || present == after) { // not begun, or done
            remove();
            return {};
        }
        if (!present || !isHalfDone(*present, *before, *after) || !overwrite(m_path, *after))
            return {};
        remove();
        return m_path;
    }

private:
    QString targetFile() const { return m_folder + u"/target"_s; }
    QString newFile() const { return file(u"new"_s); }

    QString file(const QString &name) const
    {
        const QString suffix = QFileInfo(m_path).suffix();
        const bool hasSuffix = !suffix.isEmpty() && suffix.size() < 20;
        return m_folder + u'/' + name + (hasSuffix ? u'.' + suffix : QString());
    }

    bool lock(int flags)
    {
        m_lock = MvFileDescriptor(
            ::open(QFile::encodeName(targetFile()).constData(), flags | O_RDWR | O_CLOEXEC | O_NOFOLLOW, 0600));
        struct stat status = {};
        return m_lock.isOpen() && ::flock(m_lock.get(), LOCK_EX | LOCK_NB) == 0 &&
               ::fstat(m_lock.get(), &status) == 0 && status.st_nlink > 0; // otherwise it was removed meanwhile
    }

    QString m_folder;
    QString m_path;
    MvFileDescriptor m_lock;
};

/// Where the folders lie, the better place first.
QStringList roots()
{
    const QStringList places{MvDirectoryConfig::instance().programDataDir().absoluteFilePath(u"unfinished"_s),
                             u"%1/mvcalendar-%2-unfinished"_s.arg(QDir::tempPath()).arg(::geteuid())};
    QStringList mine;
    for (const QString &place : places) {
        struct stat status = {}; // where everybody may write, somebody else may have been faster
        if (::lstat(QFile::encodeName(place).constData(), &status) != 0 ||
            (S_ISDIR(status.st_mode) && status.st_uid == ::geteuid()))
            mine.append(place);
    }
    return mine;
}

/// One file may have several folders, each with a number at its end.
QString folderName(const QString &path)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(QFile::encodeName(path), QCryptographicHash::Sha1).toHex().left(20));
}

QString freeFolder(const QString &root, const QString &path)
{
    QDir().mkpath(QFileInfo(root).absolutePath());
    ::mkdir(QFile::encodeName(root).constData(), 0700);
    QString folder;
    for (int number = 1; folder.isEmpty() || QFileInfo::exists(folder); ++number)
        folder = u"%1/%2-%3"_s.arg(root, folderName(path)).arg(number);
    return folder;
}

QStringList finishIn(const QString &root, const QString &pattern)
{
    QStringList paths;
    const QFileInfoList folders = QDir(root).entryInfoList({pattern}, QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        const QString path = Net(folder.absoluteFilePath()).finish();
        if (!path.isEmpty())
            paths.append(path);
    }
    return paths;
}

QString overwriteAbove(Net &net, const QString &path, const QByteArray &before, const QByteArray &content)
{
    if (overwrite(path, content)) {
        net.remove();
        return {};
    }
    const QString reason = MvFileDescriptor::errorText(errno);
    if (contentOf(path) == before || overwrite(path, before)) {
        net.remove();
        return reason;
    }
    return reason + u' ' + MvInPlaceWriter::tr("Die bisherige Fassung liegt in %1.").arg(net.previousFile());
}

} // namespace

QString MvInPlaceWriter::write(const QString &path, const QByteArray &content)
{
    const std::optional<QByteArray> before = contentOf(path);
    if (!before)
        return tr("Die bisherige Fassung ist nicht lesbar.");
    for (const QString &root : roots()) {
        Net net(freeFolder(root, path));
        if (net.spread(path, *before, content))
            return overwriteAbove(net, path, *before, content);
    }
    return tr("Von der bisherigen Fassung lässt sich keine Sicherung anlegen.");
}

bool MvInPlaceWriter::finish(const QString &path)
{
    bool isFinished = false;
    for (const QString &root : roots())
        isFinished = !finishIn(root, folderName(path) + u"-*"_s).isEmpty() || isFinished;
    return isFinished;
}

QStringList MvInPlaceWriter::finishAll()
{
    QStringList paths;
    for (const QString &root : roots())
        paths += finishIn(root, u"*"_s);
    return paths;
}

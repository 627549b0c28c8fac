// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvSafeFileWriter.h"

#include "MvCore/MvFileAttributes.h"
#include "MvCore/MvFileBackup.h"
#include "MvCore/MvFileDescriptor.h"
#include "MvCore/MvInPlaceWriter.h"
#include "MvCore/MvLogger.h"

#include <QDate>
#include <QDir>
#include <QFile>

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

bool isClosedTo(int systemError)
{
    return systemError == EACCES || systemError == EPERM || systemError == EROFS;
}

/// Replaces one file.
class Replacement
{
public:
    enum class Step {
        Done,
        Impossible, // the file that is there must be written where it lies
        Failed,     // errno says why
    };

    Replacement(const QString &path, const QByteArray &content)
        : m_path(path)
        , m_folder(QFileInfo(path).absolutePath())
        , m_content(content)
        , m_encodedPath(QFile::encodeName(path))
    {
        m_exists = ::stat(m_encodedPath.constData(), &m_old) == 0;
    }
    ~Replacement()
    {
        if (m_hasTemporary)
            ::unlink(m_temporary.constData());
    }
    Replacement(const Replacement &) = delete;
    Replacement &operator=(const Replacement &) = delete;

    bool exists() const { return m_exists; }
    bool isOrdinary() const { return !m_exists || S_ISREG(m_old.st_mode); }
    bool mayBeWritten() const
    {
        return !m_exists || ::faccessat(AT_FDCWD, m_encodedPath.constData(), W_OK, AT_EACCESS) == 0;
    }
    /// Whether extended attributes could not be kept.
    bool hasLostNotes() const { return m_kept == MvFileAttributes::Kept::WithoutNotes; }

    /// Writes the new content beside the old one, complete and on disk.
    Step prepare()
    {
        if (m_exists && qsizetype(m_old.st_nlink) > 1 + MvFileBackup::sharing(m_path).size())
            return Step::Impossible; // its other names would keep the old content
        if (!openTemporary())
            return m_exists && isClosedTo(errno) ? Step::Impossible : Step::Failed;
        if (!m_new.writeAll(m_content))
            return Step::Failed;
        if (m_exists && (m_kept = MvFileAttributes::copy(m_encodedPath, m_new)) == MvFileAttributes::Kept::No)
            return Step::Impossible;
        const bool isOnDisk = ::fsync(m_new.get()) == 0 && (m_hasTemporary || giveName()) && m_new.close();
        return isOnDisk ? Step::Done : Step::Failed;
    }

    Step replace()
    {
        if (::rename(m_temporary.constData(), m_encodedPath.constData()) == 0) {
            m_hasTemporary = false;
            return Step::Done;
        }
        // others' files in a folder with the sticky bit, and files that are mounted by themselves
        return m_exists && (isClosedTo(errno) || errno == EBUSY) ? Step::Impossible : Step::Failed;
    }

private:
    bool openTemporary()
    {
        const QByteArray folder = QFile::encodeName(m_folder);
        if (::access("/proc/self/fd", X_OK) == 0) // by which it gets its name; containers may have none
            m_new = MvFileDescriptor(::open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666));
        m_temporary = MvFileBackup::temporaryPath(m_folder);
        if (!m_new.isOpen()) { // not every file system has unnamed files
            m_new = MvFileDescriptor(::open(
                m_temporary.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, m_exists ? 0600 : 0666));
            m_hasTemporary = m_new.isOpen();
        }
        return m_new.isOpen();
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
    MvFileAttributes::Kept m_kept = MvFileAttributes::Kept::All;
    bool m_exists = false;
    bool m_hasTemporary = false; // there is a file under m_temporary
};

MvOutcome failure(const QString &path, const QString &reason)
{
    return {MvSafeFileWriter::tr("%1 konnte nicht gespeichert werden: %2").arg(QDir::toNativeSeparators(path), reason),
            {}};
}

void keepBackup(const QString &path, const QByteArray &content, MvFileBackup::Then then, MvOutcome &result)
{
    if (!MvFileBackup::keep(path, content, QDate::currentDate(), then))
        result.notes.append(MvSafeFileWriter::tr("Von %1 ließ sich keine Sicherung anlegen.").arg(path));
}

MvOutcome writeInPlace(const QString &path, const QByteArray &content, MvSafeFileWriter::Backups backups,
                       MvOutcome result)
{
    const bool mustUnshare = !MvFileBackup::sharing(path).isEmpty();
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const bool isOpenFolder = ::faccessat(AT_FDCWD, folder.constData(), W_OK | X_OK, AT_EACCESS) == 0;
    if (mustUnshare || (backups == MvSafeFileWriter::Backups::Keep && isOpenFolder))
        keepBackup(path, content, MvFileBackup::Then::Overwritten, result);
    const QString reason = MvInPlaceWriter::write(path, content);
    return reason.isEmpty() ? result : failure(path, reason);
}

} // namespace

MvOutcome MvSafeFileWriter::write(const QFileInfo &file, const QByteArray &content, Backups backups)
{
    const QString path = resolvedPath(file);
    if (path.isEmpty())
        return failure(file.filePath(), tr("Die Verknüpfung führt im Kreis."));
    MvOutcome result;
    if (MvInPlaceWriter::finish(path))
        result.notes.append(tr("Ein unterbrochenes Speichern von %1 wurde zu Ende geführt.").arg(path));
    Replacement replacement(path, content);
    if (!replacement.isOrdinary())
        return failure(path, tr("Das ist keine gewöhnliche Datei."));
    if (!replacement.mayBeWritten())
        return failure(path,
                       errno == EACCES ? tr("Die Datei ist schreibgeschützt.") : MvFileDescriptor::errorText(errno));

    const QString folder = QFileInfo(path).absolutePath();
    MvFileBackup::sweepTemporaries(folder);
    Replacement::Step step = replacement.prepare();
    if (step == Replacement::Step::Done) {
        if (backups == Backups::Keep && replacement.exists())
            keepBackup(path, content, MvFileBackup::Then::Replaced, result);
        step = replacement.replace();
    }
    if (step == Replacement::Step::Failed)
        return failure(path, MvFileDescriptor::errorText(errno));
    if (step == Replacement::Step::Impossible)
        return writeInPlace(path, content, backups, result);
    if (replacement.hasLostNotes())
        result.notes.append(tr("Erweiterte Attribute von %1 gingen verloren.").arg(path));
    if (!MvFileDescriptor::syncFolder(folder))
        result.notes.append(tr("Der Ordner %1 ließ sich nicht auf den Datenträger schreiben.").arg(folder));
    return result;
}

QStringList MvSafeFileWriter::finishInterrupted()
{
    const QStringList files = MvInPlaceWriter::finishAll();
    for (const QString &file : files)
        MvLogger::legacyLog(u"Files ACTION:finishInterrupted VALUE:%1"_s.arg(file));
    return files;
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
    const qsizetype addition = u".unlesbar-2026-03-01-99"_s.size() + QFile::encodeName(suffix).size();
    const QString stem = MvFileBackup::stem(info.completeBaseName(), addition);
    for (int number = 1; number < 100; ++number) {
        const QString counter = number == 1 ? QString() : u"-%1"_s.arg(number);
        const QString aside = pattern.arg(info.absolutePath(), stem, date, counter, suffix);
        if (MvFileBackup::copy(path, aside))
            return MvFileDescriptor::syncFolder(info.absolutePath()) ? aside : QString();
        if (errno != EEXIST)
            return {};
    }
    return {};
}

QList<QFileInfo> MvSafeFileWriter::backups(const QFileInfo &file)
{
    return MvFileBackup::existing(resolvedPath(file));
}

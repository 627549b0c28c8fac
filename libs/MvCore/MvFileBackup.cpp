#include "MvCore/MvFileBackup.h"

#include "MvCore/MvFileDescriptor.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QSysInfo>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString temporaryPrefix = u".mvtmp-"_s;

QString previousVersionPath(const QString &path)
{
    return path + u'~';
}

QString dailyPath(const QString &path, const QDate &day)
{
    return path + u'.' + day.toString(Qt::ISODate) + u'~';
}

/// The day of a daily backup's name; invalid for other names.
QDate dayOfBackup(const QString &fileName, const QString &backupName)
{
    if (!backupName.startsWith(fileName + u'.') || !backupName.endsWith(u'~'))
        return {};
    return QDate::fromString(backupName.mid(fileName.size() + 1).chopped(1), Qt::ISODate);
}

QList<QDate> backupDays(const QString &path) // newest first
{
    const QFileInfo info(path);
    QList<QDate> days;
    const QStringList names = info.absoluteDir().entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        const QDate day = dayOfBackup(info.fileName(), name);
        if (day.isValid())
            days.append(day);
    }
    std::sort(days.begin(), days.end(), std::greater<>());
    return days;
}

/// Puts the file's present storage under a second name, replacing what lay there; a copy where links are unknown.
bool linkOver(const QString &path, const QString &backup)
{
    const QByteArray temporary = MvFileBackup::temporaryPath(QFileInfo(path).absolutePath());
    if (::link(QFile::encodeName(path).constData(), temporary.constData()) != 0 &&
        !MvFileBackup::copy(path, QFile::decodeName(temporary)))
        return false;
    const bool isDone = ::rename(temporary.constData(), QFile::encodeName(backup).constData()) == 0;
    ::unlink(temporary.constData()); // also left over when both names were links to the same file
    return isDone;
}

bool hasContent(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) && file.readAll() == content;
}

QString hostMark()
{
    static const QString mark = QString::number(
        qHash(QSysInfo::machineHostName() + QString::fromLatin1(QSysInfo::bootUniqueId()), 0) & 0xffffff, 16);
    return mark;
}

bool isRunning(qint64 processId)
{
    return ::kill(static_cast<pid_t>(processId), 0) == 0 || errno == EPERM;
}

} // namespace

bool MvFileBackup::keep(const QString &path, const QByteArray &newContent, const QDate &today)
{
    if (QFileInfo(path).size() == 0 || hasContent(path, newContent))
        return true;
    bool isDone = linkOver(path, previousVersionPath(path));
    if (!QFileInfo::exists(dailyPath(path, today))) {
        isDone = linkOver(path, dailyPath(path, today)) && isDone;
        const QList<QDate> tooOld = backupDays(path).mid(daysKept);
        for (const QDate &day : tooOld)
            QFile::remove(dailyPath(path, day));
    }
    return isDone;
}

QList<QFileInfo> MvFileBackup::existing(const QString &path)
{
    QList<QFileInfo> files;
    if (QFileInfo::exists(previousVersionPath(path)))
        files.append(QFileInfo(previousVersionPath(path)));
    const QList<QDate> days = backupDays(path);
    for (const QDate &day : days)
        files.append(QFileInfo(dailyPath(path, day)));
    return files;
}

bool MvFileBackup::copy(const QString &from, const QString &to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly)) {
        errno = EACCES;
        return false;
    }
    struct stat status = {};
    ::fstat(source.handle(), &status);
    const QByteArray target = QFile::encodeName(to);
    MvFileDescriptor file(
        ::open(target.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, status.st_mode & 0777));
    if (!file.isOpen())
        return false;
    const QByteArray content = source.readAll();
    if (source.error() == QFileDevice::NoError && file.writeAll(content) && ::fsync(file.get()) == 0 && file.close())
        return true;
    const int failure = errno;
    ::unlink(target.constData());
    errno = failure == EEXIST ? EIO : failure;
    return false;
}

QByteArray MvFileBackup::temporaryPath(const QString &folder)
{
    static std::atomic<quint32> counter = 0;
    // short whatever the file is called; random, since process numbers come back
    return QFile::encodeName(folder + u'/' + temporaryPrefix + hostMark() + u'-' + QString::number(::getpid()) + u'-' +
                             QString::number(counter.fetch_add(1)) + u'-' +
                             QString::number(QRandomGenerator::global()->generate(), 16));
}

void MvFileBackup::sweepTemporaries(const QString &folder)
{
    const QDateTime yesterday = QDateTime::currentDateTimeUtc().addDays(-1);
    const QFileInfoList files = QDir(folder).entryInfoList({temporaryPrefix + u'*'}, QDir::Files | QDir::Hidden);
    for (const QFileInfo &file : files) {
        const QStringList parts = file.fileName().mid(temporaryPrefix.size()).split(u'-');
        bool isNumber = false;
        const qint64 processId = parts.value(1).toLongLong(&isNumber);
        const bool isOrphan = isNumber && processId > 0 && parts.value(0) == hostMark() && !isRunning(processId);
        if (isOrphan || file.lastModified() < yesterday)
            QFile::remove(file.filePath());
    }
}

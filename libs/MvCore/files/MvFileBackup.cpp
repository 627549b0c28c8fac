// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvFileBackup.h"

#include "MvCore/MvFileAttributes.h"
#include "MvCore/MvFileDescriptor.h"

#include <QCryptographicHash>
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

constexpr qsizetype dateLength = 12; // ".2026-03-01~"

/// Folder and beginning of the name of all backups of a file.
QString backupStem(const QString &path)
{
    const QFileInfo info(path);
    return info.absolutePath() + u'/' + MvFileBackup::stem(info.fileName(), dateLength);
}

QString previousVersionPath(const QString &path)
{
    return backupStem(path) + u'~';
}

QString dailyPath(const QString &path, const QDate &day)
{
    return backupStem(path) + u'.' + day.toString(Qt::ISODate) + u'~';
}

/// The day of a daily backup's name; invalid for other names.
QDate dayOfBackup(const QString &stem, const QString &backupName)
{
    if (!backupName.startsWith(stem + u'.') || !backupName.endsWith(u'~'))
        return {};
    return QDate::fromString(backupName.mid(stem.size() + 1).chopped(1), Qt::ISODate);
}

/// Newest first. Those after tomorrow come last: the clock was wrong when they were made. (Tomorrow may be the day in
/// the time zone somebody has just come from.)
QList<QDate> backupDays(const QString &path, const QDate &today)
{
    const QFileInfo stem(backupStem(path));
    QList<QDate> days;
    const QStringList names = stem.absoluteDir().entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        const QDate day = dayOfBackup(stem.fileName(), name);
        if (day.isValid())
            days.append(day);
    }
    std::sort(days.begin(), days.end(), std::greater<>());
    std::stable_partition(days.begin(), days.end(), [&today](const QDate &day) { return day <= today.addDays(1); });
    return days;
}

/// What is to go. Between days that lie more than a year apart somebody may have set the clock: the latest on the far
/// side of such a leap are kept, too, of the first two leaps.
QList<QDate> tooOld(const QList<QDate> &days)
{
    constexpr int leap = 366;
    constexpr int mostLeaps = 2;
    QList<QDate> outdated;
    int leaps = 0;
    int sinceLeap = 0;
    for (qsizetype i = 0; i < days.size(); ++i) {
        if (i > 0 && qAbs(days.at(i).daysTo(days.at(i - 1))) > leap) {
            ++leaps;
            sinceLeap = 0;
        }
        const bool isKept = i < MvFileBackup::daysKept || (leaps <= mostLeaps && sinceLeap < MvFileBackup::daysKept);
        if (!isKept)
            outdated.append(days.at(i));
        ++sinceLeap;
    }
    return outdated;
}

bool copyOver(const QString &path, const QString &backup)
{
    const QByteArray temporary = MvFileBackup::temporaryPath(QFileInfo(path).absolutePath());
    if (!MvFileBackup::copy(path, QFile::decodeName(temporary)))
        return false;
    if (::rename(temporary.constData(), QFile::encodeName(backup).constData()) == 0)
        return true;
    ::unlink(temporary.constData());
    return false;
}

/// Puts the file's present storage under a second name, replacing what lay there; a copy where links are unknown.
bool linkOver(const QString &path, const QString &backup)
{
    const QByteArray temporary = MvFileBackup::temporaryPath(QFileInfo(path).absolutePath());
    if (::link(QFile::encodeName(path).constData(), temporary.constData()) != 0)
        return copyOver(path, backup);
    const bool isDone = ::rename(temporary.constData(), QFile::encodeName(backup).constData()) == 0;
    ::unlink(temporary.constData()); // it also remains when both names were links to the same file
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

bool MvFileBackup::keep(const QString &path, const QByteArray &newContent, const QDate &today, Then then)
{
    if (QFileInfo(path).size() == 0 || hasContent(path, newContent))
        return true;
    const auto keepAs = then == Then::Replaced ? linkOver : copyOver;
    bool isDone = keepAs(path, previousVersionPath(path));
    if (!QFileInfo::exists(dailyPath(path, today))) {
        isDone = keepAs(path, dailyPath(path, today)) && isDone;
        const QList<QDate> outdated = tooOld(backupDays(path, today));
        for (const QDate &day : outdated)
            QFile::remove(dailyPath(path, day));
    }
    if (then == Then::Overwritten) {
        const QList<QFileInfo> shared = sharing(path);
        for (const QFileInfo &backup : shared)
            isDone = copyOver(path, backup.absoluteFilePath()) && isDone;
    }
    return isDone;
}

QList<QFileInfo> MvFileBackup::existing(const QString &path, const QDate &today)
{
    QList<QFileInfo> files;
    if (QFileInfo::exists(previousVersionPath(path)))
        files.append(QFileInfo(previousVersionPath(path)));
    const QList<QDate> days = backupDays(path, today);
    for (const QDate &day : days)
        files.append(QFileInfo(dailyPath(path, day)));
    return files;
}

QList<QFileInfo> MvFileBackup::sharing(const QString &path)
{
    struct stat present = {};
    if (::stat(QFile::encodeName(path).constData(), &present) != 0 || present.st_nlink < 2)
        return {};
    QList<QFileInfo> files = existing(path);
    files.removeIf([&present](const QFileInfo &file) {
        struct stat status = {};
        return ::lstat(QFile::encodeName(file.absoluteFilePath()).constData(), &status) != 0 ||
               status.st_ino != present.st_ino || status.st_dev != present.st_dev;
    });
    return files;
}

QString MvFileBackup::stem(const QString &fileName, qsizetype addition)
{
    constexpr qsizetype longestName = 255; // bytes, on all file systems of today
    const QByteArray encoded = QFile::encodeName(fileName);
    if (encoded.size() + addition <= longestName)
        return fileName;
    const QString mark =
        u'-' + QString::fromLatin1(QCryptographicHash::hash(encoded, QCryptographicHash::Sha1).toHex().left(8));
    QString start = fileName;
    while (QFile::encodeName(start).size() + mark.size() + addition > longestName)
        start.chop(start.back().isLowSurrogate() ? 2 : 1);
    return start + mark;
}

bool MvFileBackup::copy(const QString &from, const QString &to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly)) {
        errno = EACCES;
        return false;
    }
    const QByteArray target = QFile::encodeName(to);
    MvFileDescriptor file(::open(target.constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!file.isOpen())
        return false;
    MvFileAttributes::copy(QFile::encodeName(from), file);
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
    const QFileInfoList files =
        QDir(folder).entryInfoList({temporaryPrefix + u'*'}, QDir::Files | QDir::Dirs | QDir::Hidden);
    for (const QFileInfo &file : files) {
        const QStringList parts = file.fileName().mid(temporaryPrefix.size()).split(u'-');
        bool isNumber = false;
        const qint64 processId = parts.value(1).toLongLong(&isNumber);
        const bool isOrphan = isNumber && processId > 0 && parts.value(0) == hostMark() && !isRunning(processId);
        if (!isOrphan && file.lastModified() >= yesterday)
            continue;
        if (file.isDir() && !file.isSymLink())
            QDir(file.filePath()).removeRecursively();
        else
            QFile::remove(file.filePath());
    }
}

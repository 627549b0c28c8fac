// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectEntryFotos.h"

#include "MvCalendar/MvCalendarEventFotoSweep.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvFileName.h"
#include "MvCore/MvRegularFile.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvFoto/MvFotoBin.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

const QString folderName = u"eintraege"_s;
constexpr qsizetype hashLength = 12; // hexadecimal digits
constexpr qsizetype mostFiles = 500; // that are looked through before a photo may go

QByteArray hashOf(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().first(hashLength);
}

/// Named after its content.
bool isOurs(const QFileInfo &file)
{
    MvRegularFile::Opened opened = MvRegularFile::open(file);
    return opened.isOk() &&
           file.completeBaseName().endsWith(u'-' + QString::fromLatin1(hashOf(opened.file->readAll())));
}

/// Whatever may name a photo of the folder: calendars and lists beside it, their backups, unsaved work of anybody.
QFileInfoList filesThatMayName(const QDir &projectFolder)
{
    QFileInfoList files =
        projectFolder.entryInfoList({u"*.mvcalendar*"_s, u"*.xml*"_s, u".mvtmp-*"_s}, QDir::Files | QDir::Hidden);
    const QDir data = MvDirectoryConfig::instance().programDataDir();
    for (const QString &name : {u"recovery"_s, u"unfinished"_s}) {
        QDirIterator each(data.filePath(name), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (each.hasNext())
            files.append(each.nextFileInfo());
    }
    files.removeIf([](const QFileInfo &file) { return file.suffix() == u"lock"; });
    return files;
}

struct Copy : MvOutcome
{
    QString path;
};

/// "oma-3f2a90c1d2e3.jpg": the same content gets the same name, however often it is copied.
QString nameOf(const QFileInfo &source, const QByteArray &content)
{
    const QByteArray hash = hashOf(content);
    QString base = MvFileName::cleaned(source.completeBaseName());
    if (base.isEmpty())
        base = u"foto"_s;
    if (base.endsWith(u'-' + QString::fromLatin1(hash))) // a copy of a copy
        base.chop(hashLength + 1);
    const QString suffix = source.suffix().isEmpty() ? QString() : u'.' + MvFileName::cleaned(source.suffix());
    return base + u'-' + QString::fromLatin1(hash) + suffix;
}

Copy copied(const QString &source, const QDir &folder)
{
    MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(source));
    if (!opened.isOk())
        return {{opened.error, {}}, {}};
    const QByteArray content = opened.file->readAll();
    if (opened.file->error() != QFileDevice::NoError)
        return {{opened.file->errorString(), {}}, {}};
    Copy copy;
    copy.path = folder.filePath(nameOf(QFileInfo(source), content));
    if (QFileInfo(copy.path).size() == content.size()) // it was never written but as a whole
        return copy;
    folder.mkpath(u"."_s);
    copy.error = MvSafeFileWriter::write(QFileInfo(copy.path), content, MvSafeFileWriter::Backups::None).error;
    return copy;
}

} // namespace

bool MvProjectEntryFotos::isBeside(const QString &path, const QDir &projectFolder)
{
    return QFileInfo(path).absolutePath() == projectFolder.absoluteFilePath(folderName);
}

MvProjectEntryFotos::Taken MvProjectEntryFotos::takeAlong(const MvCalendarEventList &events, const QDir &projectFolder)
{
    const QDir folder(projectFolder.absoluteFilePath(folderName));
    fetchBack(events, projectFolder);
    Taken taken{events, {}};
    QHash<QString, Copy> copies;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const MvFoto foto = events.at(i).foto();
        const QString path = foto.localFilePath();
        if (!foto.mayBeOpened() || isBeside(path, projectFolder) || !QFileInfo(path).isFile())
            continue;
        if (!copies.contains(path)) {
            copies.insert(path, copied(path, folder));
            if (const QString error = copies.value(path).error; !error.isEmpty())
                taken.notes.append(tr("Das Foto zu „%1“ liegt nicht beim Kalender, auf anderen Rechnern fehlt es. %2")
                                       .arg(events.at(i).description(), error));
        }
        if (const Copy copy = copies.value(path); copy.isOk())
            taken.events[i].relocateFoto(MvFoto(QFileInfo(copy.path)));
    }
    return taken;
}

void MvProjectEntryFotos::fetchBack(const MvCalendarEventList &events, const QDir &projectFolder)
{
    const MvFotoBin bin(projectFolder.absoluteFilePath(folderName));
    for (const MvCalendarEvent &event : events) {
        const QFileInfo file = event.imagePath();
        if (event.foto().isValid() && isBeside(file.filePath(), projectFolder) && !file.exists())
            bin.fetchBack(file.fileName());
    }
}

int MvProjectEntryFotos::sweep(const QDir &projectFolder, const QSet<QString> &inUse, const QDateTime &now)
{
    const QFileInfo folder(projectFolder.absoluteFilePath(folderName));
    if (!folder.isDir() || folder.isSymLink()) // a link: calendars elsewhere may use it
        return 0;
    MvCalendarEventFotoSweep plan(QDir(folder.filePath()));
    for (const QString &name : inUse)
        plan.keep(name);
    if (plan.unneeded(now).isEmpty())
        return 0;
    const QFileInfoList files = filesThatMayName(projectFolder);
    if (files.size() > mostFiles)
        return 0;
    for (const QFileInfo &file : files) {
        if (!plan.keepNamesIn(file))
            return 0;
    }
    for (const QString &name : plan.unneeded(now)) {
        if (!isOurs(QFileInfo(QDir(folder.filePath()), name)))
            plan.keep(name);
    }
    return plan.run(now);
}

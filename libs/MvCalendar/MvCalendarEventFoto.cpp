#include "MvCalendar/MvCalendarEventFoto.h"

#include <QFileInfo>

namespace {

/// Whether the path lies below the folder, all links resolved. What does not exist counts by its cleaned path.
bool liesBelow(const QString &path, const QDir &folder)
{
    const QString canonicalFolder = folder.canonicalPath();
    const QFileInfo info(path);
    if (canonicalFolder.isEmpty())
        return false;
    if (info.exists())
        return info.canonicalFilePath().startsWith(canonicalFolder + u'/');
    return !info.isSymLink() && QDir::cleanPath(path).startsWith(QDir::cleanPath(folder.absolutePath()) + u'/');
}

QString foundPath(const QString &text, const QDir &fotoFolder, const QDir *fileFolder)
{
    const QString own = QDir::cleanPath(fotoFolder.absoluteFilePath(text));
    if (QFileInfo::exists(own))
        return own;
    if (QDir::isRelativePath(text)) {
        const QString beside = fileFolder ? QDir::cleanPath(fileFolder->absoluteFilePath(text)) : QString();
        return !beside.isEmpty() && QFileInfo::exists(beside) ? beside : own;
    }
    const QString moved = fotoFolder.absoluteFilePath(QFileInfo(text).fileName());
    return QFileInfo(text).dir().dirName() == fotoFolder.dirName() && QFileInfo::exists(moved) ? moved : own;
}

} // namespace

MvFoto MvCalendarEventFoto::fromText(const QString &text, const QDir &fotoFolder, const QDir *fileFolder)
{
    if (text.isEmpty())
        return MvFoto();
    const QString path = foundPath(text, fotoFolder, fileFolder);
    MvFotoKeyFileInfo key(path, MvVideoFrameIndex(), fotoFolder);
    if (!liesBelow(path, fotoFolder) && !(fileFolder && liesBelow(path, *fileFolder)))
        key.forbidOpening();
    return MvFoto(key);
}

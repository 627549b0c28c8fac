// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoFinder.h"

#include "MvCalendar/MvCalendarEvent.h"
#include "MvFoto/MvFotoBin.h"

#include "MvCore/MvDirectoryConfig.h"

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

} // namespace

MvCalendarEventFotoFinder::MvCalendarEventFotoFinder(const QFileInfo &list)
    : m_isOneOfMany(true)
{
    const QDir folder = list.absoluteDir();
    m_isOwn = folder.canonicalPath() == MvDirectoryConfig::instance().programDataDir().canonicalPath();
    if (!m_isOwn)
        m_listFolder = folder;
}

MvCalendarEventFotoFinder MvCalendarEventFotoFinder::besideDocument(const QDir &folder)
{
    MvCalendarEventFotoFinder finder;
    finder.m_isOneOfMany = true;
    finder.m_isOwn = false;
    finder.m_isOfDocument = true;
    finder.m_listFolder = folder;
    return finder;
}

MvFoto MvCalendarEventFotoFinder::find(const QString &text)
{
    if (text.isEmpty())
        return MvFoto();
    if (!m_hasFolder) {
        m_hasFolder = true;
        m_fotoFolder = MvCalendarEvent::imageDirectory();
        if (m_isOneOfMany) {
            const QStringList names = m_fotoFolder.entryList(QDir::Files | QDir::NoSymLinks, QDir::Unsorted);
            m_fotos = QSet<QString>(names.cbegin(), names.cend());
        }
    }
    const QString path = foundPath(text);
    MvFotoKeyFileInfo key(path, MvVideoFrameIndex(), m_fotoFolder);
    if (!isPlainFoto(path) && !liesBelow(path, m_fotoFolder) && (m_isOwn || !liesBelow(path, m_listFolder)))
        key.forbidOpening();
    return MvFoto(key);
}

/// Whether the file is known to lie in the photo folder, without a look at the disk.
bool MvCalendarEventFotoFinder::isPlainFoto(const QString &path)
{
    const QString folder = m_fotoFolder.absolutePath() + u'/';
    return path.startsWith(folder) && m_fotos.contains(path.mid(folder.size()));
}

QString MvCalendarEventFotoFinder::foundPath(const QString &text)
{
    const bool isRelative = QDir::isRelativePath(text);
    if (!m_isOwn && isRelative) {
        const QString beside = QDir::cleanPath(m_listFolder.absoluteFilePath(text));
        if (m_isOfDocument || QFileInfo::exists(beside))
            return beside;
    }
    const QString path = ownPath(text);
    if (!m_isOwn || isRelative || isPlainFoto(path) || QFileInfo::exists(path))
        return path;
    if (QFileInfo(text).dir().dirName() != m_fotoFolder.dirName())
        return path;
    const QString moved = ownPath(QFileInfo(text).fileName());
    return QFileInfo::exists(moved) ? moved : path;
}

/// Counted from the photo folder. A photo of that folder that is not there is looked for in the bin.
QString MvCalendarEventFotoFinder::ownPath(const QString &text)
{
    const QString path = QDir::cleanPath(m_fotoFolder.absoluteFilePath(text));
    if (!isPlainFoto(path) && QFileInfo(path).absolutePath() == m_fotoFolder.absolutePath())
        MvFotoBin(m_fotoFolder).fetchBack(QFileInfo(path).fileName());
    return path;
}

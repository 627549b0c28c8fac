// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoBin.h"

#include "MvCore/MvUniqueFilenameMaker.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Whether it was noted long ago that the day's photos are too old; notes it when nothing is noted yet, or by a clock
/// that was ahead.
bool isOverdueForLong(const QString &notePath, const QDate &today)
{
    QFile note(notePath);
    const bool hasNote = note.open(QIODevice::ReadOnly);
    const QDate since = hasNote ? QDate::fromString(QString::fromLatin1(note.readAll()), Qt::ISODate) : QDate();
    note.close();
    if (since.isValid() && since <= today)
        return since.daysTo(today) >= MvFotoBin::daysOverdue;
    if (note.open(QIODevice::WriteOnly | QIODevice::Truncate))
        note.write(today.toString(Qt::ISODate).toLatin1());
    return false;
}

} // namespace

MvFotoBin::MvFotoBin(const QDir &fotoFolder)
    : m_fotoFolder(fotoFolder)
    , m_folder(fotoFolder.absoluteFilePath(u"papierkorb"_s))
{}

/// The latest first.
QStringList MvFotoBin::days() const
{
    return m_folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name | QDir::Reversed);
}

QString MvFotoBin::pathOf(const QString &name) const
{
    if (name.isEmpty() || name.contains(u'/'))
        return {};
    for (const QString &day : days()) {
        const QString path = m_folder.filePath(day + u'/' + name);
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

bool MvFotoBin::put(const QString &name, const QDate &today) const
{
    const QString day = today.toString(Qt::ISODate);
    const QString target = m_folder.filePath(day + u'/' + name);
    QFile::remove(target); // of the same name on the same day: only somebody else can have put it into the folder
    return m_folder.mkpath(day) && QFile::rename(m_fotoFolder.filePath(name), target);
}

bool MvFotoBin::fetchBack(const QString &name) const
{
    const QString place = m_fotoFolder.filePath(name);
    if (QFileInfo::exists(place))
        return true;
    const QString path = pathOf(name);
    return !path.isEmpty() && QFile::rename(path, place);
}

QFileInfo MvFotoBin::reserve(const QString &name) const
{
    while (true) {
        const QFileInfo info =
            MvUniqueFilenameMaker::instance().makeUniqueFileName(QFileInfo(m_fotoFolder, name), true);
        const QString path = info.absoluteFilePath();
        QFile file(path);
        if (contains(info.fileName()))
            continue;
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || !QFileInfo::exists(path))
            return QFileInfo(path);
    }
}

QStringList MvFotoBin::names() const
{
    QStringList names;
    for (const QString &day : days())
        names += QDir(m_folder.filePath(day)).entryList(QDir::Files, QDir::Unsorted);
    return names;
}

void MvFotoBin::empty(const QDate &today, const QSet<QString> &needed) const
{
    for (const QString &day : days()) {
        const QDate date = QDate::fromString(day, Qt::ISODate);
        QDir folder(m_folder.filePath(day));
        const QString note = folder.filePath(u".ueberfaellig"_s);
        if (!date.isValid() || date.daysTo(today) <= daysKept) {
            QFile::remove(note); // made when the clock was ahead
            continue;
        }
        if (!isOverdueForLong(note, today))
            continue;
        const QStringList names = folder.entryList(QDir::Files, QDir::Unsorted);
        for (const QString &name : names) {
            if (!needed.contains(name))
                folder.remove(name);
        }
        QFile::remove(note);
        m_folder.rmdir(day); // if nothing is left in it
    }
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>

/// The one way to write a user's file: the new content is complete and on disk before it takes the old one's place.
///
/// Whatever happens (full disk, killed program, lost power), afterwards the file holds either the old content or the
/// new one, never a part. A symbolic link stays and its target is written. Group, mode, access list and extended
/// attributes of an existing file are kept, and the owner where the system allows it.
///
/// What cannot be replaced without a loss is written where it lies: files in a folder that takes no new ones, files
/// with further names (hard links, which keep showing the same content), and those whose group, access list or owner's
/// access a new file would not have. That can be interrupted in the middle; what is needed to finish it is put into
/// the user's data folder before, and is used by the next writing of the file or by finishInterrupted().
///
/// Backups lie beside the file and end in "~", which file managers hide: "name~" is the previous version,
/// "name.2026-03-01~" the state before the first change of that day, for the last seven days with changes.
class MVCORE_EXPORT MvSafeFileWriter
{
    Q_DECLARE_TR_FUNCTIONS(MvSafeFileWriter)

public:
    enum class Backups {
        Keep,
        None, // for what can be made again, such as a page as PDF or PNG
    };

    /// Writes the content. The folder must exist. Directories, devices and pipes are refused, and so is a file that
    /// may not be written. The error names the file; with notes the file is in place, but something beside it went
    /// wrong. Any thread.
    static MvOutcome write(const QFileInfo &file, const QByteArray &content, Backups backups = Backups::Keep);

    /// Keeps an existing file under a name of its own beside it ("name.unlesbar-2026-03-01.xml"), so that the file may
    /// be overwritten. The copy's path; an empty one when it could not be made.
    static QString setAside(const QFileInfo &file);

    /// Finishes what a killed program had begun to write in place, and gives the paths of the files that are whole
    /// again. Programs call it when they start, before they read.
    static QStringList finishInterrupted();

    /// The existing backups of a file: the previous version first, then the days, newest first; last the days of a time
    /// when the clock was ahead.
    static QList<QFileInfo> backups(const QFileInfo &file);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QDate>
#include <QFileInfo>
#include <QList>
#include <QString>

/// Backups and temporary files beside a file; used by MvSafeFileWriter, which describes their names.
class MVCORE_EXPORT MvFileBackup
{
public:
    /// Number of days with changes whose first state is kept; as many of before and after the clock was set by more
    /// than a year, whether it had been wrong or is now.
    static constexpr int daysKept = 7;

    enum class Then {
        Replaced,   // the file gets new storage afterwards: a backup may share the old one
        Overwritten // the file's storage is written: backups are copies, and those that shared it become copies
    };

    /// Keeps the present file as the previous version and, once a day, as that day's backup; drops the days that are
    /// too old. Nothing happens when the file is empty or equal to the content that is about to replace it. False when
    /// a backup could not be made.
    static bool keep(const QString &path, const QByteArray &newContent, const QDate &today, Then then = Then::Replaced);

    /// The previous version first, then the days, newest first; only what exists. Days that have not come yet are from
    /// a time when the clock was wrong: they are last, and the first to be dropped.
    static QList<QFileInfo> existing(const QString &path, const QDate &today = QDate::currentDate());

    /// The backups that are nothing but further names of the present file.
    static QList<QFileInfo> sharing(const QString &path);

    /// Copies a file to a new name, complete and on disk, with its rights; where these cannot be kept, for its owner
    /// alone. An existing target is left alone (EEXIST).
    static bool copy(const QString &from, const QString &to);

    /// The file's name as far as it goes together with an addition of so many bytes: one that would become too long is
    /// cut and gets a number that tells it from others.
    static QString stem(const QString &fileName, qsizetype addition);

    /// A name for a temporary file, or folder, in the folder, encoded for the file system. It tells which program made
    /// it; what others put behind the name changes nothing in that.
    static QByteArray temporaryPath(const QString &folder);
    /// Removes the temporary files and folders whose program is gone, and any that are older than a day.
    static void sweepTemporaries(const QString &folder);
};

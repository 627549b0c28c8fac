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
    /// Number of days with changes whose first state is kept.
    static constexpr int daysKept = 7;

    /// Keeps the present file as the previous version and, once a day, as that day's backup; drops the days that are
    /// too old. Nothing happens when the file is empty or equal to the content that is about to replace it. False when
    /// a backup could not be made. The file must be replaced afterwards, never written in place: a backup may share
    /// its storage.
    static bool keep(const QString &path, const QByteArray &newContent, const QDate &today);

    /// The previous version first, then the days, newest first; only what exists.
    static QList<QFileInfo> existing(const QString &path);

    /// Copies a file to a new name with its mode, complete and on disk. An existing target is left alone (EEXIST).
    static bool copy(const QString &from, const QString &to);

    /// A name for a temporary file in the folder, encoded for the file system. It tells which program made it.
    static QByteArray temporaryPath(const QString &folder);
    /// Removes the temporary files whose program is gone, and any that are older than a day.
    static void sweepTemporaries(const QString &folder);
};

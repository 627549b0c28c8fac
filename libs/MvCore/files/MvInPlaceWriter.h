// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Overwrites an existing file where it lies, for those that cannot be replaced: their folder takes no new file, or a
/// new file would not have their names, group or access list. Used by MvSafeFileWriter.
///
/// Overwriting can be interrupted, so there is a net: before it begins, the old and the new content are put on disk in
/// a folder of their own in "unfinished" in the user's data folder (or, where that takes nothing, the one for temporary
/// files):
///
///     target         path of the file, in bytes; locked while its program writes
///     previous.xml   the old content, under the file's suffix
///     new.xml        the new content
///
/// The folder goes when the new content is complete. One that is found without its program tells of a kill or a power
/// failure, and the writing is finished from it.
class MVCORE_EXPORT MvInPlaceWriter
{
    Q_DECLARE_TR_FUNCTIONS(MvInPlaceWriter)

public:
    /// Overwrites the file (an absolute path without links). Gives the reason of a failure for a person, or nothing
    /// when the new content is complete. After a failure the file holds the old content; where that could not be put
    /// back, the reason names the copy of it.
    static QString write(const QString &path, const QByteArray &content);

    /// Finishes an interrupted writing of the file. True if there was one and the file now holds the new content.
    /// A file that has since been written by somebody else is left alone, and so are the copies.
    static bool finish(const QString &path);

    /// Finishes all that is interrupted, and gives the paths.
    static QStringList finishAll();
};

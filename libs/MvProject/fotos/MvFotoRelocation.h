// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/mvproject_export.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>

/// Finds photos again that are no longer where a calendar says, all at once, in a folder that somebody shows.
///
/// A photo is known by its name; of several of that name the one that has the size and the capture time that the pool
/// noted is taken, then the one whose folders are most like the missing one's; letters may be large or small. A photo
/// of another name, such as one that was numbered anew, is taken when both size and capture time are those of the pool,
/// and of no other file.
class MVPROJECT_EXPORT MvFotoRelocation
{
public:
    /// The photos on pages and in the pool that are not there or cannot be read, each once. Looks into the files; any
    /// thread.
    static QStringList missing(const MvCalendarDocument &document);

    /// The files below the folder, by the path that is missing. Hidden folders and links out of the folder are left
    /// out. Any thread; given up when `goOn` says false.
    static QHash<QString, QString> find(const QStringList &missing, const MvFotoPool &pool, const QString &folder,
                                        const std::function<bool()> &goOn = {});

    /// The calendar with these files, on pages, kept and in the pool. Photos that have been replaced meanwhile stay.
    static MvCalendarDocument relocated(const MvCalendarDocument &document, const QHash<QString, QString> &found);
};

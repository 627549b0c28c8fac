// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QSet>
#include <QString>
#include <QStringList>

/// The photos of a project's entries: copies in the folder "eintraege" beside the project's file, so that they go
/// wherever the project goes. Each is named after its content, which several projects and programs may share. What
/// nothing needs any more goes to the bin of the folder, and from there after a month. Any thread.
class MVPROJECT_EXPORT MvProjectEntryFotos
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectEntryFotos)

public:
    struct Taken
    {
        MvCalendarEventList events;
        QStringList notes; ///< photos that could not be copied, and why
    };

    /// The list with photos beside a project's file in that folder, which must exist. A photo that is not there, or
    /// cannot be copied, keeps its place. Files are copied as they are.
    static Taken takeAlong(const MvCalendarEventList &events, const QDir &projectFolder);
    /// Whether the photo lies there already.
    static bool isBeside(const QString &path, const QDir &projectFolder);
    /// Puts photos of the list that lie in the bin back into the folder.
    static void fetchBack(const MvCalendarEventList &events, const QDir &projectFolder);

    /// Moves photos into the bin that this class has put there, and that nothing names: `inUse`, a calendar, a list or
    /// a backup of these beside the folder, or unsaved work. In doubt a photo stays. How many went.
    static int sweep(const QDir &projectFolder, const QSet<QString> &inUse,
                     const QDateTime &now = QDateTime::currentDateTime());
};

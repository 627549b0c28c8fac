// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QStringList>

/// The photos of a project's entries: copies in the folder "eintraege" beside the project's file, so that they go
/// wherever the project goes. Each is named after its content, which several projects and programs may share; none is
/// ever removed, since backups of the project name it, too. Any thread.
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
};

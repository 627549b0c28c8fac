// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include "MvFoto/MvFoto.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QString>

/// Copies of photos in the photo folder (MvCalendarEvent::imageDirectory()), in medium resolution: entries refer to
/// these, so that they do not depend on files elsewhere. Any thread.
class MVCALENDAR_EXPORT MvCalendarEventFotoCopy
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventFotoCopy)

public:
    /// Whether the file lies directly in the photo folder.
    static bool isInFolder(const QFileInfo &file);
    /// A copy of the photo; a photo of the folder itself, once it was read. Else an invalid one, and `error`, if given,
    /// says why, for a person.
    static MvFoto of(const MvFoto &foto, QString *error = nullptr);
    /// Saves an image under a new name made from the photo's. The file does not exist when that failed, and `error`
    /// says why.
    static QFileInfo save(const QImage &image, const MvFoto &foto, QString *error);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include "MvCore/MvOutcome.h"
#include "MvFoto/MvFoto.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>

/// Copies of photos in the photo folder (MvCalendarEvent::imageDirectory()), in medium resolution: entries refer to
/// these, so that they do not depend on files elsewhere. Any thread.
class MVCALENDAR_EXPORT MvCalendarEventFotoCopy
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventFotoCopy)

public:
    /// Whether the file lies directly in the photo folder.
    static bool isInFolder(const QFileInfo &file);
    struct Copy : MvOutcome
    {
        MvFoto foto;
    };
    /// A copy of the photo; a photo of the folder itself, once it was read.
    static Copy of(const MvFoto &foto);

    struct Saved : MvOutcome
    {
        QFileInfo file; // does not exist after an error
    };
    /// Saves an image under a new name made from the photo's.
    static Saved save(const QImage &image, const MvFoto &foto);
};

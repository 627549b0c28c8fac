#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include "MvFoto/MvFoto.h"

#include <QDir>
#include <QString>

/// Finds the photo that an entry in a file names, and decides whether it may be opened.
///
/// A file of entries may come from anybody. It may name photos of the photo folder, and those that came with it: in
/// its own folder and below. Whatever else it names (with ".." or symbolic links, too) is kept by name only.
class MVCALENDAR_EXPORT MvCalendarEventFoto
{
public:
    /// A relative path is looked up in the photo folder first, then in the file's folder, if there is one. An absolute
    /// one that leads nowhere means the photo of the same name in the photo folder, if that exists: the user's data
    /// may have moved to another computer. An empty text gives no photo.
    static MvFoto fromText(const QString &text, const QDir &fotoFolder, const QDir *fileFolder);
};

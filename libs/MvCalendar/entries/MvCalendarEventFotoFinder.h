// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include "MvFoto/MvFoto.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QString>

/// Finds the photos that the entries of a list name, and decides whether they may be opened.
///
/// A list may come from anybody. It may name photos of the photo folder, and those that came with it: in its own
/// folder and below. Whatever else it names (with ".." or symbolic links, too) is kept by name only. A photo that has
/// gone to the bin of the photo folder comes back from there.
class MVCALENDAR_EXPORT MvCalendarEventFotoFinder
{
public:
    /// For entries of the user's own that are in no file.
    MvCalendarEventFotoFinder() = default;
    /// For entries of a file. It is one of the user's own, such as a backup, when it lies in the user's folder.
    explicit MvCalendarEventFotoFinder(const QFileInfo &list);
    /// For entries that belong to a document in the folder: a relative path counts from there, whether or not the photo
    /// is there just now.
    static MvCalendarEventFotoFinder besideDocument(const QDir &folder);

    /// The photo of a text in a list; none when it is empty.
    ///
    /// A relative path counts from the photo folder for the user's own lists; for those from elsewhere, a photo beside
    /// the list comes first. An absolute path is meant as it is, but if it leads nowhere, an own list, which may have
    /// moved here from another computer, means the photo of that name in the photo folder. A list from elsewhere does
    /// not: names such as "oma.jpg" are everywhere.
    MvFoto find(const QString &text);

private:
    QString foundPath(const QString &text);
    QString ownPath(const QString &text);
    bool isPlainFoto(const QString &path);

    bool m_isOwn = true;
    bool m_isOfDocument = false;
    QDir m_listFolder; // of a list from elsewhere
    QDir m_fotoFolder; // asked for with the first photo
    bool m_hasFolder = false;
    bool m_isOneOfMany = false;
    QSet<QString> m_fotos; // names of the plain files in the photo folder, for many entries
};

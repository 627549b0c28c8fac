// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFotoCopy.h"
#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvCore/MvFolderUse.h"
#include "MvFoto/MvFoto.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>

class QObject;

/// The photos of a list of entries on their way into the photo folder, and out of it. GUI thread.
class MVCALENDAR_EXPORT MvCalendarEventFotoFolder
{
public:
    /// Of a photo's path.
    using StaysThere = std::function<bool(const QString &path)>;

    /// This program uses the photo folder as long as the object lives.
    MvCalendarEventFotoFolder();

    /// The list with copies in the photo folder in place of photos that lie elsewhere, such as those that came with a
    /// list from somebody else. Each is copied once, as long as file and copy stay as they are. A photo that cannot be
    /// copied stays what it was, and the user is told once. Photos of the folder that are in its bin are fetched back.
    /// Photos that `staysThere` says so of are left where they are.
    MvCalendarEventList withOwnCopies(const MvCalendarEventList &events, const StaysThere &staysThere = {});

    /// Calls when withOwnCopies() would not have to decode photos any more: makes the copies in the background. At
    /// once when there is nothing to copy; not at all when the receiver is gone by then.
    void prepare(const MvCalendarEventList &events, QObject *receiver, const std::function<void()> &use,
                 const StaysThere &staysThere = {});

    /// Moves the photos that no entry of the list uses from the photo folder into its bin.
    static void removeAllBut(const MvCalendarEventList &events);
    /// Puts a photo of the photo folder that is gone back into it, if it lies in the bin.
    static bool fetchBack(const MvFoto &foto);

    /// Tidies the photo folder up (MvCalendarEventFotoSweep) in the background, unless another program uses it.
    /// Needed are the photos in `inUse`, asked once more at the end, and those that the user's files name, the backups
    /// and set-aside ones among them. Given up when `mayGoOn` says so at the end.
    void sweep(QObject *receiver, const std::function<QSet<QString>()> &inUse, const std::function<bool()> &mayGoOn);

private:
    /// The state of a file that was copied, or could not be.
    struct Source
    {
        QString path;
        qint64 changed = 0; // milliseconds since the epoch
        qint64 bytes = 0;
        bool operator==(const Source &) const = default;
    };
    friend size_t qHash(const Source &source, size_t seed)
    {
        return qHashMulti(seed, source.path, source.changed, source.bytes);
    }
    using Outcomes = QHash<Source, MvCalendarEventFotoCopy::Copy>;

    static Source sourceOf(const MvFoto &foto);
    bool isKnown(const Source &source) const;

    MvFolderUse m_use;
    std::shared_ptr<Outcomes> m_outcomes; // a copying that is under way may end later than this object
    QSet<Source> m_told;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QString>
#include <QStringList>

/// Tidies the photo folder up: photos that nothing needs go to the bin, and from there after a month. In doubt a photo
/// stays. Any thread, one at a time.
class MVCALENDAR_EXPORT MvCalendarEventFotoSweep
{
public:
    /// Photos younger than this stay in any case: an entry that is to name them may be on its way.
    static constexpr qint64 youngSeconds = 24LL * 60 * 60;

    explicit MvCalendarEventFotoSweep(const QDir &fotoFolder);

    /// A photo is needed.
    void keep(const QString &name) { m_needed.insert(name); }
    /// So are all that a file names, anywhere in it and however damaged it is. False when that cannot be told; then
    /// run() must not follow.
    bool keepNamesIn(const QFileInfo &list);

    /// Names of photos in the folder that nothing needs as far as known, and that are not young.
    QStringList unneeded(const QDateTime &now) const;
    /// Moves the others into the bin, fetches back from there what is needed, and empties it of old ones. The number
    /// of photos that went into the bin.
    int run(const QDateTime &now) const;

private:
    bool keepNamesIn(const QString &text);

    QDir m_folder;
    QSet<QString> m_known; // in the folder and in its bin
    QSet<QString> m_needed;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvCore/MvLocale.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class QTemporaryDir;

/// What a file from elsewhere holds, read as entries.
struct MvEntryReading
{
    QString error; ///< why nothing could be read, for a person, with file; else empty
    MvCalendarEventList events;
    QList<MvCalendarEventFile::Skipped> skipped; ///< what is left out, in the order of the file
    QStringList notes; ///< for a person: what entries that were read have lost, such as a photo or an alarm
    /// Where photos lie that came in the file itself; gone with the last copy of the reading. Whoever keeps an entry
    /// copies its photo first, as MvCalendarEventRegistry::setEvents() does. Null without such photos.
    std::shared_ptr<const QTemporaryDir> fotos;

    bool isOk() const { return error.isEmpty(); }
};

/// Takes entries of a file from elsewhere into a list: what is new, what has changed there since, what is the same.
/// Taking the same file in a second time changes nothing.
class MVCALENDAR_EXPORT MvEntryIntake
{
    Q_DECLARE_TR_FUNCTIONS(MvEntryIntake)

public:
    static constexpr qint64 largestFile = 64LL * 1024 * 1024; ///< of calendars, tables and cards

    enum class Kind { Unknown, List, Calendar, Table, Cards };

    struct Report
    {
        int added = 0;
        int changed = 0;
        int equal = 0;
        QList<MvCalendarEventFile::Skipped> skipped;
        QStringList notes;

        /// "12 neu, 3 geändert, 40 gleich, 2 ausgelassen"
        QString describe() const;
    };

    /// By what it begins with, whatever its name is.
    static Kind kindOf(const QByteArray &begin);
    /// Whether the file is a table: what its columns are is a guess, which a person should see first.
    static bool isTable(const QFileInfo &file);
    /// Reads a list of entries, an iCalendar, a table or visiting cards. The language is that in which entries say what
    /// cards do not, that a day is a wedding's; at first the program's. Any thread.
    static MvEntryReading read(const QFileInfo &file, const MvLocale &language = {});
    /// The same of bytes; the name is for messages.
    static MvEntryReading read(const QByteArray &bytes, const QString &name, const MvLocale &language = {});

    /// The same in the form of a list that was read: a list itself, or what other programs write of one; no visiting
    /// cards, whose photos belong to the reading.
    static MvCalendarEventFile::Content readAsList(const QFileInfo &file);
    /// Its note says what the entries have lost.
    static MvCalendarEventFile::Content asList(const MvEntryReading &reading, const QFileInfo &file);

    /// Where entries come from that get other groups.
    enum class Origin {
        Elsewhere, ///< what ids mean there is nothing to us
        OtherList, ///< the user's own list, or that of a calendar: an id that both have is one group
    };
    /// Entries from elsewhere as those of a list with these groups. Groups are known by name: one of a known name is
    /// the list's own, whatever id it has elsewhere; the others are added.
    static MvCalendarEventList inGroups(const MvEventGroupList &groups, const MvCalendarEventList &events,
                                        Origin origin = Origin::Elsewhere);

    /// The list with the entries in it: those with a known uuid replace what they were, the others are added unless
    /// they are equal to one that is there. A uuid that several entries share, here or there, names none of them.
    /// Groups are known by name, as inGroups() says. A photo that an entry has stays.
    static MvCalendarEventList joined(const MvCalendarEventList &list, const MvEntryReading &reading, Report *report);
};

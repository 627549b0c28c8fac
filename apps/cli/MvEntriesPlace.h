// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryIntake.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QString>

#include <memory>
#include <optional>

class MvProject;

/// Where the entries are that a command changes: the user's own list, a list in a file (XML), or a calendar with its
/// own. First they are read, then stored; other programs wait for files meanwhile, and the lists of user and calendar
/// are put together with what those wrote.
class MvEntriesPlace
{
    Q_DECLARE_TR_FUNCTIONS(MvEntriesPlace)

public:
    /// The path of a file, which may be new for a list; none: the user's own list.
    explicit MvEntriesPlace(const QString &path);
    ~MvEntriesPlace();

    /// All entries. What cannot be read whole is refused: writing it would lose the rest.
    MvEntryReading read();
    /// Gives the entry a photo of any place; what it becomes, store() says.
    MvOutcome takeFoto(MvCalendarEvent &event, const QFileInfo &file) const;
    /// Writes the list in place of the one that was read. Photos that lie elsewhere are copied to where the entries of
    /// the place have theirs; `added` are those entries whose photos a list in a file shall have beside it.
    MvOutcome store(MvCalendarEventList events, const QList<QUuid> &added = {});

private:
    MvOutcome storeOwn(const MvCalendarEventList &events) const;
    MvOutcome storeFile(MvCalendarEventList events, const QList<QUuid> &added) const;
    MvOutcome storeProject(const MvCalendarEventList &events);
    MvEntryReading readFile();
    MvEntryReading readProject();

    QString m_path;
    std::optional<MvFileGuard> m_guard;   // of a list in a file
    std::unique_ptr<MvProject> m_project; // the calendar, when it is one
};

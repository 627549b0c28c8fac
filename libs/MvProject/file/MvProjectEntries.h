// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvCalendarEventProjectStore.h"
#include "MvProject/MvProjectFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>
#include <QStringList>

#include <functional>
#include <optional>

class MvCalendarEventRegistry;

/// The list of entries of the open project: the registry holds it, for everybody who shows or changes it, and this
/// knows what of it is in the project's file. Used by MvProject.
class MvProjectEntries : public MvCalendarEventProjectStore
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectEntries)

public:
    /// What is about to be written: the list with its photos beside the file; none while it is not known.
    struct ToSave
    {
        MvProjectFile::Entries list;
        QStringList notes;
    };

    /// Installs itself in the registry, which must outlive it; `changed` is called when the list is another one.
    MvProjectEntries(MvCalendarEventRegistry &registry, const std::function<void()> &changed);
    ~MvProjectEntries() override;

    /// Reads the list in a file of its own that a document names, as if it stood in the project's file. What of it, or
    /// of the project's own, could not be read, as notes.
    static QStringList resolveFile(MvProjectFile::Content &content, const QFileInfo &file);

    /// Another project is open: its list becomes the active one. The list is as the file has it, unless it was
    /// recovered.
    void begin(const MvProjectFile::Content &content, const QFileInfo &file, bool isSaved);
    bool isModified() const;
    MvProjectFile::Entries toSave() const;
    /// Takes in what others have written into the project's file, and puts photos beside the file.
    ToSave prepare(const QFileInfo &file, bool isChangedByOthers) const;
    /// That is in the file by now.
    void noteSaved(const ToSave &saved, const QFileInfo &file);
    /// Something in the registry has changed: as long as the list is nothing but a copy of the user's, it remains that.
    void followOwn();

    bool keeps(const MvProjectIdentifier &project) const override { return project == m_project; }
    bool holdsFoto(const QString &path) const override;
    void listChanged(const MvProjectIdentifier &project) override;

private:
    MvCalendarEventList list() const;
    MvCalendarEventList withChangesOfOthers() const;
    void noteFotos();

    MvCalendarEventRegistry &m_registry;
    std::function<void()> m_changed;
    MvProjectIdentifier m_before;  // whose list was active before there was this
    MvProjectIdentifier m_project; // another one for each project that is opened
    QFileInfo m_file;
    std::optional<MvCalendarEventList> m_saved; // what the file has, as far as known
    bool m_isUnknown = false;                   // the file names a list that cannot be read
    bool m_isCopy = false;                      // of the user's list, which nobody has changed or saved
    bool m_isFollowing = false;                 // it is being copied again
    QSet<QString> m_usedFotos;                  // names of those that steps back may bring back
    bool m_isSwept = false;                     // photos that nothing needs are gone
    bool m_hadNone = false;                     // it comes from a file without a list
};

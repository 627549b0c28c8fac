// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvSession.h"
#include "MvCore/MvOutcome.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QFileInfo>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class MvProjectEntries;

/// The open project: a document, the file it belongs to, and whether that has its present state. Every change is a step
/// that the undo controller of its session can take back. GUI thread.
///
/// Personal entries are no part of it at first: its session has them, and they are saved as soon as they change. After
/// keepEntries() each project has a list of its own, which is opened, saved and recovered with it. A program that opens
/// several projects at a time gives each a session of its own.
class MVPROJECT_EXPORT MvProject : public QObject
{
    Q_OBJECT

public:
    explicit MvProject(QObject *parent = nullptr, MvSession &session = MvSession::defaultSession());
    ~MvProject() override;

    /// Undo and entries.
    MvSession &session() const { return m_session; }

    /// From now on the list of entries that is active in the session is the project's: a new project begins with a copy
    /// of the user's list, one that has none yet takes that into its file when it is first saved. Until the project
    /// goes; then the list of before is the active one again. Called once.
    void keepEntries();
    /// The project's list as it is saved; none without keepEntries(), and while the list of another file that it names
    /// cannot be read.
    MvProjectFile::Entries entries() const;
    /// Whether what is changed in the project's list is changed in the user's list, too; see
    /// MvCalendarEventRegistry::setChangesReachOwn().
    bool doEntriesReachOwn() const;
    void setEntriesReachOwn(bool reach);

    const MvCalendarDocument &document() const { return m_document; }

    /// Does a change as one step with the text for menus; nothing happens when nothing changes. Photos that nobody has
    /// placed follow their frames (MvFotoAim). Steps with the same
    /// merge id, not negative, that follow each other within a second become one.
    void change(const MvCalendarDocument &after, const QString &text, int mergeId = -1);
    /// The same with one page, counted from 0; steps merge on the same page only.
    void changePage(int page, const MvCalendarPage &after, const QString &text, int mergeId = -1);

    /// Begins with a document that no file belongs to. What was open before is given up, and its undo steps with it.
    void newProject(const MvCalendarDocument &document);
    /// Opens a file; the notes say what of it could not be taken as it stands there. When it cannot be read, what was
    /// open stays.
    MvOutcome open(const QFileInfo &file);
    /// Goes on with a document that was not saved to its file: the project is modified. The file may be none. Its stamp
    /// is the one it had under the document; without one, the times of both files tell whether it is another by now.
    void openRecovered(const MvProjectFile::Content &content, const QFileInfo &original, const QFileInfo &recovered,
                       const QByteArray &originalStamp = {});

    /// Writes the file; without one, an error. Notes say what became of the entries: photos that could not be put
    /// beside the file, and that they came from the user's list. When others have written the file since, its document
    /// is replaced, but their changes of its entries are taken in.
    MvOutcome save();
    /// Writes another file, which then belongs to the project.
    MvOutcome saveAs(const QFileInfo &file);

    /// The file that the project belongs to; one without a path for a new project.
    QFileInfo fileInfo() const { return m_file; }
    /// The file's name without its suffix; for a new project its title, or "Unbenannt".
    QString displayName() const;
    /// The document, or its list of entries, differs from what was opened or saved.
    bool isModified() const { return m_isModified; }
    /// Somebody else has written or removed the file since it was opened or saved, for a recovered document also
    /// before it was recovered.
    bool isFileChangedByOthers() const;
    /// MvFileGuard's stamp of the file when it was opened or saved; empty without a file.
    const QByteArray &fileStamp() const { return m_stamp; }
    /// The file that a recovered document was read from, until it is saved; else one without a path.
    QFileInfo recoveredFrom() const { return m_recoveredFrom; }

Q_SIGNALS:
    /// One page looks different.
    void pageChanged(int page);
    /// The number of pages, their months or their paper changed: everything is to be looked at anew.
    void pagesReset();
    /// Another project was opened.
    void documentReplaced();
    /// The document changed in any way, after the signals above.
    void documentChanged();
    /// The project's own list of entries has changed.
    void entriesChanged();
    void entriesReachOwnChanged(bool reach);
    void modifiedChanged(bool isModified);
    void fileInfoChanged();
    /// The file has the present state.
    void saved();

private:
    friend class MvUndoCommandDocument;

    /// Makes it the present state, for commands.
    void apply(const MvCalendarDocument &document);
    void replace(const MvProjectFile::Content &content, const QFileInfo &file, const QFileInfo &recovered,
                 const QByteArray &stamp);
    void onEntriesChanged();
    void updateModified();

    MvSession &m_session;
    std::unique_ptr<MvProjectEntries> m_entries; // null: the session's are saved by themselves
    MvCalendarDocument m_document;
    std::optional<MvCalendarDocument> m_saved; // none for a recovered one: it differs from any file
    QFileInfo m_file;
    QByteArray m_stamp; // of the file, when it was read or written; what no file has, if that was another one
    QFileInfo m_recoveredFrom;
    bool m_isModified = false;
};

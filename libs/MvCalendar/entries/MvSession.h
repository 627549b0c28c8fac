// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <memory>

class MvCalendarEventRegistry;
class MvGeneralSettings;
class MvUndoController;

/// What one open project works with besides its document: the steps that can be undone, and the personal entries.
///
/// A program with one window needs no session of its own: the default session is the one whose steps, entries and
/// settings the singletons give (MvUndoController::instance() and so on), and everything that can be made without
/// naming a session belongs to it. A program that holds several projects makes a session for each and hands it to
/// MvProject and to the editors; an undo in one then touches nothing of the others.
///
/// A session must outlive what was made with it. GUI thread.
class MVCALENDAR_EXPORT MvSession
{
public:
    /// A session with an undo stack and entries of its own. The entries begin empty, under a document id of their own,
    /// and live in memory: MvCalendarEventRegistry::loadFrom() and saveAs() bring them from a file and into one.
    MvSession();
    ~MvSession();
    MvSession(const MvSession &) = delete;
    MvSession &operator=(const MvSession &) = delete;

    /// The session of the singletons, whose entries are those of the user's file. Never destroyed.
    static MvSession &defaultSession();

    MvUndoController &undo() const { return m_undo; }
    MvCalendarEventRegistry &entries() const { return m_entries; }
    /// The settings belong to the user, not to a project: the same for all sessions.
    MvGeneralSettings &settings() const;

private:
    explicit MvSession(MvUndoController &undo, MvCalendarEventRegistry &entries);

    std::unique_ptr<MvUndoController> m_ownUndo; // null for the default session
    std::unique_ptr<MvCalendarEventRegistry> m_ownEntries;
    MvUndoController &m_undo;
    MvCalendarEventRegistry &m_entries;
};

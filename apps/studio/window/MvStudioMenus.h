// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

class MvStudioActions;
class MvUndoActions;
class QMainWindow;
class QMenu;
class QToolBar;
class QToolButton;

/// The menu bar and the tool bar of the window: where its actions are found. The tool bar has three buttons with names,
/// for photos, looks and export, that do the most usual thing and offer the others in a menu.
class MvStudioMenus : public QObject
{
    Q_OBJECT

public:
    /// Fills the window's menu bar and adds the tool bar. The actions must outlive it.
    MvStudioMenus(MvStudioActions *actions, MvUndoActions *undo, QMainWindow *window);

    /// Where the windows' own docks are switched on and off.
    QMenu *viewMenu() const { return m_view; }
    QToolBar *toolBar() const { return m_toolBar; }

public Q_SLOTS:
    /// Looks which files were opened last.
    void fillRecentMenu();

Q_SIGNALS:
    void recentRequested(const QString &path);

private:
    void createFileMenu();
    void createEditMenu();
    void createViewMenu();
    void createPageMenu();
    void createFrameMenu();
    void createFotoMenu();
    void createLookMenu();
    void createToolBar();
    void addNamedButton(const char *objectName, const QString &text, const QList<int> &ids);

    MvStudioActions *m_actions;
    MvUndoActions *m_undo;
    QMainWindow *m_window;
    QMenu *m_recent = nullptr;
    QMenu *m_view = nullptr;
    QToolBar *m_toolBar = nullptr;
};

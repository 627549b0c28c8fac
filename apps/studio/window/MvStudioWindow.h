// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMainWindow>

class MvBirthdayImport;
class MvEntriesFlow;
class MvExportFlow;
class MvMissingFotos;
class MvPageCanvas;
class MvPageStrip;
class MvPrintFlow;
class MvProject;
class MvProjectFlow;
class MvStudioActions;
class MvStudioPanels;
class MvStudioStatusBar;
class MvUndoActions;
class MvUnfittingWatch;
class MvWelcomePanel;
class QMenu;

/// The window of the program: the page in the middle, the strip of pages and the panels around it.
class MvStudioWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The project is not owned and must outlive the window.
    explicit MvStudioWindow(MvProject *project, QWidget *parent = nullptr);
    ~MvStudioWindow() override;

    MvProjectFlow *projectFlow() const { return m_flow; }
    MvBirthdayImport *birthdayImport() const { return m_import; }
    MvEntriesFlow *entriesFlow() const { return m_entries; }

    int currentPage() const;

public Q_SLOTS:
    void setCurrentPage(int page);

Q_SIGNALS:
    /// The settings ask for other colours.
    void themeChanged();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createCenter();
    void createDocks();
    void createMenus();
    void createToolBar();
    void connectActions();
    void connectPages();
    void addPanels();
    int widthOfTabs() const;

    void fillRecentMenu();
    void showMessage(const QString &text);
    void updateTitle();
    void updatePage();
    void chooseLayout();
    void changePageSetup();
    void showSettings();
    void onOpened();
    void setWelcomeShown(bool shown);
    void rememberWindow() const;

    MvProject *m_project;
    MvStudioActions *m_actions;
    MvUndoActions *m_undo;
    MvProjectFlow *m_flow;
    MvExportFlow *m_export;
    MvPrintFlow *m_print;
    MvMissingFotos *m_missingFotos;
    MvBirthdayImport *m_import;
    MvEntriesFlow *m_entries;
    MvUnfittingWatch *m_unfitting;
    MvWelcomePanel *m_welcome = nullptr;
    MvPageCanvas *m_canvas = nullptr;
    MvPageStrip *m_strip = nullptr;
    MvStudioPanels *m_panels = nullptr;
    MvStudioStatusBar *m_statusBar;
    QMenu *m_recentMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    bool m_mayClose = false; // nothing would be lost
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMainWindow>

class MvBirthdayImport;
class MvEntriesFlow;
class MvEntryImportFlow;
class MvExportFlow;
class MvFotoFlow;
class MvFotoTray;
class MvInspector;
class MvMissingFotos;
class MvNewCalendarFlow;
class MvPageCanvas;
class MvPageFlow;
class MvPageStrip;
class MvPrintFlow;
class MvProject;
class MvProjectFlow;
class MvStartPage;
class MvStudioActions;
class MvStudioMenus;
class MvStudioPanels;
class MvStudioStatusBar;
class MvUndoActions;
class MvPrintWatch;
struct MvPrintFinding;
class QStackedWidget;

/// The window of the program: the page in the middle, around it the strip of pages, the photos and the inspector. At
/// the start the page where calendars begin stands in their place.
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
    MvInspector *inspector() const { return m_inspector; }
    /// In place of the calendar.
    bool isStartShown() const;

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
    QWidget *createPagesPanel();
    void addDock(const char *name, const QString &title, QWidget *content, Qt::DockWidgetArea area);
    void connectActions();
    void connectPageActions();
    void connectStart();
    void connectMessages();
    void connectPages();

    void showMessage(const QString &text);
    void updateTitle();
    void updatePage();
    void chooseLayout();
    void changePageSetup();
    void checkPrint();
    void showFinding(const MvPrintFinding &finding);
    void showSettings();
    void takeDates(const QStringList &files, bool areWithFotos);
    void onOpened();
    void setStartShown(bool shown);
    void rememberWindow();

    MvProject *m_project;
    MvStudioActions *m_actions;
    MvUndoActions *m_undo;
    MvStudioMenus *m_menus;
    MvProjectFlow *m_flow;
    MvNewCalendarFlow *m_new;
    MvPrintWatch *m_watch;
    MvExportFlow *m_export;
    MvPrintFlow *m_print;
    MvMissingFotos *m_missingFotos;
    MvFotoFlow *m_fotos;
    MvPageFlow *m_pageFlow;
    MvBirthdayImport *m_import;
    MvEntriesFlow *m_entries;
    MvEntryImportFlow *m_dates;
    QStackedWidget *m_center = nullptr;
    MvStartPage *m_start = nullptr;
    MvPageCanvas *m_canvas = nullptr;
    MvPageStrip *m_strip = nullptr;
    MvFotoTray *m_tray = nullptr;
    MvStudioPanels *m_panels = nullptr;
    MvInspector *m_inspector = nullptr;
    MvStudioStatusBar *m_statusBar;
    QByteArray m_docks;      // how they stood before the start page came
    bool m_mayClose = false; // nothing would be lost
};

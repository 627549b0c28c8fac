// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvStudioWindow.h"

#include "MvCore/MvProactiveHelpController.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvProject.h"
#include "common/MvCalendarHabits.h"
#include "common/MvStudioSettings.h"
#include "flows/MvBirthdayImport.h"
#include "flows/MvDocumentDialog.h"
#include "flows/MvEntriesFlow.h"
#include "flows/MvExportFlow.h"
#include "flows/MvMissingFotos.h"
#include "flows/MvPrintFlow.h"
#include "flows/MvProjectFlow.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageStrip.h"
#include "panels/MvStudioPanels.h"
#include "window/MvDockTitles.h"
#include "window/MvHelpDialogs.h"
#include "window/MvLeapDayHint.h"
#include "window/MvSettingsDialog.h"
#include "window/MvStudioActions.h"
#include "window/MvStudioStatusBar.h"
#include "window/MvUndoActions.h"
#include "window/MvUnfittingWatch.h"
#include "window/MvWelcomePanel.h"

#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(1600, 1000);
constexpr QSize frame(8, 40);     // what window managers put around it at most, as a rule
constexpr int widestPanel = 420;  // at first; the page is what it is about
constexpr int messageTime = 8000; // milliseconds
constexpr int stateVersion = 1;   // of the arrangement of docks and tool bars

/// The one project file that is dragged; empty when something else is.
QString draggedProject(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return {};
    const QString path = urls.first().toLocalFile();
    return MvProjectFlow::isProjectFile(path) ? path : QString();
}

} // namespace

MvStudioWindow::MvStudioWindow(MvProject *project, QWidget *parent)
    : QMainWindow(parent)
    , m_project(project)
    , m_actions(new MvStudioActions(this))
    , m_undo(new MvUndoActions(project->session().undo(), this))
    , m_flow(new MvProjectFlow(project, this))
    , m_export(new MvExportFlow(project, this))
    , m_print(new MvPrintFlow(project, this))
    , m_missingFotos(new MvMissingFotos(project, this))
    , m_import(new MvBirthdayImport(project->session(), this))
    , m_entries(new MvEntriesFlow(project->session().entries(), this))
    , m_unfitting(new MvUnfittingWatch(project, this))
    , m_statusBar(new MvStudioStatusBar(this))
{
    setObjectName(u"studioWindow"_s);
    setAcceptDrops(true);
    setStatusBar(m_statusBar);
    setDockOptions(AnimatedDocks | AllowTabbedDocks | AllowNestedDocks);
    setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);
    createCenter();
    createMenus();
    createToolBar();
    createDocks();
    connectActions();
    connectPages();
    setWelcomeShown(MvStudioSettings::isWelcomeShown());
    updateTitle();
    updatePage();

    resize(firstSize.boundedTo(screen()->availableSize() - frame));
    restoreGeometry(MvStudioSettings::windowGeometry());
    restoreState(MvStudioSettings::windowState(), stateVersion);
    m_canvas->setFocus();
}

MvStudioWindow::~MvStudioWindow() = default;

void MvStudioWindow::createCenter()
{
    auto *center = new QWidget(this);
    m_welcome = new MvWelcomePanel(center);
    m_canvas = new MvPageCanvas(m_project, center);
    auto *column = new QVBoxLayout(center);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_welcome);
    column->addWidget(m_canvas, 1);
    setCentralWidget(center);
}

void MvStudioWindow::createDocks()
{
    auto *pages = new QDockWidget(tr("Seiten"), this);
    pages->setObjectName(u"pagesDock"_s);
    m_strip = new MvPageStrip(m_project, pages);
    pages->setWidget(m_strip);
    addDockWidget(Qt::LeftDockWidgetArea, pages);
    m_viewMenu->addAction(pages->toggleViewAction());
    addPanels();
}

void MvStudioWindow::addPanels()
{
    m_panels = new MvStudioPanels(m_project, this);
    auto *titles = new MvDockTitles(this);
    QDockWidget *first = nullptr;
    for (const MvStudioPanel &panel : m_panels->panels()) {
        auto *dock = new QDockWidget(panel.title, this);
        dock->setObjectName(panel.objectName + u"Dock"_s);
        dock->setWidget(panel.widget);
        titles->add(dock);
        dock->toggleViewAction()->setIcon(MvIconRegistry::instance().icon(panel.iconName));
        dock->toggleViewAction()->setIconVisibleInMenu(false); // the tick can be seen
        addDockWidget(Qt::RightDockWidgetArea, dock);
        m_viewMenu->addAction(dock->toggleViewAction());
        if (first)
            tabifyDockWidget(first, dock);
        else
            first = dock;
    }
    if (!first)
        return;
    first->raise();
    const int narrowest = widthOfTabs();
    int widest = 0;
    for (const MvStudioPanel &panel : m_panels->panels()) {
        panel.widget->setMinimumWidth(qMax(panel.widget->minimumSizeHint().width(), narrowest));
        widest = qMax(widest, qMin(panel.widget->sizeHint().width(), widestPanel));
    }
    resizeDocks({first}, {widest}, Qt::Horizontal);
}

/// Of the panels' tabs side by side, with their whole texts.
int MvStudioWindow::widthOfTabs() const
{
    QTabBar tabs;
    tabs.setElideMode(Qt::ElideNone);
    for (const MvStudioPanel &panel : m_panels->panels())
        tabs.addTab(panel.title);
    return tabs.sizeHint().width();
}

void MvStudioWindow::createMenus()
{
    const auto action = [this](MvStudioActions::Id id) { return m_actions->action(id); };
    using A = MvStudioActions;
    QMenu *file = menuBar()->addMenu(tr("&Datei"));
    file->addActions({action(A::New), action(A::Open)});
    m_recentMenu = file->addMenu(MvIconRegistry::instance().icon(u"ico_studio_recent"_s), tr("&Zuletzt geöffnet"));
    m_recentMenu->setObjectName(u"recentMenu"_s);
    file->addSeparator();
    file->addActions({action(A::Save), action(A::SaveAs)});
    file->addSeparator();
    file->addActions({action(A::ImportBirthdays), action(A::FindFotos)});
    file->addSeparator();
    file->addActions({action(A::ExportPdf), action(A::ExportPng), action(A::Print)});
    file->addSeparator();
    file->addAction(action(A::Quit));

    QMenu *edit = menuBar()->addMenu(tr("&Bearbeiten"));
    edit->addActions({m_undo->undoAction(), m_undo->redoAction()});
    edit->addSeparator();
    edit->addAction(action(A::Settings));

    m_viewMenu = menuBar()->addMenu(tr("&Ansicht"));
    m_viewMenu->addActions({action(A::ZoomIn), action(A::ZoomOut), action(A::Zoom100), action(A::ZoomFit)});
    m_viewMenu->addSeparator();
    m_viewMenu->addActions({action(A::FullScreen), action(A::Welcome)});
    m_viewMenu->addSeparator();

    QMenu *page = menuBar()->addMenu(tr("&Seite"));
    page->addActions({action(A::PreviousPage), action(A::NextPage), action(A::FirstPage), action(A::LastPage)});
    page->addSeparator();
    page->addActions({action(A::ChooseFoto), action(A::RemoveFoto)});
    page->addSeparator();
    page->addActions({action(A::Layout), action(A::PageSetup)});

    QMenu *help = menuBar()->addMenu(tr("&Hilfe"));
    help->addActions({action(A::Shortcuts), action(A::About)});
    fillRecentMenu();
}

void MvStudioWindow::createToolBar()
{
    QToolBar *bar = addToolBar(tr("Werkzeuge"));
    bar->setObjectName(u"toolBar"_s);
    bar->setMovable(false);
    const auto add = [&](std::initializer_list<MvStudioActions::Id> ids) {
        for (const MvStudioActions::Id id : ids)
            bar->addAction(m_actions->action(id));
        bar->addSeparator();
    };
    using A = MvStudioActions;
    add({A::New, A::Open, A::Save});
    bar->addActions({m_undo->undoAction(), m_undo->redoAction()});
    bar->addSeparator();
    add({A::ChooseFoto, A::Layout, A::ImportBirthdays});
    add({A::PreviousPage, A::NextPage});
    add({A::ZoomOut, A::ZoomIn, A::ZoomFit});
    bar->addActions({m_actions->action(A::ExportPdf), m_actions->action(A::Print)});
    m_viewMenu->addAction(bar->toggleViewAction());
}

void MvStudioWindow::connectActions()
{
    using A = MvStudioActions;
    const auto on = [this](A::Id id, auto *receiver, auto slot) {
        connect(m_actions->action(id), &QAction::triggered, receiver, slot);
    };
    on(A::New, m_flow, &MvProjectFlow::startNew);
    on(A::Open, m_flow, &MvProjectFlow::askAndOpen);
    on(A::Save, m_flow, &MvProjectFlow::save);
    on(A::SaveAs, m_flow, &MvProjectFlow::saveAs);
    on(A::ExportPdf, m_export, &MvExportFlow::startPdf);
    on(A::ExportPng, m_export, &MvExportFlow::startPng);
    on(A::Print, m_print, &MvPrintFlow::start);
    on(A::ImportBirthdays, m_import, &MvBirthdayImport::start);
    on(A::FindFotos, m_missingFotos, &MvMissingFotos::search);
    on(A::Quit, this, &QWidget::close);
    on(A::Settings, this, &MvStudioWindow::showSettings);
    on(A::ZoomIn, m_canvas, &MvPageCanvas::zoomIn);
    on(A::ZoomOut, m_canvas, &MvPageCanvas::zoomOut);
    on(A::ZoomFit, m_canvas, &MvPageCanvas::zoomToFit);
    on(A::Zoom100, this, [this] { m_canvas->setZoom(1.0); });
    on(A::FullScreen, this, [this](bool isFull) { isFull ? showFullScreen() : showNormal(); });
    on(A::Welcome, this, &MvStudioWindow::setWelcomeShown);
    on(A::NextPage, m_canvas, &MvPageCanvas::nextPage);
    on(A::PreviousPage, m_canvas, &MvPageCanvas::previousPage);
    on(A::FirstPage, this, [this] { setCurrentPage(0); });
    on(A::LastPage, this, [this] { setCurrentPage(int(m_project->document().pages().size()) - 1); });
    on(A::ChooseFoto, m_canvas, &MvPageCanvas::chooseFoto);
    on(A::RemoveFoto, m_canvas, &MvPageCanvas::removePhoto);
    on(A::Layout, this, &MvStudioWindow::chooseLayout);
    on(A::PageSetup, this, &MvStudioWindow::changePageSetup);
    on(A::Shortcuts, this, [this] {
        MvHelpDialogs::openShortcuts(m_actions->actions() << m_undo->undoAction() << m_undo->redoAction(), this);
    });
    on(A::About, this, [this] { MvHelpDialogs::openAbout(this); });

    connect(m_welcome, &MvWelcomePanel::layoutRequested, this, &MvStudioWindow::chooseLayout);
    connect(m_welcome, &MvWelcomePanel::importRequested, m_import, &MvBirthdayImport::start);
    connect(m_welcome, &MvWelcomePanel::openRequested, m_flow, &MvProjectFlow::askAndOpen);
    connect(m_welcome, &MvWelcomePanel::recentRequested, m_flow, &MvProjectFlow::open);
    connect(m_flow, &MvProjectFlow::opened, this, &MvStudioWindow::onOpened);
    connect(m_missingFotos, &MvMissingFotos::message, this, &MvStudioWindow::showMessage);
    connect(m_welcome, &MvWelcomePanel::closeRequested, this, [this] { setWelcomeShown(false); });
    connect(m_print, &MvPrintFlow::pdfRequested, m_export, &MvExportFlow::startPdf);
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MvStudioWindow::fillRecentMenu);
    connect(m_flow, &MvProjectFlow::recentFilesChanged, this, &MvStudioWindow::fillRecentMenu);
    connect(m_flow, &MvProjectFlow::message, this, &MvStudioWindow::showMessage);
    connect(m_export, &MvExportFlow::message, this, &MvStudioWindow::showMessage);
    connect(m_print, &MvPrintFlow::message, this, &MvStudioWindow::showMessage);
    connect(new MvLeapDayHint(m_project, this), &MvLeapDayHint::message, this, &MvStudioWindow::showMessage);
    connect(m_import, &MvBirthdayImport::message, this, &MvStudioWindow::showMessage);
    connect(m_canvas, &MvPageCanvas::message, this, &MvStudioWindow::showMessage);
    connect(&MvProactiveHelpController::instance(), &MvProactiveHelpController::adviceRequested, this,
            [this](int, const QString &text) { showMessage(text.simplified()); });
}

void MvStudioWindow::connectPages()
{
    connect(m_canvas, &MvPageCanvas::currentPageChanged, this, &MvStudioWindow::updatePage);
    connect(m_canvas, &MvPageCanvas::zoomChanged, this,
            [this](double zoom) { m_statusBar->setZoom(zoom, m_canvas->isFitted()); });
    connect(m_panels, &MvStudioPanels::pageRequested, this, &MvStudioWindow::setCurrentPage);
    connect(m_strip, &MvPageStrip::pageActivated, m_canvas, &MvPageCanvas::setCurrentPage);
    connect(m_entries, &MvEntriesFlow::noticeChanged, m_statusBar, &MvStudioStatusBar::setEntriesNotice);
    connect(m_entries, &MvEntriesFlow::message, this, &MvStudioWindow::showMessage);
    connect(m_statusBar, &MvStudioStatusBar::entriesNoticeClicked, m_entries, &MvEntriesFlow::show);
    connect(m_statusBar, &MvStudioStatusBar::zoomRequested, m_canvas, &MvPageCanvas::setZoom);
    connect(m_statusBar, &MvStudioStatusBar::fitRequested, m_canvas, &MvPageCanvas::zoomToFit);
    connect(m_statusBar, &MvStudioStatusBar::pageRequested, this, &MvStudioWindow::setCurrentPage);
    connect(m_unfitting, &MvUnfittingWatch::changed, this,
            [this] { m_statusBar->setUnfitting(m_unfitting->entries()); });

    connect(m_project, &MvProject::pagesReset, this, &MvStudioWindow::updatePage);
    connect(m_project, &MvProject::pageChanged, this, &MvStudioWindow::updatePage);
    connect(m_project, &MvProject::documentReplaced, this, [this] {
        setCurrentPage(0);
        updateTitle();
    });
    connect(m_project, &MvProject::modifiedChanged, this, &MvStudioWindow::updateTitle);
    connect(m_project, &MvProject::fileInfoChanged, this, &MvStudioWindow::updateTitle);
}

int MvStudioWindow::currentPage() const
{
    return m_canvas->currentPage();
}

void MvStudioWindow::setCurrentPage(int page)
{
    m_canvas->setCurrentPage(page);
    updatePage();
}

void MvStudioWindow::updatePage()
{
    const int page = currentPage();
    const int count = int(m_project->document().pages().size());
    m_strip->setCurrentPage(page);
    m_export->setCurrentPage(page);
    m_panels->setCurrentPage(page);
    m_statusBar->setPage(page, count, MvCalendarTitle::ofPage(m_project->document().pages().value(page)));
    m_statusBar->setZoom(m_canvas->zoom(), m_canvas->isFitted());
    using A = MvStudioActions;
    for (const A::Id id : {A::FirstPage, A::PreviousPage})
        m_actions->action(id)->setEnabled(page > 0);
    for (const A::Id id : {A::LastPage, A::NextPage})
        m_actions->action(id)->setEnabled(page + 1 < count);
    const bool hasPhoto = page >= 0 && page < count && m_project->document().pages().at(page).fotoFrame().isValid();
    m_actions->action(A::RemoveFoto)->setEnabled(hasPhoto);
    m_actions->action(A::ChooseFoto)->setEnabled(count > 0);
}

void MvStudioWindow::updateTitle()
{
    setWindowTitle(u"%1[*] – MvCalendar"_s.arg(m_project->displayName()));
    setWindowModified(m_project->isModified());
    setWindowFilePath(m_project->fileInfo().filePath());
}

void MvStudioWindow::showMessage(const QString &text)
{
    m_statusBar->showMessage(text, messageTime);
}

void MvStudioWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    int number = 0;
    for (const QString &path : MvStudioSettings::recentFiles()) {
        QString shown = QDir::toNativeSeparators(path);
        if (path.startsWith(QDir::homePath() + u'/'))
            shown = u'~' + QDir::toNativeSeparators(path.mid(QDir::homePath().size()));
        shown.replace(u'&', u"&&"_s);
        ++number;
        QAction *action = m_recentMenu->addAction(number < 10 ? u"&%1  %2"_s.arg(number).arg(shown) : shown);
        action->setStatusTip(tr("Diesen Kalender öffnen"));
        action->setData(path);
        connect(action, &QAction::triggered, m_flow, [this, path] { m_flow->open(path); });
    }
    m_recentMenu->menuAction()->setEnabled(number > 0);
    if (number == 0)
        return;
    m_recentMenu->addSeparator();
    QAction *clear = m_recentMenu->addAction(tr("Liste &leeren"));
    clear->setObjectName(u"clearRecent"_s);
    clear->setStatusTip(tr("Die Liste leeren; die Dateien bleiben"));
    connect(clear, &QAction::triggered, this, [this] {
        MvStudioSettings::clearRecentFiles();
        m_recentMenu->menuAction()->setEnabled(false);
    });
}

void MvStudioWindow::chooseLayout()
{
    auto *dialog = new MvDocumentDialog(MvDocumentDialog::Layout, m_project->document(), this);
    dialog->setObjectName(u"layoutDialog"_s);
    dialog->setWindowTitle(tr("Layout für alle Seiten wählen"));
    dialog->setAcceptText(tr("Layout übernehmen"));
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { m_project->change(dialog->document(), tr("Layout wählen")); });
    dialog->open();
}

void MvStudioWindow::changePageSetup()
{
    auto *dialog = new MvDocumentDialog(MvDocumentDialog::Setup, m_project->document(), this);
    dialog->setObjectName(u"pageSetupDialog"_s);
    dialog->setWindowTitle(tr("Papier und Zeitraum"));
    dialog->setAcceptText(tr("Übernehmen"));
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        MvCalendarDocument document = dialog->document();
        if (document.title() == MvCalendarTitle::ofRange(m_project->document().range()))
            document.setTitle(MvCalendarTitle::ofRange(document.range())); // one that nobody has changed
        m_project->change(document, tr("Papier und Zeitraum ändern"));
    });
    dialog->open();
}

void MvStudioWindow::showSettings()
{
    auto *dialog = new MvSettingsDialog(this);
    connect(dialog, &MvSettingsDialog::themeChanged, this, &MvStudioWindow::themeChanged);
    connect(dialog, &MvSettingsDialog::languageChanged, this,
            [this] { showMessage(tr("Die andere Sprache gilt ab dem nächsten Start.")); });
    dialog->open();
}

void MvStudioWindow::setWelcomeShown(bool shown)
{
    m_welcome->setVisible(shown);
    const QStringList recent = MvStudioSettings::recentFiles();
    const auto there =
        std::find_if(recent.begin(), recent.end(), [](const QString &p) { return QFileInfo::exists(p); });
    m_welcome->setRecentFile(there != recent.end() ? *there : QString());
    m_actions->action(MvStudioActions::Welcome)->setChecked(shown);
    if (shown != MvStudioSettings::isWelcomeShown())
        MvStudioSettings::setWelcomeShown(shown);
    if (!shown)
        m_canvas->setFocus();
}

/// The first steps are behind somebody who opens a calendar; the next start shows them again.
void MvStudioWindow::onOpened()
{
    m_welcome->hide();
    m_actions->action(MvStudioActions::Welcome)->setChecked(false);
    m_canvas->setFocus();
    m_missingFotos->look();
}

void MvStudioWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) // be it by the window manager
        m_actions->action(MvStudioActions::FullScreen)->setChecked(isFullScreen());
}

void MvStudioWindow::rememberWindow() const
{
    MvCalendarHabits::remember(m_project->document());
    MvStudioSettings::setWindow(saveGeometry(), saveState(stateVersion));
}

void MvStudioWindow::closeEvent(QCloseEvent *event)
{
    if (m_mayClose || (!m_project->isModified() && !m_entries->hasUnsaved())) {
        rememberWindow();
        event->accept();
        return;
    }
    event->ignore();
    m_flow->leave([this] {
        m_entries->leave([this] {
            m_mayClose = true;
            close();
        });
    });
}

void MvStudioWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!draggedProject(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MvStudioWindow::dropEvent(QDropEvent *event)
{
    const QString path = draggedProject(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    m_flow->open(path);
}

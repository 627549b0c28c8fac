// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvStudioWindow.h"

#include "MvCore/MvProactiveHelpController.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProject.h"
#include "common/MvCalendarHabits.h"
#include "common/MvDraggedDates.h"
#include "common/MvDraggedFotos.h"
#include "common/MvStudioSettings.h"
#include "flows/MvBirthdayImport.h"
#include "flows/MvDocumentDialog.h"
#include "flows/MvEntriesFlow.h"
#include "flows/MvEntryImportFlow.h"
#include "flows/MvExportFlow.h"
#include "flows/MvFotoFlow.h"
#include "flows/MvMissingFotos.h"
#include "flows/MvNewCalendarFlow.h"
#include "flows/MvPageFlow.h"
#include "flows/MvPrintCheckDialog.h"
#include "flows/MvPrintFlow.h"
#include "flows/MvPrintWatch.h"
#include "flows/MvProjectFlow.h"
#include "pages/MvDayMark.h"
#include "pages/MvFrameEdits.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageSelection.h"
#include "pages/MvPageStrip.h"
#include "panels/MvGroupsDialog.h"
#include "panels/MvInspector.h"
#include "panels/MvStudioPanels.h"
#include "start/MvStartPage.h"
#include "tray/MvFotoTray.h"
#include "window/MvHelpDialogs.h"
#include "window/MvLeapDayHint.h"
#include "window/MvSettingsDialog.h"
#include "window/MvStudioActions.h"
#include "window/MvStudioMenus.h"
#include "window/MvStudioStatusBar.h"
#include "window/MvUndoActions.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QStackedWidget>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(1600, 1000); // at least, where there is room
constexpr QSize frame(8, 40);          // what window managers put around it at most, as a rule
constexpr int messageTime = 8000;      // milliseconds
constexpr int stateVersion = 2;        // of the arrangement of docks and tool bars

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
    , m_menus(new MvStudioMenus(m_actions, m_undo, this))
    , m_flow(new MvProjectFlow(project, this))
    , m_new(new MvNewCalendarFlow(this))
    , m_watch(new MvPrintWatch(project, this))
    , m_export(new MvExportFlow(project, m_watch, this))
    , m_print(new MvPrintFlow(project, m_watch, this))
    , m_missingFotos(new MvMissingFotos(project, this))
    , m_fotos(new MvFotoFlow(project, this))
    , m_pageFlow(new MvPageFlow(project, this))
    , m_import(new MvBirthdayImport(project, this))
    , m_entries(new MvEntriesFlow(project->session().entries(), this))
    , m_dates(new MvEntryImportFlow(project->session(), m_import, this))
    , m_statusBar(new MvStudioStatusBar(this))
{
    setObjectName(u"studioWindow"_s);
    setAcceptDrops(true);
    setStatusBar(m_statusBar);
    setDockOptions(AnimatedDocks | AllowTabbedDocks | AllowNestedDocks);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    createCenter();
    createDocks();
    connectActions();
    connectPageActions();
    connectStart();
    connectMessages();
    connectPages();
    updateTitle();
    updatePage();

    const QSize available = screen()->availableSize();
    resize(firstSize.expandedTo(available * 4 / 5).boundedTo(available - frame));
    restoreGeometry(MvStudioSettings::windowGeometry());
    restoreState(MvStudioSettings::windowState(), stateVersion);
    setStartShown(MvStudioSettings::isWelcomeShown());
}

MvStudioWindow::~MvStudioWindow() = default;

void MvStudioWindow::createCenter()
{
    m_center = new QStackedWidget(this);
    m_canvas = new MvPageCanvas(m_project, m_center);
    m_start = new MvStartPage(m_center);
    m_center->addWidget(m_canvas);
    m_center->addWidget(m_start);
    setCentralWidget(m_center);
}

void MvStudioWindow::createDocks()
{
    m_strip = new MvPageStrip(m_project, this);
    m_tray = new MvFotoTray(m_project, this);
    m_panels = new MvStudioPanels(m_project, this, m_canvas->selection(), m_canvas->frames());
    m_inspector = new MvInspector(m_panels, m_canvas->selection(), this);
    addDock("pagesDock", tr("Seiten"), createPagesPanel(), Qt::LeftDockWidgetArea);
    addDock("inspectorDock", tr("Eigenschaften"), m_inspector, Qt::RightDockWidgetArea);
    addDock("photosDock", tr("Fotos"), m_tray, Qt::BottomDockWidgetArea);
}

/// The strip above a row of what can be done with pages.
QWidget *MvStudioWindow::createPagesPanel()
{
    using A = MvStudioActions;
    auto *panel = new QWidget(this);
    auto *row = new QToolBar(tr("Seiten bearbeiten"), panel);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    row->setIconSize({side, side});
    row->addActions({m_actions->action(A::AddPage), m_actions->action(A::DuplicatePage),
                     m_actions->action(A::MovePageUp), m_actions->action(A::MovePageDown),
                     m_actions->action(A::RemovePage)});
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_strip, 1);
    column->addWidget(row);
    m_strip->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_strip->addActions({m_actions->action(A::AddPage), m_actions->action(A::AddCover), m_actions->action(A::AddBack),
                         m_actions->action(A::DuplicatePage), m_actions->action(A::MovePageUp),
                         m_actions->action(A::MovePageDown), m_actions->action(A::RemovePage)});
    return panel;
}

void MvStudioWindow::addDock(const char *name, const QString &title, QWidget *content, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(QLatin1StringView(name));
    dock->setWidget(content);
    addDockWidget(area, dock);
    if (area != Qt::LeftDockWidgetArea)
        dock->setTitleBarWidget(new QWidget(dock)); // the content has a head of its own
    m_menus->viewMenu()->addAction(dock->toggleViewAction());
}

void MvStudioWindow::connectActions()
{
    using A = MvStudioActions;
    const auto on = [this](A::Id id, auto *receiver, auto slot) {
        connect(m_actions->action(id), &QAction::triggered, receiver, slot);
    };
    on(A::New, m_new, &MvNewCalendarFlow::start);
    on(A::Open, m_flow, &MvProjectFlow::askAndOpen);
    on(A::Save, m_flow, &MvProjectFlow::save);
    on(A::SaveAs, m_flow, &MvProjectFlow::saveAs);
    on(A::ExportPdf, m_export, &MvExportFlow::startPdf);
    on(A::ExportPng, m_export, &MvExportFlow::startPng);
    on(A::Print, m_print, &MvPrintFlow::start);
    on(A::ImportBirthdays, m_import, &MvBirthdayImport::start);
    on(A::ImportDates, m_dates, &MvEntryImportFlow::start);
    on(A::FindFotos, m_missingFotos, &MvMissingFotos::search);
    on(A::Quit, this, &QWidget::close);
    on(A::Settings, this, &MvStudioWindow::showSettings);
    on(A::ZoomIn, m_canvas, &MvPageCanvas::zoomIn);
    on(A::ZoomOut, m_canvas, &MvPageCanvas::zoomOut);
    on(A::ZoomFit, m_canvas, &MvPageCanvas::zoomToFit);
    on(A::Zoom100, this, [this] { m_canvas->setZoom(1.0); });
    on(A::FullScreen, this, [this](bool isFull) { isFull ? showFullScreen() : showNormal(); });
    on(A::PrintMarks, m_canvas, &MvPageCanvas::setPrintMarksShown);
    on(A::Welcome, this, &MvStudioWindow::setStartShown);
    on(A::Theme, this, [this] { m_inspector->open(u"themePanel"_s); });
    on(A::Template, this, [this] { m_inspector->open(u"templatePanel"_s); });
    on(A::Layout, this, &MvStudioWindow::chooseLayout);
    on(A::Groups, m_panels, &MvStudioPanels::groupsRequested);
    on(A::PageSetup, this, &MvStudioWindow::changePageSetup);
    on(A::PrintCheck, this, &MvStudioWindow::checkPrint);
    on(A::Shortcuts, this, [this] {
        MvHelpDialogs::openShortcuts(m_actions->actions() << m_undo->undoAction() << m_undo->redoAction(), this);
    });
    on(A::About, this, [this] { MvHelpDialogs::openAbout(this); });
}

void MvStudioWindow::connectPageActions()
{
    using A = MvStudioActions;
    const auto on = [this](A::Id id, auto *receiver, auto slot) {
        connect(m_actions->action(id), &QAction::triggered, receiver, slot);
    };
    on(A::NextPage, m_canvas, &MvPageCanvas::nextPage);
    on(A::PreviousPage, m_canvas, &MvPageCanvas::previousPage);
    on(A::FirstPage, this, [this] { setCurrentPage(0); });
    on(A::LastPage, this, [this] { setCurrentPage(int(m_project->document().pages().size()) - 1); });
    on(A::NextElement, this, [this] {
        m_canvas->setFocus();
        m_canvas->selection()->selectNext();
    });
    MvFrameEdits *frames = m_canvas->frames();
    on(A::AddFotoFrame, frames, &MvFrameEdits::addFoto);
    on(A::AddTextFrame, frames, &MvFrameEdits::addText);
    on(A::AddSmallMonth, frames, &MvFrameEdits::addSmallMonth);
    on(A::DuplicateFrame, frames, &MvFrameEdits::duplicate);
    on(A::RemoveFrame, frames, &MvFrameEdits::remove);
    on(A::FrameToFront, frames, &MvFrameEdits::bringToFront);
    on(A::FrameToBack, frames, &MvFrameEdits::sendToBack);
    on(A::FreeFrames, frames, &MvFrameEdits::freeFrames);
    on(A::PlaceFrame, this, [this] { m_inspector->open(u"framePanel"_s); });
    on(A::AddFotos, m_fotos, &MvFotoFlow::askForFiles);
    on(A::AddFolder, m_fotos, &MvFotoFlow::askForFolder);
    on(A::Distribute, m_fotos, &MvFotoFlow::distribute);
    on(A::ChooseFoto, m_canvas, &MvPageCanvas::chooseFoto);
    on(A::RemoveFoto, m_canvas, &MvPageCanvas::removePhoto);
    on(A::AddPage, this, [this] { m_pageFlow->add(MvPageKind::Free, currentPage() + 1); });
    on(A::AddCover, this, [this] { m_pageFlow->add(MvPageKind::Cover, 0); });
    on(A::AddBack, this, [this] { m_pageFlow->add(MvPageKind::Back, int(m_project->document().pages().size())); });
    on(A::DuplicatePage, this, [this] { m_pageFlow->duplicate(currentPage()); });
    on(A::RemovePage, this, [this] { m_pageFlow->remove(currentPage()); });
    on(A::MovePageUp, this, [this] { m_pageFlow->move(currentPage(), currentPage() - 1); });
    on(A::MovePageDown, this, [this] { m_pageFlow->move(currentPage(), currentPage() + 1); });
    connect(m_pageFlow, &MvPageFlow::pageRequested, this, &MvStudioWindow::setCurrentPage);
    connect(m_pageFlow, &MvPageFlow::message, this, &MvStudioWindow::showMessage);
    connect(m_strip, &MvPageStrip::moveRequested, m_pageFlow, &MvPageFlow::move);

    connect(m_tray, &MvFotoTray::filesRequested, m_fotos, &MvFotoFlow::askForFiles);
    connect(m_tray, &MvFotoTray::folderRequested, m_fotos, &MvFotoFlow::askForFolder);
    connect(m_tray, &MvFotoTray::distributionRequested, m_fotos, &MvFotoFlow::distribute);
    connect(m_tray, &MvFotoTray::pathsDropped, m_fotos, &MvFotoFlow::add);
    connect(m_tray, &MvFotoTray::cancelRequested, m_fotos, &MvFotoFlow::cancel);
    connect(m_tray, &MvFotoTray::fotoActivated, m_canvas, &MvPageCanvas::setFoto);
    connect(m_tray, &MvFotoTray::pageRequested, this, &MvStudioWindow::setCurrentPage);
    connect(m_fotos, &MvFotoFlow::progress, m_tray, &MvFotoTray::setProgress);
    connect(m_canvas, &MvPageCanvas::fotosDropped, m_fotos, &MvFotoFlow::fillFrom);
    connect(m_strip, &MvPageStrip::fotosDropped, m_fotos, &MvFotoFlow::fillFrom);
}

void MvStudioWindow::connectStart()
{
    connect(m_start, &MvStartPage::fotosGiven, m_fotos, &MvFotoFlow::startCalendar);
    connect(m_start, &MvStartPage::filesRequested, m_fotos, &MvFotoFlow::askForNewFiles);
    connect(m_start, &MvStartPage::folderRequested, m_fotos, &MvFotoFlow::askForNewFolder);
    connect(m_start, &MvStartPage::themeChosen, m_fotos, &MvFotoFlow::setThemeForNew);
    connect(m_start, &MvStartPage::emptyRequested, this, [this] { m_fotos->startCalendar({}); });
    connect(m_start, &MvStartPage::kindRequested, m_new, &MvNewCalendarFlow::startKind);
    connect(m_new, &MvNewCalendarFlow::leaveRequested, m_flow, &MvProjectFlow::leave);
    connect(m_new, &MvNewCalendarFlow::wanted, m_fotos, &MvFotoFlow::begin);
    connect(m_start, &MvStartPage::importRequested, m_import, &MvBirthdayImport::start);
    connect(m_start, &MvStartPage::openRequested, m_flow, &MvProjectFlow::askAndOpen);
    connect(m_start, &MvStartPage::recentRequested, m_flow, &MvProjectFlow::open);
    connect(new MvDraggedDates(this), &MvDraggedDates::dropped, this, &MvStudioWindow::takeDates);
    connect(m_start, &MvStartPage::closeRequested, this, [this] { setStartShown(false); });
    connect(m_fotos, &MvFotoFlow::leaveRequested, m_flow, &MvProjectFlow::leave);
    connect(m_flow, &MvProjectFlow::opened, this, &MvStudioWindow::onOpened);
    connect(m_project, &MvProject::documentChanged, this, [this] {
        if (isStartShown())
            setStartShown(false); // somebody works on it
    });
    connect(m_print, &MvPrintFlow::pdfRequested, m_export, &MvExportFlow::startPdf);
    connect(m_menus, &MvStudioMenus::recentRequested, m_flow, &MvProjectFlow::open);
    connect(m_flow, &MvProjectFlow::recentFilesChanged, m_menus, &MvStudioMenus::fillRecentMenu);
}

void MvStudioWindow::connectMessages()
{
    const auto listen = [this](auto *sender, auto signal) {
        connect(sender, signal, this, &MvStudioWindow::showMessage);
    };
    listen(m_missingFotos, &MvMissingFotos::message);
    listen(m_flow, &MvProjectFlow::message);
    listen(m_export, &MvExportFlow::message);
    listen(m_print, &MvPrintFlow::message);
    listen(m_import, &MvBirthdayImport::message);
    listen(m_canvas, &MvPageCanvas::message);
    listen(m_entries, &MvEntriesFlow::message);
    listen(m_dates, &MvEntryImportFlow::message);
    listen(m_panels, &MvStudioPanels::message);
    listen(m_fotos, &MvFotoFlow::message);
    listen(m_tray, &MvFotoTray::message);
    listen(new MvLeapDayHint(m_project, this), &MvLeapDayHint::message);
    connect(&MvProactiveHelpController::instance(), &MvProactiveHelpController::adviceRequested, this,
            [this](int, const QString &text) { showMessage(text.simplified()); });
}

void MvStudioWindow::connectPages()
{
    connect(m_canvas, &MvPageCanvas::currentPageChanged, this, &MvStudioWindow::updatePage);
    connect(m_canvas, &MvPageCanvas::zoomChanged, this,
            [this](double zoom) { m_statusBar->setZoom(zoom, m_canvas->isFitted()); });
    connect(m_panels, &MvStudioPanels::dayRequested, this,
            [this, mark = new MvDayMark(m_canvas)](int page, const QDate &date) {
                setCurrentPage(page);
                mark->pointAt(date);
            });
    connect(m_panels, &MvStudioPanels::groupsRequested, this,
            [this] { MvGroupsDialog::open(m_panels->edits(), this); });
    connect(m_panels, &MvStudioPanels::fileRequested, m_canvas, &MvPageCanvas::chooseFoto);
    connect(m_canvas->selection(), &MvPageSelection::changed, this, &MvStudioWindow::updatePage);
    connect(m_strip, &MvPageStrip::pageActivated, m_canvas, &MvPageCanvas::setCurrentPage);
    connect(m_entries, &MvEntriesFlow::noticeChanged, m_statusBar, &MvStudioStatusBar::setEntriesNotice);
    connect(m_statusBar, &MvStudioStatusBar::entriesNoticeClicked, m_entries, &MvEntriesFlow::show);
    connect(m_statusBar, &MvStudioStatusBar::zoomRequested, m_canvas, &MvPageCanvas::setZoom);
    connect(m_statusBar, &MvStudioStatusBar::fitRequested, m_canvas, &MvPageCanvas::zoomToFit);
    connect(m_statusBar, &MvStudioStatusBar::noteChosen, this, &MvStudioWindow::showFinding);
    connect(m_watch, &MvPrintWatch::changed, this, [this] { m_statusBar->setUnfitting(m_watch->notes()); });
    connect(m_export, &MvExportFlow::placeWanted, this, &MvStudioWindow::showFinding);
    connect(m_print, &MvPrintFlow::placeWanted, this, &MvStudioWindow::showFinding);

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
    m_statusBar->setPage(page, count, MvPrintCheck::pageName(m_project->document(), page));
    m_statusBar->setZoom(m_canvas->zoom(), m_canvas->isFitted());
    using A = MvStudioActions;
    for (const A::Id id : {A::FirstPage, A::PreviousPage})
        m_actions->action(id)->setEnabled(page > 0);
    for (const A::Id id : {A::LastPage, A::NextPage})
        m_actions->action(id)->setEnabled(page + 1 < count);
    m_actions->action(A::RemoveFoto)->setEnabled(m_canvas->hasFoto());
    m_actions->action(A::ChooseFoto)->setEnabled(count > 0);
    m_actions->action(A::Distribute)->setEnabled(!m_project->document().fotoPool().isEmpty());
    const bool hasFrames = !m_canvas->frames()->freeElements().isEmpty();
    for (const A::Id id : {A::DuplicateFrame, A::RemoveFrame, A::FrameToFront, A::FrameToBack, A::PlaceFrame})
        m_actions->action(id)->setEnabled(hasFrames);
    for (const A::Id id : {A::AddFotoFrame, A::AddTextFrame, A::AddSmallMonth})
        m_actions->action(id)->setEnabled(count > 0);
    m_actions->action(A::FreeFrames)->setEnabled(m_canvas->frames()->canFreeFrames());
    const bool isMonth = m_project->document().isMonthPage(page);
    for (const A::Id id : {A::RemovePage, A::MovePageUp, A::MovePageDown})
        m_actions->action(id)->setEnabled(count > 0 && !isMonth);
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
        const MvLocale language = document.holidayConfig().language();
        const MvDateRange before = m_project->document().range();
        if (document.title() == MvCalendarTitle::ofRange(before, language) ||
            document.title() == MvCalendarTitle::ofRange(before))                    // as earlier versions called it
            document.setTitle(MvCalendarTitle::ofRange(document.range(), language)); // one that nobody has changed
        m_project->change(document, tr("Papier und Zeitraum ändern"));
    });
    dialog->open();
}

void MvStudioWindow::checkPrint()
{
    auto *dialog = new MvPrintCheckDialog(m_watch, this);
    connect(dialog, &MvPrintCheckDialog::findingChosen, this, &MvStudioWindow::showFinding);
    dialog->show();
}

void MvStudioWindow::showFinding(const MvPrintFinding &finding)
{
    setCurrentPage(finding.page);
    if (finding.date.isValid())
        m_canvas->selection()->selectDay(finding.date);
    else
        m_canvas->selection()->selectElement(finding.element);
}

void MvStudioWindow::showSettings()
{
    auto *dialog = new MvSettingsDialog(this);
    connect(dialog, &MvSettingsDialog::themeChanged, this, &MvStudioWindow::themeChanged);
    connect(dialog, &MvSettingsDialog::languageChanged, this,
            [this] { showMessage(tr("Die andere Sprache gilt ab dem nächsten Start.")); });
    dialog->open();
}

bool MvStudioWindow::isStartShown() const
{
    return m_center->currentWidget() == m_start;
}

/// Where a calendar begins, its pages and panels would only be in the way.
void MvStudioWindow::setStartShown(bool shown)
{
    m_actions->action(MvStudioActions::Welcome)->setChecked(shown);
    if (shown == isStartShown()) {
        m_canvas->setFocus();
        return;
    }
    if (shown) {
        m_docks = saveState(stateVersion);
        for (QDockWidget *dock : findChildren<QDockWidget *>())
            dock->hide();
        m_menus->toolBar()->hide();
        m_start->renew();
        m_center->setCurrentWidget(m_start);
        m_start->setFocus();
    } else {
        m_center->setCurrentWidget(m_canvas);
        restoreState(m_docks, stateVersion);
        m_canvas->askForFotos(); // before anybody wants thumbnails
        m_canvas->setFocus();
    }
    m_statusBar->setPageShown(!shown);
}

/// Photos that are dropped where a calendar begins bring a new one, whose entries these are to be.
void MvStudioWindow::takeDates(const QStringList &files, bool areWithFotos)
{
    if (isStartShown() && areWithFotos) {
        connect(
            m_project, &MvProject::documentReplaced, m_dates, [this, files] { m_dates->import(files); },
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
        return;
    }
    setStartShown(false);
    m_dates->import(files);
}

/// The first steps are behind somebody who opens a calendar; the next start shows them again.
void MvStudioWindow::onOpened()
{
    setStartShown(false);
    m_missingFotos->look();
}

void MvStudioWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) // be it by the window manager
        m_actions->action(MvStudioActions::FullScreen)->setChecked(isFullScreen());
}

void MvStudioWindow::rememberWindow()
{
    setStartShown(false); // the docks as they stand beside the page
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

/// A calendar is opened wherever it is dropped; photos that no page and no tray takes come to the others.
void MvStudioWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const bool isOwn = event->source() != nullptr;
    const bool hasDates = !MvDraggedDates::paths(event->mimeData()).isEmpty();
    if (!draggedProject(event->mimeData()).isEmpty() ||
        (!isOwn && (hasDates || MvDraggedFotos::areIn(event->mimeData()))))
        event->acceptProposedAction();
    if (hasDates)
        showMessage(tr("Loslassen übernimmt die Termine in den Kalender."));
}

void MvStudioWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    if (const QString path = draggedProject(event->mimeData()); !path.isEmpty())
        m_flow->open(path);
    else if (!MvDraggedFotos::areIn(event->mimeData()))
        return; // files of dates have a way of their own
    else if (isStartShown())
        m_fotos->startCalendar(MvDraggedFotos::paths(event->mimeData()));
    else
        m_fotos->add(MvDraggedFotos::paths(event->mimeData()));
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvStudioMenus.h"

#include "MvGUIWidgets/MvIconRegistry.h"
#include "common/MvStudioSettings.h"
#include "window/MvStudioActions.h"
#include "window/MvUndoActions.h"

#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;
using A = MvStudioActions;

MvStudioMenus::MvStudioMenus(MvStudioActions *actions, MvUndoActions *undo, QMainWindow *window)
    : QObject(window)
    , m_actions(actions)
    , m_undo(undo)
    , m_window(window)
{
    createFileMenu();
    createEditMenu();
    createViewMenu();
    createPageMenu();
    createFrameMenu();
    createFotoMenu();
    createLookMenu();
    QMenu *help = window->menuBar()->addMenu(tr("&Hilfe"));
    help->addActions({actions->action(A::Shortcuts), actions->action(A::About)});
    createToolBar();
    fillRecentMenu();
}

void MvStudioMenus::createFileMenu()
{
    const auto action = [this](A::Id id) { return m_actions->action(id); };
    QMenu *file = m_window->menuBar()->addMenu(tr("&Datei"));
    file->addActions({action(A::New), action(A::Open)});
    m_recent = file->addMenu(MvIconRegistry::instance().icon(u"ico_studio_recent"_s), tr("&Zuletzt geöffnet"));
    m_recent->setObjectName(u"recentMenu"_s);
    connect(m_recent, &QMenu::aboutToShow, this, &MvStudioMenus::fillRecentMenu);
    file->addSeparator();
    file->addActions({action(A::Save), action(A::SaveAs)});
    file->addSeparator();
    file->addAction(action(A::ImportBirthdays));
    file->addAction(action(A::ImportDates));
    file->addSeparator();
    file->addActions({action(A::PrintCheck), action(A::ExportPdf), action(A::ExportPng), action(A::Print)});
    file->addSeparator();
    file->addAction(action(A::Quit));
}

void MvStudioMenus::createEditMenu()
{
    QMenu *edit = m_window->menuBar()->addMenu(tr("&Bearbeiten"));
    edit->addActions({m_undo->undoAction(), m_undo->redoAction()});
    edit->addSeparator();
    edit->addAction(m_actions->action(A::Groups));
    edit->addSeparator();
    edit->addAction(m_actions->action(A::Settings));
}

void MvStudioMenus::createViewMenu()
{
    const auto action = [this](A::Id id) { return m_actions->action(id); };
    m_view = m_window->menuBar()->addMenu(tr("&Ansicht"));
    m_view->addActions({action(A::ZoomIn), action(A::ZoomOut), action(A::Zoom100), action(A::ZoomFit)});
    m_view->addSeparator();
    m_view->addActions({action(A::PrintMarks), action(A::FullScreen), action(A::Welcome)});
    m_view->addSeparator();
}

void MvStudioMenus::createPageMenu()
{
    const auto action = [this](A::Id id) { return m_actions->action(id); };
    QMenu *page = m_window->menuBar()->addMenu(tr("&Seite"));
    page->addActions({action(A::PreviousPage), action(A::NextPage), action(A::FirstPage), action(A::LastPage)});
    page->addSeparator();
    page->addActions({action(A::AddPage), action(A::AddCover), action(A::AddBack), action(A::DuplicatePage),
                      action(A::MovePageUp), action(A::MovePageDown), action(A::RemovePage)});
}

void MvStudioMenus::createFrameMenu()
{
    const auto action = [this](A::Id id) { return m_actions->action(id); };
    QMenu *frame = m_window->menuBar()->addMenu(tr("Rahme&n"));
    frame->addActions({action(A::NextElement)});
    frame->addSeparator();
    frame->addActions({action(A::AddFotoFrame), action(A::AddTextFrame), action(A::AddSmallMonth)});
    frame->addSeparator();
    frame->addActions({action(A::PlaceFrame), action(A::FrameToFront), action(A::FrameToBack),
                       action(A::DuplicateFrame), action(A::RemoveFrame)});
    frame->addSeparator();
    frame->addAction(action(A::FreeFrames));
}

void MvStudioMenus::createFotoMenu()
{
    const auto action = [this](A::Id id) { return m_actions->action(id); };
    QMenu *fotos = m_window->menuBar()->addMenu(tr("&Fotos"));
    fotos->addActions({action(A::AddFotos), action(A::AddFolder), action(A::Distribute)});
    fotos->addSeparator();
    fotos->addActions({action(A::ChooseFoto), action(A::RemoveFoto)});
    fotos->addSeparator();
    fotos->addAction(action(A::FindFotos));
}

void MvStudioMenus::createLookMenu()
{
    const auto action = [this](A::Id id) { return m_actions->action(id); };
    QMenu *look = m_window->menuBar()->addMenu(tr("&Gestaltung"));
    look->addActions({action(A::Theme), action(A::Template), action(A::Layout)});
    look->addSeparator();
    look->addAction(action(A::PageSetup));
}

void MvStudioMenus::createToolBar()
{
    m_toolBar = m_window->addToolBar(tr("Werkzeuge"));
    m_toolBar->setObjectName(u"toolBar"_s);
    m_toolBar->setMovable(false);
    const auto add = [&](std::initializer_list<A::Id> ids) {
        for (const A::Id id : ids)
            m_toolBar->addAction(m_actions->action(id));
        m_toolBar->addSeparator();
    };
    add({A::New, A::Open, A::Save});
    m_toolBar->addActions({m_undo->undoAction(), m_undo->redoAction()});
    m_toolBar->addSeparator();
    addNamedButton("fotoButton", tr("Foto"), {A::AddFotos, A::AddFolder, A::Distribute, A::ChooseFoto});
    addNamedButton("lookButton", tr("Gestaltung"), {A::Theme, A::Template, A::Layout, A::PageSetup});
    addNamedButton("exportButton", tr("Export"), {A::ExportPdf, A::ExportPng, A::Print, A::PrintCheck});
    m_toolBar->addSeparator();
    add({A::PreviousPage, A::NextPage});
    add({A::ZoomOut, A::ZoomIn, A::ZoomFit});
    m_view->addAction(m_toolBar->toggleViewAction());
}

/// The first action is what a click does.
void MvStudioMenus::addNamedButton(const char *objectName, const QString &text, const QList<int> &ids)
{
    auto *button = new QToolButton(m_toolBar);
    QAction *usual = m_actions->action(A::Id(ids.constFirst()));
    button->setObjectName(QLatin1StringView(objectName));
    button->setText(text);
    button->setAccessibleName(text);
    button->setIcon(usual->icon());
    button->setToolTip(usual->toolTip());
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setAutoRaise(true);
    auto *menu = new QMenu(button);
    for (const int id : ids)
        menu->addAction(m_actions->action(A::Id(id)));
    button->setMenu(menu);
    connect(button, &QToolButton::clicked, usual, &QAction::trigger);
    m_toolBar->addWidget(button);
}

void MvStudioMenus::fillRecentMenu()
{
    m_recent->clear();
    int number = 0;
    for (const QString &path : MvStudioSettings::recentFiles()) {
        QString shown = QDir::toNativeSeparators(path);
        if (path.startsWith(QDir::homePath() + u'/'))
            shown = u'~' + QDir::toNativeSeparators(path.mid(QDir::homePath().size()));
        shown.replace(u'&', u"&&"_s);
        ++number;
        QAction *action = m_recent->addAction(number < 10 ? u"&%1  %2"_s.arg(number).arg(shown) : shown);
        action->setStatusTip(tr("Diesen Kalender öffnen"));
        action->setData(path);
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT recentRequested(path); });
    }
    m_recent->menuAction()->setEnabled(number > 0);
    if (number == 0)
        return;
    m_recent->addSeparator();
    QAction *clear = m_recent->addAction(tr("Liste &leeren"));
    clear->setObjectName(u"clearRecent"_s);
    clear->setStatusTip(tr("Die Liste leeren; die Dateien bleiben"));
    connect(clear, &QAction::triggered, this, [this] {
        MvStudioSettings::clearRecentFiles();
        m_recent->menuAction()->setEnabled(false);
    });
}

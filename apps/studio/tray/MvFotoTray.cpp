// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tray/MvFotoTray.h"

#include "common/MvDraggedFotos.h"
#include "tray/MvFotoTrayDelegate.h"
#include "tray/MvFotoTrayModel.h"

#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvProject/MvProject.h"

#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QScrollBar>
#include <QStackedLayout>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvFotoTray::MvFotoTray(MvProject *project, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_model(new MvFotoTrayModel(project, this))
    , m_view(new QListView(this))
    , m_summary(new QLabel(this))
    , m_invitation(
          new QLabel(tr("Hier liegen die Fotos des Kalenders. Ziehen Sie Bilder oder einen Ordner hierher."), this))
    , m_progress(new QProgressBar(this))
{
    setObjectName(u"photoTray"_s);
    setAccessibleName(tr("Fotos des Kalenders"));
    setAcceptDrops(true);
    m_view->setObjectName(u"photoList"_s);
    m_view->setAccessibleName(tr("Fotos des Kalenders"));
    m_view->setModel(m_model);
    auto *delegate = new MvFotoTrayDelegate(m_view);
    m_view->setItemDelegate(delegate);
    m_view->setViewMode(QListView::IconMode);
    m_view->setFlow(QListView::LeftToRight);
    m_view->setResizeMode(QListView::Adjust);
    m_view->setMovement(QListView::Static);
    m_view->setUniformItemSizes(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setDragEnabled(true);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setAcceptDrops(false); // the tray takes what is dropped
    m_view->viewport()->setAcceptDrops(false);
    m_view->installEventFilter(this);
    const int row = MvFotoTrayDelegate::pictureSize.height() + 8;
    m_view->setMinimumHeight(row);
    m_invitation->setObjectName(u"photoInvitation"_s);
    m_invitation->setAlignment(Qt::AlignCenter);
    m_invitation->setWordWrap(true);
    m_invitation->setForegroundRole(QPalette::PlaceholderText);
    auto *stack = new QStackedLayout;
    stack->addWidget(m_view);
    stack->addWidget(m_invitation);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 2, 0, 0);
    column->setSpacing(2);
    m_head = createHead();
    column->addWidget(m_head);
    column->addLayout(stack, 1);

    connect(delegate, &MvFotoTrayDelegate::pictureReady, m_view->viewport(), qOverload<>(&QWidget::update));
    connect(m_view, &QListView::activated, this,
            [this](const QModelIndex &index) { Q_EMIT fotoActivated(m_model->path(index.row())); });
    const auto update = [this, stack] {
        const bool isEmpty = m_model->rowCount() == 0;
        stack->setCurrentIndex(isEmpty ? 1 : 0);
        updateSummary();
    };
    connect(m_model, &QAbstractItemModel::modelReset, this, update);
    connect(m_model, &QAbstractItemModel::dataChanged, this, update);
    update();
}

MvFotoTray::~MvFotoTray() = default;

/// The head may break into two lines; below it a whole row of photos stays in sight.
void MvFotoTray::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QMargins margins = layout()->contentsMargins();
    setMinimumHeight(margins.top() + m_head->heightForWidth(width()) + layout()->spacing() + m_view->minimumHeight() +
                     margins.bottom());
}

QSize MvFotoTray::sizeHint() const
{
    constexpr int lowScreen = 800;
    const int rows = screen()->availableSize().height() < lowScreen ? 1 : 2;
    const QSize hint = QWidget::sizeHint();
    return {hint.width(), hint.height() - m_view->sizeHint().height() + rows * m_view->minimumHeight()};
}

QToolButton *MvFotoTray::createButton(const char *name, const QString &icon, const QString &text, const QString &tip)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1StringView(name));
    button->setText(text);
    button->setToolTip(tip);
    button->setStatusTip(tip);
    if (!icon.isEmpty())
        button->setIcon(MvIconRegistry::instance().icon(icon));
    button->setToolButtonStyle(icon.isEmpty() ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QWidget *MvFotoTray::createHead()
{
    auto *files = createButton("trayAddFiles", u"ico_studio_photo_add"_s, tr("Fotos …"), tr("Fotos hinzufügen"));
    auto *folder = createButton("trayAddFolder", u"ico_studio_document_open"_s, tr("Ordner …"),
                                tr("Alle Fotos eines Ordners hinzufügen"));
    m_distribute = createButton("trayDistribute", u"ico_studio_content"_s, tr("Verteilen"),
                                tr("Die leeren Rahmen füllen: Jedes Foto kommt in seinen Monat"));
    auto *order = createButton("traySort", {}, tr("Sortieren"), tr("Die Fotos nach Zeit oder Name ordnen"));
    order->setPopupMode(QToolButton::InstantPopup);
    auto *orders = new QMenu(order);
    connect(orders->addAction(tr("Nach der &Aufnahmezeit")), &QAction::triggered, this,
            [this] { sort(int(MvFotoPool::Order::Time)); });
    connect(orders->addAction(tr("Nach dem &Namen")), &QAction::triggered, this,
            [this] { sort(int(MvFotoPool::Order::Name)); });
    order->setMenu(orders);
    auto *unused = createButton("trayUnused", {}, tr("Nur freie"), tr("Nur Fotos zeigen, die auf keiner Seite sind"));
    unused->setCheckable(true);
    m_cancel = createButton("trayCancel", {}, tr("Abbrechen"), tr("Keine weiteren Fotos hinzufügen"));
    m_progress->setObjectName(u"trayProgress"_s);
    m_progress->setAccessibleName(tr("Fotos werden gelesen"));
    m_progress->setMaximumWidth(160);
    m_progress->setFormat(tr("%v von %m"));
    m_progress->hide();
    m_cancel->hide();
    m_summary->setObjectName(u"traySummary"_s);
    m_summary->setForegroundRole(QPalette::PlaceholderText);
    m_summary->setContentsMargins(8, 0, 8, 0);
    connect(files, &QToolButton::clicked, this, &MvFotoTray::filesRequested);
    connect(folder, &QToolButton::clicked, this, &MvFotoTray::folderRequested);
    connect(m_distribute, &QToolButton::clicked, this, &MvFotoTray::distributionRequested);
    connect(unused, &QToolButton::clicked, m_model, &MvFotoTrayModel::setUnusedOnly);
    connect(m_cancel, &QToolButton::clicked, this, &MvFotoTray::cancelRequested);

    auto *head = new QWidget(this);
    auto *row = new MvFlowLayout(head); // breaks where the tray is narrow
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(2);
    for (QToolButton *button : {files, folder, m_distribute, order, unused})
        row->addWidget(button);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_summary, m_progress, m_cancel})
        row->addWidget(widget);
    return head;
}

void MvFotoTray::updateSummary()
{
    const int all = int(m_project->document().fotoPool().size());
    const int used = m_model->usedCount();
    m_summary->setText(
        all == 0 && used == 0 ? QString() : tr("%1 von %n Fotos auf den Seiten", nullptr, qMax(all, used)).arg(used));
    m_distribute->setEnabled(all > 0);
}

void MvFotoTray::setProgress(int done, int total)
{
    const bool isRunning = total >= 0;
    m_progress->setVisible(isRunning);
    m_cancel->setVisible(isRunning);
    if (!isRunning)
        return;
    m_progress->setRange(0, total);
    m_progress->setValue(done);
}

QStringList MvFotoTray::selectedPaths() const
{
    QModelIndexList indexes = m_view->selectionModel()->selectedIndexes();
    std::sort(indexes.begin(), indexes.end());
    QStringList paths;
    for (const QModelIndex &index : std::as_const(indexes))
        paths.append(m_model->path(index.row()));
    return paths;
}

void MvFotoTray::sort(int order)
{
    MvCalendarDocument document = m_project->document();
    MvFotoPool pool = document.fotoPool();
    pool.sort(MvFotoPool::Order(order));
    document.setFotoPool(pool);
    m_project->change(document, tr("Fotos sortieren"));
}

/// What is on a page stays; that would leave a hole that nobody asked for.
void MvFotoTray::removeSelected()
{
    MvCalendarDocument document = m_project->document();
    const QHash<QString, int> uses = document.fotoUses();
    MvFotoPool pool = document.fotoPool();
    int kept = 0;
    for (const QString &path : selectedPaths()) {
        if (uses.value(path) > 0)
            ++kept;
        else
            pool.remove(path);
    }
    document.setFotoPool(pool);
    m_project->change(document, tr("Fotos aus der Ablage nehmen"));
    if (kept > 0)
        Q_EMIT message(tr("%n Fotos sind auf Seiten und bleiben.", nullptr, kept));
}

void MvFotoTray::showPageOf(const QString &path)
{
    const MvCalendarDocument &document = m_project->document();
    for (int page = 0; page < document.pages().size(); ++page) {
        if (document.pages().at(page).fotoPaths().contains(path)) {
            Q_EMIT pageRequested(page);
            return;
        }
    }
}

QMenu *MvFotoTray::createContextMenu()
{
    const QStringList paths = selectedPaths();
    auto *menu = new QMenu(this);
    menu->setObjectName(u"photoTrayMenu"_s);
    if (paths.isEmpty())
        return menu;
    const QString &first = paths.constFirst();
    const auto add = [menu](const char *name, const QString &text) {
        QAction *action = menu->addAction(text);
        action->setObjectName(QLatin1StringView(name));
        return action;
    };
    connect(add("trayPut", tr("Auf die &gezeigte Seite setzen")), &QAction::triggered, this,
            [this, first] { Q_EMIT fotoActivated(first); });
    QAction *show = add("trayShowPage", tr("Zur &Seite mit diesem Foto"));
    show->setEnabled(m_project->document().fotoUses().value(first) > 0);
    connect(show, &QAction::triggered, this, [this, first] { showPageOf(first); });
    connect(add("trayOpenFolder", tr("&Ordner öffnen")), &QAction::triggered, this,
            [first] { QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(first).absolutePath())); });
    menu->addSeparator();
    connect(add("trayRemove", tr("Aus der Ablage &nehmen")), &QAction::triggered, this, &MvFotoTray::removeSelected);
    return menu;
}

bool MvFotoTray::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        removeSelected();
        return true;
    }
    if (event->type() == QEvent::ContextMenu && !selectedPaths().isEmpty()) {
        QMenu *menu = createContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void MvFotoTray::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->source() != m_view && MvDraggedFotos::areIn(event->mimeData()))
        event->acceptProposedAction();
}

void MvFotoTray::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    Q_EMIT pathsDropped(MvDraggedFotos::paths(event->mimeData()));
}

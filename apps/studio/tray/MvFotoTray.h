// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>
#include <QWidget>

class MvFotoTrayModel;
class MvProject;
class QAction;
class QLabel;
class QListView;
class QMenu;
class QProgressBar;
class QToolButton;

/// The photos of the calendar below the page: to be dragged onto it, added to, sorted, distributed and taken away.
class MvFotoTray : public QWidget
{
    Q_OBJECT

public:
    /// The project is not owned.
    explicit MvFotoTray(MvProject *project, QWidget *parent = nullptr);
    ~MvFotoTray() override;

    QListView *view() const { return m_view; }
    QStringList selectedPaths() const;
    /// Two rows of photos, on a low screen one: the page is what it is about.
    QSize sizeHint() const override;
    /// The menu for what is selected. The caller shows and deletes it.
    QMenu *createContextMenu();

public Q_SLOTS:
    /// Photos are being read; a total of 0: nobody knows how many, -1: it is over.
    void setProgress(int done, int total);

Q_SIGNALS:
    void filesRequested();
    void folderRequested();
    void distributionRequested();
    /// Files and folders were dropped.
    void pathsDropped(const QStringList &paths);
    /// Somebody wants the photo on the page that is shown.
    void fotoActivated(const QString &path);
    void pageRequested(int page);
    void cancelRequested();
    void message(const QString &text);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *createHead();
    QToolButton *createButton(const char *name, const QString &icon, const QString &text, const QString &tip);
    void sort(int order);
    void removeSelected();
    void showPageOf(const QString &path);
    void updateSummary();

    MvProject *m_project;
    MvFotoTrayModel *m_model;
    QListView *m_view;
    QWidget *m_head = nullptr;
    QLabel *m_summary;
    QLabel *m_invitation;
    QProgressBar *m_progress;
    QToolButton *m_cancel = nullptr;
    QToolButton *m_distribute = nullptr;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QListView>

class MvFotoPages;
class MvIdleImages;
class MvPageStripDelegate;
class MvPageStripModel;
class MvProject;
class MvScreenFotos;

/// The pages of the open project one below the other, as thumbnails with their months. Thumbnails arrive one by one
/// while the program has nothing else to do, the current and the visible ones first.
class MvPageStrip : public QListView
{
    Q_OBJECT

public:
    /// The project is not owned and must outlive the strip.
    explicit MvPageStrip(MvProject *project, QWidget *parent = nullptr);
    ~MvPageStrip() override;

    int currentPage() const;
    /// Null as long as it has not been made.
    QImage thumbnail(int page) const;
    /// True when no thumbnail is out of date.
    bool isComplete() const;

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Marks the page and scrolls to it; emits nothing.
    void setCurrentPage(int page);

Q_SIGNALS:
    /// The user chose a page.
    void pageActivated(int page);
    /// The user dragged a page to the place of another one.
    void moveRequested(int from, int to);
    /// Several photos, or folders, were dropped on a page: for its frame and those that follow it.
    void fotosDropped(const QStringList &paths, int page, int element);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent *event) override;

private:
    void onPagesReset();
    void onFotoLoaded(const QString &path);
    void takeFotos(const QDropEvent *event, int page);
    void preferVisible();
    void keepNamesWhole();
    void adaptToWidth();
    QImage makeThumbnail(int page);

    MvProject *m_project;
    MvIdleImages *m_images;
    MvScreenFotos *m_fotos;
    MvFotoPages *m_entryFotos;
    MvPageStripModel *m_model;
    MvPageStripDelegate *m_delegate;
    QSize m_thumbnailSize; // logical pixels
    bool m_isMarking = false;
};
